// What a user does to the programs on the desk: keys, text, the mouse, waiting until something shows. Input
// goes to whoever is in front, be it this program or another, as a user's does.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace user {

namespace detail {

inline void Send(std::vector<INPUT>& inputs) {
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

inline INPUT Key(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    return input;
}

// The system counts 65536 steps across the screen, whatever its size.
inline LONG Steps(int pixel, int pixels) {
    return (pixel * 65536 + pixels - 1) / pixels;
}

// Moves the mouse to a pixel and does what `flags` say in one go: no movement that is under way comes
// between.
inline INPUT Mouse(int x, int y, DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = Steps(x, ::GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = Steps(y, ::GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | flags;
    return input;
}

inline void SendMouse(int x, int y, DWORD flags) {
    std::vector<INPUT> inputs{Mouse(x, y, flags)};
    Send(inputs);
}

}  // namespace detail

/// Presses the keys in their order and lets them go in the opposite one, as a hand does.
inline void Press(std::initializer_list<WORD> keys) {
    std::vector<INPUT> inputs;
    for (const WORD key : keys)
        inputs.push_back(detail::Key(key, 0));
    for (std::size_t i = keys.size(); i-- > 0;)
        inputs.push_back(detail::Key(inputs[i].ki.wVk, KEYEVENTF_KEYUP));
    detail::Send(inputs);
}

/// Types a text of the characters that the keyboard has.
inline void Type(const std::string& text) {
    for (const char letter : text) {
        const SHORT key = ::VkKeyScanA(letter);
        if ((HIBYTE(key) & 1) != 0)
            Press({VK_SHIFT, LOBYTE(key)});
        else
            Press({LOBYTE(key)});
    }
}

/// Moves the mouse to a point of the screen.
inline void MoveTo(int x, int y) {
    detail::SendMouse(x, y, 0);
}

/// Presses a button there, or lets it go.
inline void PressLeft(int x, int y) {
    detail::SendMouse(x, y, MOUSEEVENTF_LEFTDOWN);
}

inline void ReleaseLeft(int x, int y) {
    detail::SendMouse(x, y, MOUSEEVENTF_LEFTUP);
}

inline void PressRight(int x, int y) {
    detail::SendMouse(x, y, MOUSEEVENTF_RIGHTDOWN);
}

inline void ReleaseRight(int x, int y) {
    detail::SendMouse(x, y, MOUSEEVENTF_RIGHTUP);
}

/// Turns the wheel by so many notches, forward if that is positive.
inline void TurnWheel(int notches) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_WHEEL;
    input.mi.mouseData = static_cast<DWORD>(notches * WHEEL_DELTA);
    ::SendInput(1, &input, sizeof input);
}

/// Clicks with the left button at a point of the screen.
inline void Click(int x, int y) {
    std::vector<INPUT> inputs{detail::Mouse(x, y, MOUSEEVENTF_LEFTDOWN),
                              detail::Mouse(x, y, MOUSEEVENTF_LEFTUP)};
    detail::Send(inputs);
}

/// Clicks at a point of a window that is counted from its upper left corner.
inline void ClickIn(HWND window, int x, int y) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    Click(rect.left + x, rect.top + y);
}

/// Clicks in the middle of a window.
inline void Click(HWND window) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    Click((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
}

/// Looks again and again until `done` is true or `milliseconds` have passed; whether it was done. Handles no
/// messages meanwhile: for a thread that has no windows.
template <class Done>
bool WaitUntil(const Done& done, DWORD milliseconds = 10000) {
    const DWORD start = ::GetTickCount();
    while (!done() && ::GetTickCount() - start < milliseconds)
        ::Sleep(10);
    return done();
}

/// Waits until a window is in front and stays there for a moment: the window manager has its say after the
/// system.
inline bool WaitUntilInFront(HWND window) {
    const auto inFront = [&] { return ::GetForegroundWindow() == window; };
    for (int tries = 0; tries < 10; ++tries) {
        if (WaitUntil(inFront, 1000) && !WaitUntil([&] { return !inFront(); }, 120))
            return true;
        ::SetForegroundWindow(window);
    }
    return false;
}

/// A visible top-level window of this class and title; null is any. Null if there is none.
inline HWND FindShown(const char* windowClass, const char* title) {
    HWND window = nullptr;
    while ((window = ::FindWindowExA(nullptr, window, windowClass, title)) != nullptr) {
        if (::IsWindowVisible(window))
            return window;
    }
    return nullptr;
}

/// Waits for such a window; null if none came.
inline HWND WaitForShown(const char* windowClass, const char* title) {
    HWND window = nullptr;
    WaitUntil([&] { return (window = FindShown(windowClass, title)) != nullptr; });
    return window;
}

/// The class of the drop-downs of menus.
constexpr const char* drop_down_class = "#32768";
/// The class of dialogs and message boxes.
constexpr const char* dialog_class = "#32770";

/// The window that has the keyboard in the program that `window` belongs to.
inline HWND FocusOf(HWND window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &info);
    return info.hwndFocus;
}

/// The text of a window, of another process too.
inline std::string TextOf(HWND window) {
    char text[256] = "";
    ::SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

}  // namespace user
