#include "tools/lvxdoc/bitmap_header.h"

#include <gtest/gtest.h>

#include "tests/lvxdoc/support.h"

using namespace lvxdoc;

namespace {

const unsigned char* data_of(const std::string& bytes) {
    return reinterpret_cast<const unsigned char*>(bytes.data());
}

BitmapHeader plausible() {
    BitmapHeader header;
    header.header_size = 40;
    header.width = 3;
    header.height = 2;
    header.planes = 1;
    header.bits = 24;
    return header;
}

std::string why(const BitmapHeader& header, std::uint64_t size) {
    return find_implausible(header, size).value_or("plausible");
}

}  // namespace

TEST(BitmapHeader, decodes_every_field_of_40_bytes) {
    const std::string bytes = bytes_of(
        "28000000 03000000 feffffff 0100 0800 01000000 10000000 120b0000 ffffffff 05000000 04000000");
    const auto header = decode_bitmap_header(data_of(bytes), bytes.size());
    ASSERT_TRUE(header);
    EXPECT_EQ(40u, header->header_size);
    EXPECT_EQ(3, header->width);
    EXPECT_EQ(-2, header->height);
    EXPECT_EQ(1u, header->planes);
    EXPECT_EQ(8u, header->bits);
    EXPECT_EQ(1u, header->compression);
    EXPECT_EQ(16u, header->image_size);
    EXPECT_EQ(2834, header->pixels_per_metre_x);
    EXPECT_EQ(-1, header->pixels_per_metre_y);
    EXPECT_EQ(5u, header->colours_used);
    EXPECT_EQ(4u, header->colours_important);
    EXPECT_EQ(60u, header->PixelOffset());
}

TEST(BitmapHeader, decodes_a_core_header_of_12_bytes) {
    const std::string bytes = bytes_of("0c000000 ffff 0200 0100 0400");
    const auto header = decode_bitmap_header(data_of(bytes), bytes.size());
    ASSERT_TRUE(header);
    EXPECT_EQ(65535, header->width);
    EXPECT_EQ(2, header->height);
    EXPECT_EQ(48u, header->TableBytes());
}

TEST(BitmapHeader, is_none_if_bytes_are_missing) {
    const std::string info(40, '\x28');
    EXPECT_FALSE(decode_bitmap_header(data_of(info), 39));
    EXPECT_FALSE(decode_bitmap_header(data_of(info), 3));
    const std::string core = bytes_of("0c000000 ffff 0200 0100 04");
    EXPECT_FALSE(decode_bitmap_header(data_of(core), core.size()));
}

TEST(BitmapHeader, knows_the_colours_of_each_depth) {
    struct Case {
        std::uint32_t bits, used, compression, size;
        std::uint64_t table;
    };
    const Case cases[] = {{1, 0, 0, 40, 8},   {4, 0, 0, 40, 64},  {8, 0, 0, 40, 1024}, {8, 3, 0, 40, 12},
                          {16, 0, 0, 40, 0},  {16, 0, 3, 40, 12}, {32, 0, 3, 40, 12},  {24, 0, 0, 40, 0},
                          {24, 7, 0, 40, 28}, {1, 0, 0, 12, 6},   {8, 0, 0, 12, 768},  {24, 0, 0, 12, 0}};
    for (const Case& c : cases) {
        BitmapHeader header = plausible();
        header.bits = c.bits;
        header.colours_used = c.used;
        header.compression = c.compression;
        header.header_size = c.size;
        EXPECT_EQ(c.table, header.TableBytes()) << c.bits << ' ' << c.used << ' ' << c.compression;
        EXPECT_EQ(c.table + c.size, header.PixelOffset());
    }
}

TEST(BitmapHeader, pads_rows_to_four_bytes) {
    BitmapHeader header = plausible();
    EXPECT_EQ(12u, header.RowBytes());
    header.width = 33;
    header.bits = 1;
    EXPECT_EQ(8u, header.RowBytes());
}

TEST(FindImplausible, accepts_a_block_that_is_just_long_enough) {
    EXPECT_EQ("plausible", why(plausible(), 64));
    EXPECT_EQ("plausible", why(plausible(), 88));
    EXPECT_EQ(
        "its header asks for 40 bytes of header and colours and 24 bytes of pixels, but the block has 63 "
        "bytes",
        why(plausible(), 63));
}

TEST(FindImplausible, names_the_field_that_is_wrong) {
    const auto with = [](auto change) {
        BitmapHeader header = plausible();
        change(header);
        return why(header, 1000);
    };
    EXPECT_EQ("its header size is 13", with([](BitmapHeader& h) { h.header_size = 13; }));
    EXPECT_EQ("its header size is 4096", with([](BitmapHeader& h) { h.header_size = 4096; }));
    EXPECT_EQ("its width is 0", with([](BitmapHeader& h) { h.width = 0; }));
    EXPECT_EQ("its width is -3", with([](BitmapHeader& h) { h.width = -3; }));
    EXPECT_EQ("its height is 0", with([](BitmapHeader& h) { h.height = 0; }));
    EXPECT_EQ("it has 0 planes", with([](BitmapHeader& h) { h.planes = 0; }));
    EXPECT_EQ("it has 7 bits per pixel", with([](BitmapHeader& h) { h.bits = 7; }));
    EXPECT_EQ("it has compression 1 with 24 bits per pixel",
              with([](BitmapHeader& h) { h.compression = 1; }));
    EXPECT_EQ("it has compression 9 with 24 bits per pixel",
              with([](BitmapHeader& h) { h.compression = 9; }));
    EXPECT_EQ("plausible", with([](BitmapHeader& h) { h.height = -2; }));
}

TEST(FindImplausible, takes_the_size_of_run_lengths_from_the_header) {
    BitmapHeader header = plausible();
    header.bits = 8;
    header.colours_used = 2;
    header.compression = 1;
    header.image_size = 10;
    EXPECT_EQ("plausible", why(header, 58));
    EXPECT_NE("plausible", why(header, 57));
}

TEST(FindImplausible, does_not_wrap_on_the_largest_numbers) {
    BitmapHeader header = plausible();
    header.width = INT32_MAX;
    header.height = INT32_MIN;
    header.bits = 32;
    header.colours_used = UINT32_MAX;
    EXPECT_NE("plausible", why(header, UINT32_MAX));
}
