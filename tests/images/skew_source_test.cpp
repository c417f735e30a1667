#include "lvx/images/skew_source.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using lvx::images::SkewSource;

// 3 by 2 pixels in rows of 12 bytes, of exactly as many bytes as are given.
SkewSource source_of(const std::vector<unsigned char>& bytes, std::uint32_t depth) {
    return {bytes.data(), bytes.size(), 3, 2, 12, depth};
}

std::vector<unsigned char> counted(std::size_t count) {
    std::vector<unsigned char> bytes(count);
    for (std::size_t i = 0; i < count; ++i) {
        bytes[i] = static_cast<unsigned char>(i + 1);
    }
    return bytes;
}

TEST(SkewSource, gives_the_word_that_begins_with_the_pixel) {
    const auto bytes = counted(24);
    EXPECT_EQ(0x04030201u, source_of(bytes, 32).Word(0, 0));
    EXPECT_EQ(0x0C0B0A09u, source_of(bytes, 32).Word(2, 0));
    EXPECT_EQ(0x100F0E0Du, source_of(bytes, 32).Word(0, 1));
    EXPECT_EQ(0x07060504u, source_of(bytes, 24).Word(1, 0));
    EXPECT_EQ(0x06050403u, source_of(bytes, 16).Word(1, 0));
    EXPECT_EQ(0x05040302u, source_of(bytes, 8).Word(1, 0));
}

TEST(SkewSource, gives_the_word_that_begins_with_the_byte_of_smaller_pixels) {
    const auto bytes = counted(24);
    EXPECT_EQ(0x04030201u, source_of(bytes, 4).Word(1, 0));
    EXPECT_EQ(0x05040302u, source_of(bytes, 4).Word(2, 0));
    EXPECT_EQ(0x100F0E0Du, source_of(bytes, 1).Word(2, 1));
}

TEST(SkewSource, has_zeros_behind_the_end_of_the_block) {
    const auto bytes = counted(22);
    EXPECT_EQ(0x16151413u, source_of(bytes, 24).Word(2, 1));
    const auto fewer = counted(21);
    EXPECT_EQ(0x00151413u, source_of(fewer, 24).Word(2, 1));
    const auto one = counted(19);
    EXPECT_EQ(0x00000013u, source_of(one, 24).Word(2, 1));
    const auto none = counted(18);
    EXPECT_EQ(0u, source_of(none, 24).Word(2, 1));
    EXPECT_EQ(0u, source_of({}, 24).Word(2, 1));
    EXPECT_EQ(0u, source_of({}, 24).Word(0, 0));
}

TEST(SkewSource, takes_any_depth_that_a_header_can_claim) {
    const auto bytes = counted(24);
    EXPECT_EQ(0x04030201u, source_of(bytes, 0).Word(2, 0));
    EXPECT_EQ(0u, source_of(bytes, 65535).Word(2, 1));
}

}  // namespace
