// Token tables, streams and calls while memory runs out: the n-th allocation fails, for each n.
#include <gtest/gtest.h>

#include <string>

#include "lvx/text/function_parser.h"
#include "lvx/text/token_stream.h"
#include "support/allocation.h"

using lvx_test::for_each_failing_allocation;

namespace {

// More than a string holds without memory of its own.
const std::string long_word = "a_word_that_needs_memory_of_its_own";

}  // namespace

TEST(TokensFaults, an_entry_without_memory_is_not_there) {
    LVXTokens tokens;
    EXPECT_LT(0, for_each_failing_allocation([&] { tokens.add(100, long_word); },
                                             [&] { EXPECT_EQ(0, tokens.getKey(long_word.c_str())); }));
    EXPECT_EQ(100, tokens.getKey(long_word.c_str()));
    EXPECT_LT(0, for_each_failing_allocation([&] { EXPECT_TRUE(tokens.add(';')); }));
    EXPECT_FALSE(tokens.add(';'));
}

TEST(TokensFaults, entries_that_could_not_be_put_in_use_are_so_later) {
    LVXTokens tokens;
    tokens.add('A');
    tokens.useTokens();
    for (int code = 'A'; code <= 'z'; ++code) {
        tokens.add(code);
    }
    EXPECT_LT(0, for_each_failing_allocation([&] { tokens.useTokens(); },
                                             [&] {
                                                 EXPECT_TRUE(tokens.isOk(0x40));
                                                 EXPECT_EQ('A', tokens.tokenOf(1, "A"));
                                             }));
    EXPECT_EQ('z', tokens.tokenOf(1, "z"));
    EXPECT_TRUE(tokens.isFirst('z'));
}

TEST(TokensFaults, a_stream_that_cannot_be_made_leaves_nothing) {
    const std::size_t before = lvx_test::live_bytes();
    char text[] = "ab";
    EXPECT_LT(0, for_each_failing_allocation([&] { const LVXTokenStream stream(text, 2); },
                                             [&] { EXPECT_EQ(before, lvx_test::live_bytes()); }));
}

TEST(TokensFaults, a_table_that_cannot_be_made_is_made_by_the_next_try) {
    char text[] = "ab";
    LVXTokenStream stream(text, 2);
    EXPECT_LT(0, for_each_failing_allocation([&] { stream.reset(); }));
    EXPECT_EQ(4, stream.getToken());
}

TEST(TokensFaults, a_token_without_memory_for_its_text_can_be_had_again) {
    std::string text = "x " + long_word;
    LVXTokenStream stream(text.data(), static_cast<int>(text.size()));
    stream.getToken();
    stream.getToken();
    int kind = 0;
    std::string token;
    EXPECT_LT(0, for_each_failing_allocation(
                     [&] {
                         std::string fresh;
                         kind = stream.getToken(fresh);
                         token.swap(fresh);
                     },
                     [&] { stream.ungetToken(); }));
    EXPECT_EQ(4, kind);
    EXPECT_EQ(long_word, token);
}

TEST(TokensFaults, a_tag_without_memory_for_its_text_can_be_had_again) {
    std::string text = "<" + long_word + ">";
    LVXTokenStream stream(text.data(), static_cast<int>(text.size()));
    stream.tags('<', '>');
    std::string tag;
    EXPECT_LT(0, for_each_failing_allocation([&] { EXPECT_TRUE(stream.getTag(tag)); },
                                             [&] {
                                                 stream.ungetToken();
                                                 EXPECT_EQ(0, stream.tellg());
                                             }));
    EXPECT_EQ(long_word, tag);
}

TEST(TokensFaults, a_call_that_cannot_be_taken_apart_leaves_nothing) {
    const std::string text = long_word + "(" + long_word + ", '" + long_word + "', 1 2 3)";
    const std::size_t before = lvx_test::live_bytes();
    EXPECT_LT(5, for_each_failing_allocation([&] { EXPECT_EQ(5, FunctionParser(text).ArgCount()); },
                                             [&] { EXPECT_EQ(before, lvx_test::live_bytes()); }));
}

TEST(TokensFaults, a_refused_call_leaves_nothing) {
    const std::size_t before = lvx_test::live_bytes();
    EXPECT_THROW(FunctionParser(long_word + " x"), FunctionParser::MissingOpenBracket);
    EXPECT_EQ(before, lvx_test::live_bytes());
}

TEST(TokensFaults, a_call_that_cannot_be_assigned_stays_as_it_was) {
    const FunctionParser other(long_word + "(" + long_word + ")");
    FunctionParser call("f(1, 2)");
    EXPECT_LT(0, for_each_failing_allocation([&] { call = other; },
                                             [&] {
                                                 EXPECT_EQ("f", call.FunctionName());
                                                 EXPECT_EQ(2, call.ArgCount());
                                                 EXPECT_EQ("2", call.Argument(1));
                                             }));
    EXPECT_EQ(long_word, call.Argument(0));
}
