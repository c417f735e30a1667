#include <gtest/gtest.h>
#include <windows.h>

#include "owl/color.h"

namespace {

TEST(SystemColor, follows_what_the_user_chose) {
    const INT element = COLOR_BTNFACE;
    const COLORREF before = ::GetSysColor(element);
    const COLORREF chosen = before ^ 0x00010203;
    ASSERT_TRUE(::SetSysColors(1, &element, &chosen));
    EXPECT_EQ(chosen, owl::TColor::FromSystem(element).GetValue());
    ::SetSysColors(1, &element, &before);
    EXPECT_EQ(before, owl::TColor::FromSystem(element).GetValue());
}

TEST(SystemColor, of_an_unknown_part_is_black) {
    EXPECT_EQ(owl::TColor::Black, owl::TColor::FromSystem(-1));
    EXPECT_EQ(owl::TColor::Black, owl::TColor::FromSystem(9999));
}

}  // namespace
