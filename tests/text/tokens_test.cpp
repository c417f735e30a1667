#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <type_traits>

#include "lvx/text/token_stream.h"
#include "text/all_texts.h"
#include "text/token_list.h"

namespace {

using lvx_test::TokenList;
using lvx_test::tokens_of;

// The characters that can begin a token.
std::string firsts_of(const LVXTokens& tokens) {
    std::string firsts;
    for (const char character : every_char()) {
        if (tokens.isFirst(character)) {
            firsts += character;
        }
    }
    return firsts;
}

std::string firsts_with(int kind) {
    LVXTokens tokens;
    tokens.add(kind);
    tokens.useTokens();
    return firsts_of(tokens);
}

const std::string digits = "0123456789";
const std::string marks = "!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~";
const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz";

}  // namespace

TEST(Tokens, begin_with_nothing_on) {
    LVXTokens tokens;
    EXPECT_FALSE(tokens.isOk(0x3f));
    EXPECT_TRUE(tokens.isOk(0x40));
    EXPECT_EQ("", firsts_of(tokens));
    tokens.useTokens();
    EXPECT_EQ("", firsts_of(tokens));
    EXPECT_FALSE(tokens.isOk(0x7f));
}

TEST(Tokens, cannot_be_copied) {
    EXPECT_FALSE(std::is_copy_constructible_v<LVXTokens>);
    EXPECT_FALSE(std::is_copy_assignable_v<LVXTokens>);
}

TEST(Tokens, each_kind_turns_its_bit_on) {
    const std::pair<int, int> kinds[] = {{1, 0x01}, {2, 0x02}, {3, 0x04}, {4, 0x08}, {5, 0x10}, {11, 0x20}};
    for (const auto& [kind, bit] : kinds) {
        LVXTokens tokens;
        EXPECT_TRUE(tokens.add(kind)) << kind;
        EXPECT_TRUE(tokens.isOk(bit)) << kind;
        EXPECT_FALSE(tokens.isOk(0x3f & ~bit)) << kind;
        EXPECT_TRUE(tokens.add(kind)) << kind;
    }
}

TEST(Tokens, is_ok_asks_for_any_of_the_bits) {
    LVXTokens tokens;
    tokens.add(1, 4, 0);
    EXPECT_TRUE(tokens.isOk(0x03));
    EXPECT_TRUE(tokens.isOk(0x0a));
    EXPECT_FALSE(tokens.isOk(0x36));
    EXPECT_FALSE(tokens.isOk(0));
}

TEST(Tokens, set_default_turns_all_six_on) {
    LVXTokens tokens;
    tokens.add(100, "word");
    tokens.add(';');
    tokens.setDefault();
    for (int bit = 1; bit <= 0x40; bit *= 2) {
        EXPECT_TRUE(tokens.isOk(bit)) << bit;
    }
    tokens.useTokens();
    EXPECT_EQ(0, tokens.getKey("word"));
    EXPECT_EQ(0, tokens.tokenOf(1, ";"));
}

TEST(Tokens, numbers_begin_with_digits_and_not_with_signs) {
    EXPECT_EQ(digits, firsts_with(1));
    EXPECT_EQ(digits, firsts_with(2));
}

TEST(Tokens, punctuation_begins_with_each_mark) {
    EXPECT_EQ(marks, firsts_with(3));
}

TEST(Tokens, words_begin_with_letters_and_the_underscore) {
    EXPECT_EQ(letters, firsts_with(4));
}

TEST(Tokens, control_characters_include_five_marks_and_leave_the_blanks_out) {
    EXPECT_EQ(
        "\x01\x02\x03\x04\x05\x06\x07\x08\x0b\x0e\x0f\x10\x11\x12\x13\x14\x15\x16\x17\x18\x19\x1a\x1b\x1c\x1d"
        "\x1e\x1f"
        "!\"#$%\x7f",
        firsts_with(5));
}

TEST(Tokens, white_space_is_without_the_vertical_tab) {
    EXPECT_EQ("\t\n\f\r ", firsts_with(11));
}

TEST(Tokens, all_kinds_together_mark_everything_but_nul) {
    LVXTokens tokens;
    tokens.setDefault();
    tokens.useTokens();
    EXPECT_EQ(every_char().substr(1, 127), firsts_of(tokens));
}

