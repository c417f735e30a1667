#include "owl/geometry.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using owl::TSize;

TEST(Size, has_its_width_first) {
    constexpr TSize size(640, -480);
    EXPECT_EQ(640, size.cx);
    EXPECT_EQ(-480, size.cy);
}

TEST(Size, is_zero_when_nothing_is_given) {
    EXPECT_EQ(TSize(0, 0), TSize());
}

TEST(Size, equals_only_a_size_with_both_numbers_the_same) {
    EXPECT_EQ(TSize(3, 4), TSize(3, 4));
    EXPECT_NE(TSize(3, 4), TSize(3, 5));
    EXPECT_NE(TSize(3, 4), TSize(4, 4));
    EXPECT_NE(TSize(3, 4), TSize(4, 3));
}

TEST(Size, is_copied_as_bytes) {
    EXPECT_TRUE(std::is_trivially_copyable_v<TSize>);
    EXPECT_EQ(2 * sizeof(int), sizeof(TSize));
}

}  // namespace
