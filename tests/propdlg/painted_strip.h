// What a strip paints, read back pixel by pixel, beside the colours that it is to use.
#pragma once

#include "owl/bitmap.h"
#include "owl/brush.h"
#include "owl/memory_dc.h"
#include "owl/window_dc.h"
#include "property_desk.h"

namespace propdlg_test {

/// All of a strip, painted on a ground of a colour that no strip has.
class PaintedStrip {
public:
    static constexpr COLORREF ground = RGB(255, 0, 255);

    explicit PaintedStrip(TPropertyTab& strip) : PaintedStrip(strip, strip.GetClientRect()) {}
    /// Only what is invalid is asked for.
    PaintedStrip(TPropertyTab& strip, owl::TRect invalid)
        : m_size(strip.GetClientRect().Size()), m_bitmap(owl::TScreenDC(), m_size.cx, m_size.cy) {
        m_dc.SelectObject(m_bitmap);
        m_dc.FillRect(owl::TRect(owl::TPoint(), m_size), owl::TBrush(owl::TColor(ground)));
        strip.Paint(m_dc, true, invalid);
    }

    owl::TColor At(int x, int y) const { return m_dc.GetPixel(x, y); }
    int Width() const { return m_size.cx; }
    int Height() const { return m_size.cy; }
    /// How many pixels of a rectangle have a colour.
    int Count(const owl::TRect& rect, owl::TColor color) const {
        int count = 0;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x)
                count += At(x, y) == color;
        }
        return count;
    }
    /// Whether all pixels from one place up to but without another have a colour.
    bool IsLine(int x1, int y1, int x2, int y2, owl::TColor color) const {
        const owl::TRect rect(x1, y1, x1 == x2 ? x2 + 1 : x2, y1 == y2 ? y2 + 1 : y2);
        return Count(rect, color) == rect.Width() * rect.Height();
    }

private:
    owl::TSize m_size;
    owl::TBitmap m_bitmap;
    owl::TMemoryDC m_dc;
};

/// The colours of a strip.
struct Colours {
    owl::TColor hilight = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    owl::TColor face = ::GetSysColor(COLOR_BTNFACE);
    owl::TColor shadow = ::GetSysColor(COLOR_BTNSHADOW);
    owl::TColor frame = ::GetSysColor(COLOR_WINDOWFRAME);
};

}  // namespace propdlg_test
