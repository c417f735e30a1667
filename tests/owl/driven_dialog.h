// Dialogs that the system runs, driven from within: what a test does to one is done inside of its loop.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

#include "tests/owl/desk.h"

namespace desk {

using user::Type;

/// A dialog class that runs `action` in its loop once it is set up and shows.
template <class Base>
class Driven : public Base {
public:
    using Base::Base;

    void SetupWindow() override {
        Base::SetupWindow();
        ++setups;
        if (setup)
            setup();
        this->PostMessage(WM_APP + 1);
    }
    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override {
        if (msg != WM_APP + 1)
            return Base::WindowProc(msg, wParam, lParam);
        if (action)
            std::exchange(action, nullptr)();
        return 0;
    }

    /// Called at the end of SetupWindow.
    std::function<void()> setup;
    /// Called when the system's loop runs.
    std::function<void()> action;
    int setups = 0;
};

/// Cancels all dialogs of this thread, and fails the test, if it takes longer than it can.
class Watchdog {
public:
    Watchdog() : m_timer(::SetTimer(nullptr, 0, 30000, &Bark)) {}
    ~Watchdog() { ::KillTimer(nullptr, m_timer); }
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

private:
    static BOOL CALLBACK Cancel(HWND window, LPARAM) {
        char name[16] = "";
        ::GetClassNameA(window, name, sizeof name);
        if (std::string(name) == "#32770")
            ::PostMessageA(window, WM_COMMAND, IDCANCEL, 0);
        return TRUE;
    }
    static void CALLBACK Bark(HWND, UINT, UINT_PTR, DWORD) {
        ADD_FAILURE() << "a dialog was left open";
        ::EnumThreadWindows(::GetCurrentThreadId(), &Cancel, 0);
    }

    UINT_PTR m_timer;
};

}  // namespace desk
