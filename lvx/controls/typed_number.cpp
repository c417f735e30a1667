#include "lvx/controls/typed_number.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "lvx/text/character_class.h"

namespace lvx::controls {

namespace {

struct SignedText {
    bool negative = false;
    /// What follows the sign.
    std::string_view digits;
};

std::string_view without_space(std::string_view text) {
    while (!text.empty() && text::is_of(text.front(), text::is_space)) {
        text.remove_prefix(1);
    }
    return text;
}

SignedText without_sign(std::string_view text) {
    text = without_space(text);
    const bool isSigned = text.starts_with('-') || text.starts_with('+');
    return {text.starts_with('-'), text.substr(isSigned ? 1 : 0)};
}

bool begins_with_digit(std::string_view text) {
    return !text.empty() && text::is_of(text.front(), text::is_digit);
}

std::string_view leading_digits(std::string_view text) {
    return text.substr(0, std::min(text.find_first_not_of("0123456789"), text.size()));
}

// The exponent at the front of `text`, "e" and all; 0 if there is none. What does not fit is so large that
// its sign alone matters.
long exponent_of(std::string_view text) {
    const std::string_view number = text.substr(text.empty() ? 0 : 1);
    const bool isMarked = text.starts_with('e') || text.starts_with('E');
    return isMarked && without_space(number).size() == number.size() ? leading_whole_number(number).value : 0;
}

// Whether a number that no double holds is too large, not too small: by where its first digit that is not 0
// stands.
bool is_too_large(std::string_view digits) {
    const std::string_view whole = leading_digits(digits);
    digits.remove_prefix(whole.size());
    std::string_view fraction;
    if (digits.starts_with('.')) {
        fraction = leading_digits(digits.substr(1));
        digits.remove_prefix(1 + fraction.size());
    }
    const std::size_t zeros = std::min(whole.find_first_not_of('0'), whole.size());
    const std::size_t fractionZeros = std::min(fraction.find_first_not_of('0'), fraction.size());
    const auto magnitude = zeros < whole.size() ? static_cast<double>(whole.size() - zeros)
                                                : -static_cast<double>(fractionZeros);
    return magnitude + static_cast<double>(exponent_of(digits)) > 0;
}

// As from_chars, which does not say on which side a number is out of range.
double magnitude_of(std::string_view digits) {
    double value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec != std::errc::result_out_of_range) {
        return value;
    }
    return is_too_large(digits) ? std::numeric_limits<double>::infinity() : 0;
}

}  // namespace

WholeNumber leading_whole_number(std::string_view text) {
    using Limits = std::numeric_limits<long>;
    const auto [negative, digits] = without_sign(text);
    if (!begins_with_digit(digits)) {
        return {};
    }
    unsigned long magnitude = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
    const unsigned long most = static_cast<unsigned long>(Limits::max()) + (negative ? 1 : 0);
    if (result.ec != std::errc() || magnitude > most) {
        return {negative ? Limits::min() : Limits::max(), negative ? -1 : 1};
    }
    return {static_cast<long>(negative ? 0 - magnitude : magnitude), 0};
}

double leading_number(std::string_view text) {
    const auto [negative, digits] = without_sign(text);
    if (!begins_with_digit(digits) && !(digits.starts_with('.') && begins_with_digit(digits.substr(1)))) {
        return 0;
    }
    const double magnitude = magnitude_of(digits);
    return negative ? -magnitude : magnitude;
}

}  // namespace lvx::controls
