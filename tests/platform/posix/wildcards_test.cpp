#include "lvx/platform/posix/wildcards.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "support/path_oracle.h"
#include "text/all_texts.h"

using lvx::platform::fits_wildcards;

TEST(Wildcards, plain_characters_stand_for_themselves) {
    EXPECT_TRUE(fits_wildcards("a.b", "a.b"));
    EXPECT_FALSE(fits_wildcards("a.b", "A.b"));
    EXPECT_FALSE(fits_wildcards("a.b", "a.bc"));
    EXPECT_FALSE(fits_wildcards("a.bc", "a.b"));
    EXPECT_FALSE(fits_wildcards("a", ""));
    EXPECT_TRUE(fits_wildcards("", ""));
    EXPECT_TRUE(fits_wildcards("[a]", "[a]")) << "there are no sets";
}

TEST(Wildcards, a_question_mark_is_one_character) {
    EXPECT_TRUE(fits_wildcards("ab", "a?"));
    EXPECT_FALSE(fits_wildcards("a.b", "a?"));
    EXPECT_FALSE(fits_wildcards("a", "a?")) << "not the dot that a name without one may have";
    EXPECT_TRUE(fits_wildcards("a.b", "???"));
    EXPECT_FALSE(fits_wildcards("ab", "*??.?"));
}

TEST(Wildcards, a_name_without_a_dot_has_one_at_its_end) {
    EXPECT_TRUE(fits_wildcards("abc", "*.*"));
    EXPECT_TRUE(fits_wildcards("abc", "*."));
    EXPECT_FALSE(fits_wildcards("a.b", "*."));
    EXPECT_TRUE(fits_wildcards("abc", "abc.*"));
    EXPECT_FALSE(fits_wildcards("a.b", "a.b."));
}

TEST(Wildcards, they_hold_for_every_pair_of_short_texts) {
    std::vector<std::string> patterns;
    for_each_text("ab.*?", 4, [&](const std::string& text) { patterns.push_back(text); });
    for_each_text("ab.", 5, [&](const std::string& name) {
        for (const std::string& pattern : patterns) {
            ASSERT_EQ(lvx_test::oracle_fits_wildcards(name, pattern), fits_wildcards(name, pattern))
                << name << " against " << pattern;
        }
    });
}

TEST(Wildcards, many_stars_do_not_take_forever) {
    std::string pattern;
    for (int i = 0; i < 2000; ++i) {
        pattern += "*a";
    }
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(fits_wildcards(std::string(255, 'a'), pattern + "b"));
    EXPECT_FALSE(fits_wildcards(std::string(255, 'a'), "*a*a*a*a*a*a*a*a*a*a*a*a*b"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}
