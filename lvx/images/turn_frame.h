// lvx/images/turn_frame.h
//
// How large a picture becomes when it is turned, and the transform that puts it there.
#pragma once

#include <cstdint>

namespace lvx::images {

/// Takes the point (x, y) of the picture, y downward, to (x cosine + y sine + dx, y cosine - x sine + dy).
/// The numbers are those that a device is given, which takes floats.
struct TurnFrame {
    std::int64_t width;
    std::int64_t height;
    float cosine;
    float sine;
    float dx;
    float dy;
};

/// Of a picture of `width` by `height`, which are at most 2^31. The corners are cut to whole numbers one by
/// one, toward 0, so that the frame may be a pixel smaller than the turned picture. An angle without a sine
/// gives a frame of 0 by 0.
TurnFrame turn_frame(std::int64_t width, std::int64_t height, double angle);

}  // namespace lvx::images
