#include "tools/lvxdoc/bitmap_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/lvxdoc/support.h"
#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

void write(BitmapWriter& writer, const std::string& block) {
    writer.BeginBitmap(block.size());
    writer.TakeBitmapBytes(std::string_view(block).substr(0, 40));
    if (block.size() > 40) {
        writer.TakeBitmapBytes(std::string_view(block).substr(40));
    }
    writer.EndBitmap();
}

}  // namespace

TEST(BitmapWriter, puts_14_bytes_in_front_of_the_block) {
    const Folder folder;
    BitmapWriter writer(folder.Path(), false);
    writer.BeginStream("sky");
    write(writer, small_block);
    EXPECT_EQ(bytes_of("'BM' 46000000 0000 0000 36000000") + small_block,
              read_file(folder.Path() / "sky.bmp"));
    EXPECT_THAT(writer.Written(), ElementsAre("sky.bmp"));
}

TEST(BitmapWriter, counts_the_colours_into_the_place_of_the_pixels) {
    const Folder folder;
    BitmapWriter writer(folder.Path(), false);
    writer.BeginStream("sky");
    write(writer, bytes_of("0c000000 0100 0100 0100 0100  000000 ffffff  80000000"));
    EXPECT_EQ(bytes_of("'BM' 24000000 0000 0000 20000000"),
              read_file(folder.Path() / "sky.bmp").substr(0, 14));
}

TEST(BitmapWriter, numbers_several_bitmaps_of_a_stream) {
    const Folder folder;
    BitmapWriter writer(folder.Path(), false);
    writer.BeginStream("sky");
    write(writer, small_block);
    write(writer, small_block);
    writer.BeginStream("SKY");
    write(writer, small_block);
    EXPECT_THAT(writer.Written(), ElementsAre("sky.bmp", "sky-2.bmp", "SKY-3.bmp"));
}

TEST(BitmapWriter, does_not_touch_a_file_that_exists_unless_forced) {
    const Folder folder;
    folder.Write("sky.bmp", "old");
    BitmapWriter careful(folder.Path(), false);
    careful.BeginStream("sky");
    write(careful, small_block);
    EXPECT_THAT(careful.Refused(), ElementsAre("'sky.bmp' exists already; --force replaces it"));
    EXPECT_THAT(careful.Written(), IsEmpty());
    EXPECT_EQ("old", read_file(folder.Path() / "sky.bmp"));
    BitmapWriter bold(folder.Path(), true);
    bold.BeginStream("sky");
    write(bold, small_block);
    EXPECT_EQ(70u, read_file(folder.Path() / "sky.bmp").size());
}

TEST(BitmapWriter, refuses_what_would_be_no_bitmap_and_leaves_nothing) {
    const Folder folder;
    BitmapWriter writer(folder.Path(), false);
    writer.BeginStream("sky");
    write(writer, "abc");
    write(writer, small_block.substr(0, 50));
    EXPECT_THAT(writer.Refused(),
                ElementsAre("'sky.bmp' would be no bitmap: it has no header",
                            "'sky-2.bmp' would be no bitmap: its header asks for 40 bytes of header and "
                            "colours and 16 bytes of pixels, but the block has 50 bytes"));
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST(BitmapWriter, goes_on_behind_a_bitmap_that_it_refused) {
    const Folder folder;
    BitmapWriter writer(folder.Path(), false);
    writer.BeginStream("sky");
    write(writer, small_block.substr(0, 50));
    write(writer, small_block);
    EXPECT_THAT(writer.Written(), ElementsAre("sky-2.bmp"));
    EXPECT_EQ(bytes_of("'BM' 46000000 0000 0000 36000000") + small_block,
              read_file(folder.Path() / "sky-2.bmp"));
}

TEST(BitmapWriter, throws_when_the_file_cannot_be_made) {
    const Folder folder;
    BitmapWriter writer(folder.Path() / "none", false);
    writer.BeginStream("sky");
    EXPECT_THROW(writer.BeginBitmap(56), Failure);
}

TEST(BitmapWriter, leaves_nothing_of_a_bitmap_that_was_cut_short) {
    const Folder folder;
    {
        BitmapWriter writer(folder.Path(), false);
        writer.BeginStream("sky");
        writer.BeginBitmap(small_block.size());
        writer.TakeBitmapBytes(small_block.substr(0, 40));
    }
    EXPECT_THAT(folder.Names(), IsEmpty());
}
