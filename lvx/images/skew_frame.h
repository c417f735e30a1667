// lvx/images/skew_frame.h
//
// How large a picture becomes when one of its corners is dragged, where it lies in that, and what becomes of
// its corners. Whole numbers only.
#pragma once

#include <array>
#include <cstdint>

#include "lvx/images/rectangles.h"

namespace lvx::images {

struct SkewPoint {
    std::int64_t x;
    std::int64_t y;
};

struct SkewFrame {
    /// Of the new picture.
    std::int64_t width;
    std::int64_t height;
    /// Where the old picture's first pixel comes to lie. Not below 0.
    SkewPoint origin;
    /// In the new picture; going round, the dragged one last.
    std::array<SkewPoint, 4> corners;
};

/// The frame of a picture of `width` by `height`, which are not below 0 and at most 2^31. Throws
/// std::runtime_error "Invalid corner".
SkewFrame place_skew(std::int64_t width, std::int64_t height, LVXUtilities::Rectangles::Corner corner, int dx,
                     int dy);

}  // namespace lvx::images
