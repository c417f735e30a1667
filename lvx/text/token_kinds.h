// lvx/text/token_kinds.h
//
// The built-in kinds of tokens, and the bits that turn them on.
#pragma once

namespace lvx::text {

enum TokenKind : int {
    /// The end of the input too.
    no_token = 0,
    integer = 1,
    floating = 2,
    punctuation = 3,
    word = 4,
    control = 5,
    white_space = 11
};

enum TokenFlag : int {
    integers = 0x01,
    floats = 0x02,
    punctuations = 0x04,
    words = 0x08,
    controls = 0x10,
    white_spaces = 0x20,
    every_kind = 0x3f,
    /// The first-character table is older than the entries.
    changed = 0x40
};

/// The bit of a kind; 0 for whatever is none.
constexpr int flag_of(int kind) {
    switch (kind) {
        case integer:
            return integers;
        case floating:
            return floats;
        case punctuation:
            return punctuations;
        case word:
            return words;
        case control:
            return controls;
        case white_space:
            return white_spaces;
        default:
            return 0;
    }
}

}  // namespace lvx::text
