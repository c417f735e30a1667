// How the lines of a text end: in documents by one letter, in the system's fields and on the clipboard by
// two.
#pragma once

#include <string>

namespace sketch {

inline std::string WithPlainLineEnds(std::string words) {
    std::erase(words, '\r');
    return words;
}

inline std::string WithSystemLineEnds(const std::string& words) {
    std::string text;
    for (const char letter : words) {
        text += letter == '\n' ? "\r\n" : std::string(1, letter);
    }
    return text;
}

}  // namespace sketch
