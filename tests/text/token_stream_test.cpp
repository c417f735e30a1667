#include "lvx/text/token_stream.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <type_traits>

#include "text/all_texts.h"
#include "text/token_list.h"
#include "text/token_program.h"

namespace {

using lvx_test::TextStream;
using Token = std::pair<int, std::string>;

}  // namespace

TEST(TokenStream, is_a_standard_stream_and_cannot_be_copied) {
    EXPECT_TRUE((std::is_base_of_v<std::istream, LVXTokenStream>));
    EXPECT_FALSE(std::is_copy_constructible_v<LVXTokenStream>);
    EXPECT_FALSE(std::is_copy_assignable_v<LVXTokenStream>);
}

TEST(TokenStream, begins_at_the_start_in_a_good_state) {
    TextStream stream("abc");
    EXPECT_TRUE(stream->good());
    EXPECT_EQ(0, stream.Position());
    EXPECT_EQ('a', stream->get());
}

TEST(TokenStream, null_and_no_length_are_an_empty_text) {
    char text[] = "abc";
    for (const auto& [pointer, length] :
         {std::pair<char*, int>{nullptr, 0}, {nullptr, 5}, {text, 0}, {text, -1}, {text, INT_MIN}}) {
        LVXTokenStream stream(pointer, length);
        EXPECT_TRUE(stream.good());
        stream.ungetToken();
        EXPECT_EQ(0, stream.tellg());
        std::string token = "x";
        EXPECT_FALSE(stream.getTag(token));
        stream.clear();
        EXPECT_FALSE(stream.skipTo('a'));
        stream.clear();
        EXPECT_EQ(0, stream.getToken(token));
        EXPECT_EQ("", token);
    }
}

TEST(TokenStream, does_not_read_beyond_its_length) {
    char text[] = "abcdef";
    LVXTokenStream stream(text, 3);
    std::string token;
    EXPECT_EQ(4, stream.getToken(token));
    EXPECT_EQ("abc", token);
    EXPECT_EQ(0, stream.getToken(token));
}

TEST(TokenStream, makes_a_default_table_of_its_own) {
    TextStream with_reset("a 1");
    with_reset->reset();
    EXPECT_EQ((Token{4, "a"}), with_reset.Next());
    EXPECT_EQ((Token{11, " "}), with_reset.Next());
    EXPECT_EQ((Token{1, "1"}), with_reset.Next());
    TextStream without("a 1");
    EXPECT_EQ((Token{4, "a"}), without.Next());
}

TEST(TokenStream, reset_keeps_a_table_that_was_given_and_the_place) {
    LVXTokens tokens;
    tokens.add(4);
    TextStream stream("a 1 b", tokens);
    stream.Next();
    stream->reset();
    EXPECT_EQ((Token{4, "b"}), stream.Next());
}

TEST(TokenStream, reset_puts_later_entries_in_use) {
    LVXTokens tokens;
    tokens.add(4);
    TextStream stream("a;b;", tokens);
    tokens.add(';');
    EXPECT_EQ((Token{4, "a"}), stream.Next());
    EXPECT_EQ((Token{4, "b"}), stream.Next());
    stream->reset();
    EXPECT_EQ((Token{59, ";"}), stream.Next());
}

TEST(TokenStream, changes_tables_between_tokens) {
    LVXTokens words;
    words.add(4);
    LVXTokens integers;
    integers.add(1);
    TextStream stream("a 1 b 2", words);
    EXPECT_EQ((Token{4, "a"}), stream.Next());
    stream->useTokens(&integers);
    EXPECT_EQ((Token{1, "1"}), stream.Next());
    stream->useTokens(&words);
    EXPECT_EQ((Token{4, "b"}), stream.Next());
}

