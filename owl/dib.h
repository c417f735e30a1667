// owl/dib.h
//
// A device-independent picture in memory of its own: a header, colours and pixels, in the form that the
// system draws. Coordinates count from the upper left pixel, however the rows are stored. Windows only. Does
// not: draw itself (see TDC::StretchDIBits), decode pictures of run lengths, whose pixels can be drawn but
// not read, or keep a larger header's colour space.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "owl/color.h"
#include "owl/geometry.h"
#include "owl/platform/export.h"
#include "owl/resource_id.h"

namespace owl {

class TClipboard;
struct DibParts;

class OWL_EXPORT TDib {
public:
    /// What MapUIColors() replaces, and by what. The values are added up.
    enum TMapColors : unsigned int {
        /// Black by COLOR_BTNTEXT.
        MapText = 1,
        /// The middle grey by COLOR_BTNSHADOW.
        MapShadow = 2,
        /// The light grey by COLOR_BTNFACE.
        MapFace = 4,
        /// White by COLOR_BTNHIGHLIGHT.
        MapHighlight = 8,
    };

    /// A black picture; with up to 8 bits a pixel all its colours are black. Throws TXGdi if a side is not
    /// above 0, the depth is not 1, 4, 8, 16, 24 or 32, or the picture would take 2 GiB.
    TDib(int width, int height, int bitCount);
    /// A bitmap resource of `module`. Throws TXGdi if there is none or it is damaged.
    TDib(HINSTANCE module, TResId id);
    /// A bitmap file. Throws TXGdi if it cannot be read or is damaged.
    explicit TDib(const char* fileName);
    /// A copy of a packed picture in global memory, which stays the caller's. Throws TXGdi if it is damaged.
    explicit TDib(HGLOBAL packed);
    /// A copy of what lies on an open clipboard as CF_DIB. Throws TXWindow if nothing does, TXGdi if it is
    /// damaged.
    explicit TDib(const TClipboard& clipboard);

    int Width() const { return Header().biWidth; }
    int Height() const;
    TSize Size() const { return TSize(Width(), Height()); }
    int BitsPixel() const { return Header().biBitCount; }
    /// The entries of its colour table: none with more than 8 bits a pixel.
    int NumColors() const { return static_cast<int>(Header().biClrUsed); }
    /// What drawing takes, with the colours behind the header. Good until the picture goes or is assigned to.
    const BITMAPINFO* GetInfo() const { return reinterpret_cast<const BITMAPINFO*>(m_info.data()); }
    const void* GetBits() const { return m_bits.data(); }
    void* GetBits() { return m_bits.data(); }
    /// Bytes of all the pixels.
    unsigned long GetBitsSize() const { return static_cast<unsigned long>(m_bits.size()); }
    /// Bytes from one stored row to the next.
    int Pitch() const;

    /// An entry of the colour table; black if there is no such entry.
    TColor GetColor(int index) const;
    /// False, and nothing done, if there is no such entry.
    bool SetColor(int index, TColor color);
    /// The first entry that is exactly `color`; -1 if none is.
    int FindColor(TColor color) const;
    /// Replaces `from` by `to`: in the colour table its first entry, or with `all` each; without a table each
    /// pixel. Returns how many entries or pixels that were.
    int MapColor(TColor from, TColor to, bool all = false);
    /// Replaces the standard greys of a drawing made for buttons by those that the user chose: the ones named
    /// by `mask`, a sum of TMapColors. `face`, if not null, takes the place of COLOR_BTNFACE.
    void MapUIColors(unsigned int mask, const TColor* face = nullptr);

    /// What a pixel looks like. CLR_INVALID outside the picture or of one of run lengths.
    TColor GetPixel(int x, int y) const;
    /// Gives a pixel a colour; with a colour table the nearest there is. False outside the picture or of one
    /// of run lengths.
    bool SetPixel(int x, int y, TColor color);
    /// The number that is stored for a pixel: with a colour table its entry. -1 where GetPixel() is
    /// CLR_INVALID, and of pixels with more than 8 bits.
    int GetIndex(int x, int y) const;

    /// Puts a copy on an open clipboard as CF_DIB. Throws TXWindow if the clipboard refuses it.
    void ToClipboard(TClipboard& clipboard) const;

private:
    explicit TDib(DibParts parts);

    const BITMAPINFOHEADER& Header() const { return GetInfo()->bmiHeader; }
    const RGBQUAD* Colors() const;
    RGBQUAD* Colors();
    bool HasPixel(int x, int y) const;
    std::size_t Offset(int x, int y) const;
    int Nearest(TColor color) const;
    std::uint32_t Stored(int x, int y) const;
    void Store(int x, int y, std::uint32_t value);
    template <class Map>
    int MapEach(const Map& map);

    std::vector<std::uint8_t> m_info;
    std::vector<std::uint8_t> m_bits;
};

}  // namespace owl
