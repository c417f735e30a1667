// The readers of the three kinds of headers, seen through the images that use them.
#include "lvx/images/dibitmap_strategy.h"

#include <gtest/gtest.h>

#include <string>

#include "images/picture_bytes.h"

namespace {

using lvx_test::bytes;
using lvx_test::core_header;
using lvx_test::Info;
using lvx_test::little_endian;
using LVXUtilities::DIBitmap;

DIBitmap image_of(const std::string& block) {
    const HGLOBAL handle = lvx_test::make_block(block);
    DIBitmap image(handle, DIBitmap::Copy);
    GlobalFree(handle);
    return image;
}

// The bytes between the colour table's address and the pixels'.
std::ptrdiff_t table_size(const DIBitmap& image) {
    const auto table = image.GetClrTabAddress();
    const auto pixels = image.GetBitsAddress();
    return pixels.get() - reinterpret_cast<const unsigned char*>(table.get());
}

// Where the table begins, from the start of the block, which is found as the end of no header.
std::ptrdiff_t table_offset(HGLOBAL block, const DIBitmap& image) {
    const LVXUtilities::GlobalLocker<const unsigned char> start(block);
    return reinterpret_cast<const unsigned char*>(image.GetClrTabAddress().get()) - start.get();
}

std::string long_block(const Info& info) {
    return info.Header() + std::string(3000, '\x77');
}

std::string core_block(std::uint32_t depth) {
    return core_header(60000, 50000, depth) + std::string(3000, '\x77');
}

TEST(CoreStrategy, reads_16_bits_without_a_sign) {
    const DIBitmap image = image_of(core_block(8));
    EXPECT_EQ(60000, image.GetWidth());
    EXPECT_EQ(50000, image.GetHeight());
    EXPECT_EQ(8, image.GetBitsPerPixel());
}

TEST(CoreStrategy, knows_no_resolution) {
    const DIBitmap image = image_of(core_block(8));
    EXPECT_EQ(0, image.GetPixelsPerMetreX());
    EXPECT_EQ(0, image.GetPixelsPerMetreY());
}

TEST(CoreStrategy, has_three_bytes_for_each_colour_of_its_depth) {
    EXPECT_EQ(2 * 3, table_size(image_of(core_block(1))));
    EXPECT_EQ(16 * 3, table_size(image_of(core_block(4))));
    EXPECT_EQ(256 * 3, table_size(image_of(core_block(8))));
    EXPECT_EQ(0, table_size(image_of(core_block(16))));
    EXPECT_EQ(0, table_size(image_of(core_block(24))));
    EXPECT_EQ(0, table_size(image_of(core_block(32))));
}

class LongStrategyTest : public testing::TestWithParam<std::uint32_t> {
protected:
    Info MakeInfo() const {
        Info info;
        info.size_word = GetParam();
        return info;
    }
};

TEST_P(LongStrategyTest, reads_32_bits_with_a_sign) {
    Info info = MakeInfo();
    info.width = 100000;
    info.height = -70000;
    info.depth = 32;
    const DIBitmap image = image_of(long_block(info));
    EXPECT_EQ(100000, image.GetWidth());
    EXPECT_EQ(-70000, image.GetHeight());
    EXPECT_EQ(32, image.GetBitsPerPixel());
}

TEST_P(LongStrategyTest, reads_the_resolution) {
    const DIBitmap image = image_of(long_block(MakeInfo()));
    EXPECT_EQ(0x04030201, image.GetPixelsPerMetreX());
    EXPECT_EQ(0x08070605, image.GetPixelsPerMetreY());
}

TEST_P(LongStrategyTest, has_four_bytes_for_each_colour_of_its_depth) {
    const struct {
        std::uint32_t depth;
        std::ptrdiff_t size;
    } cases[] = {{1, 2 * 4}, {4, 16 * 4}, {8, 256 * 4}, {16, 0}, {24, 0}, {32, 0}, {2, 0}};
    for (const auto& [depth, size] : cases) {
        Info info = MakeInfo();
        info.depth = depth;
        EXPECT_EQ(size, table_size(image_of(long_block(info)))) << depth;
    }
}

TEST_P(LongStrategyTest, has_as_many_colours_as_are_used) {
    for (const std::uint32_t depth : {1u, 8u, 24u, 32u}) {
        Info info = MakeInfo();
        info.depth = depth;
        info.used = 5;
        EXPECT_EQ(5 * 4, table_size(image_of(long_block(info)))) << depth;
    }
}

TEST_P(LongStrategyTest, has_three_masks_for_bit_fields_that_use_no_colours) {
    for (const std::uint32_t depth : {16u, 32u}) {
        Info info = MakeInfo();
        info.depth = depth;
        info.compression = 3;
        EXPECT_EQ(3 * 4, table_size(image_of(long_block(info)))) << depth;
    }
    Info info = MakeInfo();
    info.depth = 8;
    info.compression = 3;
    EXPECT_EQ(256 * 4, table_size(image_of(long_block(info))));
}

INSTANTIATE_TEST_SUITE_P(EveryLongKind, LongStrategyTest, testing::Values(40, 64, 108, 124, 13, 0),
                         testing::PrintToStringParamName());

TEST(StrategyChoice, is_by_the_first_word_alone) {
    // Read as a core header this is 40 wide, as a longer one something else.
    const std::string rest = bytes("2800 0900 0100 0100") + std::string(100, '\0');
    EXPECT_EQ(40, image_of(little_endian(12, 4) + rest).GetWidth());
    EXPECT_EQ(0x00090028, image_of(little_endian(40, 4) + rest).GetWidth());
    EXPECT_EQ(0x00090028, image_of(little_endian(108, 4) + rest).GetWidth());
    EXPECT_EQ(0x00090028, image_of(little_endian(11, 4) + rest).GetWidth());
}

TEST(StrategyChoice, puts_the_table_behind_a_header_of_any_length) {
    for (const std::uint32_t size_word : {12u, 40u, 52u, 108u, 124u}) {
        const HGLOBAL block = lvx_test::make_block(little_endian(size_word, 4) + std::string(2000, '\0'));
        const DIBitmap image(block, DIBitmap::Adopt);
        EXPECT_EQ(static_cast<std::ptrdiff_t>(size_word), table_offset(block, image));
    }
}

TEST(StrategyOfAShortBlock, reads_zero_behind_its_end) {
    const std::string header = Info{.width = 3, .height = 4, .depth = 8, .used = 9}.Header();
    const DIBitmap only_width = image_of(header.substr(0, 8));
    EXPECT_EQ(3, only_width.GetWidth());
    EXPECT_EQ(0, only_width.GetHeight());
    EXPECT_EQ(0, only_width.GetBitsPerPixel());
    EXPECT_EQ(0, only_width.GetPixelsPerMetreX());
    EXPECT_EQ(0, only_width.GetStorageWidth());
}

TEST(StrategyOfAShortBlock, reads_a_field_that_is_cut_as_zero) {
    const std::string header = Info{.width = 0x01010101, .height = 0x01010101}.Header();
    const DIBitmap image = image_of(header.substr(0, 11));
    EXPECT_EQ(0x01010101, image.GetWidth());
    EXPECT_EQ(0, image.GetHeight());
}

TEST(StrategyOfAShortBlock, reads_zero_from_a_block_without_a_first_word) {
    for (const std::size_t size : {0u, 1u, 3u}) {
        const DIBitmap image = image_of(std::string(size, '\x28'));
        EXPECT_EQ(owl::TSize(0, 0), image.GetSize());
        EXPECT_EQ(0, table_size(image));
    }
}

TEST(StrategyOfAShortBlock, gives_no_address_behind_its_end) {
    Info info;
    info.depth = 8;
    info.used = 0xFFFFFFFF;
    const HGLOBAL block = lvx_test::make_block(info.Header() + std::string(10, '\0'));
    const DIBitmap image(block, DIBitmap::Adopt);
    EXPECT_EQ(40, table_offset(block, image));
    EXPECT_EQ(10, table_size(image));

    info.size_word = 0xFFFFFFFF;
    const HGLOBAL other = lvx_test::make_block(info.Header());
    const DIBitmap other_image(other, DIBitmap::Adopt);
    EXPECT_EQ(40, table_offset(other, other_image));
    EXPECT_EQ(0, table_size(other_image));
}

}  // namespace
