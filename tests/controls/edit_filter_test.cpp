#include "lvx/controls/edit_filter.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <vector>

#include "controls/filter_oracle.h"
#include "text/all_texts.h"

namespace {

using lvx::FieldText;
using lvx::filtered_characters;
using lvx::int_in_range;
using lvx::judge_count_key;
using lvx::judge_float_key;
using lvx::judge_int_key;
using lvx::text_with_key;
using enum lvx::KeyVerdict;

constexpr unsigned int keys_that_print_nothing[] = {0, 1, 3, 8, 22, 24, 26, 27, 31, 127, 128, 0xE9, 255};

// At the end of `text`, with nothing selected.
FieldText behind(const std::string& text) {
    const int size = static_cast<int>(text.size());
    return {text, size, size};
}

// What passes of `keys`, typed one after the other into a field that shows nothing at first.
template <class Judge>
std::string typed(const std::string& keys, const Judge& judge) {
    std::string text;
    for (const char key : keys) {
        if (judge(behind(text), static_cast<unsigned char>(key)) == Pass)
            text += key;
    }
    return text;
}

std::string typed_float(const std::string& keys) {
    return typed(keys, &judge_float_key);
}

std::string typed_int(const std::string& keys, long min, long max) {
    return typed(
        keys, [=](const FieldText& field, unsigned int key) { return judge_int_key(field, key, min, max); });
}

}  // namespace

TEST(TextWithKey, puts_the_key_where_the_selection_is) {
    const struct {
        const char* text;
        int start, end;
        const char* result;
    } cases[] = {
        {"", 0, 0, "7"},
        {"12", 0, 0, "712"},
        {"12", 1, 1, "172"},
        {"12", 2, 2, "127"},
        {"1234", 1, 3, "174"},
        {"1234", 0, 4, "7"},
        {"12", 5, 9, "127"},
        {"12", -3, 1, "72"},
        {"12", -5, -2, "712"},
        {"12", 0, 9, "7"},
        {"12", 2, 0, "12712"},
        {"12", INT_MAX, INT_MAX, "127"},
        {"12", INT_MIN, INT_MIN, "712"},
    };
    for (const auto& [text, start, end, result] : cases)
        EXPECT_EQ(result, text_with_key({text, start, end}, '7')) << text << ' ' << start << ' ' << end;
}

TEST(TextWithKey, sees_the_first_49_characters_alone) {
    const std::string long_text(60, '1');
    const std::string seen(49, '1');
    EXPECT_EQ(49u, filtered_characters);
    EXPECT_EQ(seen + "7", text_with_key({long_text, 55, 58}, '7'));
    EXPECT_EQ(seen + "7", text_with_key({long_text, 49, 49}, '7'));
    EXPECT_EQ("7", text_with_key({long_text, 0, 60}, '7'));
    EXPECT_EQ("7" + seen, text_with_key({long_text, 0, 0}, '7'));
}

TEST(TextWithKey, sees_nothing_behind_a_nul) {
    using namespace std::string_literals;
    EXPECT_EQ("127", text_with_key({"12\0x"s, 4, 4}, '7'));
}

TEST(FloatFilter, lets_a_key_replace_the_whole_text_but_only_by_a_number) {
    EXPECT_EQ(Beep, judge_float_key({"1.5", 0, 3}, 'x'));
    EXPECT_EQ(Pass, judge_float_key({"1.5", 0, 3}, '2'));
}

TEST(FloatFilter, takes_one_minus_sign) {
    EXPECT_EQ(Pass, judge_float_key({"", 0, 0}, '-'));
    EXPECT_EQ(Beep, judge_float_key({"-", 1, 1}, '-'));
    EXPECT_EQ(Pass, judge_float_key({"5", 0, 0}, '-'));
    EXPECT_EQ(Beep, judge_float_key({"5", 1, 1}, '-'));
}

TEST(FloatFilter, takes_one_point) {
    EXPECT_EQ(Pass, judge_float_key(behind("1"), '.'));
    EXPECT_EQ(Beep, judge_float_key(behind("1.2"), '.'));
    EXPECT_EQ(Beep, judge_float_key(behind("1."), '.'));
    EXPECT_EQ(Pass, judge_float_key({"1.2", 1, 2}, '.'));
}

