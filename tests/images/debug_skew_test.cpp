// The marked background of skewed pictures. There is no way back from it, so this is a program of its own.
#include <gtest/gtest.h>

#include "images/picture_bytes.h"
#include "lvx/images/dibitmap.h"

namespace {

using lvx_test::bytes;
using LVXUtilities::DIBitmap;

// One black pixel, dragged to twice its width: the second one sees nothing of it.
std::string skewed_pixels() {
    const DIBitmap image(lvx_test::make_block(lvx_test::Info{.depth = 32}.Header() + std::string(4, '\0')),
                         DIBitmap::Adopt);
    return lvx_test::block_of(*image.SkewPoint(LVXUtilities::Rectangles::TopRight, 2, 0)).substr(40);
}

TEST(DebugSkew, marks_from_then_on_what_is_outside_of_the_picture) {
    EXPECT_BYTES(bytes("FFFFFF00"), skewed_pixels().substr(8, 4));
    DIBitmap::DebugSkew();
    EXPECT_BYTES(bytes("80FFFF00"), skewed_pixels().substr(8, 4));
    DIBitmap::DebugSkew();
    EXPECT_BYTES(bytes("80FFFF00"), skewed_pixels().substr(8, 4));
}

TEST(DebugSkew, is_mixed_with_what_is_inside) {
    DIBitmap::DebugSkew();
    // Two of four samples see the pixel: 2 * 128 / 4 = 64, 2 * 255 / 4 = 127.
    EXPECT_BYTES(bytes("407F7F00"), skewed_pixels().substr(0, 4));
}

}  // namespace
