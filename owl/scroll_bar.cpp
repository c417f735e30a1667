#include "owl/scroll_bar.h"

#include <algorithm>
#include <cstring>

namespace owl {

DEFINE_RESPONSE_TABLE1(TScrollBar, TControl)
    EV_NOTIFY_AT_CHILD(SB_LINEUP, SBLineUp), EV_NOTIFY_AT_CHILD(SB_LINEDOWN, SBLineDown),
        EV_NOTIFY_AT_CHILD(SB_PAGEUP, SBPageUp), EV_NOTIFY_AT_CHILD(SB_PAGEDOWN, SBPageDown),
        EV_NOTIFY_AT_CHILD(SB_THUMBPOSITION, SBThumbPosition),
        EV_NOTIFY_AT_CHILD(SB_THUMBTRACK, SBThumbPosition), EV_NOTIFY_AT_CHILD(SB_TOP, SBTop),
        EV_NOTIFY_AT_CHILD(SB_BOTTOM, SBBottom),
END_RESPONSE_TABLE;

TScrollBar::TScrollBar(TWindow* parent, int id, int x, int y, int w, int h, bool horizontal, TModule* module)
    : TControl(parent, id, nullptr, x, y, w, h, module) {
    Attr.Style |= horizontal ? SBS_HORZ : SBS_VERT;
    if (horizontal && h == 0)
        Attr.H = ::GetSystemMetrics(SM_CYHSCROLL);
    if (!horizontal && w == 0)
        Attr.W = ::GetSystemMetrics(SM_CXVSCROLL);
}

TScrollBar::TScrollBar(TWindow* parent, int resourceId, TModule* module)
    : TControl(parent, resourceId, module) {}

TScrollBar::~TScrollBar() = default;

const char* TScrollBar::GetClassName() {
    return "SCROLLBAR";
}

void TScrollBar::GetRange(int& low, int& high) const {
    low = high = 0;
    ::GetScrollRange(GetHandle(), SB_CTL, &low, &high);
}

void TScrollBar::SetRange(int low, int high, bool redraw) {
    ::SetScrollRange(GetHandle(), SB_CTL, low, high, redraw);
}

int TScrollBar::GetPosition() const {
    return ::GetScrollPos(GetHandle(), SB_CTL);
}

void TScrollBar::SetPosition(int position, bool redraw) {
    int low = 0;
    int high = 0;
    GetRange(low, high);
    ::SetScrollPos(GetHandle(), SB_CTL, std::max(low, std::min(position, high)), redraw);
}

int TScrollBar::DeltaPos(int delta) {
    const long long position = static_cast<long long>(GetPosition()) + delta;
    int low = 0;
    int high = 0;
    GetRange(low, high);
    if (delta != 0)
        SetPosition(static_cast<int>(std::max<long long>(low, std::min<long long>(position, high))));
    return GetPosition();
}

void TScrollBar::SBLineUp() {
    DeltaPos(-LineMagnitude);
}

void TScrollBar::SBLineDown() {
    DeltaPos(LineMagnitude);
}

void TScrollBar::SBPageUp() {
    DeltaPos(-PageMagnitude);
}

void TScrollBar::SBPageDown() {
    DeltaPos(PageMagnitude);
}

// The message has 16 bits of it only.
int TScrollBar::TrackPosition() const {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_TRACKPOS;
    ::GetScrollInfo(GetHandle(), SB_CTL, &info);
    return info.nTrackPos;
}

void TScrollBar::SBThumbPosition() {
    SetPosition(TrackPosition());
}

void TScrollBar::SBTop() {
    int low = 0;
    int high = 0;
    GetRange(low, high);
    SetPosition(low);
}

void TScrollBar::SBBottom() {
    int low = 0;
    int high = 0;
    GetRange(low, high);
    SetPosition(high);
}

unsigned TScrollBar::Transfer(void* buffer, TTransferDirection direction) {
    TScrollBarData data;
    if (direction == tdGetData) {
        GetRange(data.LowValue, data.HighValue);
        data.Position = GetPosition();
        std::memcpy(buffer, &data, sizeof(data));
    } else if (direction == tdSetData) {
        std::memcpy(&data, buffer, sizeof(data));
        SetRange(data.LowValue, data.HighValue, false);
        SetPosition(data.Position);
    }
    return sizeof(data);
}

}  // namespace owl
