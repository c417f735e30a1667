// A window of the system's own kind, without the framework: a popup of a plain class.
#pragma once

#include <windows.h>

namespace owl_test {

class MessageWindow {
public:
    explicit MessageWindow(DWORD style = WS_POPUP, int width = 10, int height = 10)
        : m_window(::CreateWindowExA(0, "STATIC", "", style, 20, 20, width, height, nullptr, nullptr,
                                     ::GetModuleHandleA(nullptr), nullptr)) {}
    ~MessageWindow() { ::DestroyWindow(m_window); }
    MessageWindow(const MessageWindow&) = delete;
    MessageWindow& operator=(const MessageWindow&) = delete;

    /// Shows it without activating it: no window manager is waited for.
    void Show() const { ::ShowWindow(m_window, SW_SHOWNOACTIVATE); }

    operator HWND() const { return m_window; }

private:
    HWND m_window;
};

}  // namespace owl_test
