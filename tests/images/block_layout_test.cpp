#include "lvx/images/block_layout.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "images/picture_bytes.h"

namespace {

using lvx::images::BlockBytes;
using lvx::images::BlockLayout;
using lvx_test::core_header;
using lvx_test::Info;

BlockLayout layout_of(const std::string& data, std::uint64_t table_size = 0) {
    const HGLOBAL block = lvx_test::make_block(data);
    const BlockLayout layout = lvx::images::layout_of(block, table_size);
    GlobalFree(block);
    return layout;
}

std::string header_bytes(const BlockLayout& layout) {
    return std::string(reinterpret_cast<const char*>(&layout.header), sizeof layout.header);
}

TEST(BlockLayout, has_what_the_header_says) {
    const BlockLayout layout = layout_of(
        Info{.width = 5, .height = 4, .depth = 8, .size_word = 108}.Header() + std::string(100, 'x'), 64);
    EXPECT_EQ(5u, layout.width);
    EXPECT_EQ(4u, layout.rows);
    EXPECT_EQ(8u, layout.stride);
    EXPECT_EQ(108u, layout.table_at);
    EXPECT_EQ(64u, layout.table_size);
    EXPECT_EQ(172u, layout.pixels_at);
    EXPECT_EQ(140u, layout.size);
    EXPECT_EQ(32u, layout.PixelsSize());
}

TEST(BlockLayout, has_the_header_with_a_length_of_40) {
    const Info info{.width = 5, .height = 4, .depth = 8, .compression = 3, .used = 9};
    Info longer = info;
    longer.size_word = 108;
    EXPECT_BYTES(info.Header(), header_bytes(layout_of(longer.Header())));
}

TEST(BlockLayout, widens_a_core_header) {
    const BlockLayout layout = layout_of(core_header(60000, 50000, 24) + "garbage that is no field");
    EXPECT_EQ(60000u, layout.width);
    EXPECT_EQ(50000u, layout.rows);
    EXPECT_EQ(12u, layout.table_at);
    EXPECT_BYTES(lvx_test::little_endian(40, 4) + lvx_test::little_endian(60000, 4) +
                     lvx_test::little_endian(50000, 4) + lvx_test::little_endian(1, 2) +
                     lvx_test::little_endian(24, 2) + std::string(24, '\0'),
                 header_bytes(layout));
}

TEST(BlockLayout, counts_the_rows_from_the_top_down_too) {
    EXPECT_EQ(4u, layout_of(Info{.height = -4}.Header()).rows);
    EXPECT_EQ(0x80000000u, layout_of(Info{.height = std::numeric_limits<int>::min()}.Header()).rows);
}

TEST(BlockLayout, of_a_negative_width_has_no_columns) {
    const BlockLayout layout = layout_of(Info{.width = -5, .height = 4}.Header());
    EXPECT_EQ(0u, layout.width);
    EXPECT_EQ(0u, layout.PixelsSize());
}

TEST(BlockLayout, reads_as_0_what_the_block_lacks) {
    const BlockLayout layout = layout_of(Info{.width = 5, .height = 4}.Header().substr(0, 10));
    EXPECT_EQ(5u, layout.width);
    EXPECT_EQ(0u, layout.rows);
    EXPECT_EQ(0u, layout.stride);
    EXPECT_EQ(0u, lvx::images::layout_of(nullptr, 0).size);
    EXPECT_EQ(0u, lvx::images::layout_of(nullptr, 0).rows);
}

TEST(BlockLayout, reads_as_0_a_field_that_is_cut) {
    const std::string header =
        Info{.width = 0x01010101, .height = 0x01010101, .depth = 24, .used = 0x01010101}.Header();
    for (std::size_t size = 0; size <= header.size(); ++size) {
        const std::size_t whole = size == 13 || size == 12   ? 12
                                  : size == 14 || size == 15 ? 14
                                                             : size / 4 * 4;
        std::string expected = header.substr(0, whole) + std::string(40 - whole, '\0');
        expected.replace(0, 4, lvx_test::little_endian(40, 4));
        EXPECT_BYTES(expected, header_bytes(layout_of(header.substr(0, size)))) << size;
    }
}

TEST(BlockLayout, believes_what_is_small_or_there) {
    EXPECT_TRUE(layout_of(Info{.width = 4000, .height = 4000}.Header()).IsCredible());
    EXPECT_FALSE(layout_of(Info{.width = 5000, .height = 5000}.Header()).IsCredible());
    EXPECT_TRUE(
        layout_of(Info{.width = 5000, .height = 5000}.Header() + std::string(100000, 'x')).IsCredible());
}

TEST(BlockLayout, counts_small_pixels_as_what_becomes_of_them) {
    for (const std::uint32_t depth : {0u, 1u, 8u, 32u}) {
        EXPECT_TRUE(layout_of(Info{.width = 4000, .height = 4000, .depth = depth}.Header()).IsCredible());
        EXPECT_FALSE(layout_of(Info{.width = 5000, .height = 5000, .depth = depth}.Header()).IsCredible());
    }
    EXPECT_FALSE(layout_of(Info{.width = 4000, .height = 4000, .depth = 64}.Header()).IsCredible());
}

TEST(BlockLayout, does_not_believe_what_wraps) {
    const Info largest{.width = 0x7FFFFFFF, .height = 0x7FFFFFFF, .depth = 65535};
    EXPECT_FALSE(layout_of(largest.Header()).IsCredible());
    EXPECT_FALSE(layout_of(largest.Header(), std::uint64_t{1} << 34).IsCredible());
    Info header;
    header.size_word = 0xFFFFFFFF;
    EXPECT_FALSE(layout_of(header.Header()).IsCredible());
}

TEST(BlockBytes, end_with_the_block) {
    unsigned char bytes[10] = {};
    const BlockBytes all{bytes, 10};
    EXPECT_EQ(bytes + 3, all.From(3).start);
    EXPECT_EQ(7u, all.From(3).size);
    EXPECT_EQ(bytes + 10, all.From(10).start);
    EXPECT_EQ(0u, all.From(10).size);
    EXPECT_EQ(bytes + 10, all.From(0xFFFFFFFFFFu).start);
    EXPECT_EQ(0u, all.From(0xFFFFFFFFFFu).size);
    EXPECT_EQ(0u, BlockBytes({nullptr, 0}).From(5).size);
}

}  // namespace
