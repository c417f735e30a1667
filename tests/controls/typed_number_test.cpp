#include "lvx/controls/typed_number.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <string>

#include "text/all_texts.h"

using lvx::controls::leading_number;
using lvx::controls::leading_whole_number;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

std::string zeros(std::size_t count) {
    return std::string(count, '0');
}

}  // namespace

TEST(LeadingWholeNumber, is_what_the_text_begins_with) {
    const struct {
        const char* text;
        long value;
    } cases[] = {
        {"", 0},
        {"0", 0},
        {"12", 12},
        {"-12", -12},
        {"+12", 12},
        {" \t\n\v\f\r7", 7},
        {"007", 7},
        {"1-2", 1},
        {"12abc", 12},
        {"abc", 0},
        {"-", 0},
        {"+", 0},
        {"--1", 0},
        {"+-1", 0},
        {"- 1", 0},
        {"1 2", 1},
        {"1.9", 1},
        {"1e5", 1},
        {"0x10", 0},
        {"-0", 0},
        {"\xA0"
         "1",
         0},
    };
    for (const auto& [text, value] : cases) {
        const auto number = leading_whole_number(text);
        EXPECT_EQ(value, number.value) << text;
        EXPECT_EQ(0, number.beyond) << text;
    }
}

TEST(LeadingWholeNumber, is_the_nearest_beyond_what_there_is) {
    const auto last = leading_whole_number(std::to_string(LONG_MAX));
    EXPECT_EQ(LONG_MAX, last.value);
    EXPECT_EQ(0, last.beyond);
    const auto first = leading_whole_number(std::to_string(LONG_MIN));
    EXPECT_EQ(LONG_MIN, first.value);
    EXPECT_EQ(0, first.beyond);
    for (const std::string& digits : {std::to_string(static_cast<unsigned long>(LONG_MAX) + 2),
                                      std::to_string(ULONG_MAX) + "0", std::string(100, '9')}) {
        const auto above = leading_whole_number(digits);
        EXPECT_EQ(LONG_MAX, above.value) << digits;
        EXPECT_EQ(1, above.beyond) << digits;
        const auto below = leading_whole_number("-" + digits);
        EXPECT_EQ(LONG_MIN, below.value) << digits;
        EXPECT_EQ(-1, below.beyond) << digits;
    }
    EXPECT_EQ(7, leading_whole_number(zeros(200) + "7").value);
}

TEST(LeadingWholeNumber, beyond_all_is_greater_than_all) {
    const auto huge = leading_whole_number(std::string(30, '9'));
    EXPECT_TRUE(huge > LONG_MAX);
    EXPECT_FALSE(huge < LONG_MAX);
    const auto tiny = leading_whole_number("-" + std::string(30, '9'));
    EXPECT_TRUE(tiny < LONG_MIN);
    const auto seven = leading_whole_number("7");
    EXPECT_TRUE(seven < 8);
    EXPECT_TRUE(seven > 6);
    EXPECT_TRUE(seven <= 7);
    EXPECT_TRUE(seven >= 7);
}

TEST(LeadingNumber, is_what_the_text_begins_with) {
    const struct {
        const char* text;
        double value;
    } cases[] = {
        {"", 0},       {"1.5", 1.5}, {"-1.5", -1.5}, {"+1.5", 1.5},   {" \t1.5", 1.5}, {".5", 0.5},
        {"-.5", -0.5}, {"1.", 1},    {"1e3", 1000},  {"1E-3", 0.001}, {"1e+3", 1000},  {"1.e2", 100},
        {"1e", 1},     {"1e-", 1},   {"1ex", 1},     {"1.5.2", 1.5},  {"1,5", 1},      {"12 mm", 12},
        {"abc", 0},    {"-", 0},     {".", 0},       {"-.", 0},       {".e5", 0},      {"- 1", 0},
        {"--1", 0},    {"0x10", 0},  {"inf", 0},     {"-inf", 0},     {"nan", 0},      {"infinity", 0},
        {"e5", 0},     {"1e5", 1e5}, {"0.1", 0.1},
    };
    for (const auto& [text, value] : cases)
        EXPECT_EQ(value, leading_number(text)) << text;
}

TEST(LeadingNumber, keeps_the_sign_of_zero) {
    EXPECT_TRUE(std::signbit(leading_number("-0")));
    EXPECT_FALSE(std::signbit(leading_number("0")));
    EXPECT_FALSE(std::signbit(leading_number("-")));
}

TEST(LeadingNumber, ends_where_doubles_do) {
    const struct {
        std::string text;
        double value;
    } cases[] = {
        {"1e308", 1e308},
        {"1e309", infinity},
        {"-1e309", -infinity},
        {"1e999999999999999999999999", infinity},
        {"1e-999999999999999999999999", 0},
        {"1e-400", 0},
        {"1e-400e999", 0},
        {"5e-324", 5e-324},
        {std::string(400, '9'), infinity},
        {zeros(400) + "." + zeros(400) + "1", 0},
        {"0." + zeros(400) + "1", 0},
        {"0." + zeros(400) + "1e401", 1},
        {"0." + zeros(400) + "1e900", infinity},
        // The exponent belongs to no number if a blank stands in front of it.
        {"0." + zeros(400) + "1e 900", 0},
        {"0." + zeros(400) + "1e", 0},
        {"0e999999", 0},
        {"1" + zeros(400) + "e-400", 1},
        {"1" + zeros(400) + "e-900", 0},
        {"." + zeros(400) + "1", 0},
    };
    for (const auto& [text, value] : cases)
        EXPECT_EQ(value, leading_number(text)) << text;
}

// The C library's, which runs in the "C" locale here and takes more than decimal numbers.
TEST(LeadingNumber, is_what_the_c_library_tells_of_decimal_numbers) {
    const auto check = [](const std::string& text) {
        ASSERT_EQ(std::atof(text.c_str()), leading_number(text)) << text;
    };
    for_each_text("-.e 17", 5, check);
    for_random_texts("-.e0123456789", 14, 5000, check);
    for_random_texts("0123456789", 400, 200, check);
}