TEST(Tokens, blanks_come_back_when_white_space_is_on_beside_control_characters) {
    LVXTokens tokens;
    tokens.add(11, 5, 0);
    tokens.useTokens();
    for (const char blank : std::string("\t\n\v\f\r ")) {
        EXPECT_TRUE(tokens.isFirst(blank)) << static_cast<int>(blank);
    }
}

TEST(Tokens, a_blank_that_is_a_token_stays_marked_beside_control_characters) {
    LVXTokens tokens;
    tokens.add(5, ' ', 0);
    tokens.add(100, "\tx");
    tokens.useTokens();
    EXPECT_TRUE(tokens.isFirst(' '));
    EXPECT_TRUE(tokens.isFirst('\t'));
    EXPECT_FALSE(tokens.isFirst('\n'));
}

TEST(Tokens, a_single_character_returns_its_code_and_is_added_once) {
    LVXTokens tokens;
    EXPECT_TRUE(tokens.add(';'));
    EXPECT_FALSE(tokens.add(';'));
    EXPECT_EQ((TokenList{{59, ";"}, {59, ";"}}), tokens_of("a ; b+;", tokens));
}

TEST(Tokens, kinds_6_to_10_are_characters) {
    LVXTokens tokens;
    for (int code = 6; code <= 10; ++code) {
        EXPECT_TRUE(tokens.add(code)) << code;
        EXPECT_FALSE(tokens.add(code)) << code;
    }
    tokens.useTokens();
    EXPECT_EQ("\x06\a\b\t\n", firsts_of(tokens));
    EXPECT_EQ(10, tokens.tokenOf(1, "\n"));
}

TEST(Tokens, a_nul_is_refused_as_a_character) {
    LVXTokens tokens;
    EXPECT_FALSE(tokens.add(0));
    EXPECT_FALSE(tokens.add(256));
    EXPECT_FALSE(tokens.add(INT_MIN));
    tokens.useTokens();
    EXPECT_EQ("", firsts_of(tokens));
    EXPECT_EQ(0, tokens.tokenOf(1, ""));
}

TEST(Tokens, a_character_is_taken_modulo_256) {
    LVXTokens tokens;
    EXPECT_TRUE(tokens.add(256 + ';'));
    EXPECT_FALSE(tokens.add(';'));
    EXPECT_TRUE(tokens.add(257));
    EXPECT_FALSE(tokens.isOk(1));
    EXPECT_TRUE(tokens.add(-28));
    EXPECT_FALSE(tokens.add(0xe4));
    tokens.useTokens();
    EXPECT_EQ(0xe4, tokens.tokenOf(1, "\xe4"));
    EXPECT_EQ(59, tokens.tokenOf(1, ";"));
    EXPECT_EQ(1, tokens.tokenOf(1, "\x01"));
}

TEST(Tokens, a_character_above_127_marks_the_one_128_below) {
    LVXTokens tokens;
    tokens.add(0xe4);
    tokens.add(0x80);
    tokens.add(100, "\xff");
    tokens.useTokens();
    EXPECT_EQ(std::string("\0d\x7f", 3), firsts_of(tokens));
    EXPECT_EQ((TokenList{}), tokens_of("d\xe4 \x80\xff", tokens));
}

TEST(Tokens, a_nul_that_is_marked_in_that_way_is_a_control_character_without_a_text) {
    LVXTokens tokens;
    tokens.add(5, 0x80, 0);
    EXPECT_EQ((TokenList{{5, ""}, {5, "\x01"}}), tokens_of(std::string("\0\x80\x01", 3), tokens));
}

TEST(Tokens, is_first_is_false_above_127) {
    LVXTokens tokens;
    tokens.setDefault();
    tokens.useTokens();
    for (int code = 128; code < 256; ++code) {
        EXPECT_FALSE(tokens.isFirst(static_cast<char>(code))) << code;
    }
}

TEST(Tokens, a_list_ends_with_its_zero) {
    LVXTokens tokens;
    EXPECT_TRUE(tokens.add(1, 4, ';', ',', 0));
    EXPECT_TRUE(tokens.isOk(0x01));
    EXPECT_TRUE(tokens.isOk(0x08));
    tokens.useTokens();
    EXPECT_EQ(59, tokens.tokenOf(1, ";"));
    EXPECT_EQ(44, tokens.tokenOf(1, ","));
}

