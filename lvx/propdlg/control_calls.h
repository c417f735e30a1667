// lvx/propdlg/control_calls.h
//
// What the dialogs do to controls that have no window object. Null handles do nothing. Private to the
// library.
#pragma once

#include <windows.h>

namespace lvx::propdlg {

/// Gives the controls in `window`, and those in them, the system's small font. Statics without a prefix
/// (SS_NOPREFIX) keep theirs.
void apply_small_font(HWND window);

/// Selects all of the text, if the control has one that can be selected, as soon as messages are handled.
void select_text(HWND control);

/// Whether a window is of this class, whatever the case of the letters.
bool is_of_class(HWND window, const char* name);

}  // namespace lvx::propdlg
