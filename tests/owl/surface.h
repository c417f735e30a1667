// A picture in memory to draw on and look at: 32 bits a pixel, white at first.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

#include "owl/bitmap.h"
#include "owl/dc.h"
#include "owl/memory_dc.h"

namespace owl_test {

/// A section of `bitCount` bits a pixel, all 0.
inline HBITMAP MakeSection(int width, int height, int bitCount = 32) {
    struct {
        BITMAPINFOHEADER header;
        RGBQUAD colours[256];
    } info{};
    info.header.biSize = sizeof info.header;
    info.header.biWidth = width;
    info.header.biHeight = height;
    info.header.biPlanes = 1;
    info.header.biBitCount = static_cast<WORD>(bitCount);
    for (BYTE i = 0; i < 255; ++i)
        info.colours[i + 1] = {i, i, i, 0};
    if (bitCount == 1)
        info.colours[1] = {255, 255, 255, 0};
    void* bits = nullptr;
    return ::CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits,
                              nullptr, 0);
}

class Surface {
public:
    Surface(int width, int height)
        : m_size(width, height), bitmap(MakeSection(width, height), owl::AutoDelete) {
        dc.SelectObject(bitmap);
        dc.PatBlt(0, 0, width, height, WHITENESS);
    }

    /// The pixel that lies there, whatever the modes and transforms of the context: 0xBBGGRR.
    COLORREF At(int x, int y) const {
        BITMAP section;
        bitmap.GetObject(section);
        ::GdiFlush();
        const BYTE* pixel = static_cast<const BYTE*>(section.bmBits) +
                            static_cast<std::ptrdiff_t>(m_size.cy - 1 - y) * section.bmWidthBytes + x * 4;
        return RGB(pixel[2], pixel[1], pixel[0]);
    }

    /// All pixels by letters, a line per row: '.' white, '#' black, R G B and Y C M for the pure colours, '?'
    /// others.
    std::string Picture() const {
        std::string text;
        for (int y = 0; y < m_size.cy; ++y) {
            for (int x = 0; x < m_size.cx; ++x)
                text += Letter(At(x, y));
            text += '\n';
        }
        return text;
    }

    static char Letter(COLORREF color) {
        switch (color) {
            case RGB(255, 255, 255):
                return '.';
            case RGB(0, 0, 0):
                return '#';
            case RGB(255, 0, 0):
                return 'R';
            case RGB(0, 255, 0):
                return 'G';
            case RGB(0, 0, 255):
                return 'B';
            case RGB(255, 255, 0):
                return 'Y';
            case RGB(0, 255, 255):
                return 'C';
            case RGB(255, 0, 255):
                return 'M';
            default:
                return '?';
        }
    }

private:
    owl::TSize m_size;

public:
    owl::TBitmap bitmap;
    owl::TMemoryDC dc;
};

/// How many more GDI objects this process can have, by making them: not every system tells how many it has.
inline int RoomForGdiObjects() {
    std::vector<HGDIOBJ> pens;
    while (const HGDIOBJ pen = ::CreatePen(PS_SOLID, 1, 0))
        pens.push_back(pen);
    for (const HGDIOBJ pen : pens)
        ::DeleteObject(pen);
    return static_cast<int>(pens.size());
}

}  // namespace owl_test
