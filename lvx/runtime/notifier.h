// lvx/runtime/notifier.h
//
// Questions about the mouse, the focus and the screen, for those who are handed a pointer instead of calling
// the system. Has no state, and one instance, which lives as long as the library: `_notifier`.
//
//     int x = 0;
//     _notifier->getCursorPos(&x, nullptr);
//
// For the thread of the main window. Windows only.
#pragma once

#include "lvx/platform/export.h"

namespace owl {
class TWindow;
}

class LVX_EXPORT LVXNotifier {
public:
    LVXNotifier() = default;
    LVXNotifier(const LVXNotifier&) = delete;
    LVXNotifier& operator=(const LVXNotifier&) = delete;

    /// Where the mouse is on the screen. A null pointer leaves its part out. Without a mouse, and while
    /// another desktop is shown, both are 0.
    void getCursorPos(int* x, int* y) const;

    /// The window under the mouse: a control that is disabled is looked through. Null if there is none, or
    /// one that has no window object, such as another program's.
    owl::TWindow* whereIsMouse() const;

    /// Gives the keyboard to `window`. Does nothing if that is null or has not been created.
    void setFocus(owl::TWindow* window) const;

    /// The size of the main screen in pixels. A null pointer leaves its part out.
    void getScreenSize(int* width, int* height) const;
};

/// The one instance. Never null, also while other modules start.
extern LVX_EXPORT LVXNotifier* const _notifier;
