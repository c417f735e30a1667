#include "lvx/controls/edit_filter.h"

#include <algorithm>

#include "lvx/controls/typed_number.h"
#include "lvx/text/strings.h"

namespace lvx {

namespace {

using controls::leading_whole_number;
using controls::WholeNumber;

constexpr unsigned int tab = 9;
constexpr unsigned int enter = 13;

// As isprint in the "C" locale, whatever locale the process has set.
bool prints(unsigned int key) {
    return (key >= ' ' && key < 127) || key > 255;
}

bool is_digit_key(unsigned int key) {
    return key >= '0' && key <= '9';
}

KeyVerdict pass_if(bool accepted) {
    return accepted ? KeyVerdict::Pass : KeyVerdict::Beep;
}

std::string_view seen_part(std::string_view text) {
    text = text.substr(0, filtered_characters);
    return text.substr(0, text.find('\0'));
}

std::size_t position_in(std::string_view text, int position) {
    return std::min(static_cast<std::size_t>(std::max(position, 0)), text.size());
}

// The end of a range that does not stand on the side of its number is left to int_in_range(): half-typed
// numbers lie beyond it.
bool may_become_int(const WholeNumber& number, long min, long max) {
    const bool tooLow = min < 0 ? number < min : number < 0;
    const bool tooHigh = max > 0 && number > max;
    return !tooLow && !tooHigh;
}

}  // namespace

std::string text_with_key(const FieldText& field, char key) {
    const std::string_view text = seen_part(field.text);
    std::string result(text.substr(0, position_in(text, field.start)));
    result += key;
    return result.append(text.substr(position_in(text, field.end)));
}

KeyVerdict judge_float_key(const FieldText& field, unsigned int key) {
    if (key == tab || key == enter) {
        return KeyVerdict::Drop;
    }
    if (!prints(key)) {
        return KeyVerdict::Pass;
    }
    return pass_if(key < 127 && is_float(text_with_key(field, static_cast<char>(key)) + '0'));
}

KeyVerdict judge_int_key(const FieldText& field, unsigned int key, long min, long max) {
    if (!prints(key)) {
        return KeyVerdict::Pass;
    }
    if (key != '-' && !is_digit_key(key)) {
        return KeyVerdict::Beep;
    }
    const std::string text = text_with_key(field, static_cast<char>(key));
    if (text == "-") {
        return pass_if(min < 0);
    }
    return pass_if(may_become_int(leading_whole_number(text), min, max));
}

KeyVerdict judge_count_key(const FieldText& field, unsigned int key, int max) {
    if (!prints(key)) {
        return KeyVerdict::Pass;
    }
    if (!is_digit_key(key)) {
        return KeyVerdict::Beep;
    }
    return pass_if(leading_whole_number(text_with_key(field, static_cast<char>(key))) <= max);
}

bool int_in_range(const std::string& text, long min, long max, long& value) {
    if (!is_int(text)) {
        return false;
    }
    const WholeNumber number = leading_whole_number(text);
    if (number < min || number > max) {
        return false;
    }
    value = number.value;
    return true;
}

}  // namespace lvx
