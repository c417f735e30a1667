#include "lvx/images/skew_frame.h"

#include <stdexcept>

namespace lvx::images {
namespace {

using namespace LVXUtilities::Rectangles;

enum class End { low, high };

// One direction of the frame: where the picture begins and ends, how long the new one is, and where the
// dragged end comes to lie.
struct Extent {
    std::int64_t low;
    std::int64_t high;
    std::int64_t size;
    std::int64_t dragged;
};

// The new picture has room for what was dragged out of the old one, and keeps what was dragged into it.
Extent place(std::int64_t size, End end, std::int64_t way) {
    const std::int64_t low = end == End::low && way < 0 ? -way : 0;
    const std::int64_t high = low + size;
    const std::int64_t room = end == End::high && way > 0 ? way : 0;
    return {low, high, high + room, (end == End::low ? low : high) + way};
}

// The dragged corner's place is the last of the list; the others go round from it.
std::array<SkewPoint, 4> go_round(const Extent& x, const Extent& y, Corner corner) {
    const SkewPoint dragged{x.dragged, y.dragged};
    switch (corner) {
        case TopLeft:
            return {{{x.low, y.high}, {x.high, y.high}, {x.high, y.low}, dragged}};
        case BottomLeft:
            return {{{x.high, y.high}, {x.high, y.low}, {x.low, y.low}, dragged}};
        case TopRight:
            return {{{x.low, y.low}, {x.low, y.high}, {x.high, y.high}, dragged}};
        default:
            return {{{x.high, y.low}, {x.low, y.low}, {x.low, y.high}, dragged}};
    }
}

bool has(int corner, int edge) {
    return (corner & edge) != 0;
}

bool is_corner(int number) {
    return number == TopLeft || number == BottomLeft || number == TopRight || number == BottomRight;
}

}  // namespace

SkewFrame place_skew(std::int64_t width, std::int64_t height, Corner corner, int dx, int dy) {
    if (!is_corner(corner)) {
        throw std::runtime_error("Invalid corner");
    }
    const Extent x = place(width, has(corner, Left) ? End::low : End::high, dx);
    const Extent y = place(height, has(corner, Top) ? End::low : End::high, dy);
    return {x.size, y.size, {x.low, y.low}, go_round(x, y, corner)};
}

}  // namespace lvx::images
