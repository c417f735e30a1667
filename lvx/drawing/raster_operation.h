// lvx/drawing/raster_operation.h
//
// How bitmaps are drawn by a port's rule.
#pragma once

#include <cstdint>

namespace lvx::drawing {

/// The raster operation of a bitmap, as the system's calls take it, for a rule, an R2_ value. Rules that
/// speak of the pen and the screen alone have no counterpart among the pictures: by those and all unknown
/// ones a bitmap is copied.
constexpr std::uint32_t raster_operation(int rule) {
    switch (rule) {
        case 3:
            return 0x7700E6;
        case 4:
            return 0x330008;
        case 7:
            return 0x660046;
        case 9:
            return 0x8800C6;
        case 10:
            return 0x990066;
        case 12:
            return 0xBB0226;
        case 15:
            return 0xEE0086;
        default:
            return 0xCC0020;
    }
}

}  // namespace lvx::drawing