TEST(TokenStream, one_table_serves_several_streams) {
    LVXTokens words;
    words.add(4);
    TextStream first("a 1 b", words);
    TextStream second("c 2 d", words);
    EXPECT_EQ((Token{4, "a"}), first.Next());
    EXPECT_EQ((Token{4, "c"}), second.Next());
    EXPECT_EQ((Token{4, "b"}), first.Next());
    EXPECT_EQ((Token{4, "d"}), second.Next());
}

TEST(TokenStream, a_table_that_is_given_replaces_its_own_and_stays_the_callers) {
    LVXTokens words;
    words.add(4);
    {
        TextStream stream("a 1 b");
        stream->reset();
        stream->useTokens(&words);
        stream->useTokens(&words);
        EXPECT_EQ((Token{4, "a"}), stream.Next());
        EXPECT_EQ((Token{4, "b"}), stream.Next());
    }
    EXPECT_TRUE(words.isOk(0x08));
}

TEST(TokenStream, a_table_may_end_before_the_stream_does) {
    auto words = std::make_unique<LVXTokens>();
    words->add(4);
    TextStream stream("a b", *words);
    stream.Next();
    words.reset();
    SUCCEED();
}

TEST(TokenStream, without_a_table_again_it_makes_a_default_one) {
    LVXTokens words;
    words.add(4);
    TextStream stream("a 1", words);
    EXPECT_EQ((Token{4, "a"}), stream.Next());
    stream->useTokens(nullptr);
    EXPECT_EQ((Token{11, " "}), stream.Next());
    stream->useTokens(nullptr);
    EXPECT_EQ((Token{1, "1"}), stream.Next());
}

TEST(TokenStream, tokens_come_from_its_text_whatever_buffer_is_put_behind_it) {
    TextStream stream("ab 1");
    std::stringbuf other("xy");
    stream->rdbuf(&other);
    EXPECT_EQ((Token{4, "ab"}), stream.Next());
    EXPECT_EQ('x', stream->get());
    EXPECT_EQ((Token{11, " "}), stream.Next());
}

TEST(TokenStream, the_kind_alone_comes_through_a_derived_class) {
    struct Upper : LVXTokenStream {
        using LVXTokenStream::getToken;
        using LVXTokenStream::LVXTokenStream;
        int getToken(std::string& text) override { return 100 + LVXTokenStream::getToken(text); }
    };
    char text[] = "a b";
    Upper stream(text, 3);
    EXPECT_EQ(104, static_cast<LVXTokenStream&>(stream).getToken());
    EXPECT_EQ(111, stream.getToken());
}

TEST(TokenStream, unget_token_gives_the_same_token_again) {
    TextStream stream("ab 12");
    stream->ungetToken();
    EXPECT_EQ((Token{4, "ab"}), stream.Next());
    stream->ungetToken();
    stream->ungetToken();
    EXPECT_EQ(0, stream.Position());
    EXPECT_EQ((Token{4, "ab"}), stream.Next());
    EXPECT_EQ((Token{11, " "}), stream.Next());
    stream->ungetToken();
    EXPECT_EQ((Token{11, " "}), stream.Next());
    EXPECT_EQ((Token{1, "12"}), stream.Next());
}

TEST(TokenStream, unget_token_after_the_end_gives_the_last_real_token) {
    LVXTokens tokens;
    tokens.add(100, "<=");
    tokens.add(4);
    // The "<" is looked at and is none.
    TextStream stream("ab cd <", tokens);
    stream.Next();
    stream.Next();
    EXPECT_EQ(0, stream.Next().first);
    EXPECT_EQ(0, stream.Next().first);
    stream->ungetToken();
    EXPECT_TRUE(stream->good());
    EXPECT_EQ((Token{4, "cd"}), stream.Next());
}

TEST(TokenStream, unget_token_goes_in_front_of_what_was_skipped_up_to_the_token) {
    LVXTokens tokens;
    tokens.add(4);
    TextStream stream("  ab", tokens);
    stream.Next();
    stream->ungetToken();
    EXPECT_EQ(2, stream.Position());
}

