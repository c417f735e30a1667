#include <gtest/gtest.h>

#include <limits>

#include "lvx/text/strings.h"
#include "text/all_texts.h"
#include "text/global_locale.h"

namespace {

using namespace std::string_literals;

// Bytes above 127 are those of a Greek code page: 0xE1 is alpha, 0xE2 beta, and so on.
class Greek : public std::ctype<wchar_t> {
protected:
    wchar_t do_widen(char c) const override {
        const auto byte = static_cast<unsigned char>(c);
        return static_cast<wchar_t>(byte < 0x80 ? byte : byte + 0x2d0);
    }
    char do_narrow(wchar_t c, char fallback) const override {
        if (c < 0x80) {
            return static_cast<char>(c);
        }
        return c >= 0x350 && c < 0x3d0 ? static_cast<char>(c - 0x2d0) : fallback;
    }
};

}  // namespace

TEST(Widen, keeps_ascii_and_the_length) {
    EXPECT_EQ(L"Contents 1~", lvx::widen("Contents 1~"));
    EXPECT_EQ(L"", lvx::widen(""));
    EXPECT_EQ(L"a\0b\0"s, lvx::widen("a\0b\0"s));
}

TEST(Widen, gives_every_byte_the_form_that_the_global_locale_has_for_it) {
    const auto& classic = std::use_facet<std::ctype<wchar_t>>(std::locale::classic());
    const std::string bytes = every_char();
    const std::wstring wide = lvx::widen(bytes);
    ASSERT_EQ(256u, wide.size());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto expected = i < 0x80 ? static_cast<wchar_t>(i) : classic.widen(bytes[i]);
        EXPECT_EQ(expected, wide[i]) << i;
    }
}

TEST(Widen, follows_a_change_of_the_global_locale) {
    const GlobalLocale greek(std::locale(std::locale::classic(), new Greek));
    EXPECT_EQ(L"a\x3b1\x3b2\x3cf", lvx::widen("a\xe1\xe2\xff"));
}

TEST(Narrow, keeps_ascii_and_the_length) {
    EXPECT_EQ("Contents 1~", lvx::narrow(L"Contents 1~", '?'));
    EXPECT_EQ("", lvx::narrow(L"", '?'));
    EXPECT_EQ("a\0b\0"s, lvx::narrow(L"a\0b\0"s, '?'));
}

TEST(Narrow, puts_the_fallback_for_what_has_no_narrow_form) {
    EXPECT_EQ("5 ?", lvx::narrow(L"5 \x4e2d", '?'));
    EXPECT_EQ("\xff!", lvx::narrow(L"\x5b57!", '\xff'));
    EXPECT_EQ("\0x"s, lvx::narrow(L"\x4e2dx", '\0'));
}

TEST(Narrow, has_an_answer_for_every_wide_character) {
    const auto greatest = std::numeric_limits<wchar_t>::max();
    const auto least = std::numeric_limits<wchar_t>::min();
    const std::wstring extremes = {greatest, least, static_cast<wchar_t>(-1), L'z'};
    const std::string narrowed = lvx::narrow(extremes, '?');
    ASSERT_EQ(4u, narrowed.size());
    EXPECT_EQ('?', narrowed[0]);
    EXPECT_EQ('?', narrowed[2]);
    EXPECT_EQ('z', narrowed[3]);
}

TEST(Narrow, takes_back_what_widen_did) {
    std::string ascii = every_char().substr(0, 128);
    EXPECT_EQ(ascii, lvx::narrow(lvx::widen(ascii), '?'));
    const GlobalLocale greek(std::locale(std::locale::classic(), new Greek));
    EXPECT_EQ(every_char(), lvx::narrow(lvx::widen(every_char()), '?'));
    EXPECT_EQ("?", lvx::narrow(L"\x410", '?'));
}
