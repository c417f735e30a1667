// Bitmaps out of the library's resources. The class is a part of this program, which so is the library.
#include <gtest/gtest.h>

#include "drawing/sheet.h"
#include "lvx/drawing/bitmap.h"
#include "owl/bitmap.h"

// What tests/owl/greys.bmp shows: black, grey, light grey and white, and below red, green, blue and yellow.
TEST(ResourceBitmap, has_the_pixels_of_the_resource) {
    LVXBitmap bitmap(std::string("GREYS"));
    ASSERT_EQ(4, bitmap.GetWidth());
    ASSERT_EQ(2, bitmap.GetHeight());
    lvx_test::OpenPort open(4, 2);
    open.port.drawBitMap(bitmap, 0, 0);
    EXPECT_EQ("#??.\nRGBY\n", open.Picture());
}

TEST(ResourceBitmap, is_drawn_on_like_others) {
    LVXBitmap bitmap(std::string("GREYS"));
    bitmap.eraseWhite();
    lvx_test::OpenPort open(4, 2);
    open.port.drawBitMap(bitmap, 0, 0);
    EXPECT_EQ("....\n....\n", open.Picture());
    EXPECT_EQ(4, LVXBitmap(bitmap).GetWidth());
}

TEST(ResourceBitmap, that_is_missing_is_told) {
    EXPECT_THROW(LVXBitmap(""), owl::TXGdi);
    EXPECT_THROW(LVXBitmap("GREY"), owl::TXGdi);
}
