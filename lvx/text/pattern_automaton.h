// lvx/text/pattern_automaton.h
//
// Several patterns as one table with a row for each state and a column for each class of bytes: it finds the
// winning match by looking once at each byte of it. Constant operations may run on several threads at once.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "lvx/text/pattern_states.h"

namespace lvx::text {

class PatternAutomaton {
public:
    struct Match {
        /// The number of the pattern that has won, or PatternStates::no_pattern.
        std::uint32_t pattern = PatternStates::no_pattern;
        std::size_t length = 0;
    };

    explicit PatternAutomaton(const PatternStates& states);

    /// The match at the start of `text` with the greatest priority, among those the longest, among those the
    /// one of least order. A pattern of priority -1 does not win with an empty match.
    Match Find(std::string_view text) const;

private:
    // What stands behind a row's columns: the winning pattern plus 1 or 0, and the place of the state's run
    // in m_runs.
    enum Trailer : std::size_t { Pattern, RunPlace, trailers };

    // A state that many bytes leave as it is; it is gone through without the table.
    struct Run {
        // The bit of m_stays that those bytes have; 0 if all but one of them stay.
        std::uint8_t bit = 0;
        std::uint8_t exit = 0;
    };

    class Layout;

    template <class Cell>
    Match FindIn(const Cell* table, std::string_view text) const;
    template <class Cell>
    Match FindEarlier(const Cell* table, const std::uint8_t* begin, const std::uint8_t* end) const;
    const std::uint8_t* GoThrough(const Run& run, const std::uint8_t* begin, const std::uint8_t* end) const;

    std::array<std::uint8_t, 256> m_class_of{};
    std::array<std::uint8_t, 256> m_stays{};
    std::size_t m_columns = 0;
    // A state is the place where its row begins. The dead one is 0; behind it come those that nothing leads
    // out of, then the runs, then all others.
    std::size_t m_start = 0;
    std::size_t m_last_end = 0;
    std::size_t m_last_run = 0;
    std::vector<Run> m_runs;
    // The rows; in narrow cells where they are enough.
    std::vector<std::uint16_t> m_narrow;
    std::vector<std::uint32_t> m_wide;
};

}  // namespace lvx::text
