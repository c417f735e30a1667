#include "lvx/images/skew_map.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

#include "support/expect_throw.h"

namespace {

using lvx::images::place_skew;
using lvx::images::SkewMap;
using lvx::images::SkewPlace;
using namespace LVXUtilities::Rectangles;

SkewMap map_of(int width, int height, Corner corner, int dx, int dy) {
    return SkewMap(place_skew(width, height, corner, dx, dy).corners);
}

SkewPlace place_of(const SkewMap& map, double x, double y) {
    return map.Map(map.At(x), y);
}

constexpr Corner corners[] = {TopLeft, BottomLeft, TopRight, BottomRight};

TEST(SkewMap, of_a_corner_that_stays_adds_a_half) {
    for (const Corner corner : corners) {
        const SkewPlace place = place_of(map_of(7, 3, corner, 0, 0), 2.25, 1.65);
        EXPECT_EQ(2.25 + 0.5, place.x) << corner;
        EXPECT_EQ(1.65 + 0.5, place.y) << corner;
    }
}

// y by the first stage alone; x by the second, which knows how high the corner is but not how the first one
// got there: it meets the corner where that was dragged in one direction only.
TEST(SkewMap, takes_the_dragged_corner_from_where_it_was) {
    const struct {
        Corner corner;
        int dx, dy;
        double x, y, old_x, old_y;
    } cases[] = {
        {TopLeft, 20, 0, 20, 0, 0, 0},          {TopLeft, -20, 0, 0, 0, 20, 0},
        {TopLeft, 0, 10, 0, 10, 0, 0},          {TopLeft, 0, -10, 0, 0, 0, 10},
        {BottomLeft, 20, 0, 20, 50, 0, 50},     {BottomLeft, -20, 0, 0, 50, 20, 50},
        {BottomLeft, 0, 10, 0, 60, 0, 50},      {BottomLeft, 0, -10, 0, 40, 0, 50},
        {TopRight, 20, 0, 120, 0, 100, 0},      {TopRight, -20, 0, 80, 0, 100, 0},
        {TopRight, 0, 10, 100, 10, 100, 0},     {TopRight, 0, -10, 100, 0, 100, 10},
        {BottomRight, 20, 0, 120, 50, 100, 50}, {BottomRight, -20, 0, 80, 50, 100, 50},
        {BottomRight, 0, 10, 100, 60, 100, 50}, {BottomRight, 0, -10, 100, 40, 100, 50},
    };
    for (const auto& [corner, dx, dy, x, y, old_x, old_y] : cases) {
        const SkewPlace place = place_of(map_of(100, 50, corner, dx, dy), x, y);
        EXPECT_NEAR(old_x + 0.5, place.x, 1e-9) << corner << " " << dx << " " << dy;
        EXPECT_NEAR(old_y + 0.5, place.y, 1e-9) << corner << " " << dx << " " << dy;
    }
}

TEST(SkewMap, leaves_the_other_corners_where_they_are) {
    for (const Corner corner : corners) {
        const auto frame = place_skew(100, 50, corner, 20, -10);
        const SkewMap map(frame.corners);
        for (int i = 0; i < 3; ++i) {
            const auto x = static_cast<double>(frame.corners[static_cast<std::size_t>(i)].x);
            const auto y = static_cast<double>(frame.corners[static_cast<std::size_t>(i)].y);
            const SkewPlace place = place_of(map, x, y);
            EXPECT_NEAR(x + 0.5, place.x, 1e-9) << corner << " " << i;
            EXPECT_NEAR(y + 0.5, place.y, 1e-9) << corner << " " << i;
        }
    }
}

// x' = x / (1 + y / 3): by hand.
TEST(SkewMap, goes_through_both_stages_in_order) {
    const SkewPlace place = place_of(map_of(3, 3, BottomRight, 3, 0), 3.5, 0.75);
    EXPECT_DOUBLE_EQ(3.5 / 1.25 + 0.5, place.x);
    EXPECT_EQ(1.25, place.y);
}

// The divisor of the first stage is 1 - x / 100 with the corner dragged down to the next one's height, so it
// vanishes in column 100.
TEST(SkewMap, gives_the_point_itself_where_the_first_divisor_vanishes) {
    const SkewMap map = map_of(100, 50, TopRight, 0, 25);
    const double slope = map.First().slope;
    const double column = map.First().zero - 1 / slope;
    ASSERT_LT(std::fabs(slope * column + 1 - map.First().zero * slope), 0.00001);
    const SkewPlace place = place_of(map, column, 7.25);
    EXPECT_EQ(column, place.x);
    EXPECT_EQ(7.25, place.y);
}

TEST(SkewMap, gives_the_point_itself_where_the_second_divisor_vanishes) {
    const SkewMap map = map_of(100, 50, BottomRight, 100, 0);
    ASSERT_EQ(0.0, map.First().slope);
    // 1 + y / 50.
    const SkewPlace place = place_of(map, 12.5, -50);
    EXPECT_EQ(12.5, place.x);
    EXPECT_EQ(-50.0, place.y);
    EXPECT_NE(12.5, place_of(map, 12.5, -50.001).x);
}

TEST(SkewMap, cannot_be_made_when_the_corner_lies_above_the_next_one) {
    EXPECT_THROW_TEXT(map_of(100, 50, TopLeft, 100, 5), std::runtime_error, "Divide by zero (1)");
    EXPECT_THROW_TEXT(map_of(100, 50, TopLeft, 5, 50), std::runtime_error, "Divide by zero (2)");
    EXPECT_THROW_TEXT(map_of(100, 50, TopLeft, 100, 50), std::runtime_error, "Divide by zero (1)");
    EXPECT_THROW_TEXT(map_of(100, 50, BottomLeft, 100, 5), std::runtime_error, "Divide by zero (1)");
    EXPECT_THROW_TEXT(map_of(100, 50, BottomLeft, 5, -50), std::runtime_error, "Divide by zero (2)");
    EXPECT_THROW_TEXT(map_of(100, 50, TopRight, -100, 5), std::runtime_error, "Divide by zero (1)");
    EXPECT_THROW_TEXT(map_of(100, 50, TopRight, 5, 50), std::runtime_error, "Divide by zero (2)");
    EXPECT_THROW_TEXT(map_of(100, 50, BottomRight, -100, 5), std::runtime_error, "Divide by zero (1)");
    EXPECT_THROW_TEXT(map_of(100, 50, BottomRight, 5, -50), std::runtime_error, "Divide by zero (2)");
}

TEST(SkewMap, cannot_be_made_of_a_picture_without_pixels) {
    for (const Corner corner : corners) {
        for (const int move : {-3, 0, 3}) {
            for (const auto& [width, height] : {std::pair(0, 5), std::pair(5, 0), std::pair(0, 0)}) {
                EXPECT_THROW(map_of(width, height, corner, move, 1), std::runtime_error);
                EXPECT_THROW(map_of(width, height, corner, 1, move), std::runtime_error);
            }
        }
    }
}

}  // namespace
