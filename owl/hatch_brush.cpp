#include "owl/hatch_brush.h"

#include "owl/last_error.h"

namespace owl {
namespace {

/// The pattern as the system takes it: a picture of one bit a pixel, the lowest row first, each row filled to
/// 4 bytes.
struct PatternPicture {
    BITMAPINFOHEADER header;
    RGBQUAD colours[2];
    std::uint8_t rows[8][4];
};

RGBQUAD Quad(TColor color) {
    return {static_cast<BYTE>(color.Blue()), static_cast<BYTE>(color.Green()), static_cast<BYTE>(color.Red()),
            0};
}

HBRUSH MakeHatch(const std::uint8_t hatch[8], TColor foreground, TColor background) {
    PatternPicture picture{};
    picture.header.biSize = sizeof picture.header;
    picture.header.biWidth = 8;
    picture.header.biHeight = 8;
    picture.header.biPlanes = 1;
    picture.header.biBitCount = 1;
    picture.colours[0] = Quad(background);
    picture.colours[1] = Quad(foreground);
    for (int row = 0; row < 8; ++row)
        picture.rows[7 - row][0] = hatch[row];
    return Require<TXGdi>("CreateDIBPatternBrushPt",
                          [&] { return ::CreateDIBPatternBrushPt(&picture, DIB_RGB_COLORS); });
}

}  // namespace

const std::uint8_t THatch8x8Brush::Hatch11F1[8] = {0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55};
const std::uint8_t THatch8x8Brush::Hatch22F1[8] = {0xCC, 0x66, 0x33, 0x99, 0xCC, 0x66, 0x33, 0x99};
const std::uint8_t THatch8x8Brush::Hatch22B1[8] = {0xCC, 0x99, 0x33, 0x66, 0xCC, 0x99, 0x33, 0x66};
const std::uint8_t THatch8x8Brush::Hatch13F1[8] = {0x88, 0x44, 0x22, 0x11, 0x88, 0x44, 0x22, 0x11};
const std::uint8_t THatch8x8Brush::Hatch13B1[8] = {0x88, 0x11, 0x22, 0x44, 0x88, 0x11, 0x22, 0x44};

THatch8x8Brush::THatch8x8Brush(const std::uint8_t hatch[8], TColor foreground, TColor background)
    : TBrush(MakeHatch(hatch, foreground, background), AutoDelete) {}

THatch8x8Brush::~THatch8x8Brush() = default;

void THatch8x8Brush::Reconstruct(const std::uint8_t hatch[8], TColor foreground, TColor background) {
    Replace(MakeHatch(hatch, foreground, background));
}

}  // namespace owl