TEST(TokenStream, unget_token_gives_the_whole_of_a_long_token_again) {
    const std::string word(60, 'w');
    TextStream stream(word);
    EXPECT_EQ((Token{4, word.substr(0, 49)}), stream.Next());
    stream->ungetToken();
    EXPECT_EQ((Token{4, word.substr(0, 49)}), stream.Next());
    EXPECT_EQ(60, stream.Position());
}

TEST(TokenStream, unget_token_clears_every_failure) {
    TextStream stream("ab");
    stream.Next();
    stream->setstate(std::ios_base::badbit);
    stream->ungetToken();
    EXPECT_EQ((Token{4, "ab"}), stream.Next());
}

TEST(TokenStream, the_last_token_leaves_the_stream_good_and_the_end_does_not) {
    for (const std::string text : {"ab", "12", "+", " ", "+.", "-5"}) {
        TextStream stream(text);
        EXPECT_NE(0, stream.Next().first) << text;
        EXPECT_TRUE(stream->good()) << text;
        EXPECT_EQ(static_cast<long>(text.size()), stream.Position()) << text;
        EXPECT_EQ(0, stream.Next().first) << text;
        EXPECT_EQ(std::ios_base::eofbit | std::ios_base::failbit, stream->rdstate()) << text;
    }
}

TEST(TokenStream, reads_nothing_in_a_failed_state) {
    TextStream stream("ab cd");
    stream->setstate(std::ios_base::failbit);
    EXPECT_EQ((Token{0, ""}), stream.Next());
    EXPECT_FALSE(stream->skipTo('b'));
    std::string text = "x";
    stream->tags('a', 'c');
    EXPECT_FALSE(stream->getTag(text));
    EXPECT_EQ("x", text);
    EXPECT_EQ(std::ios_base::failbit, stream->rdstate());
    stream->clear();
    EXPECT_EQ((Token{4, "ab"}), stream.Next());
}

TEST(TokenStream, throws_at_the_end_if_the_host_asks_for_it) {
    TextStream stream("ab");
    stream->exceptions(std::ios_base::failbit);
    EXPECT_EQ((Token{4, "ab"}), stream.Next());
    std::string text = "x";
    EXPECT_THROW(stream->getToken(text), std::ios_base::failure);
    EXPECT_EQ("", text);
}

TEST(TokenStream, reads_as_any_stream_between_tokens) {
    TextStream stream("ab;cd 17 e");
    EXPECT_EQ((Token{4, "ab"}), stream.Next());
    EXPECT_EQ(';', stream->peek());
    EXPECT_EQ(';', stream->get());
    stream->putback(';');
    EXPECT_EQ((Token{3, ";"}), stream.Next());
    EXPECT_EQ('c', stream->get());
    EXPECT_EQ((Token{4, "d"}), stream.Next());
    int number = 0;
    stream.stream >> number;
    EXPECT_EQ(17, number);
    EXPECT_EQ(8, stream.Position());
    EXPECT_EQ((Token{11, " "}), stream.Next());
    stream->seekg(3);
    EXPECT_EQ((Token{4, "cd"}), stream.Next());
    char characters[3] = {};
    stream->read(characters, 3);
    EXPECT_EQ(" 17", std::string(characters, 3));
    stream->unget();
    EXPECT_EQ((Token{1, "7"}), stream.Next());
    stream->seekg(-1, std::ios_base::end);
    EXPECT_EQ((Token{2, "e"}), stream.Next());
}

TEST(TokenStream, another_character_than_the_one_that_was_read_cannot_be_put_back) {
    TextStream stream("abc");
    stream->get();
    stream->putback('x');
    EXPECT_TRUE(stream->bad());
    EXPECT_EQ("abc", stream.text);
    stream->clear();
    EXPECT_EQ('b', stream->get());
}

