#include "owl/hatch_brush.h"

#include <gtest/gtest.h>

#include <string>

#include "surface.h"

namespace {

using owl::TColor;
using owl::THatch8x8Brush;
using owl::TRect;
using owl_test::Surface;

std::string Filled(const owl::TBrush& brush) {
    Surface surface(8, 8);
    surface.dc.FillRect(TRect(0, 0, 8, 8), brush);
    return surface.Picture();
}

TEST(Hatch8x8Brush, draws_set_bits_in_the_foreground_the_upper_row_and_the_left_pixel_first) {
    const std::uint8_t hatch[8] = {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x81};
    EXPECT_EQ(
        "RBBBBBBB\n"
        "BRBBBBBB\n"
        "BBRBBBBB\n"
        "BBBRBBBB\n"
        "BBBBRBBB\n"
        "BBBBBRBB\n"
        "BBBBBBRB\n"
        "RBBBBBBR\n",
        Filled(THatch8x8Brush(hatch, TColor::LtRed, TColor::LtBlue)));
}

TEST(Hatch8x8Brush, takes_no_colour_of_the_context) {
    Surface surface(2, 1);
    surface.dc.SetTextColor(TColor::LtGreen);
    surface.dc.SetBkColor(TColor::LtYellow);
    const THatch8x8Brush brush(THatch8x8Brush::Hatch11F1, TColor::LtRed, TColor::LtBlue);
    surface.dc.FillRect(TRect(0, 0, 2, 1), brush);
    EXPECT_EQ("RB\n", surface.Picture());
}

TEST(Hatch8x8Brush, hatch_11F1_is_a_chequer) {
    const std::string picture =
        Filled(THatch8x8Brush(THatch8x8Brush::Hatch11F1, TColor::Black, TColor::White));
    EXPECT_EQ("#.#.#.#.\n.#.#.#.#\n#.#.#.#.\n.#.#.#.#\n#.#.#.#.\n.#.#.#.#\n#.#.#.#.\n.#.#.#.#\n", picture);
}

// The first number pixels on, the second off, each row shifted by the last number to the right (F) or left
// (B).
TEST(Hatch8x8Brush, patterns_keep_what_their_names_say) {
    const struct {
        const std::uint8_t* hatch;
        int on, off, shift;
    } names[] = {
        {THatch8x8Brush::Hatch11F1, 1, 1, 1},  {THatch8x8Brush::Hatch22F1, 2, 2, 1},
        {THatch8x8Brush::Hatch22B1, 2, 2, -1}, {THatch8x8Brush::Hatch13F1, 1, 3, 1},
        {THatch8x8Brush::Hatch13B1, 1, 3, -1},
    };
    for (const auto& name : names) {
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 8; ++x) {
                const int period = name.on + name.off;
                const bool on = (x - y * name.shift + 8 * period) % period < name.on;
                EXPECT_EQ(on, (name.hatch[y] >> (7 - x) & 1) != 0)
                    << name.on << name.off << name.shift << x << y;
            }
        }
    }
}

TEST(Hatch8x8Brush, is_made_anew_in_other_colours) {
    THatch8x8Brush brush(THatch8x8Brush::Hatch11F1, TColor::LtRed, TColor::LtBlue);
    const std::uint8_t hatch[8] = {0xF0, 0, 0, 0, 0, 0, 0, 0};
    brush.Reconstruct(hatch, TColor::LtGreen, TColor::LtYellow);
    EXPECT_EQ("GGGGYYYY", Filled(brush).substr(0, 8));
    EXPECT_EQ("YYYYYYYY", Filled(brush).substr(9, 8));
    brush.Reconstruct(hatch, TColor::White, TColor::White);
    EXPECT_EQ("........", Filled(brush).substr(0, 8));
}

TEST(Hatch8x8Brush, leaves_nothing_behind) {
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        THatch8x8Brush brush(THatch8x8Brush::Hatch11F1, TColor::LtRed, TColor::LtBlue);
        brush.Reconstruct(THatch8x8Brush::Hatch13F1, TColor::LtGreen, TColor::LtYellow);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
