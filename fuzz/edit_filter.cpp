// A key that is typed into a field. The first bytes are where the selection starts and ends, two each, the
// key, four, and the ends of the range, eight each; the rest is the field's text. A second coding of the
// rules has to judge the key alike, and what passes has to stay readable.
#include <climits>
#include <cstddef>
#include <cstdint>
#include <string>

#include "check.h"
#include "controls/filter_oracle.h"
#include "input.h"
#include "lvx/controls/colour_maths.h"
#include "lvx/controls/edit_filter.h"
#include "lvx/text/strings.h"

namespace {

using lvx::KeyVerdict;
using lvx_fuzz::Input;
using lvx_fuzz::require;

struct Typing {
    int start;
    int end;
    unsigned int key;
    long min;
    long max;
    std::string text;
};

// The lowest byte first.
std::uint64_t number(Input& input, int bytes) {
    std::uint64_t value = 0;
    for (int i = 0; i < bytes; ++i) {
        value |= std::uint64_t{input.Byte()} << (8 * i);
    }
    return value;
}

Typing typing_of(Input& input) {
    Typing typing;
    typing.start = static_cast<std::int16_t>(number(input, 2));
    typing.end = static_cast<std::int16_t>(number(input, 2));
    typing.key = static_cast<unsigned int>(number(input, 4));
    typing.min = static_cast<long>(number(input, 8));
    typing.max = static_cast<long>(number(input, 8));
    typing.text = input.Rest();
    return typing;
}

void check_verdicts(const Typing& t) {
    const lvx::FieldText field{t.text, t.start, t.end};
    require(lvx::judge_float_key(field, t.key) == lvx_test::oracle_float_key(t.text, t.start, t.end, t.key),
            "both codings judge a key of a real number alike");
    require(lvx::judge_int_key(field, t.key, t.min, t.max) ==
                lvx_test::oracle_int_key(t.text, t.start, t.end, t.key, t.min, t.max),
            "both codings judge a key of a whole number alike");
    const int most = static_cast<int>(t.max);
    require(lvx::judge_count_key(field, t.key, most) ==
                lvx_test::oracle_count_key(t.text, t.start, t.end, t.key, most),
            "both codings judge a key of a count alike");
}

void check_text(const Typing& t) {
    const auto key = static_cast<char>(t.key);
    const std::string text = lvx::text_with_key({t.text, t.start, t.end}, key);
    require(text == lvx_test::oracle_text_with_key(t.text, t.start, t.end, key), "both codings type alike");
    require(text.size() <= 2 * lvx::filtered_characters + 1, "a text has an end");
}

void check_reading(const Typing& t) {
    long value = 7;
    const bool accepted = lvx::int_in_range(t.text, t.min, t.max, value);
    const long double told = lvx_test::oracle_leading_number(t.text);
    const bool expected = lvx::is_int(t.text) && told >= t.min && told <= t.max;
    require(accepted == expected, "a number is read if it lies in the range");
    require(accepted ? static_cast<long double>(value) == told : value == 7, "and as what it is");
}

// The range's ends serve as numbers of any size.
void check_colours(const Typing& t) {
    const lvx::RgbColour rgb = lvx::rgb_of({t.start, t.end, static_cast<int>(t.key)});
    require(rgb == lvx::on_scale(rgb), "a colour of any numbers is on its scales");
    const lvx::HlsColour hls = lvx::hls_of({static_cast<int>(t.min), static_cast<int>(t.max), t.start}, 0);
    require(hls == lvx::on_scale(hls), "a hue of any numbers is on its scales");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const Typing typing = typing_of(input);
    check_verdicts(typing);
    check_text(typing);
    check_reading(typing);
    check_colours(typing);
    return 0;
}
