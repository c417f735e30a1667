// What the tests of windows share: an application, a frame to put children in, messages pumped, keys pressed.
#pragma once

#include <windows.h>

#include "owl/application.h"
#include "owl/frame_window.h"
#include "owl/window.h"
#include "support/user.h"

namespace desk {

/// How many windows, menus and the like this process has just now. Wine always says 0: tests count by other
/// means too.
inline DWORD UserObjects() {
    return ::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS);
}

namespace detail {

inline BOOL CALLBACK CountChild(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

inline BOOL CALLBACK CountWindow(HWND window, LPARAM count) {
    ::EnumChildWindows(window, &CountChild, count);
    return CountChild(window, count);
}

}  // namespace detail

/// The windows of this thread that are on the desk, children too.
inline int CountWindows() {
    int count = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), &detail::CountWindow, reinterpret_cast<LPARAM>(&count));
    return count;
}

/// A frame of 400 by 300 pixels on the screen.
inline void Place(owl::TFrameWindow& frame) {
    frame.Attr.X = 50;
    frame.Attr.Y = 50;
    frame.Attr.W = 400;
    frame.Attr.H = 300;
}

/// Handles messages until `done` or until `milliseconds` have passed; whether it was done.
template <class Done>
bool PumpUntil(const Done& done, DWORD milliseconds = 5000) {
    owl::TMsgThread thread;
    const DWORD start = ::GetTickCount();
    while (!done() && ::GetTickCount() - start < milliseconds) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        thread.PumpWaitingMessages();
    }
    return done();
}

/// Brings a window to the front and waits until it keeps the keyboard: the window manager has its say a
/// moment after the system thinks that the window has it.
inline bool Activate(const owl::TWindow& window) {
    const auto active = [&] {
        return ::GetForegroundWindow() == window.GetHandle() && ::GetFocus() != nullptr;
    };
    for (int tries = 0; tries < 10; ++tries) {
        ::ShowWindow(window.GetHandle(), SW_SHOW);
        ::SetForegroundWindow(window.GetHandle());
        if (PumpUntil(active) && !PumpUntil([&] { return !active(); }, 120))
            return true;
    }
    return false;
}

using user::Press;

/// A frame that exists, with the application that it needs.
struct Desk {
    Desk() : application("desk") {
        // What the test before may have left.
        MSG quit{};
        ::PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        frame = new owl::TFrameWindow(nullptr, "desk");
        Place(*frame);
        application.SetMainWindow(frame);
        frame->Create();
    }

    owl::TApplication application;
    owl::TFrameWindow* frame;
};

}  // namespace desk
