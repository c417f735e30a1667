#include "lvx/images/picture_size.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using lvx::images::is_credible_picture;
using lvx::images::magnitude;
using lvx::images::picture_size;
using lvx::images::row_size;

constexpr std::uint64_t mebi = 1 << 20;

TEST(PictureSize, rows_are_padded_to_four_bytes) {
    EXPECT_EQ(4u, row_size(1, 1));
    EXPECT_EQ(4u, row_size(32, 1));
    EXPECT_EQ(8u, row_size(33, 1));
    EXPECT_EQ(4u, row_size(8, 4));
    EXPECT_EQ(8u, row_size(9, 4));
    EXPECT_EQ(4u, row_size(1, 24));
    EXPECT_EQ(8u, row_size(2, 24));
    EXPECT_EQ(12u, row_size(4, 24));
    EXPECT_EQ(12u, row_size(3, 32));
    EXPECT_EQ(0u, row_size(0, 24));
    EXPECT_EQ(0u, row_size(100, 0));
}

TEST(PictureSize, no_row_wraps) {
    EXPECT_EQ(0x1FFFDFFFE004u, row_size(0xFFFFFFFF, 0xFFFF));
}

TEST(PictureSize, is_all_rows) {
    EXPECT_EQ(24u, picture_size(2, 3, 24));
    EXPECT_EQ(0u, picture_size(2, 0, 24));
    EXPECT_EQ(std::uint64_t{36'000'000}, picture_size(4000, 3000, 24));
    EXPECT_EQ(std::uint64_t{17'179'344'900}, picture_size(65535, 65535, 32));
}

TEST(PictureSize, is_the_largest_number_if_it_exceeds_that) {
    EXPECT_EQ(std::numeric_limits<std::uint64_t>::max(), picture_size(0xFFFFFFFF, 0xFFFFFFFF, 0xFFFF));
}

TEST(PictureSize, the_height_counts_without_its_sign) {
    EXPECT_EQ(64u, magnitude(64));
    EXPECT_EQ(64u, magnitude(-64));
    EXPECT_EQ(0u, magnitude(0));
    EXPECT_EQ(0x80000000u, magnitude(std::numeric_limits<std::int32_t>::min()));
}

TEST(PictureSize, up_to_64_mebibytes_are_believed) {
    EXPECT_TRUE(is_credible_picture(64 * mebi, 0));
    EXPECT_FALSE(is_credible_picture(64 * mebi + 1, 0));
}

TEST(PictureSize, more_is_believed_up_to_1024_times_the_file) {
    EXPECT_TRUE(is_credible_picture(100 * mebi, 100 * 1024));
    EXPECT_FALSE(is_credible_picture(100 * mebi + 1, 100 * 1024));
    EXPECT_FALSE(is_credible_picture(100 * mebi, 100 * 1024 - 1));
    EXPECT_FALSE(is_credible_picture(std::numeric_limits<std::uint64_t>::max(), mebi));
}

}  // namespace
