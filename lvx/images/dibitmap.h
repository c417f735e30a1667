// lvx/images/dibitmap.h
//
// The library's one raster image in memory: a device-independent bitmap as a single packed block of global
// memory, header, colour table and pixels, in the form that the clipboard and the system's drawing calls use.
// It comes from a file, from a block, from another image or out of a store (docs/bitmaps.md has every byte),
// and can be turned and skewed into a new image (docs/skew.md).
//
//     LVXUtilities::DIBitmap photo("photo.jpg", LVXUtilities::DIBitmap::AnyFormat);
//     const auto pixels = photo.GetBitsAddress();  // blue, green, red; the bottom row first
//     store << photo;
//
// An image owns its block unless it was made with Borrow. One thread at a time. An image without a block is
// empty: its numbers are 0, its addresses null.
// Does not: change depth, decompress run lengths, check that a block holds all the pixels its header claims,
// or write JPEG files.
#pragma once

#include <cstdint>
#include <string>

#include "lvx/images/global_locker.h"
#include "lvx/images/rectangles.h"
#include "lvx/platform/bitmap_headers.h"
#include "lvx/platform/export.h"
#include "lvx/store/storable.h"
#include "lvx/text/ownership.h"
#include "owl/geometry.h"

class LVXRegion;

namespace owl {
class TBitmap;
class TDC;
class TPalette;
}  // namespace owl

namespace LVXUtilities {

class LVX_EXPORT DIBitmap : public virtual Storable {
public:
    /// What becomes of a block that is handed over, and who frees it. Hosts pass the numbers.
    enum Ownership : int {
        /// It is used as it is. The caller keeps it alive as long as the image, and frees it.
        Borrow = 0,
        /// A private copy is used and freed; the caller keeps the block itself.
        Copy = 1,
        /// It is used as it is and freed with the image.
        Adopt = 2,
    };

    /// Kinds of files. AnyFormat tries a bitmap file and then a JPEG file; it saves a bitmap file.
    enum Format : int { DIB = 0, JPEG = 1, AnyFormat = 2 };

    class LVX_HIDDEN Strategy;

    /// Reads a file. Throws these texts as const char*: "Not a valid bitmap" if `format` is DIB and the file
    /// is none or cannot be read; "No such file." if it is not DIB and the file cannot be opened; "Invalid
    /// format." for any other format; what InitDIB and InitJPEG throw. A file that is no JPEG file where one
    /// is wanted, or a damaged one, ends the process: see InitJPEG.
    DIBitmap(const std::string& fileName, Format format);

    /// An image of `block`, which is a handle of global memory or null. Throws std::bad_alloc if a copy finds
    /// no memory. If it throws, nothing has been adopted.
    DIBitmap(void* block, Ownership ownership);

    /// Always a private Copy, also of a borrowed block. Throws std::bad_alloc.
    DIBitmap(const DIBitmap& other);

    /// Frees the block unless it is borrowed.
    ~DIBitmap() override;

    /// Writes the block's size as a long, and its bytes as they are. The size is that of the memory, which
    /// may be more than was asked for. Throws ObjectStore::WriteFailure for a block of 2 GiB or more; other
    /// exceptions of the store pass through.
    void PutTo(ObjectStore& store) const override;

    /// Replaces the block by one out of `store`. Whoever owned the old block, it is freed, and Ownership
    /// stays: an image that borrowed does not free what it read. Throws std::bad_alloc, and is empty then.
    /// When reading fails the block holds what came before that, and zeros.
    void GetFrom(ObjectStore& store) override;

    /// As a copy and a swap: this image ends with a private Copy. Throws std::bad_alloc, unchanged.
    DIBitmap& operator=(const DIBitmap& other);

    /// Exchanges block, ownership and all. An image may be swapped with itself.
    void swap(DIBitmap& other) noexcept;

    /// Replaces the block by the bitmap in the file; false, and nothing changed, if the file does not begin
    /// as one or cannot be read. Pixels that a shorter file lacks are 0, without a word. Throws the text
    /// "Error" as a const char* if reading fails later, or if the header claims what the file cannot hold
    /// (docs/bitmaps.md has the limits), and std::bad_alloc.
    bool InitDIB(const std::string& fileName);

    /// Replaces the block by the picture in the JPEG file, in 24 bits per pixel, or 32 for one in inks. A
    /// picture in shades of grey is laid out as if it were in colour, and comes out garbled. Throws "No such
    /// file." as a const char* if the file cannot be opened, and std::bad_alloc, which a block of 2 GiB or
    /// more gets too. A file that is no JPEG file, or a damaged one, ends the process with a message on
    /// standard error and exit status 1: the decoder's own way, that hosts rely on. Any size up to that is
    /// believed, however short the file: a few damaged bytes can cost the time and memory of such a picture.
    void InitJPEG(const std::string& fileName);

    /// SaveAsJPEG if `format` is JPEG, else SaveAsDIB.
    void SaveAs(const std::string& fileName, Format format);

    /// Writes a bitmap file: 14 bytes and the block as it is. Throws "Cannot open file." as a const char*. A
    /// write that fails is not told.
    void SaveAsDIB(const std::string& fileName);

    /// Does nothing, on purpose: no file, no error.
    void SaveAsJPEG(const std::string& fileName);

