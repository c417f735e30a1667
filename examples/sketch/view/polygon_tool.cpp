#include "sketch/view/polygon_tool.h"

#include <utility>

#include "lvx/drawing/port.h"
#include "sketch/model/polygon.h"

namespace sketch {
namespace {

constexpr std::size_t least_corners = 3;

// For who has no mouse.
std::vector<owl::TPoint> TriangleIn(const owl::TRect& seen) {
    const owl::TPoint middle((seen.left + seen.right) / 2, (seen.top + seen.bottom) / 2);
    return {middle.OffsetBy(0, -50), middle.OffsetBy(60, 40), middle.OffsetBy(-60, 40)};
}

}  // namespace

void PolygonTool::AddCorner(const owl::TPoint& point) {
    const bool isNew = m_corners.empty() || !(m_corners.back() == point);
    if (isNew && m_corners.size() < static_cast<std::size_t>(Polygon::most_corners)) {
        m_corners.push_back(point);
    }
}

void PolygonTool::Press(const owl::TPoint& point) {
    AddCorner(point);
    Drag(point);
}

void PolygonTool::Drag(const owl::TPoint& point) {
    m_mouse = point;
    m_desk.Redraw();
}

void PolygonTool::Hover(const owl::TPoint& point) {
    if (!m_corners.empty()) {
        Drag(point);
    }
}

void PolygonTool::DoubleClick(const owl::TPoint& point) {
    AddCorner(point);
    Finish();
}

void PolygonTool::Finish() {
    std::vector<owl::TPoint> corners = std::exchange(m_corners, {});
    if (corners.empty()) {
        corners = TriangleIn(m_desk.Visible());
    }
    if (corners.size() < least_corners) {
        m_corners = std::move(corners);
        return;
    }
    m_desk.Add(std::make_shared<Polygon>(std::move(corners), m_desk.CurrentLook()));
}

bool PolygonTool::Cancel() {
    const bool isDrawing = !m_corners.empty();
    m_corners.clear();
    m_desk.Redraw();
    return isDrawing;
}

void PolygonTool::Draw(LVX::Port& port) const {
    if (m_corners.empty()) {
        return;
    }
    LVXPen pen(m_desk.CurrentLook().lineColour);
    port.usePen(&pen);
    port.moveTo(m_corners[0].x, m_corners[0].y);
    for (const owl::TPoint& corner : m_corners) {
        port.lineTo(corner.x, corner.y);
    }
    port.lineTo(m_mouse.x, m_mouse.y);
}

const char* PolygonTool::Hint() const {
    return "Click the corners; a double click is the last one. Enter draws what there is, Escape forgets it.";
}

}  // namespace sketch