TEST(Tokens, a_list_that_begins_with_zero_adds_nothing) {
    LVXTokens tokens;
    tokens.useTokens();
    EXPECT_TRUE(tokens.add(0, 4, 0));
    EXPECT_FALSE(tokens.isOk(0x7f));
}

TEST(Tokens, a_list_with_a_refused_entry_is_false_and_adds_the_others) {
    for (const bool refused_first : {true, false}) {
        LVXTokens tokens;
        tokens.add(';');
        EXPECT_FALSE(refused_first ? tokens.add(';', ',', '#', 0) : tokens.add(',', '#', ';', 0));
        tokens.useTokens();
        EXPECT_EQ(44, tokens.tokenOf(1, ","));
        EXPECT_EQ(35, tokens.tokenOf(1, "#"));
    }
}

TEST(Tokens, a_list_of_one_tells_whether_that_was_added) {
    LVXTokens tokens;
    EXPECT_TRUE(tokens.add(';', 0));
    EXPECT_FALSE(tokens.add(';', 0));
    EXPECT_TRUE(tokens.add(4, 0));
}

TEST(Tokens, a_kind_alone_does_not_mark_the_table_and_in_a_list_it_does) {
    LVXTokens tokens;
    tokens.useTokens();
    EXPECT_TRUE(tokens.add(4));
    EXPECT_FALSE(tokens.isOk(0x40));
    tokens.useTokens();
    EXPECT_FALSE(tokens.isFirst('a'));
    EXPECT_TRUE(tokens.add(4, 0));
    EXPECT_TRUE(tokens.isOk(0x40));
    tokens.useTokens();
    EXPECT_TRUE(tokens.isFirst('a'));
}

TEST(Tokens, a_character_and_a_keyword_mark_the_table) {
    LVXTokens tokens;
    tokens.useTokens();
    tokens.add(';');
    EXPECT_TRUE(tokens.isOk(0x40));
    tokens.useTokens();
    tokens.add(';');
    EXPECT_FALSE(tokens.isOk(0x40));
    tokens.add(100, "a");
    EXPECT_TRUE(tokens.isOk(0x40));
}

TEST(Tokens, a_keyword_of_a_kind_is_refused) {
    LVXTokens tokens;
    tokens.useTokens();
    for (const int kind : {1, 2, 3, 4, 5, 11}) {
        EXPECT_FALSE(tokens.add(kind, "x")) << kind;
        EXPECT_FALSE(tokens.add(kind, std::string("x"))) << kind;
    }
    EXPECT_FALSE(tokens.isOk(0x40));
    EXPECT_EQ(0, tokens.getKey("x"));
    for (const int free : {6, 10, 12, -1}) {
        EXPECT_TRUE(tokens.add(free, "x" + std::to_string(free))) << free;
        EXPECT_EQ(free, tokens.getKey(("x" + std::to_string(free)).c_str()));
    }
}

TEST(Tokens, a_keyword_keeps_its_first_number) {
    LVXTokens tokens;
    EXPECT_TRUE(tokens.add(100, "if"));
    EXPECT_TRUE(tokens.add(200, "if"));
    EXPECT_EQ(100, tokens.getKey("if"));
    EXPECT_EQ(0, tokens.getKey("IF"));
    EXPECT_EQ(0, tokens.getKey("i"));
    EXPECT_EQ(0, tokens.getKey("iff"));
}

TEST(Tokens, null_texts_are_no_tokens) {
    LVXTokens tokens;
    EXPECT_FALSE(tokens.add(100, static_cast<const char*>(nullptr)));
    EXPECT_EQ(0, tokens.getKey(nullptr));
    EXPECT_EQ(0, tokens.tokenOf(1, nullptr));
    EXPECT_EQ(0, tokens.tokenOf(0, nullptr));
}

TEST(Tokens, an_empty_keyword_stands_for_a_nul) {
    LVXTokens tokens;
    tokens.add(100, "");
    tokens.add(';');
    EXPECT_EQ((TokenList{{100, ""}, {59, ";"}, {100, ""}}), tokens_of(std::string("a\0;\0", 4), tokens));
    EXPECT_EQ(100, tokens.tokenOf(0, ""));
    EXPECT_EQ(100, tokens.tokenOf(1, ""));
}

