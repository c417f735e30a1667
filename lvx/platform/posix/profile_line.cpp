#include "lvx/platform/posix/profile_line.h"

#include <algorithm>

namespace lvx::platform {
namespace {

constexpr char lower(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

std::string_view up_to_nul(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

std::string_view without_trailing_blanks(std::string_view text) {
    while (!text.empty() && is_profile_blank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

}  // namespace

std::string_view without_leading_blanks(std::string_view text) {
    while (!text.empty() && is_profile_blank(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

std::string_view without_blanks(std::string_view text) {
    return without_trailing_blanks(without_leading_blanks(text));
}

std::string_view profile_name(std::string_view text) {
    return without_blanks(up_to_nul(text));
}

bool same_profile_name(std::string_view one, std::string_view other) {
    return one.size() == other.size() &&
           std::equal(one.begin(), one.end(), other.begin(),
                      [](char left, char right) { return lower(left) == lower(right); });
}

ProfileLine parse_profile_line(std::string_view line) {
    const std::string_view text = without_blanks(line);
    if (text.empty()) {
        return {};
    }
    if (text.front() == '[') {
        // The last one ends the name, and what stands behind it is nothing.
        const std::size_t close = text.rfind(']');
        if (close != std::string_view::npos) {
            return {ProfileLine::Header, profile_name(text.substr(1, close - 1)), false, {}};
        }
    }
    const std::size_t sign = text.find('=');
    if (sign == std::string_view::npos) {
        return {ProfileLine::Entry, profile_name(text), false, {}};
    }
    return {ProfileLine::Entry, profile_name(text.substr(0, sign)), true,
            up_to_nul(without_leading_blanks(text.substr(sign + 1)))};
}

ProfileLines::ProfileLines(std::string_view text) : m_text(text), m_feed(Find('\n')), m_return(Find('\r')) {}

void ProfileLines::MoveTo(std::size_t position) {
    m_next = position;
    if (m_feed < m_next) {
        m_feed = Find('\n');
    }
    if (m_return < m_next) {
        m_return = Find('\r');
    }
}

bool ProfileLines::Next() {
    if (m_next >= m_text.size()) {
        return false;
    }
    m_begin = m_next;
    m_end = std::min(m_feed, m_return);
    if (m_end == m_text.size()) {
        m_next = m_end;
        return true;
    }
    MoveTo(m_end + (m_text.substr(m_end, 2) == "\r\n" ? 2 : 1));
    return true;
}

// From the next line on.
std::size_t ProfileLines::Find(char character) const {
    return std::min(m_text.find(character, m_next), m_text.size());
}

}  // namespace lvx::platform
