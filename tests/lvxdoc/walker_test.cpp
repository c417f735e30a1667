#include "tools/lvxdoc/walker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/lvxdoc/support.h"
#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;
using testing::ElementsAre;

namespace {

const std::string one_object = "top\n object x\n";
const std::string nodes = "class Node\n object next\n";

// A version, then `depth` objects, each within the one before, and a null pointer in the last.
std::string nest(std::size_t depth) {
    std::string bytes = bytes_of("01000000 63 'Node' 0d0a 6f");
    const std::string inner = bytes_of("43 00000000 6f");
    for (std::size_t i = 1; i < depth; ++i) {
        bytes += inner;
    }
    return bytes + '0';
}

}  // namespace

TEST(Walker, tells_every_piece_of_two_fonts_and_a_reference) {
    EXPECT_THAT(
        walk(fonts),
        ElementsAre("0 long version = 3", "4 marker B (binary)", "5 class 0 by name, \"myFont\"",
                    "14 object 0", "15 string face = \"Arial\"", "25 double size = 10", "33 bool bold = true",
                    "37 bool italic = false", "41 bool underline = false", "45 bool strikeout = false",
                    "49 marker B (binary)", "50 reference to object 0, \"myFont\"", "55 marker B (binary)",
                    "56 class 0 by number, \"myFont\"", "61 object 1", "62 string face = \"Sans\"",
                    "71 double size = 8", "79 bool bold = false", "83 bool italic = false",
                    "87 bool underline = false", "91 bool strikeout = false"));
}

TEST(Walker, takes_markers_of_both_kinds_in_one_stream) {
    std::string mixed = fonts;
    mixed[49] = 'A';
    const auto lines = walk(mixed);
    EXPECT_EQ("4 marker B (binary)", lines.at(1));
    EXPECT_EQ("49 marker A (ascii)", lines.at(10));
    EXPECT_EQ("55 marker B (binary)", lines.at(12));
}

TEST(Walker, summarises_the_pixels_of_a_picture) {
    EXPECT_THAT(walk(small_picture),
                ElementsAre("0 long version = 1", "4 marker B (binary)",
                            "5 class 0 by name, \"LVXUtilities::DIBitmap\"", "30 object 0",
                            "31 long size = 56", "35 dword header size = 40", "39 long width = 2",
                            "43 long height = 2", "47 word planes = 1", "49 word bits per pixel = 24",
                            "51 dword compression = 0", "55 dword image size = 16",
                            "59 long pixels per metre across = 0", "63 long pixels per metre down = 0",
                            "67 dword colours used = 0", "71 dword colours important = 0",
                            "75 bytes pixels = 16 bytes, CRC-32 69982117: 0000ff00ff000000ff0000ffffff0000"));
}

TEST(Walker, gives_older_strings_an_id_and_a_class_number) {
    const std::string bytes = bytes_of(
        "42 63 'VString' 0d0a 6f 02000000 'ab' 00 42 63 'myFont' 0d0a 6f 42 43 00000000 6f 00000000"
        "0000000000002440 00000000 00000000 00000000 00000000 42 4f 01000000");
    EXPECT_THAT(
        walk(bytes, "top\n string s\n object f\n object again\n"),
        ElementsAre("0 marker B (binary)", "1 class 0 by name, \"VString\"", "11 object 0",
                    "12 cstring text = \"ab\"", "19 marker B (binary)", "20 class 1 by name, \"myFont\"",
                    "29 object 1", "30 marker B (binary)", "31 class 0 by number, \"VString\"", "36 object 2",
                    "37 cstring text = \"\"", "41 double size = 10", "49 bool bold = false",
                    "53 bool italic = false", "57 bool underline = false", "61 bool strikeout = false",
                    "65 marker B (binary)", "66 reference to object 1, \"myFont\""));
}

