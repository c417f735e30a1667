// lvx/text/lexer_plan.h
//
// How a lexer finds the winning pattern without running all of them: those whose syntax is simple are
// compiled together, into one table or, where that would grow too large, into several; the others are run one
// at a time. The answer is that of running each in the order of addition. Constant operations may run on
// several threads at once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "lvx/text/budget.h"
#include "lvx/text/lexer.h"
#include "lvx/text/pattern_automaton.h"

namespace lvx::text {

class LexerPlan {
public:
    /// Does not own the pairs, which have to live as long.
    explicit LexerPlan(const std::vector<Lexer::LexPair*>& pairs);

    struct Win {
        long token = -1;
        unsigned int length = 0;
    };

    /// What Lexer::getToken tells.
    Win Find(std::string_view text, unsigned int start) const;

    /// How many tables there are, and how many pairs are run one at a time.
    std::size_t Tables() const { return m_groups.size(); }
    std::size_t Singles() const { return m_singles.size(); }

private:
    // A pair, of which the longest match counts.
    struct Member {
        long token = -1;
        int priority = 0;
        std::uint32_t order = 0;
        const TRegexp* expression = nullptr;
    };

    struct Parsed {
        Member member;
        PatternTree tree;
    };

    // Patterns that have one table.
    struct Group {
        PatternAutomaton automaton;
        std::vector<Member> members;
    };

    // The best match so far.
    class Best;

    void MakeGroups(std::span<const Parsed> patterns, Budget& budget);
    bool MakeGroup(std::span<const Parsed> patterns, Budget& budget);
    Win FindBest(std::string_view text, unsigned int start) const;

    std::vector<Group> m_groups;
    std::vector<Member> m_singles;
    bool m_is_one_table = false;
};

}  // namespace lvx::text
