#include "lvx/text/pattern_states.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using lvx::text::Budget;
using lvx::text::ByteClasses;
using lvx::text::parse_pattern;
using lvx::text::PatternLimits;
using lvx::text::PatternMachine;
using lvx::text::PatternRule;
using lvx::text::PatternStates;
using lvx::text::set_of_ranges;

struct Pattern {
    const char* pattern;
    int priority = 0;
};

std::optional<PatternStates> make(std::initializer_list<Pattern> patterns, const PatternLimits& limits = {},
                                  std::size_t work = 4'000'000) {
    Budget plenty(4'000'000);
    PatternMachine machine(20000, plenty);
    std::vector<PatternRule> rules;
    for (const Pattern& pattern : patterns) {
        EXPECT_TRUE(machine.Add(*parse_pattern(pattern.pattern)));
        rules.push_back({pattern.priority, static_cast<std::uint32_t>(rules.size())});
    }
    Budget budget(work);
    return PatternStates::Make(machine, rules, limits, budget);
}

// Behind each byte of the text the pattern that has matched: a digit, "-" for none, "." in the dead state.
std::string walk(const PatternStates& states, const std::string& text) {
    std::uint32_t state = PatternStates::start;
    std::string told;
    for (std::size_t i = 0;; ++i) {
        const std::uint32_t pattern = states.States()[state].pattern;
        told += state == PatternStates::dead           ? "."
                : pattern == PatternStates::no_pattern ? "-"
                                                       : std::to_string(pattern);
        if (i == text.size() || state == PatternStates::dead) {
            return told;
        }
        state = states.States()[state].next[states.Classes().class_of[static_cast<unsigned char>(text[i])]];
    }
}

}  // namespace

TEST(ByteClasses, tell_apart_what_a_set_tells_apart) {
    const ByteClasses none({});
    EXPECT_EQ(1u, none.examples.size());
    const ByteClasses classes({set_of_ranges("az"), set_of_ranges("af09")});
    EXPECT_EQ(4u, classes.examples.size());
    EXPECT_EQ(classes.class_of['a'], classes.class_of['f']);
    EXPECT_NE(classes.class_of['a'], classes.class_of['g']);
    EXPECT_NE(classes.class_of['0'], classes.class_of['a']);
    EXPECT_EQ(classes.class_of['-'], classes.class_of[0xFF]);
    for (std::size_t i = 0; i < classes.examples.size(); ++i) {
        EXPECT_EQ(i, classes.class_of[classes.examples[i]]);
    }
}

TEST(ByteClasses, may_be_as_many_as_there_are_bytes) {
    std::vector<lvx::text::ByteSet> sets;
    for (std::size_t byte = 0; byte < 256; ++byte) {
        sets.push_back(lvx::text::ByteSet().set(byte));
    }
    const ByteClasses classes(sets);
    EXPECT_EQ(256u, classes.examples.size());
    EXPECT_EQ(255, classes.class_of[255]);
}

TEST(PatternStates, accept_what_the_patterns_match) {
    const auto states = make({{"ab"}, {"abcd"}, {"[0-9]+"}});
    EXPECT_EQ("--0-1.", walk(*states, "abcdx"));
    EXPECT_EQ("-222", walk(*states, "123"));
    EXPECT_EQ("-.", walk(*states, "x"));
}

TEST(PatternStates, give_equal_matches_to_the_pattern_of_least_order) {
    EXPECT_EQ("-10", walk(*make({{"if"}, {"[a-z]+"}}), "if"));
    EXPECT_EQ("-00", walk(*make({{"[a-z]+"}, {"if"}}), "if"));
    Budget budget(10'000);
    PatternMachine machine(100, budget);
    machine.Add(*parse_pattern("a"));
    machine.Add(*parse_pattern("a"));
    EXPECT_EQ("-1", walk(*PatternStates::Make(machine, {{0, 9}, {0, 4}}, {}, budget), "a"));
}

TEST(PatternStates, end_patterns_of_lower_priority_once_a_higher_one_has_matched) {
    EXPECT_EQ("-0.", walk(*make({{"a", 1}, {"ab", 0}}), "ab"));
    EXPECT_EQ("-01", walk(*make({{"a", 0}, {"ab", 1}}), "ab"));
    EXPECT_EQ("--0.", walk(*make({{"(ab)+", 1}, {"aba", 0}}), "abb"));
    EXPECT_EQ("--0-0", walk(*make({{"(ab)+", 1}, {"aba", 0}}), "abab"));
    EXPECT_EQ("0.", walk(*make({{"", 1}, {"a", 0}}), "a"));
}

TEST(PatternStates, count_an_empty_match_from_priority_0_on) {
    EXPECT_EQ("00", walk(*make({{"a*", 0}}), "a"));
    EXPECT_EQ("-0", walk(*make({{"a*", -1}}), "a"));
    EXPECT_EQ("1.", walk(*make({{"a*", -1}, {"b*", 0}}), "a"));
    EXPECT_EQ("-.", walk(*make({{"", -1}}), "a"));
}

TEST(PatternStates, of_no_patterns_are_the_dead_one_and_the_first) {
    const auto states = make({});
    EXPECT_EQ(2u, states->States().size());
    EXPECT_EQ("-.", walk(*states, "a"));
}

TEST(PatternStates, are_none_beyond_a_limit) {
    const char* const many = "[ab]*a[ab]{9}";  // remembers which of the last ten were an a
    EXPECT_EQ(1u + 1024u, make({{many}})->States().size());
    EXPECT_TRUE(make({{many}}, {1025, 100'000}).has_value());
    EXPECT_FALSE(make({{many}}, {1024, 100'000}).has_value());
    EXPECT_FALSE(make({{many}}, {2000, 1000}).has_value());
    EXPECT_FALSE(make({{many}}, {2000, 100'000}, 1000).has_value());
    EXPECT_FALSE(make({{"[ab]*a[ab]{900}"}}).has_value());
}

TEST(PatternStates, are_paid_by_the_steps_that_are_looked_at) {
    Budget budget(10'000);
    PatternMachine machine(100, budget);
    machine.Add(*parse_pattern("abc"));
    const std::size_t before = budget.Left();
    EXPECT_TRUE(PatternStates::Make(machine, {{0, 0}}, {}, budget).has_value());
    EXPECT_LT(budget.Left(), before);
    EXPECT_GT(budget.Left(), before - 200);
    Budget nothing(0);
    EXPECT_FALSE(PatternStates::Make(machine, {{0, 0}}, {}, nothing).has_value());
}
