#include "lvx/platform/posix/element_names.h"

#include <glib.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cwchar>
#include <locale>

#include "lvx/platform/structured_storage.h"

namespace lvx::platform {
namespace {

// Lone low surrogates, which no text has, stand for the bytes 128 to 255 that have no wide character.
constexpr wchar_t escaped_bytes = 0xDC00;

bool is_character(wchar_t unit) {
    const auto value = std::bit_cast<std::uint32_t>(unit);
    return value != 0 && value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
}

std::size_t utf16_length(const std::wstring& text) {
    return text.size() +
           static_cast<std::size_t>(std::ranges::count_if(text, [](wchar_t c) { return c > 0xFFFF; }));
}

bool is_same_character(wchar_t first, wchar_t second) {
    return g_unichar_toupper(static_cast<gunichar>(first)) ==
           g_unichar_toupper(static_cast<gunichar>(second));
}

void append_utf8(std::string& text, wchar_t character) {
    char bytes[6];
    const int length = g_unichar_to_utf8(static_cast<gunichar>(character), bytes);
    text.append(bytes, static_cast<std::size_t>(length));
}

// Appends what the global locale, or else UTF-8, makes of the character.
void append_in_locale(std::string& text, wchar_t character) {
    const std::locale locale;
    const char narrow = std::use_facet<std::ctype<wchar_t>>(locale).narrow(character, '\0');
    if (narrow != '\0') {
        text += narrow;
    } else {
        append_utf8(text, character);
    }
}

}  // namespace

bool is_element_name(const wchar_t* name) {
    const std::size_t length = wcsnlen(name, longest_element_name + 1);
    const std::wstring text(name, length);
    return !text.empty() && utf16_length(text) <= longest_element_name &&
           std::ranges::all_of(text, is_character) && text.find_first_of(L"/\\:!") == std::wstring::npos;
}

bool is_same_element(const std::wstring& first, const std::wstring& second) {
    return std::ranges::equal(first, second, is_same_character);
}

std::optional<std::wstring> wide_from_utf16(std::span<const char16_t> units) {
    std::wstring wide;
    for (std::size_t i = 0; i < units.size(); ++i) {
        auto character = static_cast<wchar_t>(units[i]);
        const bool is_first_half = (units[i] & 0xFC00) == 0xD800;
        if (is_first_half && i + 1 < units.size() && (units[i + 1] & 0xFC00) == 0xDC00) {
            character = 0x10000 + ((units[i] & 0x3FF) << 10) + (units[i + 1] & 0x3FF);
            ++i;
        }
        if (!is_character(character)) {
            return std::nullopt;
        }
        wide += character;
    }
    return wide;
}

std::string utf8_from_wide(const std::wstring& text) {
    std::string bytes;
    for (const wchar_t character : text) {
        append_utf8(bytes, character);
    }
    return bytes;
}

std::optional<std::string> file_name_bytes(const std::wstring& name) {
    std::string bytes;
    for (const wchar_t character : name) {
        if (character > escaped_bytes + 0x7F && character <= escaped_bytes + 0xFF) {
            bytes += static_cast<char>(character - escaped_bytes);
        } else if (!is_character(character)) {
            return std::nullopt;
        } else {
            append_in_locale(bytes, character);
        }
    }
    return bytes.empty() ? std::nullopt : std::optional(bytes);
}

std::wstring file_name_of(std::wstring widened, const std::string& name) {
    for (std::size_t i = 0; i < std::min(widened.size(), name.size()); ++i) {
        if (static_cast<std::wint_t>(widened[i]) == WEOF) {
            widened[i] = escaped_bytes + static_cast<unsigned char>(name[i]);
        }
    }
    return widened;
}

}  // namespace lvx::platform
