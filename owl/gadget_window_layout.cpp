// Where the gadgets of a bar stand, and how they are painted there.
#include <algorithm>

#include "owl/dc.h"
#include "owl/frame_window.h"
#include "owl/gadget_window.h"

namespace owl {

namespace {

TSize DesiredSizeOf(TGadget& gadget) {
    TSize size;
    gadget.GetDesiredSize(size);
    return size;
}

TSize SizeOf(const TGadget::TMargins& margins) {
    return TSize(margins.Left + margins.Right, margins.Top + margins.Bottom);
}

// What a window's frame adds to its client area.
TSize FrameSizeOf(const TWindow& window) {
    RECT rect{};
    ::AdjustWindowRectEx(&rect, window.GetStyle(), FALSE, window.GetExStyle());
    return TRect(rect).Size();
}

}  // namespace

int TGadgetWindow::Along(const TSize& size) const {
    return m_direction == Horizontal ? size.cx : size.cy;
}

int TGadgetWindow::Across(const TSize& size) const {
    return m_direction == Horizontal ? size.cy : size.cx;
}

TSize TGadgetWindow::SizeOf(int along, int across) const {
    return m_direction == Horizontal ? TSize(along, across) : TSize(across, along);
}

void TGadgetWindow::SetDirection(TTileDirection direction) {
    m_direction = direction;
    LayoutSession();
}

void TGadgetWindow::SetMargins(const TGadget::TMargins& margins) {
    m_margins = margins;
    LayoutSession();
}

void TGadgetWindow::GetDesiredSize(TSize& size) {
    int length = 0;
    int thickness = 0;
    ForEachGadget([&](TGadget& gadget) {
        const TSize wanted = DesiredSizeOf(gadget);
        length += Along(wanted);
        thickness = std::max(thickness, Across(wanted));
    });
    size = SizeOf(length, thickness) + owl::SizeOf(m_margins);
}

// As thick as the gadgets need; as long as it is, or as they need if nobody gave it a length.
TSize TGadgetWindow::SizeToHave() {
    TSize wanted;
    GetDesiredSize(wanted);
    wanted += FrameSizeOf(*this);
    const int length = Along(GetWindowRect().Size());
    return SizeOf(length > 0 ? length : Along(wanted), Across(wanted));
}

void TGadgetWindow::LayoutSession() {
    if (!m_setUp)
        return;
    const TSize size = SizeToHave();
    if (size != GetWindowRect().Size())
        SetWindowPos(nullptr, TRect(TPoint(), size), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    TileGadgets();
    if (auto* const frame = dynamic_cast<TFrameWindow*>(Parent))
        frame->ArrangeBars();
}

// A gadget that is asked or moved may change the bar, which lays it out anew: what is left to do here is done
// then.
void TGadgetWindow::TileGadgets() {
    const unsigned tiling = ++m_tilings;
    const TPoint start(m_margins.Left, m_margins.Top);
    const int thickness = Across(GetClientRect().Size() - owl::SizeOf(m_margins));
    int way = 0;
    ForEachGadget([&](TGadget& gadget) {
        if (tiling != m_tilings)
            return;
        const TSize size = DesiredSizeOf(gadget);
        if (tiling != m_tilings || !Holds(&gadget))
            return;
        const int indent = std::max(0, (thickness - Across(size)) / 2);
        gadget.SetBounds(TRect(start + SizeOf(way, indent), size));
        way += Along(size);
    });
}

void TGadgetWindow::EvSize(UINT how, const TSize& size) {
    TWindow::EvSize(how, size);
    if (m_setUp)
        TileGadgets();
}

void TGadgetWindow::Paint(TDC& dc, bool, TRect& rect) {
    ForEachGadget([&](TGadget& gadget) {
        if (gadget.GetBounds().Touches(rect))
            PaintGadget(dc, gadget);
    });
}

// On a canvas of its own: what it sets and where it draws concern no other.
void TGadgetWindow::PaintGadget(TDC& dc, TGadget& gadget) {
    const TRect bounds = gadget.GetBounds();
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(bounds);
    dc.SetViewportOrg(bounds.TopLeft());
    gadget.Paint(dc);
    dc.RestoreObjects();
    dc.RestoreDC(saved);
}

}  // namespace owl
