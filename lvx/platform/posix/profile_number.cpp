#include <algorithm>

#include "lvx/platform/posix/profile_text.h"

namespace lvx::platform {
namespace {

std::uint32_t base_of(std::string_view digits) {
    const std::string_view prefix = digits.substr(0, 2);
    if (prefix == "0x") {
        return 16;
    }
    if (prefix == "0o") {
        return 8;
    }
    return prefix == "0b" ? 2 : 10;
}

// 16 or more for what is no digit of any base.
std::uint32_t digit(char character) {
    if (character >= '0' && character <= '9') {
        return static_cast<std::uint32_t>(character - '0');
    }
    if (character >= 'a' && character <= 'f') {
        return static_cast<std::uint32_t>(character - 'a') + 10;
    }
    if (character >= 'A' && character <= 'F') {
        return static_cast<std::uint32_t>(character - 'A') + 10;
    }
    return 16;
}

}  // namespace

std::uint32_t profile_number(std::string_view value) {
    const auto is_skipped = [](char character) { return character >= '\x01' && character <= ' '; };
    value.remove_prefix(
        static_cast<std::size_t>(std::find_if_not(value.begin(), value.end(), is_skipped) - value.begin()));
    const bool is_negative = value.starts_with('-');
    if (is_negative || value.starts_with('+')) {
        value.remove_prefix(1);
    }
    const std::uint32_t base = base_of(value);
    if (base != 10) {
        value.remove_prefix(2);
    }
    std::uint32_t number = 0;
    for (const char character : value) {
        if (digit(character) >= base) {
            break;
        }
        number = number * base + digit(character);
    }
    return is_negative ? 0 - number : number;
}

}  // namespace lvx::platform
