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

// Which way Ctrl with a page key steps; 0 for other keys.
int step_of(const KeyEvent& event) {
    if (!is_down(VK_CONTROL, event))
        return 0;
    if (is_down(VK_NEXT, event))
        return 1;
    return is_down(VK_PRIOR, event) ? -1 : 0;
}

int next_waiting_step() {
    int& waiting = shared_state().Step.waiting;
    const int step = waiting > 0 ? 1 : waiting < 0 ? -1 : 0;
    waiting -= step;
    return step;
}

// A step handles messages. The system may bring the very key once more among them, for it has not left the
// queue before the hook is through; others wait until the step is done, but for those that are just held
// down.
bool take_while_stepping(const KeyEvent& event) {
    lvx::propdlg::Stepping& step = shared_state().Step;
    if (event == step.key && std::exchange(step.comesAgain, false))
        return true;
    if (event.key == step.key.key)
        step.comesAgain = false;
    if (event.isPress() && !event.isHeld() && (event.key == VK_NEXT || event.key == VK_PRIOR))
        step.waiting += step_of(event);
    return false;
}

bool take_page_keys(const KeyEvent& event) {
    if (shared_state().Step.key.isUnderWay())
        return take_while_stepping(event);
    shared_state().SteppedKey = {};
    int step = step_of(event);
    if (step == 0)
        return false;
    shared_state().Step = {event, true, 0};
    for (; step != 0; step = next_waiting_step())
        step_tabs(step > 0);
    shared_state().Step = {};
    shared_state().SteppedKey = event;
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
