#include <string>

#include "context_device.h"
#include "drawing.h"
#include "lvx/drawing/port.h"
#include "lvx/drawing/region.h"
#include "owl/bitmap.h"
#include "owl/brush.h"
#include "owl/memory_dc.h"
#include "scenes.h"

namespace gallery {

namespace {

constexpr const char* rules[] = {"Black",      "NotMergePen", "MaskNotPen", "NotCopyPen",
                                 "MaskPenNot", "Not",         "XorPen",     "NotMaskPen",
                                 "MaskPen",    "NotXorPen",   "Nop",        "MergeNotPen",
                                 "CopyPen",    "MergePenNot", "MergePen",   "White"};

/// Shades from black to green and from left to right to red.
owl::TBitmap Shades(const owl::TDC& like) {
    constexpr int size = 32;
    owl::TBitmap bitmap(like, size, size);
    owl::TMemoryDC dc(like);
    dc.SelectObject(bitmap);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x)
            dc.SetPixel(x, y, owl::TColor(x * 8, y * 8, 0));
    }
    return bitmap;
}

void DrawCell(LVX::Port& port, owl::TBitmap& bitmap, int rule, int x, int y) {
    LVXBrush ground(LVX::Yellow);
    LVXPen pen(5, LineSolid, LVX::Red);
    LVXBrush brush(owl::TColor(0, 160, 80));
    LVXRectangle left(RectSize, x, y, 50, 64);
    LVXRectangle right(RectSize, x + 50, y, 50, 64);
    LVXEllipse ellipse(RectSize, x + 6, y + 6, 52, 52);
    port.useBrush(&ground);
    port.rule(RuleCopyPen);
    port.fillRegion(&left, false);
    ground.foreground(owl::TColor(60, 60, 200));
    port.fillRegion(&right, false);
    port.usePen(&pen);
    port.useBrush(&brush);
    port.rule(RasterRule(rule));
    port.fillRegion(&ellipse, true);
    port.moveTo(x + 4, y + 60);
    port.lineTo(x + 96, y + 44);
    port.drawBitMap(&bitmap, x + 62, y + 8);
    Label(*port.GetDC(), x, y + 67, std::to_string(rule) + " " + rules[rule - 1]);
}

void DrawRules(owl::TDC& dc) {
    ContextDevice device(dc);
    LVX::Port port(device);
    owl::TBitmap bitmap = Shades(dc);
    port.Open();
    for (int rule = RuleBlack; rule <= RuleWhite; ++rule)
        DrawCell(port, bitmap, rule, 16 + (rule - 1) % 4 * 116, 14 + (rule - 1) / 4 * 94);
}

}  // namespace

void ShowRules() {
    ShowDrawing("Rules", owl::TSize(480, 390), &DrawRules);
}

}  // namespace gallery
