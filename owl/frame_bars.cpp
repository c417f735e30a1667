// The bars along the edges of a frame, and the hints that come from them.
#include <algorithm>

#include "owl/frame_window.h"

namespace owl {

namespace {

bool IsUpright(TFrameWindow::TEdge edge) {
    return edge == TFrameWindow::Left || edge == TFrameWindow::Right;
}

// Cuts the place of a bar of this size off `room`. A bar that finds too little stays as thick as it is, for
// the time when there is more.
TRect CutOff(TRect& room, TFrameWindow::TEdge edge, const TSize& size) {
    TRect place = room;
    switch (edge) {
        case TFrameWindow::Top:
            place.bottom = place.top + size.cy;
            room.top = std::min(place.bottom, room.bottom);
            break;
        case TFrameWindow::Bottom:
            place.top = place.bottom - size.cy;
            room.bottom = std::max(place.top, room.top);
            break;
        case TFrameWindow::Left:
            place.right = place.left + size.cx;
            room.left = std::min(place.right, room.right);
            break;
        case TFrameWindow::Right:
            place.left = place.right - size.cx;
            room.right = std::max(place.left, room.left);
            break;
    }
    return place;
}

}  // namespace

void TFrameWindow::Insert(TWindow& bar, TEdge edge) {
    const bool wasClient = GetClientWindow() == &bar;
    if (wasClient)
        SetClientWindow(nullptr);
    bar.SetParent(this);
    bar.EnableAutoCreate();
    m_bars.push_back({&bar, edge});
    if (IsWindow())
        bar.Create();
    // A client that is given up is hidden.
    if (wasClient)
        bar.ShowWindow(SW_SHOW);
    ArrangeBars();
}

void TFrameWindow::ChildLeft(const TWindow& child) {
    TWindow::ChildLeft(child);
    std::erase_if(m_bars, [&](const Bar& bar) { return bar.window == &child; });
}

// Not IsWindowVisible: the frame itself may not be shown yet.
bool TFrameWindow::TakesRoom(const Bar& bar) const {
    return bar.window->IsWindow() && (bar.window->GetStyle() & WS_VISIBLE) != 0;
}

TSize TFrameWindow::RoomForBars() const {
    TSize size;
    for (const Bar& bar : m_bars) {
        if (!TakesRoom(bar))
            continue;
        const TSize own = bar.window->GetWindowRect().Size();
        size += IsUpright(bar.edge) ? TSize(own.cx, 0) : TSize(0, own.cy);
    }
    return size;
}

TRect TFrameWindow::GetClientRoom() const {
    TRect room = GetClientRect();
    for (const Bar& bar : m_bars) {
        if (TakesRoom(bar))
            CutOff(room, bar.edge, bar.window->GetWindowRect().Size());
    }
    return room;
}

// A bar that is moved may do as it likes to the others.
void TFrameWindow::ArrangeBars() {
    if (!IsWindow() || IsIconic())
        return;
    TRect room = GetClientRect();
    const std::vector<Bar> bars = m_bars;
    for (const Bar& bar : bars) {
        const bool present = std::any_of(m_bars.begin(), m_bars.end(),
                                         [&](const Bar& other) { return other.window == bar.window; });
        if (present && TakesRoom(bar))
            bar.window->MoveWindow(CutOff(room, bar.edge, bar.window->GetWindowRect().Size()));
    }
    FitClient();
}

TFrameWindow* TFrameWindow::FrameOf(TWindow* window) {
    for (; window != nullptr; window = window->Parent) {
        if (auto* const frame = dynamic_cast<TFrameWindow*>(window))
            return frame;
    }
    return nullptr;
}

void TFrameWindow::ShowHint(int command, const std::string& text) {
    if (TFrameWindow* const frame = FrameOf(Parent))
        frame->ShowHint(command, text);
}

}  // namespace owl
