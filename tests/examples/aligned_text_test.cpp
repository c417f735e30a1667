// The program of docs/toolbar.md, used by mouse and keys in a process of its own. What comes out is read from
// the screen and from its tip.
#include <gtest/gtest.h>

#include <string>

#include "support/other_program.h"
#include "support/screen_picture.h"
#include "support/user.h"

namespace {

using user::WaitUntil;

constexpr COLORREF red = RGB(255, 0, 0);

// The middles of the buttons: 22 pixels each behind a margin of 2, and gaps of 6.
constexpr int left_button = 13;
constexpr int centre_button = 35;
constexpr int right_button = 57;
constexpr int frame_button = 85;
constexpr int plain_button = 113;

class AlignedText : public ::testing::Test {
protected:
    AlignedText() : m_program(LVX_TEST_PROGRAM_PREFIX "aligned_text.exe") {
        MoveAway();
        m_frame = user::WaitForShown(nullptr, "Aligned text");
    }
    ~AlignedText() override { MoveAway(); }
    void SetUp() override {
        ASSERT_NE(nullptr, m_frame);
        ASSERT_TRUE(m_program.Owns(m_frame));
        ::MoveWindow(m_frame, 50, 60, 400, 300, TRUE);
        ASSERT_TRUE(user::WaitUntilInFront(m_frame));
        ASSERT_TRUE(WaitUntil([&] { return IsDown(left_button); }));
    }

    static void MoveAway() { user::MoveTo(::GetSystemMetrics(SM_CXSCREEN) - 2, 2); }
    POINT OnScreen(int x, int y) const {
        POINT point{x, y};
        ::ClientToScreen(m_frame, &point);
        return point;
    }
    void Click(int button) const { user::Click(OnScreen(button, 14).x, OnScreen(button, 14).y); }
    COLORREF At(int x, int y) const {
        const HDC screen = ::GetDC(nullptr);
        const COLORREF colour = ::GetPixel(screen, OnScreen(x, y).x, OnScreen(x, y).y);
        ::ReleaseDC(nullptr, screen);
        return colour;
    }
    /// By its upper edge: dark if it is pressed in.
    bool IsDown(int button) const { return At(button, 2) == ::GetSysColor(COLOR_WINDOWFRAME); }
    /// Which of the three buttons is down.
    bool IsAligned(int button) const {
        return WaitUntil([&] {
            return IsDown(left_button) == (button == left_button) &&
                   IsDown(centre_button) == (button == centre_button) &&
                   IsDown(right_button) == (button == right_button) && HasTextBelow(button);
        });
    }
    /// Whether something dark stands in the third of the window that the text belongs to, and nowhere else.
    bool HasTextBelow(int button) const {
        RECT client{};
        ::GetClientRect(m_frame, &client);
        const int third = static_cast<int>(client.right) / 3;
        int darkIn[3] = {};
        for (int i = 0; i < 3; ++i) {
            RECT part{i * third, 40, (i + 1) * third, 80};
            ::MapWindowPoints(m_frame, nullptr, reinterpret_cast<POINT*>(&part), 2);
            darkIn[i] = user::ScreenPicture::Of(part).Count(RGB(0, 0, 0)) > 0;
        }
        const int expected = button == left_button ? 0 : button == centre_button ? 1 : 2;
        return darkIn[expected] != 0 && darkIn[0] + darkIn[1] + darkIn[2] == 1;
    }
    bool HasFrame() const {
        RECT part{0, 26, 300, 60};
        ::MapWindowPoints(m_frame, nullptr, reinterpret_cast<POINT*>(&part), 2);
        return user::ScreenPicture::Of(part).Count(red) > 100;
    }
    bool IsPlainEnabled() const {
        // The arrow is blue, or grey with a light edge.
        RECT part{plain_button - 9, 4, plain_button + 9, 22};
        ::MapWindowPoints(m_frame, nullptr, reinterpret_cast<POINT*>(&part), 2);
        return user::ScreenPicture::Of(part).Count(RGB(0, 0, 128)) > 20;
    }

    user::OtherProgram m_program;
    HWND m_frame = nullptr;
};

}  // namespace

TEST_F(AlignedText, begins_on_the_left_without_a_frame) {
    EXPECT_TRUE(IsAligned(left_button));
    EXPECT_FALSE(HasFrame());
    EXPECT_FALSE(IsPlainEnabled());
}

TEST_F(AlignedText, is_aligned_by_a_group_of_buttons) {
    Click(right_button);
    EXPECT_TRUE(IsAligned(right_button));
    Click(centre_button);
    EXPECT_TRUE(IsAligned(centre_button));
    Click(left_button);
    EXPECT_TRUE(IsAligned(left_button));
}

TEST_F(AlignedText, is_framed_by_a_toggle) {
    Click(frame_button);
    EXPECT_TRUE(WaitUntil([&] { return HasFrame() && IsDown(frame_button); }));
    Click(frame_button);
    EXPECT_TRUE(WaitUntil([&] { return !HasFrame() && !IsDown(frame_button); }));
}

TEST_F(AlignedText, is_made_plain_by_a_button_that_is_enabled_while_there_is_something_to_take_back) {
    Click(frame_button);
    EXPECT_TRUE(WaitUntil([&] { return IsPlainEnabled(); }));
    Click(plain_button);
    EXPECT_TRUE(WaitUntil([&] { return !HasFrame() && !IsPlainEnabled() && !IsDown(frame_button); }));
}

TEST_F(AlignedText, does_all_of_it_by_keys) {
    user::Press({VK_CONTROL, 'R'});
    EXPECT_TRUE(IsAligned(right_button));
    user::Press({VK_CONTROL, 'F'});
    EXPECT_TRUE(WaitUntil([&] { return HasFrame() && IsDown(frame_button); }));
    user::Press({VK_CONTROL, 'Z'});
    EXPECT_TRUE(IsAligned(left_button));
    EXPECT_TRUE(WaitUntil([&] { return !HasFrame(); }));
}

TEST_F(AlignedText, names_a_button_where_the_mouse_rests) {
    const POINT place = OnScreen(frame_button, 14);
    user::MoveTo(place.x - 1, place.y);
    ::Sleep(100);
    user::MoveTo(place.x, place.y);
    HWND tip = nullptr;
    ASSERT_TRUE(WaitUntil([&] { return (tip = user::FindShown("tooltips_class32", nullptr)) != nullptr; }));
    EXPECT_EQ("Frame", user::TextOf(tip));
}

TEST_F(AlignedText, ends_when_it_is_closed) {
    user::Press({VK_MENU, VK_F4});
    EXPECT_EQ(0, m_program.WaitForEnd());
}
