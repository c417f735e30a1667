#include "lvx/text/pattern_syntax.h"

#include <algorithm>
#include <utility>

#include "lvx/text/character_class.h"

namespace lvx::text {
namespace {

constexpr int deepest_nest = 100;
constexpr unsigned int most_repetitions = 1000;

struct Repetition {
    unsigned int least = 0;
    unsigned int most = 0;
};

// What may stand where a repetition may.
enum class Found { Nothing, Repetition, Foreign };

// "0" or a number without a zero in front, up to the most that is allowed.
std::optional<unsigned int> parse_number(std::string_view& rest) {
    const std::size_t digits = std::min(rest.find_first_not_of("0123456789"), rest.size());
    if (digits == 0 || digits > 4 || (digits > 1 && rest[0] == '0')) {
        return std::nullopt;
    }
    unsigned int number = 0;
    for (const char digit : rest.substr(0, digits)) {
        number = number * 10 + static_cast<unsigned int>(digit - '0');
    }
    rest.remove_prefix(digits);
    return number <= most_repetitions ? std::optional(number) : std::nullopt;
}

// "{2}", "{2,}" or "{2,3}". A brace that begins anything else stands for itself; in numbers that are
// doubtful, TRegexp decides.
Found parse_braces(std::string_view& rest, Repetition& repetition) {
    std::string_view inside = rest.substr(1);
    if (inside.empty() || !is_of(inside[0], is_digit)) {
        return Found::Nothing;
    }
    const std::optional<unsigned int> least = parse_number(inside);
    std::optional<unsigned int> most = least;
    if (inside.substr(0, 1) == ",") {
        inside.remove_prefix(1);
        most = inside.substr(0, 1) == "}" ? PatternNode::unlimited : parse_number(inside);
    }
    if (!least || !most || *most < *least || inside.substr(0, 1) != "}") {
        return Found::Foreign;
    }
    rest = inside.substr(1);
    repetition = {*least, *most};
    return Found::Repetition;
}

Found parse_operator(std::string_view& rest, Repetition& repetition) {
    switch (rest.empty() ? '\0' : rest.front()) {
        case '*':
            repetition = {0, PatternNode::unlimited};
            break;
        case '+':
            repetition = {1, PatternNode::unlimited};
            break;
        case '?':
            repetition = {0, 1};
            break;
        case '{':
            return parse_braces(rest, repetition);
        default:
            return Found::Nothing;
    }
    rest.remove_prefix(1);
    return Found::Repetition;
}

// What is not understood leaves `m_foreign` set and nothing to read, so that all loops end.
class Parser {
public:
    explicit Parser(std::string_view pattern) : m_rest(pattern) {}

    std::optional<PatternTree> Parse() {
        m_tree.root = ParseChoice();
        if (m_foreign || !m_rest.empty()) {
            return std::nullopt;
        }
        return std::move(m_tree);
    }

private:
    std::size_t Add(PatternNode node) {
        m_tree.nodes.push_back(std::move(node));
        return m_tree.nodes.size() - 1;
    }

    std::size_t Foreign() {
        m_foreign = true;
        m_rest = {};
        return 0;
    }

    bool IsAt(char byte) const { return !m_rest.empty() && m_rest.front() == byte; }

    bool Skip(std::string_view text) {
        const bool found = m_rest.substr(0, text.size()) == text;
        m_rest.remove_prefix(found ? text.size() : 0);
        return found;
    }

    std::size_t ParseChoice() {
        PatternNode choice{PatternNode::Choice, {}, {}, 0, 0};
        do {
            choice.parts.push_back(ParseSequence());
        } while (Skip("|"));
        return choice.parts.size() == 1 ? choice.parts.front() : Add(std::move(choice));
    }

    std::size_t ParseSequence() {
        PatternNode sequence{PatternNode::Sequence, {}, {}, 0, 0};
        while (!m_rest.empty() && !IsAt('|') && !IsAt(')')) {
            sequence.parts.push_back(ParseRepeat());
        }
        return sequence.parts.size() == 1 ? sequence.parts.front() : Add(std::move(sequence));
    }

    std::size_t ParseRepeat() {
        const std::size_t part = ParseAtom();
        Repetition repetition;
        const Found found = parse_operator(m_rest, repetition);
        if (found == Found::Nothing) {
            return part;
        }
        Skip("?");  // the one that takes as little as it can
        Repetition another;
        if (found == Found::Foreign || parse_operator(m_rest, another) != Found::Nothing) {
            return Foreign();
        }
        return Add({PatternNode::Repeat, {}, {part}, repetition.least, repetition.most});
    }

    std::size_t ParseAtom() {
        Repetition ignored;
        std::string_view ahead = m_rest;
        if (IsAt('^') || IsAt('$') || parse_operator(ahead, ignored) != Found::Nothing) {
            return Foreign();
        }
        return Skip("(") ? ParseGroup() : ParseBytes();
    }

    std::size_t ParseGroup() {
        if (!Skip("?:") && IsAt('?')) {
            return Foreign();
        }
        if (m_depth == deepest_nest) {
            return Foreign();
        }
        ++m_depth;
        const std::size_t group = ParseChoice();
        --m_depth;
        return Skip(")") ? group : Foreign();
    }

    std::size_t ParseBytes() {
        const std::optional<ByteSet> bytes = ParseSet();
        return bytes ? Add({PatternNode::Bytes, *bytes, {}, 0, 0}) : Foreign();
    }

    std::optional<ByteSet> ParseSet() {
        if (m_rest.empty()) {
            return std::nullopt;
        }
        const char first = m_rest.front();
        m_rest.remove_prefix(1);
        switch (first) {
            case '\\':
                return parse_escaped_set(m_rest);
            case '[':
                return parse_bracket_set(m_rest);
            case '.':
                return ~set_of_ranges("\n\n");
            default:
                return ByteSet().set(static_cast<unsigned char>(first));
        }
    }

    std::string_view m_rest;
    PatternTree m_tree;
    int m_depth = 0;
    bool m_foreign = false;
};

}  // namespace

std::optional<PatternTree> parse_pattern(std::string_view pattern) {
    pattern.remove_prefix(std::min(pattern.find_first_not_of('^'), pattern.size()));
    return Parser(pattern).Parse();
}

}  // namespace lvx::text
