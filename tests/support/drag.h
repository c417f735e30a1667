// Pulling things with the mouse.
#pragma once

#include "support/user.h"

namespace user {

namespace detail {

/// Moves the mouse and waits until the system knows it there.
inline void MoveMouse(int x, int y, DWORD flags = 0) {
    std::vector<INPUT> inputs{Mouse(x, y, flags)};
    Send(inputs);
    WaitUntil(
        [&] {
            POINT now{};
            ::GetCursorPos(&now);
            return now.x == x && now.y == y;
        },
        1000);
}

}  // namespace detail

/// Presses the left button at a point of the screen, moves in `steps` steps to another one, and lets go.
inline void Drag(POINT from, POINT to, int steps = 8) {
    detail::MoveMouse(from.x, from.y);
    detail::MoveMouse(from.x, from.y, MOUSEEVENTF_LEFTDOWN);
    for (int i = 1; i <= steps; ++i) {
        detail::MoveMouse(from.x + (to.x - from.x) * i / steps, from.y + (to.y - from.y) * i / steps);
        ::Sleep(15);
    }
    detail::MoveMouse(to.x, to.y, MOUSEEVENTF_LEFTUP);
}

/// Two clicks within the time that makes them a double click.
inline void DoubleClick(int x, int y) {
    Click(x, y);
    Click(x, y);
}

}  // namespace user
