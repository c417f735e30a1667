#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

#include "lvx/text/strings.h"
#include "text/all_texts.h"

namespace {

using namespace std::string_literals;

// A second coding of the rules, which cuts a text at its marks and counts what is in the pieces.
bool all_digits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string_view without_minus(std::string_view text) {
    return text.substr(text.starts_with('-') ? 1 : 0);
}

bool is_whole(std::string_view text) {
    const std::string_view digits = without_minus(text);
    return !digits.empty() && all_digits(digits);
}

bool is_decimal(std::string_view text) {
    const std::string_view unsigned_part = without_minus(text);
    std::string digits(unsigned_part);
    std::erase(digits, '.');
    return !digits.empty() && all_digits(digits) && unsigned_part.size() - digits.size() <= 1;
}

bool is_number(std::string_view text) {
    const std::size_t exponent = text.find_first_of("eE");
    if (exponent == std::string_view::npos) {
        return is_decimal(text);
    }
    return is_decimal(text.substr(0, exponent)) && is_whole(text.substr(exponent + 1));
}

}  // namespace

TEST(IsInt, takes_digits_with_a_minus_in_front) {
    for (const char* text : {"0", "7", "007", "-1", "-0", "1234567890", "-99999999999999999999999999"}) {
        EXPECT_TRUE(lvx::is_int(text)) << text;
    }
}

TEST(IsInt, takes_nothing_else) {
    for (const char* text :
         {"", "-", "+1", "1.0", "--1", "1-", "-1-", " 1", "1 ", "1e5", "0x1", "a", "1,000"}) {
        EXPECT_FALSE(lvx::is_int(text)) << text;
    }
}

TEST(IsInt, a_nul_is_no_digit) {
    EXPECT_FALSE(lvx::is_int("1\0"s));
    EXPECT_FALSE(lvx::is_int("\0"s));
    EXPECT_FALSE(lvx::is_int("-\0"s));
}

TEST(IsInt, of_all_single_characters_only_digits_count) {
    for (const char c : every_char()) {
        EXPECT_EQ(c >= '0' && c <= '9', lvx::is_int(std::string(1, c))) << static_cast<int>(c);
    }
}

TEST(IsInt, agrees_with_a_second_coding_of_its_rule) {
    const auto check = [](const std::string& text) { ASSERT_EQ(is_whole(text), lvx::is_int(text)) << text; };
    for_each_text("-09+a", 5, check);
    for_random_texts("-0123456789", 6, 2000, check);
}

TEST(IsFloat, takes_digits_on_either_side_of_the_point) {
    for (const char* text : {"1", "-1.5", ".5", "-.5", "1.", "-1.", "12.", "0", "-0", "00.00", "123.456"}) {
        EXPECT_TRUE(lvx::is_float(text)) << text;
    }
}

TEST(IsFloat, takes_an_exponent) {
    for (const char* text : {"1e5", "1.5E-3", "1.e2", ".5e1", "-.5E-10", "1e00", "1e999999"}) {
        EXPECT_TRUE(lvx::is_float(text)) << text;
    }
}

TEST(IsFloat, takes_nothing_else) {
    for (const char* text :
         {"",     "-",   ".",    "-.",   "e5",  "1e",  "1e+5", "1.5.2", "+1",  "--1", "1e-",
          "1e5.", "1ee", "1e5e", ".e5",  "-e5", "1.-", "1-",   " 1",    "1 ",  "inf", "nan",
          "0x10", "1,5", "1f",   "1e--", ".5.", "..5", "-.e1", "1e5-",  "1.5 "}) {
        EXPECT_FALSE(lvx::is_float(text)) << text;
    }
}

TEST(IsFloat, a_nul_ends_the_text) {
    EXPECT_TRUE(lvx::is_float("1.5\0abc"s));
    EXPECT_TRUE(lvx::is_float("1e5\0"s));
    EXPECT_FALSE(lvx::is_float("\0001"s));
    EXPECT_FALSE(lvx::is_float("1e\0005"s));
}

TEST(IsFloat, bytes_above_127_are_no_digits) {
    EXPECT_FALSE(lvx::is_float("\xb2"));
    EXPECT_FALSE(lvx::is_float("1\xb2"));
    EXPECT_FALSE(lvx::is_float("1.\xff"));
}

TEST(IsFloat, agrees_with_a_second_coding_of_its_rule) {
    const auto check = [](const std::string& text) {
        ASSERT_EQ(is_number(text), lvx::is_float(text)) << text;
    };
    for_each_text("-.eE7+", 5, check);
    for_random_texts("-.e0123456789", 10, 5000, check);
}
