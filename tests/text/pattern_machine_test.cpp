#include "lvx/text/pattern_machine.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using lvx::text::Budget;
using lvx::text::parse_pattern;
using lvx::text::PatternMachine;

using Places = std::set<PatternMachine::Place>;

// A plain run of the machine, one byte at a time over all its steps.
class Walk {
public:
    explicit Walk(const PatternMachine& machine) : m_machine(machine) {
        for (const PatternMachine::Place start : machine.Starts()) {
            Enter(start, m_places);
        }
    }

    void Go(char byte) {
        Places next;
        for (const PatternMachine::Place place : m_places) {
            const PatternMachine::Step& step = m_machine.Steps()[place];
            if (step.kind == PatternMachine::Step::Take &&
                m_machine.Sets()[step.set][static_cast<unsigned char>(byte)]) {
                Enter(step.next, next);
            }
        }
        m_places = next;
    }

    // The numbers of the patterns that have matched.
    std::set<std::uint32_t> Ended() const {
        std::set<std::uint32_t> ended;
        for (const PatternMachine::Place place : m_places) {
            if (m_machine.Steps()[place].kind == PatternMachine::Step::End) {
                ended.insert(m_machine.Steps()[place].pattern);
            }
        }
        return ended;
    }

private:
    void Enter(PatternMachine::Place place, Places& places) const {
        if (!places.insert(place).second) {
            return;
        }
        const PatternMachine::Step& step = m_machine.Steps()[place];
        if (step.kind == PatternMachine::Step::Fork) {
            Enter(step.next, places);
            Enter(step.other, places);
        }
    }

    const PatternMachine& m_machine;
    Places m_places;
};

// The lengths of all matches at the start of the text, such as "0 2 3".
std::string lengths(const std::string& pattern, const std::string& text) {
    Budget budget(1'000'000);
    PatternMachine machine(10000, budget);
    EXPECT_TRUE(machine.Add(*parse_pattern(pattern)));
    Walk walk(machine);
    std::string found;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        found += walk.Ended().empty() ? "" : std::to_string(i) + " ";
        if (i < text.size()) {
            walk.Go(text[i]);
        }
    }
    return found;
}

bool fits(const std::string& pattern, std::size_t most_steps) {
    Budget budget(1'000'000);
    return PatternMachine(most_steps, budget).Add(*parse_pattern(pattern));
}

}  // namespace

TEST(PatternMachine, matches_sequences_and_alternatives) {
    EXPECT_EQ("3 ", lengths("abc", "abcd"));
    EXPECT_EQ("", lengths("abc", "abd"));
    EXPECT_EQ("1 2 4 ", lengths("a|ab|abcd|x", "abcd"));
    EXPECT_EQ("0 ", lengths("", "abc"));
    EXPECT_EQ("0 1 ", lengths("|a", "aa"));
}

TEST(PatternMachine, matches_repetitions) {
    EXPECT_EQ("0 1 2 3 ", lengths("a*", "aaab"));
    EXPECT_EQ("1 2 3 ", lengths("a+", "aaab"));
    EXPECT_EQ("0 1 ", lengths("a?", "aaab"));
    EXPECT_EQ("2 ", lengths("a{2}", "aaab"));
    EXPECT_EQ("2 3 ", lengths("a{2,}", "aaab"));
    EXPECT_EQ("1 2 ", lengths("a{1,2}", "aaab"));
    EXPECT_EQ("0 ", lengths("a{0}", "aaab"));
    EXPECT_EQ("2 4 6 ", lengths("(ab)+", "abababa"));
}

TEST(PatternMachine, ends_with_repetitions_of_nothing) {
    EXPECT_EQ("0 1 2 ", lengths("(a*)*", "aa"));
    EXPECT_EQ("0 ", lengths("()*", "aa"));
    EXPECT_EQ("0 1 2 ", lengths("(|a)+", "aa"));
    EXPECT_EQ("1 ", lengths("(){1000}a", "aa"));
}

TEST(PatternMachine, tells_which_of_several_patterns_have_matched) {
    Budget budget(10'000);
    PatternMachine machine(100, budget);
    EXPECT_TRUE(machine.Add(*parse_pattern("ab")));
    EXPECT_TRUE(machine.Add(*parse_pattern("[a-z]*")));
    EXPECT_TRUE(machine.Add(*parse_pattern("abc")));
    Walk walk(machine);
    EXPECT_EQ((std::set<std::uint32_t>{1}), walk.Ended());
    walk.Go('a');
    walk.Go('b');
    EXPECT_EQ((std::set<std::uint32_t>{0, 1}), walk.Ended());
    walk.Go('c');
    EXPECT_EQ((std::set<std::uint32_t>{1, 2}), walk.Ended());
}

TEST(PatternMachine, keeps_a_set_that_several_steps_take_once) {
    Budget budget(10'000);
    PatternMachine machine(100, budget);
    machine.Add(*parse_pattern("[ab]a[ab]|\\x61[ba]"));
    EXPECT_EQ(2u, machine.Sets().size());
}

TEST(PatternMachine, refuses_what_takes_too_many_steps) {
    EXPECT_TRUE(fits("a{50}", 60));
    EXPECT_FALSE(fits("a{50}", 50));
    EXPECT_FALSE(fits("((a{1000}){1000}){1000}", 20000));
    EXPECT_FALSE(fits("(((){1000}){1000}){1000}", 20000));
    EXPECT_FALSE(fits("((((a?){0,1000}){0,1000}){0,1000}){0,1000}", 20000));
    EXPECT_FALSE(fits("a", 0));
}

TEST(PatternMachine, pays_for_parts_and_steps_and_sets) {
    // A sequence, two repetitions and two sets; three bytes, a fork and the end.
    Budget budget(10'000);
    PatternMachine machine(100, budget);
    EXPECT_TRUE(machine.Add(*parse_pattern("[ab]{2}c*")));
    EXPECT_EQ(10'000u - 6 - 5 - 2 * PatternMachine::price_of_set, budget.Left());
    EXPECT_TRUE(machine.Add(*parse_pattern("[ab]")));
    EXPECT_EQ(10'000u - 7 - 7 - 2 * PatternMachine::price_of_set, budget.Left());
}

TEST(PatternMachine, refuses_what_its_budget_cannot_pay) {
    Budget budget(3 * PatternMachine::price_of_set);
    PatternMachine machine(100, budget);
    EXPECT_TRUE(machine.Add(*parse_pattern("abaa")));
    EXPECT_FALSE(machine.Add(*parse_pattern("c")));
    EXPECT_TRUE(budget.IsSpent());
    Budget other(1000);
    PatternMachine empty(100, other);
    EXPECT_FALSE(empty.Add(*parse_pattern("((){1000}){1000}")));
}

TEST(PatternMachine, knows_a_thousand_sets_apart) {
    Budget budget(1'000'000);
    PatternMachine machine(10'000, budget);
    std::string pattern;
    for (int i = 0; i < 1000; ++i) {
        const char letters[] = {static_cast<char>(0x80 + i % 100), static_cast<char>('0' + i / 100)};
        pattern += "[" + std::string(letters, 2) + "]";
    }
    EXPECT_TRUE(machine.Add(*parse_pattern(pattern + pattern)));
    ASSERT_EQ(1000u, machine.Sets().size());
    for (std::size_t i = 0; i < 1000; ++i) {
        EXPECT_EQ(2u, machine.Sets()[i].count());
    }
}
