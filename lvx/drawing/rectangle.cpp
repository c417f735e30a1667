#include "lvx/drawing/brush.h"
#include "lvx/drawing/rectangle_edges.h"
#include "lvx/drawing/region.h"
#include "lvx/drawing/shape_region.h"
#include "owl/brush.h"
#include "owl/dc.h"

namespace {

owl::TRect edges(RectOpts meaning, int a, int b, int c, int d) {
    switch (meaning) {
        case RectCentre:
            return lvx::drawing::around(a, b, c, d);
        case RectSize:
            return lvx::drawing::from_corner(a, b, c, d);
        default:
            return lvx::drawing::between_corners(a, b, c, d);
    }
}

void hand_out(long number, int* place) {
    if (place != nullptr) {
        *place = static_cast<int>(number);
    }
}

}  // namespace

LVXRectangle::LVXRectangle(RectOpts meaning, int a, int b, int c, int d)
    : m_rect(edges(meaning, a, b, c, d)) {}

LVXRectangle::~LVXRectangle() = default;

void LVXRectangle::get(RectOpts meaning, int* a, int* b, int* c, int* d) const {
    const owl::TPoint place = meaning == RectCentre ? lvx::drawing::centre_of(m_rect) : m_rect.TopLeft();
    const bool bySize = meaning == RectCentre || meaning == RectSize;
    hand_out(place.x, a);
    hand_out(place.y, b);
    hand_out(bySize ? m_rect.Width() : m_rect.right, c);
    hand_out(bySize ? m_rect.Height() : m_rect.bottom, d);
}

void LVXRectangle::MakeRegion() {
    m_region = lvx::drawing::region_or_null(m_rect);
}

void LVXRectangle::Fill(owl::TDC& dc, const LVXPen&, const LVXBrush& brush, bool withFrame) {
    m_rect.Normalize();
    if (withFrame) {
        dc.Rectangle(m_rect);
    } else {
        dc.FillRect(m_rect, brush);
    }
}

void LVXRectangle::Frame(owl::TDC& dc, const LVXPen&) {
    m_rect.Normalize();
    dc.SelectStockObject(HOLLOW_BRUSH);
    dc.Rectangle(m_rect);
}

void LVXRectangle::Invert(owl::TDC& dc) {
    dc.InvertRect(m_rect);
}
