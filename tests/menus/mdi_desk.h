// An MDI frame on the desk with a real menu bar, and children that can be maximised.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include "owl/application.h"
#include "owl/mdi.h"
#include "tests/owl/desk.h"

namespace lvx_test {

/// Closes a menu that stays open, because no entry has the keys that were pressed, and fails the test: its
/// loop is the system's and would last for ever.
class MenuWatchdog {
public:
    MenuWatchdog() : m_timer(::SetTimer(nullptr, 0, 10000, &Bark)) {}
    ~MenuWatchdog() { ::KillTimer(nullptr, m_timer); }
    MenuWatchdog(const MenuWatchdog&) = delete;
    MenuWatchdog& operator=(const MenuWatchdog&) = delete;

private:
    static void CALLBACK Bark(HWND, UINT, UINT_PTR, DWORD) {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        ::GetGUIThreadInfo(::GetCurrentThreadId(), &info);
        if ((info.flags & GUI_INMENUMODE) == 0)
            return;
        ADD_FAILURE() << "a menu was left open";
        ::EndMenu();
    }

    UINT_PTR m_timer;
};

/// A bar with the drop-downs File (New, Exit) and Edit (Copy), for a window to have.
inline HMENU FileAndEdit() {
    const HMENU bar = ::CreateMenu();
    const HMENU file = ::CreatePopupMenu();
    const HMENU edit = ::CreatePopupMenu();
    ::AppendMenuA(file, MF_STRING, 101, "&New");
    ::AppendMenuA(file, MF_STRING, 102, "E&xit");
    ::AppendMenuA(edit, MF_STRING, 103, "&Copy");
    ::AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(file), "&File");
    ::AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(edit), "&Edit");
    return bar;
}

/// The application, its frame with File and Edit, and no child at first. `Frame` is made of a title and a
/// menu.
template <class Frame = owl::TMDIFrame>
struct MdiDesk {
    MdiDesk() : application("mdi"), frame(new Frame("frame", owl::TResId())) {
        // What the test before may have left.
        MSG quit{};
        ::PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        desk::Place(*frame);
        application.SetMainWindow(frame);
        frame->Create();
        frame->SetMenu(FileAndEdit());
        desk::Activate(*frame);
    }

    owl::TMDIChild* Open(const char* title) {
        auto* const child = new owl::TMDIChild(*frame->GetClientWindow(), title);
        child->Create();
        return child;
    }
    owl::TMDIChild* OpenMaximised(const char* title) {
        owl::TMDIChild* const child = Open(title);
        child->ShowWindow(SW_MAXIMIZE);
        return child;
    }
    HMENU Bar() const { return frame->GetMenu(); }

    MenuWatchdog watchdog;
    owl::TApplication application;
    Frame* frame;
};

}  // namespace lvx_test
