// owl/bitmap.h
//
// A bitmap of a device, or a section of memory that is laid out as a device-independent one. To be drawn on
// it is selected in a TMemoryDC, in one at a time. Windows only.
#pragma once

#include "owl/gdi_object.h"
#include "owl/geometry.h"
#include "owl/resource_id.h"

namespace owl {

class TClipboard;
class TDC;
class TDib;
class TPalette;

class OWL_EXPORT TBitmap : public TGdiObject {
public:
    /// On a bitmap that exists. A null `handle` is accepted: such a bitmap has no size, and cannot be
    /// selected.
    explicit TBitmap(HBITMAP handle, TAutoDelete autoDelete = NoAutoDelete);
    /// With the depth of `dc`: of a memory context that has no bitmap of its own, one bit a pixel; of a
    /// TMetaFileDC, that of the screen. Its pixels are black. With a side of 0 it is the system's bitmap of
    /// one pixel.
    TBitmap(const TDC& dc, int width, int height);
    /// `bits` has the pixels, each row filled to 2 bytes, the upper one first; null leaves them black.
    TBitmap(int width, int height, int planes, int bitCount, const void* bits);
    /// A resource of `module`; with a null `module` one of the system's own bitmaps (OBM_...).
    TBitmap(HINSTANCE module, TResId id);
    /// A bitmap of its own with the same pixels, also while `other` is selected; a section becomes a section,
    /// with its lowest row first. If `other` has no handle, neither has it.
    TBitmap(const TBitmap& other);
    /// A copy of what lies on an open clipboard as CF_BITMAP. Throws TXWindow if nothing does.
    explicit TBitmap(const TClipboard& clipboard);
    /// The picture with the depth of the screen, its palette colours met by `palette` if that is not null.
    explicit TBitmap(const TDib& dib, const TPalette* palette = nullptr);
    ~TBitmap() override;

    operator HBITMAP() const { return static_cast<HBITMAP>(GetHandle()); }

    /// Describes the bitmap. False, with all 0, if it has no handle.
    bool GetObject(BITMAP& description) const;
    /// In pixels; 0 if it has no handle.
    int Width() const;
    int Height() const;
    TSize Size() const;
    /// Bits of a pixel in each of its planes.
    int BitsPixel() const;
    int Planes() const;

    /// The size that SetBitmapDimension() has noted; width and height in pixels while none was. False, with 0
    /// by 0, if it has no handle.
    bool GetBitmapDimension(TSize& size) const;
    /// Notes a size with the bitmap, for whoever asks. False if it has no handle.
    bool SetBitmapDimension(const TSize& size);

    /// Puts a copy on an open clipboard as CF_BITMAP. Throws TXWindow if the clipboard refuses it.
    void ToClipboard(TClipboard& clipboard) const;
};

}  // namespace owl
