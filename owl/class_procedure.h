// owl/class_procedure.h
//
// What answered a window's messages before a window object took it over: put aside with the window itself, so
// that it is found even when the object is gone. A window of wide text keeps it: its messages are handed on
// as they came. Private to the framework.
#pragma once

#include <windows.h>

namespace owl {

struct ClassProcedure {
    WNDPROC procedure = nullptr;
    /// Whether it takes wide text.
    bool isWide = false;

    bool IsNone() const { return procedure == nullptr; }
    /// Requires: !IsNone().
    LRESULT Call(HWND handle, UINT msg, WPARAM wParam, LPARAM lParam) const;
};

/// Puts `ours` in front of the procedure of `handle`, and that aside. A window whose messages come through
/// `ours` already, perhaps below a procedure that somebody put on top, stays as it is. Returns what is put
/// aside: none if `ours` is the class's own.
ClassProcedure PutInFront(HWND handle, WNDPROC ours);

/// Undoes PutInFront, unless somebody put a procedure on top: that goes on calling `ours`.
void GiveBack(HWND handle, WNDPROC ours);

/// What PutInFront put aside; none if it did not, or gave it back.
ClassProcedure PutAside(HWND handle);

/// For a window that ends.
void ForgetPutAside(HWND handle);

}  // namespace owl
