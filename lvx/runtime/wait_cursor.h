// lvx/runtime/wait_cursor.h
//
// The busy cursor, for the length of a scope. Stands on the stack around what takes long:
//
//     {
//         LVXWaitCursor busy;
//         load(document);
//     }
//
// Keeps the cursor that it replaced and owns neither. Several may nest; they end in reverse order. For the
// thread of the main window. Does not: stay when messages are handled meanwhile, for the window under the
// mouse then sets its own cursor. Windows only.
#pragma once

#include <windows.h>

#include "lvx/platform/export.h"

class LVX_EXPORT LVXWaitCursor {
public:
    /// Shows the system's hourglass.
    LVXWaitCursor();
    LVXWaitCursor(const LVXWaitCursor&) = delete;
    LVXWaitCursor& operator=(const LVXWaitCursor&) = delete;
    ~LVXWaitCursor();

    /// Shows the cursor of before, or none if there was none. May be called ahead of the end of the scope;
    /// from the second call on, and at the end, nothing happens any more.
    void Reset();

private:
    HCURSOR m_previous;
    bool m_active;
};
