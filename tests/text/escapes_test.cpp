#include <gtest/gtest.h>

#include <map>

#include "lvx/text/strings.h"
#include "text/all_texts.h"

namespace {

using namespace std::string_literals;

}  // namespace

TEST(AddEscapes, puts_the_escape_before_each_special_character) {
    EXPECT_EQ(R"(say \"hi\")", lvx::add_escapes(R"(say "hi")", "\"", '\\'));
    EXPECT_EQ("%a%bc", lvx::add_escapes("abc", "ba", '%'));
    EXPECT_EQ("", lvx::add_escapes("", "ab", '\\'));
    EXPECT_EQ("abc", lvx::add_escapes("abc", "", '\\'));
}

TEST(AddEscapes, escapes_the_escape_only_if_it_is_special) {
    EXPECT_EQ(R"(a\b\")", lvx::add_escapes(R"(a\b")", "\"", '\\'));
    EXPECT_EQ(R"(a\\b\")", lvx::add_escapes(R"(a\b")", "\"\\", '\\'));
}

TEST(AddEscapes, leaves_control_characters_as_they_are) {
    EXPECT_EQ("a\nb\t", lvx::add_escapes("a\nb\t", "\"", '\\'));
    EXPECT_EQ("a\\\nb\t", lvx::add_escapes("a\nb\t", "\n", '\\'));
}

TEST(AddEscapes, a_nul_is_always_special) {
    EXPECT_EQ("a\\\0b"s, lvx::add_escapes("a\0b"s, "", '\\'));
    EXPECT_EQ("\\a\\\0b"s, lvx::add_escapes("a\0b"s, "a", '\\'));
}

TEST(AddEscapes, special_characters_end_at_their_nul) {
    EXPECT_EQ("\\abc", lvx::add_escapes("abc", "a\0b"s, '\\'));
}

TEST(AddEscapes, tells_bytes_above_127_apart) {
    EXPECT_EQ("\\\xe4\xf6", lvx::add_escapes("\xe4\xf6", "\xe4", '\\'));
    EXPECT_EQ("\xff\xe4", lvx::add_escapes("\xe4", "\xe4", '\xff'));
}

TEST(StripEscapes, takes_the_escape_away) {
    EXPECT_EQ(R"(say "hi")", lvx::strip_escapes(R"(say \"hi\")", '\\'));
    EXPECT_EQ("q", lvx::strip_escapes("\\q", '\\'));
    EXPECT_EQ("", lvx::strip_escapes("", '\\'));
    EXPECT_EQ("plain n r t", lvx::strip_escapes("plain n r t", '\\'));
}

TEST(StripEscapes, four_letters_become_control_characters) {
    EXPECT_EQ("\b\n\r\t", lvx::strip_escapes("\\b\\n\\r\\t", '\\'));
    EXPECT_EQ("\n\\n", lvx::strip_escapes("%n\\n", '%'));
    EXPECT_EQ("BNRT", lvx::strip_escapes("\\B\\N\\R\\T", '\\'));
}

TEST(StripEscapes, an_escaped_escape_is_one_character) {
    EXPECT_EQ("\\", lvx::strip_escapes("\\\\", '\\'));
    EXPECT_EQ("\\n", lvx::strip_escapes("\\\\n", '\\'));
    EXPECT_EQ("\\\n", lvx::strip_escapes("\\\\\\n", '\\'));
}

TEST(StripEscapes, a_lone_escape_at_the_end_stays) {
    EXPECT_EQ("\\", lvx::strip_escapes("\\", '\\'));
    EXPECT_EQ("a\\", lvx::strip_escapes("a\\", '\\'));
    EXPECT_EQ("\\\\", lvx::strip_escapes("\\\\\\", '\\'));
}

TEST(StripEscapes, a_raw_control_character_gives_the_next_entry_of_the_table) {
    EXPECT_EQ("n", lvx::strip_escapes("\\\b", '\\'));
    EXPECT_EQ("r", lvx::strip_escapes("\\\n", '\\'));
    EXPECT_EQ("t", lvx::strip_escapes("\\\r", '\\'));
    EXPECT_EQ("\0."s, lvx::strip_escapes("\\\t.", '\\'));
}

TEST(StripEscapes, an_escaped_nul_stays) {
    EXPECT_EQ("a\0b"s, lvx::strip_escapes("a\\\0b"s, '\\'));
    EXPECT_EQ("\0"s, lvx::strip_escapes("\\\0"s, '\\'));
}

TEST(StripEscapes, any_character_may_be_the_escape) {
    EXPECT_EQ("a\n\0"s, lvx::strip_escapes("\0a\0n\0"s, '\0'));
    EXPECT_EQ("\b", lvx::strip_escapes("bb", 'b'));
    EXPECT_EQ("\xe4", lvx::strip_escapes("\xff\xe4", '\xff'));
}

TEST(StripEscapes, every_other_byte_stands_for_itself) {
    const std::map<char, char> changed = {{'b', '\b'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'},
                                          {'\b', 'n'}, {'\n', 'r'}, {'\r', 't'}, {'\t', '\0'}};
    for (const char c : every_char()) {
        const char expected = changed.contains(c) ? changed.at(c) : c;
        EXPECT_EQ(std::string(1, expected), lvx::strip_escapes(std::string("\\") + c, '\\'));
    }
}

// Escaping is undone whenever the escape is special and no character of the table is.
TEST(StripEscapes, takes_back_what_add_escapes_did) {
    const auto check = [](const std::string& text) {
        const std::string escaped = lvx::add_escapes(text, "\"\\'\xe4", '\\');
        ASSERT_EQ(text, lvx::strip_escapes(escaped, '\\'));
    };
    for_each_text("\\\"n\n\xe4"s + '\0', 5, check);
    for_random_texts(every_char(), 200, 500, check);
}
