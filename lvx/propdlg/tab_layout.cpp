// Where things are on a strip.
#include "lvx/propdlg/tab_layout.h"

#include <algorithm>
#include <numeric>

#include "lvx/propdlg/wrapped.h"

namespace lvx::propdlg {

namespace {

constexpr int both_arrows = -1;
// Between the tabs and the arrows.
constexpr int gap_at_arrows = 8;

// The first tabs have room from the start; more make room for themselves.
owl::TArrayAsVector<TPropertyEntry> NoEntries() {
    return owl::TArrayAsVector<TPropertyEntry>(9, 0, 5);
}

unsigned long Without(Tab::Style style, unsigned long flags) {
    return style & ~flags;
}

}  // namespace

Tab::Style NormalisedStyle(Tab::Style style) {
    if (Tab::Has(style, Tab::WizardFrame))
        style = Without(style, Tab::Stacked | Tab::Justified | Tab::DoubleHeight);
    if (Tab::Has(style, Tab::Stacked))
        style = Without(style, Tab::Collapsing) | Tab::Justified;
    return style;
}

int TabHeightFor(Tab::Style style, int textHeight) {
    const int second = Tab::Has(style, Tab::DoubleHeight) ? textHeight : 2;
    return wrapped(std::int64_t{textHeight} + second + 8);
}

TabState::TabState(Tab::Style style)
    : Entries(NoEntries()), ActiveColor(owl::TColor::White), Style(NormalisedStyle(style)) {
    std::iota(std::begin(RowOrder), std::end(RowOrder), 0);
}

TabSurface::~TabSurface() = default;

bool TabLayout::IsTabVisible(int tab) const {
    return !Has(Tab::Collapsing) || IsTabEnabled(tab);
}

void TabLayout::SetRect(owl::TRect& rect, int row) const {
    rect = m_surface.ClientRect();
    const std::int64_t height = m_state.TabHeight;
    if (row == -1) {
        rect.bottom = wrapped(height * m_state.RowCount - 1);
    } else {
        rect.top = wrapped((std::int64_t{m_state.RowCount} - row - 1) * height);
        rect.bottom = wrapped(rect.top + height - 1);
    }
    if (HasArrows())
        rect.right = wrapped(std::int64_t{ArrowsRect().left} - gap_at_arrows);
}

owl::TRect TabLayout::StripRect() const {
    owl::TRect rect;
    SetRect(rect, -1);
    return rect;
}

void TabLayout::GetScrollRect(owl::TRect& rect, int which) const {
    const owl::TSize arrow = m_surface.ArrowSize();
    rect = m_surface.ClientRect();
    rect.bottom = m_state.TabHeight;
    rect.top = wrapped(std::int64_t{m_state.TabHeight} - arrow.Height());
    rect.left = wrapped(std::int64_t{rect.right} - arrow.Width());
    if (which == static_cast<int>(ScrollArrow::Right))
        return;
    if (which == static_cast<int>(ScrollArrow::Left))
        rect.right = rect.left;
    // One less than a whole arrow: the two share a column.
    rect.left = wrapped(std::int64_t{rect.left} - arrow.Width() + 1);
}

owl::TRect TabLayout::ArrowsRect() const {
    owl::TRect rect;
    GetScrollRect(rect, both_arrows);
    return rect;
}

int TabLayout::SlotAt(int position) const {
    int shown = 0;
    for (int slot = 0; slot < most_tab_rows; ++slot) {
        if (m_state.RowOrder[slot] < m_state.RowCount && shown++ == position)
            return slot;
    }
    return -1;
}

int TabLayout::RowAt(int position) const {
    const int slot = SlotAt(position);
    return slot < 0 ? -1 : m_state.RowOrder[slot];
}

int TabLayout::GetTabRow(int tab) const {
    for (int position = 0; position < m_state.RowCount; ++position) {
        const TabRow& row = m_state.Rows[RowAt(position)];
        if (row.First <= tab && tab <= row.Last)
            return position;
    }
    return -1;
}

// The tabs in front of which `tab` may stand. Sets the top and the bottom of `rect` to the row's.
TabRow TabLayout::RunOf(int tab, int start, owl::TRect& rect) const {
    if (!Has(Tab::Stacked))
        return {start < 0 ? m_state.Origin : start, GetEntryCount() - 1};
    const int position = GetTabRow(tab);
    if (position < 0)
        return {};
    const std::int64_t height = m_state.TabHeight;
    rect.top = wrapped((std::int64_t{m_state.RowCount} - 1 - position) * height);
    rect.bottom = wrapped(rect.top + height);
    return m_state.Rows[RowAt(position)];
}

bool TabLayout::GetTabRect(owl::TRect& rect, int tab, int start) const {
    rect = StripRect();
    const TabRow run = RunOf(tab, start, rect);
    for (int i = run.First; i <= run.Last; ++i) {
        const int width = m_state.Entries[i].Width;
        if (i == tab) {
            rect.right = wrapped(std::int64_t{rect.left} + width - 1);
            return IsTabVisible(tab);
        }
        if (IsTabVisible(i))
            rect.left = wrapped(std::int64_t{rect.left} + width);
    }
    return false;
}

int TabLayout::GetMouseTab(const owl::TPoint& point) const {
    for (int i = m_state.Origin; i < GetEntryCount(); ++i) {
        owl::TRect rect;
        // A hidden tab has its place too, which belongs to the next one.
        if (IsTabVisible(i) && GetTabRect(rect, i, -1) && rect.Contains(point))
            return IsTabEnabled(i) ? i : -1;
    }
    return -1;
}

StripPart TabLayout::PartAt(const owl::TPoint& point) const {
    owl::TRect left;
    owl::TRect right;
    GetScrollRect(left, static_cast<int>(ScrollArrow::Left));
    GetScrollRect(right, static_cast<int>(ScrollArrow::Right));
    if (m_state.ScrollLeft && left.Contains(point))
        return StripPart::LeftArrow;
    if (m_state.ScrollRight && right.Contains(point))
        return StripPart::RightArrow;
    return HasArrows() && ArrowsRect().Contains(point) ? StripPart::DimmedArrow : StripPart::Tabs;
}

int TabLayout::GetLastTab(bool visibleOnly) const {
    int tab = GetEntryCount() - 1;
    owl::TRect rect;
    while (visibleOnly && tab > 0 && !(GetTabRect(rect, tab, -1) && rect.right <= m_state.TabsRight))
        --tab;
    return std::max(tab, 0);
}

}  // namespace lvx::propdlg