// "ok" was said of a document that no program can open.
TEST(Walker, takes_an_older_string_only_where_a_string_is_expected) {
    const std::string bytes = bytes_of("01000000 42 63 'VString' 0d0a 6f 02000000 'ab' 00");
    const std::string why =
        "damage at 4: the class \"VString\" is not described; a schema has to have a line 'class VString' "
        "with "
        "its fields behind it";
    EXPECT_EQ(why, end_of_walk(bytes));
    EXPECT_EQ(why, end_of_walk(bytes, "", true));
    EXPECT_EQ("16 cstring own = \"ab\"", end_of_walk(bytes, "class VString\n cstring own\n", true));
}

TEST(Walker, reads_an_older_string_as_one_whatever_a_schema_says_of_its_class) {
    EXPECT_EQ("16 cstring text = \"ab\"",
              end_of_walk(bytes_of("01000000 42 63 'VString' 0d0a 6f 02000000 'ab' 00"),
                          "top\n long version\n string s\nclass VString\n int(20) other\n", true));
}

TEST(Walker, takes_a_null_pointer_with_and_without_a_marker) {
    EXPECT_THAT(walk("0B0", "top\n object a\n object b\n"),
                ElementsAre("0 null", "1 marker B (binary)", "2 null"));
}

TEST(Walker, shows_an_unknown_tag_where_one_object_is_expected) {
    EXPECT_THAT(walk("z0", "top\n object a\n object b\n"),
                ElementsAre("0 unknown tag 0x7a, read as null", "1 null"));
}

TEST(Walker, refuses_an_unknown_tag_in_objects_to_the_end_and_when_it_is_strict) {
    const std::string why = "an object begins here, but the byte \"z\" begins none";
    EXPECT_EQ("damage at 4: " + why, end_of_walk(int_bytes(1) + "z"));
    EXPECT_EQ("damage at 0: " + why, end_of_walk("z", one_object, true));
}

TEST(Walker, ends_well_on_a_version_alone) {
    EXPECT_THAT(walk(int_bytes(7)), ElementsAre("0 long version = 7"));
}

TEST(Walker, misses_the_version_in_an_empty_stream) {
    EXPECT_EQ("damage at 0: a long needs 4 bytes here, but the data end after 0 bytes", end_of_walk(""));
}

TEST(Walker, tells_the_place_and_the_cause_of_damage) {
    struct Case {
        std::string bytes;
        const char* end;
    };
    const std::string head = int_bytes(1);
    const Case cases[] = {
        {head + "B", "damage at 5: an object needs 1 byte here, but the data end after 0 bytes"},
        {head + "Bc", "damage at 6: a class name needs 1 byte here, but the data end after 0 bytes"},
        {head + "BcmyFont", "damage at 12: a class name needs 1 byte here, but the data end after 0 bytes"},
        {head + "BcmyFont\r\n",
         "damage at 14: the body of an object needs 1 byte here, but the data end after 0 bytes"},
        {head + "BcmyFont\r\nx", "damage at 14: the body of an object begins with \"o\", not with \"x\""},
        {head + "Bc\r\no", "damage at 5: this is no class name: \"\""},
        {head + "Bcmy\x01"
                "Font\r\no",
         "damage at 5: this is no class name: \"my\\x01Font\""},
        {head + bytes_of("42 43 00000000"),
         "damage at 6: the class number is 0, but 0 classes were named before"},
        {head + bytes_of("42 43 ffffffff"),
         "damage at 6: the class number is -1, but 0 classes were named before"},
        {head + bytes_of("42 43 0000"),
         "damage at 6: a class number needs 4 bytes here, but the data end after 2 bytes"},
        {head + bytes_of("42 4f 00000000"),
         "damage at 6: a reference to object 0, but only 0 objects began before"},
        {fonts + bytes_of("42 4f 02000000"),
         "damage at 97: a reference to object 2, but only 2 objects began before"},
        {fonts + bytes_of("42 4f ffffffff"),
         "damage at 97: a reference to object -1, but only 2 objects began before"},
        {fonts + bytes_of("42 43 01000000"),
         "damage at 97: the class number is 1, but only 1 class was named before"},
        {fonts.substr(0, 24), "damage at 20: a string needs 5 bytes here, but the data end after 4 bytes"},
        {fonts.substr(0, 30), "damage at 25: a double needs 8 bytes here, but the data end after 5 bytes"},
        {fonts.substr(0, 94), "damage at 91: a bool needs 4 bytes here, but the data end after 3 bytes"},
        {head + bytes_of("63 'Star' 0d0a 6f"),
         "damage at 4: the class \"Star\" is not described; a schema has to have a line 'class Star' with "
         "its "
         "fields behind it"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.end, end_of_walk(c.bytes));
    }
}

