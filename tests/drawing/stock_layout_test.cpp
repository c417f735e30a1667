#include "lvx/drawing/stock_layout.h"

#include <gtest/gtest.h>

TEST(StockLayout, is_in_parts_of_a_character_rounded_up) {
    const struct {
        int width, height, lineSpace, horizontalUnit, verticalUnit;
    } cases[] = {
        {7, 16, 28, 2, 2},   // 28.8
        {8, 17, 30, 2, 3},   // 30.6
        {9, 20, 36, 3, 3},   // exactly
        {0, 0, 0, 0, 0},     //
        {1, 1, 1, 1, 1},     //
        {4, 8, 14, 1, 1},    // 14.4
        {-1, -1, -1, 0, 0},  // -1.8, cut off towards 0; the others are shifted
        {-4, -8, -14, -1, -1},
    };
    for (const auto& [width, height, lineSpace, horizontalUnit, verticalUnit] : cases) {
        const lvx::drawing::StockLayout layout = lvx::drawing::stock_layout(width, height);
        EXPECT_EQ(width, layout.width);
        EXPECT_EQ(height, layout.height);
        EXPECT_EQ(lineSpace, layout.lineSpace) << height;
        EXPECT_EQ(horizontalUnit, layout.horizontalUnit) << width;
        EXPECT_EQ(verticalUnit, layout.verticalUnit) << height;
    }
}
