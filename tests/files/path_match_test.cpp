#include <gtest/gtest.h>

#include "lvx/files/path_string.h"
#include "support/path_oracle.h"
#include "text/all_texts.h"

namespace {

bool matches(const LVXPathString& path, const char* pattern) {
    return path.isMatch(pattern);
}

}  // namespace

TEST(PathMatch, prefix_and_suffix_fit_whole_or_by_a_star) {
    for (const char* pattern : {"*.bmp", "logo.*", "logo", "*", "*.*", "logo.bmp", ""}) {
        EXPECT_TRUE(matches("logo.bmp", pattern)) << pattern;
    }
    for (const char* pattern :
         {"lo*.bmp", "logo.b*", "logo.b?p", "*.txt", "other.*", "logo.", "**", ".bmp"}) {
        EXPECT_FALSE(matches("logo.bmp", pattern)) << pattern;
    }
}

TEST(PathMatch, the_case_of_letters_counts) {
    EXPECT_FALSE(matches("logo.bmp", "LOGO.bmp"));
    EXPECT_FALSE(matches("logo.bmp", "*.BMP"));
}

TEST(PathMatch, what_the_path_lacks_is_empty) {
    EXPECT_TRUE(matches("a", "*.*"));
    EXPECT_FALSE(matches("a", "a.txt"));
    EXPECT_TRUE(matches("a", "a."));
    EXPECT_FALSE(matches("a.txt", "a."));
    EXPECT_TRUE(matches("", "*"));
    EXPECT_FALSE(matches("", "a"));
    EXPECT_TRUE(matches("", ".x")) << "an empty prefix, and no suffix: the dot is the first character";
}

TEST(PathMatch, an_empty_pattern_fits_all) {
    for (const char* path : {"", "a", "a.b", "c:\\", "c:\\a.b\\c"}) {
        EXPECT_TRUE(matches(path, "")) << path;
    }
}

TEST(PathMatch, a_pattern_may_have_an_empty_prefix) {
    EXPECT_FALSE(matches("a.bmp", ".bmp"));
    EXPECT_TRUE(matches(".bmp", ".bmp"));
    EXPECT_TRUE(matches(".txt", ".bmp")) << "neither has a suffix";
    EXPECT_FALSE(matches("a.bmp", "\\.bmp"));
}

TEST(PathMatch, directories_and_middles_do_not_count) {
    EXPECT_TRUE(matches("c:\\pics\\logo.bmp", "d:\\other\\*.bmp"));
    EXPECT_TRUE(matches("a.x.c", "a.y.c"));
    EXPECT_TRUE(matches("c:\\", "\\")) << "both names are empty";
    EXPECT_FALSE(matches("c:\\a", "\\"));
}

TEST(PathMatch, a_path_fits_itself) {
    const LVXPathString path("c:\\a.b.c");
    EXPECT_TRUE(path.isMatch(path));
}

TEST(PathMatch, a_nul_is_compared) {
    EXPECT_FALSE(LVXPathString(std::string("a\0b", 3)).isMatch(std::string("a\0c", 3)));
    EXPECT_TRUE(LVXPathString(std::string("a\0b", 3)).isMatch(std::string("a\0b", 3)));
}

TEST(PathMatch, the_rule_holds_for_every_pair_of_short_texts) {
    std::vector<std::string> texts;
    for_each_text("ab.*\\", 3, [&](const std::string& text) { texts.push_back(text); });
    for (const std::string& path : texts) {
        for (const std::string& pattern : texts) {
            ASSERT_EQ(lvx_test::PathOracle(path, false).IsMatch({pattern, false}),
                      LVXPathString(path).isMatch(pattern))
                << path << " against " << pattern;
        }
    }
}