TEST(Walker, refuses_what_is_no_string_where_one_is_expected) {
    const std::string top = "top\n object(1) f\n string s\n";
    const std::string font = fonts.substr(4, 45);
    EXPECT_EQ("damage at 45: the string 's' begins here, but the byte \"x\" begins none",
              end_of_walk(font + 'x', top));
    EXPECT_EQ("damage at 45: the string 's' begins here, but the byte \"0\" begins none",
              end_of_walk(font + '0', top));
    EXPECT_EQ("damage at 45: the string 's' begins here, but the byte \"O\" begins none",
              end_of_walk(font + bytes_of("4f 00000000"), top));
    EXPECT_EQ("damage at 45: the string 's' begins here, but an object of the class \"myFont\" is found",
              end_of_walk(font + bytes_of("43 00000000 6f"), top));
    EXPECT_EQ("damage at 45: a string needs 1 byte here, but the data end after 0 bytes",
              end_of_walk(font, top));
}

TEST(Walker, refuses_lengths_that_are_negative_or_beyond_the_end) {
    const std::string string_top = "top\n string s\n";
    EXPECT_EQ("damage at 1: a string has a length of -1", end_of_walk(bytes_of("73 ffffffff"), string_top));
    EXPECT_EQ("damage at 5: a string needs 2147483647 bytes here, but the data end after 2 bytes",
              end_of_walk(bytes_of("73 ffffff7f 'ab'"), string_top));
    const std::string c_top = "top\n cstring s\n";
    EXPECT_EQ("damage at 0: a C string has a length of -2147483648",
              end_of_walk(bytes_of("00000080"), c_top));
    EXPECT_EQ("damage at 4: a C string needs 3 bytes here, but the data end after 2 bytes",
              end_of_walk(bytes_of("02000000 'ab'"), c_top));
    const std::string count_top = "top\n int n\n object(n) x\n";
    EXPECT_EQ("damage at 4: the count 'n' is -5", end_of_walk(bytes_of("fbffffff"), count_top));
}

