#include "lvx/images/skew_map.h"

#include <stdexcept>
#include <utility>

namespace lvx::images {
namespace {

// Exact, as the coordinates of pictures are far below 2^53.
double difference(std::int64_t a, std::int64_t b) {
    return static_cast<double>(a - b);
}

}  // namespace

SkewMap::SkewMap(const std::array<SkewPoint, 4>& corners) {
    SkewPoint p0 = corners[0];
    const SkewPoint p1 = corners[1];
    SkewPoint p2 = corners[2];
    const SkewPoint p3 = corners[3];
    if (p0.x == p1.x || p1.y == p2.y) {
        std::swap(p0, p2);
    }
    const double first = difference(p3.x, p2.x) * difference(p2.y, p1.y);
    if (IsZero(first)) {
        throw std::runtime_error("Divide by zero (1)");
    }
    const double second = difference(p3.y, p0.y) * difference(p0.x, p1.x);
    if (IsZero(second)) {
        throw std::runtime_error("Divide by zero (2)");
    }
    m_first = {difference(p3.y, p2.y) / first, static_cast<double>(p2.x), static_cast<double>(p1.y)};
    m_second = {difference(p3.x, p0.x) / second, static_cast<double>(p0.y), static_cast<double>(p1.x)};
}

}  // namespace lvx::images
