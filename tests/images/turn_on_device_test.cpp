// Turning through the system's own drawing, beside turning by arithmetic.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "images/skew_pictures.h"
#include "images/turn_pictures.h"
#include "lvx/images/turn.h"
#include "owl/memory_dc.h"
#include "owl/turned_picture.h"

namespace {

using lvx::images::turn_in_memory;
using lvx::images::turn_on_device;
using lvx::images::TurnFrame;
using lvx_test::letter_case;
using lvx_test::letters_of;
using lvx_test::SkewDice;
using lvx_test::TurnCase;
using lvx_test::Turned;

using Letters = std::vector<std::string>;

const double pi = std::acos(-1.0);

struct Kind {
    std::uint32_t depth;
    std::uint32_t compression;
    std::string masks;
};

std::vector<Kind> kinds() {
    const auto masks = [](std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
        return lvx_test::little_endian(red, 4) + lvx_test::little_endian(green, 4) +
               lvx_test::little_endian(blue, 4);
    };
    return {{1, 0, ""},
            {4, 0, ""},
            {8, 0, ""},
            {16, 0, ""},
            {24, 0, ""},
            {32, 0, ""},
            {16, 3, masks(0xF800, 0x07E0, 0x001F)},
            {16, 3, masks(0x0F00, 0x00F0, 0x000F)},
            {32, 3, masks(0xFF0000, 0x00FF00, 0x0000FF)},
            {32, 3, masks(0x0000FF, 0x00FF00, 0xFF0000)}};
}

TurnCase random_case(SkewDice& dice, const Kind& kind, int most) {
    TurnCase turned;
    turned.info.width = dice.Number(1, most);
    turned.info.height = dice.Number(1, most);
    turned.info.depth = kind.depth;
    turned.info.compression = kind.compression;
    turned.behind_header = kind.masks;
    const std::size_t table = kind.depth <= 8 ? std::size_t{4} << kind.depth : 0;
    while (turned.behind_header.size() < table) {
        turned.behind_header += static_cast<char>(dice.Number(0, 255));
    }
    const std::size_t size =
        lvx_test::stride_of(turned.info.width, kind.depth) * static_cast<std::size_t>(turned.info.height);
    while (turned.pixels.size() < size) {
        turned.pixels += static_cast<char>(dice.Number(0, 255));
    }
    return turned;
}

// What lies behind the pixels of a row means nothing.
std::string without_padding(const std::string& pixels, const TurnFrame& frame, std::uint32_t depth) {
    const std::size_t stride = lvx_test::stride_of(frame.width, depth);
    const std::size_t bits = static_cast<std::size_t>(frame.width) * depth;
    std::string result;
    for (std::size_t row = 0; row < pixels.size(); row += stride) {
        result += pixels.substr(row, bits / 8);
        if (bits % 8 != 0) {
            result += static_cast<char>(pixels[row + bits / 8] & (0xFF00 >> bits % 8));
        }
    }
    return result;
}

void expect_alike(const TurnCase& turned) {
    const TurnFrame frame = lvx::images::turn_frame(turned.info.width, turned.info.height, turned.angle);
    if (frame.width == 0 || frame.height == 0) {
        return;
    }
    const Turned here = lvx_test::turn(turn_in_memory, turned);
    const Turned there = lvx_test::turn(turn_on_device, turned);
    ASSERT_TRUE(there.is_good);
    EXPECT_BYTES(here.table, there.table);
    ASSERT_EQ(lvx_test::hex(without_padding(here.pixels, frame, turned.info.depth)),
              lvx_test::hex(without_padding(there.pixels, frame, turned.info.depth)))
        << turned.info.width << " by " << turned.info.height << ", " << turned.info.depth << " bits by "
        << turned.angle;
}

TEST(TurningOnADevice, by_nothing_is_as_in_memory_for_every_kind_of_pixels) {
    SkewDice dice(1);
    for (const Kind& kind : kinds()) {
        for (int i = 0; i < 10; ++i) {
            expect_alike(random_case(dice, kind, 40));
        }
    }
}

TEST(TurningOnADevice, by_quarters_is_as_in_memory_for_every_kind_of_pixels) {
    SkewDice dice(2);
    for (const Kind& kind : kinds()) {
        for (const double angle : {pi / 2, pi, -pi / 2, 2 * pi}) {
            TurnCase turned = random_case(dice, kind, 40);
            turned.angle = angle;
            expect_alike(turned);
        }
    }
}

// Where the system turns pictures itself it may round differently at the border.
TEST(TurningOnADevice, by_any_angle_is_as_in_memory_for_every_kind_of_pixels) {
    SkewDice dice(3);
    for (const Kind& kind : kinds()) {
        for (int i = 0; i < 20; ++i) {
            TurnCase turned = random_case(dice, kind, 60);
            turned.angle = dice.Number(-4000, 4000) / 500.0;
            expect_alike(turned);
        }
    }
}

TEST(TurningOnADevice, of_rows_from_the_top_down_is_as_in_memory) {
    for (const double angle : {0.0, pi / 2, 1.0}) {
        TurnCase turned = letter_case({"abcd", "efgh", "ijkl"}, angle);
        turned.info.height = -turned.info.height;
        const Turned here = lvx_test::turn(turn_in_memory, turned);
        const Turned there = lvx_test::turn(turn_on_device, turned);
        EXPECT_BYTES(here.pixels, there.pixels) << angle;
    }
}

TEST(TurningOnADevice, fails_where_the_system_makes_no_bitmap) {
    const TurnCase turned = letter_case({"ab"}, 0);
    lvx::images::TurnTask task{};
    const std::string block = turned.info.Header() + turned.pixels;
    task.source.header = reinterpret_cast<const unsigned char*>(block.data());
    task.source.pixels = task.source.header + 40;
    task.source.width = 2;
    task.source.rows = 1;
    task.target.format = lvx::images::plain_format(32);
    task.target.width = 100000;
    task.target.height = 100000;
    EXPECT_FALSE(turn_on_device(task));
}

TEST(TurningOnADevice, fails_where_the_system_does_not_read_such_pixels_back) {
    TurnCase turned = letter_case({"ab"}, 0);
    turned.info.compression = 4;
    EXPECT_FALSE(lvx_test::turn(turn_on_device, turned).is_good);
}

}  // namespace
