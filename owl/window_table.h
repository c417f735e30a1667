// owl/window_table.h
//
// Which window object stands behind which handle, over all of the process. Any thread may ask; an object is
// used on the thread of its window alone. Private to the framework.
#pragma once

#include <windows.h>

#include <vector>

namespace owl {

class TWindow;

/// Puts `window` behind `handle`, in place of who stood there.
void RememberWindow(HWND handle, TWindow* window);

/// Takes the entry of `handle` out, if it is still that of `window`.
void ForgetWindow(HWND handle, const TWindow* window);

/// The object behind `handle`, or null.
TWindow* FindWindowObject(HWND handle);

/// The calling thread's windows that have objects, in no order. Who does something with one asks for its
/// object then: it may be gone.
std::vector<HWND> WindowsOfThisThread();

}  // namespace owl
