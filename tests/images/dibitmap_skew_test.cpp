// Skewed pictures as hosts make them.
#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <stdexcept>
#include <string>

#include "images/picture_bytes.h"
#include "images/skew_pictures.h"
#include "lvx/images/dibitmap.h"
#include "support/expect_throw.h"
#include "support/skew_oracle.h"

namespace {

using lvx_test::block_of;
using lvx_test::bytes;
using lvx_test::core_header;
using lvx_test::Info;
using lvx_test::little_endian;
using lvx_test::make_block;
using lvx_test::number_at;
using lvx_test::SkewCase;
using lvx_test::SkewDice;
using lvx_test::SkewOracle;
using LVXUtilities::DIBitmap;
using namespace LVXUtilities::Rectangles;

DIBitmap image_of(const std::string& block) {
    return DIBitmap(make_block(block), DIBitmap::Adopt);
}

// The block that becomes of `block`.
std::string skewed(const std::string& block, int corner, int dx, int dy) {
    const auto result = image_of(block).SkewPoint(static_cast<Corner>(corner), dx, dy);
    return result.get() == nullptr ? "null" : block_of(*result);
}

// Pixels of 32 bits, told by letters: each has its own value in each byte.
const std::string letters = "abcdefghi";

std::uint32_t word_of(char letter) {
    if (letter == '.') {
        return 0x00FFFFFF;
    }
    const auto number = static_cast<std::uint32_t>(letter - 'a' + 1);
    return number * 4 | number * 8 << 8 | number * 12 << 16 | number * 20 << 24;
}

std::string picture_of_letters(int size) {
    std::string block = Info{.width = size, .height = size, .depth = 32}.Header();
    for (int i = 0; i < size * size; ++i) {
        block += little_endian(word_of(letters[static_cast<std::size_t>(i)]), 4);
    }
    return block;
}

// What the samples of each pixel come to, "abcd" for one that sees four pixels.
std::string mixed(const std::string& samples) {
    std::string pixels;
    for (std::size_t i = 0; i < samples.size(); i += 5) {
        for (int byte = 0; byte < 4; ++byte) {
            std::uint32_t sum = 0;
            for (const char letter : samples.substr(i, 4)) {
                sum += word_of(letter) >> (8 * byte) & 0xFF;
            }
            pixels += static_cast<char>((byte == 3 ? sum % 256 : sum) / 4);
        }
    }
    return pixels;
}

struct Golden {
    int corner;
    int dx;
    int dy;
    int width;
    int height;
    const char* samples;
};

void expect_golden(int size, const Golden& golden) {
    const std::string block = skewed(picture_of_letters(size), golden.corner, golden.dx, golden.dy);
    EXPECT_EQ(static_cast<std::uint32_t>(golden.width), number_at(block, 4));
    EXPECT_EQ(static_cast<std::uint32_t>(golden.height), number_at(block, 8));
    EXPECT_BYTES(mixed(golden.samples), block.substr(40));
}

// Nothing moves: the samples are the pixel below, the pixel, the one to its right, and the one below that.
TEST(SkewPoint, of_a_corner_that_stays_is_the_mean_of_four_neighbours) {
    for (const int corner : {5, 6, 9, 10}) {
        expect_golden(2, {corner, 0, 0, 2, 2, "cabd db.. .cd. .d.."});
        expect_golden(3, {corner, 0, 0, 3, 3, "dabe ebcf fc.. gdeh hefi if.. .gh. .hi. .i.."});
    }
}

TEST(SkewPoint, of_a_corner_that_stays_has_the_bytes_that_were_reckoned_by_hand) {
    // (4+8+12+16)/4 = 10 in the lowest byte of the first pixel, then twice and three times that;
    // (20+40+60+80) / 4 = 50 in the top one.
    EXPECT_BYTES(bytes("0A141E32"), skewed(picture_of_letters(2), 5, 0, 0).substr(40, 4));
    // The last one sees the pixel d and three times white: (16 + 765) / 4 = 195, (32 + 765) / 4 = 199,
    // (48 + 765) / 4 = 203, and on top 80 / 4.
    EXPECT_BYTES(bytes("C3C7CB14"), skewed(picture_of_letters(2), 5, 0, 0).substr(52, 4));
}

// x' = x / (1 + y / 3), y' = y.
TEST(SkewPoint, to_the_right_widens_the_picture_row_by_row) {
    expect_golden(3, {10, 3, 0, 6, 3,
                      "dabe ebce fccf .... .... .... "
                      "gdeg heeh hffi if.i .... .... "
                      ".gg. .hh. .hi. .ii. .i.. ...."});
}

TEST(SkewPoint, of_both_directions_goes_through_both_stages) {
    expect_golden(3, {5, -3, -3, 6, 6,
                      "..a. aaaa b..b .... .... .... "
                      ".... daad abbb bbcb c..c .... "
                      ".... .ddd ddee ebbe cccc c... "
                      ".... ..d. gddg eeee ffff f... "
                      ".... .... gggg hhhh iiii if.. "
                      ".... .... .... .h.. .hi. .i.."});
    expect_golden(3, {9, 1, 1, 4, 3, "dabd bbbb cbcc cccc gdeh eeeh ffff ff.. .gh. .hi. .ii. ...."});
    expect_golden(3, {6, 2, -1, 3, 3, "..d. geee fc.. .... .... gi.i .... .... ...."});
}

TEST(SkewPoint, gives_a_block_of_32_bits_with_the_header_that_was) {
    const std::string block = skewed(
        Info{.width = 5, .height = 4, .depth = 24, .image_size = 77}.Header() + std::string(64, '\x11'), 10,
        10, 3);
    EXPECT_EQ(40u + 15 * 7 * 4, block.size());
    EXPECT_BYTES(Info({.width = 15, .height = 7, .depth = 32, .image_size = 15 * 7 * 4}).Header(),
                 block.substr(0, 40));
}

TEST(SkewPoint, leaves_the_old_picture_alone) {
    const std::string block = picture_of_letters(3);
    const DIBitmap image = image_of(block);
    image.SkewPoint(TopLeft, -2, 1);
    EXPECT_BYTES(block, block_of(image));
}

TEST(SkewPoint, makes_a_picture_that_owns_its_block_and_can_be_skewed_again) {
    auto result = image_of(picture_of_letters(3)).SkewPoint(BottomRight, 10, 0);
    EXPECT_EQ(owl::TSize(13, 3), result->GetSize());
    EXPECT_EQ(32, result->GetBitsPerPixel());
    result = result->SkewPoint(TopLeft, -10, 0);
    EXPECT_EQ(owl::TSize(23, 3), result->GetSize());
}

// The first pixel that can see the picture is that at x = 10.
TEST(SkewPoint, of_a_left_corner_to_the_left_makes_room_there) {
    const std::string block = skewed(picture_of_letters(3), TopLeft, -10, 0);
    EXPECT_EQ(13u, number_at(block, 4));
    const auto is_white = [&](std::size_t x) {
        return number_at(block, 40 + (2 * 13 + x) * 4) == 0x00FFFFFF;
    };
    EXPECT_TRUE(is_white(0));
    EXPECT_FALSE(is_white(10));
}

TEST(SkewPoint, tells_what_is_no_corner_before_anything_else) {
    for (const int corner : {0, 1, 7, -1, 15}) {
        EXPECT_THROW_TEXT(skewed(picture_of_letters(2), corner, 1, 1), std::runtime_error, "Invalid corner");
        EXPECT_THROW_TEXT(skewed(Info{.width = 0, .height = 0}.Header(), corner, 0, 0), std::runtime_error,
                          "Invalid corner");
    }
}

TEST(SkewPoint, tells_a_corner_that_comes_to_lie_on_an_edge) {
    EXPECT_THROW_TEXT(skewed(picture_of_letters(3), TopLeft, 3, 0), std::runtime_error, "Divide by zero (1)");
    EXPECT_THROW_TEXT(skewed(picture_of_letters(3), TopLeft, 0, 3), std::runtime_error, "Divide by zero (2)");
}

TEST(SkewPoint, of_a_picture_without_pixels_divides_by_zero) {
    for (const int corner : {5, 6, 9, 10}) {
        for (const int dx : {-2, 0, 2}) {
            for (const auto& [width, height] : {std::pair(0, 3), std::pair(3, 0), std::pair(-3, 3)}) {
                const std::string text =
                    lvx_test::thrown_text<std::runtime_error>([&, w = width, h = height] {
                        skewed(Info{.width = w, .height = h}.Header() + std::string(99, 'x'), corner, dx, 1);
                    });
                EXPECT_TRUE(text == "Divide by zero (1)" || text == "Divide by zero (2)") << text;
            }
        }
    }
}

TEST(SkewPoint, of_an_empty_image_divides_by_zero) {
    const DIBitmap empty(nullptr, DIBitmap::Copy);
    EXPECT_THROW_TEXT(empty.SkewPoint(TopLeft, 1, 1), std::runtime_error, "Divide by zero (1)");
}

TEST(SkewPoint, has_no_block_of_2_GiB_or_more) {
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    const std::string block = picture_of_letters(2);
    EXPECT_THROW(skewed(block, BottomRight, most, most), std::bad_alloc);
    EXPECT_THROW(skewed(block, TopLeft, least, least), std::bad_alloc);
    EXPECT_THROW(skewed(block, TopLeft, least, 0), std::bad_alloc);
    EXPECT_THROW(skewed(block, BottomRight, most, 0), std::bad_alloc);
    EXPECT_THROW(skewed(block, BottomRight, 1 << 14, 1 << 16), std::bad_alloc);
    // 2^29 + 2 pixels of 4 bytes wrap to 8 in 32 bits.
    EXPECT_THROW(skewed(block, BottomRight, (1 << 28) - 1, 0), std::bad_alloc);
}

TEST(SkewPoint, of_a_corner_that_is_dragged_in_without_end_is_as_large_as_before) {
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    EXPECT_EQ(40u + 36, skewed(picture_of_letters(3), TopLeft, most, most).size());
    EXPECT_EQ(40u + 36, skewed(picture_of_letters(3), BottomRight, least, least).size());
}

TEST(SkewPoint, refuses_a_block_that_claims_far_more_than_it_holds) {
    const std::string pixels = Info{.width = 20000, .height = 20000}.Header() + std::string(100, 'x');
    EXPECT_THROW_TEXT(skewed(pixels, TopLeft, 1, 1), std::runtime_error, "Not a valid bitmap");
    const std::string none = Info{.width = 1, .height = std::numeric_limits<int>::min(), .depth = 0}.Header();
    EXPECT_THROW_TEXT(skewed(none, TopLeft, 0, std::numeric_limits<int>::min()), std::runtime_error,
                      "Not a valid bitmap");
    const std::string table = Info{.width = 1, .height = 1, .used = 0xFFFFFFFF}.Header() + "pixels";
    EXPECT_THROW_TEXT(skewed(table, TopLeft, 2, 2), std::runtime_error, "Not a valid bitmap");
    const std::string header = Info{.width = 1, .height = 1, .size_word = 0xFFFFFFFF}.Header() + "pixels";
    EXPECT_THROW_TEXT(skewed(header, TopLeft, 2, 2), std::runtime_error, "Not a valid bitmap");
    const std::string wraps = Info{.width = 0x7FFFFFFF, .height = 0x7FFFFFFF, .depth = 65535}.Header();
    EXPECT_THROW_TEXT(skewed(wraps, TopLeft, 2, 2), std::runtime_error, "Not a valid bitmap");
}

class SkewedBlocks : public testing::Test {
protected:
    // The oracle's block, and ours, of a picture with such a header and bytes behind it.
    void ExpectAsTold(const Info& info, std::size_t behind) {
        std::string block = info.Header();
        while (block.size() < 40 + behind) {
            block += static_cast<char>(m_dice.Number(0, 255));
        }
        for (const auto& [corner, dx, dy] : {std::tuple(5, -3, 2), std::tuple(10, 4, 5)}) {
            EXPECT_BYTES(SkewOracle(block, corner, dx, dy).Block(), skewed(block, corner, dx, dy))
                << info.depth << " bits, " << info.used << " used, header " << info.size_word;
        }
    }

