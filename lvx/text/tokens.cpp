#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <iterator>

#include "lvx/text/token_kinds.h"
#include "lvx/text/token_stream.h"

using namespace lvx::text;

namespace {

constexpr std::string_view white_space_to_mark = "\t\n\f\r ";

}  // namespace

LVXTokens::LVXTokens() {
    init();
}

LVXTokens::~LVXTokens() {
    clean();
}

void LVXTokens::init() {
    m_flags = 0;
    clean();
    reset();
}

void LVXTokens::reset() {
    if (m_singles != nullptr) {
        m_singles->clear();
    }
    m_singles_in_use.clear();
    m_flags = changed;
    m_keywords.clear();
    m_longest_keyword = 0;
}

void LVXTokens::setDefault() {
    reset();
    m_flags |= every_kind;
}

bool LVXTokens::add(int kindOrChar) {
    if (const int flag = flag_of(kindOrChar); flag != 0) {
        m_flags |= flag;
        return true;
    }
    if (m_singles == nullptr) {
        m_singles = std::make_unique<std::string>();
    }
    const char character = static_cast<char>(kindOrChar);
    if (character == '\0' || m_singles->find(character) != std::string::npos) {
        return false;
    }
    *m_singles += character;
    m_flags |= changed;
    return true;
}

bool LVXTokens::add(int first, int second, ...) {
    if (first == 0) {
        return true;
    }
    bool all_added = add(first);
    m_flags |= changed;
    std::va_list more;
    va_start(more, second);
    for (int next = second; next != 0; next = va_arg(more, int)) {
        all_added = add(next) && all_added;
    }
    va_end(more);
    return all_added;
}

bool LVXTokens::add(int key, const std::string& text) {
    if (flag_of(key) != 0) {
        return false;
    }
    m_keywords.emplace(text, key);
    m_longest_keyword = std::max(m_longest_keyword, text.size());
    m_flags |= changed;
    return true;
}

bool LVXTokens::add(int key, const char* text) {
    return text != nullptr && add(key, std::string(text));
}

bool LVXTokens::isOk(int bits) const {
    return (m_flags & bits) != 0;
}

bool LVXTokens::isFirst(char c) const {
    const auto code = static_cast<unsigned char>(c);
    return code < std::size(m_first) && m_first[code];
}

int LVXTokens::tokenOf(unsigned int length, const char* text) const {
    if (text == nullptr) {
        return 0;
    }
    // The length decides only whether single characters are asked; a keyword ends at its NUL.
    return length == 1 && IsSingle(text[0]) ? static_cast<unsigned char>(text[0]) : getKey(text);
}

int LVXTokens::getKey(const char* text) const {
    return text == nullptr ? 0 : KeyOf(text);
}

bool LVXTokens::IsSingle(char character) const {
    return m_single_text != nullptr && character != '\0' && std::strchr(m_single_text, character) != nullptr;
}

int LVXTokens::TokenOf(std::string_view text) const {
    if (text.size() == 1 && IsSingle(text[0])) {
        return static_cast<unsigned char>(text[0]);
    }
    return m_keywords.empty() ? 0 : KeyOf(text);
}

int LVXTokens::KeyOf(std::string_view text) const {
    const auto found = m_keywords.find(text);
    return found == m_keywords.end() ? 0 : found->second;
}

void LVXTokens::useTokens() {
    if (!isOk(changed)) {
        return;
    }
    std::fill(std::begin(m_first), std::end(m_first), false);
    MarkKinds();
    MarkEntries();
    // Last: without memory for the entries they are still to be put in use.
    m_flags &= ~changed;
}

void LVXTokens::Mark(int first, int last, bool can_begin) {
    std::fill(m_first + first, m_first + last + 1, can_begin);
}

void LVXTokens::MarkKinds() {
    if (isOk(integers | floats)) {
        Mark('0', '9');
    }
    if (isOk(punctuations)) {
        Mark(33, 47);
        Mark(58, 64);
        Mark(91, 96);
        Mark(123, 126);
    }
    if (isOk(controls)) {
        // "!" to "%" are among them although they are none: the scan looks at them and passes them by. Hosts'
        // tables were made with it.
        Mark(1, 37);
        Mark(127, 127);
        for (const char blank : white_space_to_mark) {
            Mark(blank, blank, false);
        }
    }
    if (isOk(white_spaces)) {
        for (const char blank : white_space_to_mark) {
            Mark(blank, blank);
        }
    }
    if (isOk(words)) {
        Mark('A', 'Z');
        Mark('a', 'z');
        Mark('_', '_');
    }
}

void LVXTokens::MarkEntries() {
    if (m_singles != nullptr) {
        m_singles_in_use = *m_singles;
        m_single_text = m_singles_in_use.c_str();
    }
    for (const char single : m_singles_in_use) {
        m_first[static_cast<unsigned char>(single) % std::size(m_first)] = true;
    }
    for (const auto& [text, key] : m_keywords) {
        // An empty text begins with its NUL.
        m_first[static_cast<unsigned char>(*text.c_str()) % std::size(m_first)] = true;
    }
}

void LVXTokens::clean() {
    m_singles.reset();
    m_single_text = nullptr;
    m_singles_in_use.clear();
}