TEST(Walker, reads_a_class_name_up_to_the_limit_of_the_store) {
    for (const std::size_t limit : {47u, 48u}) {
        WalkOptions options;
        options.longest_class_name = limit;
        const std::string longest(limit, 'n');
        const auto good = walk(bytes_of("63") + longest + bytes_of("0d0a 6f"),
                               one_object + "class " + longest + "\n", options);
        EXPECT_EQ(std::to_string(3 + limit) + " object 0", good.back());
        const auto bad = walk(bytes_of("63") + longest + "n\r\no", one_object, options);
        EXPECT_EQ("damage at 0: a class name is longer than the " + std::to_string(limit) +
                      " characters that are read back: \"" + longest + "n\"",
                  bad.back());
        const auto endless = walk('c' + std::string(10'000, 'n'), one_object, options);
        EXPECT_EQ(0u, endless.back().find("damage at 0: a class name is longer than"));
    }
}

TEST(Walker, takes_any_qualifier_that_readers_drop_unless_it_is_strict) {
    const std::string bytes = bytes_of("63 'a' 01 '::Node' 0d0a 6f 30");
    EXPECT_EQ("12 null", end_of_walk(bytes, one_object + nodes));
    EXPECT_EQ("damage at 0: this is no class name: \"a\\x01::Node\"",
              end_of_walk(bytes, one_object + nodes, true));
}

TEST(Walker, takes_a_class_name_that_ends_with_a_line_feed_alone) {
    EXPECT_EQ("3 object 0", end_of_walk("cA\no", one_object + "class A\n"));
}

TEST(Walker, repeats_a_field_as_often_as_an_earlier_one_says) {
    EXPECT_THAT(walk(bytes_of("02000000 07000000 08000000 00000000 6162"),
                     "top\n int n\n int(n) x\n int(1) none\n bytes(n) raw\n"),
                ElementsAre("0 int n = 2", "4 int x[0] = 7", "8 int x[1] = 8", "12 int none[0] = 0",
                            "16 bytes raw = 2 bytes, CRC-32 9e83486d: 6162"));
}

TEST(Walker, keeps_the_counts_of_an_outer_object_through_inner_ones) {
    const std::string schema = "top\n object(*) x\nclass G\n int n\n object(n) parts\n bytes(n) tail\n";
    const std::string bytes = bytes_of(
        "63 'G' 0d0a 6f 02000000"
        "43 00000000 6f 00000000"
        "43 00000000 6f 01000000 30 'a'"
        "'bc'");
    const auto lines = walk(bytes, schema);
    EXPECT_EQ(testing::PrintToString(lines.back()).find("\"36 bytes tail = 2 bytes"), std::string::npos)
        << lines.back();
    EXPECT_EQ(0u, lines.back().find("31 bytes tail = 2 bytes")) << lines.back();
}

TEST(Walker, tells_bytes_that_nothing_describes) {
    EXPECT_EQ(0u, end_of_walk("0abc", one_object).find("1 bytes rest = 3 bytes"));
    EXPECT_EQ("damage at 1: 3 bytes more than are described", end_of_walk("0abc", one_object, true));
}

TEST(Walker, goes_on_with_the_numbers_of_an_earlier_stream) {
    Schema schema;
    schema.Add(one_object, "x");
    Numbering numbering;
    Lines lines;
    MemorySource first(fonts.substr(4, 45));
    Walker(first, schema, lines, numbering, {}).Walk(schema.TopOf(""));
    lines.lines.clear();
    MemorySource second(bytes_of("4f 00000000"));
    Walker(second, schema, lines, numbering, {}).Walk(schema.TopOf(""));
    EXPECT_THAT(lines.lines, ElementsAre("0 reference to object 0, \"myFont\""));
}

TEST(Walker, lets_an_object_refer_to_the_one_around_it) {
    EXPECT_EQ("12 reference to object 0, \"Node\"",
              end_of_walk(bytes_of("01000000 63 'Node' 0d0a 6f 4f 00000000"), nodes));
}

namespace {

class Counter : public EventSink {
public:
    void Take(const Event& event) override {
        objects += event.kind == Event::Kind::object ? 1 : 0;
        deepest = std::max(deepest, event.depth);
    }
    std::size_t objects = 0;
    std::size_t deepest = 0;
};

}  // namespace

TEST(Walker, walks_a_million_objects_within_each_other) {
    Schema schema;
    schema.Add(nodes, "x");
    MemorySource source(nest(1'000'000));
    Numbering numbering;
    Counter counter;
    Walker walker(source, schema, counter, numbering, {});
    walker.Walk(schema.TopOf(""));
    EXPECT_EQ(1'000'000u, counter.objects);
    EXPECT_EQ(1'000'000u, counter.deepest);
    EXPECT_EQ(1'000'000u, walker.DeepestNest());
}

TEST(Walker, ends_a_nest_that_is_deeper_than_the_limit) {
    WalkOptions options;
    options.deepest_nest = 3;
    EXPECT_EQ("24 null", walk(nest(3), nodes, options).back());
    EXPECT_EQ("damage at 24: objects are nested deeper than 3", walk(nest(4), nodes, options).back());
}