    SkewDice m_dice{1};
};

TEST_F(SkewedBlocks, have_the_table_that_the_pixels_do_not_cover) {
    for (const std::uint32_t depth : {1u, 4u, 8u}) {
        ExpectAsTold({.width = 7, .height = 5, .depth = depth}, 2000);
        ExpectAsTold({.width = 40, .height = 50, .depth = depth}, 4000);
    }
}

// The table that the header of 32 bits then claims moves the pixels.
TEST_F(SkewedBlocks, have_their_pixels_behind_the_colours_that_are_used) {
    for (const std::uint32_t depth : {1u, 4u, 8u, 16u, 24u, 32u}) {
        for (const std::uint32_t used : {1u, 2u, 16u, 256u, 300u}) {
            ExpectAsTold({.width = 7, .height = 5, .depth = depth, .used = used}, 2000);
        }
    }
    const std::string block = Info{.width = 2, .height = 2, .depth = 24, .used = 5}.Header() +
                              std::string(20, 't') + std::string(16, 'p');
    const auto result = image_of(block).SkewPoint(TopLeft, 0, 0);
    // On top 4 * 112 = 256 + 192, and 192 / 4 = 48.
    EXPECT_EQ("ppp0", block_of(*result).substr(60, 4));
    EXPECT_EQ('p', result->GetBitsAddress()[0]);
}

TEST_F(SkewedBlocks, have_their_pixels_behind_three_masks_of_bit_fields) {
    ExpectAsTold({.width = 7, .height = 5, .depth = 16, .compression = 3}, 500);
    ExpectAsTold({.width = 7, .height = 5, .depth = 32, .compression = 3}, 500);
    ExpectAsTold({.width = 7, .height = 5, .depth = 24, .compression = 3}, 500);
    ExpectAsTold({.width = 7, .height = 5, .depth = 8, .compression = 3}, 2000);
    ExpectAsTold({.width = 7, .height = 5, .depth = 8, .compression = 1}, 2000);
}

TEST_F(SkewedBlocks, have_a_header_of_40_bytes_and_keep_the_length_of_a_longer_one) {
    for (const std::uint32_t size_word : {108u, 124u, 41u}) {
        ExpectAsTold({.width = 7, .height = 5, .depth = 24, .size_word = size_word}, 500);
        ExpectAsTold({.width = 7, .height = 5, .depth = 8, .size_word = size_word}, 1600);
    }
    const std::string block =
        Info{.width = 1, .height = 1, .depth = 24, .size_word = 108}.Header() + std::string(68, 'h') + "pppp";
    EXPECT_EQ(112u, skewed(block, TopLeft, 0, 0).size());
}

// The block is too short for its pixels then: those that do not fit are left out.
TEST_F(SkewedBlocks, of_a_header_word_below_40_lose_their_last_pixels) {
    for (const std::uint32_t size_word : {0u, 1u, 13u, 36u, 38u, 39u}) {
        ExpectAsTold({.width = 7, .height = 5, .depth = 24, .size_word = size_word}, 500);
        ExpectAsTold({.width = 1, .height = 1, .depth = 24, .size_word = size_word}, 500);
        ExpectAsTold({.width = 7, .height = 5, .depth = 8, .size_word = size_word}, 1600);
        ExpectAsTold({.width = 7, .height = 5, .depth = 24, .used = 3, .size_word = size_word}, 500);
    }
}

TEST_F(SkewedBlocks, read_as_0_what_the_old_one_lacks) {
    for (const std::size_t behind : {0u, 1u, 59u, 119u, 1000u, 1030u}) {
        ExpectAsTold({.width = 7, .height = 5, .depth = 24}, behind);
        ExpectAsTold({.width = 7, .height = 5, .depth = 8}, behind);
    }
    const std::string header = Info{.width = 3, .height = 2, .depth = 24, .used = 0x01010101}.Header();
    for (std::size_t size = 12; size < 36; ++size) {
        const std::string cut = header.substr(0, size);
        EXPECT_BYTES(SkewOracle(cut, 10, 2, 2).Block(), skewed(cut, 10, 2, 2)) << size;
    }
}

// Of the pixel in the corner the top byte lies behind the block, whose size is not a multiple of 4.
TEST_F(SkewedBlocks, end_with_a_top_byte_of_0_where_24_bits_end_with_the_block) {
    const std::string block = Info{.width = 4, .height = 1, .depth = 24}.Header() + std::string(12, '\xFC');
    const std::string result = skewed(block, TopLeft, 0, 0);
    // Two samples are in the picture, two see white; of the last pixel one, whose word has no fourth byte. On
    // top 2 * 252 = 256 + 248, and 248 / 4 = 62.
    EXPECT_BYTES(bytes("FDFDFD 3E"), result.substr(40, 4));
    EXPECT_BYTES(bytes("FEFEFE 00"), result.substr(52, 4));
}

TEST(SkewPoint, of_random_pictures_is_as_told) {
    SkewDice dice(3);
    int compared = 0;
    for (int i = 0; i < 3000; ++i) {
        SkewCase next = dice.Case(12);
        next.used = static_cast<std::uint32_t>(std::max(0, dice.Number(-10, 6)));
        next.compression = dice.OneOf({0u, 0u, 0u, 3u});
        const std::string block = dice.Block(next);
        std::string told;
        try {
            told = SkewOracle(block, next.corner, next.dx, next.dy).Block();
        } catch (const std::runtime_error& error) {
            EXPECT_THROW_TEXT(skewed(block, next.corner, next.dx, next.dy), std::runtime_error, error.what());
            continue;
        }
        ASSERT_BYTES(told, skewed(block, next.corner, next.dx, next.dy)) << lvx_test::described(next);
        ++compared;
    }
    EXPECT_GT(compared, 1500);
}

TEST(SkewPoint, of_rows_from_the_top_down_keeps_them_so) {
    std::string block = picture_of_letters(3);
    std::string expected = skewed(block, 10, 3, 1);
    block.replace(8, 4, little_endian(static_cast<std::uint32_t>(-3), 4));
    expected.replace(8, 4, little_endian(static_cast<std::uint32_t>(-4), 4));
    EXPECT_BYTES(expected, skewed(block, 10, 3, 1));
}

TEST(SkewPoint, of_the_least_height_is_refused) {
    const std::string block = Info{.width = 1, .height = std::numeric_limits<int>::min()}.Header();
    EXPECT_THROW_TEXT(skewed(block, 10, 1, 1), std::runtime_error, "Not a valid bitmap");
}

TEST(SkewPoint, of_a_core_header_is_as_of_an_info_header) {
    const std::string pixels = bytes("010203 040506 0708 090A0B 0C0D0E 0F10");
    const std::string core = skewed(core_header(2, 2, 24) + pixels, 10, 2, 1);
    std::string info = skewed(Info{.width = 2, .height = 2}.Header() + pixels, 10, 2, 1);
    // What a core header does not tell is 0, and the block is as much shorter as its header.
    EXPECT_EQ(info.size() - 28, core.size());
    EXPECT_BYTES(little_endian(40, 4) + little_endian(4, 4) + little_endian(3, 4) + little_endian(1, 2) +
                     little_endian(32, 2) + little_endian(0, 4) + little_endian(48, 4) +
                     std::string(16, '\0'),
                 core.substr(0, 40));
    EXPECT_BYTES(info.substr(40, 20), core.substr(40));
}

TEST(SkewPoint, leaves_the_locks_as_they_were) {
    const HGLOBAL block = make_block(picture_of_letters(3));
    const DIBitmap image(block, DIBitmap::Adopt);
    image.SkewPoint(TopLeft, 1, 1);
    EXPECT_THROW(image.SkewPoint(TopLeft, 3, 1), std::runtime_error);
    EXPECT_FALSE(lvx_test::is_locked(block));
}

}  // namespace
