#include "lvx/drawing/colours.h"

#include <gtest/gtest.h>

TEST(Colours, are_the_pure_ones) {
    EXPECT_EQ(owl::TColor(0, 0, 0), LVX::Black);
    EXPECT_EQ(owl::TColor(255, 255, 255), LVX::White);
    EXPECT_EQ(owl::TColor(255, 0, 0), LVX::Red);
    EXPECT_EQ(owl::TColor(0, 255, 0), LVX::Green);
    EXPECT_EQ(owl::TColor(0, 0, 255), LVX::Blue);
    EXPECT_EQ(owl::TColor(0, 255, 255), LVX::Cyan);
    EXPECT_EQ(owl::TColor(255, 0, 255), LVX::Magenta);
    EXPECT_EQ(owl::TColor(255, 255, 0), LVX::Yellow);
    EXPECT_EQ(owl::TColor(192, 192, 192), LVX::LightGrey);
}

TEST(Colours, have_one_that_stands_for_none) {
    EXPECT_EQ(owl::TColor::Transparent, LVX::Transparent);
    EXPECT_FALSE(LVX::Transparent == LVX::White);
    EXPECT_EQ(LVX::White, LVX::Transparent.Rgb());
}
