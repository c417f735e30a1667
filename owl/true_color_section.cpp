#include "owl/true_color_section.h"

namespace owl {

BITMAPINFO TrueColorInfo(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return info;
}

TrueColorSection::TrueColorSection(int width, int height) : m_size(width, height) {
    if (width <= 0 || height <= 0)
        return;
    const BITMAPINFO info = TrueColorInfo(width, height);
    void* pixels = nullptr;
    m_dc = ::CreateCompatibleDC(nullptr);
    m_bitmap = ::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    m_pixels = static_cast<std::uint32_t*>(pixels);
    if (m_dc && m_bitmap)
        m_before = ::SelectObject(m_dc, m_bitmap);
}

TrueColorSection::~TrueColorSection() {
    if (m_before)
        ::SelectObject(m_dc, m_before);
    if (m_bitmap)
        ::DeleteObject(m_bitmap);
    if (m_dc)
        ::DeleteDC(m_dc);
}

const std::uint32_t* TrueColorSection::Pixels() const {
    ::GdiFlush();
    return m_pixels;
}

}  // namespace owl
