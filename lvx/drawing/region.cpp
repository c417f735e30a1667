#include "lvx/drawing/region.h"

#include "lvx/drawing/pen.h"
#include "lvx/drawing/shape_region.h"
#include "owl/brush.h"
#include "owl/dc.h"

using lvx::drawing::RegionUse;

LVXRegion::LVXRegion() = default;

LVXRegion::~LVXRegion() = default;

void LVXRegion::GetRegion() {
    if (m_region == nullptr) {
        MakeRegion();
    }
    ++m_useCount;
}

void LVXRegion::UngetRegion() {
    if (m_useCount > 1) {
        --m_useCount;
        return;
    }
    m_useCount = 0;
    m_region.reset();
}

LVXRegion::operator HRGN() const {
    return m_region != nullptr ? static_cast<HRGN>(*m_region) : nullptr;
}

void LVXRegion::Fill(owl::TDC& dc, const LVXPen& pen, const LVXBrush&, bool withFrame) {
    const RegionUse use(*this);
    if (m_region != nullptr) {
        dc.PaintRgn(*m_region);
    }
    if (withFrame) {
        Frame(dc, pen);
    }
}

void LVXRegion::Frame(owl::TDC& dc, const LVXPen& pen) {
    const RegionUse use(*this);
    if (m_region != nullptr) {
        dc.FrameRgn(*m_region, owl::TBrush(pen.colour(), true), owl::TSize(pen.width(), pen.width()));
    }
}

void LVXRegion::Invert(owl::TDC& dc) {
    const RegionUse use(*this);
    if (m_region != nullptr) {
        dc.InvertRgn(*m_region);
    }
}
