// Which part of a strip is scrolled out of sight.
#include "lvx/propdlg/tab_layout.h"
#include "lvx/propdlg/wrapped.h"

namespace lvx::propdlg {

bool TabLayout::AssessScroll() {
    if (Has(Tab::Stacked)) {
        m_state.TabsRight = m_surface.ClientRect().right;
        return false;
    }
    const bool couldScrollLeft = m_state.ScrollLeft;
    const bool couldScrollRight = m_state.ScrollRight;
    m_state.ScrollLeft = m_state.Origin > 0;
    const int end = m_state.ScrollLeft ? StripRect().right : m_surface.ClientRect().right;
    owl::TRect last;
    // Where the last tab ends counts also if it is hidden.
    GetTabRect(last, GetLastTab(false), -1);
    m_state.ScrollRight = last.right > end;
    m_state.TabsRight = StripRect().right;
    const bool leftChanged = m_state.ScrollLeft != couldScrollLeft;
    const bool rightChanged = m_state.ScrollRight != couldScrollRight;
    LoadArrows(leftChanged, rightChanged);
    if (leftChanged || rightChanged) {
        m_surface.Invalidate(ArrowsRect(), true);
        ReassessTabWidths();
    }
    return HasArrows();
}

void TabLayout::LoadArrows(bool leftChanged, bool rightChanged) {
    if (!HasArrows()) {
        m_surface.DropArrows();
        return;
    }
    if (leftChanged || m_state.ScrollRight)
        m_surface.LoadArrow(ScrollArrow::Left, m_state.ScrollLeft);
    if (rightChanged || m_state.ScrollLeft)
        m_surface.LoadArrow(ScrollArrow::Right, m_state.ScrollRight);
}

int TabLayout::OriginAfter(int direction) const {
    const int last = GetEntryCount() - 1;
    std::int64_t origin = m_state.Origin;
    do {
        origin += direction;
        if (origin >= last)
            return last;
        if (origin <= 0)
            return 0;
    } while (!IsTabEnabled(static_cast<int>(origin)));
    return static_cast<int>(origin);
}

void TabLayout::NextOrigin(int direction) {
    if (direction == 0 || GetEntryCount() == 0)
        return;
    const int origin = OriginAfter(direction);
    if (origin == m_state.Origin)
        return;
    owl::TRect strip = StripRect();
    strip.bottom = wrapped(std::int64_t{strip.bottom} + 2);
    m_surface.Invalidate(strip, true);
    m_state.Origin = origin;
    AssessScroll();
    m_surface.UpdateWindow();
}

bool TabLayout::AdjustOrigin(int tab) {
    if (!HasEntry(tab))
        return false;
    const int former = m_state.Origin;
    if (m_state.Origin > tab)
        m_state.Origin = tab;
    owl::TRect rect;
    while (tab > m_state.Origin && GetTabRect(rect, tab, -1) && rect.right >= m_state.TabsRight)
        ++m_state.Origin;
    if (m_state.Origin == former)
        return false;
    owl::TRect strip = StripRect();
    strip.right = wrapped(std::int64_t{strip.right} + 1);
    strip.bottom = wrapped(std::int64_t{strip.bottom} + 2);
    m_surface.Invalidate(strip, false);
    return true;
}

}  // namespace lvx::propdlg
