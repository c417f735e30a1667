#include "tools/lvxdoc/list_command.h"

#include <gtest/gtest.h>

#include "tests/lvxdoc/compound_builder.h"
#include "tests/lvxdoc/support.h"

TEST(List, tells_size_version_class_and_the_numbers_of_pictures) {
    const Folder folder;
    CompoundBuilder builder;
    builder.Add(u"Sky", small_picture);
    builder.Add(u"Fonts", fonts);
    builder.Add(u"Sub", "", 1);
    builder.entries[2].child = 4;
    builder.entries.push_back({u"Only", 2, int_bytes(300)});
    const std::string name = folder.Write("x", builder.Build());
    const Result result = run({"list", name});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ(name +
                  ": compound file, 3 streams, 1 storage\n"
                  "bytes  version  stream    first object\n"
                  "   91        1  Sky       LVXUtilities::DIBitmap, 2 x 2, 24 bits per pixel\n"
                  "   95        3  Fonts     myFont\n"
                  "    -        -  Sub/      storage\n"
                  "    4      300  Sub/Only  -\n",
              result.out);
}

TEST(List, tells_that_a_file_is_a_plain_store) {
    const Folder folder;
    const std::string name = folder.Write("x", fonts);
    EXPECT_EQ(name +
                  ": plain store, no compound file\n"
                  "bytes  version  stream            first object\n"
                  "   95        3  (the whole file)  myFont\n",
              run({"list", name}).out);
}

TEST(List, tells_damage_at_the_beginning_in_its_line_and_exits_with_0) {
    const Folder folder;
    CompoundBuilder builder;
    builder.Add(u"Bad", int_bytes(1) + "Bcx");
    const Result result = run({"list", folder.Write("x", builder.Build())});
    EXPECT_EQ(0, result.status);
    EXPECT_NE(
        std::string::npos,
        result.out.find(
            "    7        1  Bad     -; damage at offset 7 (0x00000007): a class name needs 1 byte here, but "
            "the data end after 0 bytes\n"));
}

TEST(List, does_not_read_beyond_the_first_object) {
    const Folder folder;
    const Result result =
        run({"list", folder.Write("x", small_picture.substr(0, 76) + std::string(15, 'x') + "garbage")});
    EXPECT_NE(std::string::npos, result.out.find("2 x 2, 24 bits per pixel\n"));
}

TEST(List, gives_the_height_of_a_picture_from_the_top_down) {
    const Folder folder;
    std::string picture = small_picture;
    picture.replace(43, 4, int_bytes(0xfffffffe));
    EXPECT_NE(std::string::npos,
              run({"list", folder.Write("x", picture)}).out.find("2 x 2, 24 bits per pixel\n"));
}

TEST(List, shows_nothing_that_a_terminal_obeys_in_the_name_of_a_class) {
    const Folder folder;
    const std::string name = folder.Write("x", bytes_of("01000000 63 1b '[7m::myFont' 0d0a 6f"));
    const Result result = run({"list", name});
    EXPECT_NE(std::string::npos, result.out.find("\\x1b[7m::myFont")) << result.out;
    EXPECT_EQ(std::string::npos, result.out.find('\x1b'));
}

TEST(List, has_no_table_for_a_document_without_streams) {
    const Folder folder;
    const std::string name = folder.Write("x", CompoundBuilder().Build());
    EXPECT_EQ(name + ": compound file, 0 streams\n", run({"list", name}).out);
}
