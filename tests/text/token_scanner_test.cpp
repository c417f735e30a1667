#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "lvx/text/token_stream.h"
#include "text/all_texts.h"
#include "text/token_list.h"
#include "text/token_program.h"

namespace {

using lvx_test::default_tokens_of;
using lvx_test::TextStream;
using lvx_test::TokenList;
using lvx_test::tokens_of;

using Token = std::pair<int, std::string>;

// A table with these kinds and characters.
struct Kinds : LVXTokens {
    template <class... Entries>
    explicit Kinds(Entries... entries) {
        (add(entries), ...);
    }
};

}  // namespace

TEST(TokenScanner, the_default_table_knows_words_numbers_white_space_and_marks) {
    EXPECT_EQ(
        (TokenList{{4, "abc"}, {11, " "}, {1, "12"}, {11, " "}, {2, "3.5"}, {11, " "}, {3, "+"}, {3, "="}}),
        default_tokens_of("abc 12 3.5 +="));
}

TEST(TokenScanner, what_no_kind_wants_is_skipped) {
    Kinds tokens(1, 4);
    EXPECT_EQ((TokenList{{4, "ab"}, {1, "12"}, {4, "c"}}), tokens_of(" ab\t12 +=\n c\xe4 ", tokens));
    Kinds none;
    EXPECT_EQ((TokenList{}), tokens_of("ab 12", none));
}

TEST(TokenScanner, a_list_of_kinds_leaves_blanks_to_separate) {
    LVXTokens tokens;
    EXPECT_TRUE(tokens.add(1, 4, 0));
    EXPECT_EQ((TokenList{{4, "ab"}, {1, "12"}, {4, "c"}}), tokens_of(" ab\t12  c\n", tokens));
}

TEST(TokenScanner, each_white_space_character_is_a_token) {
    EXPECT_EQ((TokenList{{11, " "}, {11, " "}, {11, "\t"}, {11, "\n"}, {11, "\f"}, {11, "\r"}}),
              default_tokens_of("  \t\n\f\r"));
}

TEST(TokenScanner, control_characters_are_tokens_too) {
    EXPECT_EQ((TokenList{{5, "\x01"}, {5, "\x1f"}, {5, "\x7f"}}), default_tokens_of("\x01\x1f\x7f"));
}

TEST(TokenScanner, a_vertical_tab_is_white_space_if_control_characters_let_it_in) {
    EXPECT_EQ((TokenList{{11, "\v"}}), default_tokens_of("\v"));
    Kinds controls(5);
    EXPECT_EQ((TokenList{{5, "\v"}}), tokens_of("\v \n", controls));
    Kinds spaces(11);
    EXPECT_EQ((TokenList{{11, "\n"}}), tokens_of("\v\n", spaces));
}

TEST(TokenScanner, marks_that_control_characters_let_in_are_passed_by) {
    Kinds tokens(5, 4);
    EXPECT_EQ((TokenList{{4, "a"}, {5, "\x02"}, {4, "b"}}), tokens_of("!a%#$\x02\"b", tokens));
}

TEST(TokenScanner, a_blank_that_begins_a_keyword_is_of_no_kind_unless_one_is_on) {
    LVXTokens tokens;
    tokens.add(100, " x");
    EXPECT_EQ((TokenList{}), tokens_of(" x ", tokens));
    tokens.add(5, 0);
    EXPECT_EQ((TokenList{{5, " "}, {5, " "}}), tokens_of(" x ", tokens));
}

TEST(TokenScanner, a_blank_may_be_a_keyword) {
    LVXTokens tokens;
    tokens.setDefault();
    tokens.add(100, "\n");
    tokens.add(' ');
    EXPECT_EQ((TokenList{{100, "\n"}, {32, " "}, {11, "\t"}}), tokens_of("\n \t", tokens));
}

TEST(TokenScanner, a_word_takes_letters_digits_and_underscores) {
    EXPECT_EQ((TokenList{{4, "_a1_B"}, {3, "-"}, {4, "x9"}}), default_tokens_of("_a1_B-x9"));
    EXPECT_EQ((TokenList{{4, "12ab"}}), default_tokens_of("12ab"));
}

