#include "lvx/drawing/point_growth.h"

#include <gtest/gtest.h>

#include <climits>

using lvx::drawing::grown;

TEST(PointGrowth, doubles_and_adds_two) {
    EXPECT_EQ(2, grown(0));
    EXPECT_EQ(6, grown(2));
    EXPECT_EQ(14, grown(6));
    EXPECT_EQ(INT_MAX - 1, grown(INT_MAX / 2 - 1));
}

TEST(PointGrowth, ends_where_counting_does) {
    EXPECT_THROW(grown(INT_MAX / 2), std::bad_alloc);
    EXPECT_THROW(grown(INT_MAX), std::bad_alloc);
}
