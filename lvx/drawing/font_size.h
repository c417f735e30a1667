// lvx/drawing/font_size.h
//
// From points to the system's units of a device, and back.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace lvx::drawing {

inline constexpr std::int64_t points_of_an_inch = 72;

/// `number`, or the nearest that `Number` holds.
template <class Number>
constexpr Number clamped(std::int64_t number) {
    using Limits = std::numeric_limits<Number>;
    return static_cast<Number>(std::clamp<std::int64_t>(number, Limits::min(), Limits::max()));
}

/// The height to ask the system for on a device of `dpi` units an inch, cut off to a whole one: negative,
/// which means the height of characters, whatever the sign of `points`. 0, any height, for 0 points.
constexpr int requested_height(int points, int dpi) {
    const std::int64_t height = std::int64_t{dpi} * points / points_of_an_inch;
    return clamped<int>(height > 0 ? -height : height);
}

/// The points that `height` units are there. Requires: `dpi` is not 0.
constexpr int points_of(int height, int dpi) {
    return clamped<int>(height * points_of_an_inch / dpi);
}

/// A size with its fraction cut off; the nearest that there is for one beyond, 0 for what is no number.
constexpr int whole_points(double size) {
    using Limits = std::numeric_limits<int>;
    if (size >= Limits::max()) {
        return Limits::max();
    }
    if (size <= Limits::min()) {
        return Limits::min();
    }
    return size == size ? static_cast<int>(size) : 0;
}

}  // namespace lvx::drawing
