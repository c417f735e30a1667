#include "owl/region.h"

#include "drawing.h"
#include "owl/brush.h"
#include "scenes.h"

namespace gallery {

namespace {

using owl::TColor;
using owl::TPoint;
using owl::TRect;
using owl::TRegion;

const owl::TBrush& Fill() {
    static const owl::TBrush brush(TColor(160, 200, 255));
    return brush;
}

const owl::TBrush& Edge() {
    static const owl::TBrush brush(TColor::LtBlue);
    return brush;
}

// Fills and frames a region with its upper left corner at a point.
void Draw(owl::TDC& dc, int x, int y, const char* name, TRegion region) {
    region += owl::TSize(x, y);
    dc.FillRgn(region, Fill());
    dc.FrameRgn(region, Edge(), owl::TSize(2, 2));
    Label(dc, x, y + 72, name);
}

TRegion Box() {
    return TRegion(TRect(0, 0, 60, 44));
}

TRegion Round() {
    return TRegion(TRect(22, 16, 90, 68), TRegion::Ellipse);
}

TRegion Star(int fillMode) {
    const TPoint points[] = {{14, 68}, {40, 0}, {66, 68}, {0, 26}, {80, 26}};
    return TRegion(points, 5, fillMode);
}

void DrawCombined(owl::TDC& dc) {
    Draw(dc, 16, 14, "added", Box() |= Round());
    Draw(dc, 126, 14, "in common", Box() &= Round());
    Draw(dc, 236, 14, "taken away", Box() -= Round());
    Draw(dc, 346, 14, "in one alone", Box() ^= Round());
}

// Lines that are seen inside of the region only.
void DrawClipped(owl::TDC& dc, int x, int y) {
    TRegion region = Star(WINDING);
    region += owl::TSize(x, y);
    const int saved = dc.SaveDC();
    dc.SelectClipRgn(region);
    for (int line = 0; line < 70; line += 4) {
        dc.MoveTo(x, y + line);
        dc.LineTo(x + 90, y + line);
    }
    dc.RestoreDC(saved);
    Label(dc, x, y + 72, "clipped to");
}

void DrawInverted(owl::TDC& dc, int x, int y) {
    TRegion region = Round();
    region += owl::TSize(x, y);
    dc.FillRect(TRect(TPoint(x, y), owl::TSize(60, 44)), Edge());
    dc.InvertRgn(region);
    Label(dc, x, y + 72, "inverted");
}

void DrawRegions(owl::TDC& dc) {
    DrawCombined(dc);
    Draw(dc, 16, 114, "ALTERNATE", Star(ALTERNATE));
    Draw(dc, 126, 114, "WINDING", Star(WINDING));
    DrawClipped(dc, 236, 114);
    DrawInverted(dc, 346, 114);
}

}  // namespace

void ShowRegions() {
    ShowDrawing("Regions", owl::TSize(452, 214), &DrawRegions);
}

}  // namespace gallery
