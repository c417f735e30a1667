// What becomes of a strip when a tab, a width, the window's size or the selection changes.
#include <utility>

#include "lvx/propdlg/tab_layout.h"
#include "lvx/propdlg/wrapped.h"

namespace lvx::propdlg {

namespace {

// A tab reaches over its rectangle's right and into the line that closes it against the page.
owl::TRect WithEdges(const owl::TRect& rect) {
    return owl::TRect(rect.left, rect.top, wrapped(std::int64_t{rect.right} + 1),
                      wrapped(std::int64_t{rect.bottom} + 2));
}

}  // namespace

void TabLayout::LayOutAgain() {
    if (!m_surface.HasWindow())
        return;
    CalculateTabWidths();
    m_surface.Invalidate(StripRect(), true);
}

void TabLayout::SetFixedTabWidth(int width) {
    m_state.FixedTabWidth = width == 0 ? 64 : width;
    LayOutAgain();
}

void TabLayout::SetWideMarginWidth(int width) {
    m_state.WideMarginWidth = width;
    LayOutAgain();
}

void TabLayout::EnableTab(int tab, bool enable) {
    if (IsTabEnabled(tab) == enable)
        return;
    m_state.Entries[tab].Enabled = enable;
    if (!m_surface.HasWindow())
        return;
    owl::TRect rect;
    GetTabRect(rect, tab, -1);
    rect = WithEdges(rect);
    if (Has(Tab::Collapsing)) {
        rect.right = StripRect().right;
        CollapseAround(rect);
    } else {
        m_surface.Invalidate(rect, true);
    }
}

// The tabs behind `rect` move up or make room.
void TabLayout::CollapseAround(const owl::TRect& rect) {
    if (AdjustOrigin(m_state.SelectedTab))
        return;
    AssessScroll();
    ReassessTabWidths();
    m_surface.Invalidate(rect, true);
}

void TabLayout::SetTabText(int tab, const char* text) {
    m_state.Entries[tab].Text = text != nullptr ? text : "";
    if (!m_surface.HasWindow())
        return;
    if (Has(Tab::Stacked))
        RenameStacked();
    else
        RenameOnRow(tab);
}

void TabLayout::RenameStacked() {
    const owl::TRect former = StripRect();
    CalculateTabWidths();
    const owl::TRect strip = StripRect();
    if (strip.bottom != former.bottom)
        m_surface.RedrawDialogs();
    if (strip.bottom < former.bottom)
        m_surface.Invalidate(owl::TRect(strip.left, strip.bottom, strip.right, former.bottom), true);
    m_surface.Invalidate(strip, true);
}

void TabLayout::RenameOnRow(int tab) {
    CalculateBasicTabWidths();
    AssessScroll();
    CalculateTabWidths();
    owl::TRect rect;
    GetTabRect(rect, tab, -1);
    rect.right = m_surface.ClientRect().right;
    rect.bottom = wrapped(std::int64_t{rect.bottom} + 2);
    m_surface.Invalidate(rect, true);
}

void TabLayout::Resized() {
    CalculateTabWidths();
    AssessScroll();
    m_surface.RedrawDialogs();
}

int TabLayout::FirstUsableTab() const {
    int tab = 0;
    while (tab < GetEntryCount() && !IsUsable(tab))
        ++tab;
    return tab < GetEntryCount() ? tab : -1;
}

int TabLayout::NextUsableTab(int direction) const {
    const int last = GetEntryCount() - 1;
    std::int64_t tab = m_state.SelectedTab;
    // Steps of more than one may go around for ever without a meeting with the selected tab.
    for (int steps = 0; steps <= last; ++steps) {
        tab += direction;
        if (tab < 0)
            tab = last;
        else if (tab > last)
            tab = 0;
        if (tab == m_state.SelectedTab)
            return -1;
        if (IsUsable(static_cast<int>(tab)))
            return static_cast<int>(tab);
    }
    return -1;
}

void TabLayout::BringRowForward(int tab) {
    if (!Has(Tab::Stacked))
        return;
    const int position = GetTabRow(tab);
    if (position <= 0)
        return;
    std::swap(m_state.RowOrder[SlotAt(0)], m_state.RowOrder[SlotAt(position)]);
    for (const int row : {0, position}) {
        owl::TRect rect;
        SetRect(rect, row);
        rect.bottom = wrapped(std::int64_t{rect.bottom} + 2);
        m_surface.Invalidate(rect, true);
    }
}

void TabLayout::InvalidateTab(int tab) {
    owl::TRect rect;
    GetTabRect(rect, tab, -1);
    m_surface.Invalidate(WithEdges(rect), false);
}

void TabLayout::ShowSelection(int former, bool scrolled) {
    if (!scrolled) {
        InvalidateTab(former);
        InvalidateTab(m_state.SelectedTab);
        return;
    }
    owl::TRect arrows = ArrowsRect().OffsetBy(-8, -8);
    arrows.top = 0;
    m_surface.Invalidate(arrows, true);
    AssessScroll();
}

}  // namespace lvx::propdlg
