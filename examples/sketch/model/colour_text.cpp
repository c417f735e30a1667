#include "sketch/model/colour_text.h"

#include <cstdlib>

namespace sketch {
namespace {

constexpr const char* digits = "0123456789ABCDEF";

std::string TwoDigits(int value) {
    return {digits[value / 16], digits[value % 16]};
}

}  // namespace

std::string ColourText(const owl::TColor& colour) {
    const owl::TColor rgb = colour.Rgb();
    return "#" + TwoDigits(rgb.Red()) + TwoDigits(rgb.Green()) + TwoDigits(rgb.Blue());
}

std::optional<owl::TColor> ParseColour(const std::string& text) {
    if (text.size() != 7 || text[0] != '#' ||
        text.find_first_not_of("0123456789ABCDEFabcdef", 1) != std::string::npos) {
        return std::nullopt;
    }
    const long value = std::strtol(text.c_str() + 1, nullptr, 16);
    return owl::TColor(static_cast<int>(value >> 16), static_cast<int>(value >> 8 & 0xFF),
                       static_cast<int>(value & 0xFF));
}

}  // namespace sketch
