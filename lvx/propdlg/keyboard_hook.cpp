// The keyboard hook: it sees Tab and Ctrl with PageUp or PageDown before the dialog manager does.
#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/shared_state.h"
#include "lvx/propdlg/tab_stops.h"

namespace {

bool is_down(int key) {
    return ::GetKeyState(key) < 0;
}

bool take_tab() {
    if (!is_down(VK_TAB) || is_down(VK_MENU))
        return false;
    const lvx::propdlg::FocusOwner owner = lvx::propdlg::find_focus_owner();
    return owner.window != nullptr && lvx::propdlg::take_tab_key(owner, !is_down(VK_SHIFT));
}

void take_page_keys() {
    if (!is_down(VK_CONTROL) || !(is_down(VK_PRIOR) || is_down(VK_NEXT)))
        return;
    lvx::propdlg::step_tabs(lvx::propdlg::find_focus_owner(), is_down(VK_NEXT));
}

}  // namespace

LRESULT CALLBACK PropdlgKbdProc(int code, WPARAM wParam, LPARAM lParam) {
    const HHOOK hook = lvx::propdlg::shared_state().HookHandle;
    if (code < 0 || code == HC_NOREMOVE)
        return ::CallNextHookEx(hook, code, wParam, lParam);
    bool isTaken = false;
    if (wParam == VK_TAB)
        isTaken = take_tab();
    else
        take_page_keys();
    ::CallNextHookEx(hook, code, wParam, lParam);
    return isTaken ? 1 : 0;
}
