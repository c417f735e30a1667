#include "lvx/text/strings.h"

#include <utility>

namespace lvx {

namespace {

// One character at a time, because a host's own facet may override the form for one character alone.
template <class Text, class Convert>
Text converted(Text text, Convert convert) {
    for (auto& character : text) {
        character = convert(character);
    }
    return text;
}

std::wstring copied(const wchar_t* text) {
    return text ? std::wstring(text) : std::wstring();
}

}  // namespace

std::string to_lower(std::string text) {
    const std::locale locale;
    const auto& letters = std::use_facet<std::ctype<char>>(locale);
    return converted(std::move(text), [&](char c) { return letters.tolower(c); });
}

std::string to_upper(std::string text) {
    const std::locale locale;
    const auto& letters = std::use_facet<std::ctype<char>>(locale);
    return converted(std::move(text), [&](char c) { return letters.toupper(c); });
}

std::wstring to_lower(const wchar_t* text, const std::locale& locale) {
    const auto& letters = std::use_facet<std::ctype<wchar_t>>(locale);
    return converted(copied(text), [&](wchar_t c) { return letters.tolower(c); });
}

std::wstring to_upper(const wchar_t* text, const std::locale& locale) {
    const auto& letters = std::use_facet<std::ctype<wchar_t>>(locale);
    return converted(copied(text), [&](wchar_t c) { return letters.toupper(c); });
}

std::string capitalise(std::string text) {
    const std::locale locale;
    const auto& letters = std::use_facet<std::ctype<char>>(locale);
    bool starts_word = true;
    return converted(std::move(text), [&](char c) {
        const char written = starts_word ? letters.toupper(c) : letters.tolower(c);
        starts_word = letters.is(std::ctype_base::space, written);
        return written;
    });
}

}  // namespace lvx
