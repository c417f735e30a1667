#include "owl/control.h"

#include <gtest/gtest.h>

#include "tests/owl/desk.h"

namespace {

TEST(Control, has_the_place_and_the_styles_that_it_is_made_with) {
    desk::Desk desk;
    const owl::TControl control(desk.frame, 5, "title", 1, 2, 30, 40);
    EXPECT_EQ(5, control.Attr.Id);
    EXPECT_EQ(1, control.Attr.X);
    EXPECT_EQ(2, control.Attr.Y);
    EXPECT_EQ(30, control.Attr.W);
    EXPECT_EQ(40, control.Attr.H);
    EXPECT_EQ("title", control.GetCaption());
    EXPECT_NE(0U, control.Attr.Style & WS_TABSTOP);
    EXPECT_FALSE(control.IsFlagSet(owl::wfTransfer));
    EXPECT_EQ(desk.frame, control.Parent);
}

TEST(Control, of_a_resource_is_taken_over_and_transfers) {
    desk::Desk desk;
    const owl::TControl control(desk.frame, 5);
    EXPECT_TRUE(control.IsFlagSet(owl::wfFromResource));
    EXPECT_TRUE(control.IsFlagSet(owl::wfTransfer));
}

}  // namespace
