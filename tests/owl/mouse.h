// The mouse of the tests: real input, at places of the screen or of a window.
#pragma once

#include <windows.h>

#include "owl/window.h"
#include "tests/owl/desk.h"

namespace mouse {

namespace detail {

inline void Send(DWORD what, LONG x = 0, LONG y = 0) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = x;
    input.mi.dy = y;
    input.mi.dwFlags = what;
    ::SendInput(1, &input, sizeof(INPUT));
}

/// A coordinate as input tells it: the screen in 65536 parts, from the first one that belongs to the pixel.
inline LONG PartOf(int pixel, int pixels) {
    return (pixel * 65536 + pixels - 1) / pixels;
}

}  // namespace detail

/// Moves the mouse on the screen and waits until the system knows it there.
inline bool MoveTo(const owl::TPoint& point) {
    const auto there = [&] {
        owl::TPoint now;
        owl::TWindow::GetCursorPos(now);
        return now == point;
    };
    detail::Send(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE,
                 detail::PartOf(point.x, ::GetSystemMetrics(SM_CXSCREEN)),
                 detail::PartOf(point.y, ::GetSystemMetrics(SM_CYSCREEN)));
    return desk::PumpUntil(there);
}

/// To a point of a window's client area, also outside of it.
inline bool MoveTo(const owl::TWindow& window, owl::TPoint point) {
    window.ClientToScreen(point);
    return MoveTo(point);
}

inline void PressLeft() {
    detail::Send(MOUSEEVENTF_LEFTDOWN);
}

inline void ReleaseLeft() {
    detail::Send(MOUSEEVENTF_LEFTUP);
}

inline void PressRight() {
    detail::Send(MOUSEEVENTF_RIGHTDOWN);
}

inline void ReleaseRight() {
    detail::Send(MOUSEEVENTF_RIGHTUP);
}

/// Where nothing of the tests is.
inline bool MoveAway() {
    return MoveTo(owl::TPoint(::GetSystemMetrics(SM_CXSCREEN) - 2, ::GetSystemMetrics(SM_CYSCREEN) - 2));
}

}  // namespace mouse
