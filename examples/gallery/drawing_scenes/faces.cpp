#include <algorithm>
#include <memory>

#include "context_device.h"
#include "drawing.h"
#include "lvx/drawing/my_font.h"
#include "lvx/drawing/port.h"
#include "lvx/drawing/region.h"
#include "lvx/drawing/stock_tools.h"
#include "scenes.h"

namespace gallery {

namespace {

struct Free {
    void operator()(LVXFont* font) const { font->free(); }
};

constexpr const char* faces_of_every_prefix[] = {"Arial",
                                                 "Courier New",
                                                 "Helvetica",
                                                 "Liberation Mono",
                                                 "Liberation Sans",
                                                 "Liberation Sans Narrow",
                                                 "Liberation Serif",
                                                 "Tahoma",
                                                 "Times New Roman"};

/// The faces that there are, of those that the pictures of other machines have too, in their own letters.
void WriteFaces(LVX::Port& port) {
    std::vector<std::string> available;
    myFont::faces_available(available);
    int place = 0;
    for (const char* const face : faces_of_every_prefix) {
        if (!std::binary_search(available.begin(), available.end(), face))
            continue;
        const myFont description(face, 13, false, place % 3 == 1, false, false);
        const std::unique_ptr<LVXFont, Free> font(description.make_font());
        port.useFont(font.get());
        port.wrtText(face, 16 + place / 5 * 230, 12 + place % 5 * 26);
        ++place;
    }
}

void DrawStockTools(LVX::Port& port) {
    LVXPen* const pens[] = {brushes_etc::GetAPen(), brushes_etc::GetRedPen(), brushes_etc::GetCyanPen(),
                            brushes_etc::GetWhitePen()};
    LVXRectangle ground(RectSize, 16, 156, 440, 40);
    port.useBrush(brushes_etc::GetVeryLightBrush());
    port.fillRegion(&ground, false);
    port.useBrush(brushes_etc::GetLightGrayBrush());
    int x = 26;
    for (LVXPen* const pen : pens) {
        LVXRectangle box(RectSize, x, 164, 50, 24);
        port.usePen(pen);
        port.fillRegion(&box, true);
        x += 60;
    }
    port.usePen(nullptr);
    port.useFont(brushes_etc::GetSysFont());
    port.wrtText("the stock tools", x + 10, 168);
    port.useBrush(nullptr);
    port.useFont(nullptr);
}

void DrawFaces(owl::TDC& dc) {
    ContextDevice device(dc);
    LVX::Port port(device);
    port.Open();
    WriteFaces(port);
    DrawStockTools(port);
}

}  // namespace

void ShowFaces() {
    ShowDrawing("Faces and stock tools", owl::TSize(472, 212), &DrawFaces);
}

}  // namespace gallery
