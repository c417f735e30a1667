#include "lvx/drawing/raster_operation.h"

#include <gtest/gtest.h>

using lvx::drawing::raster_operation;

TEST(RasterOperation, has_a_counterpart_for_eight_rules) {
    EXPECT_EQ(0x7700E6u, raster_operation(3));
    EXPECT_EQ(0x330008u, raster_operation(4));
    EXPECT_EQ(0x660046u, raster_operation(7));
    EXPECT_EQ(0x8800C6u, raster_operation(9));
    EXPECT_EQ(0x990066u, raster_operation(10));
    EXPECT_EQ(0xBB0226u, raster_operation(12));
    EXPECT_EQ(0xCC0020u, raster_operation(13));
    EXPECT_EQ(0xEE0086u, raster_operation(15));
}

TEST(RasterOperation, copies_by_all_others) {
    for (const int rule : {-1, 0, 1, 2, 5, 6, 8, 11, 14, 16, 17, 99, 0x7FFFFFFF}) {
        EXPECT_EQ(0xCC0020u, raster_operation(rule)) << rule;
    }
}
