// What docs/patterns.md says of the syntax, line by line.
#include <gtest/gtest.h>

#include <bitset>
#include <string>

#include "owl/regexp.h"

namespace {

using namespace std::string_literals;

// How long the match at the start of `text` is, or -1.
long matched(std::string_view pattern, std::string_view text) {
    unsigned int length = 0;
    const TRegexp expression("^" + std::string(pattern));
    EXPECT_TRUE(expression.ok()) << pattern << ": " << expression.error();
    return expression.find(text, &length, 0) == 0 ? static_cast<long>(length) : -1;
}

// The bytes that the pattern takes one of.
std::bitset<256> bytes_of(std::string_view pattern) {
    const TRegexp expression("^" + std::string(pattern));
    EXPECT_TRUE(expression.ok()) << pattern << ": " << expression.error();
    std::bitset<256> bytes;
    for (unsigned int byte = 0; byte < 256; ++byte) {
        unsigned int length = 0;
        bytes[byte] =
            expression.find(std::string(1, static_cast<char>(byte)), &length, 0) == 0 && length == 1;
    }
    return bytes;
}

std::bitset<256> bytes_in(std::string_view list) {
    std::bitset<256> bytes;
    for (const char byte : list) {
        bytes.set(static_cast<unsigned char>(byte));
    }
    return bytes;
}

std::string range(char first, char last) {
    std::string list;
    for (int byte = first; byte <= last; ++byte) {
        list += static_cast<char>(byte);
    }
    return list;
}

const std::string digits = range('0', '9');
const std::string letters = range('a', 'z') + range('A', 'Z');
const std::string blanks = " \t\n\f\r";

struct Case {
    std::string pattern;
    std::string text;
    long length;
};

void expect_all(const std::vector<Case>& cases) {
    for (const Case& test : cases) {
        EXPECT_EQ(test.length, matched(test.pattern, test.text)) << test.pattern << " on " << test.text;
    }
}

struct ByteCase {
    std::string pattern;
    std::bitset<256> bytes;
};

void expect_bytes(const std::vector<ByteCase>& cases) {
    for (const ByteCase& test : cases) {
        EXPECT_EQ(test.bytes, bytes_of(test.pattern)) << test.pattern;
    }
}

}  // namespace

TEST(RegexpSyntax, ordinary_characters_stand_for_themselves) {
    expect_all({{"cat", "cats", 3},
                {"cat", "Cat", -1},
                {"a b", "a b", 3},
                {"\xE9t\xE9", "\xE9t\xE9", 3},
                {"-]}{,", "-]}{,", 5},
                {"a{", "a{", 2},
                {"a{,3}", "a{,3}", 5},
                {"a{01}", "a{01}", 5}});
}

TEST(RegexpSyntax, a_backslash_takes_the_meaning_from_punctuation) {
    expect_all(
        {{"\\.\\*\\+\\?\\(\\)\\[\\]\\{\\}\\|\\^\\$\\\\", ".*+?()[]{}|^$\\", 14}, {"1\\.5", "1x5", -1}});
    EXPECT_EQ(bytes_in("-"), bytes_of("\\-"));
    EXPECT_EQ(bytes_in("_"), bytes_of("\\_"));
    EXPECT_FALSE(TRegexp("\\y").ok());
    EXPECT_FALSE(TRegexp("\\\xE9").ok());
}

TEST(RegexpSyntax, escapes_name_characters) {
    expect_bytes({{"\\a", bytes_in("\a")},
                  {"\\f", bytes_in("\f")},
                  {"\\n", bytes_in("\n")},
                  {"\\r", bytes_in("\r")},
                  {"\\t", bytes_in("\t")},
                  {"\\v", bytes_in("\v")},
                  {"\\x41", bytes_in("A")},
                  {"\\xfF", bytes_in("\xFF")},
                  {"\\x{e9}", bytes_in("\xE9")},
                  {"\\101", bytes_in("A")},
                  {"\\0", bytes_in("\0"s)},
                  {"\\07", bytes_in("\a")},
                  {"\\17", bytes_in("\x0F")}});
    for (const char* const bad : {"\\x{100}", "\\1", "\\7", "\\8", "\\18"}) {
        EXPECT_FALSE(TRegexp(bad).ok()) << bad;
    }
}

TEST(RegexpSyntax, escapes_name_sets) {
    const std::string word = letters + digits + "_";
    expect_bytes({{"\\d", bytes_in(digits)},
                  {"\\D", ~bytes_in(digits)},
                  {"\\w", bytes_in(word)},
                  {"\\W", ~bytes_in(word)},
                  {"\\s", bytes_in(blanks)},
                  {"\\S", ~bytes_in(blanks)},
                  {".", ~bytes_in("\n")},
                  {"\\C", ~std::bitset<256>()}});
}

