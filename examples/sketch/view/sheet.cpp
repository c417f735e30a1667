#include "sketch/view/sheet.h"

#include <algorithm>

#include "owl/window_dc.h"

namespace sketch {

void Sheet::Resize(const owl::TSize& size) {
    const owl::TSize wanted(std::max<int>(size.cx, 1), std::max<int>(size.cy, 1));
    if (wanted == m_size) {
        return;
    }
    m_bitmap = std::make_unique<owl::TBitmap>(owl::TScreenDC(), wanted.cx, wanted.cy);
    m_size = wanted;
}

owl::TDC* Sheet::AcquireDC() {
    if (m_bitmap == nullptr) {
        return nullptr;
    }
    if (m_memory == nullptr) {
        m_memory = std::make_unique<owl::TMemoryDC>(owl::TScreenDC());
        m_memory->SelectObject(*m_bitmap);
        m_dc = m_memory.get();
    }
    ++m_openCount;
    return m_dc;
}

void Sheet::ReleaseDC() {
    if (m_openCount > 0 && --m_openCount == 0) {
        m_dc = nullptr;
        m_memory.reset();
    }
}

void Sheet::CopyTo(owl::TDC& dc, const owl::TRect& rect) {
    const owl::TDC* const source = AcquireDC();
    if (source != nullptr) {
        dc.BitBlt(rect, *source, rect.TopLeft());
        ReleaseDC();
    }
}

}  // namespace sketch
