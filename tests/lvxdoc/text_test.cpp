#include "tools/lvxdoc/text.h"

#include <gtest/gtest.h>

using namespace lvxdoc;

namespace {

std::string all_bytes() {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    return bytes;
}

}  // namespace

TEST(EscapeBytes, leaves_printable_ascii_and_escapes_the_rest) {
    EXPECT_EQ("Sky 1~", escape_bytes("Sky 1~"));
    EXPECT_EQ("a\\\"b\\\\c", escape_bytes("a\"b\\c"));
    EXPECT_EQ("\\x00\\x1b\\x7f\\xff", escape_bytes(std::string("\0\x1b\x7f\xff", 4)));
}

TEST(EscapeBytes, leaves_nothing_that_a_terminal_obeys) {
    for (const char c : escape_bytes(all_bytes())) {
        EXPECT_TRUE(c >= 0x20 && c < 0x7f);
    }
}

TEST(EscapeName, gives_utf8) {
    EXPECT_EQ("Bäume \xe2\x82\xac \xf0\x9f\x8e\xa8", escape_name(u"Bäume € 🎨"));
}

TEST(EscapeName, escapes_separators_control_characters_and_halves_of_pairs) {
    const char16_t name[] = {5, 'S', '/', '\\', 0x9b, 0xd83c, 'x', 0xdf00};
    EXPECT_EQ("\\x05S\\x2f\\x5c\\x9b\\ud83cx\\udf00", escape_name({name, 8}));
}

TEST(EscapeName, escapes_what_would_turn_or_hide_text) {
    EXPECT_EQ("a\\u202egpj", escape_name(u"a\u202egpj"));
    EXPECT_EQ("\\u200b\\ufeff", escape_name(u"\u200b\ufeff"));
    EXPECT_EQ("a\\u061cb\\xadc", escape_name(u"a\u061cb\u00adc"));
    EXPECT_EQ("\\u034f\\u115f\\u180e\\u3164\\ufe0f\\uffa0\\ufff9",
              escape_name(u"\u034f\u115f\u180e\u3164\ufe0f\uffa0\ufff9"));
}

TEST(EscapeName, leaves_letters_beside_what_it_escapes) {
    EXPECT_EQ("\xc2\xa0\xc2\xac\xc2\xae\xd8\x9b\xe2\x80\x8a\xef\xbf\xbc",
              escape_name(u"\u00a0\u00ac\u00ae\u061b\u200a\ufffc"));
}

TEST(JsonBytes, makes_each_byte_the_character_of_its_number) {
    EXPECT_EQ("\"a\\\"\\\\/\"", json_bytes("a\"\\/"));
    EXPECT_EQ("\"\\u0000\\u000a\\u007f\\u0080\\u00ff\"", json_bytes(std::string("\0\n\x7f\x80\xff", 5)));
}

TEST(JsonBytes, is_pure_ascii_for_any_byte) {
    for (const char c : json_bytes(all_bytes())) {
        EXPECT_TRUE(c >= 0x20 && c < 0x7f);
    }
}

TEST(JsonText, keeps_utf8_and_replaces_what_is_none) {
    EXPECT_EQ("\"Bäume 🎨\"", json_text("Bäume 🎨"));
    EXPECT_EQ("\"a\\ufffdb\"", json_text("a\xff"
                                         "b"));
    EXPECT_EQ("\"\\u000a\\\"\"", json_text("\n\""));
}

TEST(JsonText, replaces_overlong_cut_and_forbidden_forms) {
    EXPECT_EQ("\"\\ufffd\\ufffd\"", json_text("\xc0\xaf"));
    EXPECT_EQ("\"\\ufffd\\ufffd\\ufffd\"", json_text("\xed\xa0\x80"));
    EXPECT_EQ("\"\\ufffd\\ufffd\\ufffd\"", json_text("\xe0\x80\xaf"));
    EXPECT_EQ("\"\\ufffd\\ufffd\\ufffd\\ufffd\"", json_text("\xf4\x90\x80\x80"));
    EXPECT_EQ("\"\\ufffd\\ufffd\"", json_text("\xe2\x82"));
}

TEST(Hex, has_two_digits_for_a_byte_and_eight_for_an_offset) {
    EXPECT_EQ("000fff", hex_bytes(std::string("\0\x0f\xff", 3)));
    EXPECT_EQ("0x0000007b", hex_offset(123));
    EXPECT_EQ("0x123456789a", hex_offset(0x123456789a));
}

TEST(Counted, knows_one_from_many) {
    EXPECT_EQ("1 byte", counted(1, "byte"));
    EXPECT_EQ("0 bytes", counted(0, "byte"));
    EXPECT_EQ("2 streams", counted(2, "stream"));
}

TEST(SameButForCase, folds_ascii_letters_only) {
    EXPECT_TRUE(same_but_for_case("Sky", "sKY"));
    EXPECT_FALSE(same_but_for_case("Sky", "Sky2"));
    EXPECT_FALSE(same_but_for_case("[", "{"));
}
