// Numbers as text. std::to_chars writes them: its digits are exact, and neither the C library's locale nor
// the global std::locale nor the width of a system's exponents shows in them. A document or an edit field
// that holds a number reads the same everywhere, and is_float() accepts it.
#include "lvx/text/strings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

namespace lvx {

namespace {

// Behind these many digits every double has but zeros, which are cut, so that a larger count changes nothing.
constexpr int most_decimals = 1074;
constexpr int most_scientific_decimals = 766;

// What a count below zero means to the C library and to streams alike.
constexpr int default_decimals = 6;

constexpr std::size_t longest_number =
    std::numeric_limits<double>::max_exponent10 + 1 + std::size_t{most_decimals} + std::size_t{8};

std::string printed(double value, std::chars_format format, int decimals) {
    std::array<char, longest_number> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, decimals).ptr;
    return std::string(buffer.data(), end);
}

// Whole numbers to which a negative precision rounds, for -1, -2 and so on.
constexpr std::array<std::uint32_t, 8> units = {5, 10, 50, 100, 500, 1000, 5000, 10000};

std::uint32_t rounding_unit(int precision) {
    const auto last = -static_cast<int>(units.size());
    return precision < last ? 1 : units[static_cast<std::size_t>(-(precision + 1))];
}

// Cuts the fraction off and takes the rest modulo 2^32, as all of the rounding's arithmetic is. Infinities
// and not-a-number have no such rest and give 0.
std::uint32_t cut_to_32_bits(double value) {
    constexpr double range = 4294967296.0;
    const double rest = std::fmod(std::trunc(value), range);
    return std::isnan(rest) ? 0 : static_cast<std::uint32_t>(rest);
}

// Unsigned until the end, so that the product and the negation wrap as they must.
std::int32_t rounded_to_unit(double value, std::uint32_t unit) {
    const std::uint32_t count = cut_to_32_bits(std::fabs(value) / unit + 0.5);
    const std::uint32_t product = count * unit;
    return static_cast<std::int32_t>(value < 0 ? 0 - product : product);
}

void cut_trailing_zeros(std::string& number) {
    number.erase(number.find_last_not_of('0') + 1);
    if (number.ends_with('.')) {
        number.pop_back();
    }
}

// "d.ddde+xx" taken apart.
struct Scientific {
    std::string_view integer;
    std::string_view fraction;
    int exponent = 0;
};

// False if there is no point or no exponent in `text`.
bool split(std::string_view text, Scientific& parts) {
    const std::size_t point = text.find('.');
    const std::size_t e = text.find('e');
    if (point == std::string_view::npos || e == std::string_view::npos) {
        return false;
    }
    parts.integer = text.substr(0, point);
    parts.fraction = text.substr(point + 1, e - point - 1);
    const std::size_t sign_length = text[e + 1] == '+' ? 1 : 0;
    std::from_chars(text.data() + e + 1 + sign_length, text.data() + text.size(), parts.exponent);
    return true;
}

// The same number with its point moved to where an exponent of 0 has it.
std::string without_exponent(const Scientific& parts) {
    const std::string integer(parts.integer);
    const std::string fraction(parts.fraction);
    if (parts.exponent < 0) {
        const auto zeros = static_cast<std::size_t>(-parts.exponent) - integer.size();
        return "0." + std::string(zeros, '0') + integer + fraction;
    }
    const auto shift = static_cast<std::size_t>(parts.exponent);
    if (shift == 0 || shift < fraction.size()) {
        return integer + fraction.substr(0, shift) + "." + fraction.substr(shift);
    }
    return integer + fraction + std::string(shift - fraction.size(), '0');
}

}  // namespace

std::string to_string(double value, int precision) {
    if (precision < 0) {
        return printed(rounded_to_unit(value, rounding_unit(precision)), std::chars_format::fixed, 0);
    }
    std::string number = printed(value, std::chars_format::fixed, std::min(precision, most_decimals));
    if (precision > 0) {
        cut_trailing_zeros(number);
    }
    return number;
}

std::string to_string_ex(double value, int digits) {
    const int decimals = digits > 0 ? std::min(digits - 1, most_scientific_decimals) : default_decimals;
    const std::string text = printed(std::fabs(value), std::chars_format::scientific, decimals);
    Scientific parts;
    if (!split(text, parts)) {
        return "Error!";
    }
    std::string number = without_exponent(parts);
    if (number.find('.') != std::string::npos) {
        cut_trailing_zeros(number);
    }
    return value < 0 ? "-" + number : number;
}

}  // namespace lvx
