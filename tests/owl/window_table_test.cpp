#include <gtest/gtest.h>

#include "tests/owl/desk.h"

namespace {

TEST(WindowTable, finds_the_object_of_a_window) {
    desk::Desk desk;
    EXPECT_EQ(desk.frame, owl::GetWindowPtr(desk.frame->GetHandle()));
    EXPECT_EQ(desk.frame, owl::TWindow::FromHandle(desk.frame->GetHandle()));
}

TEST(WindowTable, has_nothing_for_null_and_for_strangers) {
    EXPECT_EQ(nullptr, owl::GetWindowPtr(nullptr));
    EXPECT_EQ(nullptr, owl::GetWindowPtr(::GetDesktopWindow()));
}

TEST(WindowTable, forgets_a_window_with_its_end) {
    desk::Desk desk;
    const HWND handle = desk.frame->GetHandle();
    ::DestroyWindow(handle);
    EXPECT_EQ(nullptr, owl::GetWindowPtr(handle));
    EXPECT_EQ(nullptr, desk.frame->GetHandle());
}

}  // namespace
