// The rules of the key filters, told a second time and in another way: positions are walked one by one,
// numbers are added up digit by digit, and a real number is what a table of states accepts.
#pragma once

#include <cstddef>
#include <string>

#include "lvx/controls/edit_filter.h"

namespace lvx_test {

/// What comes out of walking along the text: a character is kept before the selection and from its end on.
inline std::string oracle_text_with_key(const std::string& text, int start, int end, char key) {
    std::string before;
    std::string behind;
    for (int i = 0; i < 49 && i < static_cast<int>(text.size()) && text[static_cast<std::size_t>(i)] != 0;
         ++i) {
        if (i < start)
            before += text[static_cast<std::size_t>(i)];
        if (i >= end)
            behind += text[static_cast<std::size_t>(i)];
    }
    return before + key + behind;
}

/// Whether states lead from the beginning to a good end: 3 and 5 are digits before and behind the point, 8 is
/// those of the exponent.
inline bool oracle_is_real(const std::string& text) {
    enum { digit, minus, point, exponent };
    //                                 digit  -   .   e
    constexpr int next[9][4] = {/* 0: start          */ {3, 1, 2, -1},
                                /* 1: sign           */ {3, -1, 2, -1},
                                /* 2: point alone    */ {5, -1, -1, -1},
                                /* 3: whole          */ {3, -1, 4, 6},
                                /* 4: whole, point   */ {5, -1, -1, 6},
                                /* 5: fraction       */ {5, -1, -1, 6},
                                /* 6: exponent       */ {8, 7, -1, -1},
                                /* 7: exponent, sign */ {8, -1, -1, -1},
                                /* 8: its digits     */ {8, -1, -1, -1}};
    int state = 0;
    for (const char c : text) {
        int column = -1;
        if (c >= '0' && c <= '9')
            column = digit;
        else if (c == '-')
            column = minus;
        else if (c == '.')
            column = point;
        else if (c == 'e' || c == 'E')
            column = exponent;
        state = column < 0 ? -1 : next[state][column];
        if (state < 0)
            return false;
    }
    return state == 3 || state == 4 || state == 5 || state == 8;
}

/// The number that a text begins with: exact up to 2^64, beyond every bound from there on.
inline long double oracle_leading_number(const std::string& text) {
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || (text[i] >= 9 && text[i] <= 13)))
        ++i;
    const bool negative = i < text.size() && text[i] == '-';
    if (i < text.size() && (text[i] == '-' || text[i] == '+'))
        ++i;
    long double number = 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
        number = number * 10 + (text[i] - '0');
    return negative ? -number : number;
}

inline bool oracle_prints(unsigned int key) {
    return key > 255 || (key >= 32 && key <= 126);
}

inline lvx::KeyVerdict oracle_float_key(const std::string& text, int start, int end, unsigned int key) {
    using enum lvx::KeyVerdict;
    if (!oracle_prints(key))
        return key == 9 || key == 13 ? Drop : Pass;
    if (key > 255)
        return Beep;
    return oracle_is_real(oracle_text_with_key(text, start, end, static_cast<char>(key)) + "0") ? Pass : Beep;
}

inline lvx::KeyVerdict oracle_int_key(const std::string& text, int start, int end, unsigned int key, long min,
                                      long max) {
    using enum lvx::KeyVerdict;
    if (!oracle_prints(key))
        return Pass;
    if (std::string("-0123456789").find(static_cast<char>(key)) == std::string::npos || key > 255)
        return Beep;
    const std::string candidate = oracle_text_with_key(text, start, end, static_cast<char>(key));
    if (candidate == "-")
        return min < 0 ? Pass : Beep;
    const long double number = oracle_leading_number(candidate);
    if (min >= 0 && number < 0)
        return Beep;
    if (min < 0 && min > number)
        return Beep;
    if (max > 0 && max < number)
        return Beep;
    return Pass;
}

inline lvx::KeyVerdict oracle_count_key(const std::string& text, int start, int end, unsigned int key,
                                        int max) {
    using enum lvx::KeyVerdict;
    if (!oracle_prints(key))
        return Pass;
    if (key < '0' || key > '9')
        return Beep;
    return oracle_leading_number(oracle_text_with_key(text, start, end, static_cast<char>(key))) > max ? Beep
                                                                                                       : Pass;
}

}  // namespace lvx_test
