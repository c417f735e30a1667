// Commands, notifications of controls, and the question whether a command is enabled.
#include "owl/command_enabler.h"
#include "owl/key_message.h"
#include "owl/window.h"
#include "owl/window_table.h"

namespace owl {

namespace {

// A notification that the control's own table takes is not told to the parent.
bool TakenByControl(HWND control, const TEvent& event, LRESULT& answer) {
    TWindow* const child = FindWindowObject(control);
    if (child == nullptr)
        return false;
    TEventInfo info(TEventInfo::NotificationAtChild, 0, event.NotifyCode);
    if (!child->Find(info))
        return false;
    answer = info.Dispatch(event);
    return true;
}

bool TakenByParent(TWindow& parent, const TEvent& event, LRESULT& answer) {
    TEventInfo info(TEventInfo::ChildNotification, event.Id, event.NotifyCode);
    if (!parent.Find(info))
        return false;
    answer = info.Dispatch(event);
    return true;
}

}  // namespace

LRESULT TWindow::EvCommand(UINT id, HWND control, UINT notifyCode) {
    const TEvent event{WM_COMMAND, MAKEWPARAM(id, notifyCode), reinterpret_cast<LPARAM>(control), id,
                       notifyCode};
    LRESULT answer = 0;
    if (control != nullptr && (TakenByControl(control, event, answer) || TakenByParent(*this, event, answer)))
        return answer;
    TEventInfo info(WM_COMMAND, id);
    if (notifyCode == 0 && Find(info))
        return info.Dispatch(event);
    return DefaultProcessing();
}

LRESULT TWindow::AnswerScrollBar(const TEvent& event) {
    const auto control = reinterpret_cast<HWND>(event.LParam);
    if (control == nullptr)
        return AnswerMessage(event, event.Msg);
    const TEvent notification{event.Msg, event.WParam, event.LParam,
                              static_cast<UINT>(::GetDlgCtrlID(control)), LOWORD(event.WParam)};
    LRESULT answer = 0;
    // The bar moves its thumb first; whoever else is interested then reads the position.
    TakenByControl(control, notification, answer);
    if (TakenByParent(*this, notification, answer))
        return answer;
    return AnswerMessage(event, event.Msg);
}

LRESULT TWindow::EvNotify(UINT id, TNotify& notify) {
    const TEvent event{WM_NOTIFY, id, reinterpret_cast<LPARAM>(&notify), id, notify.code};
    LRESULT answer = 0;
    if (TakenByControl(notify.hwndFrom, event, answer))
        return answer;
    TEventInfo info(WM_NOTIFY, id, notify.code);
    if (Find(info))
        return info.Dispatch(event);
    return DefaultProcessing();
}

void TWindow::EvCommandEnable(TCommandEnabler& enabler) {
    TEventInfo info(WM_COMMAND_ENABLE, enabler.GetId());
    if (Find(info)) {
        info.Dispatch({WM_COMMAND_ENABLE, 0, reinterpret_cast<LPARAM>(&enabler), enabler.GetId(), 0});
        return;
    }
    if (!enabler.GetHandled() && enabler.IsReceiver(m_handle)) {
        TEventInfo command(WM_COMMAND, enabler.GetId());
        enabler.Enable(Find(command));
    }
}

void TWindow::AskWhetherEnabled(TCommandEnabler& enabler) {
    HandleMessage(WM_COMMAND_ENABLE, 0, reinterpret_cast<LPARAM>(&enabler));
}

HACCEL TWindow::Accelerators() {
    if (m_accelerators == nullptr && !Attr.AccelTable.IsNull())
        m_accelerators = ::LoadAcceleratorsA(GetInstance(), Attr.AccelTable);
    return m_accelerators;
}

bool TWindow::PreProcessMsg(MSG& msg) {
    if (!IsKeyMessage(msg.message) || Accelerators() == nullptr)
        return false;
    return ::TranslateAcceleratorA(m_handle, m_accelerators, &msg) != 0;
}

}  // namespace owl
