#include "owl/brush.h"
#include "owl/dc.h"
#include "owl/region.h"
#include "owl/turned_area.h"

namespace owl {
namespace {

/// Draws with `brush` selected.
template <class Body>
bool WithBrush(HDC dc, const TBrush& brush, const Body& body) {
    const HGDIOBJ before = ::SelectObject(dc, brush);
    const bool done = before && body();
    if (before)
        ::SelectObject(dc, before);
    return done;
}

}  // namespace

bool TDC::MoveTo(int x, int y) {
    return ::MoveToEx(m_handle, x, y, nullptr) != FALSE;
}

TPoint TDC::GetCurrentPosition() const {
    TPoint position;
    ::GetCurrentPositionEx(m_handle, &position);
    return position;
}

bool TDC::LineTo(int x, int y) {
    return ::LineTo(m_handle, x, y) != FALSE;
}

bool TDC::Polyline(const TPoint* points, int count) {
    return points && count >= 2 && ::Polyline(m_handle, points, count) != FALSE;
}

bool TDC::Polygon(const TPoint* points, int count) {
    return points && count >= 2 && ::Polygon(m_handle, points, count) != FALSE;
}

bool TDC::Rectangle(const TRect& rect) {
    return ::Rectangle(m_handle, rect.left, rect.top, rect.right, rect.bottom) != FALSE;
}

bool TDC::Ellipse(const TRect& rect) {
    return ::Ellipse(m_handle, rect.left, rect.top, rect.right, rect.bottom) != FALSE;
}

bool TDC::FillRect(const TRect& rect, const TBrush& brush) {
    if (NeedsTurnedAreas(m_handle))
        return WithBrush(m_handle, brush, [&] { return FillTurned(m_handle, rect, PATCOPY); });
    return ::FillRect(m_handle, &rect, brush) != FALSE;
}

bool TDC::FrameRect(const TRect& rect, const TBrush& brush) {
    if (NeedsTurnedAreas(m_handle))
        return FrameRgn(TRegion(rect), brush, TSize(1, 1));
    return ::FrameRect(m_handle, &rect, brush) != FALSE;
}

bool TDC::InvertRect(const TRect& rect) {
    if (NeedsTurnedAreas(m_handle))
        return FillTurned(m_handle, rect, DSTINVERT);
    return ::InvertRect(m_handle, &rect) != FALSE;
}

bool TDC::DrawFocusRect(const TRect& rect) {
    return ::DrawFocusRect(m_handle, &rect) != FALSE;
}

bool TDC::FillRgn(const TRegion& region, const TBrush& brush) {
    if (NeedsTurnedAreas(m_handle))
        return WithBrush(m_handle, brush, [&] { return FillTurned(m_handle, region, PATCOPY); });
    return ::FillRgn(m_handle, region, brush) != FALSE;
}

bool TDC::PaintRgn(const TRegion& region) {
    if (NeedsTurnedAreas(m_handle))
        return FillTurned(m_handle, region, PATCOPY);
    return ::PaintRgn(m_handle, region) != FALSE;
}

bool TDC::FrameRgn(const TRegion& region, const TBrush& brush, const TSize& width) {
    if (NeedsTurnedAreas(m_handle)) {
        const TRegion frame(FrameOf(region, width), AutoDelete);
        return FillRgn(frame, brush);
    }
    return ::FrameRgn(m_handle, region, brush, width.cx, width.cy) != FALSE;
}

bool TDC::InvertRgn(const TRegion& region) {
    if (NeedsTurnedAreas(m_handle))
        return FillTurned(m_handle, region, DSTINVERT);
    return ::InvertRgn(m_handle, region) != FALSE;
}

TColor TDC::SetPixel(int x, int y, TColor color) {
    return ::SetPixel(m_handle, x, y, color);
}

TColor TDC::GetPixel(int x, int y) const {
    return ::GetPixel(m_handle, x, y);
}

}  // namespace owl
