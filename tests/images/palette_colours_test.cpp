#include "lvx/images/palette_colours.h"

#include <gtest/gtest.h>

namespace {

using lvx::images::PaletteColour;
using lvx::images::spread_colours;
using lvx::images::table_colours;

using Colours = std::vector<PaletteColour>;

TEST(PaletteColours, of_a_table_are_taken_from_the_right_bytes) {
    const unsigned char table[] = {1, 2, 3, 99, 4, 5, 6, 98};
    EXPECT_EQ((Colours{{3, 2, 1}, {6, 5, 4}}), table_colours(table, sizeof table, 2));
    EXPECT_EQ((Colours{{3, 2, 1}}), table_colours(table, sizeof table, 1));
    EXPECT_EQ(Colours(), table_colours(table, sizeof table, 0));
}

TEST(PaletteColours, that_a_table_lacks_are_black) {
    const unsigned char table[] = {1, 2, 3, 99, 4, 5};
    EXPECT_EQ((Colours{{3, 2, 1}, {0, 5, 4}, {0, 0, 0}}), table_colours(table, sizeof table, 3));
    EXPECT_EQ((Colours{{0, 0, 0}}), table_colours(nullptr, 0, 1));
}

TEST(PaletteColours, are_65535_at_the_most) {
    EXPECT_EQ(65535u, table_colours(nullptr, 0, 65535).size());
    EXPECT_EQ(0u, table_colours(nullptr, 0, 65536).size());
    EXPECT_EQ(0u, table_colours(nullptr, 0, 0xFFFFFFFF).size());
}

// Counted up as the rule says it: red first, green when red wraps, blue when green does.
TEST(PaletteColours, are_spread_with_red_the_fastest_and_blue_the_slowest) {
    const Colours spread = spread_colours();
    ASSERT_EQ(256u, spread.size());
    std::uint8_t red = 0, green = 0, blue = 0;
    for (const PaletteColour& colour : spread) {
        EXPECT_EQ((PaletteColour{red, green, blue}), colour);
        red = static_cast<std::uint8_t>(red + 32);
        if (red == 0) {
            green = static_cast<std::uint8_t>(green + 32);
            if (green == 0) {
                blue = static_cast<std::uint8_t>(blue + 64);
            }
        }
    }
    EXPECT_EQ((PaletteColour{0, 0, 0}), spread[0]);
    EXPECT_EQ((PaletteColour{32, 0, 0}), spread[1]);
    EXPECT_EQ((PaletteColour{0, 32, 0}), spread[8]);
    EXPECT_EQ((PaletteColour{0, 0, 64}), spread[64]);
    EXPECT_EQ((PaletteColour{224, 224, 192}), spread[255]);
}

}  // namespace
