// bench/token_scanners.h
//
// Ways to cut a text into the tokens of the default table.
#pragma once

#include <cctype>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "lvx/text/token_stream.h"

namespace lvx_bench {

/// What a caller does with a token at least: looks at its kind and its length.
struct TokenCount {
    void operator()(int kind, std::string_view text) {
        tokens += kind != 0 ? 1 : 0;
        characters += text.size();
    }
    std::size_t tokens = 0;
    std::size_t characters = 0;
};

/// A number made from all tokens with their kinds.
struct TokenHash {
    void operator()(int kind, std::string_view text) {
        Add(kind);
        for (const char character : text) {
            Add(static_cast<unsigned char>(character));
        }
    }
    void Add(int number) { sum = (sum ^ static_cast<std::uint64_t>(number)) * 0x100000001B3u; }
    std::uint64_t sum = 0;
};

/// The token stream drops what is longer, and the headers have such names.
constexpr std::size_t longest_token = 49;

/// A number made from the characters of tokens that are seen in print, however they are cut into tokens. Of
/// names no more than a token keeps.
struct PrintHash {
    void operator()(int, std::string_view text) {
        std::size_t length_of_name = 0;
        for (const char character : text) {
            const bool in_name = std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_';
            length_of_name = in_name ? length_of_name + 1 : 0;
            if (character > ' ' && character <= '~' && length_of_name <= longest_token) {
                hash.Add(character);
            }
        }
    }
    TokenHash hash;
};

template <class Visitor>
Visitor scan_with_token_stream(std::string& text) {
    Visitor visit;
    std::string token;
    LVXTokenStream stream(text.data(), static_cast<int>(text.size()));
    while (const int kind = stream.getToken(token)) {
        visit(kind, token);
    }
    return visit;
}

/// Requires: two NULs at the end of the text, which are no part of it. Defined for the three visitors above.
template <class Visitor>
Visitor scan_with_token_flex(std::string& text);

}  // namespace lvx_bench
