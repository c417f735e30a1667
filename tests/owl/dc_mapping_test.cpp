#include <gtest/gtest.h>

#include "owl/brush.h"
#include "owl/dc.h"
#include "surface.h"

namespace {

using owl::TBrush;
using owl::TColor;
using owl::TDC;
using owl::TPoint;
using owl::TRect;
using owl::TSize;
using owl_test::Surface;

TEST(DcMapping, sets_the_mode_and_returns_the_one_before) {
    Surface surface(1, 1);
    EXPECT_EQ(MM_TEXT, surface.dc.SetMapMode(MM_LOMETRIC));
    EXPECT_EQ(MM_LOMETRIC, surface.dc.GetMapMode());
}

TEST(DcMapping, places_and_stretches_by_origins_and_extents) {
    Surface surface(6, 4);
    TDC& dc = surface.dc;
    dc.SetMapMode(MM_ANISOTROPIC);
    EXPECT_TRUE(dc.SetWindowOrg(TPoint(10, 10)));
    EXPECT_TRUE(dc.SetWindowExt(TSize(1, 1)));
    EXPECT_TRUE(dc.SetViewportOrg(TPoint(1, 1)));
    EXPECT_TRUE(dc.SetViewportExt(TSize(2, 1)));
    EXPECT_EQ(TPoint(10, 10), dc.GetWindowOrg());
    EXPECT_EQ(TSize(1, 1), dc.GetWindowExt());
    EXPECT_EQ(TPoint(1, 1), dc.GetViewportOrg());
    EXPECT_EQ(TSize(2, 1), dc.GetViewportExt());
    const TBrush red(TColor::LtRed);
    dc.FillRect(TRect(10, 10, 12, 12), red);
    EXPECT_EQ("......\n.RRRR.\n.RRRR.\n......\n", surface.Picture());
    TPoint points[] = {TPoint(10, 10), TPoint(12, 11)};
    EXPECT_TRUE(dc.LPtoDP(points, 2));
    EXPECT_EQ(TPoint(1, 1), points[0]);
    EXPECT_EQ(TPoint(5, 2), points[1]);
    EXPECT_TRUE(dc.DPtoLP(points, 2));
    EXPECT_EQ(TPoint(12, 11), points[1]);
    TPoint one(11, 10);
    EXPECT_TRUE(dc.LPtoDP(&one));
    EXPECT_EQ(TPoint(3, 1), one);
}

TEST(DcMapping, has_a_world_transform_in_the_advanced_mode_alone) {
    Surface surface(4, 4);
    TDC& dc = surface.dc;
    const XFORM twice = {2, 0, 0, 2, 1, 0};
    EXPECT_FALSE(dc.SetWorldTransform(twice));
    EXPECT_EQ(GM_COMPATIBLE, dc.SetGraphicsMode(GM_ADVANCED));
    EXPECT_EQ(GM_ADVANCED, dc.GetGraphicsMode());
    EXPECT_TRUE(dc.SetWorldTransform(twice));
    XFORM now{};
    EXPECT_TRUE(dc.GetWorldTransform(now));
    EXPECT_EQ(2.0f, now.eM11);
    EXPECT_EQ(1.0f, now.eDx);
    const TBrush red(TColor::LtRed);
    dc.FillRect(TRect(0, 0, 1, 1), red);
    EXPECT_EQ(".RR.\n.RR.\n....\n....\n", surface.Picture());
    EXPECT_TRUE(dc.ModifyWorldTransform(twice, MWT_IDENTITY));
    EXPECT_TRUE(dc.GetWorldTransform(now));
    EXPECT_EQ(1.0f, now.eM11);
    EXPECT_EQ(GM_ADVANCED, dc.SetGraphicsMode(GM_COMPATIBLE));
}

}  // namespace
