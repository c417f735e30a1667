#include "lvx/text/byte_set.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace lvx::text {
namespace {

using namespace std::string_view_literals;

struct NamedSet {
    std::string_view name;
    std::string_view ranges;
};

constexpr NamedSet named_sets[] = {{"alnum", "09AZaz"},
                                   {"alpha", "AZaz"},
                                   {"ascii", "\0\x7F"sv},
                                   {"blank", "\t\t  "},
                                   {"cntrl", "\0\x1F\x7F\x7F"sv},
                                   {"digit", "09"},
                                   {"graph", "!~"},
                                   {"lower", "az"},
                                   {"print", " ~"},
                                   {"punct", "!/:@[`{~"},
                                   {"space", "\t\r  "},
                                   {"upper", "AZ"},
                                   {"word", "09AZ__az"},
                                   {"xdigit", "09AFaf"},
                                   // These stand behind a backslash; the vertical tab is not in the last.
                                   {"d", "09"},
                                   {"w", "09AZ__az"},
                                   {"s", "\t\n\f\r  "}};

std::optional<ByteSet> find_named_set(std::string_view name) {
    const auto* const found = std::find_if(std::begin(named_sets), std::end(named_sets),
                                           [name](const NamedSet& set) { return set.name == name; });
    return found != std::end(named_sets) ? std::optional(set_of_ranges(found->ranges)) : std::nullopt;
}

std::size_t index_of(char byte) {
    return static_cast<unsigned char>(byte);
}

char take(std::string_view& rest) {
    const char first = rest.front();
    rest.remove_prefix(1);
    return first;
}

bool is_in(char byte, std::string_view list) {
    return list.find(byte) != std::string_view::npos;
}

// "\d" and its like; behind the backslash.
std::optional<ByteSet> parse_perl_set(std::string_view& rest) {
    if (rest.empty() || !is_in(rest.front(), "dwsDWS")) {
        return std::nullopt;
    }
    const char letter = take(rest);
    const char lower = static_cast<char>(letter | 0x20);
    const std::optional<ByteSet> set = find_named_set({&lower, 1});
    return lower == letter ? *set : ~*set;
}

int hexadecimal_digit(char digit) {
    constexpr std::string_view digits = "0123456789abcdef0123456789ABCDEF";
    const std::size_t place = digits.find(digit);
    return place != std::string_view::npos ? static_cast<int>(place % 16) : -1;
}

// Two digits, without braces.
std::optional<char> parse_hexadecimal(std::string_view& rest) {
    if (rest.size() < 2 || hexadecimal_digit(rest[0]) < 0 || hexadecimal_digit(rest[1]) < 0) {
        return std::nullopt;
    }
    const int high = hexadecimal_digit(take(rest));
    return static_cast<char>(high * 16 + hexadecimal_digit(take(rest)));
}

bool is_punctuation(char byte) {
    static const ByteSet punctuation = *find_named_set("punct");
    return punctuation[index_of(byte)];
}

// A backslash that stands for one byte; behind the backslash.
std::optional<char> parse_escaped_byte(std::string_view& rest) {
    constexpr std::string_view letters = "afnrtv";
    constexpr std::string_view meanings = "\a\f\n\r\t\v";
    if (rest.empty()) {
        return std::nullopt;
    }
    const char letter = take(rest);
    if (letter == 'x') {
        return parse_hexadecimal(rest);
    }
    if (is_punctuation(letter)) {
        return letter;
    }
    const std::size_t place = letters.find(letter);
    return place != std::string_view::npos ? std::optional(meanings[place]) : std::nullopt;
}

// One end of a range inside of brackets.
std::optional<char> parse_listed_byte(std::string_view& rest) {
    if (rest.empty()) {
        return std::nullopt;
    }
    const char byte = take(rest);
    return byte == '\\' ? parse_escaped_byte(rest) : byte;
}

// "a" or "a-z". A hyphen in front of the closing bracket stands for itself.
std::optional<ByteSet> parse_range(std::string_view& rest) {
    const std::optional<char> first = parse_listed_byte(rest);
    std::optional<char> last = first;
    if (rest.size() >= 2 && rest[0] == '-' && rest[1] != ']') {
        take(rest);
        last = parse_listed_byte(rest);
    }
    if (!first || !last || index_of(*last) < index_of(*first)) {
        return std::nullopt;
    }
    const char ends[] = {*first, *last};
    return set_of_ranges({ends, 2});
}

// "[:alpha:]" or "[:^alpha:]".
std::optional<ByteSet> parse_posix_set(std::string_view& rest) {
    const std::size_t end = rest.find(":]", 2);
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view name = rest.substr(2, end - 2);
    rest.remove_prefix(end + 2);
    const bool negated = name.substr(0, 1) == "^";
    name.remove_prefix(negated ? 1 : 0);
    // A name of one letter is one of a backslash's.
    const std::optional<ByteSet> set = name.size() > 1 ? find_named_set(name) : std::nullopt;
    return set && negated ? ~*set : set;
}

std::optional<ByteSet> parse_listed_set(std::string_view& rest) {
    if (rest.substr(0, 2) == "[:") {
        return parse_posix_set(rest);
    }
    if (rest.size() >= 2 && rest[0] == '\\' && is_in(rest[1], "dwsDWS")) {
        take(rest);
        return parse_perl_set(rest);
    }
    return parse_range(rest);
}

}  // namespace

ByteSet set_of_ranges(std::string_view ranges) {
    ByteSet set;
    for (std::size_t i = 0; i + 1 < ranges.size(); i += 2) {
        for (std::size_t byte = index_of(ranges[i]); byte <= index_of(ranges[i + 1]); ++byte) {
            set.set(byte);
        }
    }
    return set;
}

std::optional<ByteSet> parse_escaped_set(std::string_view& rest) {
    if (const std::optional<ByteSet> set = parse_perl_set(rest)) {
        return set;
    }
    const std::optional<char> byte = parse_escaped_byte(rest);
    return byte ? std::optional(ByteSet().set(index_of(*byte))) : std::nullopt;
}

std::optional<ByteSet> parse_bracket_set(std::string_view& rest) {
    const bool negated = rest.substr(0, 1) == "^";
    rest.remove_prefix(negated ? 1 : 0);
    ByteSet all;
    // A closing bracket that comes first stands for itself.
    for (bool first = true; !rest.empty() && (first || rest.front() != ']'); first = false) {
        const std::optional<ByteSet> set = parse_listed_set(rest);
        if (!set) {
            return std::nullopt;
        }
        all |= *set;
    }
    if (rest.empty()) {
        return std::nullopt;
    }
    take(rest);
    return negated ? ~all : all;
}

}  // namespace lvx::text
