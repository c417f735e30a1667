// Painting a window.
#include "owl/window.h"
#include "owl/window_dc.h"

namespace owl {

// A control of the system paints itself; a window of a class of ours is painted by its object.
void TWindow::EvPaint() {
    if (m_classProcedure != nullptr)
        DefaultProcessing();
    else
        PaintByObject();
}

void TWindow::PaintByObject() {
    TPaintDC dc(m_handle);
    TRect rect = dc.GetPaintRect();
    Paint(dc, dc.MustErase(), rect);
}

}  // namespace owl
