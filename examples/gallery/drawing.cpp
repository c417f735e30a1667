#include "drawing.h"

#include "gallery.h"
#include "owl/application.h"
#include "owl/font.h"
#include "owl/frame_window.h"

namespace gallery {

namespace {

class Drawing : public owl::TWindow {
public:
    Drawing(const owl::TSize& size, void (*draw)(owl::TDC& dc))
        : TWindow(static_cast<owl::TWindow*>(nullptr)), m_draw(draw) {
        Attr.W = size.cx;
        Attr.H = size.cy;
    }
    void Paint(owl::TDC& dc, bool, owl::TRect&) override { m_draw(dc); }

private:
    void (*m_draw)(owl::TDC& dc);
};

}  // namespace

void ShowDrawing(const char* title, const owl::TSize& size, void (*draw)(owl::TDC& dc)) {
    owl::TApplication application("gallery");
    application.SetMainWindow(new owl::TFrameWindow(nullptr, title, new Drawing(size, draw), true));
    PoseWhenInFront(title);
    application.Run();
}

void Label(owl::TDC& dc, int x, int y, const std::string& text) {
    const int saved = dc.SaveDC();
    dc.SelectStockObject(DEFAULT_GUI_FONT);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(owl::TColor::Black);
    dc.TextOut(x, y, text);
    dc.RestoreDC(saved);
}

}  // namespace gallery
