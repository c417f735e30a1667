// What the view draws on: a bitmap of the screen's kind as large as the window, which comes onto the screen
// in one go. So nothing flickers, however much is drawn.
#pragma once

#include <memory>

#include "lvx/drawing/device.h"
#include "owl/bitmap.h"
#include "owl/memory_dc.h"

namespace sketch {

class Sheet : public LVX::Device {
public:
    /// Makes the sheet that large, at least a pixel a side; what is on it may be lost. Requires: nobody
    /// draws.
    void Resize(const owl::TSize& size);

    /// Null before the first Resize.
    owl::TDC* AcquireDC() override;
    void ReleaseDC() override;

    /// Puts the part `rect` of the sheet to the same place of `dc`.
    void CopyTo(owl::TDC& dc, const owl::TRect& rect);

private:
    owl::TSize m_size;
    std::unique_ptr<owl::TBitmap> m_bitmap;
    std::unique_ptr<owl::TMemoryDC> m_memory;
};

}  // namespace sketch
