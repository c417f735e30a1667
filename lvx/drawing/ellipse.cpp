#include "lvx/drawing/region.h"
#include "lvx/drawing/shape_region.h"
#include "owl/dc.h"

LVXEllipse::LVXEllipse(RectOpts meaning, int a, int b, int c, int d) : LVXRectangle(meaning, a, b, c, d) {}

LVXEllipse::~LVXEllipse() = default;

void LVXEllipse::MakeRegion() {
    m_region = lvx::drawing::region_or_null(m_rect, owl::TRegion::Ellipse);
}

void LVXEllipse::Fill(owl::TDC& dc, const LVXPen& pen, const LVXBrush& brush, bool withFrame) {
    m_rect.Normalize();
    if (withFrame) {
        dc.Ellipse(m_rect);
    } else {
        LVXRegion::Fill(dc, pen, brush, false);
    }
}

void LVXEllipse::Frame(owl::TDC& dc, const LVXPen&) {
    m_rect.Normalize();
    dc.SelectStockObject(HOLLOW_BRUSH);
    dc.Ellipse(m_rect);
}

void LVXEllipse::Invert(owl::TDC& dc) {
    LVXRegion::Invert(dc);
}
