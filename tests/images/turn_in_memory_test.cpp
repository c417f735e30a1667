#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "images/skew_pictures.h"
#include "images/turn_pictures.h"
#include "lvx/images/default_colours.h"
#include "lvx/images/turn.h"

namespace {

using lvx::images::turn_frame;
using lvx::images::turn_in_memory;
using lvx::images::TurnFrame;
using lvx_test::bytes;
using lvx_test::letter_case;
using lvx_test::letters_of;
using lvx_test::SkewDice;
using lvx_test::TurnCase;
using lvx_test::Turned;

using Letters = std::vector<std::string>;

const double pi = std::acos(-1.0);

Letters turned_letters(const Letters& rows, double angle) {
    const TurnCase turned = letter_case(rows, angle);
    const TurnFrame frame = turn_frame(turned.info.width, turned.info.height, angle);
    const Turned result = lvx_test::turn(turn_in_memory, turned);
    EXPECT_TRUE(result.is_good);
    return letters_of(result.pixels, static_cast<std::size_t>(frame.width));
}

const Letters picture = {"abcd", "efgh", "ijkl"};

TEST(TurningInMemory, by_nothing_gives_the_picture) {
    EXPECT_EQ(picture, turned_letters(picture, 0));
}

TEST(TurningInMemory, by_a_quarter_goes_against_the_clock) {
    EXPECT_EQ((Letters{"dhl", "cgk", "bfj", "aei"}), turned_letters(picture, pi / 2));
    EXPECT_EQ((Letters{"lkji", "hgfe", "dcba"}), turned_letters(picture, pi));
    EXPECT_EQ((Letters{"iea", "jfb", "kgc", "lhd"}), turned_letters(picture, -pi / 2));
}

// 12 pixels stand on their corner from 0 to 16.97 in a frame of 16 by 16. In the row whose middle is 3.5
// above the left corner the picture goes from 3.5 to 13.47.
TEST(TurningInMemory, by_an_eighth_leaves_white_corners_with_a_black_line_around) {
    const Letters rows = turned_letters(Letters(12, std::string(12, 'x')), pi / 4);
    ASSERT_EQ(16u, rows.size());
    EXPECT_EQ("#######", rows[0].substr(0, 7));
    EXPECT_EQ("######", rows[0].substr(10));
    EXPECT_EQ("#..", rows[4].substr(0, 3));
    EXPECT_EQ("xxxxxxxxx..#", rows[4].substr(4));
    EXPECT_EQ("xxxxxxxxxxxxxxx", rows[8].substr(1));
    EXPECT_EQ("#######", rows[15].substr(0, 7));
}

// Which pixel of the picture is seen at a place, by going back in doubles; -1 outside, -2 where that lies
// next to the edge of a pixel.
int seen_at(const TurnCase& turned, const TurnFrame& frame, int x, int y) {
    const double c = std::cos(turned.angle);
    const double s = std::sin(turned.angle);
    const double px = x + 0.5 - static_cast<double>(frame.dx);
    const double py = y + 0.5 - static_cast<double>(frame.dy);
    const double u = px * c - py * s;
    const double v = px * s + py * c;
    constexpr double doubtful = 1e-4;
    if (std::fabs(u - std::round(u)) < doubtful || std::fabs(v - std::round(v)) < doubtful) {
        return -2;
    }
    const bool is_inside = u > 0 && v > 0 && u < turned.info.width && v < turned.info.height;
    return is_inside ? static_cast<int>(v) * turned.info.width + static_cast<int>(u) : -1;
}

TEST(TurningInMemory, by_any_angle_shows_what_the_way_back_leads_to) {
    SkewDice dice(1);
    int compared = 0;
    for (int i = 0; i < 200; ++i) {
        TurnCase turned;
        turned.info.width = dice.Number(1, 30);
        turned.info.height = dice.Number(1, 30);
        turned.info.depth = 32;
        turned.angle = dice.Number(-4000, 4000) / 500.0;
        const int count = turned.info.width * turned.info.height;
        for (int pixel = 0; pixel < count; ++pixel) {
            const int from_top = turned.info.height - 1 - pixel / turned.info.width;
            turned.pixels += lvx_test::little_endian(
                1000u + static_cast<unsigned>(from_top * turned.info.width + pixel % turned.info.width), 4);
        }
        const TurnFrame frame = turn_frame(turned.info.width, turned.info.height, turned.angle);
        const Turned result = lvx_test::turn(turn_in_memory, turned);
        for (int y = 0; y < frame.height; ++y) {
            for (int x = 0; x < frame.width; ++x) {
                const int seen = seen_at(turned, frame, x, y);
                if (seen == -2) {
                    continue;
                }
                const bool is_edge = x == 0 || y == 0 || x == frame.width - 1 || y == frame.height - 1;
                const std::uint32_t ground = is_edge ? 0 : 0xFFFFFF;
                const auto place = static_cast<std::size_t>((frame.height - 1 - y) * frame.width + x) * 4;
                ASSERT_EQ(seen < 0 ? ground : static_cast<unsigned>(seen) + 1000,
                          lvx_test::number_at(result.pixels, place))
                    << turned.info.width << " by " << turned.info.height << " by " << turned.angle << " at "
                    << x << "," << y;
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 50000);
}

TEST(TurningInMemory, of_rows_from_the_top_down_gives_them_from_the_bottom_up) {
    TurnCase turned = letter_case(picture, 0);
    turned.info.height = -turned.info.height;
    EXPECT_EQ((Letters{"ijkl", "efgh", "abcd"}),
              letters_of(lvx_test::turn(turn_in_memory, turned).pixels, 4));
}

// A header of an odd length leaves the pixels at an odd address.
TEST(TurningInMemory, reads_pixels_that_are_not_aligned) {
    for (const std::size_t shift : {1u, 2u, 3u}) {
        for (const double angle : {0.0, pi / 2}) {
            TurnCase turned = letter_case(picture, angle);
            turned.behind_header = std::string(shift, '?');
            const Turned result = lvx_test::turn(turn_in_memory, turned);
            EXPECT_EQ(turned_letters(picture, angle), letters_of(result.pixels, angle == 0 ? 4 : 3)) << shift;
        }
    }
}

TEST(TurningInMemory, fills_the_padding_of_a_row_with_0) {
    TurnCase turned;
    turned.info = {.width = 3, .height = 2, .depth = 24};
    turned.pixels = bytes("010203 040506 070809 EEEEEE 111213 141516 171819 EEEEEE");
    EXPECT_BYTES(bytes("010203 040506 070809 000000 111213 141516 171819 000000"),
                 lvx_test::turn(turn_in_memory, turned).pixels);
}

TEST(TurningInMemory, of_pixels_with_a_table_gives_the_default_one) {
    TurnCase turned;
    turned.info = {.width = 4, .height = 1, .depth = 8};
    turned.behind_header = bytes("FFFFFF00 0000FF00 10F01000 000000EE");
    turned.pixels = bytes("03000102");
    const Turned result = lvx_test::turn(turn_in_memory, turned);
    // Black, white, red and nearly green.
    EXPECT_BYTES(bytes("00FFF9FA"), result.pixels);
    for (std::size_t i = 0; i < 256; ++i) {
        EXPECT_EQ(lvx::images::default_colour(8, i), lvx_test::number_at(result.table, 4 * i)) << i;
    }
}

}  // namespace
