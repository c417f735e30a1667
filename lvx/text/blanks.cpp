#include "lvx/text/strings.h"

#include <cstddef>
#include <string_view>

namespace lvx {

namespace {

constexpr std::string_view blanks = " \t";

bool is_blank(char character) {
    return blanks.find(character) != std::string_view::npos;
}

// Knows at each character of a walk whether it stands in double quotes. A backslash in quotes protects the
// next double quote, and ordinary characters between the two do not end that: hosts' property texts were
// written with this rule.
class DoubleQuotes {
public:
    bool open() const { return m_open; }

    void pass(char character) {
        if (character == '"') {
            m_open = m_escaped ? m_open : !m_open;
            m_escaped = false;
        } else if (character == '\\' && m_open) {
            m_escaped = !m_escaped;
        }
    }

private:
    bool m_open = false;
    bool m_escaped = false;
};

std::string_view without_outer_blanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace

std::string trim(const std::string& text) {
    std::string trimmed;
    DoubleQuotes quotes;
    bool blank_seen = false;
    for (const char character : without_outer_blanks(text)) {
        const bool separates = is_blank(character) && !quotes.open();
        if (!separates) {
            trimmed += character;
        } else if (!blank_seen) {
            trimmed += ' ';
        }
        blank_seen = separates;
        quotes.pass(character);
    }
    return trimmed;
}

std::string collapse(const std::string& text) {
    std::string collapsed;
    DoubleQuotes quotes;
    for (const char character : text) {
        if (!is_blank(character) || quotes.open()) {
            collapsed += character;
        }
        quotes.pass(character);
    }
    return collapsed;
}

}  // namespace lvx