TEST(TokenStream, a_seek_beyond_the_text_fails_and_unget_token_mends_it) {
    TextStream stream("ab cd");
    stream.Next();
    stream->seekg(6);
    EXPECT_TRUE(stream->fail());
    stream->ungetToken();
    EXPECT_EQ((Token{4, "ab"}), stream.Next());
}

TEST(TokenStream, get_tag_reads_what_stands_between_the_tags) {
    TextStream stream("a<b>c<>d");
    std::string text = "old";
    EXPECT_TRUE(stream->tags('<', '>').getTag(text));
    EXPECT_EQ("b", text);
    EXPECT_EQ('c', stream->peek());
    EXPECT_TRUE(stream->getTag(text));
    EXPECT_EQ("", text);
    EXPECT_EQ((Token{4, "d"}), stream.Next());
}

TEST(TokenStream, tags_do_not_nest_and_may_be_the_same) {
    TextStream stream("<a<b>c> |x|y|");
    std::string text;
    EXPECT_TRUE(stream->tags('<', '>').getTag(text));
    EXPECT_EQ("a<b", text);
    EXPECT_TRUE(stream->tags('|', '|').getTag(text));
    EXPECT_EQ("x", text);
}

TEST(TokenStream, without_an_open_tag_the_text_stays) {
    TextStream stream("abc>");
    std::string text = "old";
    EXPECT_FALSE(stream->tags('<', '>').getTag(text));
    EXPECT_EQ("old", text);
    EXPECT_EQ(std::ios_base::eofbit | std::ios_base::failbit, stream->rdstate());
}

TEST(TokenStream, without_a_close_tag_the_text_is_the_rest) {
    TextStream stream("abc<def");
    std::string text = "old";
    EXPECT_FALSE(stream->tags('<', '>').getTag(text));
    EXPECT_EQ("def", text);
    EXPECT_TRUE(stream->eof());
    TextStream at_end("<");
    EXPECT_FALSE(at_end->tags('<', '>').getTag(text));
    EXPECT_EQ("", text);
}

TEST(TokenStream, a_tag_may_be_longer_than_a_token) {
    const std::string inside = std::string(100000, 'x') + '\0' + "\xe4";
    TextStream stream("<" + inside + ">");
    std::string text;
    EXPECT_TRUE(stream->tags('<', '>').getTag(text));
    EXPECT_EQ(inside, text);
}

TEST(TokenStream, tags_are_nul_until_they_are_set_and_may_be_any_byte) {
    TextStream stream(
        std::string("a\0b\0\xe4"
                    "c\xff",
                    7));
    std::string text;
    EXPECT_TRUE(stream->getTag(text));
    EXPECT_EQ("b", text);
    EXPECT_TRUE(stream->tags('\xe4', '\xff').getTag(text));
    EXPECT_EQ("c", text);
}

TEST(TokenStream, unget_token_goes_back_to_where_a_tag_was_looked_for) {
    TextStream stream("ab <c> <d");
    stream.Next();
    std::string text;
    stream->tags('<', '>').getTag(text);
    stream->ungetToken();
    EXPECT_EQ(2, stream.Position());
    stream->getTag(text);
    EXPECT_FALSE(stream->getTag(text));
    stream->ungetToken();
    EXPECT_TRUE(stream->good());
    EXPECT_EQ(6, stream.Position());
}

TEST(TokenStream, skip_to_stops_behind_its_target) {
    TextStream stream("ab;cd");
    EXPECT_TRUE(stream->skipTo(';'));
    EXPECT_EQ((Token{4, "cd"}), stream.Next());
}

TEST(TokenStream, skip_to_passes_a_target_behind_a_backslash) {
    TextStream stream("a\\;b;c");
    EXPECT_TRUE(stream->skipTo(';'));
    EXPECT_EQ(5, stream.Position());
    EXPECT_EQ('c', stream->get());
}

