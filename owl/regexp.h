// owl/regexp.h
//
// A regular expression over bytes. A search takes time in proportion to the text, at worst times the size of
// the pattern, and never more; a match may have any length. Among the matches that begin first it finds the
// longest: "a|ab" takes the whole of "ab". docs/patterns.md has the syntax with examples. Constant operations
// may run on several threads at once. Does not: know encodings (a pattern and a text are bytes, "." is any
// byte but a line feed), tell where groups lie, print anything about a bad pattern.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "owl/platform/export.h"

class OWL_EXPORT TRegexp {
public:
    enum : unsigned int {
        /// What find() returns when nothing matches: all bits set.
        not_found = ~0u,
        /// Bytes of the longest pattern that is compiled.
        longest_pattern = 16384
    };

    /// Compiles `pattern`, which may be deleted afterwards. Each "^" at its very start anchors all of it,
    /// alternatives too, at the position where a search starts: "^a|b" finds no b further right. A pattern
    /// that is null, against the syntax, longer than `longest_pattern` or too large is bad: the object
    /// exists, never matches, and tells why in error(). Too large is what its counted repetitions, written
    /// out, make of some ten thousand bytes and optional parts or more, such as "(a{1000}){1000}";
    /// docs/patterns.md has the count. The worst pattern that is not takes some tenths of a second to
    /// compile; with its searches it holds some ten MiB. Throws std::bad_alloc.
    explicit TRegexp(const char* pattern);
    /// Likewise of a pattern that may hold NULs. They are ordinary bytes.
    explicit TRegexp(std::string_view pattern);
    ~TRegexp();
    TRegexp(const TRegexp&) = delete;
    TRegexp& operator=(const TRegexp&) = delete;

    /// The position of the first match in `text` that begins at `start` or behind it, or `not_found`.
    /// `length` receives the bytes of the match; it may be null, and stays as it is when nothing matches.
    /// What stands before `start` is invisible: "^" and "\A" match there, "\b" sees no letter to the left. A
    /// match may be empty, also at the end of the text; a `start` behind the end finds nothing, nor does a
    /// null `text`. Each call measures the whole text: where the length is known, the other form is faster.
    unsigned int find(const char* text, unsigned int* length, unsigned int start) const;
    /// Likewise in a text whose NULs are ordinary bytes. Of a text of 4 GiB or more only the first 2^32 - 2
    /// bytes are seen, as if it ended there.
    unsigned int find(std::string_view text, unsigned int* length, unsigned int start) const;

    /// Whether the pattern was understood. A bad one never matches.
    bool ok() const;
    /// Why a pattern is bad, in English, such as "missing ): (ab"; empty if ok().
    const std::string& error() const;

private:
    class Program;

    std::unique_ptr<const Program> m_program;
};
