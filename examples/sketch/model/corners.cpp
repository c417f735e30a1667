#include "sketch/model/corners.h"

#include <algorithm>

namespace sketch {

owl::TRect BoundsOf(const std::vector<owl::TPoint>& corners) {
    if (corners.empty()) {
        return {};
    }
    owl::TRect bounds(corners[0], corners[0]);
    for (const owl::TPoint& corner : corners) {
        bounds = owl::TRect(std::min(bounds.left, corner.x), std::min(bounds.top, corner.y),
                            std::max(bounds.right, corner.x), std::max(bounds.bottom, corner.y));
    }
    return bounds;
}

std::vector<owl::TPoint> CornersOf(const owl::TRect& rect) {
    return {rect.TopLeft(), rect.TopRight(), rect.BottomRight(), rect.BottomLeft()};
}

std::vector<Handle> CornerHandles(const std::vector<owl::TPoint>& corners) {
    std::vector<Handle> handles;
    for (const owl::TPoint& corner : corners) {
        handles.push_back({corner, Handle::Corner});
    }
    return handles;
}

bool IsInside(const std::vector<owl::TPoint>& corners, const owl::TPoint& point) {
    bool inside = false;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const owl::TPoint& a = corners[i];
        const owl::TPoint& b = corners[(i + 1) % corners.size()];
        if ((a.y > point.y) == (b.y > point.y)) {
            continue;
        }
        const double crossing =
            a.x + (static_cast<double>(point.y) - a.y) * (static_cast<double>(b.x) - a.x) / (b.y - a.y);
        inside = inside != (point.x < crossing);
    }
    return inside;
}

}  // namespace sketch
