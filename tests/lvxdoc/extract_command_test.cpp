#include "tools/lvxdoc/extract_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/lvxdoc/compound_builder.h"
#include "tests/lvxdoc/support.h"

using testing::ElementsAre;

namespace {

const std::string bitmap_file = bytes_of("'BM' 46000000 0000 0000 36000000") + small_block;

}  // namespace

TEST(Extract, writes_the_bitmaps_of_all_streams_or_of_one) {
    const Folder folder;
    CompoundBuilder builder;
    builder.Add(u"Sky", small_picture);
    builder.Add(u"Fonts", fonts);
    builder.Add(u"Sea", small_picture);
    const std::string name = folder.Write("x", builder.Build());
    const Result all = run({"extract", name, "-o", folder.File("all")});
    EXPECT_EQ(0, all.status);
    EXPECT_EQ("Sky.bmp\nSea.bmp\n", all.out);
    EXPECT_EQ(bitmap_file, read_file(folder.Path() / "all" / "Sky.bmp"));
    EXPECT_EQ("Sea.bmp\n", run({"extract", name, "Sea", "--output=" + folder.File("deep/er")}).out);
    EXPECT_TRUE(std::filesystem::exists(folder.Path() / "deep" / "er" / "Sea.bmp"));
}

TEST(Extract, finds_bitmaps_within_other_objects) {
    const Folder folder;
    const std::string name =
        folder.Write("x", bytes_of("01000000 63 'Sketch' 0d0a 6f") + small_picture.substr(4));
    const std::string schema = folder.Write("s", "class Sketch\n object picture\n");
    EXPECT_EQ("picture.bmp\n", run({"extract", "-s", schema, name, "-o", folder.File("out")}).out);
    EXPECT_EQ(bitmap_file, read_file(folder.Path() / "out" / "picture.bmp"));
}

TEST(Extract, stays_within_the_folder_whatever_streams_are_called) {
    const Folder folder;
    CompoundBuilder builder;
    for (const char16_t* hostile :
         {u"..", u"../up", u"/etc/up", u"..\\up", u"C:\\up", u"NUL", u".hidden", u"a.", u"-rf"}) {
        builder.Add(hostile, small_picture);
    }
    const char16_t with_nul[] = {'a', 0, 'b'};
    builder.Add({with_nul, 3}, small_picture);
    const Result result = run({"extract", folder.Write("x", builder.Build()), "-o", folder.File("out/deep")});
    EXPECT_EQ(0, result.status) << result.err;
    EXPECT_THAT(folder.Names(), ElementsAre("out", "x"));
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path() / "out")) {
        EXPECT_EQ("deep", entry.path().filename().string());
    }
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path() / "out" / "deep")) {
        EXPECT_TRUE(entry.is_regular_file());
        EXPECT_EQ(bitmap_file, read_file(entry.path()));
        ++files;
    }
    EXPECT_EQ(10u, files);
}

TEST(Extract, keeps_files_that_exist_unless_forced) {
    const Folder folder;
    const std::string name = folder.Write("x", small_picture);
    folder.Write("picture.bmp", "old");
    const Result careful = run({"extract", name, "-o", folder.File("")});
    EXPECT_EQ(1, careful.status);
    EXPECT_EQ("lvxdoc: 'picture.bmp' exists already; --force replaces it\n", careful.err);
    EXPECT_EQ("old", read_file(folder.Path() / "picture.bmp"));
    EXPECT_EQ(0, run({"extract", name, "--force", "-o", folder.File("")}).status);
    EXPECT_EQ(bitmap_file, read_file(folder.Path() / "picture.bmp"));
    EXPECT_THAT(folder.Names(), ElementsAre("picture.bmp", "x"));
}

