// lvx/text/token_number.h
//
// What a token stream takes for a number. Shared by the scanner and its public question.
#pragma once

#include <string_view>

#include "lvx/text/character_class.h"
#include "lvx/text/token_kinds.h"

namespace lvx::text {

constexpr std::string_view without_sign(std::string_view text) {
    return text.starts_with('-') || text.starts_with('+') ? text.substr(1) : text;
}

constexpr std::string_view without_digits(std::string_view text) {
    while (!text.empty() && is_of(text.front(), is_digit)) {
        text.remove_prefix(1);
    }
    return text;
}

/// `integer`, `floating` or `no_token`: a sign, digits, a point with digits, an exponent, of which each may
/// be missing and none needs a digit. So "e5", "E", "1e" and "." are floating and "-" and "" are integers:
/// texts of hosts were written with it.
constexpr int number_kind(std::string_view text) {
    text = without_digits(without_sign(text));
    int kind = integer;
    if (text.starts_with('.')) {
        text = without_digits(text.substr(1));
        kind = floating;
    }
    if (text.starts_with('e') || text.starts_with('E')) {
        text = without_digits(without_sign(text.substr(1)));
        kind = floating;
    }
    return text.empty() ? kind : no_token;
}

}  // namespace lvx::text
