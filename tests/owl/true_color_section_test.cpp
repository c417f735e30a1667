#include "owl/true_color_section.h"

#include <gtest/gtest.h>

#include "surface.h"

namespace {

using owl::TrueColorSection;

TEST(TrueColorSection, shows_what_is_drawn_on_it) {
    const TrueColorSection section(3, 2);
    ASSERT_TRUE(section.IsGood());
    EXPECT_EQ(owl::TSize(3, 2), section.Size());
    ::SetPixel(section.GetHDC(), 2, 0, RGB(1, 2, 3));
    ::SetPixel(section.GetHDC(), 0, 1, RGB(4, 5, 6));
    EXPECT_EQ(0x010203u, section.Pixels()[2] & 0xFFFFFF);
    EXPECT_EQ(0x040506u, section.Pixels()[3] & 0xFFFFFF);
    EXPECT_EQ(0u, section.Pixels()[0] & 0xFFFFFF);
}

TEST(TrueColorSection, without_pixels_is_not_good) {
    EXPECT_FALSE(TrueColorSection(0, 5).IsGood());
    EXPECT_FALSE(TrueColorSection(5, -1).IsGood());
    EXPECT_EQ(nullptr, TrueColorSection(0, 5).Pixels());
}

TEST(TrueColorSection, without_room_is_not_good) {
    EXPECT_FALSE(TrueColorSection(0x7FFFFFFF, 0x7FFFFFFF).IsGood());
}

TEST(TrueColorSection, leaves_nothing_behind) {
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        const TrueColorSection section(3, 2);
        const TrueColorSection none(0, 2);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
