// The mouse of the tests of windows, which handle messages while it moves.
#pragma once

#include <windows.h>

#include "owl/window.h"
#include "support/user.h"
#include "tests/owl/desk.h"

namespace mouse {

using user::PressLeft;
using user::PressRight;
using user::ReleaseLeft;
using user::ReleaseRight;

/// Moves the mouse on the screen and waits until the system knows it there.
inline bool MoveTo(const owl::TPoint& point) {
    user::MoveTo(point.x, point.y);
    return desk::PumpUntil([&] {
        owl::TPoint now;
        owl::TWindow::GetCursorPos(now);
        return now == point;
    });
}

/// To a point of a window's client area, also outside of it.
inline bool MoveTo(const owl::TWindow& window, owl::TPoint point) {
    window.ClientToScreen(point);
    return MoveTo(point);
}

/// Where nothing of the tests is.
inline bool MoveAway() {
    return MoveTo(owl::TPoint(::GetSystemMetrics(SM_CXSCREEN) - 2, ::GetSystemMetrics(SM_CYSCREEN) - 2));
}

}  // namespace mouse