TEST(TokenScanner, words_alone_do_not_see_digits_in_front) {
    Kinds tokens(4);
    EXPECT_EQ((TokenList{{4, "ab"}, {4, "c3"}}), tokens_of("12ab c3", tokens));
}

TEST(TokenScanner, a_sign_belongs_to_the_number_behind_it) {
    EXPECT_EQ((TokenList{{1, "-5"}, {1, "+7"}, {2, "-.5"}, {2, "+1.5"}}), default_tokens_of("-5+7-.5+1.5"));
    EXPECT_EQ((TokenList{{3, "-"}, {4, "x"}, {3, "-"}, {1, "-5"}}), default_tokens_of("-x--5"));
}

TEST(TokenScanner, a_sign_is_seen_only_with_punctuation_on) {
    Kinds integers(1);
    EXPECT_EQ((TokenList{{1, "5"}}), tokens_of("-5", integers));
    Kinds with_marks(1, 3);
    EXPECT_EQ((TokenList{{1, "-5"}}), tokens_of("-5", with_marks));
}

TEST(TokenScanner, a_sign_is_seen_where_an_entry_begins_with_it_and_the_number_comes_first) {
    LVXTokens with_keyword;
    with_keyword.add(1);
    with_keyword.add(100, "->");
    EXPECT_EQ((TokenList{{1, "-5"}}), tokens_of("-5", with_keyword));
    EXPECT_EQ((TokenList{{100, "->"}, {1, "5"}, {1, "5"}}), tokens_of("->5+5-", with_keyword));
    Kinds with_character(1, '-');
    EXPECT_EQ((TokenList{{1, "-5"}, {'-', "-"}, {1, "-5"}}), tokens_of("-5--5", with_character));
    LVXTokens without_numbers;
    without_numbers.add('-', 4, 0);
    EXPECT_EQ((TokenList{{'-', "-"}}), tokens_of("-5", without_numbers));
}

TEST(TokenScanner, a_sign_is_a_mark_when_no_number_is_on) {
    Kinds tokens(3, 4);
    EXPECT_EQ((TokenList{{3, "-"}, {3, "."}}), tokens_of("-5.5", tokens));
}

TEST(TokenScanner, a_sign_and_a_point_are_a_number) {
    EXPECT_EQ((TokenList{{2, "+."}}), default_tokens_of("+."));
    EXPECT_EQ((TokenList{{2, "-."}, {3, "+"}}), default_tokens_of("-.+"));
    EXPECT_EQ((TokenList{{3, "."}, {3, "."}}), default_tokens_of(".."));
    EXPECT_EQ((TokenList{{3, "+"}}), default_tokens_of("+"));
}

TEST(TokenScanner, a_sign_and_a_point_in_front_of_letters_are_a_word) {
    EXPECT_EQ((TokenList{{4, "-.x"}}), default_tokens_of("-.x"));
    Kinds tokens(1, 3);
    EXPECT_EQ((TokenList{{3, "*"}}), tokens_of("-.x*", tokens));
}

TEST(TokenScanner, e_alone_is_a_number) {
    EXPECT_EQ((TokenList{{2, "e"}, {11, " "}, {2, "E5"}, {11, " "}, {2, "1e"}, {11, " "}, {4, "e5x"}}),
              default_tokens_of("e E5 1e e5x"));
    Kinds words(4);
    EXPECT_EQ((TokenList{{4, "e"}, {4, "E5"}}), tokens_of("e E5", words));
}

TEST(TokenScanner, a_number_is_a_number_before_it_is_a_keyword) {
    LVXTokens tokens;
    tokens.setDefault();
    tokens.add(100, "e5");
    tokens.add(101, "12");
    tokens.add(102, "-5");
    EXPECT_EQ((TokenList{{2, "e5"}, {11, " "}, {1, "12"}, {11, " "}, {1, "-5"}}),
              tokens_of("e5 12 -5", tokens));
}

