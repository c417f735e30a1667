#include "lvx/platform/posix/profile_section.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace {

using namespace lvx::platform;

// The first line of the section; "none" if there is no such section, "end" if it has no lines.
std::string first_line(std::string_view text, std::string_view section) {
    ProfileLines lines(text);
    if (!find_profile_section(lines, section)) {
        return "none";
    }
    return lines.Next() ? std::string(lines.Line()) : "end";
}

}  // namespace

TEST(ProfileSection, the_first_of_the_name_counts) {
    EXPECT_EQ("x", first_line("[a]\n1\n[b]\nx\n[B]\ny\n", "b"));
    EXPECT_EQ("1", first_line("[a]\n1\n[b]\nx\n", " A "));
    EXPECT_EQ("none", first_line("[a]\n1\n", "b"));
    EXPECT_EQ("end", first_line("[a]\n1\n[b]", "b"));
}

TEST(ProfileSection, the_empty_name_is_the_beginning) {
    EXPECT_EQ("x", first_line("x\n[a]\n", ""));
    EXPECT_EQ("[a]", first_line("[a]\n", " "));
    EXPECT_EQ("end", first_line("", ""));
}

TEST(ProfileSection, brackets_inside_a_line_are_no_header) {
    EXPECT_EQ("none", first_line("k=[a]\n", "a"));
    EXPECT_EQ("none", first_line("x [a]\n", "a"));
    EXPECT_EQ("none", first_line(";[a]\n", "a"));
    EXPECT_EQ("1", first_line("k=[a]\r \t[a]\r1", "a"));
}

TEST(ProfileSection, an_open_bracket_hides_nothing_behind_its_line) {
    EXPECT_EQ("1", first_line("[x\n[a]\n1", "a"));
    EXPECT_EQ("none", first_line("[x [a\n1", "a"));
}

// Each bracket must not be looked at along the whole line, or the whole file, again.
TEST(ProfileSection, nonsense_of_brackets_and_blanks_is_gone_through_once) {
    std::string text;
    for (int i = 0; i < 300'000; ++i) {
        text += i % 2 == 0 ? "   [   [" : "[x]\n";
    }
    const std::string brackets(2'000'000, '[');
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ("none", first_line(text, "a"));
    EXPECT_EQ("none", first_line(brackets, "a"));
    EXPECT_EQ("none", first_line(brackets + "\r" + brackets, "a"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}
