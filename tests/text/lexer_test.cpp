#include "lvx/text/lexer.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>

namespace {

using namespace std::string_literals;

struct Token {
    long token = -1;
    unsigned int length = 0;

    friend bool operator==(const Token&, const Token&) = default;
    friend void PrintTo(const Token& token, std::ostream* out) {
        *out << "token " << token.token << ", length " << token.length;
    }
};

constexpr Token nothing{-1, 0};

Token token_at(const Lexer& lexer, const std::string& text, unsigned int start = 0) {
    Token token{77, 77};
    token.token = lexer.getToken(text, start, token.length);
    return token;
}

struct Pattern {
    const char* pattern;
    unsigned short token;
    int priority;
};

class LexerWith : public Lexer {
public:
    LexerWith(std::initializer_list<Pattern> patterns) {
        for (const Pattern& pattern : patterns) {
            addPattern(pattern.pattern, pattern.token, pattern.priority);
        }
    }
};

constexpr const char* whole = "[0-9]+";
constexpr const char* broken = "[0-9]+\\.[0-9]+";

static_assert(!std::is_copy_constructible_v<Lexer> && !std::is_move_constructible_v<Lexer>);
static_assert(std::is_same_v<decltype(Lexer::LexPair::expression), TRegexp>);
static_assert(std::is_same_v<decltype(Lexer::LexPair::priority), int>);
static_assert(std::is_same_v<decltype(Lexer::LexPair::token), long>);
static_assert(std::is_same_v<decltype(Lexer::LexPair::pattern), std::string>);

}  // namespace

TEST(Lexer, without_patterns_finds_nothing) {
    const Lexer lexer;
    EXPECT_EQ(nothing, token_at(lexer, "abc"));
    EXPECT_EQ(nothing, token_at(lexer, ""));
    EXPECT_EQ(nothing, token_at(lexer, "abc", 3));
    EXPECT_EQ(nothing, token_at(lexer, "abc", 4));
}

TEST(Lexer, takes_the_longest_match_within_one_priority) {
    const LexerWith lexer{{whole, 1, 0}, {broken, 2, 0}};
    EXPECT_EQ((Token{2, 4}), token_at(lexer, "12.5"));
    EXPECT_EQ((Token{1, 2}), token_at(lexer, "12"));
    EXPECT_EQ((Token{1, 2}), token_at(lexer, "12."));
}

TEST(Lexer, takes_the_higher_priority_whatever_the_length) {
    const LexerWith lexer{{whole, 1, 1}, {broken, 2, 0}};
    EXPECT_EQ((Token{1, 2}), token_at(lexer, "12.5"));
    const LexerWith other_order{{broken, 2, 0}, {whole, 1, 1}};
    EXPECT_EQ((Token{1, 2}), token_at(other_order, "12.5"));
    const LexerWith higher_is_longer{{whole, 1, 0}, {broken, 2, 1}};
    EXPECT_EQ((Token{2, 4}), token_at(higher_is_longer, "12.5"));
    EXPECT_EQ((Token{1, 2}), token_at(higher_is_longer, "12.x"));
}

TEST(Lexer, takes_the_pattern_added_first_among_those_as_long) {
    const LexerWith lexer{{"if", 5, 3}, {"[a-z]+", 6, 3}, {"if", 7, 3}};
    EXPECT_EQ((Token{5, 2}), token_at(lexer, "if"));
    EXPECT_EQ((Token{6, 3}), token_at(lexer, "iff"));
    const LexerWith other_order{{"[a-z]+", 6, 3}, {"if", 5, 3}};
    EXPECT_EQ((Token{6, 2}), token_at(other_order, "if"));
}

TEST(Lexer, gives_an_empty_match_its_token) {
    const LexerWith lexer{{"x*", 9, 0}};
    EXPECT_EQ((Token{9, 0}), token_at(lexer, "abc"));
    EXPECT_EQ((Token{9, 2}), token_at(lexer, "xxa"));
    EXPECT_EQ((Token{9, 0}), token_at(lexer, ""));
    EXPECT_EQ((Token{4, 0}), token_at(LexerWith{{"", 4, 0}}, "abc"));
}

TEST(Lexer, an_empty_match_of_higher_priority_beats_all_others) {
    const LexerWith lexer{{"[a-z]+", 1, 0}, {"x*", 2, 1}};
    EXPECT_EQ((Token{2, 0}), token_at(lexer, "abc"));
    EXPECT_EQ((Token{2, 1}), token_at(lexer, "xab"));
}

TEST(Lexer, priority_minus_one_wins_with_a_match_that_is_not_empty) {
    const LexerWith lexer{{"x*", 9, -1}};
    EXPECT_EQ((Token{9, 2}), token_at(lexer, "xxa"));
    EXPECT_EQ(nothing, token_at(lexer, "abc"));
    EXPECT_EQ(nothing, token_at(lexer, ""));
    const LexerWith two{{"x*", 9, -1}, {"xx|b*", 8, -1}, {"a*", 7, 0}};
    EXPECT_EQ((Token{7, 0}), token_at(two, "xx"));
}