TEST(TokenScanner, a_sign_ends_a_number_in_its_exponent_too) {
    EXPECT_EQ((TokenList{{2, "1e"}, {1, "-5"}}), default_tokens_of("1e-5"));
    EXPECT_EQ((TokenList{{2, "1.5e3"}, {1, "+2"}}), default_tokens_of("1.5e3+2"));
}

TEST(TokenScanner, points_are_read_on_while_the_text_is_a_number) {
    EXPECT_EQ((TokenList{{2, "1."}}), default_tokens_of("1."));
    EXPECT_EQ((TokenList{{4, "1.5.2"}}), default_tokens_of("1.5.2"));
    EXPECT_EQ((TokenList{{4, "1.."}}), default_tokens_of("1.."));
    EXPECT_EQ((TokenList{{4, "1.."}, {3, "."}, {4, "x"}}), default_tokens_of("1...x"));
    EXPECT_EQ((TokenList{{4, "a"}, {3, "."}, {4, "b"}}), default_tokens_of("a.b"));
    EXPECT_EQ((TokenList{{4, "e."}, {3, "."}}), default_tokens_of("e.."));
}

TEST(TokenScanner, with_integers_alone_a_fraction_is_an_empty_number) {
    Kinds tokens(1);
    EXPECT_EQ((TokenList{{2, ""}, {1, "7"}}), tokens_of("1.5 7", tokens));
    EXPECT_EQ((TokenList{{2, ""}}), tokens_of("1e5", tokens));
}

TEST(TokenScanner, with_floats_alone_an_integer_is_an_empty_number) {
    Kinds tokens(2);
    EXPECT_EQ((TokenList{{2, "1.5"}, {1, ""}}), tokens_of("1.5 7", tokens));
}

TEST(TokenScanner, without_numbers_a_point_ends_a_word) {
    LVXTokens tokens;
    tokens.add(4, 3, '1', 0);
    EXPECT_EQ((TokenList{{'1', "1"}, {3, "."}}), tokens_of("1.5", tokens));
}

TEST(TokenScanner, the_longest_keyword_that_a_run_begins_with_wins) {
    LVXTokens tokens;
    tokens.setDefault();
    tokens.add(100, "<=");
    tokens.add(101, "<<=");
    EXPECT_EQ((TokenList{{100, "<="}, {3, ">"}}), tokens_of("<=>", tokens));
    EXPECT_EQ((TokenList{{101, "<<="}, {3, "<"}, {3, "<"}, {3, ">"}, {101, "<<="}}),
              tokens_of("<<=<<><<=", tokens));
}

TEST(TokenScanner, the_rest_of_a_run_is_scanned_again) {
    LVXTokens tokens;
    tokens.setDefault();
    tokens.add(100, "->");
    EXPECT_EQ((TokenList{{3, "*"}, {100, "->"}, {3, ">"}, {1, "-5"}}), tokens_of("*->>-5", tokens));
    EXPECT_EQ((TokenList{{3, "+"}, {4, "_a"}}), default_tokens_of("+_a"));
}

TEST(TokenScanner, an_underscore_belongs_to_a_run) {
    LVXTokens tokens;
    tokens.setDefault();
    tokens.add(100, "+_");
    EXPECT_EQ((TokenList{{100, "+_"}, {4, "a"}}), tokens_of("+_a", tokens));
}

TEST(TokenScanner, a_keyword_is_met_with_its_kind_off) {
    LVXTokens tokens;
    tokens.add(100, "<=");
    tokens.add(200, "begin");
    EXPECT_EQ((TokenList{{100, "<="}, {200, "begin"}}), tokens_of("<< <=begin beginning", tokens));
}

TEST(TokenScanner, a_longer_word_is_not_the_keyword) {
    LVXTokens tokens;
    tokens.setDefault();
    tokens.add(200, "begin");
    EXPECT_EQ((TokenList{{200, "begin"}, {11, " "}, {4, "beginning"}}), tokens_of("begin beginning", tokens));
}

TEST(TokenScanner, a_single_character_is_found_in_a_run_and_as_a_word) {
    LVXTokens tokens;
    tokens.setDefault();
    tokens.add(';', 'x', 0);
    EXPECT_EQ((TokenList{{3, "*"}, {59, ";"}, {3, "*"}, {'x', "x"}, {11, " "}, {4, "xy"}}),
              tokens_of("*;*x xy", tokens));
}

