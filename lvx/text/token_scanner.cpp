#include <algorithm>
#include <cstddef>

#include "lvx/text/character_class.h"
#include "lvx/text/memory_buffer.h"
#include "lvx/text/token_kinds.h"
#include "lvx/text/token_number.h"
#include "lvx/text/token_stream.h"

using namespace lvx::text;

namespace {

// How much of a token is kept.
constexpr std::size_t most_kept = 49;

// As assign does. Most tokens are one mark or one blank, and for them no call is needed.
void set_text(std::string& text, std::string_view token) {
    if (token.size() == 1) {
        text.clear();
        text.push_back(token[0]);
    } else {
        text.assign(token);
    }
}

}  // namespace

// One token's scan, on the text itself. What is kept of the token are its first characters, so that no copy
// is needed.
class LVXTokenStream::Scanner {
public:
    Scanner(const LVXTokens& tokens, const char* next, const char* end)
        : m_tokens(tokens), m_flags(tokens.m_flags), m_next(next), m_end(end) {}

    /// The kind of the next token; 0 if there is none.
    int Scan() {
        while (SkipToFirst()) {
            m_start = m_next++;
            if (const int kind = TakeToken(); kind != no_token) {
                return kind;
            }
        }
        return no_token;
    }

    /// Of the token: where it begins, what is kept of it, and where the next scan begins.
    const char* Start() const { return m_start; }
    std::string_view Kept() const { return {m_start, m_kept}; }
    const char* Next() const { return m_next; }

private:
    bool SkipToFirst() {
        while (m_next != m_end && !CanBegin(*m_next)) {
            ++m_next;
        }
        return m_next != m_end;
    }

    bool CanBegin(char character) const {
        const auto code = static_cast<unsigned char>(character);
        return code < std::size(m_tokens.m_first) && m_tokens.m_first[code];
    }

    // Each of these takes what begins at m_start. The kind, or 0 for what is none: the scan goes on behind
    // it.
    int TakeToken() {
        if (is_of(*m_start, is_word)) {
            return TakeWord();
        }
        if (is_of(*m_start, is_control | is_space)) {
            return TakeBlank();
        }
        return BeginsNumber() ? TakeWord() : TakePunctuation();
    }

    int TakeBlank() {
        // A NUL ends a text, so as a text of its own it is empty.
        Keep(*m_start == '\0' ? 0 : 1);
        if (const int kind = AskTable(); kind != no_token) {
            return kind;
        }
        if (IsOn(white_spaces) && is_of(*m_start, is_space)) {
            return white_space;
        }
        return IsOn(controls) ? control : no_token;
    }

    // A sign or point with what makes it one: "+." is enough, and no number in itself matters here.
    bool BeginsNumber() const {
        if (!IsOn(integers | floats) || m_next == m_end) {
            return false;
        }
        const bool digit_follows = is_of(*m_next, is_digit);
        return *m_start == '-' || *m_start == '+' ? digit_follows || *m_next == '.'
                                                  : *m_start == '.' && digit_follows;
    }

    int TakeWord() {
        const bool numbers = IsOn(integers | floats);
        SkipWord();
        if (numbers) {
            SkipPoints();
        }
        KeepUpToNext();
        if (const int kind = numbers ? number_kind(Kept()) : no_token; kind != no_token) {
            if (!IsOn(flag_of(kind))) {
                Keep(0);
            }
            return kind;
        }
        if (const int kind = AskTable(); kind != no_token) {
            return kind;
        }
        return IsOn(words) ? word : no_token;
    }

    void SkipWord() {
        while (m_next != m_end && is_of(*m_next, is_word)) {
            ++m_next;
        }
    }

    // Points are read on as long as what is kept is a number, and behind each what belongs to words. When no
    // more can be kept, that does not change any more.
    void SkipPoints() {
        while (AtPoint() && PointBelongs()) {
            ++m_next;
            SkipWord();
            while (m_kept == most_kept && AtPoint()) {
                ++m_next;
                SkipWord();
            }
        }
    }

    bool AtPoint() const { return m_next != m_end && *m_next == '.'; }

    bool PointBelongs() {
        KeepUpToNext();
        return number_kind(Kept()) != no_token;
    }

    // The longest beginning of the run that is a token, or its first character.
    int TakePunctuation() {
        Keep(PunctuationToAsk());
        int kind = AskTable();
        while (kind == no_token && m_kept > 1) {
            Keep(m_kept - 1);
            kind = AskTable();
        }
        m_next = m_start + m_kept;
        if (m_kept == most_kept) {
            // Nothing was cut from what could be kept: the rest of the run is that of a long token.
            SkipPunctuation(m_end);
        }
        if (kind != no_token) {
            return kind;
        }
        return IsOn(punctuations) ? punctuation : no_token;
    }

    // The length of the run up to where no keyword can be longer. All that is not asked about would be cut
    // off again, so a run of megabytes is not read anew for each of its characters.
    std::size_t PunctuationToAsk() {
        const std::size_t longest = std::clamp<std::size_t>(m_tokens.m_longest_keyword, 1, most_kept);
        const auto rest = static_cast<std::size_t>(m_end - m_start);
        SkipPunctuation(m_start + std::min(longest, rest));
        return static_cast<std::size_t>(m_next - m_start);
    }

    void SkipPunctuation(const char* end) {
        while (m_next != end && is_of(*m_next, is_punctuation)) {
            ++m_next;
        }
    }

    // The number of what is kept. Most tables have kinds alone, which needs no call.
    int AskTable() const {
        const bool has_entries = m_tokens.m_single_text != nullptr || !m_tokens.m_keywords.empty();
        return has_entries ? m_tokens.TokenOf(Kept()) : no_token;
    }

    void Keep(std::size_t length) { m_kept = length; }
    void KeepUpToNext() { Keep(std::min(static_cast<std::size_t>(m_next - m_start), most_kept)); }

    bool IsOn(int flags) const { return (m_flags & flags) != 0; }

    const LVXTokens& m_tokens;
    const int m_flags;
    const char* m_start = nullptr;
    const char* m_next;
    const char* m_end;
    std::size_t m_kept = 0;
};

int LVXTokenStream::getToken(std::string& text) {
    if (m_tokens == nullptr) {
        reset();
    }
    if (!good()) {
        text.clear();
        return RefuseReading();
    }
    Scanner scanner(*m_tokens, m_buffer->Next(), m_buffer->End());
    const int kind = scanner.Scan();
    if (kind == no_token) {
        text.clear();
        return EndReading();
    }
    m_position = static_cast<long>(scanner.Start() - m_buffer->Begin());
    m_buffer->SetNext(scanner.Next());
    set_text(text, scanner.Kept());
    return kind;
}
