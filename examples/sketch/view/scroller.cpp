#include "sketch/view/scroller.h"

#include <algorithm>

namespace sketch {
namespace {

constexpr int line_way = 20;
// Around what there is: one can see that it ends.
constexpr int margin = 24;

// The sheet begins at 0 unless something lies beyond.
int WithMargin(int least) {
    return least < 0 ? least - margin : 0;
}

owl::TSize WholeSize(HWND window) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

void ShowBar(HWND window, int bar, int least, int most, int page, int position) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMin = least;
    info.nMax = most - 1;
    info.nPage = static_cast<UINT>(page);
    info.nPos = position;
    ::SetScrollInfo(window, bar, &info, TRUE);
}

int TrackedPosition(HWND window, int bar) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    ::GetScrollInfo(window, bar, &info);
    return info.nTrackPos;
}

}  // namespace

bool Scroller::Fit(HWND window, const owl::TRect& contents) {
    // The bars come and go by themselves. Whether they take room must not decide about that.
    m_page = WholeSize(window);
    m_area = owl::TRect(WithMargin(contents.left), WithMargin(contents.top), contents.right + margin,
                        contents.bottom + margin);
    return MoveTo(window, m_origin);
}

// 0 is always to be had: what comes to lie above or left of it does not push all the rest away.
owl::TPoint Scroller::Last() const {
    return {std::max<int>(m_area.right - m_page.cx, 0), std::max<int>(m_area.bottom - m_page.cy, 0)};
}

bool Scroller::MoveTo(HWND window, const owl::TPoint& origin) {
    const owl::TPoint before = m_origin;
    m_origin.x = std::clamp(origin.x, m_area.left, Last().x);
    m_origin.y = std::clamp(origin.y, m_area.top, Last().y);
    Show(window);
    return !(m_origin == before);
}

void Scroller::Show(HWND window) const {
    const owl::TPoint end = Last() + m_page;
    ShowBar(window, SB_HORZ, m_area.left, end.x, m_page.cx, m_origin.x);
    ShowBar(window, SB_VERT, m_area.top, end.y, m_page.cy, m_origin.y);
}

bool Scroller::Answer(HWND window, int bar, UINT code) {
    owl::TPoint wanted = m_origin;
    LONG& position = bar == SB_HORZ ? wanted.x : wanted.y;
    const int page = bar == SB_HORZ ? m_page.cx : m_page.cy;
    switch (code) {
        case SB_LINEUP:
            position -= line_way;
            break;
        case SB_LINEDOWN:
            position += line_way;
            break;
        case SB_PAGEUP:
            position -= page - line_way;
            break;
        case SB_PAGEDOWN:
            position += page - line_way;
            break;
        case SB_TOP:
            position = bar == SB_HORZ ? m_area.left : m_area.top;
            break;
        case SB_BOTTOM:
            position = bar == SB_HORZ ? m_area.right : m_area.bottom;
            break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            position = TrackedPosition(window, bar);
            break;
        default:
            return false;
    }
    return MoveTo(window, wanted);
}

}  // namespace sketch
