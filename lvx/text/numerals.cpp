#include "lvx/text/strings.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace lvx {

namespace {

constexpr std::string_view digits = "0123456789";

bool skip(std::string_view& text, char character) {
    if (!text.starts_with(character)) {
        return false;
    }
    text.remove_prefix(1);
    return true;
}

// Whether there was at least one digit.
bool skip_digits(std::string_view& text) {
    const std::size_t count = std::min(text.find_first_not_of(digits), text.size());
    text.remove_prefix(count);
    return count > 0;
}

// Digits on both sides of a point, where one side may be empty, or digits alone.
bool skip_mantissa(std::string_view& text) {
    const bool has_whole_part = skip_digits(text);
    const bool has_fraction = skip(text, '.') && skip_digits(text);
    return has_whole_part || has_fraction;
}

// True too if there is none.
bool skip_exponent(std::string_view& text) {
    if (!skip(text, 'e') && !skip(text, 'E')) {
        return true;
    }
    skip(text, '-');
    return skip_digits(text);
}

}  // namespace

bool is_int(const std::string& text) {
    std::string_view rest = text;
    skip(rest, '-');
    return skip_digits(rest) && rest.empty();
}

bool is_float(const std::string& text) {
    std::string_view rest = text.c_str();
    skip(rest, '-');
    return skip_mantissa(rest) && skip_exponent(rest) && rest.empty();
}

}  // namespace lvx
