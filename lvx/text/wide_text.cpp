#include "lvx/text/strings.h"

namespace lvx {

std::wstring widen(const std::string& text) {
    const std::locale locale;
    const auto& letters = std::use_facet<std::ctype<wchar_t>>(locale);
    std::wstring wide;
    wide.reserve(text.size());
    for (const char character : text) {
        wide += letters.widen(character);
    }
    return wide;
}

std::string narrow(const std::wstring& text, char fallback) {
    const std::locale locale;
    const auto& letters = std::use_facet<std::ctype<wchar_t>>(locale);
    std::string narrowed;
    narrowed.reserve(text.size());
    for (const wchar_t character : text) {
        narrowed += letters.narrow(character, fallback);
    }
    return narrowed;
}

}  // namespace lvx
