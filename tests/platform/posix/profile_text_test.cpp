#include "lvx/platform/posix/profile_text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "platform/profile_cases.h"
#include "platform/slow_profile.h"

namespace {

using namespace lvx::platform;
using lvx_test::SlowProfile;

std::optional<std::string> found(std::string_view text, const char* section, const char* key) {
    const auto value = find_profile_value(text, section, key);
    return value ? std::optional<std::string>(*value) : std::nullopt;
}

// Texts of the characters that mean something.
std::string random_text(std::mt19937& random, std::size_t longest) {
    constexpr std::string_view alphabet("[]=sSkK \t\r\n\"';\x1A\0x", 17);
    std::string text(random() % (longest + 1), '\0');
    for (char& character : text) {
        character = alphabet[random() % alphabet.size()];
    }
    return text;
}

}  // namespace

TEST(ProfileText, a_value_comes_with_its_quotes) {
    EXPECT_EQ("\"v\"", found("[s]\nk=\"v\"\n", "s", "k"));
    EXPECT_EQ("", found("[s]\nk=\n", "s", "k"));
}

TEST(ProfileText, what_is_missing_is_nothing) {
    EXPECT_EQ(std::nullopt, found("[s]\nk=v\n", "t", "k"));
    EXPECT_EQ(std::nullopt, found("[s]\nk=v\n", "s", "j"));
    EXPECT_EQ(std::nullopt, found("[s]\nk\nk=v\n", "s", "k"));
    EXPECT_EQ(std::nullopt, found("[s]\n[t]\nk=v\n", "s", "k"));
}

TEST(ProfileText, quotes_go_in_pairs_and_once) {
    EXPECT_EQ("v", without_profile_quotes("\"v\""));
    EXPECT_EQ("\"v\"", without_profile_quotes("'\"v\"'"));
    EXPECT_EQ("", without_profile_quotes("''"));
    EXPECT_EQ("'", without_profile_quotes("'"));
    EXPECT_EQ("'v\"", without_profile_quotes("'v\""));
    EXPECT_EQ("", without_profile_quotes(""));
    EXPECT_EQ("=v=", without_profile_quotes("=v="));
}

TEST(ProfileText, the_second_reader_finds_the_same_in_the_cases) {
    for (const lvx_test::ProfileReadCase& each : lvx_test::profile_read_cases()) {
        EXPECT_EQ(SlowProfile(each.bytes).Value(each.section, each.key),
                  found(each.bytes, each.section, each.key))
            << ::testing::PrintToString(std::string(each.bytes));
    }
}

TEST(ProfileText, the_second_reader_finds_the_same_in_any_text) {
    std::mt19937 random(7);
    int values = 0;
    for (int i = 0; i < 60'000; ++i) {
        std::string text = random_text(random, 24);
        if (i % 2 == 0) {
            text = "[s]\n" + text;
        }
        const SlowProfile slow(text);
        for (const char* const section : {"s", ""}) {
            for (const char* const key : {"k", "s", ""}) {
                const auto value = found(text, section, key);
                values += value.has_value();
                ASSERT_EQ(slow.Value(section, key), value)
                    << ::testing::PrintToString(text) << " [" << section << "] " << key;
            }
        }
    }
    EXPECT_GT(values, 1000);
}
