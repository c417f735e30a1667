// An MDI frame on the desk with a real menu bar, and children that can be maximised.
#pragma once

#include <windows.h>

#include "owl/application.h"
#include "owl/mdi.h"
#include "tests/owl/desk.h"

namespace lvx_test {

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

    owl::TApplication application;
    Frame* frame;
};

}  // namespace lvx_test
