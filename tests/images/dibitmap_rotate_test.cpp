// Turned pictures as hosts make them.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <new>
#include <string>
#include <vector>

#include "images/picture_bytes.h"
#include "images/turn_pictures.h"
#include "lvx/images/default_colours.h"
#include "lvx/images/dibitmap.h"

namespace {

using lvx_test::block_of;
using lvx_test::bytes;
using lvx_test::core_header;
using lvx_test::Info;
using lvx_test::letter_case;
using lvx_test::letters_of;
using lvx_test::little_endian;
using lvx_test::make_block;
using lvx_test::number_at;
using LVXUtilities::DIBitmap;

using Letters = std::vector<std::string>;

const double pi = std::acos(-1.0);

DIBitmap image_of(const std::string& block) {
    return DIBitmap(make_block(block), DIBitmap::Adopt);
}

// The block of the turned picture; "null" if there is none.
std::string rotated(const std::string& block, double angle) {
    const auto result = image_of(block).Rotated(angle);
    return result.get() == nullptr ? "null" : block_of(*result);
}

std::string block_of_letters(const Letters& rows) {
    const lvx_test::TurnCase turned = letter_case(rows, 0);
    return turned.info.Header() + turned.pixels;
}

Letters turned_letters(const Letters& rows, double angle) {
    const std::string block = rotated(block_of_letters(rows), angle);
    return letters_of(block.substr(40), number_at(block, 4));
}

const Letters picture = {"abcd", "efgh", "ijkl"};

TEST(Rotated, by_nothing_is_a_copy) {
    EXPECT_EQ(picture, turned_letters(picture, 0));
    const std::string block =
        Info{.width = 4, .height = 2, .depth = 24, .image_size = 24}.Header() + "abcdefghijklmnopqrstuvwx";
    EXPECT_BYTES(block, rotated(block, 0));
}

TEST(Rotated, by_quarters_goes_against_the_clock_and_loses_no_pixel) {
    EXPECT_EQ((Letters{"dhl", "cgk", "bfj", "aei"}), turned_letters(picture, pi / 2));
    EXPECT_EQ((Letters{"lkji", "hgfe", "dcba"}), turned_letters(picture, pi));
    EXPECT_EQ((Letters{"iea", "jfb", "kgc", "lhd"}), turned_letters(picture, -pi / 2));
    EXPECT_EQ(picture, turned_letters(picture, 2 * pi));
}

// 21 by 11 with cosine 0.8 and sine 0.6: x to 6.6, 23.4 and 16.8, y to 8.8, -3.8 and -12.6.
TEST(Rotated, has_the_frame_of_the_turned_corners) {
    const auto result = image_of(block_of_letters(Letters(11, std::string(21, 'x')))).Rotated(std::asin(0.6));
    EXPECT_EQ(owl::TSize(23, 20), result->GetSize());
    EXPECT_EQ(32, result->GetBitsPerPixel());
}

TEST(Rotated, shows_a_white_ground_with_a_black_line_where_the_picture_is_not) {
    const Letters rows = turned_letters(Letters(20, std::string(20, 'x')), pi / 4);
    ASSERT_EQ(28u, rows.size());
    EXPECT_EQ("#####", rows[0].substr(0, 5));
    EXPECT_EQ("#....", rows[2].substr(0, 5));
    EXPECT_EQ("....#", rows[25].substr(23, 5));
    EXPECT_EQ(std::string(20, 'x'), rows[14].substr(4, 20));
}

TEST(Rotated, keeps_the_header_but_for_the_sizes_and_the_colours_used) {
    const std::string block =
        Info{.width = 3, .height = 2, .depth = 24, .image_size = 99}.Header() + std::string(24, 'x');
    EXPECT_BYTES(Info({.width = 2, .height = 3, .depth = 24, .image_size = 24}).Header(),
                 rotated(block, pi / 2).substr(0, 40));
}

// A block as long as with the old table, though the new header claims none.
TEST(Rotated, counts_no_colours_as_used) {
    const std::string block =
        Info{.width = 4, .height = 1, .depth = 24, .used = 2}.Header() + "tabletab" + "abcdefghijkl";
    EXPECT_BYTES(Info({.width = 4, .height = 1, .depth = 24, .image_size = 12}).Header() + "abcdefghijkl" +
                     std::string(8, '\0'),
                 rotated(block, 0));
    const auto result = image_of(block).Rotated(0);
    EXPECT_EQ('a', result->GetBitsAddress()[0]);
}

std::string default_table(unsigned depth) {
    std::string table;
    for (std::size_t i = 0; i < std::size_t{1} << depth; ++i) {
        table += little_endian(lvx::images::default_colour(depth, i), 4);
    }
    return table;
}

// White, black, nearly red and nearly blue.
const std::string four_colours = bytes("FFFFFF00 00000000 0810F000 F0080800");

TEST(Rotated, of_a_picture_with_a_table_has_the_systems_table_and_its_nearest_colours) {
    const std::string of_8 = rotated(
        Info{.width = 4, .height = 1, .depth = 8, .used = 4}.Header() + four_colours + bytes("00010203"), 0);
    EXPECT_BYTES(Info({.width = 4, .height = 1, .depth = 8, .image_size = 4}).Header() + default_table(8) +
                     bytes("FF00F9FC"),
                 of_8);
    const std::string of_4 = rotated(Info{.width = 4, .height = 1, .depth = 4}.Header() + four_colours +
                                         std::string(48, '\0') + bytes("01230000"),
                                     0);
    EXPECT_BYTES(Info({.width = 4, .height = 1, .depth = 4, .image_size = 4}).Header() + default_table(4) +
                     bytes("F09C0000"),
                 of_4);
    const std::string of_1 = rotated(
        Info{.width = 4, .height = 1, .depth = 1}.Header() + four_colours.substr(0, 8) + bytes("60000000"),
        0);
    EXPECT_BYTES(Info({.width = 4, .height = 1, .depth = 1, .image_size = 4}).Header() + default_table(1) +
                     bytes("90000000"),
                 of_1);
}

TEST(Rotated, of_a_table_with_more_colours_than_the_depth_has_is_as_long_as_that) {
    const std::string block = Info{.width = 4, .height = 1, .depth = 8, .used = 300}.Header() + four_colours +
                              std::string(1200 - 16, '\0') + bytes("00010203");
    const std::string result = rotated(block, 0);
    EXPECT_EQ(block.size(), result.size());
    EXPECT_BYTES(bytes("FF00F9FC"), result.substr(40 + 1024, 4));
}

TEST(Rotated, of_bit_fields_keeps_the_masks) {
    const std::string masks = bytes("00F80000 E0070000 1F000000");
    const std::string block = Info{.width = 4, .height = 1, .depth = 16, .compression = 3}.Header() + masks +
                              bytes("00F8 E007 1F00 3412");
    EXPECT_BYTES(Info({.width = 4, .height = 1, .depth = 16, .compression = 3, .image_size = 8}).Header() +
                     masks + bytes("3412 1F00 E007 00F8"),
                 rotated(block, pi));
    const std::string longer =
        Info{.width = 2, .height = 1, .depth = 16, .compression = 3, .size_word = 108}.Header() + masks +
        std::string(56, 'h') + std::string(12, 't') + bytes("00F8 E007");
    const std::string result = rotated(longer, pi);
    EXPECT_EQ(longer.size(), result.size());
    EXPECT_BYTES(masks + std::string(56 + 12, '\0') + bytes("E007 00F8"), result.substr(40));
}

// Of a longer header the first 44 bytes.
TEST(Rotated, keeps_the_kind_of_a_longer_header_and_little_of_what_is_in_it) {
    const std::string block = Info{.width = 4, .height = 1, .depth = 24, .size_word = 108}.Header() +
                              std::string(68, 'h') + "abcdefghijkl";
    const std::string result = rotated(block, 0);
    EXPECT_BYTES(Info({.width = 4, .height = 1, .depth = 24, .image_size = 12, .size_word = 108}).Header() +
                     "hhhh" + std::string(64, '\0') + "abcdefghijkl",
                 result);
}

TEST(Rotated, of_a_core_header_has_an_info_header) {
    const std::string block = core_header(2, 1, 24) + "abcdef__";
    EXPECT_BYTES(little_endian(40, 4) + little_endian(2, 4) + little_endian(1, 4) + little_endian(1, 2) +
                     little_endian(24, 2) + little_endian(0, 4) + little_endian(8, 4) +
                     std::string(16, '\0') + "defabc",
                 rotated(block, pi).substr(0, 46));
    std::string table = std::string(768, '\0');
    table.replace(3, 3, bytes("FFFFFF"));
    const std::string result = rotated(core_header(4, 1, 8) + table + bytes("00010100"), 0);
    EXPECT_BYTES(bytes("00FFFF00"), result.substr(40 + 1024));
}

TEST(Rotated, of_rows_from_the_top_down_has_the_bottom_row_first) {
    std::string block = block_of_letters(picture);
    block.replace(8, 4, little_endian(static_cast<std::uint32_t>(-3), 4));
    const std::string result = rotated(block, 0);
    EXPECT_EQ(3u, number_at(result, 8));
    EXPECT_EQ((Letters{"ijkl", "efgh", "abcd"}), letters_of(result.substr(40), 4));
    EXPECT_EQ((Letters{"lhd", "kgc", "jfb", "iea"}), letters_of(rotated(block, pi / 2).substr(40), 3));
}

TEST(Rotated, shows_black_for_pixels_that_the_block_lacks) {
    std::string block = block_of_letters(picture);
    block.resize(40 + 16 + 8);
    EXPECT_EQ((Letters{"####", "ef##", "ijkl"}), letters_of(rotated(block, 0).substr(40), 4));
    block.resize(40);
    EXPECT_EQ(Letters(3, "####"), letters_of(rotated(block, 0).substr(40), 4));
}

TEST(Rotated, fills_as_many_rows_as_16_bits_of_their_number_say) {
    const std::string block =
        Info{.width = 1, .height = 70000, .depth = 24}.Header() + std::string(280000, 'x');
    const std::string result = rotated(block, 0);
    ASSERT_EQ(block.size(), result.size());
    constexpr std::size_t filled = 70000 - 65536;
    EXPECT_EQ("xxx", result.substr(40 + 4 * (filled - 1), 3));
    EXPECT_TRUE(result.substr(40 + 4 * filled) == std::string(4 * 65536, '\0'));
    const std::string none =
        Info{.width = 1, .height = 65536, .depth = 24}.Header() + std::string(262144, 'x');
    // Behind the header came what would be the first entry of a table.
    EXPECT_TRUE(rotated(none, 0).substr(40) == "xxxx" + std::string(262140, '\0'));
}

TEST(Rotated, leaves_the_old_picture_and_its_locks_alone) {
    const std::string data = block_of_letters(picture);
    const HGLOBAL block = make_block(data);
    const DIBitmap image(block, DIBitmap::Adopt);
    image.Rotated(1);
    EXPECT_BYTES(data, block_of(image));
    EXPECT_FALSE(lvx_test::is_locked(block));
}

TEST(Rotated, makes_a_picture_that_can_be_turned_again) {
    auto image = image_of(block_of_letters(picture)).Rotated(pi / 2);
    for (int i = 0; i < 3; ++i) {
        image = image->Rotated(pi / 2);
    }
    EXPECT_EQ(picture, letters_of(block_of(*image).substr(40), 4));
}

TEST(Rotated, is_null_without_a_picture) {
    EXPECT_EQ(nullptr, DIBitmap(nullptr, DIBitmap::Copy).Rotated(0).get());
    EXPECT_EQ("null", rotated("", 0));
    EXPECT_EQ("null", rotated(Info{.width = 0, .height = 5}.Header(), 1));
    EXPECT_EQ("null", rotated(Info{.width = 5, .height = 0}.Header(), 1));
    EXPECT_EQ("null", rotated(Info{.width = -5, .height = 5}.Header(), 1));
}

TEST(Rotated, is_null_for_a_frame_without_pixels_and_an_angle_that_is_none) {
    const std::string block = Info{}.Header() + "xyz_";
    EXPECT_EQ("null", rotated(block, pi / 4));
    EXPECT_EQ("null", rotated(block, std::nan("")));
    EXPECT_EQ("null", rotated(block, std::numeric_limits<double>::infinity()));
}

TEST(Rotated, is_null_for_pixels_that_cannot_be_read) {
    const auto with = [](Info info) { return rotated(info.Header() + std::string(2000, '\1'), 0); };
    EXPECT_EQ("null", with({.depth = 8, .compression = 1}));
    EXPECT_EQ("null", with({.depth = 4, .compression = 2}));
    EXPECT_EQ("null", with({.depth = 24, .compression = 3}));
    EXPECT_EQ("null", with({.depth = 24, .compression = 4}));
    EXPECT_EQ("null", with({.depth = 2}));
    EXPECT_EQ("null", with({.depth = 0}));
    EXPECT_EQ("null", with({.depth = 48}));
    EXPECT_EQ("null", with({.size_word = 13}));
    EXPECT_EQ("null", with({.size_word = 39}));
    EXPECT_NE("null", with({.size_word = 41}));
    std::string planes = Info{}.Header() + "xyz_";
    planes.replace(12, 2, std::string(2, '\0'));
    EXPECT_EQ("null", rotated(planes, 0));
}

TEST(Rotated, is_null_for_a_block_that_claims_far_more_than_it_holds) {
    EXPECT_EQ("null", rotated(Info{.width = 20000, .height = 20000}.Header() + "abc", 0));
    EXPECT_EQ("null", rotated(Info{.width = 1, .height = 1, .used = 0xFFFFFFFF}.Header() + "abc", 0));
}

TEST(Rotated, has_no_block_of_2_GiB_or_more) {
    const std::string line =
        Info{.width = 1 << 24, .height = 1, .depth = 1}.Header() + std::string(100000, '\0');
    EXPECT_THROW(rotated(line, pi / 4), std::bad_alloc);
    // The sides fit, but not what they enclose.
    const std::string shorter =
        Info{.width = 200000, .height = 2, .depth = 24}.Header() + std::string(1200000, 'x');
    EXPECT_THROW(rotated(shorter, pi / 4), std::bad_alloc);
}

}  // namespace
