#include "sketch/model/drawing_bounds.h"

#include <algorithm>

namespace sketch {

owl::TRect United(const owl::TRect& a, const owl::TRect& b) {
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

owl::TRect BoundsOf(const Figures& figures) {
    if (figures.empty()) {
        return {};
    }
    owl::TRect bounds = figures.front()->Bounds();
    for (const FigurePointer& figure : figures) {
        bounds = United(bounds, figure->Bounds());
    }
    return bounds;
}

}  // namespace sketch
