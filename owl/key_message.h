// owl/key_message.h
//
// Which messages are of the keyboard. Private to the framework.
#pragma once

#include <windows.h>

namespace owl {

inline bool IsKeyMessage(UINT msg) {
    return msg >= WM_KEYFIRST && msg <= WM_KEYLAST;
}

}  // namespace owl
