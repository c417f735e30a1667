// tests/text/token_oracle.h
//
// A second coding of token tables and the token stream: step by step as the rules tell them, one character at
// a time, on a standard string stream and with the C library's character classes. Its operations bear the
// names of the first, so that both can play the same program.
#pragma once

#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <ios>
#include <map>
#include <optional>
#include <sstream>
#include <string>

namespace lvx_test {

class OracleTokens {
public:
    OracleTokens() { reset(); }
    void init() {
        clean();
        reset();
    }
    void reset() {
        if (m_singles) {
            m_singles->clear();
        }
        if (m_pointer) {
            m_pointer->clear();
        }
        m_flags = 0x40;
        m_keywords.clear();
    }
    void setDefault() {
        reset();
        m_flags |= 63;
    }
    bool add(int value) {
        if (const int bit = bit_of(value); bit != 0) {
            m_flags |= bit;
            return true;
        }
        if (!m_singles) {
            m_singles = std::string();
        }
        if (std::strchr(m_singles->c_str(), value) != nullptr) {
            return false;
        }
        m_singles->push_back(static_cast<char>(value));
        m_flags |= 0x40;
        return true;
    }
    // Lists of two are enough here.
    bool add(int first, int second, int) {
        if (first == 0) {
            return true;
        }
        const bool first_added = add(first);
        m_flags |= 0x40;
        if (second == 0) {
            return first_added;
        }
        const bool second_added = add(second);
        return first_added && second_added;
    }
    bool add(int key, const std::string& text) {
        if (bit_of(key) != 0) {
            return false;
        }
        m_keywords.insert({text, key});
        m_flags |= 0x40;
        return true;
    }
    bool isOk(int bits) const { return (m_flags & bits) != 0; }
    bool isFirst(char c) const {
        return static_cast<unsigned char>(c) < 128 && m_first[static_cast<std::size_t>(c)];
    }
    int tokenOf(unsigned int length, const char* text) const {
        if (length == 1 && m_pointer && text[0] != '\0' && m_pointer->find(text[0]) != std::string::npos) {
            return static_cast<unsigned char>(text[0]);
        }
        return getKey(text);
    }
    int getKey(const char* text) const {
        const auto found = m_keywords.find(text);
        return found == m_keywords.end() ? 0 : found->second;
    }
    void useTokens() {
        if (!isOk(0x40)) {
            return;
        }
        m_flags &= ~0x40;
        for (int c = 0; c < 128; ++c) {
            m_first[static_cast<std::size_t>(c)] = mark_of_kinds(c);
        }
        if (m_singles) {
            m_pointer = m_singles;
            for (const char c : *m_singles) {
                m_first[static_cast<unsigned char>(c) % 128] = true;
            }
        }
        for (const auto& entry : m_keywords) {
            m_first[static_cast<unsigned char>(entry.first.c_str()[0]) % 128] = true;
        }
    }
    void clean() {
        m_singles.reset();
        m_pointer.reset();
    }

private:
    static int bit_of(int kind) {
        const std::map<int, int> bits = {{1, 1}, {2, 2}, {3, 4}, {4, 8}, {5, 0x10}, {11, 0x20}};
        const auto found = bits.find(kind);
        return found == bits.end() ? 0 : found->second;
    }
    static bool in(int c, int from, int to) { return c >= from && c <= to; }
    // The last rule that speaks of a character decides.
    bool mark_of_kinds(int c) const {
        const bool blank = c == 9 || c == 10 || c == 12 || c == 13 || c == 32;
        bool mark = isOk(3) && in(c, '0', '9');
        mark = mark || (isOk(4) && (in(c, 33, 47) || in(c, 58, 64) || in(c, 91, 96) || in(c, 123, 126)));
        mark = mark || (isOk(0x10) && (in(c, 1, 37) || c == 127));
        mark = mark && !(isOk(0x10) && blank);
        mark = mark || (isOk(0x20) && blank);
        return mark || (isOk(8) && (in(c, 'A', 'Z') || in(c, 'a', 'z') || c == '_'));
    }

    std::map<std::string, int> m_keywords;
    int m_flags = 0;
    std::optional<std::string> m_singles;
    // The text that the pointer would point to.
    std::optional<std::string> m_pointer;
    std::array<bool, 128> m_first{};
};

/// 1, 2 or 0, of a text up to its NUL.
inline int oracle_isnum(const std::string& given) {
    const char* at = given.c_str();
    const auto sign = [&at] { at += *at == '+' || *at == '-' ? 1 : 0; };
    const auto digits = [&at] { at += std::strspn(at, "0123456789"); };
    sign();
    digits();
    int result = 1;
    if (*at == '.') {
        ++at;
        digits();
        result = 2;
    }
    if (*at != 'e' && *at != 'E') {
        return *at == '\0' ? result : 0;
    }
    ++at;
    sign();
    digits();
    return *at == '\0' ? 2 : 0;
}

class OracleStream : public std::istringstream {
public:
    OracleStream(const char* text, int length)
        : std::istringstream(std::string(text, static_cast<std::size_t>(length))) {}

