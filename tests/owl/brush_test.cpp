#include "owl/brush.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "surface.h"

namespace {

using owl::TBitmap;
using owl::TBrush;
using owl::TColor;
using owl::TRect;
using owl_test::Surface;

LOGBRUSH Description(const TBrush& brush) {
    LOGBRUSH description;
    EXPECT_TRUE(brush.GetObject(description));
    return description;
}

TEST(Brush, of_a_colour_is_solid) {
    for (const LOGBRUSH& description :
         {Description(TBrush(TColor(1, 2, 3))), Description(TBrush(TColor(1, 2, 3), true)),
          Description(TBrush(TColor(1, 2, 3), false))}) {
        EXPECT_EQ(UINT{BS_SOLID}, description.lbStyle);
        EXPECT_EQ(COLORREF{0x030201}, description.lbColor);
    }
}

TEST(Brush, that_is_pure_keeps_a_colour_that_names_a_palette) {
    EXPECT_EQ(COLORREF{0x02030201}, Description(TBrush(TColor(1, 2, 3).PaletteRelative(), true)).lbColor);
    EXPECT_EQ(COLORREF{0x01000007}, Description(TBrush(TColor::PaletteIndex(7), true)).lbColor);
}

TEST(Brush, hatched_has_its_style) {
    for (const int hatch : {HS_HORIZONTAL, HS_VERTICAL, HS_FDIAGONAL, HS_BDIAGONAL, HS_CROSS, HS_DIAGCROSS}) {
        const LOGBRUSH description = Description(TBrush(TColor::LtRed, hatch));
        EXPECT_EQ(UINT{BS_HATCHED}, description.lbStyle);
        EXPECT_EQ(static_cast<ULONG_PTR>(hatch), description.lbHatch);
        EXPECT_EQ(TColor::LtRed, TColor(description.lbColor));
    }
}

TEST(Brush, hatched_lets_the_background_colour_show_between_its_lines) {
    Surface surface(8, 8);
    surface.dc.SetBkColor(TColor::LtGreen);
    const TBrush brush(TColor::LtRed, HS_VERTICAL);
    surface.dc.FillRect(TRect(0, 0, 8, 8), brush);
    const std::string picture = surface.Picture();
    EXPECT_EQ(8, std::count(picture.begin(), picture.end(), 'R')) << picture;
    EXPECT_EQ(56, std::count(picture.begin(), picture.end(), 'G')) << picture;
}

TEST(Brush, solid_fills_in_its_colour) {
    Surface surface(2, 2);
    const TBrush brush(TColor::LtCyan, true);
    surface.dc.FillRect(TRect(0, 0, 2, 1), brush);
    EXPECT_EQ("CC\n..\n", surface.Picture());
}

// What a host that fills with "transparent" gets.
TEST(Brush, of_the_transparent_colour_is_white) {
    Surface surface(2, 2);
    surface.dc.PatBlt(0, 0, 2, 2, BLACKNESS);
    const TBrush brush(TColor::Transparent, true);
    surface.dc.FillRect(TRect(0, 0, 2, 1), brush);
    EXPECT_EQ("..\n##\n", surface.Picture());
}

TEST(Brush, of_a_pattern_repeats_it_and_needs_it_no_more) {
    Surface surface(16, 16);
    const TBrush* brush = nullptr;
    {
        Surface pattern(8, 8);
        pattern.dc.SetPixel(1, 0, TColor::LtRed);
        pattern.dc.SetPixel(0, 7, TColor::LtBlue);
        pattern.dc.RestoreBitmap();
        brush = new TBrush(pattern.bitmap);
    }
    surface.dc.FillRect(TRect(0, 0, 16, 16), *brush);
    delete brush;
    for (const int x : {0, 8}) {
        for (const int y : {0, 8}) {
            EXPECT_EQ(TColor::LtRed, TColor(surface.At(x + 1, y)));
            EXPECT_EQ(TColor::LtBlue, TColor(surface.At(x, y + 7)));
            EXPECT_EQ(TColor::White, TColor(surface.At(x, y)));
        }
    }
}

TEST(Brush, of_a_monochrome_pattern_takes_the_colours_of_the_context) {
    Surface surface(8, 1);
    const WORD rows[8] = {0x00F0, 0x00F0, 0x00F0, 0x00F0, 0x00F0, 0x00F0, 0x00F0, 0x00F0};
    const TBitmap pattern(8, 8, 1, 1, rows);
    const TBrush brush(pattern);
    surface.dc.SetTextColor(TColor::LtRed);
    surface.dc.SetBkColor(TColor::LtBlue);
    surface.dc.FillRect(TRect(0, 0, 8, 1), brush);
    EXPECT_EQ("BBBBRRRR\n", surface.Picture());
}

TEST(Brush, on_a_null_handle_describes_nothing_and_cannot_be_selected) {
    const TBrush brush(HBRUSH(nullptr));
    LOGBRUSH description;
    EXPECT_FALSE(brush.GetObject(description));
    Surface surface(1, 1);
    EXPECT_THROW(surface.dc.SelectObject(brush), owl::TXGdi);
}

TEST(Brush, of_a_bitmap_without_a_handle_throws) {
    EXPECT_THROW(TBrush(TBitmap(HBITMAP(nullptr))), owl::TXGdi);
}

TEST(Brush, leaves_nothing_behind) {
    const TBitmap pattern(8, 8, 1, 1, nullptr);
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        const TBrush solid(TColor(i, 2, 3), true);
        const TBrush hatched(TColor::LtRed, HS_CROSS);
        const TBrush patterned(pattern);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
