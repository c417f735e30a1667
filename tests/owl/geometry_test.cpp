#include "owl/geometry.h"

#include <gtest/gtest.h>

#include <climits>
#include <type_traits>

namespace {

using owl::TPoint;
using owl::TRect;
using owl::TSize;

TEST(Size, has_its_width_first) {
    constexpr TSize size(640, -480);
    EXPECT_EQ(640, size.cx);
    EXPECT_EQ(-480, size.cy);
    EXPECT_EQ(640, size.Width());
    EXPECT_EQ(-480, size.Height());
}

TEST(Size, is_zero_when_nothing_is_given) {
    EXPECT_EQ(TSize(0, 0), TSize());
}

TEST(Size, equals_only_a_size_with_both_numbers_the_same) {
    EXPECT_EQ(TSize(3, 4), TSize(3, 4));
    EXPECT_NE(TSize(3, 4), TSize(3, 5));
    EXPECT_NE(TSize(3, 4), TSize(4, 4));
    EXPECT_NE(TSize(3, 4), TSize(4, 3));
}

TEST(Size, is_copied_as_bytes) {
    EXPECT_TRUE(std::is_trivially_copyable_v<TSize>);
    EXPECT_EQ(2 * sizeof(int), sizeof(TSize));
}

TEST(Size, adds_and_takes_away_each_number_for_itself) {
    EXPECT_EQ(TSize(4, 6), TSize(1, 2) + TSize(3, 4));
    EXPECT_EQ(TSize(-2, 5), TSize(1, 2) - TSize(3, -3));
    EXPECT_EQ(TSize(-1, 2), -TSize(1, -2));
}

TEST(Size, wraps_where_32_bits_end) {
    EXPECT_EQ(TSize(INT_MIN, INT_MAX), TSize(INT_MAX, INT_MIN) + TSize(1, -1));
    EXPECT_EQ(TSize(INT_MIN, INT_MIN), -TSize(INT_MIN, INT_MIN));
}

TEST(Size, is_passed_where_the_system_asks_for_its_own) {
    TSize size(1, 2);
    SIZE& systems = size;
    systems.cy = 7;
    EXPECT_EQ(TSize(1, 7), size);
    EXPECT_EQ(TSize(5, 6), TSize(SIZE{5, 6}));
    EXPECT_EQ(sizeof(SIZE), sizeof(TSize));
}

TEST(Point, has_its_x_first_and_is_the_origin_when_nothing_is_given) {
    constexpr TPoint point(3, -4);
    EXPECT_EQ(3, point.x);
    EXPECT_EQ(-4, point.y);
    EXPECT_EQ(3, point.X());
    EXPECT_EQ(-4, point.Y());
    EXPECT_EQ(TPoint(0, 0), TPoint());
}

TEST(Point, equals_only_a_point_with_both_numbers_the_same) {
    EXPECT_EQ(TPoint(3, 4), TPoint(3, 4));
    EXPECT_NE(TPoint(3, 4), TPoint(3, 5));
    EXPECT_NE(TPoint(3, 4), TPoint(4, 4));
}

TEST(Point, moves_by_a_size_and_the_way_between_two_is_a_size) {
    EXPECT_EQ(TPoint(11, 22), TPoint(1, 2) + TSize(10, 20));
    EXPECT_EQ(TPoint(-9, -18), TPoint(1, 2) - TSize(10, 20));
    EXPECT_EQ(TSize(10, -20), TPoint(11, -18) - TPoint(1, 2));
    EXPECT_EQ(TPoint(4, 6), TPoint(1, 2).OffsetBy(3, 4));
    TPoint point(1, 2);
    point.Offset(-1, -2);
    EXPECT_EQ(TPoint(), point);
}

TEST(Point, wraps_where_32_bits_end) {
    EXPECT_EQ(TPoint(INT_MIN, 0), TPoint(INT_MAX, 0) + TSize(1, 0));
    EXPECT_EQ(TSize(1, 0), TPoint(INT_MIN, 0) - TPoint(INT_MAX, 0));
}

TEST(Point, is_passed_where_the_system_asks_for_its_own) {
    TPoint points[2];
    POINT* systems = points;
    EXPECT_EQ(sizeof(POINT), sizeof(TPoint));
    systems[1].y = 9;
    EXPECT_EQ(TPoint(0, 9), points[1]);
    EXPECT_EQ(TPoint(5, 6), TPoint(POINT{5, 6}));
    EXPECT_TRUE(std::is_trivially_copyable_v<TPoint>);
}

TEST(Rect, has_its_edges_in_the_systems_order) {
    constexpr TRect rect(1, 2, 30, 40);
    EXPECT_EQ(1, rect.left);
    EXPECT_EQ(2, rect.top);
    EXPECT_EQ(30, rect.right);
    EXPECT_EQ(40, rect.bottom);
    EXPECT_EQ(1, rect.X());
    EXPECT_EQ(2, rect.Y());
    EXPECT_EQ(29, rect.Width());
    EXPECT_EQ(38, rect.Height());
    EXPECT_EQ(TSize(29, 38), rect.Size());
    EXPECT_EQ(sizeof(RECT), sizeof(TRect));
}

TEST(Rect, tells_its_corners) {
    constexpr TRect rect(1, 2, 30, 40);
    EXPECT_EQ(TPoint(1, 2), rect.TopLeft());
    EXPECT_EQ(TPoint(30, 2), rect.TopRight());
    EXPECT_EQ(TPoint(1, 40), rect.BottomLeft());
    EXPECT_EQ(TPoint(30, 40), rect.BottomRight());
}

TEST(Rect, is_made_of_two_corners_or_of_one_and_a_size) {
    EXPECT_EQ(TRect(1, 2, 30, 40), TRect(TPoint(1, 2), TPoint(30, 40)));
    EXPECT_EQ(TRect(1, 2, 31, 42), TRect(TPoint(1, 2), TSize(30, 40)));
    EXPECT_EQ(TRect(1, 2, 3, 4), TRect(RECT{1, 2, 3, 4}));
}

TEST(Rect, equals_only_a_rectangle_with_all_edges_the_same) {
    const TRect rect(1, 2, 3, 4);
    EXPECT_EQ(TRect(1, 2, 3, 4), rect);
    EXPECT_NE(TRect(0, 2, 3, 4), rect);
    EXPECT_NE(TRect(1, 0, 3, 4), rect);
    EXPECT_NE(TRect(1, 2, 0, 4), rect);
    EXPECT_NE(TRect(1, 2, 3, 0), rect);
}

TEST(Rect, is_empty_when_it_has_no_point) {
    EXPECT_TRUE(TRect().IsEmpty());
    EXPECT_TRUE(TRect().IsNull());
    EXPECT_TRUE(TRect(5, 5, 5, 9).IsEmpty());
    EXPECT_FALSE(TRect(5, 5, 5, 9).IsNull());
    EXPECT_TRUE(TRect(9, 5, 5, 9).IsEmpty());
    EXPECT_FALSE(TRect(5, 5, 6, 6).IsEmpty());
}

TEST(Rect, exchanges_edges_that_stand_the_wrong_way_round) {
    EXPECT_EQ(TRect(0, 5, 10, 20), TRect(10, 20, 0, 5).Normalized());
    EXPECT_EQ(TRect(0, 5, 10, 20), TRect(10, 5, 0, 20).Normalized());
    EXPECT_EQ(TRect(0, 5, 10, 20), TRect(0, 20, 10, 5).Normalized());
    EXPECT_EQ(TRect(0, 5, 10, 20), TRect(0, 5, 10, 20).Normalized());
    TRect rect(3, 3, 1, 1);
    EXPECT_FALSE(rect.IsNormal());
    rect.Normalize();
    EXPECT_TRUE(rect.IsNormal());
    EXPECT_EQ(TRect(1, 1, 3, 3), rect);
    EXPECT_EQ(-2, TRect(3, 3, 1, 1).Width());
}

TEST(Rect, is_set_and_emptied) {
    TRect rect;
    rect.Set(1, 2, 3, 4);
    EXPECT_EQ(TRect(1, 2, 3, 4), rect);
    rect.SetEmpty();
    EXPECT_TRUE(rect.IsNull());
}

TEST(Rect, grows_and_shrinks_on_both_sides) {
    TRect rect(10, 20, 30, 40);
    rect.Inflate(1, 2);
    EXPECT_EQ(TRect(9, 18, 31, 42), rect);
    EXPECT_EQ(TRect(10, 20, 30, 40), rect.InflatedBy(-1, -2));
    EXPECT_EQ(TRect(7, 16, 33, 44), rect.InflatedBy(TSize(2, 2)));
    EXPECT_FALSE(TRect(0, 0, 1, 1).InflatedBy(-1, -1).IsNormal());
}

TEST(Rect, moves_without_changing_its_size) {
    TRect rect(1, 2, 3, 4);
    rect.Offset(10, 20);
    EXPECT_EQ(TRect(11, 22, 13, 24), rect);
    EXPECT_EQ(TRect(1, 2, 3, 4), rect.OffsetBy(-10, -20));
    EXPECT_EQ(TRect(12, 22, 14, 24), rect.OffsetBy(TSize(1, 0)));
    EXPECT_EQ(TRect(5, 6, 7, 8), rect.MovedTo(5, 6));
    rect += TSize(1, 1);
    EXPECT_EQ(TRect(12, 23, 14, 25), rect);
    rect -= TSize(2, 3);
    EXPECT_EQ(TRect(10, 20, 12, 22), rect);
    EXPECT_EQ(TRect(11, 21, 13, 23), rect + TSize(1, 1));
    EXPECT_EQ(TRect(9, 19, 11, 21), rect - TSize(1, 1));
}

TEST(Rect, holds_its_upper_left_edges_and_not_the_others) {
    const TRect rect(10, 20, 30, 40);
    EXPECT_TRUE(rect.Contains(TPoint(10, 20)));
    EXPECT_TRUE(rect.Contains(TPoint(29, 39)));
    EXPECT_FALSE(rect.Contains(TPoint(30, 39)));
    EXPECT_FALSE(rect.Contains(TPoint(29, 40)));
    EXPECT_FALSE(rect.Contains(TPoint(9, 20)));
    EXPECT_FALSE(rect.Contains(TPoint(10, 19)));
    EXPECT_FALSE(TRect(30, 40, 10, 20).Contains(TPoint(20, 30)));
}

TEST(Rect, holds_another_that_reaches_no_further) {
    const TRect rect(10, 20, 30, 40);
    EXPECT_TRUE(rect.Contains(rect));
    EXPECT_TRUE(rect.Contains(TRect(11, 21, 29, 39)));
    EXPECT_FALSE(rect.Contains(TRect(9, 21, 29, 39)));
    EXPECT_FALSE(rect.Contains(TRect(11, 21, 31, 39)));
    EXPECT_FALSE(rect.Contains(TRect(11, 19, 29, 39)));
    EXPECT_FALSE(rect.Contains(TRect(11, 21, 29, 41)));
}

TEST(Rect, touches_another_when_they_share_a_point) {
    const TRect rect(10, 20, 30, 40);
    EXPECT_TRUE(rect.Touches(TRect(29, 39, 50, 50)));
    EXPECT_TRUE(rect.Touches(TRect(0, 0, 100, 100)));
    EXPECT_TRUE(rect.Touches(TRect(0, 0, 11, 21)));
    EXPECT_FALSE(rect.Touches(TRect(30, 20, 50, 40)));
    EXPECT_FALSE(rect.Touches(TRect(10, 40, 30, 50)));
    EXPECT_FALSE(rect.Touches(TRect(0, 20, 10, 40)));
    EXPECT_FALSE(rect.Touches(TRect(15, 25, 15, 35)));
}

TEST(Rect, common_part_is_null_when_there_is_none) {
    EXPECT_EQ(TRect(20, 25, 30, 40), TRect(10, 20, 30, 40) & TRect(20, 25, 90, 90));
    EXPECT_TRUE((TRect(10, 20, 30, 40) & TRect(30, 20, 50, 40)).IsNull());
    TRect rect(0, 0, 10, 10);
    rect &= TRect(5, 5, 20, 20);
    EXPECT_EQ(TRect(5, 5, 10, 10), rect);
}

TEST(Rect, union_leaves_out_what_is_empty) {
    EXPECT_EQ(TRect(0, 0, 30, 40), TRect(10, 20, 30, 40) | TRect(0, 0, 1, 1));
    EXPECT_EQ(TRect(10, 20, 30, 40), TRect(10, 20, 30, 40) | TRect());
    EXPECT_EQ(TRect(10, 20, 30, 40), TRect(-5, -5, -5, 90) | TRect(10, 20, 30, 40));
    EXPECT_TRUE((TRect(1, 1, 1, 1) | TRect(2, 2, 2, 2)).IsNull());
    TRect rect(0, 0, 10, 10);
    rect |= TRect(5, 5, 20, 20);
    EXPECT_EQ(TRect(0, 0, 20, 20), rect);
}

TEST(Rect, wraps_where_32_bits_end) {
    EXPECT_EQ(-1, TRect(INT_MIN, 0, INT_MAX, 0).Width());
    EXPECT_EQ(TRect(INT_MAX, 0, INT_MIN, 0), TRect(INT_MIN, 0, INT_MAX, 0).InflatedBy(1, 0));
}

}  // namespace
