// JPEG files that have no length.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <thread>

#include "images/jpeg_maker.h"
#include "images/picture_bytes.h"
#include "lvx/images/dibitmap.h"
#include "support/bytes.h"
#include "support/temp_folder.h"

namespace {

using LVXUtilities::DIBitmap;

// A large picture was once refused, because what has no length was taken for empty.
TEST(JpegPipe, is_read_however_large_the_picture_is) {
    const lvx_test::TempFolder folder;
    const std::string name = folder.File("pipe.jpg");
    ASSERT_EQ(0, mkfifo(name.c_str(), 0600));
    const std::string file = lvx_test::make_white_jpeg(5000, 5000);
    std::jthread writer([&] { lvx_test::write_file(name, file); });
    const DIBitmap bitmap(name, DIBitmap::JPEG);
    EXPECT_EQ(owl::TSize(5000, 5000), bitmap.GetSize());
    EXPECT_TRUE(lvx_test::is_white(bitmap.GetBitsAddress().get(), 75'000'000));
}

}  // namespace
