// The program itself, as a process: what it prints, and its exit status.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/lvxdoc/compound_builder.h"
#include "tests/lvxdoc/platform/run_program.h"

using testing::ElementsAre;
using testing::HasSubstr;

TEST(Process, prints_the_same_as_the_parts_do) {
    const Folder folder;
    const std::string file = folder.Write("x", fonts);
    for (const std::vector<std::string>& words : {std::vector<std::string>{"--help"},
                                                  {"--version"},
                                                  {"dump", "--help"},
                                                  {"list", file},
                                                  {"dump", file},
                                                  {"dump", "--json", file},
                                                  {"check", file}}) {
        const Result result = run_process(folder, words);
        EXPECT_EQ(0, result.status) << words[0];
        EXPECT_EQ(run(words).out, result.out) << words[0];
        EXPECT_EQ("", result.err) << words[0];
    }
}

TEST(Process, exits_with_1_for_damage_and_2_for_a_wrong_command_line) {
    const Folder folder;
    const std::string file = folder.Write("x", fonts.substr(0, 40));
    EXPECT_EQ(1, run_process(folder, {"check", file}).status);
    EXPECT_EQ(1, run_process(folder, {"dump", file}).status);
    EXPECT_EQ(1, run_process(folder, {"list", folder.File("none")}).status);
    const Result wrong = run_process(folder, {"paint"});
    EXPECT_EQ(2, wrong.status);
    EXPECT_EQ("", wrong.out);
    EXPECT_EQ("lvxdoc: there is no command 'paint'\nTry 'lvxdoc --help'.\n", wrong.err);
}

TEST(Process, packs_lists_and_extracts_a_picture) {
    const Folder folder;
    const std::string bitmap = bytes_of("'BM' 46000000 0000 0000 36000000") + small_block;
    const std::string picture = folder.Write("sky.bmp", bitmap);
    const Result packed = run_process(folder, {"pack", folder.File("d.lvx"), picture});
    EXPECT_EQ(0, packed.status) << packed.err;
    EXPECT_THAT(run_process(folder, {"list", folder.File("d.lvx")}).out,
                HasSubstr("sky     LVXUtilities::DIBitmap, 2 x 2, 24 bits per pixel\n"));
    EXPECT_EQ(0, run_process(folder, {"check", folder.File("d.lvx")}).status);
    EXPECT_EQ(0, run_process(folder, {"extract", folder.File("d.lvx"), "-o", folder.File("out")}).status);
    EXPECT_EQ(bitmap, read_file(folder.Path() / "out" / "sky.bmp").substr(0, bitmap.size()));
}

TEST(Process, leaves_no_document_when_a_damaged_jpeg_file_ends_it) {
    const Folder folder;
    const std::string good =
        folder.Write("sky.bmp", bytes_of("'BM' 46000000 0000 0000 36000000") + small_block);
    const std::string bad =
        folder.Write("bad.jpg", bytes_of("ffd8ffe0 0010 'JFIF' 00 0101 00 0001 0001 0000 ffd9"));
    folder.Write("d.lvx", CompoundBuilder().Build());
    const Result result = run_process(folder, {"pack", folder.File("d.lvx"), good, bad});
    EXPECT_EQ(1, result.status);
    EXPECT_NE("", result.err);
    EXPECT_THAT(folder.Names(), ElementsAre("bad.jpg", "d.lvx", "sky.bmp", "stderr", "stdout"));
    EXPECT_EQ(CompoundBuilder().Build(), read_file(folder.Path() / "d.lvx"));
}
