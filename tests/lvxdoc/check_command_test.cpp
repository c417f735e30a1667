#include "tools/lvxdoc/check_command.h"

#include <gtest/gtest.h>

#include "tests/lvxdoc/compound_builder.h"
#include "tests/lvxdoc/support.h"

TEST(Check, praises_each_file_in_a_line) {
    const Folder folder;
    CompoundBuilder builder;
    builder.Add(u"Sky", small_picture);
    builder.Add(u"Fonts", fonts);
    const std::string document = folder.Write("d", builder.Build());
    const std::string plain = folder.Write("p", int_bytes(1));
    const Result result = run({"check", document, plain});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ(document + ": ok, compound file, 2 streams, 3 objects, nested 1 deep\n" + plain +
                  ": ok, plain store, 0 objects\n",
              result.out);
    EXPECT_EQ("", result.err);
}

TEST(Check, tells_the_first_damage_with_stream_and_offset_and_goes_on_with_the_next_file) {
    const Folder folder;
    CompoundBuilder builder;
    builder.Add(u"Fonts", fonts);
    std::string bad_picture = small_picture;
    bad_picture[47] = 9;
    builder.Add(u"Sky", bad_picture);
    const std::string bad = folder.Write("bad", builder.Build());
    const std::string good = folder.Write("good", fonts);
    const Result result = run({"check", bad, good});
    EXPECT_EQ(1, result.status);
    EXPECT_EQ(bad +
                  ": damaged: stream \"Sky\", offset 35 (0x00000023): a bitmap block of 56 bytes cannot be "
                  "right: it has 9 "
                  "planes\n" +
                  good + ": ok, plain store, 2 objects, nested 1 deep\n",
              result.out);
}

TEST(Check, tells_damage_of_a_plain_store_without_a_stream) {
    const Folder folder;
    const std::string name = folder.Write("x", fonts.substr(0, 30));
    EXPECT_EQ(name +
                  ": damaged: offset 25 (0x00000019): a double needs 8 bytes here, but the data end after 5 "
                  "bytes\n",
              run({"check", name}).out);
}

TEST(Check, tells_damage_of_the_compound_file_itself) {
    const Folder folder;
    const std::string name = folder.Write("x", CompoundBuilder().Build().substr(0, 300));
    const Result result = run({"check", name});
    EXPECT_EQ(1, result.status);
    EXPECT_EQ(
        name + ": damaged: offset 300 (0x0000012c): the file ends within the header of a compound file\n",
        result.out);
}

TEST(Check, tells_a_file_that_is_missing_and_goes_on) {
    const Folder folder;
    const std::string good = folder.Write("good", fonts);
    const Result result = run({"check", folder.File("none"), good});
    EXPECT_EQ(1, result.status);
    EXPECT_EQ(0u, result.err.find("lvxdoc: cannot open '" + folder.File("none") + "': "));
    EXPECT_EQ(good + ": ok, plain store, 2 objects, nested 1 deep\n", result.out);
}

TEST(Check, takes_an_undescribed_class_for_damage_unless_a_schema_has_it) {
    const Folder folder;
    const std::string name = folder.Write("x", bytes_of("01000000 63 'Star' 0d0a 6f 05000000"));
    EXPECT_EQ(1, run({"check", name}).status);
    EXPECT_EQ(0, run({"check", "--schema", folder.Write("s", "class Star\n int rays\n"), name}).status);
}

TEST(Check, counts_on_from_stream_to_stream_when_told) {
    const Folder folder;
    CompoundBuilder builder;
    builder.Add(u"One", fonts);
    builder.Add(u"Two", bytes_of("01000000 42 4f 01000000"));
    const std::string name = folder.Write("x", builder.Build());
    EXPECT_EQ(1, run({"check", name}).status);
    const Result result = run({"check", "--continued", name});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ(name + ": ok, compound file, 2 streams, 2 objects, nested 1 deep\n", result.out);
}
