// lvx/images/dibitmap_strategy.h
//
// What reads a block's header: one stateless reader for each kind of header, so that nothing else asks which
// kind a block has. Each operation locks the block for its duration. A field that lies behind the end of the
// block, or in no block at all, reads as 0.
#pragma once

#include <cstdint>

#include "lvx/images/dibitmap.h"
#include "lvx/platform/global_memory.h"
#include "lvx/platform/palette.h"

namespace LVXUtilities {

class DIBitmap::Strategy {
public:
    virtual int GetBitsPerPixel(HGLOBAL block) const = 0;
    virtual int GetWidth(HGLOBAL block) const = 0;
    virtual int GetHeight(HGLOBAL block) const = 0;
    virtual int GetPixelsPerMetreX(HGLOBAL block) const = 0;
    virtual int GetPixelsPerMetreY(HGLOBAL block) const = 0;
    virtual std::uint32_t GetClrTabEntries(HGLOBAL block) const = 0;
    /// In bytes, as the header has it: the block may be shorter.
    virtual std::uint64_t GetClrTabSize(HGLOBAL block) const = 0;
    /// The colours of the table, in its order; of a picture of 24 bits without one 256 that are spread over
    /// all. Null for any other picture, for one behind a core header, and on systems without palettes.
    virtual lvx::auto_ptr<lvx::platform::Palette> MakePalette(HGLOBAL block) const = 0;

    /// The reader that fits the block's first word; for a null block the one for long headers.
    static const Strategy& Select(HGLOBAL block);
    /// The reader for headers of 40 bytes.
    static const Strategy& ForInfoHeader();

protected:
    ~Strategy() = default;
};

}  // namespace LVXUtilities
