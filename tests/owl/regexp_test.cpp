#include "owl/regexp.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <type_traits>

namespace {

using namespace std::string_literals;

struct Match {
    unsigned int position = 0;
    unsigned int length = 0;

    friend bool operator==(const Match&, const Match&) = default;
    friend void PrintTo(const Match& match, std::ostream* out) {
        *out << match.position << " + " << match.length;
    }
};

constexpr unsigned int untouched = 77;
constexpr Match nothing{TRegexp::not_found, untouched};

Match find(const TRegexp& expression, std::string_view text, unsigned int start = 0) {
    Match match{0, untouched};
    match.position = expression.find(text, &match.length, start);
    return match;
}

Match find(std::string_view pattern, std::string_view text, unsigned int start = 0) {
    return find(TRegexp(pattern), text, start);
}

std::string times(std::size_t count, std::string_view text) {
    std::string all;
    for (; count > 0; --count) {
        all += text;
    }
    return all;
}

// The letters in an order without a pattern, the same each time.
std::string scattered(std::string_view letters, std::size_t count) {
    std::string text;
    for (std::uint32_t number = 1; text.size() < count; number = number * 1103515245u + 12345u) {
        text += letters[(number >> 16) % letters.size()];
    }
    return text;
}

static_assert(TRegexp::not_found == 0xFFFFFFFF);
static_assert(!std::is_copy_constructible_v<TRegexp> && !std::is_copy_assignable_v<TRegexp>);

}  // namespace

TEST(Regexp, finds_the_first_match_and_its_length) {
    EXPECT_EQ((Match{3, 2}), find("[0-9]+", "abc12 345"));
    EXPECT_EQ(nothing, find("[0-9]+", "abc"));
    EXPECT_EQ(nothing, find("a", ""));
}

TEST(Regexp, takes_the_longest_of_the_matches_that_begin_first) {
    EXPECT_EQ((Match{0, 2}), find("a|ab", "abb"));
    EXPECT_EQ((Match{0, 3}), find("a+?", "aaa"));
    EXPECT_EQ((Match{0, 1}), find("a|bcd", "abcd"));
}

TEST(Regexp, begins_its_search_at_start) {
    EXPECT_EQ((Match{2, 1}), find("a", "aba", 1));
    EXPECT_EQ((Match{1, 1}), find("b", "aba", 1));
    EXPECT_EQ(nothing, find("b", "aba", 2));
}

TEST(Regexp, sees_nothing_in_front_of_start) {
    EXPECT_EQ((Match{2, 1}), find("^c", "abc", 2));
    EXPECT_EQ((Match{2, 1}), find("\\Ac", "abc", 2));
    EXPECT_EQ((Match{2, 1}), find("\\bc", "abc", 2));
    EXPECT_EQ(nothing, find("^c", "abc", 1));
}

TEST(Regexp, anchors_all_alternatives_by_one_leading_anchor) {
    EXPECT_EQ(nothing, find("^a|b", "cb"));
    EXPECT_EQ(nothing, find("^a|b|c", "xxb", 1));
    EXPECT_EQ((Match{1, 1}), find("^a|b", "cb", 1));
    EXPECT_EQ((Match{1, 1}), find("a|b", "cb"));
}

TEST(Regexp, takes_several_leading_anchors_for_one) {
    for (const char* const pattern : {"^b+", "^^b+", "^^^^b+"}) {
        EXPECT_EQ((Match{1, 2}), find(pattern, "abb", 1)) << pattern;
        EXPECT_EQ(nothing, find(pattern, "abb")) << pattern;
    }
}

TEST(Regexp, matches_an_anchor_further_inside_at_start_too) {
    EXPECT_EQ(nothing, find("a|^b", "cb"));
    EXPECT_EQ((Match{1, 1}), find("a|^b", "cb", 1));
    EXPECT_EQ((Match{0, 1}), find("(^a)", "aa"));
    EXPECT_EQ(nothing, find("b(^a)", "ba"));
}

TEST(Regexp, matches_the_empty_text_where_the_pattern_allows_it) {
    EXPECT_EQ((Match{0, 0}), find("", "abc"));
    EXPECT_EQ((Match{0, 0}), find("^", ""));
    EXPECT_EQ((Match{1, 0}), find("x*", "abc", 1));
    EXPECT_EQ((Match{3, 0}), find("x*", "abc", 3));
    EXPECT_EQ((Match{0, 0}), find("x*", std::string_view()));
    EXPECT_EQ((Match{3, 0}), find("$", "abc"));
}

