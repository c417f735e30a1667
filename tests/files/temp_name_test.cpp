#include "lvx/files/temp_name.h"

#include <gtest/gtest.h>

#include <limits>

TEST(TempName, it_has_two_digits_of_the_time_and_two_of_the_counter) {
    EXPECT_EQ("4207.tmp", lvx::temp_name(1742, 7));
    EXPECT_EQ("0000.tmp", lvx::temp_name(0, 0));
    EXPECT_EQ("9999.tmp", lvx::temp_name(99, 12399));
}

TEST(TempName, negative_numbers_keep_their_sign) {
    EXPECT_EQ("42-07.tmp", lvx::temp_name(42, -107));
    EXPECT_EQ("4200.tmp", lvx::temp_name(42, -200));
    EXPECT_EQ("-42-48.tmp", lvx::temp_name(-142, std::numeric_limits<std::int32_t>::min()));
    EXPECT_EQ("4247.tmp", lvx::temp_name(42, std::numeric_limits<std::int32_t>::max()));
}

TEST(TempName, a_number_is_taken_and_the_next_one_is_left) {
    std::int32_t counter = 0;
    EXPECT_EQ(0, lvx::take_number(counter));
    EXPECT_EQ(1, lvx::take_number(counter));
    EXPECT_EQ(2, counter);
}

TEST(TempName, behind_the_highest_number_comes_the_lowest) {
    std::int32_t counter = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(std::numeric_limits<std::int32_t>::max(), lvx::take_number(counter));
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), lvx::take_number(counter));
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min() + 1, counter);
}
