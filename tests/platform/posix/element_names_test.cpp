#include "lvx/platform/posix/element_names.h"

#include <gtest/gtest.h>

#include "lvx/platform/structured_storage.h"

using namespace lvx::platform;

TEST(ElementNames, have_1_to_31_units) {
    EXPECT_FALSE(is_element_name(L""));
    EXPECT_TRUE(is_element_name(L"a"));
    EXPECT_TRUE(is_element_name(std::wstring(31, L'a').c_str()));
    EXPECT_FALSE(is_element_name(std::wstring(32, L'a').c_str()));
}

TEST(ElementNames, count_a_character_beyond_16_bits_twice) {
    const std::wstring pair = L"\x1F600";
    EXPECT_TRUE(is_element_name((pair + std::wstring(29, L'a')).c_str()));
    EXPECT_FALSE(is_element_name((pair + std::wstring(30, L'a')).c_str()));
}

TEST(ElementNames, have_whole_characters_and_no_separators) {
    for (const wchar_t character : {L'/', L'\\', L':', L'!', wchar_t{0xD800}, wchar_t{0xDFFF},
                                    wchar_t{0x110000}, static_cast<wchar_t>(WEOF)}) {
        EXPECT_FALSE(is_element_name(std::wstring({L'a', character, L'b'}).c_str()))
            << static_cast<unsigned>(character);
    }
    for (const wchar_t character : {L' ', L'.', L'*', L'?', L'\x01', wchar_t{0xD7FF}, wchar_t{0xE000}}) {
        EXPECT_TRUE(is_element_name(std::wstring({L'a', character, L'b'}).c_str()))
            << static_cast<unsigned>(character);
    }
}

TEST(ElementNames, are_the_same_in_either_case) {
    EXPECT_TRUE(is_same_element(L"Sky", L"sKY"));
    EXPECT_TRUE(is_same_element(L"\x00FC", L"\x00DC"));
    EXPECT_TRUE(is_same_element(L"\x0436", L"\x0416"));
    EXPECT_FALSE(is_same_element(L"Sky", L"Sky "));
    EXPECT_FALSE(is_same_element(L"Sky", L"Sk"));
    EXPECT_FALSE(is_same_element(L"a", L"b"));
    EXPECT_FALSE(is_same_element(L"\x00DF", L"SS")) << "character by character";
}

TEST(ElementNames, come_out_of_UTF16_whole_or_not_at_all) {
    EXPECT_EQ(L"a\x00FC\x1F600", wide_from_utf16(std::u16string(u"a\x00FC\xD83D\xDE00")));
    EXPECT_EQ(L"", wide_from_utf16({}));
    for (const std::u16string& damaged : {std::u16string(u"\xD83D"),
                                          std::u16string(u"\xD83D"
                                                         u"a"),
                                          std::u16string(u"\xDE00"), std::u16string(u"a\0b", 3)}) {
        EXPECT_EQ(std::nullopt, wide_from_utf16(damaged));
    }
}

TEST(ElementNames, go_to_libgsf_in_UTF8) {
    EXPECT_EQ("a\xC3\xBC\xF0\x9F\x98\x80", utf8_from_wide(L"a\x00FC\x1F600"));
}

TEST(FileNames, keep_the_bytes_that_the_locale_has_no_character_for) {
    const std::string name = "/tmp/\xC3\xBC\xFF\x80";
    std::wstring widened;
    for (const char c : name) {
        widened += c < 0 ? static_cast<wchar_t>(WEOF) : static_cast<wchar_t>(c);
    }
    EXPECT_EQ(std::nullopt, file_name_bytes(widened));
    EXPECT_EQ(name, file_name_bytes(file_name_of(widened, name)));
}

TEST(FileNames, are_UTF8_for_characters_that_the_locale_has_no_byte_for) {
    EXPECT_EQ("\xC3\xBC", file_name_bytes(L"\x00FC"));
    EXPECT_EQ("plain", file_name_bytes(L"plain"));
}

TEST(FileNames, are_neither_empty_nor_broken) {
    EXPECT_EQ(std::nullopt, file_name_bytes(L""));
    EXPECT_EQ(std::nullopt, file_name_bytes({L'a', static_cast<wchar_t>(WEOF)}));
    EXPECT_EQ(std::nullopt, file_name_bytes({L'a', L'\0'}));
    EXPECT_EQ(std::nullopt, file_name_bytes({L'a', wchar_t{0xD800}}));
    EXPECT_EQ(std::nullopt, file_name_bytes({L'a', wchar_t{0xDC7F}}));
}
