// owl/message_chain.h
//
// The way upward on which a message is offered. Private to the framework.
#pragma once

#include <windows.h>

namespace owl {

/// The window to which a message of `window` is offered next; null above a window that is no child.
inline HWND AboveForMessages(HWND window) {
    const bool isChild = (::GetWindowLongA(window, GWL_STYLE) & static_cast<LONG>(WS_CHILD)) != 0;
    return isChild ? ::GetParent(window) : nullptr;
}

}  // namespace owl
