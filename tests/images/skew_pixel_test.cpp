#include "lvx/images/skew_pixel.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using lvx::images::mean_of_four;

// Byte by byte, the top one with its sum modulo 256.
std::uint32_t mean_by_bytes(const std::uint32_t (&words)[4]) {
    std::uint32_t result = 0;
    for (int byte = 0; byte < 4; ++byte) {
        std::uint32_t sum = 0;
        for (const std::uint32_t word : words) {
            sum += word >> (8 * byte) & 0xFF;
        }
        result |= (byte == 3 ? sum % 256 : sum) / 4 << (8 * byte);
    }
    return result;
}

TEST(MeanOfFour, is_rounded_down_in_each_byte_by_itself) {
    EXPECT_EQ(0x00010203u, mean_of_four(0x00040A0C, 0x00010000, 0x00010100, 0x00010003));
    EXPECT_EQ(0x00FFFFFFu, mean_of_four(0x00FFFFFF, 0x00FFFFFF, 0x00FFFFFF, 0x00FFFFFF));
    EXPECT_EQ(0x00000000u, mean_of_four(0x00010101, 0x00010101, 0x00010101, 0));
}

TEST(MeanOfFour, wraps_the_sum_of_the_top_bytes) {
    // 4 * 63 = 252; 4 * 64 = 256, which is 0; 4 * 255 = 1020 = 3 * 256 + 252.
    EXPECT_EQ(0x3F000000u, mean_of_four(0x3F000000, 0x3F000000, 0x3F000000, 0x3F000000));
    EXPECT_EQ(0x00000000u, mean_of_four(0x40000000, 0x40000000, 0x40000000, 0x40000000));
    EXPECT_EQ(0x3F000000u, mean_of_four(0xFF000000, 0xFF000000, 0xFF000000, 0xFF000000));
    EXPECT_EQ(0x01000000u, mean_of_four(0x80000000, 0x80000000, 0x04000000, 0));
}

TEST(MeanOfFour, lets_no_byte_run_into_another) {
    std::mt19937 random(1);
    for (int i = 0; i < 100000; ++i) {
        std::uint32_t words[4];
        for (std::uint32_t& word : words) {
            word = static_cast<std::uint32_t>(random());
        }
        ASSERT_EQ(mean_by_bytes(words), mean_of_four(words[0], words[1], words[2], words[3]));
    }
}

}  // namespace
