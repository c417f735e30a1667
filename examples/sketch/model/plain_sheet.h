// A white sheet in memory with 32 bits for each pixel, to draw on and then to have the pixels of.
#pragma once

#include <windows.h>

#include "lvx/drawing/bitmap.h"
#include "owl/geometry.h"

namespace sketch {

class PlainSheet : public LVXBitmap {
public:
    /// Throws std::bad_alloc, and DocumentError if it would be of more than `most_pixels`.
    explicit PlainSheet(const owl::TSize& size);

    static constexpr std::int64_t most_pixels = 64 * 1024 * 1024;

    /// A block with header and pixels as DIBitmap and the clipboard take them, the caller's. Throws
    /// std::bad_alloc.
    HGLOBAL MakeBlock() const;
};

}  // namespace sketch
