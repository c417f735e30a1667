#include "owl/pen.h"

#include "drawing.h"
#include "owl/brush.h"
#include "scenes.h"

namespace gallery {

namespace {

struct Style {
    const char* name;
    int value;
};

constexpr Style styles[] = {
    {"PS_SOLID", PS_SOLID},
    {"PS_DASH", PS_DASH},
    {"PS_DOT", PS_DOT},
    {"PS_DASHDOT", PS_DASHDOT},
    {"PS_DASHDOTDOT", PS_DASHDOTDOT},
    {"PS_INSIDEFRAME", PS_INSIDEFRAME},
    {"PS_NULL", PS_NULL},
};

constexpr int widths[] = {0, 1, 2, 3, 5, 8, 12};

constexpr owl::TColor colours[] = {
    owl::TColor::Black,   owl::TColor::Gray,   owl::TColor::LtGray,    owl::TColor::LtRed,
    owl::TColor::LtGreen, owl::TColor::LtBlue, owl::TColor::LtMagenta,
};

void DrawLine(owl::TDC& dc, const owl::TPen& pen, int x, int y, int length) {
    dc.SelectObject(pen);
    dc.MoveTo(x, y);
    dc.LineTo(x + length, y);
    dc.RestorePen();
}

void DrawLines(owl::TDC& dc) {
    for (int i = 0; i < 7; ++i) {
        const int y = 20 + i * 24;
        Label(dc, 16, y - 7, styles[i].name);
        DrawLine(dc, owl::TPen(owl::TColor::LtBlue, 1, styles[i].value), 116, y, 100);
        Label(dc, 240, y - 7, std::to_string(widths[i]));
        DrawLine(dc, owl::TPen(owl::TColor::Black, widths[i]), 270, y, 100);
        DrawLine(dc, owl::TPen(colours[i], 4), 390, y, 60);
    }
}

// The outline of a shape is drawn by the pen; that of a frame style stays within the shape.
void DrawShapes(owl::TDC& dc) {
    const owl::TPen red(owl::TColor::LtRed, 8);
    const owl::TPen inside(owl::TColor::LtRed, 8, PS_INSIDEFRAME);
    const owl::TPen dots(owl::TColor::Black, 1, PS_DOT);
    const owl::TPoint star[] = {{390, 262}, {405, 196}, {420, 262}, {372, 222}, {438, 222}};
    dc.SelectStockObject(HOLLOW_BRUSH);
    dc.SelectObject(red);
    dc.Rectangle(20, 200, 110, 260);
    dc.SelectObject(inside);
    dc.Rectangle(140, 200, 230, 260);
    dc.SelectObject(dots);
    dc.SetBkMode(TRANSPARENT);
    dc.Rectangle(20, 200, 110, 260);
    dc.Rectangle(140, 200, 230, 260);
    dc.Ellipse(260, 200, 350, 260);
    dc.Polygon(star, 5);
    dc.RestorePen();
}

void DrawPens(owl::TDC& dc) {
    DrawLines(dc);
    DrawShapes(dc);
}

}  // namespace

void ShowPens() {
    ShowDrawing("Pens", owl::TSize(470, 280), &DrawPens);
}

}  // namespace gallery
