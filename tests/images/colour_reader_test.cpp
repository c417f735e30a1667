#include "lvx/images/colour_reader.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/bytes.h"

namespace {

using lvx::images::ColourReader;
using lvx::images::ColourTable;
using lvx::images::is_readable;
using lvx::images::PixelFormat;
using lvx::images::plain_format;
using lvx_test::bytes;

using Colours = std::vector<std::uint32_t>;

const unsigned char* data_of(const std::string& text) {
    return reinterpret_cast<const unsigned char*>(text.data());
}

Colours read(const PixelFormat& format, const std::string& row, std::size_t count,
             const std::string& table = "", std::size_t entry_size = 4) {
    Colours colours(count);
    const ColourReader reader(format, {data_of(table), table.size() / entry_size, entry_size});
    reader.Read(data_of(row), count, colours.data());
    return colours;
}

TEST(ColourReader, reads_bytes_of_blue_green_and_red) {
    EXPECT_EQ((Colours{0x030201, 0xFFFEFD}), read(plain_format(24), bytes("010203 FDFEFF"), 2));
}

TEST(ColourReader, keeps_the_fourth_byte_of_32_bits) {
    EXPECT_EQ((Colours{0xAA030201, 0x00FFFEFD}), read(plain_format(32), bytes("010203AA FDFEFF00"), 2));
}

const std::string table = bytes("000000EE 112233EE 445566EE 778899EE");

TEST(ColourReader, looks_indices_up_with_the_first_pixel_in_the_highest_bits) {
    EXPECT_EQ((Colours{0, 0x332211, 0x665544, 0x998877}), read(plain_format(8), bytes("00010203"), 4, table));
    EXPECT_EQ((Colours{0, 0x332211, 0x665544}), read(plain_format(4), bytes("012F"), 3, table));
    EXPECT_EQ((Colours{0, 0x332211, 0x332211, 0, 0, 0, 0, 0x332211, 0x332211}),
              read(plain_format(1), bytes("6180"), 9, table));
}

TEST(ColourReader, takes_entries_of_three_bytes) {
    EXPECT_EQ((Colours{0x332211, 0x665544}),
              read(plain_format(8), bytes("0100"), 2, bytes("445566 112233"), 3));
}

TEST(ColourReader, shows_black_for_an_entry_that_is_not_there) {
    EXPECT_EQ((Colours{0x998877, 0, 0}), read(plain_format(8), bytes("0304FF"), 3, table));
    // Of a table with more entries than the depth can tell the rest is not looked at.
    EXPECT_EQ((Colours{0x332211, 0}), read(plain_format(1), bytes("80"), 2, table));
}

// 1 is 00001, repeated 00001000 = 8; 2 is 00010000 = 16; 4 is 00100001 = 33.
TEST(ColourReader, spreads_five_bits_by_repeating_them) {
    EXPECT_EQ((Colours{0x081021, 0xFFFFFF, 0x000000}), read(plain_format(16), bytes("4404 FFFF 0080"), 3));
}

TEST(ColourReader, reads_the_fields_that_masks_tell) {
    const PixelFormat rgb565{16, 0xF800, 0x07E0, 0x001F};
    EXPECT_EQ((Colours{0xFF0000, 0x00FF00, 0x0000FF, 0x000400}),
              read(rgb565, bytes("00F8 E007 1F00 2000"), 4));
    const PixelFormat bgr{32, 0x0000FF, 0x00FF00, 0xFF0000};
    EXPECT_EQ((Colours{0x010203}), read(bgr, bytes("010203AA"), 1));
}

TEST(ColourReader, takes_the_highest_bits_of_wide_fields_and_repeats_narrow_ones) {
    const PixelFormat tens{32, 0x3FF00000, 0x000FFC00, 0x000003FF};
    EXPECT_EQ((Colours{0xFF00FF, 0x204080}), read(tens, bytes("FF03F03F 00020408"), 2));
    // 3 bits abc become abcabcab, 2 bits abababab, one all.
    const PixelFormat narrow{16, 0x0038, 0x0006, 0x0001};
    EXPECT_EQ((Colours{0x245500, 0xFFFFFF, 0x9200FF}), read(narrow, bytes("0A00 3F00 2100"), 3));
    const PixelFormat whole{32, 0xFFFFFFFF, 0, 0};
    EXPECT_EQ((Colours{0xFE0000}), read(whole, bytes("010203FE"), 1));
}

TEST(ReadableFormats, are_the_usual_depths_and_bit_fields) {
    for (unsigned depth = 0; depth < 70; ++depth) {
        const bool is_usual =
            depth == 1 || depth == 4 || depth == 8 || depth == 16 || depth == 24 || depth == 32;
        EXPECT_EQ(is_usual, is_readable(depth, 0, 1)) << depth;
        EXPECT_EQ(depth == 16 || depth == 32, is_readable(depth, 3, 1)) << depth;
        for (const std::uint32_t compression : {1u, 2u, 4u, 5u, 6u, 0xFFFFFFFFu}) {
            EXPECT_FALSE(is_readable(depth, compression, 1)) << depth;
        }
    }
    EXPECT_FALSE(is_readable(24, 0, 0));
    EXPECT_TRUE(is_readable(24, 0, 2));
}

}  // namespace
