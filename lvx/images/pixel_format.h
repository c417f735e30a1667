// lvx/images/pixel_format.h
//
// How the pixels of a picture are to be understood.
#pragma once

#include <cstdint>

#include "lvx/platform/bitmap_headers.h"

namespace lvx::images {

struct PixelFormat {
    /// 1, 4, 8, 16, 24 or 32.
    std::uint16_t depth;
    /// Which bits of a pixel are red, green and blue. None of them are where a table tells the colour, or a
    /// byte for each component.
    std::uint32_t red;
    std::uint32_t green;
    std::uint32_t blue;

    bool HasMasks() const { return (red | green | blue) != 0; }
    bool HasTable() const { return depth <= 8; }
};

/// The format of pixels without bit fields.
constexpr PixelFormat plain_format(std::uint16_t depth) {
    return depth == 16 ? PixelFormat{depth, 0x7C00, 0x03E0, 0x001F} : PixelFormat{depth, 0, 0, 0};
}

/// Whether pixels of this header can be read and written: those of the usual depths as they are, and those of
/// bit fields; none that are compressed.
constexpr bool is_readable(unsigned depth, std::uint32_t compression, unsigned planes) {
    if (planes == 0) {
        return false;
    }
    switch (depth) {
        case 1:
        case 4:
        case 8:
        case 24:
            return compression == BI_RGB;
        case 16:
        case 32:
            return compression == BI_RGB || compression == BI_BITFIELDS;
        default:
            return false;
    }
}

}  // namespace lvx::images
