// Where resources are found. The source is a part of this program, which so is the library.
#include "lvx/drawing/resource_module.h"

#include <gtest/gtest.h>

#include "lvx/platform/library_module.h"
#include "owl/application.h"

namespace {

using lvx::drawing::module_with_bitmap;

// A bitmap of the system's controls, which the program has not.
constexpr const char* controls_bitmap = "#120";

}  // namespace

TEST(ResourceModule, is_the_librarys_own_first) {
    EXPECT_EQ(lvx::platform::library_module(), module_with_bitmap("GREYS"));
    const owl::TModule controls("comctl32.dll", true);
    const owl::TApplication application("drawing", controls.GetInstance());
    EXPECT_EQ(lvx::platform::library_module(), module_with_bitmap("GREYS"));
}

TEST(ResourceModule, is_the_applications_if_that_has_the_bitmap) {
    const owl::TModule controls("comctl32.dll", true);
    EXPECT_EQ(lvx::platform::library_module(), module_with_bitmap(controls_bitmap));
    const owl::TApplication application("drawing", controls.GetInstance());
    EXPECT_EQ(controls.GetInstance(), module_with_bitmap(controls_bitmap));
}

TEST(ResourceModule, is_the_librarys_if_nobody_has_the_bitmap) {
    EXPECT_EQ(lvx::platform::library_module(), module_with_bitmap("GREY"));
    EXPECT_EQ(lvx::platform::library_module(), module_with_bitmap(""));
}
