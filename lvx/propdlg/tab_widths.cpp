// How wide the tabs of a strip are, and which of them share a row.
#include <algorithm>

#include "lvx/propdlg/tab_layout.h"
#include "lvx/propdlg/wrapped.h"

namespace lvx::propdlg {

namespace {

// What a tab has beside its caption, for its edges, and beside its cel.
constexpr int room_for_edges = 7;
constexpr int room_around_cel = 12;
// By so much a tab is widened at a time to get its caption onto two lines.
constexpr int widening_step = 8;
// Wider than any screen.
constexpr int widest_tab = 0x7FFF;

bool IsBreakable(const std::string& caption) {
    return caption.find_first_of(" \r") != std::string::npos;
}

}  // namespace

// The smallest of the widths tried at which the caption takes less than three lines.
int TabLayout::TwoLineWidth(const std::string& caption) {
    const std::int64_t threeLines = 3 * std::int64_t{m_state.TextHeight};
    const auto measured = [&](int width) {
        return m_surface.MeasureText(caption, owl::TRect(0, 0, width, m_state.TextHeight),
                                     LineBreaks::BetweenWords);
    };
    const owl::TRect unbroken = measured(widest_tab);
    // Three lines of its own: no width helps.
    if (unbroken.bottom >= threeLines)
        return unbroken.right;
    int width = m_state.FixedTabWidth;
    for (int steps = 0; steps < widest_tab / widening_step; ++steps) {
        const owl::TRect broken = measured(width);
        if (threeLines > broken.bottom)
            return broken.right;
        width = wrapped(std::int64_t{width} + widening_step);
    }
    return unbroken.right;
}

int TabLayout::CaptionWidth(const std::string& caption) {
    if (Has(Tab::DoubleHeight) && IsBreakable(caption))
        return TwoLineWidth(caption);
    const owl::TRect within(0, 0, m_state.FixedTabWidth, m_state.TextHeight);
    return m_surface.MeasureText(caption, within, LineBreaks::Own).right;
}

int TabLayout::CalcTabWidth(int tab) {
    const TPropertyEntry& entry = m_state.Entries[tab];
    if (Has(Tab::FixedWidth))
        return m_state.FixedTabWidth;
    std::int64_t width = std::int64_t{CaptionWidth(entry.Text)} + room_for_edges;
    if (Has(Tab::WideMargins))
        width += 2 * std::int64_t{m_state.WideMarginWidth};
    const int cels = Has(Tab::UseTabBitmaps) ? m_surface.CelsWidth() : 0;
    if (cels > 0)
        width += cels / GetEntryCount() + room_around_cel;
    return std::max(wrapped(width), m_state.FixedTabWidth);
}

void TabLayout::CalculateBasicTabWidths() {
    for (int i = 0; i < GetEntryCount(); ++i)
        m_state.Entries[i].Width = CalcTabWidth(i);
    if (Has(Tab::Stacked)) {
        MakeRows();
        return;
    }
    m_state.RowCount = 1;
    m_state.Rows[0] = {0, GetEntryCount() - 1};
}

// As many tabs as end left of the strip's right, one at least. Its last tab but one more is the first that
// does not fit.
TabRow TabLayout::FillRow(int first, const owl::TRect& strip) const {
    int x = strip.left;
    int next = first;
    for (; next < GetEntryCount(); ++next) {
        if (IsTabVisible(next))
            x = wrapped(std::int64_t{x} + m_state.Entries[next].Width);
        if (x >= strip.right)
            break;
    }
    return {first, next - 1};
}

// A row ends where a tab does not fit, and another one follows. That counts for a tab too wide for any row,
// too, which has a row to itself: if it is the last one, the row that follows is counted and stays empty.
void TabLayout::MakeRows() {
    const owl::TRect strip = StripRect();
    const int last = GetEntryCount() - 1;
    std::fill(std::begin(m_state.Rows), std::end(m_state.Rows), TabRow{});
    int rows = 0;
    for (int next = 0; next <= last;) {
        TabRow& row = m_state.Rows[rows];
        row = FillRow(next, strip);
        const bool overflows = row.Last < last;
        row.Last = std::max(row.Last, row.First);
        next = row.Last + 1;
        if (overflows && rows + 1 < most_tab_rows) {
            ++rows;
        } else {
            row.Last = last;
            break;
        }
    }
    m_state.RowCount = last < 0 ? 0 : rows + 1;
}

void TabLayout::CalculateTabWidths() {
    const owl::TRect strip = StripRect();
    const std::int64_t room = std::int64_t{strip.right} - strip.left;
    if (room <= 1)
        return;
    CalculateBasicTabWidths();
    if (!Has(Tab::Justified) || (!Has(Tab::Stacked) && HasArrows()))
        return;
    for (int row = 0; row < m_state.RowCount; ++row) {
        if (!JustifyRow(m_state.Rows[row], wrapped(room)))
            return;
    }
}

// What a share leaves over goes to the tabs behind it, so that the row ends flush. False if the row is too
// wide.
bool TabLayout::JustifyRow(const TabRow& row, int room) {
    std::int64_t extra = room;
    int count = 0;
    for (int i = row.First; i <= row.Last; ++i) {
        if (!IsTabVisible(i))
            continue;
        extra -= m_state.Entries[i].Width;
        ++count;
    }
    if (extra < 0)
        return false;
    for (int i = row.First; i <= row.Last && extra > 0 && count > 0; ++i) {
        if (!IsTabVisible(i))
            continue;
        const std::int64_t share = extra / count--;
        m_state.Entries[i].Width = wrapped(m_state.Entries[i].Width + share);
        extra -= share;
    }
    return true;
}

void TabLayout::ReassessTabWidths() {
    if (!Has(Tab::Justified))
        return;
    CalculateTabWidths();
    owl::TRect strip = StripRect();
    strip.right = wrapped(std::int64_t{strip.right} + 1);
    strip.bottom = wrapped(std::int64_t{strip.bottom} + 2);
    m_surface.Invalidate(strip, true);
}

}  // namespace lvx::propdlg
