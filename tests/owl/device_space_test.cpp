#include "owl/device_space.h"

#include <gtest/gtest.h>

#include "owl/dc.h"
#include "owl/region.h"
#include "surface.h"

namespace {

using owl::DeviceUnits;
using owl::TPictureTransform;
using owl::TPoint;
using owl::TRect;
using owl::TRegion;
using owl::TSize;
using owl_test::Surface;

void SetTransform(owl::TDC& dc, const XFORM& transform) {
    dc.SetGraphicsMode(GM_ADVANCED);
    ASSERT_TRUE(dc.SetWorldTransform(transform));
}

TEST(DeviceSpace, knows_what_a_transform_does) {
    const XFORM identity = {1, 0, 0, 1, 5, 6};
    const XFORM sheared = {1, 0.5f, 0, 1, 0, 0};
    const XFORM mirrored = {-1, 0, 0, 1, 0, 0};
    EXPECT_FALSE(owl::IsTurned(identity) || owl::IsMirrored(identity));
    EXPECT_TRUE(owl::IsTurned(sheared));
    EXPECT_FALSE(owl::IsMirrored(sheared));
    EXPECT_TRUE(owl::IsMirrored(mirrored));
    EXPECT_FALSE(owl::IsTurned(mirrored));
}

TEST(DeviceSpace, has_a_world_only_in_the_advanced_mode) {
    Surface surface(1, 1);
    SetTransform(surface.dc, {2, 3, 4, 5, 6, 7});
    EXPECT_EQ(4, owl::WorldOf(surface.dc).eM21);
    surface.dc.ModifyWorldTransform({}, MWT_IDENTITY);
    surface.dc.SetGraphicsMode(GM_COMPATIBLE);
    EXPECT_EQ(1, owl::WorldOf(surface.dc).eM11);
    EXPECT_EQ(0, owl::WorldOf(surface.dc).eM21);
}

TEST(DeviceSpace, goes_through_the_world_and_then_through_the_page) {
    Surface surface(1, 1);
    surface.dc.SetMapMode(MM_ANISOTROPIC);
    surface.dc.SetWindowExt(TSize(2, 1));
    surface.dc.SetViewportExt(TSize(6, -1));
    surface.dc.SetWindowOrg(TPoint(10, 20));
    surface.dc.SetViewportOrg(TPoint(100, 200));
    SetTransform(surface.dc, {0, 1, -1, 0, 5, 6});
    // (x, y) goes to (5 - y, 6 + x) and that to (3 (5 - y - 10) + 100, -(6 + x - 20) + 200).
    const TPictureTransform t = owl::LogicalToDevice(surface.dc);
    EXPECT_EQ(0, t.m11);
    EXPECT_EQ(-1, t.m12);
    EXPECT_EQ(-3, t.m21);
    EXPECT_EQ(0, t.m22);
    EXPECT_EQ(85, t.dx);
    EXPECT_EQ(214, t.dy);
    TPoint point(7, 3);
    surface.dc.LPtoDP(&point);
    EXPECT_EQ(TPoint(85 - 3 * 3, 214 - 7), point);
}

TEST(DeviceSpace, sees_the_clip_box_or_all_that_is_recorded) {
    Surface surface(9, 7);
    EXPECT_EQ(TRect(0, 0, 9, 7), owl::VisiblePart(surface.dc));
    surface.dc.SelectClipRgn(TRegion(TRect(1, 2, 50, 5)));
    EXPECT_EQ(TRect(1, 2, 9, 5), owl::VisiblePart(surface.dc));
    EXPECT_FALSE(owl::IsRecorded(surface.dc));
    const HDC recording = ::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    EXPECT_TRUE(owl::IsRecorded(recording));
    EXPECT_EQ(owl::everywhere, owl::VisiblePart(recording));
    ::DeleteEnhMetaFile(::CloseEnhMetaFile(recording));
}

TEST(DeviceSpace, makes_a_region_of_rectangles_in_any_order) {
    const TRegion region(owl::MakeRegion({TRect(5, 5, 9, 6), TRect(0, 0, 3, 3), TRect(2, 2, 4, 4)}),
                         owl::AutoDelete);
    TRegion expected(TRect(0, 0, 3, 3));
    expected |= TRegion(TRect(2, 2, 4, 4));
    expected |= TRegion(TRect(5, 5, 9, 6));
    EXPECT_TRUE(expected == region);
    const TRegion nothing(owl::MakeRegion({}), owl::AutoDelete);
    ASSERT_NE(nullptr, nothing.GetHandle());
    EXPECT_TRUE(nothing.GetRgnBox().IsEmpty());
}

TEST(DeviceSpace, is_drawn_in_for_a_while) {
    Surface surface(6, 2);
    surface.dc.SelectClipRgn(TRegion(TRect(0, 0, 5, 2)));
    surface.dc.SetMapMode(MM_ANISOTROPIC);
    surface.dc.SetViewportExt(TSize(3, 3));
    surface.dc.SetViewportOrg(TPoint(2, 2));
    SetTransform(surface.dc, {0, 1, -1, 0, 5, 6});
    {
        const DeviceUnits units(surface.dc);
        EXPECT_TRUE(units.IsGood());
        ::IntersectClipRect(surface.dc, 1, 0, 9, 9);
        ::PatBlt(surface.dc, 0, 0, 9, 1, BLACKNESS);
    }
    EXPECT_EQ(".####.\n......\n", surface.Picture());
    EXPECT_EQ(MM_ANISOTROPIC, surface.dc.GetMapMode());
    EXPECT_EQ(TPoint(2, 2), surface.dc.GetViewportOrg());
    EXPECT_EQ(5, owl::WorldOf(surface.dc).eDx);
    surface.dc.ModifyWorldTransform({}, MWT_IDENTITY);
    surface.dc.SetMapMode(MM_TEXT);
    surface.dc.SetViewportOrg(TPoint(0, 0));
    TRect box;
    surface.dc.GetClipBox(box);
    EXPECT_EQ(TRect(0, 0, 5, 2), box);
}

}  // namespace
