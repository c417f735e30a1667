// owl/window_procedures.h
//
// The one window procedure of all window objects, and what it needs to know. Private to the framework.
#pragma once

#include <windows.h>

namespace owl {

class TWindow;

struct WindowProcedures {
    /// Hands a message to the window's object. A window without one, and with none under creation, is
    /// answered by what its class would do.
    static LRESULT CALLBACK OfObjects(HWND handle, UINT msg, WPARAM wParam, LPARAM lParam);
};

/// While it lives, the first message of a window that has no object belongs to `window`.
class CreationScope {
public:
    explicit CreationScope(TWindow& window);
    ~CreationScope();
    CreationScope(const CreationScope&) = delete;
    CreationScope& operator=(const CreationScope&) = delete;

    /// The window that is under creation on this thread, for once: then null until the next scope.
    static TWindow* Take();

private:
    TWindow* m_outer;
};

}  // namespace owl
