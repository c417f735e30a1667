// How much memory patterns take.
#include <gtest/gtest.h>

#include <string>

#include "owl/regexp.h"
#include "support/allocation.h"

namespace {

constexpr std::size_t mebibyte = 1024 * 1024;

std::string times(std::size_t count, std::string_view text) {
    std::string all;
    for (; count > 0; --count) {
        all += text;
    }
    return all;
}

// The most that was held while the pattern was compiled.
std::size_t peak_of(const std::string& pattern, bool is_good) {
    const std::size_t before = lvx_test::live_bytes();
    lvx_test::reset_peak();
    EXPECT_EQ(is_good, TRegexp(pattern).ok()) << pattern.substr(0, 40);
    EXPECT_EQ(before, lvx_test::live_bytes()) << pattern.substr(0, 40);
    return lvx_test::peak_bytes() - before;
}

}  // namespace

// Such patterns took 700 to 1000 MB before they were found to be too large.
TEST(RegexpMemory, a_refused_pattern_takes_next_to_none) {
    // What is seen once and then kept, as the names of properties are.
    EXPECT_TRUE(TRegexp("(?i)\\pLa{2}").ok());
    for (const char* const part :
         {"a{0,1000}", "(a{0,1000})", "(?:(?:)*){1000}", "\\pL", "(?i:[\\pL\\PN\\pS])", "((((", "[ac]"}) {
        const std::string pattern = times(TRegexp::longest_pattern / std::string_view(part).size(), part);
        if (!TRegexp(pattern).ok()) {
            EXPECT_GT(mebibyte, peak_of(pattern, false)) << part;
        }
        EXPECT_GT(mebibyte, peak_of(times(100'000, part), false)) << part;
    }
    EXPECT_GT(mebibyte, peak_of("((((a{1000}){1000}){1000}){1000}){1000}", false));
}

TEST(RegexpMemory, an_accepted_pattern_takes_some_mebibytes_at_most) {
    for (const std::string& pattern :
         {times(10, "a{0,1000}"), times(20, "a{1000}"), times(20, "a{0,500}"), "(?i)" + times(900, "\\PL"),
          "(?i)" + times(10, "[\\xe0-\\xff]{0,999}"), "[" + times(2700, "\\x41-A") + "]", times(4000, "[ac]"),
          times(900, "(") + times(900, ")"), times(8000, "|a"), times(8000, "a?")}) {
        EXPECT_GT(8 * mebibyte, peak_of(pattern, true)) << pattern.substr(0, 40);
    }
}
