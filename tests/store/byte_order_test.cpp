#include "lvx/store/byte_order.h"

#include <gtest/gtest.h>

#include <array>

TEST(ByteOrder, the_lowest_byte_comes_first) {
    std::array<unsigned char, 4> bytes{};
    lvx::store::encode(std::uint32_t{0x12345678}, bytes.data());
    EXPECT_EQ((std::array<unsigned char, 4>{0x78, 0x56, 0x34, 0x12}), bytes);
    EXPECT_EQ(0x12345678u, lvx::store::decode<std::uint32_t>(bytes.data()));
}

TEST(ByteOrder, every_bit_of_8_bytes_comes_back) {
    std::array<unsigned char, 8> bytes{};
    for (int bit = 0; bit < 64; ++bit) {
        const std::uint64_t value = std::uint64_t{1} << bit;
        lvx::store::encode(value, bytes.data());
        EXPECT_EQ(1u << bit % 8, bytes[static_cast<std::size_t>(bit) / 8]);
        EXPECT_EQ(value, lvx::store::decode<std::uint64_t>(bytes.data()));
    }
}
