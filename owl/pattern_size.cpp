#include "owl/pattern_size.h"

#include <algorithm>
#include <vector>

namespace owl {
namespace {

// Far above all that is accepted, and its product with a count still has room in 32 bits.
constexpr std::size_t enough = 1'000'000;
// A count above this is against the syntax, which is told in better words elsewhere.
constexpr std::size_t most_repetitions = 1000;
// "." is two ranges of bytes; "\w" and its like are four or five.
constexpr std::size_t size_of_dot = 2;
constexpr std::size_t size_of_named_set = 5;
// "\pL" is as large as that, and takes longer than its size to look up and to fold.
constexpr std::size_t size_of_property = 20;
// It is remembered where a group begins and ends.
constexpr std::size_t size_of_group = 2;

bool is_digit(char byte) {
    return byte >= '0' && byte <= '9';
}

bool is_in(char byte, std::string_view list) {
    return list.find(byte) != std::string_view::npos;
}

// A repetition written out: so many copies, and so many places where it may end or begin anew.
struct Copies {
    std::size_t count = 1;
    std::size_t exits = 0;
};

class Counter {
public:
    explicit Counter(std::string_view pattern) : m_rest(pattern) {}

    std::size_t Run() {
        while (!m_rest.empty()) {
            CountNext();
        }
        // Groups that are never closed count too.
        while (!m_outer.empty()) {
            CloseGroup();
        }
        return m_total;
    }

private:
    void CountNext() {
        switch (Take()) {
            case '\\':
                CountEscape();
                break;
            case '[':
                AddPart(BracketSize());
                break;
            case '.':
                AddPart(size_of_dot);
                break;
            case '(':
                OpenGroup();
                break;
            case ')':
                CloseGroup();
                break;
            case '*':
            case '+':
            case '?':
            case '|':
                Grow(1);
                break;
            case '{':
                CountBraces();
                break;
            default:
                AddPart(1);
                break;
        }
    }

    char Take() {
        const char first = m_rest.front();
        m_rest.remove_prefix(1);
        return first;
    }

    bool Skip(std::string_view text) {
        const bool found = m_rest.substr(0, text.size()) == text;
        m_rest.remove_prefix(found ? text.size() : 0);
        return found;
    }

    // All up to `last` and with it; everything if it is not there.
    void SkipBehind(std::string_view last) {
        const std::size_t place = m_rest.find(last);
        m_rest.remove_prefix(place == std::string_view::npos ? m_rest.size() : place + last.size());
    }

    // What a repetition that follows repeats.
    void AddPart(std::size_t size) {
        m_part = std::min(size, enough);
        m_total = std::min(m_total + m_part, enough);
    }

    // What is added to the last part.
    void Grow(std::size_t size) {
        m_part = std::min(m_part + size, enough);
        m_total = std::min(m_total + size, enough);
    }

    void OpenGroup() {
        if (Skip("?P<")) {
            SkipBehind(">");
        } else if (Skip("?") && SkipFlags()) {
            return;
        }
        m_outer.push_back(m_total);
        m_total = size_of_group;
        m_part = 0;
    }

    // Whether they were "i)" for all that follows, which is no group, and not "i:" for a group.
    bool SkipFlags() {
        m_rest.remove_prefix(std::min(m_rest.find_first_not_of("-imsU"), m_rest.size()));
        Skip(":");
        return Skip(")");
    }

    void CloseGroup() {
        if (m_outer.empty()) {
            return;
        }
        const std::size_t size = m_total;
        m_total = m_outer.back();
        m_outer.pop_back();
        AddPart(size);
    }

    void CountEscape() {
        if (m_rest.empty()) {
            return;
        }
        if (Skip("Q")) {
            CountQuoted();
            return;
        }
        AddPart(EscapeSize());
    }

    // The last of the bytes up to "\E" is the one that may be repeated.
    void CountQuoted() {
        while (!m_rest.empty() && !Skip("\\E")) {
            Take();
            AddPart(1);
        }
    }

    // Behind the backslash, also in brackets.
    std::size_t EscapeSize() {
        const char letter = Take();
        if (is_in(letter, "pP")) {
            SkipBracesOr(1);
            return size_of_property;
        }
        if (letter == 'x') {
            SkipBracesOr(2);
            return 1;
        }
        return is_in(letter, "dDsSwW") ? size_of_named_set : 1;
    }

    void SkipBracesOr(std::size_t bytes) {
        if (Skip("{")) {
            SkipBehind("}");
        } else {
            m_rest.remove_prefix(std::min(bytes, m_rest.size()));
        }
    }

    // Each of its items may be a range of bytes, and so may be what stands behind the last in a negated set.
    std::size_t BracketSize() {
        std::size_t size = Skip("^") ? 2 : 1;
        // A closing bracket that comes first stands for itself.
        for (bool first = true; !m_rest.empty() && (first || m_rest.front() != ']'); first = false) {
            size += ItemSize();
        }
        Skip("]");
        return size - 1;
    }

    std::size_t ItemSize() {
        if (m_rest.substr(0, 2) == "[:" && m_rest.find(":]", 2) != std::string_view::npos) {
            SkipBehind(":]");
            return size_of_named_set;
        }
        const std::size_t size = ListedSize();
        // A set is no end of a range.
        if (size == 1 && m_rest.size() >= 2 && m_rest[0] == '-' && m_rest[1] != ']') {
            Take();
            return ListedSize();
        }
        return size;
    }

    std::size_t ListedSize() { return Take() == '\\' && !m_rest.empty() ? EscapeSize() : 1; }

    // "{2}", "{2,}" and "{2,3}" multiply the last part; any other brace stands for itself.
    void CountBraces() {
        Copies copies;
        if (ParseBraces(copies)) {
            // What is repeated no times is read all the same.
            Grow(m_part * (std::max(copies.count, std::size_t{1}) - 1) + copies.exits);
        } else {
            AddPart(1);
        }
    }

    bool ParseBraces(Copies& copies) {
        std::string_view inside = m_rest.substr(0, m_rest.find('}'));
        std::size_t least = 0;
        if (inside.size() == m_rest.size() || !TakeNumber(inside, least)) {
            return false;
        }
        copies = {least, 0};
        if (inside.substr(0, 1) == ",") {
            inside.remove_prefix(1);
            std::size_t most = least;
            copies.exits = 1;
            if (!inside.empty() && TakeNumber(inside, most)) {
                copies = {std::max(least, most), most - std::min(least, most)};
            }
        }
        if (!inside.empty()) {
            return false;
        }
        SkipBehind("}");
        return true;
    }

    static bool TakeNumber(std::string_view& text, std::size_t& number) {
        number = 0;
        const std::size_t before = text.size();
        while (!text.empty() && is_digit(text.front())) {
            number = std::min(number * 10 + static_cast<std::size_t>(text.front() - '0'), most_repetitions);
            text.remove_prefix(1);
        }
        return text.size() < before;
    }

    std::string_view m_rest;
    // Of the group that is open, or of the pattern; of what is around it, from the outside in; and of the
    // last part.
    std::size_t m_total = 0;
    std::vector<std::size_t> m_outer;
    std::size_t m_part = 0;
};

}  // namespace

std::size_t pattern_size(std::string_view pattern) {
    return Counter(pattern).Run();
}

}  // namespace owl
