#include "lvx/drawing/rectangle_edges.h"

#include <gtest/gtest.h>

#include <climits>

using lvx::drawing::around;
using lvx::drawing::between_corners;
using lvx::drawing::centre_of;
using lvx::drawing::from_corner;
using owl::TPoint;
using owl::TRect;

TEST(RectangleEdges, between_corners_are_sorted) {
    EXPECT_EQ(TRect(0, 5, 10, 20), between_corners(10, 20, 0, 5));
    EXPECT_EQ(TRect(0, 5, 10, 20), between_corners(0, 5, 10, 20));
    EXPECT_EQ(TRect(-7, -5, 7, 5), between_corners(7, -5, -7, 5));
    EXPECT_EQ(TRect(3, 3, 3, 3), between_corners(3, 3, 3, 3));
    EXPECT_EQ(TRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX), between_corners(INT_MAX, INT_MIN, INT_MIN, INT_MAX));
}

TEST(RectangleEdges, from_a_corner_go_either_way) {
    EXPECT_EQ(TRect(10, 20, 13, 24), from_corner(10, 20, 3, 4));
    EXPECT_EQ(TRect(6, 6, 10, 10), from_corner(10, 10, -4, -4));
    EXPECT_EQ(TRect(1, 2, 1, 2), from_corner(1, 2, 0, 0));
}

TEST(RectangleEdges, around_a_centre_have_halves_cut_off_towards_zero) {
    EXPECT_EQ(TRect(-2, -2, 3, 3), around(0, 0, 5, 5));
    EXPECT_EQ(TRect(8, 18, 12, 22), around(10, 20, 4, 4));
    EXPECT_EQ(TRect(10, 20, 11, 21), around(10, 20, 1, 1));
    // Minus five halves are minus two: rounding down would make it minus three.
    EXPECT_EQ(TRect(2, 2, -3, -3), around(0, 0, -5, -5));
    EXPECT_EQ(TRect(0, 0, -1, -1), around(0, 0, -1, -1));
}

TEST(RectangleEdges, beyond_32_bits_wrap) {
    EXPECT_EQ(TRect(INT_MIN, 0, INT_MAX, 0), from_corner(INT_MAX, 0, 1, 0));
    EXPECT_EQ(TRect(INT_MAX, 0, INT_MIN + 1, 0), around(INT_MIN, 0, 2, 0));
}

TEST(RectangleEdges, have_their_centre_cut_off_towards_the_origin) {
    EXPECT_EQ(TPoint(2, 2), centre_of(TRect(0, 0, 5, 5)));
    EXPECT_EQ(TPoint(-2, -2), centre_of(TRect(-5, -5, 0, 0)));
    EXPECT_EQ(TPoint(0, 0), centre_of(TRect(-2, -1, 3, 2)));
    EXPECT_EQ(TPoint(0, 0), centre_of(TRect(-3, -2, 2, 1)));
    EXPECT_EQ(TPoint(INT_MAX, INT_MIN), centre_of(TRect(INT_MAX, INT_MIN, INT_MAX, INT_MIN)));
}