TEST(TokenScanner, keeps_49_characters_of_a_word_and_goes_on_behind_it) {
    for (const std::size_t length : {48u, 49u, 50u, 60u, 5000u}) {
        const std::string word(length, 'w');
        EXPECT_EQ((TokenList{{4, word.substr(0, 49)}, {3, "*"}}), default_tokens_of(word + "*")) << length;
    }
}

TEST(TokenScanner, a_keyword_is_compared_with_what_is_kept) {
    LVXTokens tokens;
    tokens.setDefault();
    tokens.add(100, std::string(49, 'w'));
    tokens.add(101, std::string(50, 'w'));
    EXPECT_EQ((TokenList{{100, std::string(49, 'w')}}), tokens_of(std::string(49, 'w'), tokens));
    EXPECT_EQ((TokenList{{100, std::string(49, 'w')}}), tokens_of(std::string(50, 'w'), tokens));
}

TEST(TokenScanner, a_number_is_judged_by_what_is_kept) {
    const std::string digits(49, '1');
    EXPECT_EQ((TokenList{{1, digits}}), default_tokens_of(digits + "xyz"));
    EXPECT_EQ((TokenList{{1, digits}}), default_tokens_of(digits + ".5"));
    EXPECT_EQ((TokenList{{1, digits}}), default_tokens_of(digits + "x.y.z...1"));
    EXPECT_EQ((TokenList{{2, digits.substr(1) + "."}}), default_tokens_of(digits.substr(1) + ".5.5"));
    EXPECT_EQ((TokenList{{4, digits.substr(1) + "x"}, {3, "."}}),
              default_tokens_of(digits.substr(1) + "xy."));
}

TEST(TokenScanner, a_run_is_cut_to_one_character_however_long_it_is) {
    const std::string run(200, '*');
    const TokenList tokens = default_tokens_of(run);
    EXPECT_EQ(TokenList(200, Token{3, "*"}), tokens);
}

TEST(TokenScanner, a_run_longer_than_what_is_kept_is_asked_by_its_first_49) {
    LVXTokens tokens;
    tokens.setDefault();
    const std::string longest(49, '*');
    tokens.add(100, longest);
    tokens.add(101, std::string(50, '*'));
    // All that is kept is the token: the rest is dropped as that of any long token.
    EXPECT_EQ((TokenList{{100, longest}, {4, "a"}}), tokens_of(longest + "a", tokens));
    EXPECT_EQ((TokenList{{100, longest}, {4, "a"}}), tokens_of(longest + "***;;;a", tokens));
    // Less than that is the token: the scan goes on right behind it.
    LVXTokens shorter;
    shorter.setDefault();
    shorter.add(100, std::string(48, '*'));
    EXPECT_EQ((TokenList{{100, std::string(48, '*')}, {3, "*"}, {3, "*"}, {3, ";"}, {4, "a"}}),
              tokens_of(longest + "*;a", shorter));
}

TEST(TokenScanner, a_dropped_rest_is_followed_by_what_the_position_says) {
    LVXTokens tokens;
    tokens.add(100, std::string(49, '*'));
    TextStream stream(std::string(60, '*') + "+", tokens);
    EXPECT_EQ(100, stream.Next().first);
    EXPECT_EQ(61, stream.Position());
}

TEST(TokenScanner, runs_of_megabytes_take_no_longer_than_other_texts) {
    LVXTokens tokens;
    tokens.setDefault();
    tokens.add(100, "<=");
    const std::string run(4000000, '*');
    const auto start = std::chrono::steady_clock::now();
    std::size_t count = 0;
    TextStream stream(run, tokens);
    while (stream->getToken() != 0) {
        ++count;
    }
    EXPECT_EQ(run.size(), count);
    // Reading the whole run for each of its characters would take hours.
    EXPECT_GT(std::chrono::seconds(60), std::chrono::steady_clock::now() - start);
}

