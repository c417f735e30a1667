#include "owl/brush.h"

#include "drawing.h"
#include "owl/bitmap.h"
#include "owl/hatch_brush.h"
#include "scenes.h"

namespace gallery {

namespace {

using owl::TBrush;
using owl::TColor;
using owl::THatch8x8Brush;

// Fills boxes with brushes from left to right, six to a row.
class Samples {
public:
    explicit Samples(owl::TDC& dc) : m_dc(dc) {}

    void Add(const char* name, const TBrush& brush) {
        const int x = 16 + m_count % 6 * 84;
        const int y = 14 + m_count / 6 * 76;
        m_dc.SelectObject(brush);
        m_dc.Rectangle(x, y, x + 68, y + 44);
        m_dc.RestoreBrush();
        Label(m_dc, x, y + 47, name);
        ++m_count;
    }

private:
    owl::TDC& m_dc;
    int m_count = 0;
};

void AddHatched(Samples& samples) {
    samples.Add("HORIZONTAL", TBrush(TColor::LtBlue, HS_HORIZONTAL));
    samples.Add("VERTICAL", TBrush(TColor::LtBlue, HS_VERTICAL));
    samples.Add("FDIAGONAL", TBrush(TColor::LtBlue, HS_FDIAGONAL));
    samples.Add("BDIAGONAL", TBrush(TColor::LtBlue, HS_BDIAGONAL));
    samples.Add("CROSS", TBrush(TColor::LtBlue, HS_CROSS));
    samples.Add("DIAGCROSS", TBrush(TColor::LtBlue, HS_DIAGCROSS));
}

void AddPatterns(Samples& samples) {
    const auto patterned = [](const std::uint8_t* pattern) {
        return THatch8x8Brush(pattern, TColor::LtRed, TColor::LtYellow);
    };
    samples.Add("Hatch11F1", patterned(THatch8x8Brush::Hatch11F1));
    samples.Add("Hatch22F1", patterned(THatch8x8Brush::Hatch22F1));
    samples.Add("Hatch22B1", patterned(THatch8x8Brush::Hatch22B1));
    samples.Add("Hatch13F1", patterned(THatch8x8Brush::Hatch13F1));
    samples.Add("Hatch13B1", patterned(THatch8x8Brush::Hatch13B1));
    // A monochrome bitmap takes the colours of the context.
    const std::uint8_t arrow[] = {0xEF, 0, 0xC7, 0, 0x83, 0, 0xEF, 0, 0xEF, 0, 0xEF, 0, 0xFF, 0, 0xFF, 0};
    samples.Add("a bitmap", TBrush(owl::TBitmap(8, 8, 1, 1, arrow)));
}

void DrawBrushes(owl::TDC& dc) {
    Samples samples(dc);
    samples.Add("red", TBrush(TColor::LtRed));
    samples.Add("orange", TBrush(TColor(255, 160, 64)));
    samples.Add("green", TBrush(TColor::LtGreen));
    samples.Add("grey", TBrush(TColor::LtGray));
    samples.Add("button face", TBrush(TColor::FromSystem(COLOR_BTNFACE)));
    samples.Add("caption", TBrush(TColor::FromSystem(COLOR_ACTIVECAPTION)));
    AddHatched(samples);
    // Between the lines of a hatch the background shows, if the context has one.
    dc.SetBkColor(TColor(255, 240, 160));
    AddHatched(samples);
    dc.SetBkColor(TColor::White);
    AddPatterns(samples);
}

}  // namespace

void ShowBrushes() {
    ShowDrawing("Brushes", owl::TSize(520, 320), &DrawBrushes);
}

}  // namespace gallery