TEST(Tokens, a_keyword_with_a_nul_in_it_is_never_met) {
    LVXTokens tokens;
    EXPECT_TRUE(tokens.add(100, std::string("a\0b", 3)));
    EXPECT_EQ(0, tokens.getKey("a"));
    EXPECT_EQ((TokenList{}), tokens_of(std::string("a\0b", 3), tokens));
    EXPECT_TRUE(tokens.isFirst('a'));
}

TEST(Tokens, a_keyword_of_number_0_is_none) {
    LVXTokens tokens;
    EXPECT_TRUE(tokens.add(0, std::string("x")));
    EXPECT_EQ((TokenList{}), tokens_of("x", tokens));
}

TEST(Tokens, token_of_asks_single_characters_first_and_only_for_one_character) {
    LVXTokens tokens;
    tokens.add('x');
    tokens.add(100, "x");
    tokens.add(101, "xy");
    tokens.useTokens();
    EXPECT_EQ('x', tokens.tokenOf(1, "x"));
    EXPECT_EQ('x', tokens.tokenOf(1, "xy"));
    EXPECT_EQ(101, tokens.tokenOf(2, "xy"));
    EXPECT_EQ(100, tokens.tokenOf(2, "x"));
    EXPECT_EQ(0, tokens.tokenOf(1, "y"));
}

TEST(Tokens, characters_added_later_count_from_the_next_use) {
    LVXTokens tokens;
    tokens.add(';');
    tokens.useTokens();
    // More than a string holds without memory of its own.
    for (int code = 'A'; code <= 'z'; ++code) {
        tokens.add(code);
        EXPECT_EQ(';', tokens.tokenOf(1, ";"));
        EXPECT_EQ(0, tokens.tokenOf(1, "A"));
        EXPECT_FALSE(tokens.isFirst('A'));
    }
    tokens.useTokens();
    EXPECT_EQ('A', tokens.tokenOf(1, "A"));
    EXPECT_EQ('z', tokens.tokenOf(1, "z"));
    EXPECT_TRUE(tokens.isFirst('A'));
}

TEST(Tokens, a_keyword_added_later_begins_nowhere_until_the_next_use) {
    LVXTokens tokens;
    lvx_test::TextStream stream("if", tokens);
    tokens.add(100, "if");
    EXPECT_EQ(0, stream.Next().first);
    stream->ungetToken();
    stream->reset();
    EXPECT_EQ(100, stream.Next().first);
}

TEST(Tokens, reset_takes_all_out_at_once) {
    LVXTokens tokens;
    tokens.setDefault();
    tokens.add(';');
    tokens.add(100, "if");
    tokens.useTokens();
    tokens.reset();
    EXPECT_FALSE(tokens.isOk(0x3f));
    EXPECT_TRUE(tokens.isOk(0x40));
    EXPECT_EQ(0, tokens.getKey("if"));
    EXPECT_EQ(0, tokens.tokenOf(1, ";"));
    EXPECT_TRUE(tokens.isFirst(';'));
    tokens.useTokens();
    EXPECT_EQ("", firsts_of(tokens));
    EXPECT_TRUE(tokens.add(';'));
}

TEST(Tokens, init_makes_a_used_table_new) {
    LVXTokens tokens;
    tokens.setDefault();
    tokens.add(';');
    tokens.useTokens();
    tokens.init();
    EXPECT_FALSE(tokens.isOk(0x3f));
    EXPECT_TRUE(tokens.isOk(0x40));
    EXPECT_TRUE(tokens.add(';'));
    tokens.useTokens();
    EXPECT_EQ(";", firsts_of(tokens));
}

TEST(Tokens, clean_takes_the_single_characters_out_and_leaves_the_rest) {
    LVXTokens tokens;
    tokens.add(4, ';', 0);
    tokens.add(100, "if");
    tokens.useTokens();
    tokens.clean();
    EXPECT_EQ(0, tokens.tokenOf(1, ";"));
    EXPECT_EQ(100, tokens.getKey("if"));
    EXPECT_TRUE(tokens.isFirst(';'));
    EXPECT_FALSE(tokens.isOk(0x40));
    EXPECT_TRUE(tokens.add(';'));
    tokens.useTokens();
    EXPECT_EQ(59, tokens.tokenOf(1, ";"));
    tokens.clean();
    tokens.clean();
}
