// lvx/propdlg/control_keys.h
//
// The hot keys of controls, which need not have window objects. Private to the library.
#pragma once

#include <windows.h>

namespace lvx::propdlg {

/// Whether Alt and this key are the dialog manager's affair in `dialog`: a control that is shown and enabled,
/// and no field to type in, has it for its hot key. False for a null `dialog`.
bool has_control_with_key(HWND dialog, char key);

/// Clicks at the first enabled control in `dialog` that has this hot key, and selects its text. The key of
/// what is no tab stop, a label, is that of the tab stop behind it. False if there is no such control.
bool click_by_key(HWND dialog, char key);

}  // namespace lvx::propdlg
