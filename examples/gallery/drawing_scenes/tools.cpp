#include <string>

#include "context_device.h"
#include "drawing.h"
#include "lvx/drawing/port.h"
#include "lvx/drawing/region.h"
#include "scenes.h"

namespace gallery {

namespace {

constexpr const char* lines[] = {"LineSolid",      "LineDash", "LineDot",        "LineDashDot",
                                 "LineDashDotDot", "LineNull", "LineInsideFrame"};

constexpr int widths[] = {1, 2, 3, 4, 6, 8, 12};

constexpr const char* patterns[] = {
    "Background", "Foreground",      "DarkGrey",         "LightGrey", "Grey",         "Horizontal",
    "Vertical",   "ForwardDiagonal", "BackwardDiagonal", "Cross",     "DiagonalCross"};

void DrawLine(LVX::Port& port, int x, int y) {
    port.moveTo(x, y);
    port.lineTo(x + 100, y);
}

void DrawLines(LVX::Port& port) {
    LVXPen pen;
    LVXBrush brush(FillForeground, LVX::Black, LVX::Yellow);
    port.usePen(&pen);
    port.useBrush(&brush);
    for (int i = 0; i < 7; ++i) {
        const int y = 22 + i * 22;
        Label(*port.GetDC(), 16, y - 7, lines[i]);
        pen = LVXPen(1, LineType(i), LVX::Blue);
        DrawLine(port, 116, y);
        // The gaps in the background of the brush.
        port.enableBkColour(true);
        DrawLine(port, 232, y);
        port.enableBkColour(false);
        pen = LVXPen(widths[i], LineSolid, LVX::Red);
        DrawLine(port, 344, y);
        Label(*port.GetDC(), 454, y - 7, std::to_string(widths[i]));
    }
}

void DrawPatterns(LVX::Port& port) {
    LVXBrush brush;
    port.useBrush(&brush);
    for (int i = 0; i < 11; ++i) {
        const int x = 16 + i % 4 * 112;
        const int y = 188 + i / 4 * 70;
        brush = LVXBrush(FillPattern(i), LVX::Red, LVX::Yellow);
        LVXRectangle without(RectSize, x, y, 46, 44);
        LVXRectangle with(RectSize, x + 50, y, 46, 44);
        port.fillRegion(&without, true);
        port.enableBkColour(true);
        port.fillRegion(&with, true);
        port.enableBkColour(false);
        Label(*port.GetDC(), x, y + 47, patterns[i]);
    }
}

void DrawTools(owl::TDC& dc) {
    ContextDevice device(dc);
    LVX::Port port(device);
    port.Open();
    DrawLines(port);
    DrawPatterns(port);
}

}  // namespace

void ShowTools() {
    ShowDrawing("Tools", owl::TSize(476, 400), &DrawTools);
}

}  // namespace gallery
