// lvx/propdlg/tab_stops.h
//
// How the focus goes around a dialog, its strip and its pages. Private to the library.
#pragma once

#include <windows.h>

class LVXPropertyPage;
class TPropertyDialog;

namespace lvx::propdlg {

/// The first and the last tab stop in a window; null if there is none, or for null.
HWND first_tab_stop(HWND window);
HWND last_tab_stop(HWND window);

/// Posts the focus to `control` in the dialog `to`, out of `from` unless that is null, and selects the
/// control's text. False, and nothing done, without a control.
bool move_focus(HWND from, HWND to, HWND control);

/// Where the keyboard's input goes: the control with the focus, or the combo box that it belongs to, and the
/// page or the dialog that this stands in. Neither of them for what belongs to no property dialog.
struct FocusPlace {
    HWND control = nullptr;
    LVXPropertyPage* page = nullptr;
    TPropertyDialog* dialog = nullptr;
};
FocusPlace find_focus();

/// Does what Tab, or with `forward` false Shift+Tab, does where it crosses from strip, page or dialog to
/// another of the three. False if the dialog manager is to do the work.
bool take_tab_key(const FocusPlace& focus, bool forward);

}  // namespace lvx::propdlg