TEST(TokenScanner, points_behind_a_number_of_megabytes_are_one_token) {
    EXPECT_EQ((TokenList{{1, std::string(49, '7')}}),
              default_tokens_of(std::string(49, '7') + std::string(1000000, '.')));
    EXPECT_EQ((TokenList{{1, std::string(49, '7')}}), default_tokens_of(std::string(1000000, '7')));
}

TEST(TokenScanner, a_nul_and_a_byte_above_127_end_a_token_and_are_skipped) {
    EXPECT_EQ((TokenList{{4, "a"}, {4, "b"}, {1, "1"}, {3, "."}}), default_tokens_of(std::string("a\0b\0\0"
                                                                                                 "1\0.",
                                                                                                 8)));
    EXPECT_EQ((TokenList{{4, "a"}, {4, "b"}, {1, "1"}, {3, "-"}, {1, "2"}}), default_tokens_of("a\xe4\xff\x80"
                                                                                               "b\xa0"
                                                                                               "1\xb2-\xb3"
                                                                                               "2"));
}

TEST(TokenScanner, the_end_is_kind_0_again_and_again) {
    TextStream stream("a");
    EXPECT_EQ((Token{4, "a"}), stream.Next());
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ((Token{0, ""}), stream.Next());
        EXPECT_TRUE(stream->eof());
    }
    EXPECT_EQ((Token{0, ""}), TextStream("").Next());
}

TEST(TokenScanner, each_character_alone_agrees_with_the_second_coding) {
    for (const char character : every_char()) {
        for (const std::string table : {"", "\x01", "\x06\x05\x0b", "\x06\x01\x03\x06\x04\x02"}) {
            const std::string program = table + "\x0a\x11";
            const std::string text = std::string(2, character) + "1" + character;
            ASSERT_EQ(lvx_test::OraclePlayer::Play(program, text),
                      lvx_test::LibraryPlayer::Play(program, text))
                << static_cast<int>(character);
        }
    }
}

namespace {

// Programs that fill a table; bytes as in tests/text/token_program.h.
std::string kinds(const std::string& list) {
    std::string program;
    for (const char kind : list) {
        program += std::string("\x06") + kind + '\0';
    }
    return program;
}
std::string keyword(char number, const std::string& text) {
    return std::string("\x07") + number + static_cast<char>(text.size()) + text;
}
const std::string scan = std::string("\x0a\x11") + "\x0f\x11";

const std::string tables[] = {
    kinds("\x01\x02\x03\x04\x05\x0b"),
    kinds("\x01\x04"),
    kinds("\x01"),
    kinds("\x02\x03"),
    kinds("\x01\x03"),
    kinds("\x03"),
    kinds("\x04\x05"),
    kinds("\x0b\x03\x04"),
    kinds("+."),
    kinds("\x01\x02\x03\x04+e") + keyword(100, "+-") + keyword(101, "-.") + keyword(102, "e1"),
    keyword(100, "+-") + keyword(101, "+-.") + keyword(102, "ee") + keyword(103, "-"),
    kinds("\x02\x04") + keyword(100, "._") + keyword(101, "_e") + keyword(102, " "),
};

}  // namespace

TEST(TokenScanner, agrees_with_the_second_coding_on_every_short_text) {
    for_each_text("+-.1eEa_ \n", 4, [](const std::string& text) {
        for (const std::string& table : tables) {
            ASSERT_EQ(lvx_test::OraclePlayer::Play(table + scan, text),
                      lvx_test::LibraryPlayer::Play(table + scan, text))
                << text << " by table " << &table - tables;
        }
    });
}

TEST(TokenScanner, agrees_with_the_second_coding_on_long_tokens) {
    for (const std::string alphabet : {"1", ".1", "1e.", "+-", "a1.", "+-.1e_a"}) {
        for_random_texts(alphabet, 130, 150, [](const std::string& text) {
            for (const std::string& table : tables) {
                const std::string program = table + keyword(104, "++++++++++") + scan;
                ASSERT_EQ(lvx_test::OraclePlayer::Play(program, text),
                          lvx_test::LibraryPlayer::Play(program, text))
                    << text << " by table " << &table - tables;
            }
        });
    }
}
