#include "owl/gadget.h"

#include "owl/brush.h"
#include "owl/carried_exception.h"
#include "owl/dc.h"
#include "owl/gadget_window.h"

namespace owl {

namespace {

int WidthOf(TGadget::TBorderStyle style) {
    switch (style) {
        case TGadget::None:
            return 0;
        case TGadget::Embossed:
            return 2;
        default:
            return 1;
    }
}

void DrawEdge(TDC& dc, TRect rect, UINT edge) {
    ::DrawEdge(dc, &rect, edge, BF_RECT);
}

}  // namespace

TGadget::TGadget(int id, TBorderStyle style) : m_id(id) {
    SetBorderStyle(style);
}

// The others are laid out anew, which may fail for reasons of theirs.
TGadget::~TGadget() {
    if (m_window == nullptr)
        return;
    try {
        m_window->GadgetEnds(*this);
    } catch (...) {
        CarryException();
    }
}

void TGadget::SetEnabled(bool enabled) {
    if (enabled == m_enabled)
        return;
    m_enabled = enabled;
    Invalidate();
    Update();
}

void TGadget::GetDesiredSize(TSize& size) {
    size = TSize(m_borders.Left + m_margins.Left + m_margins.Right + m_borders.Right,
                 m_borders.Top + m_margins.Top + m_margins.Bottom + m_borders.Bottom);
}

void TGadget::SetBounds(const TRect& bounds) {
    if (bounds == m_bounds)
        return;
    Invalidate();
    m_bounds = bounds;
    Invalidate();
    Moved();
}

bool TGadget::IdleAction(long idleCount) {
    if (idleCount == 0)
        CommandEnable();
    return false;
}

void TGadget::CommandEnable() {}

void TGadget::SysColorChange() {}

void TGadget::Created() {}

void TGadget::Inserted() {}

void TGadget::Moved() {}

void TGadget::Removed() {}

bool TGadget::PtIn(const TPoint& point) {
    return TRect(TPoint(), m_bounds.Size()).Contains(point);
}

void TGadget::Paint(TDC& dc) {
    PaintBorder(dc);
}

void TGadget::PaintBorder(TDC& dc) {
    const TRect rect(TPoint(), m_bounds.Size());
    switch (m_borderStyle) {
        case None:
            break;
        case Plain:
            dc.FrameRect(rect, TBrush(::GetSysColorBrush(COLOR_WINDOWFRAME)));
            break;
        case Raised:
            DrawEdge(dc, rect, BDR_RAISEDINNER);
            break;
        case Recessed:
            DrawEdge(dc, rect, BDR_SUNKENOUTER);
            break;
        case Embossed:
            DrawEdge(dc, rect, EDGE_ETCHED);
            break;
    }
}

void TGadget::MouseEnter(UINT, const TPoint&) {}

void TGadget::MouseMove(UINT, const TPoint&) {}

void TGadget::MouseLeave(UINT, const TPoint&) {}

void TGadget::LButtonDown(UINT, const TPoint&) {
    if (m_window != nullptr)
        m_window->GadgetSetCapture(*this);
}

void TGadget::RButtonDown(UINT, const TPoint&) {}

void TGadget::LButtonUp(UINT, const TPoint&) {
    if (m_window != nullptr)
        m_window->GadgetReleaseCapture(*this);
}

void TGadget::RButtonUp(UINT, const TPoint&) {}

TGadget* TGadget::NextGadget() const {
    return m_window != nullptr ? m_window->NextGadget(*this) : nullptr;
}

TRect TGadget::GetInnerRect() const {
    const TSize size = m_bounds.Size();
    return TRect(m_borders.Left + m_margins.Left, m_borders.Top + m_margins.Top,
                 size.cx - m_borders.Right - m_margins.Right, size.cy - m_borders.Bottom - m_margins.Bottom);
}

void TGadget::SetBorderStyle(TBorderStyle style) {
    const int width = WidthOf(style);
    m_borderStyle = style;
    m_borders = {width, width, width, width};
    Invalidate();
}

void TGadget::InvalidateRect(const TRect& rect, bool erase) {
    if (m_window != nullptr)
        m_window->InvalidateRect(rect.OffsetBy(m_bounds.left, m_bounds.top), erase);
}

void TGadget::Invalidate(bool erase) {
    InvalidateRect(TRect(TPoint(), m_bounds.Size()), erase);
}

void TGadget::Update() {
    if (m_window != nullptr)
        m_window->UpdateWindow();
}

}  // namespace owl
