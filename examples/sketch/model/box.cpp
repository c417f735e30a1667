#include "sketch/model/box.h"

#include <cmath>

#include "lvx/drawing/region.h"
#include "sketch/model/coordinates.h"
#include "sketch/model/corners.h"

namespace sketch {
namespace {

std::string SizeText(const owl::TRect& rect) {
    return std::to_string(rect.Width()) + " x " + std::to_string(rect.Height());
}

}  // namespace

void Box::PutTo(ObjectStore& store) const {
    WritePoint(store, m_rect.TopLeft());
    WritePoint(store, m_rect.BottomRight());
    m_look.PutTo(store);
}

void Box::GetFrom(ObjectStore& store) {
    const owl::TPoint first = ReadPoint(store);
    m_rect = owl::TRect(first, ReadPoint(store)).Normalized();
    m_look.GetFrom(store);
}

std::vector<owl::TPoint> Box::Outline() const {
    return CornersOf(m_rect);
}

std::vector<Handle> Box::Handles() const {
    return CornerHandles(Outline());
}

void Box::MoveBy(const owl::TSize& way) {
    const owl::TRect moved(m_rect.TopLeft() + way, m_rect.Size());
    if (IsNear(moved)) {
        m_rect = moved;
    }
}

void Box::Pull(std::size_t handle, const owl::TPoint& from, const owl::TPoint& to) {
    const std::vector<owl::TPoint> corners = Outline();
    // The opposite corner stays.
    const owl::TRect pulled(corners[(handle + 2) % 4], corners[handle % 4] + (to - from));
    if (IsNear(pulled.Normalized())) {
        m_rect = pulled.Normalized();
    }
}

void Rectangle::Draw(LVX::Port& port) const {
    LVXRectangle shape(RectCorners, m_rect.left, m_rect.top, m_rect.right, m_rect.bottom);
    m_look.Draw(port, shape);
}

bool Rectangle::Contains(const owl::TPoint& point) const {
    return point.x >= m_rect.left && point.x <= m_rect.right && point.y >= m_rect.top &&
           point.y <= m_rect.bottom;
}

std::string Rectangle::Describe() const {
    return "Rectangle, " + SizeText(m_rect);
}

void Ellipse::Draw(LVX::Port& port) const {
    LVXEllipse shape(RectCorners, m_rect.left, m_rect.top, m_rect.right, m_rect.bottom);
    m_look.Draw(port, shape);
}

bool Ellipse::Contains(const owl::TPoint& point) const {
    if (m_rect.IsEmpty()) {
        return false;
    }
    const double x = (2.0 * point.x - m_rect.left - m_rect.right) / m_rect.Width();
    const double y = (2.0 * point.y - m_rect.top - m_rect.bottom) / m_rect.Height();
    return std::hypot(x, y) <= 1;
}

std::string Ellipse::Describe() const {
    return "Ellipse, " + SizeText(m_rect);
}

}  // namespace sketch
