// Lines, bitmaps and shapes on a port. What the system refuses is not drawn, and not told.
#include "lvx/drawing/port.h"
#include "lvx/drawing/raster_operation.h"
#include "lvx/drawing/region.h"
#include "owl/bitmap.h"
#include "owl/brush.h"
#include "owl/memory_dc.h"

namespace LVX {
namespace {

template <class Draw>
void quietly(const Draw& draw) {
    try {
        draw();
    } catch (const owl::TXGdi&) {
        // A colour that the system has no brush for, a bitmap that is selected elsewhere.
    }
}

/// Selects the port's pen and brush again at the end of a scope.
class ToolsAgain {
public:
    explicit ToolsAgain(Port& port) : m_port(port) {}
    ToolsAgain(const ToolsAgain&) = delete;
    ToolsAgain& operator=(const ToolsAgain&) = delete;
    ~ToolsAgain() {
        quietly([this] {
            m_port.usePen(m_port.currentPen());
            m_port.useBrush(m_port.currentBrush());
        });
    }

private:
    Port& m_port;
};

owl::TRect edges(const LVXRectangle& rectangle) {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    rectangle.get(RectCorners, &left, &top, &right, &bottom);
    return owl::TRect(left, top, right, bottom);
}

}  // namespace

void Port::drawBitMap(owl::TBitmap* bitmap, int x, int y) {
    if (!IsOpen() || bitmap == nullptr) {
        return;
    }
    quietly([&] {
        owl::TMemoryDC source(*m_dc);
        source.SelectObject(*bitmap);
        owl::TSize size;
        bitmap->GetBitmapDimension(size);
        m_dc->BitBlt(owl::TRect(owl::TPoint(x, y), size), source, owl::TPoint(),
                     lvx::drawing::raster_operation(m_rule));
    });
}

void Port::drawBitMap(const owl::TBitmap& bitmap, const LVXRectangle& dest, const LVXRectangle& src) {
    if (!IsOpen()) {
        return;
    }
    quietly([&] {
        owl::TMemoryDC source(*m_dc);
        source.SelectObject(bitmap);
        m_dc->SetStretchBltMode(COLORONCOLOR);
        m_dc->StretchBlt(edges(dest), source, edges(src), lvx::drawing::raster_operation(m_rule));
    });
}

void Port::lineTo(int x, int y) {
    if (IsOpen()) {
        m_dc->LineTo(x, y);
    }
}

void Port::moveTo(int x, int y) {
    if (IsOpen()) {
        m_dc->MoveTo(x, y);
    }
}

void Port::eraseRegion(LVXRegion* region) {
    if (!IsOpen() || region == nullptr) {
        return;
    }
    quietly([&] {
        const LVXBrush background(m_brush->background());
        const ToolsAgain again(*this);
        m_dc->SelectObject(static_cast<const owl::TBrush&>(background));
        region->Fill(*m_dc, *m_pen, background, false);
    });
}

void Port::fillRegion(LVXRegion* region, bool withFrame) {
    if (!IsOpen() || region == nullptr) {
        return;
    }
    const ToolsAgain again(*this);
    quietly([&] { region->Fill(*m_dc, *m_pen, *m_brush, withFrame); });
}

void Port::frameRegion(LVXRegion* region) {
    if (!IsOpen() || region == nullptr) {
        return;
    }
    const ToolsAgain again(*this);
    quietly([&] { region->Frame(*m_dc, *m_pen); });
}

void Port::invertRegion(LVXRegion* region) {
    if (!IsOpen() || region == nullptr) {
        return;
    }
    const ToolsAgain again(*this);
    quietly([&] { region->Invert(*m_dc); });
}

}  // namespace LVX
