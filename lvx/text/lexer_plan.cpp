#include "lvx/text/lexer_plan.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace lvx::text {
namespace {

// Of a machine. A pattern takes about as many steps as it has bytes, times its counted repetitions.
constexpr std::size_t most_steps = 20'000;
// For all tables, those that came to nothing too, and for each of them.
constexpr std::size_t most_work = 32'000'000;
constexpr std::size_t most_work_on_one = 4'000'000;
// A position and a length can be told up to here.
constexpr std::size_t longest_text = std::numeric_limits<unsigned int>::max() - 1;
// Wins with no match.
constexpr int least_priority = -1;

}  // namespace

class LexerPlan::Best {
public:
    // Whether a match of the pair, of whatever length, could win.
    bool CanWin(const Member& member) const { return member.priority >= m_priority; }

    void Offer(const Member& member, std::size_t length) {
        if (!LosesTo(member, length)) {
            return;
        }
        m_priority = member.priority;
        m_order = member.order;
        m_win = {member.token, static_cast<unsigned int>(length)};
    }

    Win Result() const { return m_win; }

private:
    bool LosesTo(const Member& member, std::size_t length) const {
        if (member.priority != m_priority) {
            return member.priority > m_priority;
        }
        return length != m_win.length ? length > m_win.length : member.order < m_order;
    }

    int m_priority = least_priority;
    // No match stands in front of all patterns.
    std::uint32_t m_order = 0;
    Win m_win;
};

LexerPlan::LexerPlan(const std::vector<Lexer::LexPair*>& pairs) {
    std::vector<Parsed> parsed;
    std::uint32_t order = 0;
    for (const Lexer::LexPair* const pair : pairs) {
        const Member member{pair->token, pair->priority, order++, &pair->expression};
        if (pair->priority < least_priority || !pair->expression.ok()) {
            continue;
        }
        if (std::optional<PatternTree> tree = parse_pattern(pair->pattern)) {
            parsed.push_back({member, std::move(*tree)});
        } else {
            m_singles.push_back(member);
        }
    }
    Budget budget(most_work);
    MakeGroups(parsed, budget);
    // What a higher priority has won, the lower need not try.
    std::stable_sort(m_singles.begin(), m_singles.end(),
                     [](const Member& left, const Member& right) { return left.priority > right.priority; });
    m_is_one_table = m_singles.empty() && m_groups.size() == 1;
}

// What is too much for one table is divided, down to patterns that are too much by themselves.
void LexerPlan::MakeGroups(std::span<const Parsed> patterns, Budget& budget) {
    if (patterns.empty() || MakeGroup(patterns, budget)) {
        return;
    }
    if (patterns.size() == 1) {
        m_singles.push_back(patterns.front().member);
        return;
    }
    MakeGroups(patterns.first(patterns.size() / 2), budget);
    MakeGroups(patterns.subspan(patterns.size() / 2), budget);
}

bool LexerPlan::MakeGroup(std::span<const Parsed> patterns, Budget& whole) {
    Budget budget(most_work_on_one, &whole);
    PatternMachine machine(most_steps, budget);
    std::vector<PatternRule> rules;
    std::vector<Member> members;
    for (const Parsed& parsed : patterns) {
        if (!machine.Add(parsed.tree)) {
            return false;
        }
        rules.push_back({parsed.member.priority, parsed.member.order});
        members.push_back(parsed.member);
    }
    const std::optional<PatternStates> states = PatternStates::Make(machine, rules, {}, budget);
    if (!states) {
        return false;
    }
    m_groups.push_back({PatternAutomaton(*states), std::move(members)});
    return true;
}

LexerPlan::Win LexerPlan::Find(std::string_view text, unsigned int start) const {
    text = text.substr(0, longest_text);
    if (start > text.size()) {
        return {};
    }
    if (!m_is_one_table) {
        return FindBest(text, start);
    }
    // Nobody else can win.
    const PatternAutomaton::Match match = m_groups.front().automaton.Find(text.substr(start));
    if (match.pattern == PatternStates::no_pattern) {
        return {};
    }
    return {m_groups.front().members[match.pattern].token, static_cast<unsigned int>(match.length)};
}

LexerPlan::Win LexerPlan::FindBest(std::string_view text, unsigned int start) const {
    Best best;
    for (const Group& group : m_groups) {
        const PatternAutomaton::Match match = group.automaton.Find(text.substr(start));
        if (match.pattern != PatternStates::no_pattern) {
            best.Offer(group.members[match.pattern], match.length);
        }
    }
    for (const Member& member : m_singles) {
        unsigned int length = 0;
        if (best.CanWin(member) && member.expression->find(text, &length, start) != TRegexp::not_found) {
            best.Offer(member, length);
        }
    }
    return best.Result();
}

}  // namespace lvx::text
