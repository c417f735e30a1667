#include "lvx/drawing/point_array.h"

#include <gtest/gtest.h>

#include <new>
#include <type_traits>
#include <vector>

using owl::TPoint;

namespace {

std::vector<TPoint> points(const LVXPointArray& array) {
    return std::vector<TPoint>(array.getPoints(), array.getPoints() + array.getCount());
}

/// The numbers 1 to `count` as points (n, -n).
void fill(LVXPointArray& array, int count) {
    for (int n = 1; n <= count; ++n) {
        array.add(n, -n);
    }
}

}  // namespace

TEST(PointArray, keeps_points_in_order_as_far_as_there_is_room) {
    LVXPointArray array(3);
    EXPECT_EQ(0, array.getCount());
    fill(array, 3);
    EXPECT_EQ((std::vector<TPoint>{{1, -1}, {2, -2}, {3, -3}}), points(array));
}

TEST(PointArray, that_grows_loses_its_first_point) {
    LVXPointArray array(3);
    fill(array, 4);
    EXPECT_EQ((std::vector<TPoint>{{0, 0}, {2, -2}, {3, -3}, {4, -4}}), points(array));
}

TEST(PointArray, without_room_grows_to_two_and_then_to_six) {
    LVXPointArray array(0);
    EXPECT_EQ(nullptr, array.getPoints());
    fill(array, 1);
    const TPoint* const first = array.getPoints();
    EXPECT_EQ((std::vector<TPoint>{{1, -1}}), points(array));
    array.add(2, -2);
    EXPECT_EQ(first, array.getPoints());
    EXPECT_EQ((std::vector<TPoint>{{1, -1}, {2, -2}}), points(array));
    array.add(3, -3);
    EXPECT_EQ((std::vector<TPoint>{{0, 0}, {2, -2}, {3, -3}}), points(array));
    const TPoint* const second = array.getPoints();
    for (int n = 4; n <= 6; ++n) {
        array.add(n, -n);
    }
    EXPECT_EQ(second, array.getPoints());
    array.add(7, -7);
    EXPECT_EQ(7, array.getCount());
    EXPECT_EQ((std::vector<TPoint>{{0, 0}, {2, -2}, {3, -3}, {4, -4}, {5, -5}, {6, -6}, {7, -7}}),
              points(array));
}

TEST(PointArray, of_one_loses_its_only_point) {
    LVXPointArray array(1);
    fill(array, 2);
    EXPECT_EQ((std::vector<TPoint>{{0, 0}, {2, -2}}), points(array));
}

// At each growth again, what was put back by the host too.
TEST(PointArray, may_be_given_its_first_point_back) {
    LVXPointArray array(1);
    fill(array, 2);
    array.getPoints()[0] = TPoint(1, -1);
    fill(array, 2);
    EXPECT_EQ((std::vector<TPoint>{{1, -1}, {2, -2}, {1, -1}, {2, -2}}), points(array));
    array.add(5, -5);
    EXPECT_EQ(TPoint(0, 0), array.getPoints()[0]);
}

TEST(PointArray, of_a_negative_capacity_has_no_room_at_first) {
    LVXPointArray array(-5);
    EXPECT_EQ(nullptr, array.getPoints());
    fill(array, 2);
    EXPECT_EQ((std::vector<TPoint>{{1, -1}, {2, -2}}), points(array));
}

TEST(PointArray, holds_many_points) {
    LVXPointArray array(0);
    fill(array, 100000);
    EXPECT_EQ(100000, array.getCount());
    for (int n = 2; n <= 100000; ++n) {
        ASSERT_EQ(TPoint(n, -n), array.getPoints()[n - 1]);
    }
    EXPECT_EQ(TPoint(), array.getPoints()[0]);
}

TEST(PointArray, is_not_copied) {
    EXPECT_FALSE(std::is_copy_constructible_v<LVXPointArray>);
    EXPECT_FALSE(std::is_copy_assignable_v<LVXPointArray>);
    EXPECT_FALSE(std::is_polymorphic_v<LVXPointArray>);
}
