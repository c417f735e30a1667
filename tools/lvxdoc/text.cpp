#include "tools/lvxdoc/text.h"

#include <algorithm>
#include <iterator>

namespace lvxdoc {
namespace {

constexpr char digits[] = "0123456789abcdef";

std::string hex(std::uint64_t value, unsigned width) {
    std::string text;
    for (; value != 0 || text.size() < width; value >>= 4) {
        text.insert(text.begin(), digits[value & 15]);
    }
    return text;
}

bool is_printable(unsigned char byte) {
    return byte >= 0x20 && byte < 0x7f;
}

void append_utf8(std::string& text, char32_t character) {
    const auto bits = static_cast<std::uint32_t>(character);
    const auto tail = [bits](unsigned shift) { return static_cast<char>(0x80 | (bits >> shift & 0x3f)); };
    if (bits < 0x80) {
        text += static_cast<char>(bits);
    } else if (bits < 0x800) {
        text += {static_cast<char>(0xc0 | bits >> 6), tail(0)};
    } else if (bits < 0x10000) {
        text += {static_cast<char>(0xe0 | bits >> 12), tail(6), tail(0)};
    } else {
        text += {static_cast<char>(0xf0 | bits >> 18), tail(12), tail(6), tail(0)};
    }
}

// Marks that turn the direction of text, or take no room, could make one name look like another.
bool is_deceptive(char32_t character) {
    struct Range {
        char32_t first;
        char32_t last;
    };
    constexpr Range ranges[] = {
        {0x0000, 0x001f},  // control characters
        {0x007f, 0x009f},  // more of them
        {0x00ad, 0x00ad},  // soft hyphen
        {0x034f, 0x034f},  // grapheme joiner
        {0x061c, 0x061c},  // Arabic letter mark
        {0x115f, 0x1160},  // Hangul fillers
        {0x17b4, 0x17b5},  // Khmer vowels that are not drawn
        {0x180b, 0x180f},  // Mongolian selectors and separator
        {0x200b, 0x200f},  // zero-width characters, direction marks
        {0x2028, 0x202e},  // line ends, embeddings and overrides
        {0x2060, 0x206f},  // joiners, isolates, invisible operators
        {0x3164, 0x3164},  // Hangul filler
        {0xd800, 0xdfff},  // halves of pairs
        {0xfe00, 0xfe0f},  // variation selectors
        {0xfeff, 0xfeff},  // byte order mark
        {0xffa0, 0xffa0},  // halfwidth filler
        {0xfff0, 0xfffb},  // reserved, annotations
        {0xfffe, 0xffff},  // no characters
    };
    return std::any_of(std::begin(ranges), std::end(ranges), [character](const Range& range) {
        return character >= range.first && character <= range.last;
    });
}

bool is_pair(std::u16string_view name, std::size_t i) {
    return (name[i] & 0xfc00) == 0xd800 && i + 1 < name.size() && (name[i + 1] & 0xfc00) == 0xdc00;
}

// How many bytes the UTF-8 character at the front of `text` has; 0 if there is none.
std::size_t utf8_length(std::string_view text) {
    const auto at = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = at(0);
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xc2 ? 0 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
    if (length == 0 || lead > 0xf4 || text.size() < length) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((at(i) & 0xc0) != 0x80) {
            return 0;
        }
    }
    const bool overlong = (lead == 0xe0 && at(1) < 0xa0) || (lead == 0xf0 && at(1) < 0x90);
    const bool surrogate = lead == 0xed && at(1) >= 0xa0;
    const bool too_high = lead == 0xf4 && at(1) >= 0x90;
    return overlong || surrogate || too_high ? 0 : length;
}

std::string json_byte(unsigned char byte) {
    if (byte == '"' || byte == '\\') {
        return {'\\', static_cast<char>(byte)};
    }
    return is_printable(byte) ? std::string(1, static_cast<char>(byte)) : "\\u" + hex(byte, 4);
}

}  // namespace

std::string escape_bytes(std::string_view bytes) {
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            text += '\\';
        }
        text += is_printable(byte) ? std::string(1, c) : "\\x" + hex(byte, 2);
    }
    return text;
}

std::string escape_name(std::u16string_view name) {
    std::string text;
    for (std::size_t i = 0; i < name.size(); ++i) {
        char32_t character = name[i];
        if (is_pair(name, i)) {
            character = 0x10000 + ((character & 0x3ff) << 10) + (name[++i] & 0x3ffu);
        }
        if (character == u'/' || character == u'\\' || (character < 0x100 && is_deceptive(character))) {
            text += "\\x" + hex(character, 2);
        } else if (is_deceptive(character)) {
            text += "\\u" + hex(character, 4);
        } else {
            append_utf8(text, character);
        }
    }
    return text;
}

std::string json_bytes(std::string_view bytes) {
    std::string text = "\"";
    for (const char c : bytes) {
        text += json_byte(static_cast<unsigned char>(c));
    }
    return text + '"';
}

std::string json_text(std::string_view text) {
    std::string quoted = "\"";
    while (!text.empty()) {
        const std::size_t length = utf8_length(text);
        if (length == 1) {
            quoted += json_byte(static_cast<unsigned char>(text[0]));
        } else {
            quoted += length == 0 ? "\\ufffd" : text.substr(0, length);
        }
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return quoted + '"';
}

std::string hex_bytes(std::string_view bytes) {
    std::string text;
    for (const char c : bytes) {
        text += hex(static_cast<unsigned char>(c), 2);
    }
    return text;
}

std::string hex_offset(std::uint64_t offset) {
    return "0x" + hex(offset, 8);
}

std::string counted(std::uint64_t count, const std::string& noun) {
    return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

bool same_but_for_case(std::string_view one, std::string_view other) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [lower](char a, char b) { return lower(a) == lower(b); });
}

}  // namespace lvxdoc
