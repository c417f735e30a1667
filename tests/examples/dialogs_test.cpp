// The program of docs/dialogs.md, used by keys in a process of its own. What comes out is read from the
// dialogs and from the screen.
#include <gtest/gtest.h>

#include <string>

#include "support/other_program.h"
#include "support/screen_picture.h"
#include "support/user.h"

namespace {

using user::WaitUntil;

// Of the picture question.bmp.
constexpr COLORREF blue = RGB(3, 3, 129);

class Dialogs : public ::testing::Test {
protected:
    Dialogs() : m_program(LVX_TEST_PROGRAM_PREFIX "dialogs.exe") {
        m_frame = user::WaitForShown(nullptr, "Dialogs");
    }
    void SetUp() override {
        ASSERT_NE(nullptr, m_frame);
        ASSERT_TRUE(m_program.Owns(m_frame));
        ::MoveWindow(m_frame, 100, 100, 500, 400, TRUE);
        ASSERT_TRUE(user::WaitUntilInFront(m_frame));
    }

    /// Opens a dialog by its letter in the menu, and waits until it has the keyboard.
    HWND Open(WORD letter, const char* title) const {
        user::Press({VK_MENU, 'D'});
        EXPECT_NE(nullptr, user::WaitForShown(user::drop_down_class, nullptr));
        user::Press({letter});
        const HWND dialog = user::WaitForShown(user::dialog_class, title);
        EXPECT_NE(nullptr, dialog);
        EXPECT_TRUE(user::WaitUntilInFront(dialog));
        return dialog;
    }
    static bool IsGone(HWND dialog) {
        return WaitUntil([&] { return !::IsWindow(dialog); });
    }
    /// How much of the window is text: dark pixels.
    std::ptrdiff_t Ink() const { return user::PictureOfClient(m_frame).Count(RGB(0, 0, 0)); }

    user::OtherProgram m_program;
    HWND m_frame = nullptr;
};

}  // namespace

TEST_F(Dialogs, have_settings_in_the_middle_of_the_window) {
    ASSERT_TRUE(WaitUntil([&] { return Ink() > 0; }));
    const std::ptrdiff_t before = Ink();
    const HWND dialog = Open('S', "Settings");
    RECT place{};
    ::GetWindowRect(dialog, &place);
    EXPECT_EQ(100 + (500 - (place.right - place.left)) / 2, place.left);
    EXPECT_EQ(100 + (400 - (place.bottom - place.top)) / 2, place.top);
    // The picture is the program's, in blue.
    EXPECT_TRUE(WaitUntil([&] { return user::PictureOfClient(dialog).Count(blue) > 50; }));
    user::Press({VK_MENU, 'L'});
    user::Press({VK_RETURN});
    EXPECT_TRUE(IsGone(dialog));
    EXPECT_TRUE(WaitUntil([&] { return Ink() > before; }));
}

TEST_F(Dialogs, have_settings_that_escape_leaves_alone) {
    const HWND dialog = Open('S', "Settings");
    user::Press({VK_MENU, 'L'});
    user::Press({VK_ESCAPE});
    EXPECT_TRUE(IsGone(dialog));
    const HWND again = Open('S', "Settings");
    EXPECT_EQ(BST_UNCHECKED, ::SendDlgItemMessageA(again, 203, BM_GETCHECK, 0, 0));
    user::Press({VK_ESCAPE});
    EXPECT_TRUE(IsGone(again));
}

TEST_F(Dialogs, choose_a_larger_font) {
    const std::ptrdiff_t before = Ink();
    const HWND dialog = Open('F', "Font");
    user::Press({VK_TAB});
    user::Press({VK_TAB});
    user::Type("40");
    EXPECT_TRUE(WaitUntil([&] { return user::TextOf(::GetDlgItem(dialog, 0x472)) == "40"; }));
    user::Press({VK_RETURN});
    EXPECT_TRUE(IsGone(dialog));
    EXPECT_TRUE(WaitUntil([&] { return Ink() > 2 * before; }));
}

TEST_F(Dialogs, ask_before_they_delete) {
    const std::ptrdiff_t before = Ink();
    ASSERT_LT(0, before);
    const HWND first = Open('D', "Dialogs");
    user::Press({VK_RETURN});
    EXPECT_TRUE(IsGone(first));
    EXPECT_EQ(before, Ink());
    const HWND second = Open('D', "Dialogs");
    user::Press({'Y'});
    EXPECT_TRUE(IsGone(second));
    EXPECT_TRUE(WaitUntil([&] { return Ink() < before / 4; }));
}

TEST_F(Dialogs, open_files) {
    const HWND dialog = Open('O', "Open a text");
    user::Press({VK_ESCAPE});
    EXPECT_TRUE(IsGone(dialog));
}

TEST_F(Dialogs, end_with_their_window) {
    user::Press({VK_MENU, VK_F4});
    EXPECT_EQ(0, m_program.WaitForEnd());
}
