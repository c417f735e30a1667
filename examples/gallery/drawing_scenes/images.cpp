#include <windows.h>

#include <cmath>
#include <cstring>
#include <numbers>
#include <string>

#include "drawing.h"
#include "lvx/drawing/region.h"
#include "lvx/images/dibitmap.h"
#include "scenes.h"

namespace gallery {

namespace {

using LVXUtilities::DIBitmap;
using owl::TPoint;
using owl::TRect;
using owl::TSize;

constexpr TSize shown(110, 82);

DIBitmap Photo() {
    return DIBitmap(LVX_SAMPLE_PICTURES "/testorig.jpg", DIBitmap::JPEG);
}

TRect All(const DIBitmap& picture) {
    return TRect(TPoint(), picture.GetSize());
}

void DrawUpright(owl::TDC& dc, const DIBitmap& photo) {
    photo.StretchDIBits(dc, TRect(TPoint(16, 16), shown), All(photo), SRCCOPY, nullptr);
    Label(dc, 16, 104, "stretched");
    photo.StretchDIBits(dc, TRect(TPoint(142, 16), shown), All(photo), NOTSRCCOPY, nullptr);
    Label(dc, 142, 104, "inverted");
}

void DrawClipped(owl::TDC& dc, const DIBitmap& photo) {
    LVXEllipse shape(RectSize, 268, 16, shown.cx, shown.cy);
    shape.GetRegion();
    photo.StretchDIBits(dc, TRect(TPoint(268, 16), shown), All(photo), SRCCOPY, &shape);
    shape.UngetRegion();
    Label(dc, 268, 104, "clipped to a shape");
}

/// 32 bits of one colour, of which each pixel is the more opaque the further right it is.
DIBitmap Veil(int width, int height) {
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = width;
    header.biHeight = height;
    header.biPlanes = 1;
    header.biBitCount = 32;
    const std::size_t pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    const HGLOBAL block = ::GlobalAlloc(GHND, sizeof header + pixels * 4);
    auto* const start = static_cast<unsigned char*>(::GlobalLock(block));
    std::memcpy(start, &header, sizeof header);
    for (std::size_t i = 0; i < pixels; ++i) {
        const auto opacity = static_cast<unsigned char>(i % static_cast<std::size_t>(width) * 255 /
                                                        static_cast<std::size_t>(width - 1));
        // Blue alone, multiplied by the opacity.
        const unsigned char pixel[4] = {opacity, 0, 0, opacity};
        std::memcpy(start + sizeof header + i * 4, pixel, sizeof pixel);
    }
    ::GlobalUnlock(block);
    return DIBitmap(block, DIBitmap::Adopt);
}

void DrawBlended(owl::TDC& dc, const DIBitmap& photo) {
    const TRect place(TPoint(394, 16), shown);
    photo.StretchDIBits(dc, place, All(photo), SRCCOPY, nullptr);
    Veil(64, 8).AlphaBlend(dc, place, TRect(0, 0, 64, 8));
    Label(dc, 394, 104, "under a veil");
}

void DrawTurned(owl::TDC& dc, const DIBitmap& photo) {
    const int angles[] = {30, 90, -20};
    const TPoint corners[] = {TPoint(24, 212), TPoint(180, 256), TPoint(330, 140)};
    for (int i = 0; i < 3; ++i) {
        const double angle = angles[i] * std::numbers::pi / 180;
        photo.StretchDIBits(dc, TRect(corners[i], shown), All(photo), std::cos(angle), std::sin(angle),
                            SRCCOPY, nullptr);
        Label(dc, 24 + i * 146, 304, "turned by " + std::to_string(angles[i]) + " degrees");
    }
}

void DrawImages(owl::TDC& dc) {
    const DIBitmap photo = Photo();
    dc.SetStretchBltMode(COLORONCOLOR);
    DrawUpright(dc, photo);
    DrawClipped(dc, photo);
    DrawBlended(dc, photo);
    DrawTurned(dc, photo);
}

}  // namespace

void ShowImages() {
    ShowDrawing("Images", TSize(520, 330), &DrawImages);
}

}  // namespace gallery