TEST(Regexp, finds_nothing_from_a_start_behind_the_end) {
    EXPECT_EQ(nothing, find("x*", "abc", 4));
    EXPECT_EQ(nothing, find("", "", 1));
    EXPECT_EQ(nothing, find("", "abc", 0xFFFFFFFF));
    EXPECT_EQ(nothing, find("a", std::string_view(), 1));
}

TEST(Regexp, takes_a_text_up_to_its_nul_or_all_of_a_view) {
    const TRegexp expression("b");
    unsigned int length = untouched;
    EXPECT_EQ(TRegexp::not_found, expression.find("a\0b", &length, 0));
    EXPECT_EQ(untouched, length);
    EXPECT_EQ(TRegexp::not_found, expression.find("a\0b", &length, 2));
    EXPECT_EQ((Match{2, 1}), find(expression, "a\0b"s));
    EXPECT_EQ((Match{0, 3}), find("a.b", "a\0b"s));
    EXPECT_EQ((Match{1, 1}), find("\\x00", "a\0b"s));
}

TEST(Regexp, takes_nuls_in_a_pattern_that_is_a_view) {
    EXPECT_EQ((Match{1, 3}), find("a\0b"s, "xa\0b"s));
    EXPECT_EQ(nothing, find("a\0b"s, "ab"));
}

TEST(Regexp, is_safe_with_null_for_everything) {
    const TRegexp good("a*");
    EXPECT_EQ(0u, good.find("aa", nullptr, 0));
    unsigned int length = untouched;
    EXPECT_EQ(TRegexp::not_found, good.find(nullptr, &length, 0));
    EXPECT_EQ(untouched, length);
    const TRegexp bad(static_cast<const char*>(nullptr));
    EXPECT_FALSE(bad.ok());
    EXPECT_EQ("there is no pattern", bad.error());
    EXPECT_EQ(nothing, find(bad, "a"));
    EXPECT_EQ((Match{0, 0}), find(TRegexp(std::string_view()), "a"));
}

TEST(Regexp, tells_why_a_pattern_is_bad_and_never_matches_it) {
    struct Case {
        const char* pattern;
        const char* error;
    };
    const Case cases[] = {{"(ab", "missing ): (ab"},
                          {"^(ab", "missing ): (ab"},
                          {"ab)", "unexpected ): ab)"},
                          {"[ab", "missing ]: [ab"},
                          {"[b-a]", "invalid character class range: b-a"},
                          {"*", "no argument for repetition operator: *"},
                          {"^*", "no argument for repetition operator: *"},
                          {"a**", "bad repetition operator: **"},
                          {"a{1001}", "invalid repetition size: {1001}"},
                          {"\\1", "invalid escape sequence: \\1"},
                          {"a\\", "trailing \\"},
                          {"(?=a)", "invalid perl operator: (?="}};
    for (const Case& test : cases) {
        const TRegexp expression(test.pattern);
        EXPECT_FALSE(expression.ok()) << test.pattern;
        EXPECT_EQ(test.error, expression.error());
        EXPECT_EQ(nothing, find(expression, test.pattern)) << test.pattern;
    }
    EXPECT_TRUE(TRegexp("a").ok());
    EXPECT_EQ("", TRegexp("a").error());
}

TEST(Regexp, says_nothing_on_standard_error_about_a_bad_pattern) {
    testing::internal::CaptureStderr();
    const TRegexp bad("(");
    find(bad, "(");
    find(TRegexp("(a{1000}){1000}"), "a");
    EXPECT_EQ("", testing::internal::GetCapturedStderr());
}

// Both need more memory than a search has for its table, the second one at once.
TEST(Regexp, finds_its_match_without_a_word_when_the_memory_for_the_table_is_used_up) {
    const std::string text = scattered("ab", 5000);
    const std::size_t last = text.rfind('a', text.size() - 901);
    testing::internal::CaptureStderr();
    EXPECT_EQ((Match{0, static_cast<unsigned int>(last + 901)}), find("^(a|b)*a(a|b){900}", text));
    EXPECT_EQ((Match{3, 300}),
              find(TRegexp("^" + times(10, "a{0,1000}")), "bbb" + std::string(300, 'a') + "b", 3));
    EXPECT_EQ((Match{3, 301}),
              find(TRegexp(times(9, "a{0,1000}") + "b"), "cab" + std::string(300, 'a') + "b", 3));
    EXPECT_EQ("", testing::internal::GetCapturedStderr());
}

