// lvx/controls/edit_filter.h
//
// What becomes of a key that is typed into a field for numbers, told without any window: pure functions of
// what the field shows, its selection, the key and the range. LVXFloatEdit and LVXIntEdit ask them at each
// WM_CHAR; a host's own fields may too. They keep no state, throw std::bad_alloc alone, and may run on any
// thread.
//
// A text is judged as it would be behind the key. Of what the field shows now only the first 49 characters
// count, and nothing from its first NUL on.
// Does not: see what comes in other ways than by keys, such as a paste. Whoever reads the field tests the
// text as a whole.
#pragma once

#include <string>
#include <string_view>

#include "lvx/platform/export.h"

namespace lvx {

/// What becomes of a key.
enum class KeyVerdict {
    /// The field gets it.
    Pass,
    /// Nothing happens.
    Drop,
    /// Nothing happens, and the user hears so.
    Beep,
};

/// What a field shows when a key comes. The key will replace the characters from `start` up to but without
/// `end`; a position outside of the text, or of the part that counts, is the nearest one inside.
struct FieldText {
    std::string_view text;
    int start = 0;
    int end = 0;
};

/// How many characters of a field's text the filters look at.
inline constexpr std::size_t filtered_characters = 49;

/// The text as it would be behind `key`: what stands before `start`, the key, what stands from `end` on.
LVX_EXPORT std::string text_with_key(const FieldText& field, char key);

/// For real numbers. A key passes if the text would be a number by is_float(), were a 0 typed behind it: so
/// "-", "." and "1e-" can be typed on the way to one. Tab and Enter are dropped. Other keys that print
/// nothing, such as Backspace, pass, and so do bytes above 127.
LVX_EXPORT KeyVerdict judge_float_key(const FieldText& field, unsigned int key);

/// For whole numbers from `min` to `max`. Digits and "-" may pass, and all keys that print nothing, Tab and
/// Enter too, as well as bytes above 127. A lone "-" passes if `min` is negative. Otherwise the number that
/// the text begins with counts, 0 if there is none: it must not be negative unless `min` is, not be below a
/// negative `min`, nor above a positive `max`. So with 10 to 20 a 1 can be typed on the way to 12.
/// Does not test: a positive `min`, a `max` of 0 or below, where a "-" stands. int_in_range() does.
LVX_EXPORT KeyVerdict judge_int_key(const FieldText& field, unsigned int key, long min, long max);

/// For whole numbers from 0 to `max`: digits may pass, as long as the number is not above `max`, and all keys
/// that print nothing as above.
LVX_EXPORT KeyVerdict judge_count_key(const FieldText& field, unsigned int key, int max);

/// Whether all of `text` is a whole number by is_int() from `min` to `max`, both included; then it is put
/// into `value`, which stays as it is otherwise.
LVX_EXPORT bool int_in_range(const std::string& text, long min, long max, long& value);

}  // namespace lvx