    void reset() {
        if (m_tokens == nullptr) {
            m_own.setDefault();
            m_tokens = &m_own;
        }
        m_tokens->useTokens();
    }
    void useTokens(OracleTokens* tokens) {
        m_tokens = tokens;
        if (tokens != nullptr) {
            tokens->useTokens();
        }
    }
    OracleStream& tags(char open, char close) {
        m_open = static_cast<unsigned char>(open);
        m_close = static_cast<unsigned char>(close);
        return *this;
    }
    int getToken() {
        std::string text;
        return getToken(text);
    }
    int getToken(std::string& text) {
        if (m_tokens == nullptr) {
            reset();
        }
        text.clear();
        if (refuses()) {
            return 0;
        }
        const int kind = scan();
        if (kind == 0) {
            setstate(eofbit | failbit);
            return 0;
        }
        m_position = m_candidate;
        m_buffer[m_length] = '\0';
        text = m_buffer;
        return kind;
    }
    void ungetToken() {
        clear();
        seekg(m_position);
    }
    bool getTag(std::string& text) {
        m_position = here();
        if (refuses()) {
            return false;
        }
        int c = take();
        while (c != m_open) {
            if (c == end) {
                setstate(eofbit | failbit);
                return false;
            }
            c = take();
        }
        text.clear();
        for (c = take(); c != m_close && c != end; c = take()) {
            text += static_cast<char>(c);
        }
        if (c == end) {
            setstate(eofbit | failbit);
        }
        return c != end;
    }
    bool skipTo(char target) {
        m_position = here();
        if (refuses()) {
            return false;
        }
        int previous = 0;
        for (int c = take(); c != end; c = take()) {
            if (c == '\\' && previous == '\\') {
                previous = 0;
            } else if (c == static_cast<unsigned char>(target) && previous != '\\') {
                return true;
            } else {
                previous = c;
            }
        }
        setstate(eofbit | failbit);
        return false;
    }
    int isnum(char* text, int length) {
        text[length] = '\0';
        return oracle_isnum(text);
    }

private:
    static constexpr int end = std::char_traits<char>::eof();

    bool refuses() {
        if (!good()) {
            setstate(failbit);
            return true;
        }
        return false;
    }
    long here() { return static_cast<long>(rdbuf()->pubseekoff(0, std::ios_base::cur, std::ios_base::in)); }
    int take() { return rdbuf()->sbumpc(); }
    int look() { return rdbuf()->sgetc(); }
    bool is_first(int c) const { return c >= 0 && c < 128 && m_tokens->isFirst(static_cast<char>(c)); }

    void keep(int c) {
        if (m_length < 49) {
            m_buffer[m_length++] = static_cast<char>(c);
        }
    }
    int token_of() {
        m_buffer[m_length] = '\0';
        return m_tokens->tokenOf(static_cast<unsigned int>(m_length), m_buffer);
    }
    int isnum_so_far() {
        m_buffer[m_length] = '\0';
        return oracle_isnum(m_buffer);
    }

    static constexpr int again = -1000000;

    int scan() {
        for (;;) {
            m_length = 0;
            int c = take();
            while (c != end && !is_first(c)) {
                c = take();
            }
            if (c == end) {
                return 0;
            }
            m_candidate = here() - 1;
            const int kind = scan_from(c);
            if (kind != again) {
                return kind;
            }
        }
    }
    int scan_from(int c) {
        if (std::iscntrl(c) != 0 || c == 32) {
            return scan_blank(c);
        }
        if (std::isalnum(c) != 0 || c == '_') {
            return scan_word(c);
        }
        if (std::ispunct(c) == 0) {
            return again;
        }
        const int next = look();
        const bool digit = next != end && std::isdigit(next) != 0;
        const bool begins_number = ((c == '-' || c == '+') && (next == '.' || digit)) || (c == '.' && digit);
        if (begins_number && (m_tokens->isOk(2) || m_tokens->isOk(1))) {
            return scan_word(c);
        }
        return scan_run(c);
    }
    int scan_blank(int c) {
        keep(c);
        if (const int answer = token_of(); answer != 0) {
            return answer;
        }
        if (m_tokens->isOk(0x20) && std::isspace(c) != 0) {
            return 11;
        }
        return m_tokens->isOk(0x10) ? 5 : again;
    }
    int scan_run(int c) {
        keep(c);
        while (look() != end && std::ispunct(look()) != 0) {
            keep(take());
        }
        const std::size_t whole = m_length;
        int answer = token_of();
        while (answer == 0 && m_length >= 2) {
            --m_length;
            answer = token_of();
        }
        if (m_length != whole) {
            rdbuf()->pubseekpos(m_candidate + static_cast<long>(m_length), std::ios_base::in);
        }
        if (answer != 0) {
            return answer;
        }
        return m_tokens->isOk(4) ? 3 : again;
    }
    int scan_word(int c) {
        const bool numbers = m_tokens->isOk(2) || m_tokens->isOk(1);
        keep(c);
        for (;;) {
            const int next = look();
            const bool word = next != end && (std::isalnum(next) != 0 || next == '_');
            if (!word && !(next == '.' && numbers && isnum_so_far() != 0)) {
                break;
            }
            keep(take());
        }
        const int kind = numbers ? isnum_so_far() : 0;
        if (kind == 0) {
            if (const int answer = token_of(); answer != 0) {
                return answer;
            }
            return m_tokens->isOk(8) ? 4 : again;
        }
        if ((kind == 2 && !m_tokens->isOk(2)) || (kind == 1 && !m_tokens->isOk(1))) {
            m_length = 0;
        }
        return kind;
    }

    OracleTokens m_own;
    OracleTokens* m_tokens = nullptr;
    long m_position = 0;
    long m_candidate = 0;
    int m_open = 0;
    int m_close = 0;
    char m_buffer[50] = {};
    std::size_t m_length = 0;
};

}  // namespace lvx_test
