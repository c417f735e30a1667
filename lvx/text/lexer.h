// lvx/text/lexer.h
//
// Recognises one token at a given position of a text. The host fills a lexer with patterns and steps through
// its text by the lengths that come back; the lexer keeps no position. Owns its patterns. getToken may run on
// several threads at once; addPattern only while nothing else uses the lexer. Does not: skip blanks, report
// bad patterns (they never match), keep anything of a text.
#pragma once

#include <atomic>
#include <string>
#include <vector>

#include "lvx/platform/export.h"
#include "lvx/text/ownership.h"
#include "owl/regexp.h"

namespace lvx::text {
class LexerPlan;
}

class LVX_EXPORT Lexer {
public:
    /// A pattern and what it stands for.
    struct LVX_EXPORT LexPair {
        /// Requires: `pattern` begins with "^", so that it matches nowhere but at the position asked for.
        LexPair(const std::string& pattern, long token, int priority);

        /// The compiled pattern, which knows whether it is a good one.
        TRegexp expression;
        /// The higher wins.
        int priority;
        /// What getToken returns.
        long token;
        /// The text of the pattern, with its anchor.
        std::string pattern;
    };

    /// A lexer without patterns.
    Lexer();
    ~Lexer();
    Lexer(const Lexer&) = delete;
    Lexer& operator=(const Lexer&) = delete;

    /// Adds a pattern behind the present ones. docs/patterns.md has the syntax; a "^" in front is always
    /// added, whether there is one or not. A bad pattern is added and never matches. With a priority below -1
    /// it never wins. Compiles the pattern by itself: microseconds for an ordinary one, some tenths of a
    /// second for the worst. Throws std::bad_alloc, and then leaves the lexer as it was; a null `const char*`
    /// in place of the pattern is std::string's own error.
    void addPattern(std::string pattern, unsigned short token, int priority);

    /// The token at `start`, its length in bytes in `length`; -1 and 0 if no pattern matches there, also when
    /// `start` is behind the end of `text`. The highest priority wins; within one priority the longest match;
    /// among those as long the pattern that was added first. NULs in the text are ordinary characters; of a
    /// text of 4 GiB or more only the first 2^32 - 2 bytes are seen. A pattern that matches the empty text
    /// gives its token with length 0, which is no step forward; but not with priority -1, which wins with
    /// longer matches only.
    /// The first call behind addPattern compiles the patterns together: milliseconds for hundreds of ordinary
    /// ones, some tenths of a second at worst. Each looks at the bytes of the match and at those behind it
    /// that a longer match could have begun with, which may be all: a "/*" without an end is looked for up to
    /// the end of the text. Throws std::bad_alloc.
    long getToken(const std::string& text, unsigned int start, unsigned int& length) const;

private:
    LVX_HIDDEN const lvx::text::LexerPlan& Plan() const;

    lvx::autovector<LexPair> m_pairs;
    // Made of the pairs when it is first needed, by whichever thread comes first.
    mutable std::atomic<const lvx::text::LexerPlan*> m_plan = nullptr;
};
