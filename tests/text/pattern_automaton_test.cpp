#include "lvx/text/pattern_automaton.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using lvx::text::Budget;
using lvx::text::parse_pattern;
using lvx::text::PatternAutomaton;
using lvx::text::PatternLimits;
using lvx::text::PatternMachine;
using lvx::text::PatternRule;
using lvx::text::PatternStates;

PatternAutomaton make(const std::vector<std::string>& patterns) {
    Budget budget(100'000'000);
    PatternMachine machine(100'000, budget);
    std::vector<PatternRule> rules;
    for (const std::string& pattern : patterns) {
        EXPECT_TRUE(machine.Add(*parse_pattern(pattern)));
        rules.push_back({0, static_cast<std::uint32_t>(rules.size())});
    }
    const PatternLimits limits{20'000, 4'000'000};
    return PatternAutomaton(*PatternStates::Make(machine, rules, limits, budget));
}

// "pattern:length", or "none".
std::string find(const PatternAutomaton& automaton, std::string_view text) {
    const PatternAutomaton::Match match = automaton.Find(text);
    if (match.pattern == PatternStates::no_pattern) {
        return match.length == 0 ? "none" : "none with a length";
    }
    return std::to_string(match.pattern) + ":" + std::to_string(match.length);
}

}  // namespace

TEST(PatternAutomaton, finds_the_longest_match) {
    const PatternAutomaton automaton = make({"[a-z]+", "if", "[0-9]+", "\\.", "\\.\\.\\."});
    EXPECT_EQ("0:3", find(automaton, "abc 1"));
    EXPECT_EQ("0:2", find(automaton, "if"));
    EXPECT_EQ("2:2", find(automaton, "12"));
    EXPECT_EQ("4:3", find(automaton, "...."));
    EXPECT_EQ("none", find(automaton, " "));
    EXPECT_EQ("none", find(automaton, ""));
    EXPECT_EQ("none", find(automaton, std::string_view()));
}

TEST(PatternAutomaton, goes_back_to_the_last_match) {
    const PatternAutomaton automaton = make({"\\.", "\\.\\.\\.", "x*y?", "a[^b]*b|a"});
    EXPECT_EQ("0:1", find(automaton, ".."));
    EXPECT_EQ("0:1", find(automaton, "..x"));
    EXPECT_EQ("2:0", find(automaton, "-"));
    EXPECT_EQ("3:1", find(automaton, "a" + std::string(1000, 'c')));
    EXPECT_EQ("3:1002", find(automaton, "a" + std::string(1000, 'c') + "bb"));
}

TEST(PatternAutomaton, goes_back_to_a_match_before_in_or_behind_a_run) {
    // The run is a match up to its last byte, in the first; in the others no match at all.
    const PatternAutomaton automaton =
        make({"a[^b]*", "a[^b]*bbb", "c[x-z]*d?", "c[x-z]*dd[0-9]*e", "f", "f[^g]*gg"});
    EXPECT_EQ("0:4", find(automaton, "axyz"));
    EXPECT_EQ("0:4", find(automaton, "axyzb"));
    EXPECT_EQ("0:4", find(automaton, "axyzbb-"));
    EXPECT_EQ("1:7", find(automaton, "axyzbbb"));
    EXPECT_EQ("2:1", find(automaton, "c"));
    EXPECT_EQ("2:4", find(automaton, "cxyd"));
    EXPECT_EQ("2:4", find(automaton, "cxydd"));
    EXPECT_EQ("2:4", find(automaton, "cxydd123"));
    EXPECT_EQ("3:9", find(automaton, "cxydd123e"));
    EXPECT_EQ("4:1", find(automaton, "f"));
    EXPECT_EQ("4:1", find(automaton, "f12345678901"));
    EXPECT_EQ("4:1", find(automaton, "f12345678901g"));
    EXPECT_EQ("5:14", find(automaton, "f12345678901gg"));
}

// The byte that ends the run is at each of the first places, and further on, and nowhere.
TEST(PatternAutomaton, sees_the_end_of_a_run_wherever_it_is) {
    const PatternAutomaton automaton = make({"a[^b]*", "c", "c[^d]*d"});
    for (std::size_t length = 0; length < 40; ++length) {
        const std::string run(length, 'x');
        EXPECT_EQ("0:" + std::to_string(length + 1), find(automaton, "a" + run + "bbb"));
        EXPECT_EQ("0:" + std::to_string(length + 1), find(automaton, "a" + run));
        EXPECT_EQ("2:" + std::to_string(length + 2), find(automaton, "c" + run + "ddd"));
        EXPECT_EQ("1:1", find(automaton, "c" + run));
    }
}

TEST(PatternAutomaton, ends_where_nothing_leads_further) {
    const PatternAutomaton automaton = make({";", "\"[^\"]*\""});
    EXPECT_EQ("0:1", find(automaton, ";;"));
    EXPECT_EQ("1:2", find(automaton, "\"\"\"\""));
    EXPECT_EQ("1:9", find(automaton, std::string_view("\"a\0b\xFF;\n \"", 9)));
    EXPECT_EQ("none", find(automaton, "\"abc"));
}

TEST(PatternAutomaton, goes_through_runs_of_each_kind) {
    // All bytes but one stay, all stay, some stay.
    const PatternAutomaton automaton =
        make({"a[^\\n]*", "b[\\x00-\\xFF]*", "c[x-z]*d?", "e[^\\xFF]*", "f[^\\x00]*"});
    EXPECT_EQ("0:4", find(automaton, "abcd\nx"));
    EXPECT_EQ("0:4", find(automaton, "abcd"));
    EXPECT_EQ("1:5", find(automaton, "bcd\n\xFF"));
    EXPECT_EQ("2:4", find(automaton, "cxyd"));
    EXPECT_EQ("2:3", find(automaton, "cxya"));
    EXPECT_EQ("2:1", find(automaton, "ca"));
    EXPECT_EQ("2:1", find(automaton, "c"));
    EXPECT_EQ("3:3", find(automaton, "eab\xFF"));
    EXPECT_EQ("4:3", find(automaton, std::string_view("fab\0", 4)));
}

TEST(PatternAutomaton, may_begin_in_a_run) {
    const PatternAutomaton automaton = make({"[a-z]*"});
    EXPECT_EQ("0:0", find(automaton, ""));
    EXPECT_EQ("0:0", find(automaton, "1"));
    EXPECT_EQ("0:3", find(automaton, "abc1"));
    EXPECT_EQ("0:3", find(make({"[^\\n]*"}), "abc\n"));
}

TEST(PatternAutomaton, has_more_runs_than_bits_for_them) {
    std::vector<std::string> patterns;
    for (char first = 'a'; first <= 't'; ++first) {
        patterns.push_back(std::string(1, first) + "[" + first + "0-9]*");
    }
    const PatternAutomaton automaton = make(patterns);
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        const std::string letter(1, static_cast<char>('a' + i));
        EXPECT_EQ(std::to_string(i) + ":5", find(automaton, letter + "1" + letter + "23u"));
    }
}

TEST(PatternAutomaton, needs_wide_cells_for_many_states) {
    // Remembers twelve bytes: 8192 states.
    const PatternAutomaton automaton = make({"[ab]*a[ab]{12}[0-9]", "[a-z]+"});
    EXPECT_EQ("0:14", find(automaton, "abbbbbbbbbbbb1"));
    EXPECT_EQ("1:13", find(automaton, "bbbbbbbbbbbbb1"));
    EXPECT_EQ("0:20", find(automaton, "aaaaaaaabbbbbbababa7"));
    EXPECT_EQ("1:3", find(automaton, "abz-"));
    EXPECT_EQ("none", find(automaton, "1"));
}

TEST(PatternAutomaton, without_patterns_finds_nothing) {
    EXPECT_EQ("none", find(make({}), "abc"));
    EXPECT_EQ("none", find(make({"[^\\x00-\\xFF]"}), "abc"));
    EXPECT_EQ("none", find(make({"a[^\\x00-\\xFF]"}), "abc"));
}
