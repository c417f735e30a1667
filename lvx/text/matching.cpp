#include "lvx/text/strings.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace lvx {

namespace {

char partner_of(char open) {
    switch (open) {
        case '(':
            return ')';
        case '[':
            return ']';
        case '{':
            return '}';
        default:
            return open;
    }
}

bool is_quote(char character) {
    return character == '"' || character == '\'' || character == '`';
}

// What a walk over a text has to remember to know which characters count.
class Nesting {
public:
    explicit Nesting(char open) : m_open(open), m_partner(partner_of(open)) {}

    bool closes(char character) const {
        return !m_in_quote && !m_escaped && m_depth == 0 && character == m_partner;
    }

    void pass(char character) {
        if (character == '\\') {
            m_escaped = !m_escaped;
            return;
        }
        if (!m_escaped) {
            pass_unescaped(character);
        }
        m_escaped = false;
    }

private:
    void pass_unescaped(char character) {
        if (is_quote(character)) {
            pass_quote(character);
        } else if (!m_in_quote) {
            m_depth += character == m_open ? 1u : 0u;
            m_depth -= character == m_partner ? 1u : 0u;
        }
    }

    void pass_quote(char quote) {
        if (!m_in_quote) {
            m_in_quote = true;
            m_quote = quote;
        } else if (quote == m_quote) {
            m_in_quote = false;
        }
    }

    char m_open;
    char m_partner;
    char m_quote = '\0';
    bool m_in_quote = false;
    bool m_escaped = false;
    std::size_t m_depth = 0;
};

}  // namespace

unsigned int find_matching(const std::string& text, char open, unsigned int start) {
    if (start >= text.size()) {
        return start;
    }
    const std::size_t end = std::min<std::size_t>(text.size(), std::numeric_limits<unsigned int>::max());
    std::size_t position = start;
    if (open == '\0') {
        open = text[position++];
    }
    Nesting nesting(open);
    while (position < end && text[position] != '\0' && !nesting.closes(text[position])) {
        nesting.pass(text[position++]);
    }
    return static_cast<unsigned int>(position);
}

}  // namespace lvx
