#include "tools/lvxdoc/pack_command.h"

#include <gtest/gtest.h>

#include "tests/lvxdoc/support.h"

namespace {

const std::string bitmap_file = bytes_of("'BM' 46000000 0000 0000 36000000") + small_block;

}  // namespace

TEST(Pack, tells_the_stream_of_each_picture) {
    const Folder folder;
    const std::string sky = folder.Write("sky!.bmp", bitmap_file);
    const std::string document = folder.File("d.lvx");
    const Result result = run({"pack", document, sky, sky});
    EXPECT_EQ(0, result.status) << result.err;
    EXPECT_EQ(document + ": 2 pictures\n  " + sky + " -> stream \"sky_\", 2 x 2, 24 bits per pixel\n  " +
                  sky + " -> stream \"sky_-2\", 2 x 2, 24 bits per pixel\n",
              result.out);
}

TEST(Pack, gives_back_the_pixels_of_every_picture_through_extract) {
    const Folder folder;
    const std::string sky = folder.Write("sky.bmp", bitmap_file);
    ASSERT_EQ(0, run({"pack", folder.File("d.lvx"), sky}).status);
    ASSERT_EQ(0, run({"extract", folder.File("d.lvx"), "-o", folder.File("out")}).status);
    const std::string back = read_file(folder.Path() / "out" / "sky.bmp");
    EXPECT_EQ(small_block, back.substr(14, small_block.size()));
    EXPECT_EQ(bytes_of("36000000"), back.substr(10, 4));
}

TEST(Pack, exits_with_1_and_the_cause) {
    const Folder folder;
    const std::string text = folder.Write("text", "hello");
    const Result result = run({"pack", folder.File("d.lvx"), text});
    EXPECT_EQ(1, result.status);
    EXPECT_EQ("lvxdoc: cannot read the picture '" + text + "': it is neither a bitmap nor a JPEG file\n",
              result.err);
}

TEST(Pack, replaces_other_files_when_forced) {
    const Folder folder;
    const std::string sky = folder.Write("sky.bmp", bitmap_file);
    const std::string notes = folder.Write("notes", "x");
    EXPECT_EQ(1, run({"pack", notes, sky}).status);
    EXPECT_EQ(0, run({"pack", "-f", notes, sky}).status);
}
