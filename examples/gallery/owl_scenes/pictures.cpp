#include <cmath>
#include <numbers>

#include "drawing.h"
#include "owl/bitmap.h"
#include "owl/dib.h"
#include "owl/memory_dc.h"
#include "scenes.h"

namespace gallery {

namespace {

using owl::TColor;
using owl::TPoint;
using owl::TRect;
using owl::TSize;

constexpr TSize picture_size(64, 48);

bool IsLetter(int x, int y) {
    const bool stem = x >= 22 && x < 29 && y >= 8 && y < 40;
    const bool arms = x >= 22 && ((x < 46 && y >= 8 && y < 15) || (x < 40 && y >= 21 && y < 28));
    return stem || arms;
}

// A letter F, which looks different however it is turned, on colours that tell the corners apart.
owl::TDib Picture() {
    owl::TDib picture(picture_size.cx, picture_size.cy, 24);
    for (int y = 0; y < picture_size.cy; ++y) {
        for (int x = 0; x < picture_size.cx; ++x)
            picture.SetPixel(x, y,
                             IsLetter(x, y) ? TColor::Black : TColor(255 - x * 2, 128 + y * 2, 64 + x * 3));
    }
    return picture;
}

void Draw(owl::TDC& dc, const owl::TDib& picture, const TRect& dest) {
    dc.StretchDIBits(dest, TRect(TPoint(), picture_size), picture.GetBits(), picture.GetInfo());
}

// The transform that has the picture's middle at (`x`, `y`).
XFORM Around(double x, double y, double m11, double m12, double m21, double m22) {
    const double dx = picture_size.cx / 2.0;
    const double dy = picture_size.cy / 2.0;
    return {static_cast<FLOAT>(m11),
            static_cast<FLOAT>(m12),
            static_cast<FLOAT>(m21),
            static_cast<FLOAT>(m22),
            static_cast<FLOAT>(x - dx * m11 - dy * m21),
            static_cast<FLOAT>(y - dx * m12 - dy * m22)};
}

XFORM Turned(double x, double y, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return Around(x, y, std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle));
}

void DrawThrough(owl::TDC& dc, const XFORM& transform, const owl::TDib& picture) {
    const int saved = dc.SaveDC();
    dc.SetGraphicsMode(GM_ADVANCED);
    dc.SetWorldTransform(transform);
    Draw(dc, picture, TRect(TPoint(), picture_size));
    dc.RestoreDC(saved);
}

void DrawStraight(owl::TDC& dc, const owl::TDib& picture) {
    Draw(dc, picture, TRect(TPoint(16, 16), picture_size));
    Label(dc, 16, 118, "as it is");
    Draw(dc, picture, TRect(100, 16, 228, 112));
    Label(dc, 100, 118, "stretched");
    Draw(dc, picture, TRect(308, 16, 244, 64));
    Label(dc, 244, 118, "mirrored");
    Draw(dc, picture, TRect(328, 64, 392, 16));
    Label(dc, 328, 118, "upside down");
}

void DrawTurned(owl::TDC& dc, const owl::TDib& picture) {
    const int angles[] = {30, 90, 180, -135};
    for (int i = 0; i < 4; ++i) {
        const int x = 56 + i * 88;
        DrawThrough(dc, Turned(x, 180, angles[i]), picture);
        Label(dc, x - 16, 224, std::to_string(angles[i]) + " degrees");
    }
    DrawThrough(dc, Around(420, 180, 1, 0, -0.5, 1), picture);
    Label(dc, 400, 224, "sheared");
}

// A bitmap of the screen's own kind.
void DrawBitmap(owl::TDC& dc, const owl::TDib& picture) {
    const owl::TBitmap bitmap(picture);
    owl::TMemoryDC source;
    source.SelectObject(bitmap);
    dc.BitBlt(TRect(TPoint(408, 16), picture_size), source, TPoint(), NOTSRCCOPY);
    Label(dc, 408, 118, "inverted");
}

void DrawPictures(owl::TDC& dc) {
    const owl::TDib picture = Picture();
    DrawStraight(dc, picture);
    DrawBitmap(dc, picture);
    DrawTurned(dc, picture);
}

}  // namespace

void ShowPictures() {
    ShowDrawing("Pictures", TSize(490, 250), &DrawPictures);
}

}  // namespace gallery
