#include "lvx/images/turn_frame.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace lvx::images {
namespace {

struct Extent {
    std::int64_t least;
    std::int64_t size;
};

Extent extent_of(std::initializer_list<double> corners) {
    Extent extent{0, 0};
    std::int64_t greatest = 0;
    for (const double corner : corners) {
        extent.least = std::min(extent.least, static_cast<std::int64_t>(corner));
        greatest = std::max(greatest, static_cast<std::int64_t>(corner));
    }
    extent.size = greatest - extent.least;
    return extent;
}

}  // namespace

TurnFrame turn_frame(std::int64_t width, std::int64_t height, double angle) {
    if (!std::isfinite(angle)) {
        return {};
    }
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    const auto w = static_cast<double>(width);
    const auto h = static_cast<double>(height);
    const Extent x = extent_of({h * sine, w * cosine + h * sine, w * cosine});
    const Extent y = extent_of({h * cosine, h * cosine - w * sine, -w * sine});
    return {x.size,
            y.size,
            static_cast<float>(cosine),
            static_cast<float>(sine),
            static_cast<float>(-x.least),
            static_cast<float>(-y.least)};
}

}  // namespace lvx::images
