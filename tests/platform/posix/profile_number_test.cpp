#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>

#include "lvx/platform/posix/profile_text.h"
#include "platform/profile_cases.h"

using lvx::platform::profile_number;

TEST(ProfileNumber, each_case_that_is_not_cut_or_missing) {
    for (const lvx_test::ProfileNumberCase& each : lvx_test::profile_number_cases()) {
        const bool is_plain = each.text.find_first_of("\"' ") == std::string_view::npos;
        if (is_plain && !each.text.empty() && each.text.size() < 30) {
            EXPECT_EQ(each.expected, profile_number(each.text)) << each.text;
        }
    }
}

TEST(ProfileNumber, an_empty_text_is_0) {
    EXPECT_EQ(0U, profile_number(""));
}

TEST(ProfileNumber, characters_below_the_blank_are_skipped_but_not_bytes_above) {
    EXPECT_EQ(5U, profile_number("\x01\x1F 5"));
    EXPECT_EQ(0U, profile_number("\xA0"
                                 "5"));
    EXPECT_EQ(0U, profile_number(std::string_view("\0"
                                                  "5",
                                                  2)));
}

TEST(ProfileNumber, decimal_numbers_are_those_of_the_c_library) {
    std::mt19937_64 random(3);
    for (int i = 0; i < 2000; ++i) {
        const std::string text = std::to_string(static_cast<long long>(random() >> (random() % 60) >> 2));
        EXPECT_EQ(static_cast<std::uint32_t>(std::strtoull(text.c_str(), nullptr, 10)), profile_number(text));
    }
}