TEST(RegexpSyntax, brackets_list_a_set) {
    expect_bytes({{"[abc]", bytes_in("abc")},
                  {"[a-cx]", bytes_in("abcx")},
                  {"[^a-c]", ~bytes_in("abc")},
                  {"[]a]", bytes_in("]a")},
                  {"[^]a]", ~bytes_in("]a")},
                  {"[-a]", bytes_in("-a")},
                  {"[a-]", bytes_in("a-")},
                  {"[a^]", bytes_in("a^")},
                  {"[.*$]", bytes_in(".*$")},
                  {"[\\]\\\\\\n]", bytes_in("]\\\n")},
                  {"[\\x41-\\x43]", bytes_in("ABC")},
                  {"[\\d.]", bytes_in(digits + ".")},
                  {"[^\\s]", ~bytes_in(blanks)},
                  {"[\\x80-\\xFF]", bytes_in(range('\x80', '\xFF'))},
                  {"[^\\x00-\\xFF]", {}}});
}

TEST(RegexpSyntax, brackets_know_named_sets) {
    expect_bytes({{"[[:alpha:]]", bytes_in(letters)},
                  {"[[:alnum:]_]", bytes_in(letters + digits + "_")},
                  {"[[:ascii:]]", bytes_in(range('\0', '\x7F'))},
                  {"[[:blank:]]", bytes_in(" \t")},
                  {"[[:cntrl:]]", bytes_in(range('\0', '\x1F') + "\x7F")},
                  {"[[:digit:]]", bytes_in(digits)},
                  {"[[:graph:]]", bytes_in(range('!', '~'))},
                  {"[[:lower:]]", bytes_in(range('a', 'z'))},
                  {"[[:print:]]", bytes_in(range(' ', '~'))},
                  {"[[:punct:]]", bytes_in("!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~")},
                  {"[[:space:]]", bytes_in(blanks + "\v")},
                  {"[[:upper:]]", bytes_in(range('A', 'Z'))},
                  {"[[:word:]]", bytes_in(letters + digits + "_")},
                  {"[[:xdigit:]]", bytes_in(digits + "abcdefABCDEF")},
                  {"[[:^digit:]]", ~bytes_in(digits)},
                  {"[^[:digit:]]", ~bytes_in(digits)}});
}

TEST(RegexpSyntax, repetitions_follow_what_they_repeat) {
    expect_all({{"ab*", "abbb", 4},
                {"ab*", "ac", 1},
                {"ab+", "ac", -1},
                {"ab?c", "abc", 3},
                {"a{3}", "aaaa", 3},
                {"a{2,}", "a", -1},
                {"a{2,}", "aaaa", 4},
                {"a{1,3}", "aaaa", 3},
                {"(ab){2}", "ababab", 4},
                {"a*?", "aaa", 3},
                {"a{0}b", "b", 1}});
    EXPECT_TRUE(TRegexp("a{1000}").ok());
    EXPECT_FALSE(TRegexp("a{1001}").ok());
    EXPECT_FALSE(TRegexp("a{2,1}").ok());
    EXPECT_FALSE(TRegexp("a*+").ok());
}

TEST(RegexpSyntax, bars_part_alternatives_and_parentheses_hold_them_together) {
    expect_all({{"cat|dog", "dog", 3},
                {"ca(t|r)s", "cars", 4},
                {"ca(?:t|r)s", "cars", 4},
                {"(?P<name>a)b", "ab", 2},
                {"a(|b)c", "ac", 2},
                {"|a", "a", 1}});
    EXPECT_FALSE(TRegexp("(?<name>a)").ok());
}

TEST(RegexpSyntax, some_constructs_match_places_and_no_characters) {
    expect_all({{"a$", "a", 1},
                {"a$", "a\n", -1},
                {"a\\z", "a", 1},
                {"if\\b", "if(", 2},
                {"if\\b", "iffy", -1},
                {"a\\B.", "ab", 2},
                {"a\n(?m:^)b", "a\nb", 3},
                {"(?m)a$", "a\nb", 1}});
}

TEST(RegexpSyntax, either_case_is_that_of_latin_1) {
    expect_bytes({{"(?i)k", bytes_in("kK")},
                  {"(?i)\\xe9", bytes_in("\xE9\xC9")},
                  {"(?i)\xC9", bytes_in("\xE9\xC9")},
                  {"(?i)\\xff", bytes_in("\xFF")},
                  {"(?i)\\xb5", bytes_in("\xB5")},
                  {"(?i)\\xdf", bytes_in("\xDF")}});
}

TEST(RegexpSyntax, flags_change_what_follows_or_a_group) {
    expect_all({{"(?i)select", "SeLect", 6},
                {"(?i:a)b", "Ab", 2},
                {"(?i:a)b", "AB", -1},
                {"(?s)a.b", "a\nb", 3},
                {"a.b", "a\nb", -1},
                {"\\Q1+1\\E=", "1+1=", 4},
                {"\\pL+", "abc1", 3},
                {"\\PL+", "12a", 2},
                {"a|ab", "ab", 2}});
}
