#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "owl/brush.h"
#include "owl/dc.h"
#include "owl/pen.h"
#include "owl/region.h"
#include "surface.h"

namespace {

using owl::TBrush;
using owl::TColor;
using owl::TPen;
using owl::TPoint;
using owl::TRect;
using owl::TRegion;
using owl::TSize;
using owl_test::Surface;

/// A surface with a red pen and a blue brush.
class DcDraw : public testing::Test {
protected:
    DcDraw() {
        surface.dc.SelectObject(m_pen);
        surface.dc.SelectObject(m_brush);
    }
    ~DcDraw() override { surface.dc.RestoreObjects(); }

private:
    TPen m_pen{TColor::LtRed};
    TBrush m_brush{TColor::LtBlue, true};

protected:
    Surface surface{5, 5};
};

TEST_F(DcDraw, a_line_ends_before_its_last_point_and_moves_there) {
    EXPECT_TRUE(surface.dc.MoveTo(TPoint(1, 1)));
    EXPECT_TRUE(surface.dc.LineTo(TPoint(4, 1)));
    EXPECT_EQ(TPoint(4, 1), surface.dc.GetCurrentPosition());
    EXPECT_TRUE(surface.dc.LineTo(4, 4));
    EXPECT_EQ(".....\n.RRRR\n....R\n....R\n.....\n", surface.Picture());
}

TEST_F(DcDraw, a_polyline_stays_open) {
    const TPoint points[] = {TPoint(0, 0), TPoint(3, 0), TPoint(3, 3)};
    EXPECT_TRUE(surface.dc.Polyline(points, 3));
    EXPECT_EQ("RRRR.\n...R.\n...R.\n.....\n.....\n", surface.Picture());
}

TEST_F(DcDraw, a_polygon_is_closed_and_filled) {
    const TPoint points[] = {TPoint(0, 0), TPoint(3, 0), TPoint(3, 3), TPoint(0, 3)};
    EXPECT_TRUE(surface.dc.Polygon(points, 4));
    EXPECT_EQ("RRRR.\nRBBR.\nRBBR.\nRRRR.\n.....\n", surface.Picture());
}

TEST_F(DcDraw, fewer_than_two_points_draw_nothing) {
    const TPoint points[] = {TPoint(0, 0)};
    EXPECT_FALSE(surface.dc.Polyline(points, 1));
    EXPECT_FALSE(surface.dc.Polyline(points, 0));
    EXPECT_FALSE(surface.dc.Polygon(points, 1));
    EXPECT_FALSE(surface.dc.Polygon(points, -1));
    EXPECT_FALSE(surface.dc.Polygon(nullptr, 4));
    EXPECT_FALSE(surface.dc.Polyline(nullptr, 4));
    EXPECT_EQ(".....\n.....\n.....\n.....\n.....\n", surface.Picture());
}

TEST_F(DcDraw, a_rectangle_has_an_outline_and_an_inside) {
    EXPECT_TRUE(surface.dc.Rectangle(TRect(0, 0, 4, 3)));
    EXPECT_EQ("RRRR.\nRBBR.\nRRRR.\n.....\n.....\n", surface.Picture());
    EXPECT_TRUE(surface.dc.Rectangle(2, 2, 5, 5));
    EXPECT_EQ("RRRR.\nRBBR.\nRRRRR\n..RBR\n..RRR\n", surface.Picture());
}

TEST_F(DcDraw, an_ellipse_has_its_middle_and_not_its_corners) {
    EXPECT_TRUE(surface.dc.Ellipse(TRect(0, 0, 5, 5)));
    EXPECT_EQ(TColor::LtBlue, TColor(surface.At(2, 2)));
    EXPECT_EQ(TColor::LtRed, TColor(surface.At(2, 0)));
    EXPECT_EQ(TColor::LtRed, TColor(surface.At(0, 2)));
    for (const int x : {0, 4}) {
        for (const int y : {0, 4})
            EXPECT_EQ(TColor::White, TColor(surface.At(x, y)));
    }
    surface.dc.PatBlt(0, 0, 5, 5, WHITENESS);
    EXPECT_TRUE(surface.dc.Ellipse(0, 0, 3, 3));
    EXPECT_EQ(TColor::White, TColor(surface.At(4, 4)));
    EXPECT_EQ(TColor::LtRed, TColor(surface.At(1, 0)));
}

TEST_F(DcDraw, fills_frames_and_inverts_a_rectangle) {
    const TBrush green(TColor::LtGreen);
    EXPECT_TRUE(surface.dc.FillRect(TRect(0, 0, 5, 4), green));
    const TBrush black(TColor::Black);
    EXPECT_TRUE(surface.dc.FrameRect(TRect(0, 0, 4, 4), black));
    EXPECT_TRUE(surface.dc.InvertRect(TRect(1, 1, 2, 5)));
    EXPECT_EQ("####G\n#MG#G\n#MG#G\n#.##G\n.#...\n", surface.Picture());
}

TEST_F(DcDraw, a_focus_mark_is_gone_when_drawn_twice) {
    EXPECT_TRUE(surface.dc.DrawFocusRect(TRect(0, 0, 5, 5)));
    const std::string once = surface.Picture();
    EXPECT_GT(std::count(once.begin(), once.end(), '#'), 3);
    EXPECT_EQ(TColor::White, TColor(surface.At(2, 2)));
    EXPECT_TRUE(surface.dc.DrawFocusRect(TRect(0, 0, 5, 5)));
    EXPECT_EQ(".....\n.....\n.....\n.....\n.....\n", surface.Picture());
}

TEST_F(DcDraw, fills_paints_frames_and_inverts_a_region) {
    const TBrush green(TColor::LtGreen);
    const TRegion region(TRect(0, 0, 3, 3));
    EXPECT_TRUE(surface.dc.FillRgn(region, green));
    EXPECT_EQ("GGG..\nGGG..\nGGG..\n.....\n.....\n", surface.Picture());
    EXPECT_TRUE(surface.dc.PaintRgn(region));
    EXPECT_EQ("BBB..\nBBB..\nBBB..\n.....\n.....\n", surface.Picture());
    EXPECT_TRUE(surface.dc.FrameRgn(region, green, TSize(1, 1)));
    EXPECT_EQ("GGG..\nGBG..\nGGG..\n.....\n.....\n", surface.Picture());
    EXPECT_TRUE(surface.dc.InvertRgn(region));
    EXPECT_EQ("MMM..\nMYM..\nMMM..\n.....\n.....\n", surface.Picture());
}

TEST_F(DcDraw, a_region_without_a_handle_draws_nothing) {
    const TRegion none(HRGN(nullptr));
    EXPECT_FALSE(surface.dc.PaintRgn(none));
    EXPECT_EQ(".....\n.....\n.....\n.....\n.....\n", surface.Picture());
}

TEST_F(DcDraw, a_pixel_is_set_and_read) {
    EXPECT_EQ(TColor(1, 2, 3), surface.dc.SetPixel(TPoint(2, 2), TColor(1, 2, 3)));
    EXPECT_EQ(TColor(1, 2, 3), surface.dc.GetPixel(TPoint(2, 2)));
    EXPECT_EQ(TColor(CLR_INVALID), surface.dc.GetPixel(5, 0));
    EXPECT_EQ(TColor(CLR_INVALID), surface.dc.GetPixel(-1, 0));
    EXPECT_EQ(TColor::White, surface.dc.GetPixel(0, 0));
}

TEST_F(DcDraw, mixes_by_the_raster_mode) {
    surface.dc.SetROP2(R2_NOT);
    surface.dc.MoveTo(0, 0);
    surface.dc.LineTo(3, 0);
    EXPECT_EQ("###..\n", surface.Picture().substr(0, 6));
}

}  // namespace
