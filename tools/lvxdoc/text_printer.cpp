#include "tools/lvxdoc/text_printer.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "tools/lvxdoc/text.h"

namespace lvxdoc {
namespace {

using Kind = Event::Kind;

// A nest of a million objects would else take lines of a million blanks.
constexpr std::size_t deepest_indentation = 30;
constexpr std::size_t longest_shown_text = 200;

std::string padded(const std::string& text, std::size_t width) {
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

std::string hex_byte(std::int64_t byte) {
    const char character = static_cast<char>(byte);
    return "0x" + hex_bytes({&character, 1});
}

std::string quoted_text(const Event& event) {
    const std::string_view shown = event.text.substr(0, longest_shown_text);
    const std::string more =
        shown.size() < event.length ? "... (" + counted(event.length, "byte") + ")" : std::string();
    return '"' + escape_bytes(shown) + '"' + more;
}

std::string raw_bytes(const Event& event) {
    const std::string more = event.text.size() < event.length ? "..." : "";
    return counted(event.length, "byte") + ", CRC-32 " + hex_offset(event.checksum).substr(2) +
           (event.length == 0 ? "" : ": " + hex_bytes(event.text) + more);
}

std::string value_of(const Event& event) {
    switch (event.kind) {
        case Kind::boolean:
            return event.number == 0   ? "false"
                   : event.number == 1 ? "true"
                                       : "true (" + std::to_string(event.number) + ")";
        case Kind::real:
            return shortest(event.real);
        case Kind::text:
            return quoted_text(event);
        case Kind::raw:
            return raw_bytes(event);
        default:
            return std::to_string(event.number);
    }
}

}  // namespace

std::string shortest(double value) {
    std::array<char, 32> digits;
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return {digits.data(), result.ptr};
}

std::string describe(const Event& event) {
    const std::string number = std::to_string(event.number);
    switch (event.kind) {
        case Kind::marker:
            return "marker " + std::string(event.text) + (event.text == "A" ? " (ascii)" : " (binary)");
        case Kind::class_name:
            return "class " + number + " by name, \"" + escape_bytes(event.text) + '"';
        case Kind::class_number:
            return "class " + number + " by number, \"" + escape_bytes(event.text) + '"';
        case Kind::object:
            return "object " + number;
        case Kind::reference:
            return "reference to object " + number + ", \"" + escape_bytes(event.text) + '"';
        case Kind::null:
            return "null";
        case Kind::unknown_tag:
            return "unknown tag " + hex_byte(event.number) + ", read as null";
        default:
            return std::string(event.type) + ' ' + std::string(event.name) + " = " + value_of(event);
    }
}

void TextPrinter::Take(const Event& event) {
    const std::size_t indentation = 2 * std::min(event.depth, deepest_indentation);
    m_output.Line(padded(std::to_string(event.offset), 10) + "  " + hex_offset(event.offset) + "  " +
                  std::string(indentation, ' ') + describe(event));
}

}  // namespace lvxdoc
