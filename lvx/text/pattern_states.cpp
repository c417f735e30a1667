#include "lvx/text/pattern_states.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace lvx::text {

ByteClasses::ByteClasses(const std::vector<ByteSet>& sets) {
    for (const ByteSet& set : sets) {
        Divide(set);
    }
    for (std::size_t byte = 0; byte < 256; ++byte) {
        // Classes are numbered as they come up.
        if (class_of[byte] == examples.size()) {
            examples.push_back(static_cast<std::uint8_t>(byte));
        }
    }
}

// Each class becomes those of its bytes that are in the set, and the others.
void ByteClasses::Divide(const ByteSet& set) {
    constexpr std::size_t unknown = 256;
    std::array<std::size_t, 512> numbers;
    numbers.fill(unknown);
    std::size_t count = 0;
    for (std::size_t byte = 0; byte < 256; ++byte) {
        std::size_t& number = numbers[class_of[byte] * std::size_t{2} + (set[byte] ? 1 : 0)];
        if (number == unknown) {
            number = count++;
        }
        class_of[byte] = static_cast<std::uint8_t>(number);
    }
}

// Goes through the states as they come up. A state is the set of steps that the machine may be in.
class PatternStatesMaker {
public:
    PatternStatesMaker(const PatternMachine& machine, const std::vector<PatternRule>& rules,
                       const PatternLimits& limits, Budget& budget)
        : m_steps(machine.Steps()),
          m_sets(machine.Sets()),
          m_rules(rules),
          m_limits(limits),
          m_budget(budget),
          m_made(machine.Sets()),
          m_seen(machine.Steps().size(), 0) {}

    std::optional<PatternStates> Make(const std::vector<PatternMachine::Place>& starts) {
        m_made.m_states.resize(PatternStates::start);
        m_keys.push_back(nullptr);
        m_targets = starts;
        FindState(true);
        for (std::size_t state = PatternStates::start; state < m_keys.size(); ++state) {
            if (IsBeyondLimits()) {
                return std::nullopt;
            }
            Expand(state);
        }
        if (IsBeyondLimits()) {
            return std::nullopt;
        }
        return std::move(m_made);
    }

private:
    // The pattern that wins, and in ascending order the steps that take a byte.
    struct Key {
        std::uint32_t pattern = PatternStates::no_pattern;
        std::vector<PatternMachine::Place> steps;

        friend bool operator<(const Key& left, const Key& right) {
            return std::tie(left.pattern, left.steps) < std::tie(right.pattern, right.steps);
        }
    };

    std::size_t Classes() const { return m_made.m_classes.examples.size(); }

    bool IsBeyondLimits() const {
        return m_budget.IsSpent() || m_keys.size() > m_limits.states ||
               m_keys.size() * Classes() > m_limits.cells;
    }

    void Expand(std::size_t state) {
        std::vector<std::uint32_t> next;
        next.reserve(Classes());
        for (const std::uint8_t example : m_made.m_classes.examples) {
            next.push_back(m_budget.IsSpent() ? PatternStates::dead : Follow(*m_keys[state], example));
        }
        m_made.m_states[state].next = std::move(next);
    }

    std::uint32_t Follow(const Key& key, std::uint8_t byte) {
        m_targets.clear();
        for (const PatternMachine::Place place : key.steps) {
            if (m_sets[m_steps[place].set][byte]) {
                m_targets.push_back(m_steps[place].next);
            }
        }
        m_budget.Spend(key.steps.size());
        return m_targets.empty() ? PatternStates::dead : FindState(false);
    }

    // The state of all that `m_targets` lead to without a byte.
    std::uint32_t FindState(bool is_start) {
        Key key;
        Close(key, is_start);
        if (key.pattern != PatternStates::no_pattern) {
            DropBeaten(key);
        }
        std::sort(key.steps.begin(), key.steps.end());
        const auto [place, is_new] =
            m_numbers.try_emplace(std::move(key), static_cast<std::uint32_t>(m_keys.size()));
        if (is_new) {
            m_keys.push_back(&place->first);
            m_made.m_states.push_back({place->first.pattern, {}});
        }
        return place->second;
    }

    void Close(Key& key, bool is_start) {
        ++m_round;
        while (!m_targets.empty()) {
            const PatternMachine::Place place = m_targets.back();
            m_targets.pop_back();
            if (std::exchange(m_seen[place], m_round) == m_round) {
                continue;
            }
            m_budget.Spend(1);
            Enter(place, key, is_start);
        }
    }

    void Enter(PatternMachine::Place place, Key& key, bool is_start) {
        const PatternMachine::Step& step = m_steps[place];
        switch (step.kind) {
            case PatternMachine::Step::Take:
                key.steps.push_back(place);
                break;
            case PatternMachine::Step::Fork:
                m_targets.push_back(step.next);
                m_targets.push_back(step.other);
                break;
            case PatternMachine::Step::End:
                // Priority -1 does not win with an empty match.
                if (!(is_start && m_rules[step.pattern].priority < 0) && Beats(step.pattern, key.pattern)) {
                    key.pattern = step.pattern;
                }
                break;
        }
    }

    bool Beats(std::uint32_t pattern, std::uint32_t other) const {
        if (other == PatternStates::no_pattern) {
            return true;
        }
        const PatternRule& ours = m_rules[pattern];
        const PatternRule& theirs = m_rules[other];
        return ours.priority != theirs.priority ? ours.priority > theirs.priority : ours.order < theirs.order;
    }

    // Once a pattern has matched, those of lower priority cannot win any more. With them gone, each later
    // match beats the earlier ones.
    void DropBeaten(Key& key) const {
        const int priority = m_rules[key.pattern].priority;
        std::erase_if(key.steps, [this, priority](PatternMachine::Place place) {
            return m_rules[m_steps[place].pattern].priority < priority;
        });
    }

    const std::vector<PatternMachine::Step>& m_steps;
    const std::vector<ByteSet>& m_sets;
    const std::vector<PatternRule>& m_rules;
    const PatternLimits& m_limits;
    Budget& m_budget;
    PatternStates m_made;
    // The states by what they are, and back.
    std::map<Key, std::uint32_t> m_numbers;
    std::vector<const Key*> m_keys;
    std::vector<PatternMachine::Place> m_targets;
    // By step: the last round of Close that met it.
    std::vector<std::uint32_t> m_seen;
    std::uint32_t m_round = 0;
};

std::optional<PatternStates> PatternStates::Make(const PatternMachine& machine,
                                                 const std::vector<PatternRule>& rules,
                                                 const PatternLimits& limits, Budget& budget) {
    return PatternStatesMaker(machine, rules, limits, budget).Make(machine.Starts());
}

}  // namespace lvx::text