TEST(FloatFilter, lets_a_number_be_typed_that_is_no_number_on_the_way) {
    const struct {
        const char* keys;
        const char* text;
    } cases[] = {
        {"-1.5e-10", "-1.5e-10"},
        {".5", ".5"},
        {"-.5", "-.5"},
        {"1e5", "1e5"},
        {"1.E3", "1.E3"},
        {"e5", "5"},
        {"+1", "1"},
        {"1e+5", "1e5"},
        {"1,5", "15"},
        {"1e5.5", "1e55"},
        {" 1 2 ", "12"},
        {"--1", "-1"},
        {"1-2", "12"},
        {"abc", ""},
        {"1ee5", "1e5"},
        {"1e--5", "1e-5"},
        {"0x10", "010"},
        {"inf", ""},
        {"nan", ""},
        {".e5", ".5"},
    };
    for (const auto& [keys, text] : cases)
        EXPECT_EQ(text, typed_float(keys)) << keys;
}

TEST(FloatFilter, drops_tab_and_enter_without_a_beep) {
    EXPECT_EQ(Drop, judge_float_key(behind("1"), '\t'));
    EXPECT_EQ(Drop, judge_float_key(behind("1"), '\r'));
    EXPECT_EQ(Pass, judge_float_key(behind("1"), '\n'));
}

TEST(FloatFilter, passes_other_keys_that_print_nothing) {
    for (const unsigned int key : keys_that_print_nothing)
        EXPECT_EQ(Pass, judge_float_key(behind("nonsense"), key)) << key;
}

TEST(FloatFilter, judges_a_text_of_which_some_other_way_made_nonsense) {
    EXPECT_EQ(Beep, judge_float_key(behind("nonsense"), '1'));
    EXPECT_EQ(Pass, judge_float_key({"nonsense", 0, 8}, '1'));
}

TEST(FloatFilter, takes_no_key_that_is_no_character) {
    EXPECT_EQ(Beep, judge_float_key(behind("1"), 256 + '1'));
    EXPECT_EQ(Beep, judge_float_key(behind("1"), UINT_MAX));
}

TEST(FloatFilter, lets_anything_follow_behind_49_characters) {
    const std::string digits(49, '1');
    EXPECT_EQ(Pass, judge_float_key(behind(digits + "xyz"), '.'));
    EXPECT_EQ(Beep, judge_float_key(behind(digits), 'x'));
    EXPECT_EQ(Beep, judge_float_key(behind("x" + digits), '1'));
}

TEST(IntFilter, takes_no_minus_sign_unless_the_range_is_negative) {
    EXPECT_EQ(Beep, judge_int_key({"", 0, 0}, '-', 0, 100));
    EXPECT_EQ(Pass, judge_int_key({"", 0, 0}, '-', -5, 5));
    EXPECT_EQ(Pass, judge_int_key({"12", 0, 2}, '-', -5, 5));
    EXPECT_EQ(Beep, judge_int_key({"", 0, 0}, '-', 10, 20));
}

TEST(IntFilter, stops_at_the_digit_that_leaves_the_range) {
    EXPECT_EQ("10", typed_int("101", 0, 100));
    EXPECT_EQ("100", typed_int("100", 0, 100));
    EXPECT_EQ("-", typed_int("-6", -5, 5));
    EXPECT_EQ("-5", typed_int("-5", -5, 5));
    EXPECT_EQ("5", typed_int("56", -5, 5));
}

TEST(IntFilter, lets_a_number_grow_into_a_range_above_zero) {
    EXPECT_EQ("1", typed_int("1", 10, 20));
    EXPECT_EQ("12", typed_int("12", 10, 20));
    EXPECT_EQ("2", typed_int("21", 10, 20));
    EXPECT_EQ("0", typed_int("0", 10, 20));
}

TEST(IntFilter, does_not_hold_an_upper_end_of_zero_or_below) {
    EXPECT_EQ("-5", typed_int("-5", -20, -10));
    EXPECT_EQ("-2", typed_int("-21", -20, -10));
    EXPECT_EQ("99", typed_int("99", -20, -10));
    EXPECT_EQ("7", typed_int("7", -5, 0));
    EXPECT_EQ("7", typed_int("7", 0, 0));
}

