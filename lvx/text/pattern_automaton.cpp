#include "lvx/text/pattern_automaton.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace lvx::text {
namespace {

constexpr std::size_t most_masked_runs = 8;

bool is_end(const PatternStates::State& state) {
    return std::all_of(state.next.begin(), state.next.end(),
                       [](std::uint32_t next) { return next == PatternStates::dead; });
}

// The bytes that leave a state as it is.
ByteSet staying_bytes(const PatternStates& states, std::size_t number) {
    const std::vector<std::uint32_t>& next = states.States()[number].next;
    ByteSet staying;
    if (std::find(next.begin(), next.end(), number) == next.end()) {
        return staying;
    }
    for (std::size_t byte = 0; byte < 256; ++byte) {
        staying[byte] = next[states.Classes().class_of[byte]] == number;
    }
    return staying;
}

std::uint8_t first_missing(const ByteSet& set) {
    std::size_t byte = 0;
    while (byte < 255 && set[byte]) {
        ++byte;
    }
    return static_cast<std::uint8_t>(byte);
}

}  // namespace

// Decides in which order the states have their rows, and writes them.
class PatternAutomaton::Layout {
public:
    Layout(const PatternStates& states, PatternAutomaton& automaton)
        : m_states(states), m_automaton(automaton) {
        m_automaton.m_class_of = states.Classes().class_of;
        m_automaton.m_columns = states.Classes().examples.size();
        ChooseRuns();
        Order();
    }

    template <class Cell>
    void Write(std::vector<Cell>& table) const {
        table.assign(m_order.size() * Width(), 0);
        for (const std::size_t number : m_order) {
            Cell* const row = table.data() + m_row_of[number];
            const PatternStates::State& state = m_states.States()[number];
            std::transform(state.next.begin(), state.next.end(), row,
                           [this](std::uint32_t next) { return static_cast<Cell>(m_row_of[next]); });
            row[m_automaton.m_columns + Pattern] = static_cast<Cell>(state.pattern + 1);
            row[m_automaton.m_columns + Run] = static_cast<Cell>(m_run_of[number]);
        }
    }

    // Whether every state's place, and every pattern's number, has room in 16 bits.
    bool IsNarrow() const {
        constexpr std::size_t most = std::numeric_limits<std::uint16_t>::max();
        const auto has_room = [](const PatternStates::State& state) {
            return state.pattern == PatternStates::no_pattern || state.pattern < most;
        };
        return m_order.size() * Width() <= most &&
               std::all_of(m_states.States().begin(), m_states.States().end(), has_room);
    }

private:
    enum Rank { Dead, Ends, Runs, Others };

    std::size_t Width() const { return m_automaton.m_columns + trailers; }

    void ChooseRuns() {
        m_run_of.assign(m_states.States().size(), no_run);
        std::vector<std::pair<std::size_t, std::size_t>> masked;
        for (std::size_t number = PatternStates::start; number < m_run_of.size(); ++number) {
            const ByteSet staying = staying_bytes(m_states, number);
            if (staying.count() >= 255) {
                m_run_of[number] = std::size_t{first_missing(staying)} << 8;
            } else if (staying.count() > 1) {
                masked.emplace_back(staying.count(), number);
            }
        }
        std::sort(masked.rbegin(), masked.rend());
        masked.resize(std::min(masked.size(), most_masked_runs));
        for (std::size_t i = 0; i < masked.size(); ++i) {
            AddMaskedRun(masked[i].second, static_cast<std::uint8_t>(1u << i));
        }
    }

    void AddMaskedRun(std::size_t number, std::uint8_t bit) {
        const ByteSet staying = staying_bytes(m_states, number);
        for (std::size_t byte = 0; byte < 256; ++byte) {
            m_automaton.m_stays[byte] =
                static_cast<std::uint8_t>(m_automaton.m_stays[byte] | (staying[byte] ? bit : 0));
        }
        m_run_of[number] = bit;
    }

    Rank RankOf(std::size_t number) const {
        if (number == PatternStates::dead) {
            return Dead;
        }
        if (m_run_of[number] != no_run) {
            return Runs;
        }
        return is_end(m_states.States()[number]) ? Ends : Others;
    }

    void Order() {
        m_order.resize(m_states.States().size());
        std::iota(m_order.begin(), m_order.end(), std::size_t{0});
        std::stable_sort(m_order.begin(), m_order.end(), [this](std::size_t left, std::size_t right) {
            return RankOf(left) < RankOf(right);
        });
        m_row_of.resize(m_order.size());
        for (std::size_t place = 0; place < m_order.size(); ++place) {
            m_row_of[m_order[place]] = place * Width();
            const Rank rank = RankOf(m_order[place]);
            if (rank <= Ends) {
                m_automaton.m_last_end = place * Width();
            }
            if (rank <= Runs) {
                m_automaton.m_last_run = place * Width();
            }
        }
        m_automaton.m_start = m_row_of[PatternStates::start];
    }

    // No run has a bit and a byte.
    static constexpr std::size_t no_run = 0xFFFF;

    const PatternStates& m_states;
    PatternAutomaton& m_automaton;
    // By the state's number: its trailer Run, or no_run, and its row.
    std::vector<std::size_t> m_run_of;
    std::vector<std::size_t> m_row_of;
    // The states' numbers in the order of their rows.
    std::vector<std::size_t> m_order;
};

PatternAutomaton::PatternAutomaton(const PatternStates& states) {
    const Layout layout(states, *this);
    if (layout.IsNarrow()) {
        layout.Write(m_narrow);
    } else {
        layout.Write(m_wide);
    }
}

// The bytes once more, remembering. A run that is a match is one up to its last byte.
template <class Cell>
PatternAutomaton::Match PatternAutomaton::FindEarlier(const Cell* table, std::string_view text) const {
    Match match;
    const char* place = text.data();
    const char* const end = place + text.size();
    std::size_t state = m_start;
    for (;;) {
        const std::size_t won = table[state + m_columns + Pattern];
        if (won != 0) {
            match = {static_cast<std::uint32_t>(won - 1), static_cast<std::size_t>(place - text.data())};
        }
        if (place == end) {
            return match;
        }
        state = table[state + m_class_of[AsByte(*place)]];
        ++place;
        if (IsRun(state)) {
            place = GoThrough(table[state + m_columns + Run], place, end);
        }
    }
}

template PatternAutomaton::Match PatternAutomaton::FindEarlier(const std::uint16_t*, std::string_view) const;
template PatternAutomaton::Match PatternAutomaton::FindEarlier(const std::uint32_t*, std::string_view) const;

}  // namespace lvx::text
