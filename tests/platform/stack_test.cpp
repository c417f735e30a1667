#include "lvx/platform/stack.h"

#include <gtest/gtest.h>

#include "lvx/platform/stack_limit.h"

namespace {

// Descends until the stack is low; the depth reached. The array makes each level cost something known.
int descend(int depth) {
    volatile char frame[1024];
    frame[0] = static_cast<char>(depth);
    if (lvx::platform::stack_is_low() || depth == 1 << 20) {
        return depth;
    }
    return descend(depth + 1) + (frame[0] - frame[0]);
}

}  // namespace

TEST(Stack, is_not_low_at_first) {
    EXPECT_FALSE(lvx::platform::stack_is_low());
}

TEST(Stack, becomes_low_before_it_ends) {
    const int depth = descend(0);
    EXPECT_GT(depth, 256);
    EXPECT_LT(depth, 1 << 20);
    EXPECT_FALSE(lvx::platform::stack_is_low()) << "back on top there is room again";
}

TEST(StackLimit, leaves_a_quarter_of_a_small_stack_and_256_KiB_of_a_large_one) {
    EXPECT_EQ(16384u, lvx::platform::low_part(65536));
    EXPECT_EQ(262144u, lvx::platform::low_part(8 << 20));
}

TEST(StackLimit, only_the_lowest_part_of_the_stack_itself_is_low) {
    EXPECT_TRUE(lvx::platform::is_low(1000, 1000, 100));
    EXPECT_TRUE(lvx::platform::is_low(1099, 1000, 100));
    EXPECT_FALSE(lvx::platform::is_low(1100, 1000, 100));
    EXPECT_FALSE(lvx::platform::is_low(999, 1000, 100)) << "below lies another stack";
}
