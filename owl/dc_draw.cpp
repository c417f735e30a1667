#include "owl/brush.h"
#include "owl/dc.h"
#include "owl/region.h"

namespace owl {

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
    return ::FillRect(m_handle, &rect, brush) != FALSE;
}

bool TDC::FrameRect(const TRect& rect, const TBrush& brush) {
    return ::FrameRect(m_handle, &rect, brush) != FALSE;
}

bool TDC::InvertRect(const TRect& rect) {
    return ::InvertRect(m_handle, &rect) != FALSE;
}

bool TDC::DrawFocusRect(const TRect& rect) {
    return ::DrawFocusRect(m_handle, &rect) != FALSE;
}

bool TDC::FillRgn(const TRegion& region, const TBrush& brush) {
    return ::FillRgn(m_handle, region, brush) != FALSE;
}

bool TDC::PaintRgn(const TRegion& region) {
    return ::PaintRgn(m_handle, region) != FALSE;
}

bool TDC::FrameRgn(const TRegion& region, const TBrush& brush, const TSize& width) {
    return ::FrameRgn(m_handle, region, brush, width.cx, width.cy) != FALSE;
}

bool TDC::InvertRgn(const TRegion& region) {
    return ::InvertRgn(m_handle, region) != FALSE;
}

TColor TDC::SetPixel(int x, int y, TColor color) {
    return ::SetPixel(m_handle, x, y, color);
}

TColor TDC::GetPixel(int x, int y) const {
    return ::GetPixel(m_handle, x, y);
}

}  // namespace owl
