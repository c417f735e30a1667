#include "lvx/text/token_number.h"

#include <gtest/gtest.h>

#include <string_view>

#include "text/all_texts.h"
#include "text/token_oracle.h"

using lvx::text::number_kind;

TEST(TokenNumber, digits_are_an_integer) {
    EXPECT_EQ(1, number_kind("0"));
    EXPECT_EQ(1, number_kind("0123456789"));
    EXPECT_EQ(1, number_kind("-5"));
    EXPECT_EQ(1, number_kind("+5"));
}

TEST(TokenNumber, a_point_or_an_exponent_makes_it_floating) {
    EXPECT_EQ(2, number_kind("1.5"));
    EXPECT_EQ(2, number_kind("1."));
    EXPECT_EQ(2, number_kind(".5"));
    EXPECT_EQ(2, number_kind("-1.5e10"));
    EXPECT_EQ(2, number_kind("1E-10"));
    EXPECT_EQ(2, number_kind("1e+10"));
}

TEST(TokenNumber, needs_no_digits_anywhere) {
    EXPECT_EQ(1, number_kind(""));
    EXPECT_EQ(1, number_kind("-"));
    EXPECT_EQ(1, number_kind("+"));
    EXPECT_EQ(2, number_kind("."));
    EXPECT_EQ(2, number_kind("-."));
    EXPECT_EQ(2, number_kind("e"));
    EXPECT_EQ(2, number_kind("E"));
    EXPECT_EQ(2, number_kind("E5"));
    EXPECT_EQ(2, number_kind("1e"));
    EXPECT_EQ(2, number_kind("1e-"));
    EXPECT_EQ(2, number_kind("+.e+"));
}

TEST(TokenNumber, anything_behind_it_makes_it_none) {
    for (const char* text :
         {"1a", "a", "1 ", " 1", "1..", "1.5.", "1e5.", "1e5e", "--1", "+-1", "1-", "e--", "1x5"}) {
        EXPECT_EQ(0, number_kind(text)) << text;
    }
}

TEST(TokenNumber, a_byte_above_127_and_a_nul_make_it_none) {
    EXPECT_EQ(0, number_kind("1\xb2"));
    EXPECT_EQ(0, number_kind(std::string_view("1\0", 2)));
}

TEST(TokenNumber, agrees_with_a_second_coding_of_its_rule) {
    int numbers = 0;
    for_each_text("+-.09eEx", 5, [&](const std::string& text) {
        const int kind = number_kind(text);
        ASSERT_EQ(lvx_test::oracle_isnum(text), kind) << text;
        numbers += kind != 0 ? 1 : 0;
    });
    EXPECT_LT(1000, numbers);
}
