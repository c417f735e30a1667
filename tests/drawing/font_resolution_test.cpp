#include "lvx/drawing/font_resolution.h"

#include <gtest/gtest.h>

using lvx::drawing::units_per_inch;

TEST(FontResolution, is_what_the_device_tells) {
    EXPECT_EQ(96, units_per_inch(96, MM_TEXT));
    EXPECT_EQ(600, units_per_inch(600, MM_HIENGLISH));
}

TEST(FontResolution, of_a_device_that_does_not_tell_is_that_of_its_map_mode) {
    EXPECT_EQ(254, units_per_inch(0, MM_LOMETRIC));
    EXPECT_EQ(2540, units_per_inch(0, MM_HIMETRIC));
    EXPECT_EQ(100, units_per_inch(0, MM_LOENGLISH));
    EXPECT_EQ(1000, units_per_inch(0, MM_HIENGLISH));
}

TEST(FontResolution, is_tenths_of_a_millimetre_when_nothing_is_told) {
    for (const int mode : {0, MM_TEXT, MM_TWIPS, MM_ISOTROPIC, MM_ANISOTROPIC, 99}) {
        EXPECT_EQ(254, units_per_inch(0, mode)) << mode;
    }
}
