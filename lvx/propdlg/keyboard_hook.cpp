// The keyboard hook: it sees Tab and Ctrl with PageUp or PageDown before the dialog manager does.
#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/shared_state.h"
#include "lvx/propdlg/tab_stops.h"

namespace {

constexpr LPARAM released = LPARAM{1} << 31;

// A key that goes down or up, or is held while that happens. Systems differ in whether the state of the
// keyboard knows of it when the hook is called; the key itself tells.
class KeyStroke {
public:
    KeyStroke(WPARAM key, LPARAM details)
        : m_key(static_cast<int>(key)), m_goesDown((details & released) == 0) {}

    bool Is(int key) const { return m_key == key; }
    bool IsDown(int key) const { return Is(key) ? m_goesDown : ::GetKeyState(key) < 0; }

private:
    int m_key;
    bool m_goesDown;
};

bool take_tab(const KeyStroke& stroke) {
    if (!stroke.IsDown(VK_TAB) || stroke.IsDown(VK_MENU))
        return false;
    const lvx::propdlg::FocusOwner owner = lvx::propdlg::find_focus_owner();
    return owner.window != nullptr && lvx::propdlg::take_tab_key(owner, !stroke.IsDown(VK_SHIFT));
}

// A change of tab handles messages. The key that is being looked at is still among them, and maybe its
// release: then the key must not come to the strip any more, as one without Control.
bool take_page_keys(const KeyStroke& stroke) {
    static bool isStepping = false;
    if (isStepping || !stroke.IsDown(VK_CONTROL) || !(stroke.IsDown(VK_PRIOR) || stroke.IsDown(VK_NEXT)))
        return false;
    struct Step {
        Step() { isStepping = true; }
        ~Step() { isStepping = false; }
    } const step;
    lvx::propdlg::step_tabs(lvx::propdlg::find_focus_owner(), stroke.IsDown(VK_NEXT));
    return ::GetKeyState(VK_CONTROL) >= 0;
}

}  // namespace

LRESULT CALLBACK PropdlgKbdProc(int code, WPARAM wParam, LPARAM lParam) {
    const HHOOK hook = lvx::propdlg::shared_state().HookHandle;
    if (code < 0 || code == HC_NOREMOVE)
        return ::CallNextHookEx(hook, code, wParam, lParam);
    const KeyStroke stroke(wParam, lParam);
    const bool isTaken = stroke.Is(VK_TAB) ? take_tab(stroke) : take_page_keys(stroke);
    ::CallNextHookEx(hook, code, wParam, lParam);
    return isTaken ? 1 : 0;
}
