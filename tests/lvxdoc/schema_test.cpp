#include "tools/lvxdoc/schema.h"

#include <gtest/gtest.h>

#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;

namespace {

std::string fields_of(const Record* record) {
    std::string text;
    for (const Field& field : record->fields) {
        text += std::string(type_name(field.type)) + ' ' + field.name + ';';
    }
    return text;
}

}  // namespace

TEST(Schema, knows_the_classes_of_the_library) {
    const Schema schema;
    EXPECT_EQ("long size;bitmap block;", fields_of(schema.FindClass("LVXUtilities::DIBitmap")));
    EXPECT_EQ("string face;double size;bool bold;bool italic;bool underline;bool strikeout;",
              fields_of(schema.FindClass("myFont")));
    EXPECT_EQ("cstring text;", fields_of(&schema.OlderString()));
    EXPECT_EQ(nullptr, schema.FindClass("VString"));
    EXPECT_EQ(nullptr, schema.FindClass("Star"));
}

TEST(Schema, drops_one_qualifier_as_the_library_does) {
    const Schema schema;
    EXPECT_NE(nullptr, schema.FindClass("DIBitmap"));
    EXPECT_NE(nullptr, schema.FindClass("Other::DIBitmap"));
    EXPECT_EQ(nullptr, schema.FindClass("One::Two::DIBitmap"));
}

TEST(Schema, prefers_the_whole_name) {
    Schema schema;
    schema.Add("class A::Star\n int a\nclass B::Star\n int b\n", "x");
    EXPECT_EQ("int a;", fields_of(schema.FindClass("A::Star")));
    EXPECT_EQ("int b;", fields_of(schema.FindClass("B::Star")));
}

TEST(Schema, lets_a_description_replace_a_built_in_one) {
    Schema schema;
    schema.Add("class myFont\n int face\n", "x");
    EXPECT_EQ("int face;", fields_of(schema.FindClass("myFont")));
}

TEST(Schema, has_a_long_and_objects_at_the_top_unless_told_otherwise) {
    Schema schema;
    EXPECT_EQ("long version;object object;", fields_of(&schema.TopOf("any")));
    schema.Add("top Index\n int n\n", "x");
    EXPECT_EQ("int n;", fields_of(&schema.TopOf("Index")));
    EXPECT_EQ("long version;object object;", fields_of(&schema.TopOf("any")));
    schema.Add("top\n bool b\n", "x");
    EXPECT_EQ("bool b;", fields_of(&schema.TopOf("any")));
}

TEST(Schema, changes_nothing_when_a_text_is_wrong) {
    Schema schema;
    EXPECT_THROW(schema.Add("class A\n int x\nclass B\n lnog y\n", "x"), Usage);
    EXPECT_EQ(nullptr, schema.FindClass("A"));
}

TEST(TypeName, is_the_word_of_the_schema) {
    EXPECT_STREQ("bool", type_name(Type::boolean));
    EXPECT_STREQ("cstring", type_name(Type::c_string));
    EXPECT_STREQ("bitmap", type_name(Type::bitmap));
}
