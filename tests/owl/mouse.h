// The mouse of the tests of windows, which handle messages while it moves.
#pragma once

#include <windows.h>

#include "owl/window.h"
#include "support/user.h"
#include "tests/owl/desk.h"

namespace mouse {

namespace detail {

inline owl::TPoint place;

}  // namespace detail

/// Moves the mouse on the screen and waits until the system knows it there.
inline bool MoveTo(const owl::TPoint& point) {
    detail::place = point;
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

// Buttons, where the mouse was moved to last.

inline void PressLeft() {
    user::PressLeft(detail::place.x, detail::place.y);
}

inline void ReleaseLeft() {
    user::ReleaseLeft(detail::place.x, detail::place.y);
}

inline void PressRight() {
    user::PressRight(detail::place.x, detail::place.y);
}

inline void ReleaseRight() {
    user::ReleaseRight(detail::place.x, detail::place.y);
}

/// Where nothing of the tests is.
inline bool MoveAway() {
    return MoveTo(owl::TPoint(::GetSystemMetrics(SM_CXSCREEN) - 2, ::GetSystemMetrics(SM_CYSCREEN) - 2));
}

}  // namespace mouse
