#include "owl/region.h"

#include <gtest/gtest.h>

#include "surface.h"

namespace {

using owl::TPoint;
using owl::TRect;
using owl::TRegion;
using owl::TSize;

TEST(Region, is_empty_when_nothing_is_given) {
    EXPECT_TRUE(TRegion().GetRgnBox().IsNull());
    EXPECT_FALSE(TRegion().Contains(TPoint(0, 0)));
}

TEST(Region, of_a_rectangle_is_without_its_right_and_lower_edge) {
    const TRegion region(TRect(1, 2, 5, 6));
    EXPECT_EQ(TRect(1, 2, 5, 6), region.GetRgnBox());
    EXPECT_TRUE(region.Contains(TPoint(1, 2)));
    EXPECT_TRUE(region.Contains(TPoint(4, 5)));
    EXPECT_FALSE(region.Contains(TPoint(5, 5)));
    EXPECT_FALSE(region.Contains(TPoint(4, 6)));
}

TEST(Region, of_a_rectangle_the_wrong_way_round_is_the_right_one) {
    EXPECT_TRUE(TRegion(TRect(1, 2, 5, 6)) == TRegion(TRect(5, 6, 1, 2)));
}

TEST(Region, of_an_ellipse_has_its_middle_and_not_its_corners) {
    const TRegion region(TRect(0, 0, 20, 10), TRegion::Ellipse);
    EXPECT_TRUE(region.Contains(TPoint(10, 5)));
    EXPECT_TRUE(region.Contains(TPoint(2, 5)));
    EXPECT_FALSE(region.Contains(TPoint(0, 0)));
    EXPECT_FALSE(region.Contains(TPoint(19, 0)));
    EXPECT_FALSE(region.Contains(TPoint(0, 9)));
    EXPECT_FALSE(region.Contains(TPoint(19, 9)));
}

TEST(Region, of_a_polygon_is_its_inside) {
    const TPoint triangle[] = {TPoint(0, 0), TPoint(20, 0), TPoint(0, 20)};
    const TRegion region(triangle, 3, ALTERNATE);
    EXPECT_TRUE(region.Contains(TPoint(3, 3)));
    EXPECT_FALSE(region.Contains(TPoint(15, 15)));
}

TEST(Region, of_a_polygon_over_itself_follows_the_fill_mode) {
    // A square that is gone round twice.
    const TPoint twice[] = {TPoint(0, 0), TPoint(20, 0), TPoint(20, 20), TPoint(0, 20),
                            TPoint(0, 0), TPoint(20, 0), TPoint(20, 20), TPoint(0, 20)};
    EXPECT_TRUE(TRegion(twice, 8, WINDING).Contains(TPoint(10, 10)));
    EXPECT_FALSE(TRegion(twice, 8, ALTERNATE).Contains(TPoint(10, 10)));
}

TEST(Region, of_fewer_than_three_points_holds_nothing) {
    const TPoint one[] = {TPoint(5, 5), TPoint(9, 9)};
    EXPECT_TRUE(TRegion(one, 2, ALTERNATE).GetRgnBox().IsNull());
    EXPECT_TRUE(TRegion(one, 1, ALTERNATE).GetRgnBox().IsNull());
    EXPECT_TRUE(TRegion(one, 0, ALTERNATE).GetRgnBox().IsNull());
    EXPECT_TRUE(TRegion(one, -1, ALTERNATE).GetRgnBox().IsNull());
    EXPECT_TRUE(TRegion(nullptr, 3, ALTERNATE).GetRgnBox().IsNull());
    EXPECT_NE(nullptr, TRegion(nullptr, 0, ALTERNATE).GetHandle());
}

TEST(Region, touches_a_rectangle_with_a_common_pixel) {
    const TRegion region(TRect(1, 2, 5, 6));
    EXPECT_TRUE(region.Touches(TRect(4, 5, 9, 9)));
    EXPECT_FALSE(region.Touches(TRect(5, 5, 9, 9)));
}

TEST(Region, is_moved_and_combined) {
    const TRegion left(TRect(0, 0, 10, 10));
    TRegion region(TRect(0, 0, 10, 10));
    region += TSize(5, 0);
    EXPECT_EQ(TRect(5, 0, 15, 10), region.GetRgnBox());
    TRegion all(left);
    all |= region;
    EXPECT_EQ(TRect(0, 0, 15, 10), all.GetRgnBox());
    TRegion common(left);
    common &= region;
    EXPECT_EQ(TRect(5, 0, 10, 10), common.GetRgnBox());
    TRegion rest(left);
    rest -= region;
    EXPECT_EQ(TRect(0, 0, 5, 10), rest.GetRgnBox());
    TRegion either(left);
    either ^= region;
    EXPECT_TRUE(either.Contains(TPoint(2, 2)));
    EXPECT_FALSE(either.Contains(TPoint(7, 2)));
    EXPECT_TRUE(either.Contains(TPoint(12, 2)));
}

TEST(Region, copied_lives_without_the_other) {
    TRegion* first = new TRegion(TRect(0, 0, 10, 10));
    const TRegion copy(*first);
    EXPECT_TRUE(copy == *first);
    *first += TSize(50, 50);
    EXPECT_FALSE(copy == *first);
    delete first;
    EXPECT_EQ(TRect(0, 0, 10, 10), copy.GetRgnBox());
}

TEST(Region, without_a_handle_is_empty_and_cannot_be_combined) {
    TRegion none(HRGN(nullptr));
    EXPECT_TRUE(none.GetRgnBox().IsNull());
    EXPECT_FALSE(none.Contains(TPoint(0, 0)));
    EXPECT_FALSE(none.Touches(TRect(0, 0, 9, 9)));
    EXPECT_THROW(TRegion copy(none), owl::TXGdi);
    TRegion some(TRect(0, 0, 1, 1));
    EXPECT_THROW(some |= none, owl::TXGdi);
    EXPECT_THROW(none |= some, owl::TXGdi);
    EXPECT_THROW(none += TSize(1, 1), owl::TXGdi);
}

TEST(Region, leaves_nothing_behind) {
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        TRegion region(TRect(0, 0, i, 10), TRegion::Ellipse);
        region |= TRegion(TRect(0, 0, 10, i));
        const TRegion copy(region);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
