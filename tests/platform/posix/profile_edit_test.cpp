#include <gtest/gtest.h>

#include <random>
#include <string>

#include "lvx/platform/posix/profile_text.h"
#include "platform/profile_cases.h"
#include "platform/slow_profile.h"

namespace {

using namespace lvx::platform;
using namespace std::string_literals;
using namespace std::string_view_literals;

using Written = std::optional<std::string>;

std::string random_text(std::mt19937& random, std::string_view alphabet, std::size_t longest) {
    std::string text(random() % (longest + 1), '\0');
    for (char& character : text) {
        character = alphabet[random() % alphabet.size()];
    }
    return text;
}

}  // namespace

TEST(ProfileEdit, blanks_round_an_entry_stay) {
    EXPECT_EQ(Written("[s]\n\tk = w\n\n; c\n"), set_profile_value("[s]\n\tk = v  \n\n; c\n", "s", "k", "w"));
    EXPECT_EQ(Written("[s]\nk=  w"), set_profile_value("[s]\nk=  ", "s", "k", "w"));
}

TEST(ProfileEdit, a_key_keeps_the_case_of_the_file) {
    EXPECT_EQ(Written("[S]\nKey=w"), set_profile_value("[S]\nKey=v", "s", "kEY", "w"));
}

TEST(ProfileEdit, an_equal_value_changes_nothing) {
    EXPECT_EQ(Written("[s]\rk = v \r"), set_profile_value("[s]\rk = v \r", "s", "k", "v"));
    EXPECT_EQ(Written("[s]\rk = v \r"), set_profile_value("[s]\rk = v \r", "s", "k", " v "));
}

TEST(ProfileEdit, the_value_of_a_key_without_a_sign_replaces_what_a_nul_hides) {
    EXPECT_EQ(Written("[s]\nk=v\n"), set_profile_value("[s]\nk\0x\n"sv, "s", "k", "v"));
    EXPECT_EQ(Written("[s]\nk\0x=v\n"s), set_profile_value("[s]\nk\0x=a\0b\n"sv, "s", "k", "v"));
}

TEST(ProfileEdit, the_line_ends_of_the_file_are_used) {
    EXPECT_EQ(Written("a\n[s]\nk=v\n"), set_profile_value("a\n", "s", "k", "v"));
    EXPECT_EQ(Written("a\r[s]\rk=v\r"), set_profile_value("a\r", "s", "k", "v"));
    EXPECT_EQ(Written("a\r\n[s]\r\nk=v\r\n"), set_profile_value("a\r\n", "s", "k", "v"));
    EXPECT_EQ(Written("a\r\n[s]\r\nk=v\r\n"), set_profile_value("a", "s", "k", "v"));
}

TEST(ProfileEdit, a_new_line_goes_in_front_of_the_end_of_file_character) {
    EXPECT_EQ(Written("a\n[s]\nk=v\n\x1A\x1A"), set_profile_value("a\n\x1A\x1A", "s", "k", "v"));
    EXPECT_EQ(Written("[s]\r\nk=v\r\n\x1A"), set_profile_value("\x1A", "s", "k", "v"));
}

TEST(ProfileEdit, what_would_not_be_read_back_is_refused) {
    for (const char* const value : {"a\nb", "a\rb", "a\n", "a\r\n"}) {
        EXPECT_EQ(std::nullopt, set_profile_value("[s]\nk=v\n", "s", "k", value));
        EXPECT_EQ(std::nullopt, set_profile_value("[s]\n", "s", "k", value));
        EXPECT_EQ(std::nullopt, set_profile_value("[s]\n", "s", value, "v"));
        EXPECT_EQ(std::nullopt, set_profile_value("[s]\n", value, "k", "v"));
    }
    EXPECT_EQ(std::nullopt, set_profile_value("[s]\n", "s", "k=", "v"));
    EXPECT_EQ(std::nullopt, set_profile_value("[s]\n", "s", "[k]", "v"));
    EXPECT_EQ(std::nullopt, set_profile_value("[s]\n", "s", "[k", "v]"));
    EXPECT_EQ(std::nullopt, set_profile_value("[s]\n[k=1\n", "s", "[k", "v]"));
    EXPECT_EQ(std::nullopt, set_profile_value("[s]\n", "s", "k\0x"sv, "v\0x"sv));
}

TEST(ProfileEdit, line_ends_in_front_are_blanks_like_others) {
    EXPECT_EQ(Written("[s]\nk=v\n"), set_profile_value("[s]\n", "\ns", "\r\nk", "\nv"));
}

TEST(ProfileEdit, any_write_reads_back_and_leaves_every_other_line) {
    std::mt19937 random(11);
    int written = 0;
    for (int i = 0; i < 40'000; ++i) {
        std::string text = random_text(random, "[]=sk \t\r\n\"\x1A\0x"sv, 24);
        if (i % 2 == 0) {
            text = "[s]\n" + text;
        }
        const std::string section = random_text(random, "s] "sv, 2);
        const std::string key = random_text(random, "sk [=\n"sv, 2);
        const std::string value = random_text(random, "sk =[]\"\r\x1A"sv, 4);
        const Written after = set_profile_value(text, section, key, value);
        const std::string trace = ::testing::PrintToString(text) + " [" + section + "] " + key + "=" + value;
        if (!after) {
            ASSERT_FALSE(lvx_test::is_writable(section, key, value)) << trace;
            continue;
        }
        ++written;
        ASSERT_EQ("", lvx_test::what_is_wrong(text, *after, section, key, value))
            << trace << " became " << ::testing::PrintToString(*after);
        ASSERT_EQ(after, set_profile_value(*after, section, key, value)) << trace;
    }
    EXPECT_GT(written, 10'000);
}
