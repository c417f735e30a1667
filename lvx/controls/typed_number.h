// lvx/controls/typed_number.h
//
// The number that a typed text begins with, as the C library's atol and atof tell it in the "C" locale;
// whatever locale the process has set, and with an answer for numbers that are too large.
#pragma once

#include <compare>
#include <string_view>

namespace lvx::controls {

/// A whole number of any size: compared with a long it is right also beyond what a long holds.
struct WholeNumber {
    /// The nearest long.
    long value = 0;
    /// -1 or 1 if the number is below or above all of them, else 0.
    int beyond = 0;

    friend constexpr std::strong_ordering operator<=>(const WholeNumber& number, long bound) {
        return number.beyond != 0 ? number.beyond <=> 0 : number.value <=> bound;
    }
};

/// White space, a sign and digits at the front of `text`; 0 if it does not begin so.
WholeNumber leading_whole_number(std::string_view text);

/// White space, a sign, digits with a point and an exponent at the front of `text`; 0 if it does not begin
/// so. Infinite or 0 where a double ends. Knows decimal numbers alone: "inf", "nan" and "0x10" are not.
double leading_number(std::string_view text);

}  // namespace lvx::controls
