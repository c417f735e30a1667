// Whether a window is on the screen where the system believes it to be. They differ for a while, and now and
// then for good, while a window manager takes a new window over; a mouse that is sent to the believed place
// then acts on whatever is really there.
#pragma once

#include <windows.h>

namespace user {

namespace detail {

// With nothing but the screen's pixels to go by.
inline bool HasRaisedEdges(const RECT& rect) {
    constexpr int samples = 8;
    const COLORREF dark = ::GetSysColor(COLOR_3DDKSHADOW);
    const HDC screen = ::GetDC(nullptr);
    bool found = true;
    for (int i = 1; i < samples && found; ++i) {
        const int x = rect.left + i * (rect.right - rect.left) / samples;
        const int y = rect.top + i * (rect.bottom - rect.top) / samples;
        found =
            ::GetPixel(screen, x, rect.bottom - 1) == dark && ::GetPixel(screen, rect.right - 1, y) == dark;
    }
    ::ReleaseDC(nullptr, screen);
    return found;
}

// Whether its edges can be looked for: only those of captioned windows are known, and only on the screen.
inline bool ShouldHaveRaisedEdges(HWND window, const RECT& rect) {
    return (::GetWindowLongA(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION && !::IsZoomed(window) &&
           !::IsIconic(window) && rect.right <= ::GetSystemMetrics(SM_CXSCREEN) &&
           rect.bottom <= ::GetSystemMetrics(SM_CYSCREEN);
}

}  // namespace detail

/// True also of windows of which it cannot be told.
inline bool IsInItsPlace(HWND window) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    return !detail::ShouldHaveRaisedEdges(window, rect) || detail::HasRaisedEdges(rect);
}

/// Has a window moved to where it is believed to be already.
inline void MoveToItsPlace(HWND window) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    constexpr UINT place_alone = SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
    ::SetWindowPos(window, nullptr, rect.left + 1, rect.top, 0, 0, place_alone);
    ::SetWindowPos(window, nullptr, rect.left, rect.top, 0, 0, place_alone);
}

}  // namespace user
