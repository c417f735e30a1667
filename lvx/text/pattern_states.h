// lvx/text/pattern_states.h
//
// The states that a machine of several patterns can be in, each with the token that has won there and the
// state that each byte leads to.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "lvx/text/budget.h"
#include "lvx/text/pattern_machine.h"

namespace lvx::text {

/// How the matches of a pattern stand against those of others.
struct PatternRule {
    /// At least -1.
    int priority = 0;
    /// Between patterns of equal priority and equal length the least wins.
    std::uint32_t order = 0;
};

/// How large a table may become.
struct PatternLimits {
    std::size_t states = 4096;
    std::size_t cells = 1024 * 1024;
};

/// Classes of bytes that no set tells apart.
struct ByteClasses {
    explicit ByteClasses(const std::vector<ByteSet>& sets);

    std::array<std::uint8_t, 256> class_of{};
    /// The first byte of each class.
    std::vector<std::uint8_t> examples;

private:
    void Divide(const ByteSet& set);
};

class PatternStates {
public:
    static constexpr std::uint32_t no_pattern = 0xFFFFFFFF;
    /// The state from which nothing can match any more, and the first one.
    static constexpr std::uint32_t dead = 0;
    static constexpr std::uint32_t start = 1;

    struct State {
        /// The pattern that wins if the text ends here, by its number, or `no_pattern`. It beats whatever an
        /// earlier state has accepted.
        std::uint32_t pattern = no_pattern;
        /// By the class of the next byte.
        std::vector<std::uint32_t> next;
    };

    /// The states of the patterns of `machine`, of which `rules` has one each, or nothing if they are beyond
    /// `limits` or `budget`, which pays for each step of the machine that is looked at, over all states and
    /// classes.
    static std::optional<PatternStates> Make(const PatternMachine& machine,
                                             const std::vector<PatternRule>& rules,
                                             const PatternLimits& limits, Budget& budget);

    const ByteClasses& Classes() const { return m_classes; }
    const std::vector<State>& States() const { return m_states; }

private:
    friend class PatternStatesMaker;
    explicit PatternStates(const std::vector<ByteSet>& sets) : m_classes(sets) {}

    ByteClasses m_classes;
    std::vector<State> m_states;
};

}  // namespace lvx::text
