// tests/text/token_list.h
//
// All tokens of a text, for tests to compare.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "lvx/text/token_stream.h"

namespace lvx_test {

/// A stream over a text of its own.
struct TextStream {
    explicit TextStream(const std::string& characters)
        : text(characters), stream(text.data(), static_cast<int>(text.size())) {}
    TextStream(const std::string& characters, LVXTokens& tokens) : TextStream(characters) {
        stream.useTokens(&tokens);
    }
    LVXTokenStream* operator->() { return &stream; }

    /// The kind and the text of the next token.
    std::pair<int, std::string> Next() {
        std::string token;
        const int kind = stream.getToken(token);
        return {kind, token};
    }
    long Position() { return static_cast<long>(stream.tellg()); }

    std::string text;
    LVXTokenStream stream;
};

using TokenList = std::vector<std::pair<int, std::string>>;

/// All up to the end, which is not among them.
inline TokenList tokens_of(const std::string& text, LVXTokens& tokens) {
    TextStream stream(text, tokens);
    TokenList list;
    for (auto token = stream.Next(); token.first != 0; token = stream.Next()) {
        list.push_back(token);
    }
    return list;
}

inline TokenList default_tokens_of(const std::string& text) {
    LVXTokens tokens;
    tokens.setDefault();
    return tokens_of(text, tokens);
}

}  // namespace lvx_test