TEST(TokenStream, skip_to_counts_backslashes_in_pairs) {
    const std::pair<std::string, long> cases[] = {
        {"\\\\;x", 3}, {"\\\\\\;x;", 6}, {"\\\\\\\\;x", 5}, {"\\a;x", 3}, {";", 1}};
    for (const auto& [text, position] : cases) {
        TextStream stream(text);
        EXPECT_TRUE(stream->skipTo(';')) << text;
        EXPECT_EQ(position, stream.Position()) << text;
    }
}

TEST(TokenStream, skip_to_may_look_for_a_backslash_a_nul_or_a_byte_above_127) {
    TextStream stream(std::string("a\\\\b\0\xe4z", 7));
    EXPECT_TRUE(stream->skipTo('\\'));
    EXPECT_EQ(2, stream.Position());
    EXPECT_TRUE(stream->skipTo('\0'));
    EXPECT_EQ(5, stream.Position());
    EXPECT_TRUE(stream->skipTo('\xe4'));
    EXPECT_EQ(6, stream.Position());
}

TEST(TokenStream, skip_to_without_its_target_ends_at_the_end) {
    TextStream stream("ab cd\\;");
    stream.Next();
    EXPECT_FALSE(stream->skipTo(';'));
    EXPECT_EQ(std::ios_base::eofbit | std::ios_base::failbit, stream->rdstate());
    stream->ungetToken();
    EXPECT_EQ(2, stream.Position());
}

TEST(TokenStream, isnum_ends_the_text_and_tells_its_kind) {
    char text[] = "15.5x";
    TextStream stream("");
    EXPECT_EQ(2, stream->isnum(text, 4));
    EXPECT_EQ('\0', text[4]);
    EXPECT_EQ(1, stream->isnum(text, 2));
    EXPECT_EQ('\0', text[2]);
    EXPECT_EQ(1, stream->isnum(text, 4));
    EXPECT_EQ(1, stream->isnum(text, 0));
    EXPECT_EQ('\0', text[0]);
    char word[] = "12x";
    EXPECT_EQ(0, stream->isnum(word, 3));
}

TEST(TokenStream, isnum_without_a_text_or_with_a_negative_length_is_0) {
    TextStream stream("");
    EXPECT_EQ(0, stream->isnum(nullptr, 0));
    EXPECT_EQ(0, stream->isnum(nullptr, 3));
    char text[] = "12";
    EXPECT_EQ(0, stream->isnum(text + 1, -1));
    EXPECT_EQ(0, stream->isnum(text, INT_MIN));
    EXPECT_STREQ("12", text);
}

TEST(TokenStream, skip_to_and_get_tag_agree_with_the_second_coding) {
    for_each_text("\\;<>a", 5, [](const std::string& text) {
        for (const std::string program :
             {"\x0e;\x0e;\x0f", "\x0e\\\x0e\\", "\x0c<>\x0d\x0d\x0f", "\x0c;;\x0d\x0d"}) {
            ASSERT_EQ(lvx_test::OraclePlayer::Play(program, text),
                      lvx_test::LibraryPlayer::Play(program, text))
                << text;
        }
    });
}

TEST(TokenStream, every_mix_of_operations_agrees_with_the_second_coding) {
    std::mt19937 random(20031117);
    const std::string alphabet = "+-.1eE5a_ \n;<>\\\x01\x0b\xe4" + std::string(1, '\0');
    for (int i = 0; i < 3000; ++i) {
        std::string program(random() % 60, '\0');
        for (char& byte : program) {
            // Many operations, and characters that occur in the text.
            byte =
                random() % 3 == 0 ? alphabet[random() % alphabet.size()] : static_cast<char>(random() % 30);
        }
        std::string text(random() % 80, '\0');
        for (char& character : text) {
            character = alphabet[random() % alphabet.size()];
        }
        ASSERT_EQ(lvx_test::OraclePlayer::Play(program, text), lvx_test::LibraryPlayer::Play(program, text))
            << "program " << i;
    }
}
