#include "sketch/model/polygon.h"

#include "lvx/drawing/region.h"
#include "sketch/model/coordinates.h"
#include "sketch/model/corners.h"

namespace sketch {

void Polygon::PutTo(ObjectStore& store) const {
    store << static_cast<int>(m_corners.size());
    for (const owl::TPoint& corner : m_corners) {
        store << static_cast<int>(corner.x);
    }
    for (const owl::TPoint& corner : m_corners) {
        store << static_cast<int>(corner.y);
    }
    m_look.PutTo(store);
}

void Polygon::GetFrom(ObjectStore& store) {
    const int count = ReadNumber(store, 2, most_corners, "number of a polygon's corners");
    m_corners.assign(static_cast<std::size_t>(count), owl::TPoint());
    for (owl::TPoint& corner : m_corners) {
        corner.x = ReadCoordinate(store);
    }
    for (owl::TPoint& corner : m_corners) {
        corner.y = ReadCoordinate(store);
    }
    m_look.GetFrom(store);
}

void Polygon::Draw(LVX::Port& port) const {
    // With the first corner once more at the end: a frame is not closed by itself.
    LVXPointArray points(static_cast<int>(m_corners.size()) + 1);
    for (const owl::TPoint& corner : m_corners) {
        points.add(corner.x, corner.y);
    }
    points.add(m_corners.front().x, m_corners.front().y);
    LVXPolygon shape(&points);
    m_look.Draw(port, shape);
}

owl::TRect Polygon::Bounds() const {
    return BoundsOf(m_corners);
}

bool Polygon::Contains(const owl::TPoint& point) const {
    return IsInside(m_corners, point);
}

std::vector<Handle> Polygon::Handles() const {
    return CornerHandles(m_corners);
}

std::string Polygon::Describe() const {
    return "Polygon of " + std::to_string(m_corners.size()) + " corners";
}

void Polygon::MoveBy(const owl::TSize& way) {
    const owl::TRect bounds = Bounds();
    if (!IsNear(owl::TRect(bounds.TopLeft() + way, bounds.Size()))) {
        return;
    }
    for (owl::TPoint& corner : m_corners) {
        corner += way;
    }
}

void Polygon::Pull(std::size_t handle, const owl::TPoint& from, const owl::TPoint& to) {
    const owl::TPoint pulled = m_corners.at(handle) + (to - from);
    if (IsNear(owl::TRect(pulled, pulled))) {
        m_corners[handle] = pulled;
    }
}

}  // namespace sketch
