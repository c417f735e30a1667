#include "tools/lvxdoc/dump_command.h"

#include <gtest/gtest.h>

#include "tests/lvxdoc/compound_builder.h"
#include "tests/lvxdoc/support.h"
#include "tools/lvxdoc/text.h"

namespace {

std::string two_versions() {
    CompoundBuilder builder;
    builder.Add(u"One", int_bytes(1));
    builder.Add(u"Two", int_bytes(2));
    return builder.Build();
}

}  // namespace

TEST(Dump, prints_a_plain_store) {
    const Folder folder;
    const std::string name = folder.Write("x", fonts.substr(0, 4) + "B0");
    const Result result = run({"dump", name});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ(name +
                  ": plain store\n\nstore, 6 bytes\n"
                  "         0  0x00000000  long version = 3\n"
                  "         4  0x00000004  marker B (binary)\n"
                  "         5  0x00000005  null\n",
              result.out);
}

TEST(Dump, prints_all_streams_or_those_that_are_named) {
    const Folder folder;
    const std::string name = folder.Write("x", two_versions());
    EXPECT_EQ(name +
                  ": compound file, 2 streams\n\nstream \"One\", 4 bytes\n"
                  "         0  0x00000000  long version = 1\n\nstream \"Two\", 4 bytes\n"
                  "         0  0x00000000  long version = 2\n",
              run({"dump", name}).out);
    EXPECT_EQ(name +
                  ": compound file, 1 stream\n\nstream \"Two\", 4 bytes\n"
                  "         0  0x00000000  long version = 2\n",
              run({"dump", name, "two"}).out);
    const Result missing = run({"dump", name, "Three"});
    EXPECT_EQ(1, missing.status);
    EXPECT_EQ("lvxdoc: there is no stream 'Three' in '" + name + "'\n", missing.err);
}

TEST(Dump, says_which_class_is_not_described_and_exits_with_1) {
    const Folder folder;
    const std::string name = folder.Write("x", bytes_of("01000000 42 63 'Star' 0d0a 6f 05000000"));
    const Result result = run({"dump", name});
    EXPECT_EQ(1, result.status);
    EXPECT_NE(
        std::string::npos,
        result.out.find(
            "damage at offset 4 (0x00000004): the class \"Star\" is not described; a schema has to have "
            "a line 'class Star' with its fields behind it\n"));
    const Result described = run({"dump", "-s", folder.Write("s", "class Star\n int rays\n"), name});
    EXPECT_EQ(0, described.status);
    EXPECT_NE(std::string::npos, described.out.find("        13  0x0000000d    int rays = 5\n"));
}

TEST(Dump, goes_on_with_the_next_stream_after_damage) {
    const Folder folder;
    CompoundBuilder builder;
    builder.Add(u"Bad", "abc");
    builder.Add(u"Good", int_bytes(2));
    const Result result = run({"dump", folder.Write("x", builder.Build())});
    EXPECT_EQ(1, result.status);
    EXPECT_NE(std::string::npos, result.out.find("damage at offset 0"));
    EXPECT_NE(std::string::npos, result.out.find("long version = 2"));
}

TEST(Dump, prints_json) {
    const Folder folder;
    const std::string name = folder.Write("x", int_bytes(3) + "z");
    EXPECT_EQ(
        "{\"file\": " + lvxdoc::json_text(name) +
            ", \"kind\": \"store\",\n \"streams\": [\n"
            "  {\"name\": null, \"size\": 5,\n    \"events\": [\n"
            "      {\"offset\": 0, \"size\": 4, \"depth\": 0, \"what\": \"value\", \"type\": \"long\", "
            "\"name\": "
            "\"version\", \"value\": 3}],\n"
            "    \"damage\": {\"offset\": 4, \"why\": \"an object begins here, but the byte \\\"z\\\" begins "
            "none\"}}]}\n",
        run({"dump", "--json", name}).out);
    CompoundBuilder empty;
    const std::string compound = folder.Write("y", empty.Build());
    EXPECT_EQ("{\"file\": " + lvxdoc::json_text(compound) + ", \"kind\": \"compound\",\n \"streams\": []}\n",
              run({"dump", "--json", compound}).out);
}

TEST(Dump, continues_the_numbers_in_the_order_given) {
    const Folder folder;
    CompoundBuilder builder;
    builder.Add(u"Later", bytes_of("01000000 42 4f 01000000"));
    builder.Add(u"First", fonts);
    const std::string name = folder.Write("x", builder.Build());
    EXPECT_EQ(0, run({"dump", "--continued", name, "First", "Later"}).status);
    const Result wrong = run({"dump", "--continued", name, "Later", "First"});
    EXPECT_EQ(1, wrong.status);
    EXPECT_EQ(std::string::npos, wrong.out.find("First"));
}
