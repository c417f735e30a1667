// owl/window_text.h
//
// Reads a window's text, whether the window has an object or not. Private to the framework.
#pragma once

#include <windows.h>

#include <string>

namespace owl {

/// Empty if there is no window. The length that the system tells first may be too long.
inline std::string TextOfWindow(HWND window) {
    std::string text(static_cast<std::size_t>(::GetWindowTextLengthA(window)), '\0');
    const int length = ::GetWindowTextA(window, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

}  // namespace owl
