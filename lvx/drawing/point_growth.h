// lvx/drawing/point_growth.h
//
// How a full array of points grows.
#pragma once

#include <limits>
#include <new>

namespace lvx::drawing {

/// Twice the capacity and two more. Throws std::bad_alloc when that is beyond 32 bits.
constexpr int grown(int capacity) {
    if (capacity > (std::numeric_limits<int>::max() - 2) / 2) {
        throw std::bad_alloc();
    }
    return capacity * 2 + 2;
}

}  // namespace lvx::drawing
