#include "owl/regexp.h"

#include <re2/re2.h>

#include <algorithm>
#include <cstdint>

#include "owl/pattern_size.h"

namespace {

// The worst of this size compile in some tenths of a second and 7 MiB: chains of optional parts, of which
// each group of a thousand takes time by all that follow, and properties whose letters are of either case.
constexpr std::size_t largest_pattern = 20'000;
// Of the program and of the table that it fills while it searches. With less, patterns that are large and
// good would have no table, which is slow.
constexpr std::int64_t most_memory = 8 * 1024 * 1024;
// A position and a length up to here can be told, and neither looks like `not_found`.
constexpr std::size_t longest_text = TRegexp::not_found - 1;

RE2::Options options() {
    RE2::Options options;
    options.set_encoding(RE2::Options::EncodingLatin1);
    options.set_longest_match(true);
    options.set_log_errors(false);
    options.set_max_mem(most_memory);
    return options;
}

re2::StringPiece piece(std::string_view text) {
    return {text.data(), text.size()};
}

std::string_view without_anchors(std::string_view pattern) {
    pattern.remove_prefix(std::min(pattern.find_first_not_of('^'), pattern.size()));
    return pattern;
}

// RE2 has limits too, but comes to them after much time and memory.
const char* refusal(std::string_view pattern) {
    if (pattern.size() > TRegexp::longest_pattern) {
        return "the pattern is too long";
    }
    return owl::pattern_size(without_anchors(pattern)) > largest_pattern ? "the pattern is too large" : "";
}

}  // namespace

class TRegexp::Program {
public:
    explicit Program(const char* reason) : m_error(reason) {}

    explicit Program(std::string_view pattern)
        : m_anchor(pattern.substr(0, 1) == "^" ? RE2::ANCHOR_START : RE2::UNANCHORED) {
        m_error = refusal(pattern);
        if (!m_error.empty()) {
            return;
        }
        m_expression = std::make_unique<RE2>(piece(without_anchors(pattern)), options());
        m_error = m_expression->error();
        if (!m_expression->ok()) {
            m_expression.reset();
        }
    }

    const std::string& Error() const { return m_error; }
    bool IsGood() const { return m_expression != nullptr; }

    // The match in `text`, or a piece without an address.
    re2::StringPiece Find(std::string_view text) const {
        re2::StringPiece match;
        if (m_expression == nullptr ||
            !m_expression->Match(piece(text), 0, text.size(), m_anchor, &match, 1)) {
            return {};
        }
        return match;
    }

private:
    RE2::Anchor m_anchor = RE2::UNANCHORED;
    std::string m_error;
    std::unique_ptr<const RE2> m_expression;
};

TRegexp::TRegexp(const char* pattern)
    : m_program(pattern != nullptr ? std::make_unique<const Program>(std::string_view(pattern))
                                   : std::make_unique<const Program>("there is no pattern")) {}

TRegexp::TRegexp(std::string_view pattern) : m_program(std::make_unique<const Program>(pattern)) {}

TRegexp::~TRegexp() = default;

unsigned int TRegexp::find(const char* text, unsigned int* length, unsigned int start) const {
    return text != nullptr ? find(std::string_view(text), length, start) : not_found;
}

unsigned int TRegexp::find(std::string_view text, unsigned int* length, unsigned int start) const {
    text = text.substr(0, longest_text);
    if (start > text.size()) {
        return not_found;
    }
    // An empty view may have no address, and a match of it has one.
    const std::string_view rest = text.empty() ? std::string_view("") : text.substr(start);
    const re2::StringPiece match = m_program->Find(rest);
    if (match.data() == nullptr) {
        return not_found;
    }
    if (length != nullptr) {
        *length = static_cast<unsigned int>(match.size());
    }
    return start + static_cast<unsigned int>(match.data() - rest.data());
}

bool TRegexp::ok() const {
    return m_program->IsGood();
}

const std::string& TRegexp::error() const {
    return m_program->Error();
}
