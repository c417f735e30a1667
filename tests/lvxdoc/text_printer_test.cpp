#include "tools/lvxdoc/text_printer.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/lvxdoc/support.h"

using namespace lvxdoc;
using Kind = Event::Kind;

TEST(TextPrinter, puts_the_offset_in_front_and_members_further_in) {
    StringOutput output;
    TextPrinter printer(output);
    Event event{.kind = Kind::null, .offset = 123, .size = 1};
    printer.Take(event);
    event.depth = 2;
    printer.Take(event);
    EXPECT_EQ("       123  0x0000007b  null\n       123  0x0000007b      null\n", output.Text());
}

TEST(TextPrinter, does_not_indent_a_deep_nest_without_end) {
    StringOutput output;
    TextPrinter printer(output);
    Event event{.kind = Kind::null, .offset = 0, .size = 1};
    event.depth = 1'000'000;
    printer.Take(event);
    EXPECT_LT(output.Text().size(), 100u);
}

TEST(Describe, tells_values_that_are_odd) {
    Event event{.kind = Kind::boolean, .offset = 0, .size = 4};
    event.type = "bool";
    event.name = "bold";
    event.number = 7;
    EXPECT_EQ("bool bold = true (7)", describe(event));
    event.number = 1;
    EXPECT_EQ("bool bold = true", describe(event));
    event.kind = Kind::unknown_tag;
    event.number = 0x9a;
    EXPECT_EQ("unknown tag 0x9a, read as null", describe(event));
}

TEST(Describe, cuts_a_long_text_and_tells_its_length) {
    const std::string text(300, 'x');
    Event event{.kind = Kind::text, .offset = 0, .size = 305};
    event.type = "string";
    event.name = "face";
    event.text = text;
    event.length = 300;
    EXPECT_EQ("string face = \"" + std::string(200, 'x') + "\"... (300 bytes)", describe(event));
}

TEST(Describe, shows_bytes_in_hexadecimal_with_their_checksum) {
    Event event{.kind = Kind::raw, .offset = 0, .size = 2};
    event.type = "bytes";
    event.name = "key";
    event.text = std::string_view("\xff\0", 2);
    event.length = 2;
    event.checksum = 0xab;
    EXPECT_EQ("bytes key = 2 bytes, CRC-32 000000ab: ff00", describe(event));
    event.length = 3;
    EXPECT_EQ("bytes key = 3 bytes, CRC-32 000000ab: ff00...", describe(event));
    event.length = 0;
    EXPECT_EQ("bytes key = 0 bytes, CRC-32 000000ab", describe(event));
}

TEST(Shortest, gives_the_digits_that_bring_the_number_back) {
    EXPECT_EQ("10", shortest(10.0));
    EXPECT_EQ("0.1", shortest(0.1));
    EXPECT_EQ("-1e-300", shortest(-1e-300));
    EXPECT_EQ("inf", shortest(HUGE_VAL));
}
