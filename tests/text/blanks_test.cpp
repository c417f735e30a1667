#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "lvx/text/strings.h"
#include "text/all_texts.h"

namespace {

using namespace std::string_literals;

struct Piece {
    std::string text;
    bool quoted;
};

// A second coding of the rule for quotes: cut at every double quote; one that ends a quoted piece with an odd
// number of backslashes in it does not count.
std::vector<Piece> pieces_of(const std::string& text) {
    std::vector<Piece> pieces = {{"", false}};
    for (const char c : text) {
        if (c != '"') {
            pieces.back().text += c;
            continue;
        }
        const std::string& before = pieces.back().text;
        const bool quoted = pieces.back().quoted;
        const bool is_protected = quoted && std::count(before.begin(), before.end(), '\\') % 2 == 1;
        pieces.push_back({"", is_protected ? quoted : !quoted});
    }
    return pieces;
}

std::string without_blanks(const std::string& text) {
    std::string result = text;
    std::erase_if(result, [](char c) { return c == ' ' || c == '\t'; });
    return result;
}

std::string with_single_blanks(std::string text) {
    std::replace(text.begin(), text.end(), '\t', ' ');
    for (std::size_t at = 0; (at = text.find("  ")) != std::string::npos;) {
        text.erase(at, 1);
    }
    return text;
}

template <class Change>
std::string changed_outside_quotes(const std::string& text, Change change) {
    std::string result;
    for (const Piece& piece : pieces_of(text)) {
        result += '"' + (piece.quoted ? piece.text : change(piece.text));
    }
    return result.substr(1);
}

std::string stripped(std::string text) {
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) {
        text.pop_back();
    }
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) {
        text.erase(0, 1);
    }
    return text;
}

}  // namespace

TEST(Trim, cuts_both_ends_and_leaves_one_blank_inside) {
    EXPECT_EQ("a b", lvx::trim(" a   b "));
    EXPECT_EQ("a b c", lvx::trim("\t a \t b\t\tc \t"));
    EXPECT_EQ("a b", lvx::trim("a\tb"));
    EXPECT_EQ("ab", lvx::trim("ab"));
}

TEST(Trim, of_blanks_is_nothing) {
    EXPECT_EQ("", lvx::trim(""));
    EXPECT_EQ("", lvx::trim(" "));
    EXPECT_EQ("", lvx::trim(" \t  \t"));
}

TEST(Trim, keeps_blanks_in_double_quotes) {
    EXPECT_EQ("a \"b  \t c\" d", lvx::trim("a  \"b  \t c\"  d"));
    EXPECT_EQ("'a b'", lvx::trim("'a  b'"));
}

TEST(Trim, cuts_the_ends_before_it_looks_at_quotes) {
    EXPECT_EQ("\"a", lvx::trim(" \"a  "));
    EXPECT_EQ("\"  \"", lvx::trim("  \"  \"  "));
}

TEST(Trim, a_quote_ends_a_run_of_blanks) {
    EXPECT_EQ("a \" \" b", lvx::trim("a  \" \"  b"));
    EXPECT_EQ("\"\" \"\"", lvx::trim("\"\"  \"\""));
}

TEST(Trim, a_backslash_in_quotes_protects_the_next_quote) {
    EXPECT_EQ(R"("a\"  b" c)", lvx::trim(R"("a\"  b"  c)"));
    EXPECT_EQ(R"("a\\" b)", lvx::trim(R"("a\\"  b)"));
}

TEST(Trim, the_protection_outlasts_other_characters) {
    EXPECT_EQ(R"("\abc  "  d" e)", lvx::trim(R"("\abc  "  d"  e)"));
    EXPECT_EQ(R"("\ab\c" d)", lvx::trim(R"("\ab\c"  d)"));
}

TEST(Trim, a_backslash_outside_quotes_protects_nothing) {
    EXPECT_EQ(R"(\"a  b" c)", lvx::trim(R"(\"a  b"  c)"));
    EXPECT_EQ(R"(\ \)", lvx::trim(R"(\   \)"));
}

TEST(Trim, only_blank_and_tab_are_blanks) {
    EXPECT_EQ("\n a\r\v\f\xa0", lvx::trim("\n  a\r\v\f\xa0"));
    EXPECT_EQ("\0 a \0"s, lvx::trim(" \0  a  \0 "s));
}

TEST(Trim, agrees_with_a_second_coding_of_its_rule) {
    const auto check = [](const std::string& text) {
        ASSERT_EQ(changed_outside_quotes(stripped(text), with_single_blanks), lvx::trim(text)) << text;
    };
    for_each_text(" \t\"\\a", 6, check);
    for_random_texts(" \t\"\\ab'"s + '\0' + '\xe4', 60, 2000, check);
}

TEST(Collapse, removes_blanks_outside_double_quotes) {
    EXPECT_EQ("ab\"c d\"", lvx::collapse(" a  b \"c d\" "));
    EXPECT_EQ("", lvx::collapse(""));
    EXPECT_EQ("", lvx::collapse(" \t "));
    EXPECT_EQ("a\nb", lvx::collapse("a \n\tb"));
}

TEST(Collapse, keeps_blanks_at_the_end_of_an_open_quote) {
    EXPECT_EQ("a\" \t", lvx::collapse(" a \" \t"));
}

TEST(Collapse, treats_backslashes_as_trim_does) {
    EXPECT_EQ(R"("\a " b"c)", lvx::collapse(R"("\a " b" c)"));
    EXPECT_EQ(R"(\" a"b)", lvx::collapse(R"(\ " a" b)"));
}

TEST(Collapse, keeps_nuls_and_bytes_above_127) {
    EXPECT_EQ("\0\xa0z"s, lvx::collapse("\0 \xa0 z"s));
}

TEST(Collapse, agrees_with_a_second_coding_of_its_rule) {
    const auto check = [](const std::string& text) {
        ASSERT_EQ(changed_outside_quotes(text, without_blanks), lvx::collapse(text)) << text;
    };
    for_each_text(" \t\"\\a", 6, check);
    for_random_texts(" \t\"\\ab'"s + '\0' + '\xe4', 60, 2000, check);
}
