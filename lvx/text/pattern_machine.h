// lvx/text/pattern_machine.h
//
// The patterns of several tokens as one machine of small steps, which may be in many of them at once: what
// the table of a PatternAutomaton is computed from.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "lvx/text/budget.h"
#include "lvx/text/pattern_syntax.h"

namespace lvx::text {

class PatternMachine {
public:
    using Place = std::uint32_t;

    struct Step {
        enum Kind : std::uint8_t {
            /// Takes a byte of `set` and goes to `next`.
            Take,
            /// Goes to `next` and to `other` without a byte.
            Fork,
            /// The pattern has matched.
            End
        };
        Kind kind = End;
        /// Of Take: the place of the set in Sets().
        std::uint32_t set = 0;
        Place next = 0;
        Place other = 0;
        /// Of all: the pattern that the step belongs to, by its number.
        std::uint32_t pattern = 0;
    };

    /// A machine that refuses what would need more than `most_steps`, or more than `budget`, which has to
    /// live as long: 1 for each part of a pattern that is gone through and each step, `price_of_set` for each
    /// set.
    PatternMachine(std::size_t most_steps, Budget& budget) : m_most_steps(most_steps), m_budget(budget) {}

    /// What a set costs, the classes of bytes that are made of it included.
    static constexpr std::size_t price_of_set = 512;

    /// Adds a pattern, which gets the next number, from 0 on. False if it needs too much; the machine is then
    /// of no further use.
    bool Add(const PatternTree& tree);

    const std::vector<Step>& Steps() const { return m_steps; }
    /// Where the patterns begin, by their numbers.
    const std::vector<Place>& Starts() const { return m_starts; }
    const std::vector<ByteSet>& Sets() const { return m_sets; }

private:
    Place AddStep(const Step& step);
    std::uint32_t AddSet(const ByteSet& set);
    bool IsFull() const { return m_steps.size() > m_most_steps || m_budget.IsSpent(); }
    Place AddNode(const PatternTree& tree, std::size_t node, Place next);
    Place AddRepeat(const PatternTree& tree, const PatternNode& node, Place next);

    std::vector<Step> m_steps;
    std::vector<Place> m_starts;
    std::vector<ByteSet> m_sets;
    // Their places by what they are.
    std::unordered_map<ByteSet, std::uint32_t> m_set_places;
    std::size_t m_most_steps;
    Budget& m_budget;
};

}  // namespace lvx::text
