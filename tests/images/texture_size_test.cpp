#include "lvx/images/texture_size.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using lvx::images::texture_limit;
using lvx::images::texture_side;

TEST(TextureSize, is_limited_to_128_and_to_the_device) {
    EXPECT_EQ(128, texture_limit(16384));
    EXPECT_EQ(128, texture_limit(129));
    EXPECT_EQ(128, texture_limit(128));
    EXPECT_EQ(127, texture_limit(127));
    EXPECT_EQ(64, texture_limit(64));
    EXPECT_EQ(1, texture_limit(1));
    EXPECT_EQ(1, texture_limit(0));
    EXPECT_EQ(1, texture_limit(-1));
}

TEST(TextureSize, is_the_next_power_of_two) {
    const struct {
        int side, limit, texture;
    } cases[] = {{1, 128, 1},     {2, 128, 2},     {3, 128, 4},     {4, 128, 4},         {5, 128, 8},
                 {63, 128, 64},   {64, 128, 64},   {65, 128, 128},  {100, 128, 128},     {128, 128, 128},
                 {129, 128, 128}, {200, 128, 128}, {300, 128, 128}, {INT_MAX, 128, 128}, {100, 64, 64},
                 {64, 64, 64},    {33, 64, 64},    {9, 1, 1}};
    for (const auto& one : cases) {
        EXPECT_EQ(one.texture, texture_side(one.side, one.limit)) << one.side << " of " << one.limit;
    }
}

// Against counting: logarithms of powers of two have to be whole.
TEST(TextureSize, is_right_for_every_side_up_to_the_limit) {
    for (int side = 1; side <= 128; ++side) {
        int power = 1;
        while (power < side) {
            power *= 2;
        }
        EXPECT_EQ(power, texture_side(side, 128)) << side;
    }
}

// A limit that is no power of two, which no device has, is rounded up as a side is.
TEST(TextureSize, of_an_odd_limit_is_rounded_up) {
    EXPECT_EQ(128, texture_side(500, 100));
}

}  // namespace