// The first took ten seconds to compile.
TEST(Regexp, refuses_patterns_that_would_take_unbounded_time_or_memory) {
    for (const std::string& pattern :
         {times(80, "a{0,1000}"), times(400, "(a{0,1000})"), times(11, "a{0,1000}"), times(21, "a{1000}"),
          times(4000, "(?:a{0,10}b?)"), times(1001, "\\pL"), "(a{1000}){1000}"s, "((a{100}){100}){100}"s,
          "((\\pL{0,1000}){0,100}){0,10}"s, "(?:\\pL\\pN{1000}){1000}"s}) {
        const TRegexp expression(pattern);
        EXPECT_FALSE(expression.ok()) << pattern.substr(0, 40);
        EXPECT_EQ(pattern.size() > TRegexp::longest_pattern ? "the pattern is too long"
                                                            : "the pattern is too large",
                  expression.error());
        EXPECT_EQ(nothing, find(expression, "a"));
    }
}

TEST(Regexp, takes_patterns_up_to_the_largest) {
    const std::string text(25000, 'a');
    EXPECT_EQ((Match{0, 1200}), find(TRegexp("^" + times(10, "a{0,1000}")), text.substr(0, 1200)));
    EXPECT_EQ((Match{0, 20000}), find(TRegexp("^^" + times(20, "a{1000}")), text));
    EXPECT_EQ((Match{0, 1000}), find(TRegexp(times(1000, "\\pL")), text));
    EXPECT_EQ((Match{2, 255}), find("[a-z]{1,255}", "12" + text));
    EXPECT_EQ((Match{0, 39}), find("([0-9A-Fa-f]{1,4}:){7}[0-9A-Fa-f]{1,4}", times(8, "0aF9:")));
}

// A search without an anchor goes through all of a program that is too large for a table, at each byte.
TEST(Regexp, searches_a_text_for_the_largest_pattern) {
    const std::string text = times(3, std::string(999, 'a') + "b") + std::string(400, 'a');
    EXPECT_EQ(nothing, find(TRegexp(times(19, "a{1000}") + "c"), text));
    EXPECT_EQ((Match{0, 3000}), find(TRegexp(times(9, "a{0,1000}b?")), text.substr(0, 3000)));
}

TEST(Regexp, takes_a_pattern_up_to_its_longest_and_refuses_the_next) {
    const std::string longest = "^" + std::string(TRegexp::longest_pattern - 1, 'a');
    const std::string text(TRegexp::longest_pattern, 'a');
    EXPECT_TRUE(TRegexp(longest).ok());
    EXPECT_EQ((Match{0, TRegexp::longest_pattern - 1}), find(longest, text));
    EXPECT_FALSE(TRegexp(longest + "a").ok());
    EXPECT_EQ("the pattern is too long", TRegexp(longest + "a").error());
    EXPECT_EQ("the pattern is too long", TRegexp((longest + "a").c_str()).error());
}

TEST(Regexp, takes_nests_of_thousands_of_levels) {
    const auto nest = [](std::size_t levels) { return times(levels, "(") + "a" + times(levels, ")"); };
    EXPECT_EQ((Match{1, 1}), find(TRegexp(nest(900)), "bab"));
    EXPECT_EQ((Match{1, 1}), find(TRegexp(nest(8000)), "bab"));
    const TRegexp deeper(nest(30000));
    EXPECT_FALSE(deeper.ok());
    EXPECT_EQ("the pattern is too long", deeper.error());
    EXPECT_EQ(nothing, find(deeper, "bab"));
    EXPECT_EQ("missing ): " + times(8000, "("), TRegexp(times(8000, "(")).error());
}

TEST(Regexp, takes_time_in_proportion_to_the_text) {
    const std::string text(100000, 'a');
    EXPECT_EQ(nothing, find("^(a|aa|a*)*b", text));
    EXPECT_EQ((Match{0, 100000}), find("(a*)*", text));
    EXPECT_EQ(nothing, find("(.*)(.*)(.*)(.*)x", text));
}

TEST(Regexp, keeps_no_pointer_to_its_pattern) {
    std::string pattern = "abc";
    const TRegexp expression(pattern.c_str());
    pattern = "xyz";
    EXPECT_EQ((Match{1, 3}), find(expression, "xabc"));
}
