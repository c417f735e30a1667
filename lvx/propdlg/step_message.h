// lvx/propdlg/step_message.h
//
// The message by which the keyboard hook has a dialog select its next tab, or with wParam 0 its previous one.
// Private to the library.
#pragma once

#include <windows.h>

namespace lvx::propdlg {

inline constexpr const char* step_message_name = "lvx::propdlg::step";

inline UINT step_message() {
    return ::RegisterWindowMessageA(step_message_name);
}

}  // namespace lvx::propdlg
