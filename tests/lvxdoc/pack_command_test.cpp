#include "tools/lvxdoc/pack_command.h"

#include <gtest/gtest.h>

#include <algorithm>

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

// pack said nothing of pictures that check calls damaged a moment later.
TEST(Pack, warns_of_pictures_that_check_will_call_damaged) {
    struct Case {
        std::string file;
        std::string flaw;
    };
    const auto changed = [](std::size_t offset, const std::string& bytes) {
        return std::string(bitmap_file).replace(offset, bytes.size(), bytes);
    };
    const Case cases[] = {
        {"BM", "its header size is 0"},
        {changed(34, int_bytes(4)),
         "its header asks for 40 bytes of header and colours and 16 bytes of pixels"},
        {changed(30, int_bytes(4)), "it has compression 4 with 24 bits per pixel"},
        {changed(30, int_bytes(5)), "it has compression 5 with 24 bits per pixel"},
        {changed(14, int_bytes(125)), "its header size is 125"},
    };
    for (const Case& c : cases) {
        const Folder folder;
        const std::string flawed = folder.Write("flawed.bmp", c.file);
        const std::string sky = folder.Write("sky.bmp", bitmap_file);
        const Result result = run({"pack", folder.File("d.lvx"), sky, flawed});
        EXPECT_EQ(0, result.status) << c.flaw;
        const std::string warning = "lvxdoc: warning: '" + flawed +
                                    "' is packed as it is, but 'check' will call it damaged: " + c.flaw;
        EXPECT_EQ(warning, result.err.substr(0, warning.size()));
        EXPECT_EQ(1, std::count(result.err.begin(), result.err.end(), '\n')) << result.err;
        const Result check = run({"check", folder.File("d.lvx")});
        EXPECT_EQ(1, check.status) << c.flaw;
        EXPECT_NE(std::string::npos, check.out.find(c.flaw)) << check.out;
    }
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
