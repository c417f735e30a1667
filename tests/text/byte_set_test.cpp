#include "lvx/text/byte_set.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "owl/regexp.h"

namespace {

using lvx::text::ByteSet;
using lvx::text::parse_bracket_set;
using lvx::text::parse_escaped_set;
using lvx::text::set_of_ranges;

using namespace std::string_literals;

// The bytes of a list, and what was not read.
struct Parsed {
    std::optional<ByteSet> set;
    std::string rest;
};

Parsed bracket(std::string_view text) {
    const std::optional<ByteSet> set = parse_bracket_set(text);
    return {set, std::string(text)};
}

Parsed escaped(std::string_view text) {
    const std::optional<ByteSet> set = parse_escaped_set(text);
    return {set, std::string(text)};
}

ByteSet bytes_matched(const std::string& pattern) {
    const TRegexp expression(pattern);
    EXPECT_TRUE(expression.ok()) << pattern << ": " << expression.error();
    ByteSet set;
    for (std::size_t byte = 0; byte < set.size(); ++byte) {
        set[byte] = expression.find(std::string(1, static_cast<char>(byte)), nullptr, 0) == 0;
    }
    return set;
}

}  // namespace

TEST(ByteSet, ranges_hold_both_their_ends) {
    EXPECT_EQ(0u, set_of_ranges("").count());
    EXPECT_EQ(1u, set_of_ranges("aa").count());
    EXPECT_EQ(36u, set_of_ranges("az09").count());
    EXPECT_TRUE(set_of_ranges("\0\xFF"s).all());
    EXPECT_EQ(128u, set_of_ranges("\x80\xFF").count());
}

TEST(ByteSet, brackets_end_at_the_first_closing_one_that_does_not_come_first) {
    EXPECT_EQ(set_of_ranges("ac"), bracket("a-c]+x").set);
    EXPECT_EQ("+x", bracket("a-c]+x").rest);
    EXPECT_EQ("]", bracket("]a]]").rest);
    EXPECT_EQ(set_of_ranges("]]aa"), bracket("]a]]").set);
    EXPECT_EQ(~set_of_ranges("]]"), bracket("^]]").set);
}

TEST(ByteSet, brackets_mean_what_they_mean_to_the_regular_expression) {
    for (const std::string& list : std::vector<std::string>{"a]",
                                                            "abc]",
                                                            "a-cx-z]",
                                                            "^a-c]",
                                                            "]]",
                                                            "^]]",
                                                            "]-a]",
                                                            "-]",
                                                            "-a]",
                                                            "a-]",
                                                            "a-b-c]",
                                                            "--a]",
                                                            "^^]",
                                                            "a^]",
                                                            "[]",
                                                            "[a]",
                                                            "\\]]",
                                                            "\\n\\t\\x41]",
                                                            "\\x41-\\x5a]",
                                                            "\\d]",
                                                            "\\D]",
                                                            "^\\D]",
                                                            "\\d-z]",
                                                            "\\s\\S]",
                                                            "\\W.]",
                                                            "[:alpha:]]",
                                                            "^[:alpha:]]",
                                                            "[:^alpha:]]",
                                                            "[:alnum:][:blank:]]",
                                                            "[:punct:]-]",
                                                            "[:ascii:]]",
                                                            "[:cntrl:]]",
                                                            "[:graph:]]",
                                                            "[:lower:]]",
                                                            "[:print:]]",
                                                            "[:space:]]",
                                                            "[:upper:]]",
                                                            "[:word:]]",
                                                            "[:xdigit:]]",
                                                            "[:digit:]]",
                                                            "\xE4-\xFC]",
                                                            "\\--\\.]",
                                                            "+--]",
                                                            "\\^]",
                                                            "\\\\]",
                                                            "a\\-z]",
                                                            "^\\x00-\\xff]",
                                                            "\\_]"}) {
        EXPECT_EQ(bytes_matched("[" + list), bracket(list).set) << list;
        EXPECT_EQ("", bracket(list).rest) << list;
    }
}

TEST(ByteSet, brackets_that_may_be_bad_are_left_alone) {
    for (const char* const list : {"",        "^",      "a",        "]",        "^]",
                                   "b-a]",    "a-\\d]", "[:alpha:", "[:alpha]", "[:nothing:]]",
                                   "[:d:]]",  "[::]]",  "[:^:]]",   "\\",       "\\b]",
                                   "\\1]",    "\\x1]",  "\\x{41}]", "\\pL]",    "\\Q]",
                                   "\\\xE4]", "a-"}) {
        EXPECT_EQ(std::nullopt, bracket(list).set) << list;
    }
}

TEST(ByteSet, escapes_mean_what_they_mean_to_the_regular_expression) {
    for (const std::string& escape : std::vector<std::string>{
             "a", "f",  "n", "r", "t",  "v", "x41", "xfF", "x00", "d", "D", "w", "W", "s", "S",
             ".", "\\", "-", "/", "\"", "_", "<",   "#",   "[",   "]", "{", "}", "^", "$", "~"}) {
        EXPECT_EQ(bytes_matched("\\" + escape), escaped(escape).set) << escape;
        EXPECT_EQ("", escaped(escape).rest) << escape;
    }
    EXPECT_EQ("1", escaped("x411").rest);
}

TEST(ByteSet, escapes_of_other_kinds_are_left_alone) {
    for (const char* const escape : {"",  "x", "x4", "x4g", "x{41}", "0", "1", "A", "b",  "B",
                                     "C", "E", "Q",  "pL",  "PL",    "z", "y", " ", "\n", "\xE4"}) {
        EXPECT_EQ(std::nullopt, escaped(escape).set) << escape;
    }
}
