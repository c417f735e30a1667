#include "lvx/controls/control_bar.h"

#include "lvx/controls/bar_accessible.h"
#include "owl/tooltip.h"

namespace {

bool is_of_mouse(UINT message) {
    return message >= 0x200 && message <= 0x20E;
}

MSG message_of(HWND window, UINT message, UINT flags, const owl::TPoint& point) {
    MSG msg{};
    msg.hwnd = window;
    msg.message = message;
    msg.wParam = flags;
    msg.lParam = MAKELPARAM(point.x, point.y);
    msg.time = static_cast<DWORD>(::GetMessageTime());
    msg.pt = point;
    return msg;
}

// A control that is a tool is known by its window; the question for its text goes by its number.
void name_by_number(owl::TTooltipText& text) {
    if ((text.uFlags & TTF_IDISHWND) == 0) {
        return;
    }
    const auto control = reinterpret_cast<HWND>(text.hdr.idFrom);
    text.hdr.idFrom = static_cast<UINT_PTR>(::GetDlgCtrlID(control));
    text.uFlags &= ~static_cast<UINT>(TTF_IDISHWND);
}

}  // namespace

DEFINE_RESPONSE_TABLE1(LVXControlBar, owl::TControlBar)
    EV_WM_MOUSEMOVE, EV_WM_LBUTTONDOWN, EV_WM_MBUTTONDOWN, EV_WM_RBUTTONDOWN, EV_WM_LBUTTONUP,
        EV_WM_MBUTTONUP, EV_WM_RBUTTONUP, EV_MESSAGE(WM_GETOBJECT, EvGetObject),
END_RESPONSE_TABLE;

LVXControlBar::LVXControlBar(owl::TWindow* parent, owl::TGadgetWindow::TTileDirection direction,
                             owl::TFont* font, owl::TModule* module)
    : TControlBar(parent, direction, font, module) {
    SetHintMode(EnterHints);
}

LVXControlBar::~LVXControlBar() = default;

owl::TTooltip* LVXControlBar::LiveTooltip() const {
    owl::TTooltip* const tooltip = GetTooltip();
    return tooltip != nullptr && tooltip->IsWindow() ? tooltip : nullptr;
}

bool LVXControlBar::IdleAction(long idleCount) {
    if (idleCount == 0) {
        if (AtMouse() != nullptr) {
            owl::TPoint mouse;
            GetCursorPos(mouse);
            const HWND below = WindowFromPoint(mouse);
            if (below != GetHandle() && !IsChild(below)) {
                HandleMessage(WM_MOUSEMOVE, 0, -1);
            }
        }
        ForEachGadget([idleCount](owl::TGadget& gadget) { gadget.IdleAction(idleCount); });
    }
    return TWindow::IdleAction(idleCount);
}

LRESULT LVXControlBar::EvCommand(UINT id, HWND control, UINT notifyCode) {
    return Parent != nullptr ? Parent->EvCommand(id, control, notifyCode)
                             : TControlBar::EvCommand(id, control, notifyCode);
}

void LVXControlBar::EvCommandEnable(owl::TCommandEnabler& enabler) {
    if (dynamic_cast<owl::TTooltipEnabler*>(&enabler) == nullptr) {
        TGadgetWindow::EvCommandEnable(enabler);
        return;
    }
    if (Parent != nullptr && enabler.IsReceiver(GetHandle())) {
        enabler.SetReceiver(Parent->GetHandle());
        Parent->EvCommandEnable(enabler);
        if (enabler.GetHandled()) {
            return;
        }
    }
    TWindow::EvCommandEnable(enabler);
}

LRESULT LVXControlBar::EvNotify(UINT id, owl::TNotify& notify) {
    if (notify.code != TTN_NEEDTEXTA) {
        return TControlBar::EvNotify(id, notify);
    }
    auto& text = reinterpret_cast<owl::TTooltipText&>(notify);
    name_by_number(text);
    owl::TTooltipEnabler enabler(text, *this);
    AskWhetherEnabled(enabler);
    return 0;
}

void LVXControlBar::ForwardTooltipMessage(UINT message, UINT flags, const owl::TPoint& point) {
    if (owl::TTooltip* const tooltip = LiveTooltip(); tooltip != nullptr && !TooltipSeen) {
        tooltip->RelayEvent(message_of(GetHandle(), message, flags, point));
    }
    TooltipSeen = false;
}

bool LVXControlBar::PreProcessMsg(MSG& msg) {
    owl::TTooltip* const tooltip = LiveTooltip();
    const bool isOurs = msg.hwnd == GetHandle() || IsChild(msg.hwnd);
    if (tooltip != nullptr && isOurs && is_of_mouse(msg.message)) {
        tooltip->RelayEvent(msg);
        TooltipSeen = true;
    }
    return TGadgetWindow::PreProcessMsg(msg);
}

void LVXControlBar::EvMouseMove(UINT modifiers, const owl::TPoint& point) {
    ForwardTooltipMessage(WM_MOUSEMOVE, modifiers, point);
    TControlBar::EvMouseMove(modifiers, point);
}

void LVXControlBar::EvLButtonDown(UINT modifiers, const owl::TPoint& point) {
    ForwardTooltipMessage(WM_LBUTTONDOWN, modifiers, point);
    TControlBar::EvLButtonDown(modifiers, point);
}

void LVXControlBar::EvMButtonDown(UINT modifiers, const owl::TPoint& point) {
    ForwardTooltipMessage(WM_MBUTTONDOWN, modifiers, point);
    TControlBar::EvMButtonDown(modifiers, point);
}

void LVXControlBar::EvRButtonDown(UINT modifiers, const owl::TPoint& point) {
    ForwardTooltipMessage(WM_RBUTTONDOWN, modifiers, point);
    TControlBar::EvRButtonDown(modifiers, point);
}

void LVXControlBar::EvLButtonUp(UINT modifiers, const owl::TPoint& point) {
    ForwardTooltipMessage(WM_LBUTTONUP, modifiers, point);
    TControlBar::EvLButtonUp(modifiers, point);
}

void LVXControlBar::EvMButtonUp(UINT modifiers, const owl::TPoint& point) {
    ForwardTooltipMessage(WM_MBUTTONUP, modifiers, point);
    TControlBar::EvMButtonUp(modifiers, point);
}

void LVXControlBar::EvRButtonUp(UINT modifiers, const owl::TPoint& point) {
    ForwardTooltipMessage(WM_RBUTTONUP, modifiers, point);
    TControlBar::EvRButtonUp(modifiers, point);
}

LRESULT LVXControlBar::EvGetObject(WPARAM wParam, LPARAM lParam) {
    const bool isOfClient = static_cast<LONG>(lParam) == OBJID_CLIENT;
    return isOfClient ? lvx::controls::answer_get_object(GetHandle(), wParam) : DefaultProcessing();
}
