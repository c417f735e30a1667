#include <gtest/gtest.h>

#include <algorithm>

#include "lvx/text/strings.h"
#include "text/all_texts.h"
#include "text/global_locale.h"

namespace {

using namespace std::string_literals;

// A host's own letters: '#' is the capital of '*', and '_' is white space.
class HostLetters : public std::ctype<char> {
public:
    HostLetters() : std::ctype<char>(host_table()) {}

protected:
    char do_toupper(char c) const override { return c == '*' ? '#' : std::ctype<char>::do_toupper(c); }
    char do_tolower(char c) const override { return c == '#' ? '*' : std::ctype<char>::do_tolower(c); }

private:
    static const mask* host_table() {
        static mask table[table_size];
        std::copy(classic_table(), classic_table() + table_size, table);
        table[static_cast<unsigned char>('_')] = space;
        return table;
    }
};

class HostWideLetters : public std::ctype<wchar_t> {
protected:
    wchar_t do_toupper(wchar_t c) const override { return c == L'\x3b1' ? L'\x391' : c; }
    wchar_t do_tolower(wchar_t c) const override { return c == L'\x391' ? L'\x3b1' : c; }
};

// By the letters of ASCII alone, as the classic locale has them.
std::string ascii_shifted(std::string text, char first, char last, int distance) {
    for (char& c : text) {
        c = c >= first && c <= last ? static_cast<char>(c + distance) : c;
    }
    return text;
}

}  // namespace

TEST(ToLower, turns_letters_and_nothing_else) {
    EXPECT_EQ("abc xyz 12 [\\]^_`{|}~@", lvx::to_lower("AbC XYZ 12 [\\]^_`{|}~@"));
    EXPECT_EQ(ascii_shifted(every_char(), 'A', 'Z', 32), lvx::to_lower(every_char()));
}

TEST(ToUpper, turns_letters_and_nothing_else) {
    EXPECT_EQ("ABC XYZ 12 [\\]^_`{|}~@", lvx::to_upper("aBc xyz 12 [\\]^_`{|}~@"));
    EXPECT_EQ(ascii_shifted(every_char(), 'a', 'z', -32), lvx::to_upper(every_char()));
}

TEST(ToUpper, of_nothing_is_nothing) {
    EXPECT_EQ("", lvx::to_upper(""));
    EXPECT_EQ("", lvx::to_lower(""));
}

TEST(ToUpper, goes_on_behind_a_nul) {
    EXPECT_EQ("A\0B"s, lvx::to_upper("a\0b"s));
    EXPECT_EQ("a\0b"s, lvx::to_lower("A\0B"s));
}

TEST(ToUpper, asks_the_global_locale_for_each_character) {
    const GlobalLocale host(std::locale(std::locale::classic(), new HostLetters));
    EXPECT_EQ("A##", lvx::to_upper("a*#"));
    EXPECT_EQ("a**", lvx::to_lower("A*#"));
}

TEST(WideCase, asks_the_given_locale_and_not_the_global_one) {
    const std::locale host(std::locale::classic(), new HostWideLetters);
    EXPECT_EQ(L"\x391q", lvx::to_upper(L"\x3b1q", host));
    EXPECT_EQ(L"\x3b1Q", lvx::to_lower(L"\x391Q", host));
    const GlobalLocale global(host);
    EXPECT_EQ(L"Q", lvx::to_upper(L"q", std::locale::classic()));
    EXPECT_EQ(L"q", lvx::to_lower(L"Q", std::locale::classic()));
}

TEST(WideCase, of_null_or_nothing_is_nothing) {
    EXPECT_EQ(L"", lvx::to_upper(nullptr, std::locale::classic()));
    EXPECT_EQ(L"", lvx::to_lower(nullptr, std::locale::classic()));
    EXPECT_EQ(L"", lvx::to_upper(L"", std::locale::classic()));
}

TEST(WideCase, ends_at_the_nul) {
    EXPECT_EQ(L"AB", lvx::to_upper(L"ab\0cd", std::locale::classic()));
}

TEST(Capitalise, begins_each_word_with_a_capital) {
    EXPECT_EQ("Hello World", lvx::capitalise("hELLO wORLD"));
    EXPECT_EQ("  Two  Blanks ", lvx::capitalise("  two  BLANKS "));
    EXPECT_EQ("", lvx::capitalise(""));
    EXPECT_EQ("A", lvx::capitalise("a"));
}

TEST(Capitalise, only_white_space_ends_a_word) {
    EXPECT_EQ("O'neil-smith 3rd (esq.)", lvx::capitalise("O'NEIL-SMITH 3RD (ESQ.)"));
    EXPECT_EQ("A\tB\nC\vD\fE\rF", lvx::capitalise("a\tb\nc\vd\fe\rf"));
}

TEST(Capitalise, a_nul_or_a_byte_above_127_stands_inside_a_word) {
    EXPECT_EQ("A\0b C"s, lvx::capitalise("A\0B c"s));
    EXPECT_EQ(
        "A\xe4"
        "b \xfc"
        "c",
        lvx::capitalise("A\xe4"
                        "B \xfc"
                        "C"));
}

TEST(Capitalise, takes_letters_and_white_space_from_the_global_locale) {
    const GlobalLocale host(std::locale(std::locale::classic(), new HostLetters));
    EXPECT_EQ("Ab_C*_#*", lvx::capitalise("aB_c#_*#"));
}
