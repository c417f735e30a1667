// lvx/platform/posix/profile_line.h
//
// The lines of a settings file, and what each of them is. Views into the text throughout.
#pragma once

#include <cstddef>
#include <string_view>

namespace lvx::platform {

/// White space, and the end-of-file character of old editors.
constexpr bool is_profile_blank(char character) {
    return character == ' ' || (character >= '\t' && character <= '\r') || character == '\x1a';
}

std::string_view without_leading_blanks(std::string_view text);

/// Without blanks at both ends. The view begins behind the blanks even if nothing else is there.
std::string_view without_blanks(std::string_view text);

/// What counts of a name: no blanks at its ends, and nothing from a NUL on.
std::string_view profile_name(std::string_view text);

/// Whether two names are the same: the case of the letters A to Z does not matter. Requires: both come from
/// profile_name.
bool same_profile_name(std::string_view one, std::string_view other);

/// One line without its end.
struct ProfileLine {
    enum Kind { Blank, Header, Entry };

    Kind kind = Blank;
    /// Of the section, or the key.
    std::string_view name;
    /// An entry without '=' has none.
    bool has_value = false;
    /// Without blanks round it, with its quotes, up to a NUL.
    std::string_view value;
};

ProfileLine parse_profile_line(std::string_view line);

/// Goes from line to line of `text`. CR LF, LF and CR each end one; the last may lack an end.
class ProfileLines {
public:
    explicit ProfileLines(std::string_view text);

    std::string_view Text() const { return m_text; }
    /// Makes the line that begins at `position` the next one. Requires: no position before one of earlier.
    void MoveTo(std::size_t position);
    /// Whether there was another line; the others then tell of it.
    bool Next();

    std::string_view Line() const { return m_text.substr(m_begin, m_end - m_begin); }
    /// Where the next line begins.
    std::size_t Behind() const { return m_next; }

private:
    std::size_t Find(char character) const;

    std::string_view m_text;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    std::size_t m_next = 0;
    // The next of each kind, each looked for once: a long text that has but one kind costs no more than any.
    std::size_t m_feed;
    std::size_t m_return;
};

}  // namespace lvx::platform