TEST(Lexer, priorities_below_minus_one_never_win) {
    for (const int priority : {-2, -3, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(nothing, token_at(LexerWith{{"a+", 9, priority}}, "aaa")) << priority;
        EXPECT_EQ((Token{1, 1}), token_at(LexerWith{{"a+", 9, priority}, {"a", 1, -1}}, "aaa")) << priority;
    }
}

TEST(Lexer, matches_only_at_start) {
    const LexerWith lexer{{"b", 1, 0}, {"a|c", 2, 0}};
    EXPECT_EQ((Token{2, 1}), token_at(lexer, "abc"));
    EXPECT_EQ((Token{1, 1}), token_at(lexer, "abc", 1));
    EXPECT_EQ((Token{2, 1}), token_at(lexer, "xc", 1));
    EXPECT_EQ(nothing, token_at(lexer, "xabc"));
    EXPECT_EQ(nothing, token_at(LexerWith{{"a|b", 1, 0}}, "cb"));
}

TEST(Lexer, takes_patterns_that_have_an_anchor_already) {
    const LexerWith lexer{{"^a|b", 1, 0}, {"^^c", 2, 0}};
    EXPECT_EQ((Token{1, 1}), token_at(lexer, "xa", 1));
    EXPECT_EQ((Token{1, 1}), token_at(lexer, "xb", 1));
    EXPECT_EQ((Token{2, 1}), token_at(lexer, "xc", 1));
    EXPECT_EQ(nothing, token_at(lexer, "xb"));
}

TEST(Lexer, at_the_end_of_the_text_only_empty_matches_win) {
    const LexerWith lexer{{"[a-z]+", 1, 0}, {"[0-9]*", 2, 0}};
    EXPECT_EQ((Token{2, 0}), token_at(lexer, "abc", 3));
    EXPECT_EQ(nothing, token_at(LexerWith{{"[a-z]+", 1, 0}}, "abc", 3));
}

TEST(Lexer, behind_the_end_of_the_text_finds_nothing) {
    const LexerWith lexer{{"x*", 1, 0}, {"$", 2, 0}};
    EXPECT_EQ(nothing, token_at(lexer, "abc", 4));
    EXPECT_EQ(nothing, token_at(lexer, "abc", std::numeric_limits<unsigned int>::max()));
    EXPECT_EQ(nothing, token_at(lexer, "", 1));
}

TEST(Lexer, takes_a_nul_for_a_character) {
    const LexerWith lexer{{"[a-z]+", 1, 0}, {"\\x00+", 2, 0}, {"[^a]+$", 3, 0}};
    const std::string text = "ab\0\0c"s;
    EXPECT_EQ((Token{1, 2}), token_at(lexer, text));
    EXPECT_EQ((Token{3, 3}), token_at(lexer, text, 2));
    EXPECT_EQ((Token{2, 2}), token_at(lexer, text + "a", 2));
}

TEST(Lexer, takes_characters_above_127_for_what_they_are) {
    const LexerWith lexer{{"[\\x80-\\xFF]+", 1, 0}, {"[a-z]+", 2, 0}, {"\xDF", 3, 1}};
    EXPECT_EQ((Token{1, 3}), token_at(lexer, "\xE4\xF6\xFC"));
    EXPECT_EQ((Token{3, 1}), token_at(lexer, "\xDF\xE4"));
    EXPECT_EQ((Token{2, 2}), token_at(lexer, "ab\xE4"));
}

TEST(Lexer, widens_a_token_without_its_sign) {
    EXPECT_EQ((Token{65535, 1}), token_at(LexerWith{{"a", 65535, 0}}, "a"));
    EXPECT_EQ((Token{0, 1}), token_at(LexerWith{{"a", 0, 0}}, "a"));
}

TEST(Lexer, never_matches_a_bad_pattern) {
    const LexerWith lexer{{"(", 1, 9}, {"*", 2, 9}, {"a{2}{3}", 3, 9}, {"a", 4, 0}};
    EXPECT_EQ((Token{4, 1}), token_at(lexer, "aaaaaa"));
    EXPECT_EQ(nothing, token_at(lexer, "("));
    EXPECT_EQ(nothing, token_at(lexer, "*"));
}

TEST(Lexer, takes_constructs_that_match_places) {
    const LexerWith lexer{{"if\\b", 1, 2}, {"[a-z]+", 2, 1}, {"$", 3, 0}};
    EXPECT_EQ((Token{1, 2}), token_at(lexer, "if("));
    EXPECT_EQ((Token{2, 4}), token_at(lexer, "iffy"));
    EXPECT_EQ((Token{3, 0}), token_at(lexer, "if", 2));
    EXPECT_EQ((Token{1, 2}), token_at(lexer, "xif", 1));
}

TEST(Lexer, among_equals_of_both_kinds_takes_the_first_added) {
    EXPECT_EQ((Token{1, 2}), token_at(LexerWith{{"if\\b", 1, 0}, {"if", 2, 0}}, "if"));
    EXPECT_EQ((Token{2, 2}), token_at(LexerWith{{"if", 2, 0}, {"if\\b", 1, 0}}, "if"));
    EXPECT_EQ((Token{1, 3}), token_at(LexerWith{{"if", 2, 0}, {"\\pL+", 1, 0}}, "iff"));
    EXPECT_EQ((Token{2, 2}), token_at(LexerWith{{"if", 2, 1}, {"\\pL+", 1, 0}}, "iff"));
    EXPECT_EQ((Token{1, 3}), token_at(LexerWith{{"if", 2, 0}, {"\\pL+", 1, 1}}, "iff"));
}

TEST(Lexer, sees_patterns_that_are_added_between_calls) {
    Lexer lexer;
    lexer.addPattern("a", 1, 0);
    EXPECT_EQ((Token{1, 1}), token_at(lexer, "ab"));
    lexer.addPattern("ab", 2, 0);
    EXPECT_EQ((Token{2, 2}), token_at(lexer, "ab"));
    lexer.addPattern("b", 3, 0);
    EXPECT_EQ((Token{3, 1}), token_at(lexer, "ab", 1));
}

TEST(Lexer, goes_back_to_the_last_match_when_more_was_begun_in_vain) {
    const LexerWith lexer{
        {"ab", 1, 0}, {"ab(cd)*e", 2, 0}, {"/", 3, 0}, {"/\\*([^*]|\\*+[^*/])*\\*+/", 4, 0}};
    EXPECT_EQ((Token{1, 2}), token_at(lexer, "abcdcdcdx"));
    EXPECT_EQ((Token{2, 9}), token_at(lexer, "abcdcdcde"));
    EXPECT_EQ((Token{3, 1}), token_at(lexer, "/* never ends * "));
    EXPECT_EQ((Token{4, 12}), token_at(lexer, "/*  ends **/ x */"));
}

TEST(Lexer, takes_an_unclosed_comment_for_one_token_by_a_pattern_of_its_own) {
    const LexerWith lexer{{"/", 1, 0},
                          {"/\\*([^*]|\\*+[^*/])*\\*+/", 2, 0},
                          {"/\\*([^*]|\\*+[^*/])*\\**", 3, 0},
                          {"\"([^\"\\\\\n]|\\\\.)*\"", 4, 0},
                          {"\"([^\"\\\\\n]|\\\\.)*", 5, 0}};
    EXPECT_EQ((Token{2, 8}), token_at(lexer, "/* a/**/ */"));
    EXPECT_EQ((Token{2, 8}), token_at(lexer, "/* a **/ */"));
    EXPECT_EQ((Token{3, 8}), token_at(lexer, "/* a /**"));
    EXPECT_EQ((Token{3, 2}), token_at(lexer, "/*"));
    EXPECT_EQ((Token{1, 1}), token_at(lexer, "/ *"));
    EXPECT_EQ((Token{4, 6}), token_at(lexer, "\"a\\\"b\";\""));
    EXPECT_EQ((Token{5, 5}), token_at(lexer, "\"a\\\"b\n\""));
}

TEST(Lexer, takes_long_tokens) {
    const LexerWith lexer{{"\"([^\"\\\\]|\\\\.)*\"", 1, 0}, {"[a-z]+", 2, 0}, {"(ab|c)*\n", 3, 0}};
    const std::string quoted = "\"" + std::string(100000, 'x') + "\\\"" + std::string(100000, '-') + "\"";
    EXPECT_EQ((Token{1, 200004}), token_at(lexer, quoted + quoted));
    EXPECT_EQ((Token{2, 100000}), token_at(lexer, std::string(100000, 'z')));
    EXPECT_EQ((Token{2, 7}), token_at(lexer, "abcabcz"));
    EXPECT_EQ((Token{3, 7}), token_at(lexer, "abcabc\n"));
}

TEST(Lexer, a_pair_keeps_what_it_was_made_from) {
    const Lexer::LexPair pair("^a+", 7, -3);
    EXPECT_TRUE(pair.expression.ok());
    EXPECT_EQ(-3, pair.priority);
    EXPECT_EQ(7, pair.token);
    EXPECT_EQ("^a+", pair.pattern);
    EXPECT_FALSE(Lexer::LexPair("^(", 1, 0).expression.ok());
    unsigned int length = 0;
    EXPECT_EQ(1u, pair.expression.find("xaa", &length, 1));
    EXPECT_EQ(2u, length);
}
