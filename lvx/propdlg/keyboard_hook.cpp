// The keyboard hook: it sees Tab, and Ctrl with PageUp or PageDown, before the dialog manager does.
#include <utility>

#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_page.h"
#include "lvx/propdlg/shared_state.h"
#include "lvx/propdlg/step_message.h"
#include "lvx/propdlg/tab_stops.h"

namespace {

using lvx::propdlg::find_focus;
using lvx::propdlg::FocusPlace;
using lvx::propdlg::KeyEvent;
using lvx::propdlg::shared_state;

// Of the key that the event is about the event knows better: some systems note its state behind the hook.
bool is_down(WPARAM key, const KeyEvent& event) {
    return key == event.key ? event.isPress() : ::GetKeyState(static_cast<int>(key)) < 0;
}

bool take_tab(const KeyEvent& event) {
    if (!is_down(VK_TAB, event) || is_down(VK_MENU, event))
        return false;
    return lvx::propdlg::take_tab_key(find_focus(), !is_down(VK_SHIFT, event));
}

const TPropertyDialog* dialog_with_focus() {
    const FocusPlace focus = find_focus();
    return focus.page != nullptr ? focus.page->GetPropertyDialog() : focus.dialog;
}

// By a message: what a page throws when it is left must not cross the system's frames around the hook.
void step_tabs(bool forward) {
    if (const TPropertyDialog* const dialog = dialog_with_focus())
        dialog->SendMessage(lvx::propdlg::step_message(), forward ? TRUE : FALSE);
}

// The step handles messages, and the system may bring the very key once more meanwhile: it has not left the
// queue before the hook is through.
bool take_page_keys(const KeyEvent& event) {
    KeyEvent& stepping = shared_state().SteppingKey;
    if (stepping.isUnderWay())
        return stepping == event;
    shared_state().SteppedKey = {};
    const bool isForward = is_down(VK_NEXT, event);
    if (!is_down(VK_CONTROL, event) || !(isForward || is_down(VK_PRIOR, event)))
        return false;
    stepping = event;
    step_tabs(isForward);
    shared_state().SteppedKey = std::exchange(stepping, {});
    return false;
}

}  // namespace

LRESULT CALLBACK PropdlgKbdProc(int code, WPARAM wParam, LPARAM lParam) {
    const HHOOK hook = shared_state().HookHandle;
    if (code < 0 || code == HC_NOREMOVE)
        return ::CallNextHookEx(hook, code, wParam, lParam);
    const KeyEvent event{wParam, lParam};
    const bool isTaken = wParam == VK_TAB ? take_tab(event) : take_page_keys(event);
    ::CallNextHookEx(hook, code, wParam, lParam);
    return isTaken ? 1 : 0;
}
