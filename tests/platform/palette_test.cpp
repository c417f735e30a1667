#include "lvx/platform/palette.h"

#include <gtest/gtest.h>

namespace {

TEST(Palette, of_no_colours_is_none) {
    EXPECT_EQ(nullptr, lvx::platform::make_palette({}).get());
}

}  // namespace