TEST(IntFilter, takes_a_minus_sign_behind_digits_and_leaves_it_to_the_reader) {
    EXPECT_EQ("1-2", typed_int("1-2", -5, 5));
    EXPECT_EQ("1-2", typed_int("1-2", 0, 100));
    EXPECT_EQ("--", typed_int("--", -5, 5));
    long value = 7;
    EXPECT_FALSE(int_in_range("1-2", -5, 5, value));
    EXPECT_EQ(7, value);
}

TEST(IntFilter, takes_digits_and_minus_signs_alone) {
    for (const char key : every_char()) {
        const auto code = static_cast<unsigned char>(key);
        if (code >= 32 && code < 127) {
            const bool accepted = (key >= '0' && key <= '9') || key == '-';
            EXPECT_EQ(accepted ? Pass : Beep, judge_int_key({"", 0, 0}, code, -1000, 1000)) << key;
        }
    }
}

TEST(IntFilter, passes_all_keys_that_print_nothing_tab_and_enter_too) {
    for (const unsigned int key : keys_that_print_nothing)
        EXPECT_EQ(Pass, judge_int_key(behind("nonsense"), key, 0, 1)) << key;
    EXPECT_EQ(Pass, judge_int_key(behind("1"), '\t', 0, 1));
    EXPECT_EQ(Pass, judge_int_key(behind("1"), '\r', 0, 1));
    EXPECT_EQ(Beep, judge_int_key(behind("1"), 256 + '1', 0, 1000));
}

TEST(IntFilter, reads_the_number_behind_blanks_and_a_plus_that_were_pasted) {
    EXPECT_EQ(Pass, judge_int_key(behind(" +9"), '9', 0, 100));
    EXPECT_EQ(Beep, judge_int_key(behind(" +99"), '9', 0, 100));
    EXPECT_EQ(Pass, judge_int_key(behind("x99"), '9', 0, 100));
}

TEST(IntFilter, knows_that_a_number_beyond_all_is_beyond_the_widest_range) {
    const std::string most = std::to_string(LONG_MAX);
    const std::string least = std::to_string(LONG_MIN);
    const auto may_follow = [](const std::string& text, char key, long min, long max) {
        return judge_int_key(behind(text), static_cast<unsigned char>(key), min, max) == Pass;
    };
    EXPECT_EQ('7', most.back());
    EXPECT_TRUE(may_follow(most.substr(0, most.size() - 1), '7', LONG_MIN, LONG_MAX));
    EXPECT_FALSE(may_follow(most.substr(0, most.size() - 1), '8', LONG_MIN, LONG_MAX));
    EXPECT_TRUE(may_follow(least.substr(0, least.size() - 1), '8', LONG_MIN, LONG_MAX));
    EXPECT_FALSE(may_follow(least.substr(0, least.size() - 1), '9', LONG_MIN, LONG_MAX));
    EXPECT_FALSE(may_follow(std::string(40, '9'), '9', 0, LONG_MAX));
    EXPECT_FALSE(may_follow("-" + std::string(40, '9'), '9', LONG_MIN, 0));
    EXPECT_TRUE(may_follow(std::string(40, '9'), '9', LONG_MIN, 0));
}

TEST(IntFilter, judges_a_long_text_by_its_first_49_characters) {
    EXPECT_EQ(Pass, judge_int_key(behind(std::string(49, '0') + "999"), '9', 0, 100));
    EXPECT_EQ(Beep, judge_int_key(behind(std::string(46, '0') + "999"), '9', 0, 100));
    EXPECT_EQ(Pass, judge_int_key({std::string(60, '9'), 0, 60}, '9', 0, 100));
}

TEST(CountFilter, takes_digits_up_to_the_largest_number) {
    EXPECT_EQ(Beep, judge_count_key(behind("30"), '0', 255));
    EXPECT_EQ(Pass, judge_count_key(behind("25"), '5', 255));
    EXPECT_EQ(Beep, judge_count_key(behind("25"), '6', 255));
    EXPECT_EQ(Pass, judge_count_key(behind("10"), '0', 100));
    EXPECT_EQ(Beep, judge_count_key(behind("10"), '1', 100));
    EXPECT_EQ(Pass, judge_count_key({"255", 0, 3}, '9', 255));
    EXPECT_EQ(Beep, judge_count_key(behind(std::string(30, '9')), '9', INT_MAX));
}

