#include "lvx/platform/posix/profile_encoding.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "support/bytes.h"

namespace {

using namespace lvx::platform;
using lvx_test::bytes;

std::string text_of(const std::string& file) {
    const ProfileText text(file);
    return std::string(text.Text());
}

}  // namespace

TEST(ProfileEncoding, the_mark_tells) {
    EXPECT_EQ(ProfileEncoding::Utf8, profile_encoding(bytes("EF BB BF 'a'")));
    EXPECT_EQ(ProfileEncoding::Utf16Little, profile_encoding(bytes("FF FE 'a' 00")));
    EXPECT_EQ(ProfileEncoding::Utf16Big, profile_encoding(bytes("FE FF 00 'a'")));
    EXPECT_EQ(ProfileEncoding::Bytes, profile_encoding(bytes("EF BB 'a'")));
    EXPECT_EQ(ProfileEncoding::Bytes, profile_encoding("a"));
    EXPECT_EQ(ProfileEncoding::Bytes, profile_encoding(""));
    EXPECT_EQ(ProfileEncoding::Bytes, profile_encoding("\xFF"));
}

TEST(ProfileEncoding, bytes_without_a_mark_and_behind_that_of_utf8_are_the_text_in_place) {
    const std::string plain = bytes("'a' E9 00 FF");
    const ProfileText plain_text(plain);
    EXPECT_EQ(plain.data(), plain_text.Text().data());
    EXPECT_EQ(plain, plain_text.Text());
    const std::string marked = bytes("EF BB BF 'a' E9");
    const ProfileText marked_text(marked);
    EXPECT_EQ(marked.data() + 3, marked_text.Text().data());
    EXPECT_EQ("a\xE9", marked_text.Text());
}

TEST(ProfileEncoding, units_become_utf8) {
    EXPECT_EQ(bytes("'a' C3 A9 E2 82 AC F0 9F 98 80"),
              text_of(bytes("FF FE 'a' 00 E9 00 AC 20 3D D8 00 DE")));
    EXPECT_EQ(bytes("'a' C3 A9 E2 82 AC F0 9F 98 80"),
              text_of(bytes("FE FF 00 'a' 00 E9 20 AC D8 3D DE 00")));
    EXPECT_EQ(bytes("7F C2 80 DF BF E0 A0 80 EF BF BF"),
              text_of(bytes("FF FE 7F 00 80 00 FF 07 00 08 FF FF")));
}

TEST(ProfileEncoding, half_a_unit_at_the_end_is_left_out) {
    EXPECT_EQ("a", text_of(bytes("FF FE 'a' 00 'b'")));
    EXPECT_EQ("", text_of(bytes("FF FE")));
    EXPECT_EQ("", text_of(bytes("FF FE 'a'")));
}

TEST(ProfileEncoding, surrogates_without_partner_come_and_go_back) {
    for (const char* const file : {"FF FE 3D D8", "FF FE 3D D8 'a' 00", "FF FE 00 DE 3D D8",
                                   "FF FE 00 DE 00 DE", "FF FE 3D D8 3D D8 00 DE"}) {
        const std::string original = bytes(file);
        EXPECT_EQ(original, profile_bytes(ProfileEncoding::Utf16Little, text_of(original))) << file;
    }
    EXPECT_EQ(bytes("ED A0 BD"), text_of(bytes("FF FE 3D D8")));
}

TEST(ProfileEncoding, what_is_no_utf8_is_replaced) {
    const auto little = [](const char* text) {
        return profile_bytes(ProfileEncoding::Utf16Little, bytes(text));
    };
    EXPECT_EQ(bytes("FF FE 'a' 00 FD FF 'b' 00"), little("'a' E9 'b'"));
    EXPECT_EQ(bytes("FF FE FD FF"), little("80"));
    EXPECT_EQ(bytes("FF FE FD FF FD FF"), little("C0 80"));
    EXPECT_EQ(bytes("FF FE FD FF FD FF FD FF"), little("E0 80 80"));
    EXPECT_EQ(bytes("FF FE FD FF FD FF"), little("E2 82"));
    EXPECT_EQ(bytes("FF FE FD FF FD FF FD FF FD FF"), little("F4 90 80 80"));
    EXPECT_EQ(bytes("FF FE FD FF"), little("FF"));
}

TEST(ProfileEncoding, bytes_come_with_their_mark) {
    EXPECT_EQ(bytes("EF BB BF 'a' E9"), profile_bytes(ProfileEncoding::Utf8, "a\xE9"));
    EXPECT_EQ("a\xE9", profile_bytes(ProfileEncoding::Bytes, "a\xE9"));
    EXPECT_EQ(bytes("FE FF 00 'a' D8 3D DE 00"),
              profile_bytes(ProfileEncoding::Utf16Big, bytes("'a' F0 9F 98 80")));
}

TEST(ProfileEncoding, any_units_come_and_go_back) {
    std::mt19937 random(5);
    for (int i = 0; i < 3000; ++i) {
        for (const char* const mark : {"FF FE", "FE FF"}) {
            std::string file = bytes(mark);
            for (auto units = random() % 8; units > 0; --units) {
                file += static_cast<char>(random() % 2 == 0 ? 0xD8 + random() % 8 : random() % 256);
                file += static_cast<char>(random() % 2 == 0 ? 0xD8 + random() % 8 : random() % 256);
            }
            const ProfileText text(file);
            ASSERT_EQ(lvx_test::hex(file), lvx_test::hex(profile_bytes(text.Encoding(), text.Text())));
        }
    }
}
