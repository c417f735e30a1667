// Patterns and texts from a source of numbers: a random one, or a fuzzer's bytes. What a pattern is made of
// comes up in its texts too, so that matches are neither rare nor sure.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>

namespace lvx_test {

class PatternMaker {
public:
    /// `below(n)` gives a number from 0 to n - 1; all 0 after some time is allowed.
    explicit PatternMaker(std::function<unsigned int(unsigned int)> below) : m_below(std::move(below)) {}

    std::string Pattern() {
        static constexpr const char* odd[] = {"^",   "^^",      "^+",      "*",      "(",
                                              "a|*", "b{2}{2}", "[b-a]",   "(?i)aB", "\\bab\\b",
                                              "b{2", "b{2,",    "b{1001}", "[[:x",   "[a-b-c]"};
        switch (m_below(24)) {
            case 0:
                return odd[m_below(std::size(odd))];
            case 1:
                return "^" + Choice(3);
            default:
                return Choice(3);
        }
    }

    std::string Text(unsigned int longest) {
        std::string text;
        for (unsigned int left = m_below(longest + 1); left > 0; --left) {
            text += m_below(12) == 0 ? static_cast<char>(m_below(256)) : Letter();
        }
        return text;
    }

    int Priority() {
        static constexpr int priorities[] = {0, 0, 0, 1, 1, 2, -1, -1, -2, 2147483647, -2147483647 - 1};
        return priorities[m_below(std::size(priorities))];
    }

private:
    char Letter() { return "aabbc01 -\n"[m_below(10)]; }

    std::string Choice(int depth) {
        std::string choice = Sequence(depth);
        while (m_below(4) == 3) {
            choice += "|" + Sequence(depth);
        }
        return choice;
    }

    std::string Sequence(int depth) {
        std::string sequence;
        for (unsigned int left = m_below(4); left > 0; --left) {
            sequence += Repeat(depth);
        }
        return sequence;
    }

    std::string Repeat(int depth) {
        static constexpr const char* operators[] = {"*",    "+",     "?",      "*?",  "+?",    "??",  "{2}",
                                                    "{1,}", "{0,2}", "{1,3}?", "{0}", "{2,2}", "{,2}"};
        std::string repeat = Atom(depth);
        if (m_below(3) == 2) {
            repeat += operators[m_below(std::size(operators))];
        }
        return repeat;
    }

    std::string Atom(int depth) {
        static constexpr const char* sets[] = {
            ".",       "\\d",  "\\D",    "\\w",          "\\s",   "\\S",          "[ab]",         "[^ab]",
            "[a-c0-]", "[]a]", "[^]b-]", "[[:alpha:]-]", "\\x61", "[\\x30-\\d]",  "[[:^space:]]", "[^\\D1]",
            "\\-",     "\\W",  "[--a]",  "[a\\-z]",      "\xE9",  "[^\xE0-\xFF]", "\\a",          "[\\f\\v]"};
        // What only TRegexp understands.
        static constexpr const char* foreign[] = {"$",    "^",      "\\b",      "\\B",
                                                  "\\pL", "(?i:b)", "\\Qa+\\E", "\\z"};
        switch (m_below(12)) {
            case 0:
            case 1:
                return depth > 0 ? "(" + Choice(depth - 1) + ")" : "a";
            case 2:
                return depth > 0 ? "(?:" + Choice(depth - 1) + ")" : "b";
            case 3:
            case 4:
            case 5:
                return sets[m_below(std::size(sets))];
            case 6:
                if (m_below(16) == 0) {
                    return std::string(1, '\0');
                }
                return m_below(4) == 0 ? foreign[m_below(std::size(foreign))] : "c";
            default:
                return std::string(1, Letter());
        }
    }

    std::function<unsigned int(unsigned int)> m_below;
};

}  // namespace lvx_test
