// lvx/drawing/rectangle_edges.h
//
// From the ways in which hosts tell a rectangle to its edges, and back. Exact in 32 bits; beyond them, edges
// wrap.
#pragma once

#include <cstdint>

#include "owl/geometry.h"

namespace lvx::drawing {

/// From any two opposite corners.
constexpr owl::TRect between_corners(int a, int b, int c, int d) {
    return owl::TRect(a, b, c, d).Normalized();
}

/// From one corner and the way to the opposite one.
constexpr owl::TRect from_corner(int x, int y, int width, int height) {
    return owl::TRect(owl::TPoint(x, y), owl::TSize(width, height)).Normalized();
}

/// Half of it, cut off towards zero.
constexpr int half(std::int64_t number) {
    return static_cast<int>(number / 2);
}

/// Around a centre. With an odd size the half that is left over lies to the right and below. Edges of a
/// negative size stand the wrong way round.
constexpr owl::TRect around(int x, int y, int width, int height) {
    return owl::TRect(owl::TPoint(x, y) - owl::TSize(half(width), half(height)), owl::TSize(width, height));
}

/// The centre, cut off towards the origin.
constexpr owl::TPoint centre_of(const owl::TRect& rect) {
    return owl::TPoint(half(std::int64_t{rect.left} + rect.right),
                       half(std::int64_t{rect.top} + rect.bottom));
}

}  // namespace lvx::drawing
