#include "lvx/images/colour_writer.h"

#include <gtest/gtest.h>

#include <vector>

#include "images/picture_bytes.h"
#include "lvx/images/colour_reader.h"
#include "lvx/images/default_colours.h"

namespace {

using lvx::images::ColourWriter;
using lvx::images::default_colour;
using lvx::images::PixelFormat;
using lvx::images::plain_format;
using lvx_test::bytes;

using Colours = std::vector<std::uint32_t>;

// As many bytes as the pixels take, and one more, which has to stay.
std::string written(const PixelFormat& format, const Colours& colours) {
    const std::size_t size = (colours.size() * format.depth + 7) / 8;
    std::string row(size + 1, '\x55');
    ColourWriter(format).Write(colours.data(), colours.size(), reinterpret_cast<unsigned char*>(row.data()));
    EXPECT_EQ('\x55', row.back());
    row.pop_back();
    return row;
}

TEST(ColourWriter, writes_bytes_of_blue_green_and_red) {
    EXPECT_BYTES(bytes("010203 FDFEFF"), written(plain_format(24), {0xAA030201, 0xFFFEFD}));
}

TEST(ColourWriter, keeps_the_fourth_byte_of_32_bits) {
    EXPECT_BYTES(bytes("010203AA FDFEFF00"), written(plain_format(32), {0xAA030201, 0xFFFEFD}));
}

TEST(ColourWriter, cuts_off_what_five_bits_cannot_hold) {
    EXPECT_BYTES(bytes("0000 FF7F 4404"), written(plain_format(16), {0x070707, 0xFFFFFF, 0x0F1727}));
}

TEST(ColourWriter, writes_the_fields_that_masks_tell) {
    EXPECT_BYTES(bytes("00F8 E007 1F00 2000"),
                 written({16, 0xF800, 0x07E0, 0x001F}, {0xFF0000, 0x00FF00, 0x0000FF, 0x000407}));
    EXPECT_BYTES(bytes("01020300"), written({32, 0x0000FF, 0x00FF00, 0xFF0000}, {0xAA010203}));
    EXPECT_BYTES(bytes("FF03F03F"), written({32, 0x3FF00000, 0x000FFC00, 0x000003FF}, {0xFF00FF}));
    EXPECT_BYTES(bytes("00000080"), written({32, 0x80000000, 0, 0}, {0x80FFFF}));
    EXPECT_BYTES(bytes("FEFEFEFE"), written({32, 0xFFFFFFFF, 0, 0}, {0xFE0000}));
}

// Grey is white from 128 on: 3 * 128 is nearer to 3 * 255 than to 0.
TEST(ColourWriter, finds_the_nearer_of_black_and_white) {
    EXPECT_BYTES(bytes("4C80"), written(plain_format(1), {0x7F7F7F, 0x808080, 0xFF0000, 0, 0xFFFF00, 0x00FFFF,
                                                          0x0000FE, 0x7F7F80, 0xFFFFFF}));
}

TEST(ColourWriter, finds_the_nearest_of_sixteen_colours) {
    EXPECT_BYTES(bytes("97 8F 00"),
                 written(plain_format(4), {0xF01010, 0x707070, 0xB0B0B0, 0xF0F0F0, 0x101010}));
}

// Of equally near ones it is the first: 0x404040 lies between black and grey, 0x400000 between black and
// dark red.
TEST(ColourWriter, takes_the_first_of_those_that_are_equally_near) {
    EXPECT_BYTES(bytes("00"), written(plain_format(4), {0x404040, 0x400000}));
}

TEST(ColourWriter, finds_each_default_colour_itself) {
    for (const std::uint16_t depth : {std::uint16_t{1}, std::uint16_t{4}}) {
        for (std::size_t i = 0; i < std::size_t{1} << depth; ++i) {
            const std::string pixel = written(plain_format(depth), {default_colour(depth, i)});
            EXPECT_EQ(i, static_cast<unsigned char>(pixel[0]) >> (8 - depth)) << depth;
        }
    }
}

int distance(std::uint32_t a, std::uint32_t b) {
    int sum = 0;
    for (const int shift : {0, 8, 16}) {
        const int difference = static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF);
        sum += difference * difference;
    }
    return sum;
}

// The same colour for all that share their five highest bits: the nearest one to the middle of them.
TEST(ColourWriter, finds_the_nearest_of_256_colours_by_five_bits_of_each_component) {
    Colours colours;
    for (std::uint32_t i = 0; i < 4096; ++i) {
        colours.push_back(i * 2654435761u >> 8);
    }
    const std::string row = written(plain_format(8), colours);
    for (std::size_t i = 0; i < colours.size(); ++i) {
        const std::uint32_t middle = (colours[i] & 0xF8F8F8) + 0x040404;
        std::size_t nearest = 0;
        for (std::size_t index = 255; index + 1 > 0; --index) {
            if (distance(middle, default_colour(8, index)) <= distance(middle, default_colour(8, nearest))) {
                nearest = index;
            }
        }
        ASSERT_EQ(nearest, static_cast<unsigned char>(row[i])) << std::hex << colours[i];
    }
}

TEST(ColourWriter, writes_what_a_reader_has_read) {
    for (const PixelFormat& format :
         {plain_format(16), plain_format(24), plain_format(32), PixelFormat{16, 0xF800, 0x07E0, 0x001F},
          PixelFormat{16, 0x0F00, 0x00F0, 0x000F}, PixelFormat{16, 0x00E0, 0x001C, 0x0003},
          PixelFormat{32, 0xFF0000, 0x00FF00, 0x0000FF}}) {
        std::string row;
        for (int i = 0; i < 32 * format.depth / 8; ++i) {
            row += static_cast<char>(i * 37 + 11);
        }
        const std::uint32_t used = format.HasMasks() ? format.red | format.green | format.blue : 0xFFFFFFFF;
        for (std::size_t i = 0; i < row.size(); ++i) {
            row[i] = static_cast<char>(row[i] & static_cast<char>(used >> (8 * (i % (format.depth / 8u)))));
        }
        Colours colours(32);
        lvx::images::ColourReader(format, {nullptr, 0, 4})
            .Read(reinterpret_cast<const unsigned char*>(row.data()), 32, colours.data());
        EXPECT_BYTES(row, written(format, colours)) << format.depth;
    }
}

}  // namespace
