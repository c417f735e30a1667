#include "tools/lvxdoc/walk_part.h"

#include <gtest/gtest.h>

#include "tests/lvxdoc/compound_builder.h"
#include "tests/lvxdoc/support.h"

using namespace lvxdoc;

TEST(LoadSchema, adds_the_file_of_the_option) {
    const Folder folder;
    Arguments arguments;
    EXPECT_EQ(nullptr, load_schema(arguments).FindClass("Star"));
    arguments.options["schema"] = folder.Write("s", "class Star\n int rays\n");
    EXPECT_NE(nullptr, load_schema(arguments).FindClass("Star"));
}

TEST(LoadSchema, tells_a_file_that_is_missing_wrong_or_huge) {
    const Folder folder;
    Arguments arguments;
    arguments.options["schema"] = folder.File("none");
    EXPECT_THROW(load_schema(arguments), Failure);
    arguments.options["schema"] = folder.Write("wrong", "nonsense\n");
    EXPECT_THROW(load_schema(arguments), Usage);
    arguments.options["schema"] = folder.Write("huge", std::string(1024 * 1024 + 1, '#'));
    EXPECT_THROW(load_schema(arguments), Failure);
}

TEST(ChosenParts, are_all_streams_unless_some_are_named) {
    const Folder folder;
    CompoundBuilder builder;
    builder.Add(u"A", "aa");
    builder.Add(u"Sub", "", 1);
    builder.Add(u"B", "bbb");
    const std::string name = folder.Write("x", builder.Build());
    const Document document(name);
    Arguments arguments;
    arguments.words = {name};
    const auto all = chosen_parts(document, arguments);
    ASSERT_EQ(2u, all.size());
    EXPECT_EQ("B", all[1].name);
    EXPECT_EQ(5u, total_size(all));
    arguments.words = {name, "B", "A"};
    EXPECT_EQ("B", chosen_parts(document, arguments).at(0).name);
    arguments.words = {name, "C"};
    EXPECT_THROW(chosen_parts(document, arguments), Failure);
}

TEST(TotalSize, does_not_wrap) {
    EXPECT_EQ(UINT64_MAX, total_size({{"a", UINT64_MAX - 1, false, 0}, {"b", 5, false, 0}}));
}

TEST(WalkPart, uses_the_top_of_the_stream_and_moves_the_bar) {
    const Folder folder;
    CompoundBuilder builder;
    builder.Add(u"Index", int_bytes(9));
    const Document document(folder.Write("x", builder.Build()));
    Schema schema;
    schema.Add("top Index\n int entries\n", "s");
    Numbering numbering;
    Lines lines;
    StringOutput terminal;
    std::chrono::milliseconds now(0);
    ProgressBar bar(terminal, true, 4, [&now] { return now += std::chrono::seconds(1); });
    EXPECT_EQ(0u, walk_part(document, document.Parts()[0], schema, true, numbering, lines, bar));
    EXPECT_EQ("0 int entries = 9", lines.lines.at(0));
    EXPECT_NE(std::string::npos, terminal.Text().find("100%"));
}

TEST(TellDamage, names_the_stream_if_there_is_one) {
    EXPECT_EQ("stream \"Sky\", offset 26 (0x0000001a): why", tell_damage("Sky", Damage(26, "why")));
    EXPECT_EQ("offset 26 (0x0000001a): why", tell_damage("", Damage(26, "why")));
}
