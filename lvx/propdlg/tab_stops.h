// lvx/propdlg/tab_stops.h
//
// How the focus goes around a dialog, its strip and its pages. Private to the library.
#pragma once

#include <windows.h>

namespace owl {
class TWindow;
}
class TPropertyDialog;

namespace lvx::propdlg {

/// The first and the last tab stop in a window; null if there is none.
HWND first_tab_stop(HWND window);
HWND last_tab_stop(HWND window);

/// Posts the focus to `control` in `to`, out of `from` if that is not null, and selects the control's text.
/// False, and nothing done, without a control.
bool move_focus(owl::TWindow* from, owl::TWindow& to, HWND control);

/// What the keyboard stands in: the control with the focus, or the combo box that it belongs to, and the
/// dialog or page around it; null if it is none of a property dialog.
struct FocusOwner {
    HWND focus = nullptr;
    owl::TWindow* window = nullptr;
};
FocusOwner find_focus_owner();

/// Does what Tab, or with `forward` false Shift+Tab, does at the border between strip, page and dialog. False
/// if the dialog manager is to do the work.
bool take_tab_key(const FocusOwner& owner, bool forward);

/// The name of the message by which a dialog is told to select the next tab (wParam 1) or the previous one
/// (0).
inline constexpr const char* step_message = "LVX step tabs";

/// Selects the next or the previous tab of the dialog that `owner` belongs to.
void step_tabs(const FocusOwner& owner, bool forward);

}  // namespace lvx::propdlg
