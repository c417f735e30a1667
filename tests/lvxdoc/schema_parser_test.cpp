#include "tools/lvxdoc/schema_parser.h"

#include <gtest/gtest.h>

#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;

namespace {

std::string refusal(const std::string& text) {
    try {
        parse_schema(text, "x.schema");
    } catch (const Usage& usage) {
        return usage.what();
    }
    return "accepted";
}

}  // namespace

TEST(ParseSchema, reads_every_type) {
    const auto sections = parse_schema(
        "class All\n bool a\n int b\n long c\n float d\n double e\n char f\n cstring g\n string h\n object "
        "i\n"
        " bytes(16) j\n bitmap(b) k\n",
        "x");
    ASSERT_EQ(1u, sections.size());
    EXPECT_TRUE(sections[0].is_class);
    const auto& fields = sections[0].record.fields;
    ASSERT_EQ(11u, fields.size());
    for (std::size_t i = 0; i < fields.size(); ++i) {
        EXPECT_EQ(static_cast<Type>(i), fields[i].type);
        EXPECT_EQ(std::string(1, static_cast<char>('a' + i)), fields[i].name);
    }
    EXPECT_EQ(Count::fixed, fields[9].count.kind);
    EXPECT_EQ(16u, fields[9].count.number);
    EXPECT_EQ(Count::from_field, fields[10].count.kind);
    EXPECT_EQ(1u, fields[10].count.field);
    EXPECT_EQ(0, fields[1].slot);
    EXPECT_EQ(1, sections[0].record.slots);
}

TEST(ParseSchema, skips_comments_blank_lines_and_line_ends_of_both_kinds) {
    const auto sections = parse_schema(
        "# a drawing\r\n\r\n\ttop\r\n  long\tversion  \r\n  #\r\ntop My Stream\n  object(*) x", "x");
    ASSERT_EQ(2u, sections.size());
    EXPECT_EQ("", sections[0].record.name);
    EXPECT_EQ("version", sections[0].record.fields.at(0).name);
    EXPECT_EQ("My Stream", sections[1].record.name);
    EXPECT_EQ(Count::to_end, sections[1].record.fields.at(0).count.kind);
}

TEST(ParseSchema, lets_two_fields_take_their_count_from_the_same_one) {
    const auto sections = parse_schema("class P\n int n\n int(n) x\n int(n) y\n", "x");
    EXPECT_EQ(1, sections[0].record.slots);
}

TEST(ParseSchema, allows_blanks_in_a_class_name) {
    EXPECT_EQ("Grid<int, 3>", parse_schema("class Grid<int, 3>\n", "x").at(0).record.name);
}

TEST(ParseSchema, of_nothing_is_empty) {
    EXPECT_TRUE(parse_schema("", "x").empty());
}

TEST(ParseSchema, tells_the_line_of_every_error) {
    const std::pair<const char*, const char*> cases[] = {
        {"class A\n lnog x\n", "x.schema:2: unknown type 'lnog'"},
        {"\n\nint x\n", "x.schema:3: a field stands in front of the first 'class' or 'top'"},
        {"class\n", "x.schema:1: a class needs a name"},
        {"class A\nclass A\n", "x.schema:2: the class 'A' is described already"},
        {"top\ntop\n", "x.schema:2: the top '' is described already"},
        {"class A\n int\n", "x.schema:2: a field has a type and a name of one word"},
        {"class A\n int x y\n", "x.schema:2: a field has a type and a name of one word"},
        {"class A\n int x\n bool x\n", "x.schema:3: the field 'x' is described already"},
        {"class A\n bytes x\n", "x.schema:2: 'bytes' needs a count: bytes(16), or an earlier field's name"},
        {"class A\n int(3 x\n", "x.schema:2: a count ends with ')' and has no blanks in it"},
        {"class A\n int(3x) x\n", "x.schema:2: the count '3x' is not a number"},
        {"class A\n int(99999999999999999999) x\n",
         "x.schema:2: the count '99999999999999999999' is not a number"},
        {"class A\n int() x\n", "x.schema:2: the count '' is no earlier field of this section"},
        {"class A\n int(n) x\n int n\n", "x.schema:2: the count 'n' is no earlier field of this section"},
        {"class A\n bool n\n int(n) x\n", "x.schema:3: the count 'n' is not a single int or long"},
        {"class A\n int(2) n\n int(n) x\n", "x.schema:3: the count 'n' is not a single int or long"},
        {"class A\n object(*) x\n", "x.schema:2: only the top of a stream goes to the end"},
        {"top\n object(*) x\n int y\n", "x.schema:3: nothing can follow a field that goes to the end"},
        {"class A\n \x1b x\n", "x.schema:2: unknown type '\\x1b'"},
    };
    for (const auto& [text, why] : cases) {
        EXPECT_EQ(why, refusal(text)) << text;
    }
}
