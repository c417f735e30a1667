#include "lvx/platform/little_endian.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

namespace {

using lvx::platform::LittleEndian;

TEST(LittleEndian, stands_in_memory_with_its_lowest_byte_first) {
    const LittleEndian<std::uint32_t> value = 0x04030201;
    const unsigned char expected[] = {1, 2, 3, 4};
    ASSERT_EQ(sizeof expected, sizeof value);
    EXPECT_EQ(0, std::memcmp(expected, &value, sizeof value));
}

TEST(LittleEndian, reads_what_stands_in_memory) {
    const unsigned char bytes[] = {0xFE, 0xFF, 0xFF, 0xFF};
    LittleEndian<std::int32_t> value;
    std::memcpy(&value, bytes, sizeof value);
    EXPECT_EQ(-2, value);
}

TEST(LittleEndian, may_lie_anywhere) {
    EXPECT_EQ(1u, alignof(LittleEndian<std::uint32_t>));
    struct {
        LittleEndian<std::uint16_t> first;
        LittleEndian<std::uint32_t> second;
    } const pair = {0x4D42, 7};
    EXPECT_EQ(6u, sizeof pair);
    EXPECT_EQ(0x4D42, pair.first);
    EXPECT_EQ(7u, pair.second);
}

TEST(LittleEndian, can_be_used_at_compile_time) {
    constexpr LittleEndian<std::int16_t> value = -300;
    static_assert(value == -300);
    EXPECT_EQ(-300, value);
}

}  // namespace
