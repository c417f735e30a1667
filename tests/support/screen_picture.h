// What is to be seen at a place of the screen, pixel by pixel, whoever has drawn it.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace user {

class ScreenPicture {
public:
    /// A copy of a rectangle of `source`.
    ScreenPicture(HDC source, const RECT& rect)
        : m_width(rect.right - rect.left),
          m_height(rect.bottom - rect.top),
          m_pixels(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height)) {
        const HDC memory = ::CreateCompatibleDC(source);
        const HBITMAP bitmap = ::CreateCompatibleBitmap(source, m_width, m_height);
        const HGDIOBJ former = ::SelectObject(memory, bitmap);
        ::BitBlt(memory, 0, 0, m_width, m_height, source, rect.left, rect.top, SRCCOPY);
        ::SelectObject(memory, former);
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = m_width;
        info.bmiHeader.biHeight = -m_height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        ::GetDIBits(memory, bitmap, 0, static_cast<UINT>(m_height), m_pixels.data(), &info, DIB_RGB_COLORS);
        ::DeleteObject(bitmap);
        ::DeleteDC(memory);
        for (DWORD& pixel : m_pixels)
            pixel &= 0xFFFFFF;
    }

    /// A rectangle of the screen.
    static ScreenPicture Of(const RECT& rect) {
        const HDC screen = ::GetDC(nullptr);
        const ScreenPicture picture(screen, rect);
        ::ReleaseDC(nullptr, screen);
        return picture;
    }

    /// How many pixels have a colour.
    std::ptrdiff_t Count(COLORREF color) const {
        const DWORD stored = RGB(GetBValue(color), GetGValue(color), GetRValue(color));
        return std::count(m_pixels.begin(), m_pixels.end(), stored);
    }

    friend bool operator==(const ScreenPicture&, const ScreenPicture&) = default;

private:
    int m_width;
    int m_height;
    std::vector<DWORD> m_pixels;
};

/// The client area of a window as the screen shows it.
inline ScreenPicture PictureOfClient(HWND window) {
    RECT rect{};
    ::GetClientRect(window, &rect);
    ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    return ScreenPicture::Of(rect);
}

}  // namespace user
