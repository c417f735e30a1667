#include "lvx/text/strings.h"

#include <cstddef>
#include <string_view>

namespace lvx {

namespace {

// Letters, each followed by the character that it stands for when escaped. The whole table is searched, not
// its letters alone: a raw control character gives its successor, the next letter, and the last one gives
// NUL. Texts of older documents rely on it.
constexpr std::string_view escape_table = "b\bn\nr\rt\t";

char meaning_of(char escaped) {
    const std::size_t found = escape_table.find(escaped);
    if (found == std::string_view::npos) {
        return escaped;
    }
    return found + 1 < escape_table.size() ? escape_table[found + 1] : '\0';
}

}  // namespace

std::string add_escapes(const std::string& text, const std::string& special, char escape) {
    // With its terminator, which makes a NUL special, and without what follows that.
    const std::string_view specials(special.c_str(), std::string_view(special.c_str()).size() + 1);
    std::string escaped;
    escaped.reserve(text.size());
    for (const char character : text) {
        if (specials.find(character) != std::string_view::npos) {
            escaped += escape;
        }
        escaped += character;
    }
    return escaped;
}

std::string strip_escapes(const std::string& text, char escape) {
    std::string stripped;
    stripped.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool starts_pair = text[i] == escape && i + 1 < text.size();
        stripped += starts_pair ? meaning_of(text[++i]) : text[i];
    }
    return stripped;
}

}  // namespace lvx
