#include "sketch/view/marks.h"

#include <cstdlib>

#include "lvx/drawing/port.h"
#include "lvx/drawing/region.h"

namespace sketch {
namespace {

constexpr owl::TColor mark_colour(0, 90, 200);
constexpr int handle_size = 7;
constexpr int knob_size = 9;
// A little more than what is seen.
constexpr int reach = 5;

void DrawOutline(LVX::Port& port, const std::vector<owl::TPoint>& corners) {
    LVXPen pen(1, LineDot, mark_colour);
    port.usePen(&pen);
    port.moveTo(corners.back().x, corners.back().y);
    for (const owl::TPoint& corner : corners) {
        port.lineTo(corner.x, corner.y);
    }
}

void DrawHandle(LVX::Port& port, const owl::TPoint& place) {
    LVXRectangle square(RectCentre, place.x, place.y, handle_size, handle_size);
    port.fillRegion(&square, true);
}

void DrawKnob(LVX::Port& port, const owl::TPoint& from, const owl::TPoint& place) {
    port.moveTo(from.x, from.y);
    port.lineTo(place.x, place.y);
    LVXEllipse circle(RectCentre, place.x, place.y, knob_size, knob_size);
    port.fillRegion(&circle, true);
}

owl::TPoint Between(const owl::TPoint& a, const owl::TPoint& b) {
    return {(a.x + b.x) / 2, (a.y + b.y) / 2};
}

}  // namespace

void DrawMarks(LVX::Port& port, const Figure& figure) {
    const std::vector<owl::TPoint> corners = figure.Outline();
    DrawOutline(port, corners);
    LVXPen pen(mark_colour);
    LVXBrush brush(LVX::White);
    port.usePen(&pen);
    port.useBrush(&brush);
    for (const Handle& handle : figure.Handles()) {
        if (handle.kind == Handle::Knob) {
            DrawKnob(port, Between(corners[0], corners[1]), handle.place);
        } else {
            DrawHandle(port, handle.place);
        }
    }
}

int HandleAt(const Figure& figure, const owl::TPoint& point) {
    const std::vector<Handle> handles = figure.Handles();
    for (std::size_t i = handles.size(); i-- > 0;) {
        const owl::TSize way = point - handles[i].place;
        if (std::abs(way.cx) <= reach && std::abs(way.cy) <= reach) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

}  // namespace sketch
