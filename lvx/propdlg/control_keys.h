// lvx/propdlg/control_keys.h
//
// The hot keys of controls, which need not have window objects. Private to the library.
#pragma once

#include <windows.h>

namespace lvx::propdlg {

/// Whether a control that stands in `dialog` and can be used has this hot key; false for a null `dialog`.
bool has_control_with_key(HWND dialog, char key);

/// Clicks at the first enabled control in `dialog` that has this hot key, and selects its text. The key of
/// what is no tab stop, a label, is that of the tab stop behind it. False if there is no such control.
bool click_by_key(HWND dialog, char key);

}  // namespace lvx::propdlg
