// In a program of its own, whose first ids these are.
#include <gtest/gtest.h>

#include "lvx/menus/menu.h"

TEST(FirstMenuIds, are_20000_and_20001_and_return_in_reverse) {
    EXPECT_EQ(20000U, LVXMenu::AllocateMenuId());
    EXPECT_EQ(20001U, LVXMenu::AllocateMenuId());
    LVXMenu::FreeMenuId(20000);
    LVXMenu::FreeMenuId(20001);
    LVXMenu::FreeMenuId(21000);
    LVXMenu::FreeMenuId(19999);
    EXPECT_EQ(20001U, LVXMenu::AllocateMenuId());
    EXPECT_EQ(20000U, LVXMenu::AllocateMenuId());
    EXPECT_EQ(20002U, LVXMenu::AllocateMenuId());
}
