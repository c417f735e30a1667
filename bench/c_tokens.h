// bench/c_tokens.h
//
// The tokens of C as twelve patterns, all of one priority, in a syntax that TRegexp, PCRE2 and flex read
// alike: blanks stand in brackets only, and what any of them takes for an operator has a backslash.
// Alternatives stand with the longer in front, for those that take the first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace lvx_bench {

constexpr const char* c_token_patterns[] = {
    // Blanks, comments and directives.
    R"([ \t\r\n\f]+)", R"(\/\*([^*]|\*+[^*\/])*\*+\/)", R"(\/\/[^\n]*)", R"(#[ \t]*[a-z_]+)",
    // Keywords and names.
    "(auto|break|case|char|const|continue|default|double|do|else|enum|extern|float|for|goto|if|inline|int|"
    "long|"
    "register|return|short|signed|sizeof|static|struct|switch|typedef|union|unsigned|void|volatile|while)",
    "[A-Za-z_][A-Za-z0-9_]*",
    // Numbers, strings and characters.
    "0[xX][0-9A-Fa-f]+[uUlL]*", "[0-9]+[uUlL]*", R"(([0-9]+\.[0-9]*|\.[0-9]+)([eE][-+]?[0-9]+)?[fFlL]?)",
    R"(\"([^\"\\\n]|\\.)*\")", R"('([^'\\\n]|\\.)+')",
    // Punctuation.
    R"(\.\.\.|\<\<=|\>\>=|-\>|\+\+|--|\<\<|\>\>|&&|\|\||##|[-+*\/%&|^=!\<\>]=|[-+*\/%&|^=!\<\>\[\](){};,:?.~#\\])"};

constexpr std::size_t c_token_count = std::size(c_token_patterns);

/// What all that a scanner has found comes to. A token is the place of its pattern; c_token_count stands for
/// a byte that begins none.
class TokenSum {
public:
    void Add(std::size_t token, std::size_t length) {
        m_sum = (m_sum ^ (token + length * 16)) * 0x100000001B3u;
    }
    std::uint64_t Sum() const { return m_sum; }

private:
    std::uint64_t m_sum = 0;
};

}  // namespace lvx_bench
