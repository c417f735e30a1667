// lvx/text/character_class.h
//
// Character classes as those of <cctype> in the "C" locale, whatever locale the process has set: one look-up
// for any char, no call, and nothing undefined for a byte above 127, which belongs to no class.
#pragma once

#include <array>

namespace lvx::text {

enum CharacterClass : unsigned char {
    is_control = 1,
    is_space = 2,
    is_digit = 4,
    /// Letters, digits and "_".
    is_word = 8,
    /// "_" too.
    is_punctuation = 16
};

constexpr unsigned char classify(int code) {
    const bool control = code < 32 || code == 127;
    const bool space = code == ' ' || (code >= '\t' && code <= '\r');
    const bool digit = code >= '0' && code <= '9';
    const bool letter = (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
    const bool punctuation = code > ' ' && code < 127 && !digit && !letter;
    return static_cast<unsigned char>(
        (control ? is_control : 0) | (space ? is_space : 0) | (digit ? is_digit : 0) |
        (digit || letter || code == '_' ? is_word : 0) | (punctuation ? is_punctuation : 0));
}

constexpr std::array<unsigned char, 256> make_character_classes() {
    std::array<unsigned char, 256> classes{};
    for (unsigned int code = 0; code < 128; ++code) {
        classes[code] = classify(static_cast<int>(code));
    }
    return classes;
}

inline constexpr std::array<unsigned char, 256> character_classes = make_character_classes();

/// Whether `character` is in one of `classes`, bits of CharacterClass.
constexpr bool is_of(char character, unsigned int classes) {
    return (character_classes[static_cast<unsigned char>(character)] & classes) != 0;
}

}  // namespace lvx::text
