#include "lvx/platform/library_module.h"

#include <gtest/gtest.h>

// The library's source is a part of this program.
TEST(LibraryModule, is_what_the_library_is_linked_into) {
    EXPECT_EQ(::GetModuleHandleA(nullptr), lvx::platform::library_module());
    EXPECT_NE(::GetModuleHandleA("lvx.dll"), lvx::platform::library_module());
}
