#include "lvx/images/default_colours.h"

#include <gtest/gtest.h>

namespace {

using lvx::images::default_colour;

TEST(DefaultColours, of_one_bit_are_black_and_white) {
    EXPECT_EQ(0u, default_colour(1, 0));
    EXPECT_EQ(0xFFFFFFu, default_colour(1, 1));
}

// Half as strong first, then in full: of the number of a colour bit 0 is red, 1 green, 2 blue.
TEST(DefaultColours, of_four_bits_are_the_sixteen_colours) {
    for (unsigned i = 1; i < 7; ++i) {
        const unsigned primaries = (i & 1) << 16 | (i >> 1 & 1) << 8 | i >> 2;
        EXPECT_EQ(primaries * 0x80, default_colour(4, i)) << i;
        EXPECT_EQ(primaries * 0xFF, default_colour(4, i + 8)) << i;
    }
    EXPECT_EQ(0x000000u, default_colour(4, 0));
    EXPECT_EQ(0x808080u, default_colour(4, 7));
    EXPECT_EQ(0xC0C0C0u, default_colour(4, 8));
    EXPECT_EQ(0xFFFFFFu, default_colour(4, 15));
}

TEST(DefaultColours, of_eight_bits_have_the_systems_colours_at_both_ends) {
    EXPECT_EQ(0x000000u, default_colour(8, 0));
    EXPECT_EQ(0xC0C0C0u, default_colour(8, 7));
    EXPECT_EQ(0xC0DCC0u, default_colour(8, 8));
    EXPECT_EQ(0xA6CAF0u, default_colour(8, 9));
    EXPECT_EQ(0xFFFBF0u, default_colour(8, 246));
    EXPECT_EQ(0xA0A0A4u, default_colour(8, 247));
    EXPECT_EQ(0xFFFFFFu, default_colour(8, 255));
}

TEST(DefaultColours, of_eight_bits_have_shades_between_of_which_red_changes_first) {
    EXPECT_EQ(0x402000u, default_colour(8, 10));
    EXPECT_EQ(0x602000u, default_colour(8, 11));
    EXPECT_EQ(0x004000u, default_colour(8, 16));
    EXPECT_EQ(0xE0E000u, default_colour(8, 63));
    EXPECT_EQ(0x000040u, default_colour(8, 64));
    EXPECT_EQ(0xA0C0C0u, default_colour(8, 245));
}

}  // namespace
