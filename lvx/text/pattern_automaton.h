// lvx/text/pattern_automaton.h
//
// Several patterns as one table with a row for each state and a column for each class of bytes: it finds the
// winning match by looking once at each byte that may be part of one, and once more where a longer match was
// begun in vain. Constant operations may run on several threads at once.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
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
    Match Find(std::string_view text) const {
        return m_wide.empty() ? FindIn(m_narrow.data(), text) : FindIn(m_wide.data(), text);
    }

private:
    class Layout;

    // What stands behind a row's columns.
    enum Trailer : std::size_t {
        // The winning pattern plus 1, or 0.
        Pattern,
        // Of a run: in the low byte the bit of m_stays that the bytes have which leave the state as it is. If
        // all bytes but one leave it, that bit is 0, and the one is in the high byte.
        Run,
        trailers
    };

    static std::uint8_t AsByte(char byte) { return static_cast<std::uint8_t>(byte); }

    // In the header because a token is a few bytes, and a call costs as much as some of them.
    template <class Cell>
    Match FindIn(const Cell* table, std::string_view text) const {
        const char* place = text.data();
        const char* const end = place + text.size();
        std::size_t state = m_start;
        while (place != end) {
            const std::size_t next = table[state + m_class_of[AsByte(*place)]];
            if (next > m_last_run) {
                state = next;
                ++place;
                continue;
            }
            if (next == 0) {
                break;
            }
            state = next;
            ++place;
            if (next <= m_last_end) {
                break;
            }
            place = GoThrough(table[state + m_columns + Run], place, end);
        }
        const std::size_t won = table[state + m_columns + Pattern];
        const auto length = static_cast<std::size_t>(place - text.data());
        return won != 0 ? Match{static_cast<std::uint32_t>(won - 1), length}
                        : FindEarlier(table, text.substr(0, length));
    }

    // The byte's first place, or the end. A call costs more than a look at the first few.
    static const char* FindByte(std::uint8_t byte, const char* place, const char* end) {
        for (const char* const near = place + std::min<std::ptrdiff_t>(4, end - place); place != near;
             ++place) {
            if (AsByte(*place) == byte) {
                return place;
            }
        }
        const void* const found = std::memchr(place, byte, static_cast<std::size_t>(end - place));
        return found != nullptr ? static_cast<const char*>(found) : end;
    }

    const char* GoThrough(std::size_t run, const char* place, const char* end) const {
        const std::size_t bit = run & 0xFF;
        if (bit == 0) {
            return FindByte(static_cast<std::uint8_t>(run >> 8), place, end);
        }
        while (place != end && (m_stays[AsByte(*place)] & bit) != 0) {
            ++place;
        }
        return place;
    }

    bool IsRun(std::size_t state) const { return m_last_end < state && state <= m_last_run; }

    // The last match of a text whose end is none and that does not lead to the dead state.
    template <class Cell>
    Match FindEarlier(const Cell* table, std::string_view text) const;

    std::array<std::uint8_t, 256> m_class_of{};
    // By byte: a bit for each of the runs that it leaves as it is.
    std::array<std::uint8_t, 256> m_stays{};
    std::size_t m_columns = 0;
    // A state is the place where its row begins. The dead one is 0; behind it come those that nothing leads
    // out of, then the runs, which many bytes leave as they are and which are gone through without the table,
    // then all others.
    std::size_t m_start = 0;
    std::size_t m_last_end = 0;
    std::size_t m_last_run = 0;
    // The rows; in narrow cells where they are enough.
    std::vector<std::uint16_t> m_narrow;
    std::vector<std::uint32_t> m_wide;
};

}  // namespace lvx::text
