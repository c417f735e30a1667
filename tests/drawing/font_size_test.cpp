#include "lvx/drawing/font_size.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>

using lvx::drawing::clamped;
using lvx::drawing::points_of;
using lvx::drawing::requested_height;
using lvx::drawing::whole_points;

TEST(FontSize, asks_for_the_height_of_characters) {
    const struct {
        int points, dpi, height;
    } cases[] = {
        {12, 96, -16},     // 96 * 12 * 20 / 1440
        {10, 96, -13},     // 13.33
        {11, 96, -14},     // 14.67: cut off, not rounded
        {8, 600, -66},     // 66.67
        {12, 2540, -423},  // hundredths of a millimetre
        {1, 71, 0},        // less than a unit asks for any height
        {1, 72, -1},
        {0, 96, 0},
        {-12, 96, -16},
        {12, -96, -16},
        {INT_MAX, 1, -29826161},
        {INT_MAX, 72, -INT_MAX},
        {INT_MAX, INT_MAX, INT_MIN},
        {INT_MIN, INT_MAX, INT_MIN},
        {INT_MIN, INT_MIN, INT_MIN},
    };
    for (const auto& [points, dpi, height] : cases) {
        EXPECT_EQ(height, requested_height(points, dpi)) << points << " at " << dpi;
    }
}

TEST(FontSize, is_told_in_points) {
    EXPECT_EQ(12, points_of(16, 96));
    EXPECT_EQ(9, points_of(13, 96));  // 9.75
    EXPECT_EQ(0, points_of(0, 96));
    EXPECT_EQ(0, points_of(1, 96));
    EXPECT_EQ(-9, points_of(-13, 96));
    EXPECT_EQ(INT_MAX, points_of(INT_MAX, 1));
    EXPECT_EQ(INT_MIN, points_of(INT_MAX, -1));
    EXPECT_EQ(INT_MAX, points_of(INT_MIN, -1));
}

TEST(FontSize, in_whole_points_has_its_fraction_cut_off) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const struct {
        double size;
        int points;
    } cases[] = {
        {10.5, 10},
        {10.999, 10},
        {-10.5, -10},
        {0.9, 0},
        {-0.0, 0},
        {2147483646.5, INT_MAX - 1},
        {2147483647.5, INT_MAX},
        {1e300, INT_MAX},
        {infinity, INT_MAX},
        {-2147483647.5, -INT_MAX},
        {-2147483649.0, INT_MIN},
        {-infinity, INT_MIN},
        {std::numeric_limits<double>::quiet_NaN(), 0},
    };
    for (const auto& [size, points] : cases) {
        EXPECT_EQ(points, whole_points(size)) << size;
    }
}

TEST(FontSize, stays_within_the_numbers_that_there_are) {
    EXPECT_EQ(SHRT_MAX, clamped<short>(40000));
    EXPECT_EQ(SHRT_MIN, clamped<short>(-40000));
    EXPECT_EQ(-7, clamped<short>(-7));
}
