#include "owl/pattern_size.h"

#include <gtest/gtest.h>

#include <string>

#include "owl/regexp.h"

namespace {

using owl::pattern_size;

struct Case {
    const char* pattern;
    std::size_t size;
};

void expect_sizes(std::initializer_list<Case> cases) {
    for (const Case& test : cases) {
        EXPECT_EQ(test.size, pattern_size(test.pattern)) << test.pattern;
    }
}

std::string times(std::size_t count, std::string_view text) {
    std::string all;
    for (; count > 0; --count) {
        all += text;
    }
    return all;
}

constexpr std::size_t enough = 1'000'000;

}  // namespace

TEST(PatternSize, is_1_for_each_character) {
    expect_sizes({{"", 0},
                  {"abc", 3},
                  {"\xE9", 1},
                  {"\\.\\n\\b", 3},
                  {"\\x41", 1},
                  {"\\x{e9}", 1},
                  {"^a$", 3},
                  {"\\", 0}});
    EXPECT_EQ(2u, pattern_size(std::string_view("\0a", 2)));
}

TEST(PatternSize, adds_1_for_each_operator_and_2_for_each_group) {
    expect_sizes({{"a*", 2},
                  {"ab+?", 4},
                  {"a|b|", 4},
                  {"(a)", 3},
                  {"(?:a)", 3},
                  {"(?P<name>)", 2},
                  {"(?i-s:a)", 3},
                  {"(?i)a", 1},
                  {"((a))", 5}});
}

TEST(PatternSize, is_that_of_a_set_by_its_ranges) {
    expect_sizes({{"[a]", 1},
                  {"[a-z]", 1},
                  {"[a-z0-9_]", 3},
                  {"[^a]", 2},
                  {"[]a]", 2},
                  {"[a-]", 2},
                  {"[\\]\\x41-\\x{43}]", 2},
                  {"[--a]", 1},
                  {".", 2},
                  {"\\d\\W", 10},
                  {"[\\w-]", 6},
                  {"[[:alpha:]_]", 6},
                  {"[[:^alpha:]]", 5},
                  {"[[:]", 2},
                  {"\\pL", 20},
                  {"\\PN", 20},
                  {"\\p{Greek}a", 21},
                  {"[\\pL\\pN]", 40}});
}

TEST(PatternSize, multiplies_what_is_repeated) {
    expect_sizes({{"a{3}", 3},
                  {"ba{3}", 4},
                  {"a{3,}", 4},
                  {"a{2,5}", 8},
                  {"a{0,1000}", 2000},
                  {"[ac]{10}", 20},
                  {"(ab){10}", 40},
                  {"(?:a{10}b){10}", 130},
                  {"\\pL{2}", 40},
                  {"\\Qab\\E{10}", 11},
                  {"\\x{41}{5}", 5},
                  {"a{2}{3}", 6}});
}

TEST(PatternSize, counts_once_what_is_repeated_no_times) {
    expect_sizes({{"a{0}", 1}, {"(ab){0}", 4}, {"(a{100}){0}", 102}, {"a{0,}", 2}, {"a{0,0}", 1}});
}

TEST(PatternSize, takes_braces_that_count_nothing_for_characters) {
    expect_sizes({{"a{", 2}, {"a{,3}", 5}, {"a{x}", 4}, {"a{2", 3}, {"a{2,", 4}, {"a{2,x}", 6}});
}

TEST(PatternSize, sees_no_operators_in_what_is_quoted) {
    expect_sizes({{"\\Qa{1000}\\E", 7},
                  {"\\Q(\\Ea{9}", 10},
                  {"\\Qa", 1},
                  {"[a{1000}]", 7},
                  {"\\{1000\\}", 6},
                  {"\\({9}", 9},
                  {"[(]{9}", 9}});
}

TEST(PatternSize, takes_a_count_that_is_too_high_for_the_highest) {
    expect_sizes({{"a{1001}", 1000}, {"a{99999999999999999999999999}", 1000}, {"a{3,2}", 3}});
}

TEST(PatternSize, stops_growing_at_a_large_number) {
    expect_sizes({{"((a{1000}){1000}){1000}", enough},
                  {"(((((a{1000}){1000}){1000}){1000}){1000}){1000}b*", enough},
                  {"a{1000}{1000}{1000}{1000}{1000}{1000}", enough}});
    EXPECT_EQ(enough, pattern_size(times(2000, "a{1000}")));
}

TEST(PatternSize, of_bad_patterns_is_some_number) {
    EXPECT_EQ(60000u, pattern_size(times(30000, "(")));
    EXPECT_EQ(0u, pattern_size(times(30000, ")")));
    for (const char* const pattern :
         {"[",   "[^",  "[a",   "[a-", "[a\\", "[[:",  "[[:alpha:]", "(?",    "(?P<", "(?P<n",
          "(?i", "\\p", "\\p{", "\\x", "\\x{", "\\xA", "\\Q",        "a{",    "a{1",  "a{1,",
          "*",   "|",   "(|*",  "a)",  "[\\p", "[\\x", "[a-\\",      "[a-\\x"}) {
        EXPECT_GE(7u + 20u, pattern_size(pattern)) << pattern;
    }
}

// All combinations of three parts, with repetitions behind them that are too large if they are seen.
TEST(PatternSize, sees_each_repetition_that_the_regular_expression_sees) {
    static constexpr const char* parts[] = {
        "a{0,1000}", "(",    ")",      "[",        "]",    "[:",     ":]",          "^",
        "-",         "\\",   "\\Q",    "\\E",      "(?i)", "(?P<n>", "(?:",         "\\p{",
        "}",         "\\x{", "{1000}", "{0,1000}", "{",    "[^]",    "[[:alpha:]]", "\\pL"};
    int good = 0;
    for (const char* const first : parts) {
        for (const char* const second : parts) {
            for (const char* const third : parts) {
                const std::string start = std::string(first) + second + third;
                const TRegexp expression(start + times(60, "a{0,1000}"));
                if (!expression.ok()) {
                    continue;
                }
                // The sixty are quoted, or else the pattern were too large; so they do not match the empty
                // text.
                ++good;
                EXPECT_EQ(TRegexp::not_found, expression.find("", nullptr, 0)) << start;
            }
        }
    }
    EXPECT_LT(100, good);
}
