#include "lvx/controls/shell_version.h"

#include <gtest/gtest.h>

using lvx::controls::draws_etched_lines;

namespace {

constexpr std::uint32_t answer(std::uint32_t major, std::uint32_t minor) {
    return major | minor << 8;
}

}  // namespace

TEST(ShellVersion, draws_etched_lines_from_3_95_on) {
    EXPECT_FALSE(draws_etched_lines(answer(3, 10)));
    EXPECT_FALSE(draws_etched_lines(answer(3, 94)));
    EXPECT_TRUE(draws_etched_lines(answer(3, 95)));
    EXPECT_TRUE(draws_etched_lines(answer(3, 255)));
    EXPECT_FALSE(draws_etched_lines(answer(2, 95)));
    EXPECT_FALSE(draws_etched_lines(answer(0, 255)));
    EXPECT_TRUE(draws_etched_lines(answer(4, 0)));
    EXPECT_TRUE(draws_etched_lines(answer(10, 0)));
}

// The build and the kind of system stand in the upper half.
TEST(ShellVersion, does_not_depend_on_the_build) {
    EXPECT_FALSE(draws_etched_lines(0xFFFF0000u | answer(3, 51)));
    EXPECT_TRUE(draws_etched_lines(0x80000000u | answer(4, 0)));
}
