#include "lvx/platform/posix/profile_encoding.h"

#include <cstddef>
#include <cstdint>

namespace lvx::platform {
namespace {

constexpr std::string_view utf8_mark = "\xEF\xBB\xBF";
constexpr std::string_view little_mark = "\xFF\xFE";
constexpr std::string_view big_mark = "\xFE\xFF";
constexpr char32_t replacement = 0xFFFD;

std::string_view mark_of(ProfileEncoding encoding) {
    switch (encoding) {
        case ProfileEncoding::Utf8:
            return utf8_mark;
        case ProfileEncoding::Utf16Little:
            return little_mark;
        case ProfileEncoding::Utf16Big:
            return big_mark;
        case ProfileEncoding::Bytes:
            break;
    }
    return {};
}

bool is_utf16(ProfileEncoding encoding) {
    return encoding == ProfileEncoding::Utf16Little || encoding == ProfileEncoding::Utf16Big;
}

char32_t unit_at(std::string_view bytes, std::size_t position, ProfileEncoding encoding) {
    const auto first = static_cast<unsigned char>(bytes[position]);
    const auto second = static_cast<unsigned char>(bytes[position + 1]);
    return encoding == ProfileEncoding::Utf16Little ? static_cast<char32_t>(first | second << 8)
                                                    : static_cast<char32_t>(first << 8 | second);
}

bool is_high_surrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool is_low_surrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

void append_utf8(std::string& text, char32_t character) {
    const auto byte = [&text](char32_t value) { text += static_cast<char>(value); };
    const auto continuation = [&byte](char32_t bits) { byte(0x80 | (bits & 0x3F)); };
    if (character < 0x80) {
        byte(character);
    } else if (character < 0x800) {
        byte(0xC0 | character >> 6);
        continuation(character);
    } else if (character < 0x10000) {
        byte(0xE0 | character >> 12);
        continuation(character >> 6);
        continuation(character);
    } else {
        byte(0xF0 | character >> 18);
        continuation(character >> 12);
        continuation(character >> 6);
        continuation(character);
    }
}

std::string utf8_of(std::string_view bytes, ProfileEncoding encoding) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        char32_t character = unit_at(bytes, i, encoding);
        if (is_high_surrogate(character) && i + 3 < bytes.size()) {
            const char32_t low = unit_at(bytes, i + 2, encoding);
            if (is_low_surrogate(low)) {
                character = 0x10000 + ((character - 0xD800) << 10) + (low - 0xDC00);
                i += 2;
            }
        }
        append_utf8(text, character);
    }
    return text;
}

// How many bytes the character that begins with this one has; 0 if none begins so.
std::size_t utf8_length(unsigned char first) {
    if (first < 0x80) {
        return 1;
    }
    if (first >= 0xC2 && first < 0xE0) {
        return 2;
    }
    if (first >= 0xE0 && first < 0xF0) {
        return 3;
    }
    return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

// Takes one character off the front of `text`, or one byte that is none.
char32_t take_character(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text[0]);
    const std::size_t length = utf8_length(first);
    char32_t character = length == 1 ? first : first & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
        if ((byte & 0xC0U) != 0x80U) {
            text.remove_prefix(1);
            return replacement;
        }
        character = character << 6 | (byte & 0x3FU);
    }
    constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
    if (length == 0 || character < least[length] || character > 0x10FFFF) {
        text.remove_prefix(1);
        return replacement;
    }
    text.remove_prefix(length);
    return character;
}

void append_unit(std::string& bytes, char32_t unit, ProfileEncoding encoding) {
    const auto low = static_cast<char>(unit & 0xFF);
    const auto high = static_cast<char>(unit >> 8 & 0xFF);
    const bool low_first = encoding == ProfileEncoding::Utf16Little;
    bytes += low_first ? low : high;
    bytes += low_first ? high : low;
}

void append_utf16(std::string& bytes, std::string_view text, ProfileEncoding encoding) {
    while (!text.empty()) {
        const char32_t character = take_character(text);
        if (character < 0x10000) {
            append_unit(bytes, character, encoding);
        } else {
            append_unit(bytes, 0xD800 + ((character - 0x10000) >> 10), encoding);
            append_unit(bytes, 0xDC00 + ((character - 0x10000) & 0x3FF), encoding);
        }
    }
}

}  // namespace

ProfileEncoding profile_encoding(std::string_view bytes) {
    for (const auto encoding :
         {ProfileEncoding::Utf8, ProfileEncoding::Utf16Little, ProfileEncoding::Utf16Big}) {
        if (bytes.starts_with(mark_of(encoding))) {
            return encoding;
        }
    }
    return ProfileEncoding::Bytes;
}

ProfileText::ProfileText(std::string_view bytes) : m_encoding(profile_encoding(bytes)) {
    bytes.remove_prefix(mark_of(m_encoding).size());
    if (is_utf16(m_encoding)) {
        m_converted = utf8_of(bytes, m_encoding);
        m_text = m_converted;
    } else {
        m_text = bytes;
    }
}

std::string profile_bytes(ProfileEncoding encoding, std::string_view text) {
    std::string bytes(mark_of(encoding));
    if (is_utf16(encoding)) {
        append_utf16(bytes, text, encoding);
    } else {
        bytes += text;
    }
    return bytes;
}

}  // namespace lvx::platform
