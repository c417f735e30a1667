#include "owl/dc.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "owl/brush.h"
#include "owl/font.h"
#include "owl/palette.h"
#include "owl/pen.h"
#include "owl/region.h"
#include "surface.h"

namespace {

using owl::TBrush;
using owl::TColor;
using owl::TDC;
using owl::TFont;
using owl::TPen;
using owl::TPoint;
using owl::TRect;
using owl::TRegion;
using owl_test::Surface;

HGDIOBJ Current(const TDC& dc, unsigned int kind) {
    return ::GetCurrentObject(dc, kind);
}

LOGFONT SomeFont() {
    LOGFONT description{};
    description.lfHeight = 20;
    return description;
}

const PALETTEENTRY grey = {128, 128, 128, 0};

TEST(Dc, cannot_be_made_on_nothing) {
    EXPECT_THROW(TDC(HDC(nullptr)), owl::TXGdi);
}

TEST(Dc, wraps_a_context_that_it_leaves_alive) {
    const HDC handle = ::CreateCompatibleDC(nullptr);
    {
        const TDC dc(handle);
        EXPECT_EQ(handle, dc.GetHDC());
        EXPECT_EQ(handle, static_cast<HDC>(dc));
    }
    EXPECT_EQ(DWORD{OBJ_MEMDC}, ::GetObjectType(handle));
    ::DeleteDC(handle);
}

TEST(Dc, restores_the_first_tool_after_many_others) {
    Surface surface(1, 1);
    TDC& dc = surface.dc;
    const HGDIOBJ pen = Current(dc, OBJ_PEN);
    const HGDIOBJ brush = Current(dc, OBJ_BRUSH);
    const HGDIOBJ font = Current(dc, OBJ_FONT);
    const HGDIOBJ palette = Current(dc, OBJ_PAL);
    const TPen pens[] = {TPen(TColor::LtRed), TPen(TColor::LtBlue)};
    const TBrush first(TColor::LtRed), second(TColor::LtBlue);
    const TFont fonts[] = {TFont(SomeFont()), TFont(SomeFont())};
    const owl::TPalette palettes[] = {owl::TPalette(&grey, 1), owl::TPalette(&grey, 1)};
    for (int i = 0; i < 2; ++i) {
        dc.SelectObject(pens[i]);
        dc.SelectObject(i == 0 ? first : second);
        dc.SelectObject(fonts[i]);
        dc.SelectObject(palettes[i]);
        EXPECT_EQ(pens[i].GetHandle(), Current(dc, OBJ_PEN));
        EXPECT_EQ((i == 0 ? first : second).GetHandle(), Current(dc, OBJ_BRUSH));
        EXPECT_EQ(fonts[i].GetHandle(), Current(dc, OBJ_FONT));
        EXPECT_EQ(palettes[i].GetHandle(), Current(dc, OBJ_PAL));
    }
    dc.RestorePen();
    EXPECT_EQ(pen, Current(dc, OBJ_PEN));
    EXPECT_EQ(second.GetHandle(), Current(dc, OBJ_BRUSH));
    dc.RestoreBrush();
    EXPECT_EQ(brush, Current(dc, OBJ_BRUSH));
    EXPECT_EQ(fonts[1].GetHandle(), Current(dc, OBJ_FONT));
    dc.RestoreFont();
    EXPECT_EQ(font, Current(dc, OBJ_FONT));
    EXPECT_EQ(palettes[1].GetHandle(), Current(dc, OBJ_PAL));
    dc.RestorePalette();
    EXPECT_EQ(palette, Current(dc, OBJ_PAL));
}

TEST(Dc, restores_all_tools_at_once_and_can_do_it_again) {
    Surface surface(1, 1);
    TDC& dc = surface.dc;
    const HGDIOBJ pen = Current(dc, OBJ_PEN);
    const HGDIOBJ font = Current(dc, OBJ_FONT);
    const TPen other(TColor::LtRed);
    const TFont otherFont(SomeFont());
    for (int i = 0; i < 2; ++i) {
        dc.SelectObject(other);
        dc.SelectObject(otherFont);
        dc.RestoreObjects();
        EXPECT_EQ(pen, Current(dc, OBJ_PEN));
        EXPECT_EQ(font, Current(dc, OBJ_FONT));
    }
    dc.RestoreObjects();
    dc.RestorePen();
    EXPECT_EQ(pen, Current(dc, OBJ_PEN));
}

TEST(Dc, at_its_end_restores_the_tools_of_a_context_that_stays) {
    const HDC handle = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ pen = ::GetCurrentObject(handle, OBJ_PEN);
    const TPen other(TColor::LtRed);
    {
        TDC dc(handle);
        dc.SelectObject(other);
        EXPECT_EQ(other.GetHandle(), Current(dc, OBJ_PEN));
    }
    EXPECT_EQ(pen, ::GetCurrentObject(handle, OBJ_PEN));
    ::DeleteDC(handle);
}

TEST(Dc, selects_stock_tools_and_knows_their_kind) {
    Surface surface(1, 1);
    TDC& dc = surface.dc;
    const HGDIOBJ pen = Current(dc, OBJ_PEN);
    const HGDIOBJ brush = Current(dc, OBJ_BRUSH);
    dc.SelectStockObject(HOLLOW_BRUSH);
    dc.SelectStockObject(WHITE_PEN);
    dc.SelectStockObject(ANSI_FIXED_FONT);
    EXPECT_EQ(::GetStockObject(HOLLOW_BRUSH), Current(dc, OBJ_BRUSH));
    EXPECT_EQ(::GetStockObject(WHITE_PEN), Current(dc, OBJ_PEN));
    EXPECT_EQ(::GetStockObject(ANSI_FIXED_FONT), Current(dc, OBJ_FONT));
    dc.RestoreObjects();
    EXPECT_EQ(pen, Current(dc, OBJ_PEN));
    EXPECT_EQ(brush, Current(dc, OBJ_BRUSH));
    EXPECT_THROW(dc.SelectStockObject(DEFAULT_PALETTE), owl::TXGdi);
    EXPECT_THROW(dc.SelectStockObject(9999), owl::TXGdi);
}

TEST(Dc, that_failed_to_select_keeps_its_tool) {
    Surface surface(1, 1);
    const HGDIOBJ pen = Current(surface.dc, OBJ_PEN);
    try {
        surface.dc.SelectObject(TPen(HPEN(nullptr)));
        FAIL() << "nothing was thrown";
    } catch (const owl::TXGdi& error) {
        EXPECT_EQ(0u, std::string(error.what()).find("SelectObject: ")) << error.what();
    }
    EXPECT_EQ(pen, Current(surface.dc, OBJ_PEN));
}

TEST(Dc, saves_and_brings_back_its_state) {
    Surface surface(1, 1);
    TDC& dc = surface.dc;
    dc.SetTextColor(TColor::LtRed);
    const int outer = dc.SaveDC();
    EXPECT_NE(0, outer);
    dc.SetTextColor(TColor::LtBlue);
    EXPECT_NE(0, dc.SaveDC());
    dc.SetTextColor(TColor::LtGreen);
    EXPECT_TRUE(dc.RestoreDC());
    EXPECT_EQ(TColor::LtBlue, dc.GetTextColor());
    EXPECT_TRUE(dc.RestoreDC(outer));
    EXPECT_EQ(TColor::LtRed, dc.GetTextColor());
    EXPECT_FALSE(dc.RestoreDC(outer));
}

TEST(Dc, colours_are_set_and_the_ones_before_returned) {
    Surface surface(1, 1);
    TDC& dc = surface.dc;
    EXPECT_EQ(TColor::Black, dc.SetTextColor(TColor(1, 2, 3)));
    EXPECT_EQ(TColor(1, 2, 3), dc.GetTextColor());
    EXPECT_EQ(TColor(1, 2, 3), dc.SetTextColor(TColor::Black));
    EXPECT_EQ(TColor::White, dc.SetBkColor(TColor(4, 5, 6)));
    EXPECT_EQ(TColor(4, 5, 6), dc.GetBkColor());
}

TEST(Dc, modes_are_set_and_the_ones_before_returned) {
    Surface surface(1, 1);
    TDC& dc = surface.dc;
    EXPECT_EQ(OPAQUE, dc.SetBkMode(TRANSPARENT));
    EXPECT_EQ(TRANSPARENT, dc.GetBkMode());
    EXPECT_EQ(R2_COPYPEN, dc.SetROP2(R2_XORPEN));
    EXPECT_EQ(R2_XORPEN, dc.GetROP2());
    EXPECT_EQ(ALTERNATE, dc.SetPolyFillMode(WINDING));
    EXPECT_EQ(WINDING, dc.GetPolyFillMode());
    EXPECT_EQ(BLACKONWHITE, dc.SetStretchBltMode(COLORONCOLOR));
    EXPECT_EQ(COLORONCOLOR, dc.GetStretchBltMode());
    EXPECT_EQ(UINT{TA_LEFT | TA_TOP}, dc.SetTextAlign(TA_CENTER | TA_BASELINE));
    EXPECT_EQ(UINT{TA_CENTER | TA_BASELINE}, dc.GetTextAlign());
}

TEST(Dc, patterns_begin_at_the_brush_origin) {
    Surface surface(4, 1);
    const WORD rows[8] = {0x007F, 0x007F, 0x007F, 0x007F, 0x007F, 0x007F, 0x007F, 0x007F};
    const owl::TBitmap pattern(8, 8, 1, 1, rows);
    const TBrush brush(pattern);
    EXPECT_TRUE(surface.dc.SetBrushOrg(TPoint(2, 0)));
    surface.dc.FillRect(TRect(0, 0, 4, 1), brush);
    EXPECT_EQ("..#.\n", surface.Picture());
}

TEST(Dc, clips_to_a_region_and_to_nothing_again) {
    Surface surface(4, 2);
    const TBrush red(TColor::LtRed), blue(TColor::LtBlue);
    EXPECT_EQ(SIMPLEREGION, surface.dc.SelectClipRgn(TRegion(TRect(1, 0, 3, 1))));
    TRect box;
    EXPECT_EQ(SIMPLEREGION, surface.dc.GetClipBox(box));
    EXPECT_EQ(TRect(1, 0, 3, 1), box);
    surface.dc.FillRect(TRect(0, 0, 4, 2), red);
    EXPECT_EQ(".RR.\n....\n", surface.Picture());
    EXPECT_TRUE(surface.dc.RectVisible(TRect(2, 0, 9, 9)));
    EXPECT_FALSE(surface.dc.RectVisible(TRect(3, 0, 9, 9)));
    surface.dc.SelectClipRgn();
    surface.dc.FillRect(TRect(0, 1, 4, 2), blue);
    EXPECT_EQ(".RR.\nBBBB\n", surface.Picture());
}

TEST(Dc, excludes_and_intersects_rectangles) {
    Surface surface(5, 1);
    const TBrush red(TColor::LtRed);
    EXPECT_EQ(SIMPLEREGION, surface.dc.IntersectClipRect(TRect(0, 0, 4, 1)));
    EXPECT_EQ(COMPLEXREGION, surface.dc.ExcludeClipRect(TRect(1, 0, 2, 1)));
    surface.dc.FillRect(TRect(0, 0, 5, 1), red);
    EXPECT_EQ("R.RR.\n", surface.Picture());
}

TEST(Dc, tells_what_its_device_can) {
    Surface surface(1, 1);
    EXPECT_EQ(DT_RASDISPLAY, surface.dc.GetDeviceCaps(TECHNOLOGY));
    EXPECT_GT(surface.dc.GetDeviceCaps(LOGPIXELSY), 0);
    EXPECT_EQ(0, surface.dc.GetDeviceCaps(9999));
}

TEST(Dc, is_not_copied) {
    EXPECT_FALSE(std::is_copy_constructible_v<TDC>);
    EXPECT_FALSE(std::is_copy_assignable_v<TDC>);
}

}  // namespace
