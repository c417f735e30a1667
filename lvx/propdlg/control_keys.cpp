#include "lvx/propdlg/control_keys.h"

#include <array>

#include "lvx/propdlg/control_calls.h"
#include "lvx/propdlg/pressed_key.h"

namespace lvx::propdlg {

namespace {

constexpr int longest_text = 100;

bool has_key(HWND control, char key) {
    std::array<char, longest_text + 1> text{};
    ::GetWindowTextA(control, text.data(), static_cast<int>(text.size()));
    return ::IsWindowEnabled(control) && hot_key_of(text.data()) == key;
}

HWND next_with_key(HWND control, char key) {
    while (control != nullptr && !has_key(control, key))
        control = ::GetWindow(control, GW_HWNDNEXT);
    return control;
}

HWND first_with_key(HWND dialog, char key) {
    return dialog != nullptr && key != 0 ? next_with_key(::GetWindow(dialog, GW_CHILD), key) : nullptr;
}

// Not what the user has typed into a field.
bool counts_for_dialog_manager(HWND control) {
    return ::IsWindowVisible(control) && (::SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) == 0;
}

HWND tab_stop_of(HWND dialog, HWND control) {
    const bool isTabStop = (::GetWindowLongA(control, GWL_STYLE) & WS_TABSTOP) != 0;
    return isTabStop ? control : ::GetNextDlgTabItem(dialog, control, FALSE);
}

}  // namespace

bool has_control_with_key(HWND dialog, char key) {
    HWND control = first_with_key(dialog, key);
    while (control != nullptr && !counts_for_dialog_manager(control))
        control = next_with_key(::GetWindow(control, GW_HWNDNEXT), key);
    return control != nullptr;
}

bool click_by_key(HWND dialog, char key) {
    const HWND marked = first_with_key(dialog, key);
    if (marked == nullptr)
        return false;
    const HWND control = tab_stop_of(dialog, marked);
    ::SendMessageA(control, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    ::SendMessageA(control, WM_LBUTTONUP, MK_LBUTTON, 0);
    select_text(control);
    return true;
}

}  // namespace lvx::propdlg
