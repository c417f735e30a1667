// tests/text/all_texts.h
//
// Inputs for tests that compare a function with a second coding of its rule: every short text over an
// alphabet, and long ones drawn at random, the same in each run.
#pragma once

#include <cstddef>
#include <functional>
#include <random>
#include <string>

/// Calls `visit` with each text over `alphabet` of at most `longest` characters, the empty one too.
inline void for_each_text(const std::string& alphabet, std::size_t longest,
                          const std::function<void(const std::string&)>& visit,
                          const std::string& prefix = {}) {
    visit(prefix);
    if (prefix.size() == longest) {
        return;
    }
    for (const char character : alphabet) {
        for_each_text(alphabet, longest, visit, prefix + character);
    }
}

/// Calls `visit` with `count` random texts over `alphabet` of at most `longest` characters.
inline void for_random_texts(const std::string& alphabet, std::size_t longest, int count,
                             const std::function<void(const std::string&)>& visit) {
    std::mt19937 random(20040229);
    for (int i = 0; i < count; ++i) {
        std::string text(random() % (longest + 1), '\0');
        for (char& character : text) {
            character = alphabet[random() % alphabet.size()];
        }
        visit(text);
    }
}

/// Each of the 256 values of a char, in order.
inline std::string every_char() {
    std::string text;
    for (int value = 0; value < 256; ++value) {
        text += static_cast<char>(value);
    }
    return text;
}
