// lvx/drawing/shape_region.h
//
// The region of a shape: making it, and using it for a while.
#pragma once

#include <memory>
#include <utility>

#include "lvx/drawing/region.h"
#include "owl/region.h"

namespace lvx::drawing {

/// Null if the system refuses it.
template <class... Arguments>
std::unique_ptr<owl::TRegion> region_or_null(Arguments&&... arguments) {
    try {
        return std::make_unique<owl::TRegion>(std::forward<Arguments>(arguments)...);
    } catch (const owl::TXGdi&) {
        return nullptr;
    }
}

/// A user of a shape's region, for the length of a scope.
class RegionUse {
public:
    explicit RegionUse(LVXRegion& shape) : m_shape(shape) { m_shape.GetRegion(); }
    RegionUse(const RegionUse&) = delete;
    RegionUse& operator=(const RegionUse&) = delete;
    ~RegionUse() { m_shape.UngetRegion(); }

private:
    LVXRegion& m_shape;
};

}  // namespace lvx::drawing
