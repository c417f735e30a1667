#include "lvx/images/texture_pixels.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/bytes.h"

namespace {

using lvx::images::TextureSource;
using lvx_test::bytes;

const unsigned char* data(const std::string& text) {
    return reinterpret_cast<const unsigned char*>(text.data());
}

/// What is written for `count` pixels, behind which nothing may be touched.
std::string written(const TextureSource& source, std::size_t count) {
    std::vector<unsigned char> out(count * 3 + 4, 0xEE);
    lvx::images::write_texture(source, out.data());
    const std::string text(out.begin(), out.end());
    EXPECT_EQ(std::string(4, '\xEE'), text.substr(count * 3));
    return text.substr(0, count * 3);
}

TEST(TexturePixels, of_24_bits_have_their_ends_exchanged_and_no_padding) {
    const std::string rows = bytes("010203 040506 FFFF  111213 141516 FFFF");
    EXPECT_EQ(bytes("030201 060504 131211 161514"),
              written({data(rows), 8, 2, 2, 24, false, nullptr, 0, 4}, 4));
}

TEST(TexturePixels, of_8_bits_are_looked_up) {
    const std::string table = bytes("010203FF 040506FF");
    const std::string rows = bytes("0100 01FF");
    EXPECT_EQ(bytes("060504 030201 060504"), written({data(rows), 4, 3, 1, 8, false, data(table), 2, 4}, 3));
}

TEST(TexturePixels, of_4_bits_are_looked_up_the_high_half_first) {
    const std::string table = bytes("010203FF 040506FF 070809FF");
    // Three pixels of a row, of which the last half byte is padding.
    const std::string rows = bytes("201FFFFF 001FFFFF");
    EXPECT_EQ(bytes("090807 030201 060504 030201 030201 060504"),
              written({data(rows), 4, 3, 2, 4, false, data(table), 3, 4}, 6));
}

TEST(TexturePixels, behind_the_end_of_the_table_are_black) {
    const std::string table = bytes("010203FF");
    const std::string rows = bytes("00010002");
    EXPECT_EQ(bytes("030201 000000 030201 000000"),
              written({data(rows), 4, 4, 1, 8, false, data(table), 1, 4}, 4));
}

TEST(TexturePixels, of_triples_are_looked_up) {
    const std::string table = bytes("010203 040506");
    const std::string rows = bytes("0100FFFF");
    EXPECT_EQ(bytes("060504 030201"), written({data(rows), 4, 2, 1, 8, false, data(table), 2, 3}, 2));
}

TEST(TexturePixels, with_the_upper_row_first_are_turned_upside_down) {
    const std::string rows = bytes("010203FF 111213FF");
    EXPECT_EQ(bytes("131211 030201"), written({data(rows), 4, 1, 2, 24, true, nullptr, 0, 4}, 2));
}

TEST(TexturePixels, of_another_depth_are_left_alone) {
    const std::string rows = bytes("01020304");
    for (const unsigned depth : {0u, 1u, 2u, 16u, 32u, 99u}) {
        EXPECT_EQ(std::string(3, '\xEE'), written({data(rows), 4, 1, 1, depth, false, nullptr, 0, 4}, 1))
            << depth;
    }
}

}  // namespace