TEST(Extract, keeps_what_it_had_before_damage_and_tells_the_damage) {
    const Folder folder;
    const std::string name = folder.Write("x", small_picture + small_picture.substr(4, 60));
    const Result result = run({"extract", name, "-o", folder.File("out")});
    EXPECT_EQ(1, result.status);
    EXPECT_EQ("picture.bmp\n", result.out);
    EXPECT_EQ(
        "lvxdoc: offset 122 (0x0000007a): the bitmap block 'block' needs 56 bytes here, but the data end "
        "after 29 bytes\n",
        result.err);
}

// The picture of the last stream came out of the wrong class when the stream before it was damaged.
TEST(Extract, ends_at_damage_when_the_numbers_run_on_from_stream_to_stream) {
    const Folder folder;
    CompoundBuilder builder;
    builder.Add(u"First", small_picture);
    builder.Add(u"Bad", int_bytes(1) + "BcmyFont");
    builder.Add(u"Last", int_bytes(1) + bytes_of("42 43 00000000 6f 38000000") + small_block);
    const std::string name = folder.Write("x", builder.Build());
    const Result continued = run({"extract", "--continued", name, "-o", folder.File("out")});
    EXPECT_EQ(1, continued.status);
    EXPECT_EQ("First.bmp\n", continued.out);
    EXPECT_EQ(
        "lvxdoc: stream \"Bad\": offset 12 (0x0000000c): a class name needs 1 byte here, but the data end "
        "after 0 bytes\n",
        continued.err);
    const Result good = run({"extract", "--continued", name, "First", "Last", "-o", folder.File("good")});
    EXPECT_EQ("First.bmp\nLast.bmp\n", good.out);
    EXPECT_EQ(0, good.status);
}

// One file in the way cost all pictures behind it in the same stream.
TEST(Extract, goes_on_in_the_stream_behind_a_bitmap_whose_file_exists) {
    const Folder folder;
    CompoundBuilder builder;
    const std::string again = bytes_of("42 43 00000000 6f 38000000") + small_block;
    builder.Add(u"Sky", small_picture + again);
    builder.Add(u"Sea", int_bytes(1) + again);
    const std::string name = folder.Write("x", builder.Build());
    std::filesystem::create_directory(folder.Path() / "out");
    folder.Write("out/Sky.bmp", "old");
    const Result result = run({"extract", "--continued", name, "-o", folder.File("out")});
    EXPECT_EQ(1, result.status);
    EXPECT_EQ("Sky-2.bmp\nSea.bmp\n", result.out);
    EXPECT_EQ("lvxdoc: stream \"Sky\": 'Sky.bmp' exists already; --force replaces it\n", result.err);
    EXPECT_EQ("old", read_file(folder.Path() / "out" / "Sky.bmp"));
    EXPECT_EQ(bitmap_file, read_file(folder.Path() / "out" / "Sky-2.bmp"));
}

TEST(Extract, goes_on_in_the_stream_behind_a_block_that_is_no_bitmap) {
    const Folder folder;
    const std::string name = folder.Write("x", bytes_of("01000000 42 63 'LVXUtilities::DIBitmap' 0d0a 6f"
                                                        "03000000 'abc' 42 43 00000000 6f 38000000") +
                                                   small_block);
    const Result result = run({"extract", name, "-o", folder.File("out")});
    EXPECT_EQ(1, result.status);
    EXPECT_EQ("picture-2.bmp\n", result.out);
    EXPECT_EQ("lvxdoc: 'picture.bmp' would be no bitmap: it has no header\n", result.err);
}

TEST(Extract, needs_a_folder) {
    const Folder folder;
    const Result result = run({"extract", folder.Write("x", small_picture)});
    EXPECT_EQ(2, result.status);
    EXPECT_EQ("lvxdoc: 'extract' needs the folder to write to: -o DIR\nTry 'lvxdoc --help'.\n", result.err);
    const Result file = run({"extract", folder.File("x"), "-o", folder.File("x")});
    EXPECT_EQ(1, file.status);
    EXPECT_EQ(0u, file.err.find("lvxdoc: cannot make the folder '" + folder.File("x") + "'"));
}