TEST(CountFilter, takes_no_minus_sign) {
    EXPECT_EQ(Beep, judge_count_key({"", 0, 0}, '-', 255));
    EXPECT_EQ(Beep, judge_count_key({"", 0, 0}, ' ', 255));
    EXPECT_EQ(Beep, judge_count_key({"", 0, 0}, 'a', 255));
    EXPECT_EQ(Beep, judge_count_key({"", 0, 0}, 256 + '1', 255));
}

TEST(CountFilter, passes_all_keys_that_print_nothing) {
    for (const unsigned int key : keys_that_print_nothing)
        EXPECT_EQ(Pass, judge_count_key(behind("x"), key, 0)) << key;
    EXPECT_EQ(Pass, judge_count_key(behind("1"), '\t', 0));
    EXPECT_EQ(Pass, judge_count_key(behind("1"), '\r', 0));
}

TEST(IntInRange, holds_both_ends_whatever_their_signs) {
    const struct {
        const char* text;
        long min, max;
        bool accepted;
    } cases[] = {
        {"1", 10, 20, false},    {"10", 10, 20, true},    {"20", 10, 20, true},    {"21", 10, 20, false},
        {"-5", -20, -10, false}, {"-10", -20, -10, true}, {"-20", -20, -10, true}, {"-21", -20, -10, false},
        {"0", 0, 0, true},       {"1", 0, 0, false},      {"-0", 0, 0, true},      {"007", 0, 10, true},
        {"5", 10, 0, false},
    };
    for (const auto& [text, min, max, accepted] : cases) {
        long value = 12345;
        EXPECT_EQ(accepted, int_in_range(text, min, max, value)) << text;
        EXPECT_EQ(accepted ? std::stol(text) : 12345, value) << text;
    }
}

TEST(IntInRange, refuses_what_is_no_whole_number) {
    for (const char* text : {"", "-", "1-2", "+1", " 1", "1 ", "1.0", "x"}) {
        long value = 12345;
        EXPECT_FALSE(int_in_range(text, LONG_MIN, LONG_MAX, value)) << text;
        EXPECT_EQ(12345, value);
    }
}

TEST(IntInRange, refuses_what_is_beyond_the_widest_range) {
    long value = 0;
    EXPECT_TRUE(int_in_range(std::to_string(LONG_MAX), LONG_MIN, LONG_MAX, value));
    EXPECT_EQ(LONG_MAX, value);
    EXPECT_TRUE(int_in_range(std::to_string(LONG_MIN), LONG_MIN, LONG_MAX, value));
    EXPECT_EQ(LONG_MIN, value);
    EXPECT_FALSE(int_in_range("9223372036854775808", LONG_MIN, LONG_MAX, value));
    EXPECT_FALSE(int_in_range("-9223372036854775809", LONG_MIN, LONG_MAX, value));
    EXPECT_EQ(LONG_MIN, value);
}

// Every text of up to four characters, every selection in and around it, every kind of key.
TEST(Filters, agree_with_a_second_coding_of_their_rules) {
    const std::vector<unsigned int> keys = {'-', '.', 'e', '0', '9', 'x', ' ', 8, 9, 13, 200, 300};
    const std::vector<std::pair<long, long>> ranges = {{0, 100},   {10, 20}, {-5, 5},
                                                       {-20, -10}, {0, 0},   {5, -5}};
    for_each_text("-.e19", 4, [&](const std::string& text) {
        const int size = static_cast<int>(text.size());
        for (int start = -1; start <= size + 1; ++start) {
            for (int end = start; end <= size + 1; ++end) {
                const FieldText field{text, start, end};
                for (const unsigned int key : keys) {
                    const testing::Message where = testing::Message()
                                                   << text << ' ' << start << ' ' << end << ' ' << key;
                    ASSERT_EQ(lvx_test::oracle_float_key(text, start, end, key), judge_float_key(field, key))
                        << where;
                    ASSERT_EQ(lvx_test::oracle_count_key(text, start, end, key, 91),
                              judge_count_key(field, key, 91))
                        << where;
                    for (const auto& [min, max] : ranges)
                        ASSERT_EQ(lvx_test::oracle_int_key(text, start, end, key, min, max),
                                  judge_int_key(field, key, min, max))
                            << where << ' ' << min << ' ' << max;
                }
            }
        }
    });
}