    /// Width and height in pixels, as the header has them.
    owl::TSize GetSize() const;
    int GetBitsPerPixel() const;
    int GetWidth() const;
    /// Negative if the block's first row is the top one.
    int GetHeight() const;
    /// 0 if the header does not tell, as a core header never does.
    int GetPixelsPerMetreX() const;
    int GetPixelsPerMetreY() const;

    /// The first row's pixels, which lie behind the colour table; in the locker, one lock on the block. Never
    /// behind the block's end: a block too short for its colour table gives its end.
    GlobalLocker<unsigned char> GetBitsAddress() const;

    /// The colour table, likewise; the pixels' address if there is none. After a core header the entries are
    /// RGBTRIPLE nevertheless.
    GlobalLocker<tagRGBQUAD> GetClrTabAddress() const;

    /// Bytes per row, a multiple of 4. Reads the block as one with a header of 40 bytes or more, always: for
    /// a core header the result means nothing. Arithmetic is in 32 bits, with a sign, and wraps.
    int GetStorageWidth() const;

    /// The picture turned by `angle` radians, against the clock as it is seen, on a white ground with a black
    /// line around it, which a picture that fills its frame covers. The frame is that of the turned corners,
    /// each cut to whole pixels toward 0. Depth and the rest of the header stay, but that no colours count as
    /// used, and the bottom row comes first; pictures with a colour table get the system's own, and its
    /// colours that are the nearest. Of a frame of more than 65535 rows the lowest are filled, as many as the
    /// low 16 bits of that number say.
    /// Null for an empty image, a compressed one or one of another depth than 1, 4, 8, 16, 24 and 32, if the
    /// frame is empty, and where the system refuses to draw. Throws std::bad_alloc, also if the result would
    /// be of 2 GiB or more.
    lvx::auto_ptr<DIBitmap> Rotated(double angle) const;

    /// The picture with one corner dragged by `dx` and `dy` pixels, y counting the block's rows from its
    /// first one, which in most pictures is seen below; the other corners stay. 32 bits per pixel, each mixed
    /// of four samples that are taken as they lie in the block: colours come out right from 24 and 32 bits,
    /// not from a colour table. It is as large as the old picture, and larger by what the corner was dragged
    /// out; there 0x00FFFFFF is seen. Throws std::runtime_error: "Invalid corner"; "Divide by zero (1)" or
    /// "Divide by zero (2)" if the corner comes to lie across or above the next one, and for a picture
    /// without pixels; "Not a valid bitmap" if the block claims far more than it holds. Throws
    /// std::bad_alloc, also if the result would be of 2 GiB or more.
    lvx::auto_ptr<DIBitmap> SkewPoint(Rectangles::Corner corner, int dx, int dy) const;

    /// From now on 0x00FFFF80 is seen in skewed pictures where the old ones are not, in the whole process:
    /// for looking at where that is. There is no way back.
    static void DebugSkew();

    // Onto a device, in dibitmap_render.cpp. On Windows only. What a block lacks of what its header claims is
    // drawn as zeros; one that claims far more than it has is not drawn. Each throws std::bad_alloc.

    /// A bitmap with the depth of `dc`. Null for an empty image and where the system refuses to make one, as
    /// for a metafile.
    lvx::auto_ptr<owl::TBitmap> MakeBitmap(const owl::TDC& dc) const;

    /// The colours of the table, in its order, the masks of bit fields among them; of a picture of 24 bits
    /// without a table 256 that are spread over all. Null for any other picture, after a core header, for an
    /// empty image, and where the system refuses to make one, as of more than 65535.
    lvx::auto_ptr<owl::TPalette> MakePalette() const;

    /// Draws the part `src` of the picture to `dest`, stretched by the context's stretching mode and mixed by
    /// `rop`, as owl::TDC::StretchDIBits does. With `clip`, whose region has to be there (LVXRegion::
    /// GetRegion), only inside of it, in device units; afterwards the context has no clip region, whatever it
    /// had before. While `clip` has no region nothing is clipped. What fails is not told.
    void StretchDIBits(owl::TDC& dc, const owl::TRect& dest, const owl::TRect& src, unsigned long rop,
                       LVXRegion* clip) const;

    /// The same, turned about the upper left corner of `dest` by the angle of that `cosine` and `sine`,
    /// against the clock as it is seen. `dest` is in device units; its size is normal whatever its sign.
    /// Afterwards the context is in the compatible graphics mode and has no world transform, whatever it had
    /// before. A metafile of the older kind knows no turn: the picture lies there at the origin, upright.
    void StretchDIBits(owl::TDC& dc, const owl::TRect& dest, const owl::TRect& src, double cosine,
                       double sine, unsigned long rop, LVXRegion* clip) const;

    /// Draws the part `src` to `dest`, each pixel as opaque as its fourth byte says, by which its colours
    /// have been multiplied already. `src` is counted from the upper left. The picture has 32 bits, and so
    /// does the context; else the system draws nothing. What fails is not told.
    void AlphaBlend(owl::TDC& dc, const owl::TRect& dest, const owl::TRect& src) const;

    /// While true, GetFrom makes the block 24 bytes longer than what is stored, with zeros. False at start;
    /// only the host sets it.
    static bool FixUp;

private:
    friend class GLBitmap;

    LVX_HIDDEN void ReplaceByFile(std::uint64_t size);
    LVX_HIDDEN std::uint64_t GetClrTabOffset() const;
    LVX_HIDDEN std::uint64_t GetBitsOffset() const;

    Ownership m_ownership;
    void* m_block;
    const Strategy* m_strategy;
};

}  // namespace LVXUtilities
