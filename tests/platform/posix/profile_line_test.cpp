#include "lvx/platform/posix/profile_line.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace {

using namespace lvx::platform;
using namespace std::string_view_literals;

std::vector<std::string> lines_of(std::string_view text) {
    std::vector<std::string> result;
    ProfileLines lines(text);
    while (lines.Next()) {
        result.emplace_back(lines.Line());
    }
    return result;
}

using Texts = std::vector<std::string>;

}  // namespace

TEST(ProfileLines, each_kind_of_end_ends_a_line) {
    EXPECT_EQ((Texts{"a", "b", "c"}), lines_of("a\nb\nc\n"));
    EXPECT_EQ((Texts{"a", "b", "c"}), lines_of("a\rb\rc\r"));
    EXPECT_EQ((Texts{"a", "b", "c"}), lines_of("a\r\nb\r\nc\r\n"));
    EXPECT_EQ((Texts{"a", "b", "c"}), lines_of("a\r\nb\nc\r"));
}

TEST(ProfileLines, the_last_line_needs_no_end) {
    EXPECT_EQ((Texts{"a", "b"}), lines_of("a\nb"));
    EXPECT_EQ(Texts{"a"}, lines_of("a"));
    EXPECT_EQ(Texts{}, lines_of(""));
}

TEST(ProfileLines, only_the_pair_in_that_order_is_one_end) {
    EXPECT_EQ((Texts{"a", "", "b"}), lines_of("a\n\rb"));
    EXPECT_EQ((Texts{"a", "", "b"}), lines_of("a\r\r\nb"));
    EXPECT_EQ((Texts{"", "", ""}), lines_of("\n\r\n\r"));
}

TEST(ProfileLines, the_next_line_begins_behind_the_end) {
    ProfileLines lines("ab\r\nc\rd");
    EXPECT_EQ(0U, lines.Behind());
    EXPECT_TRUE(lines.Next());
    EXPECT_EQ(4U, lines.Behind());
    EXPECT_TRUE(lines.Next());
    EXPECT_EQ(6U, lines.Behind());
    EXPECT_TRUE(lines.Next());
    EXPECT_EQ(7U, lines.Behind());
    EXPECT_FALSE(lines.Next());
    EXPECT_EQ(7U, lines.Behind());
}

TEST(ProfileLines, they_go_on_from_where_they_were_moved) {
    ProfileLines lines("a\nb\r\nc\n");
    lines.MoveTo(5);
    EXPECT_TRUE(lines.Next());
    EXPECT_EQ("c", lines.Line());
    EXPECT_FALSE(lines.Next());
    lines.MoveTo(7);
    EXPECT_FALSE(lines.Next());
}

// Looking for the kind that a text lacks, anew for each line, would take hours.
TEST(ProfileLines, many_lines_of_one_kind_of_end_take_no_more_time_than_others) {
    for (const char end : {'\n', '\r'}) {
        const std::string text(4'000'000, end);
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(text.size(), lines_of(text).size());
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    }
}

TEST(ProfileLine, blanks_are_nothing) {
    EXPECT_EQ(ProfileLine::Blank, parse_profile_line("").kind);
    EXPECT_EQ(ProfileLine::Blank, parse_profile_line(" \t\v\f\x1A ").kind);
    EXPECT_EQ(ProfileLine::Entry, parse_profile_line("\x08").kind);
    EXPECT_EQ(ProfileLine::Entry, parse_profile_line("\x0E").kind);
}

TEST(ProfileLine, a_header_ends_at_its_last_bracket) {
    const ProfileLine line = parse_profile_line(" [ a]b ] c = d");
    EXPECT_EQ(ProfileLine::Header, line.kind);
    EXPECT_EQ("a]b", line.name);
    EXPECT_FALSE(line.has_value);
    EXPECT_EQ("", parse_profile_line("[]").name);
}

TEST(ProfileLine, an_open_bracket_alone_is_a_key) {
    const ProfileLine line = parse_profile_line("[a = b");
    EXPECT_EQ(ProfileLine::Entry, line.kind);
    EXPECT_EQ("[a", line.name);
    EXPECT_EQ("b", line.value);
}

TEST(ProfileLine, an_entry_has_its_value_from_the_first_sign_on) {
    const ProfileLine line = parse_profile_line("\tkey = \"a = b\" \x1A");
    EXPECT_EQ(ProfileLine::Entry, line.kind);
    EXPECT_EQ("key", line.name);
    EXPECT_TRUE(line.has_value);
    EXPECT_EQ("\"a = b\"", line.value);
}

TEST(ProfileLine, an_entry_may_lack_its_value_its_sign_or_its_key) {
    EXPECT_TRUE(parse_profile_line("k=").has_value);
    EXPECT_EQ("", parse_profile_line("k=").value);
    EXPECT_FALSE(parse_profile_line("k").has_value);
    EXPECT_EQ("k", parse_profile_line("k").name);
    EXPECT_EQ("", parse_profile_line("=v").name);
    EXPECT_EQ("v", parse_profile_line("=v").value);
}

TEST(ProfileLine, a_nul_ends_names_and_values) {
    EXPECT_EQ("a", parse_profile_line("[a \0b]"sv).name);
    EXPECT_EQ("k", parse_profile_line("k \0x = v"sv).name);
    EXPECT_EQ("v ", parse_profile_line("k = v \0x"sv).value);
    EXPECT_EQ(ProfileLine::Entry, parse_profile_line("\0[s]"sv).kind);
}

TEST(ProfileName, names_fold_ascii_letters_alone) {
    EXPECT_TRUE(same_profile_name("aZ09_", "Az09_"));
    EXPECT_FALSE(same_profile_name("[", "{"));
    EXPECT_FALSE(same_profile_name("@", "`"));
    EXPECT_FALSE(same_profile_name("\xC9", "\xE9"));
    EXPECT_FALSE(same_profile_name("a", "ab"));
    EXPECT_TRUE(same_profile_name("", ""));
}

TEST(ProfileName, what_counts_of_a_name) {
    EXPECT_EQ("a b", profile_name(" a b\t"));
    EXPECT_EQ("a", profile_name("a \0b"sv));
    EXPECT_EQ("", profile_name("\0b"sv));
}

TEST(ProfileBlanks, without_them_a_view_still_tells_the_place) {
    const std::string_view text = "k=   ";
    EXPECT_EQ(text.data() + 5, without_blanks(text.substr(2)).data());
    EXPECT_EQ("a ", without_leading_blanks(" \ta "));
}
