// The program of docs/owl-bars.md, used by the mouse in a process of its own. What comes out is read from the
// screen and from its line and its tip.
#include <gtest/gtest.h>

#include <string>

#include "support/other_program.h"
#include "support/screen_picture.h"
#include "support/user.h"

namespace {

using user::ScreenPicture;
using user::WaitUntil;

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
constexpr COLORREF white = RGB(255, 255, 255);

// The middles of the buttons, 24 pixels each behind a margin of 2; the last stands behind a gap of 6.
constexpr int red_button = 14;
constexpr int green_button = 38;
constexpr int blue_button = 62;
constexpr int clear_button = 92;

class Toolbar : public ::testing::Test {
protected:
    Toolbar() : m_program(LVX_TEST_PROGRAM_PREFIX "toolbar.exe") {
        MoveAway();
        m_frame = user::WaitForShown(nullptr, "Toolbar");
    }
    ~Toolbar() override { MoveAway(); }
    void SetUp() override {
        ASSERT_NE(nullptr, m_frame);
        ASSERT_TRUE(m_program.Owns(m_frame));
        ASSERT_TRUE(user::WaitUntilInFront(m_frame));
        m_line = ::FindWindowExA(m_frame, nullptr, "STATIC", nullptr);
    }

    static void MoveAway() { user::MoveTo(::GetSystemMetrics(SM_CXSCREEN) - 2, 2); }
    POINT OnScreen(int x, int y) const {
        POINT point{x, y};
        ::ClientToScreen(m_frame, &point);
        return point;
    }
    void Point(int x, int y = 14) const { user::MoveTo(OnScreen(x, y).x, OnScreen(x, y).y); }
    /// Rests the mouse on a button, having moved there.
    void Rest(int button) const {
        Point(button - 1);
        ::Sleep(100);
        Point(button);
    }
    void Press(int x, int y = 14) const { user::PressLeft(OnScreen(x, y).x, OnScreen(x, y).y); }
    void Release(int x, int y = 14) const { user::ReleaseLeft(OnScreen(x, y).x, OnScreen(x, y).y); }
    void Click(int button) const { user::Click(OnScreen(button, 14).x, OnScreen(button, 14).y); }

    /// The colour of a pixel of the client area on the screen.
    COLORREF At(int x, int y) const {
        const HDC screen = ::GetDC(nullptr);
        const COLORREF colour = ::GetPixel(screen, OnScreen(x, y).x, OnScreen(x, y).y);
        ::ReleaseDC(nullptr, screen);
        return colour;
    }
    /// Whether the window is filled with a colour, between the bar and the line.
    bool IsFilled(COLORREF colour) const {
        return WaitUntil([&] { return At(0, 26) == colour && At(200, 80) == colour; });
    }
    bool Has(int button, COLORREF colour) const {
        return WaitUntil([&] { return At(button, 14) == colour; });
    }
    bool LineSays(const std::string& text) const {
        return WaitUntil([&] { return user::TextOf(m_line) == text; });
    }
    static HWND Tip() { return user::FindShown("tooltips_class32", nullptr); }

    user::OtherProgram m_program;
    HWND m_frame = nullptr;
    HWND m_line = nullptr;
};

}  // namespace

TEST_F(Toolbar, begins_white_with_its_buttons_in_a_row) {
    EXPECT_TRUE(IsFilled(white));
    EXPECT_TRUE(Has(red_button, red));
    EXPECT_TRUE(Has(green_button, green));
    EXPECT_TRUE(Has(blue_button, blue));
    EXPECT_TRUE(Has(clear_button, RGB(128, 128, 128)));
    EXPECT_TRUE(LineSays(""));
}

TEST_F(Toolbar, paints_its_window_by_a_click) {
    Click(green_button);
    EXPECT_TRUE(IsFilled(green));
    Click(blue_button);
    EXPECT_TRUE(IsFilled(blue));
    Click(red_button);
    EXPECT_TRUE(IsFilled(red));
}

TEST_F(Toolbar, enables_the_button_that_clears_while_there_is_something_to_clear) {
    Click(red_button);
    EXPECT_TRUE(Has(clear_button, white));
    Click(clear_button);
    EXPECT_TRUE(IsFilled(white));
    EXPECT_TRUE(Has(clear_button, RGB(128, 128, 128)));
}

TEST_F(Toolbar, draws_a_button_as_pressed_while_the_mouse_holds_it) {
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    const auto upperEdgeIs = [&](COLORREF colour) {
        return WaitUntil([&] { return At(green_button, 2) == colour; });
    };
    EXPECT_TRUE(upperEdgeIs(light));
    Press(green_button);
    EXPECT_TRUE(upperEdgeIs(shadow));
    Point(200, 80);
    EXPECT_TRUE(upperEdgeIs(light));
    Point(green_button);
    EXPECT_TRUE(upperEdgeIs(shadow));
    Release(green_button);
    EXPECT_TRUE(upperEdgeIs(light));
    EXPECT_TRUE(IsFilled(green));
}

TEST_F(Toolbar, takes_a_press_back_that_is_let_go_elsewhere) {
    Press(green_button);
    Release(200, 80);
    Click(blue_button);
    EXPECT_TRUE(IsFilled(blue));
}

TEST_F(Toolbar, tells_what_a_button_does_while_the_mouse_is_there) {
    Point(green_button);
    EXPECT_TRUE(LineSays("Paints the window green"));
    Point(clear_button);
    EXPECT_TRUE(LineSays("Takes the colour off the window"));
    MoveAway();
    EXPECT_TRUE(LineSays(""));
}

TEST_F(Toolbar, tells_nothing_more_when_the_mouse_goes_right_behind_a_click) {
    Click(green_button);
    MoveAway();
    EXPECT_TRUE(IsFilled(green));
    EXPECT_TRUE(LineSays(""));
    Click(blue_button);
    MoveAway();
    EXPECT_TRUE(IsFilled(blue));
    EXPECT_TRUE(LineSays(""));
}

TEST_F(Toolbar, names_a_button_where_the_mouse_rests) {
    Rest(green_button);
    ASSERT_TRUE(WaitUntil([] { return Tip() != nullptr; }));
    EXPECT_EQ("Green", user::TextOf(Tip()));
    MoveAway();
    EXPECT_TRUE(WaitUntil([] { return Tip() == nullptr; }));
    Rest(clear_button);
    ASSERT_TRUE(WaitUntil([] { return Tip() != nullptr; }));
    EXPECT_EQ("Clear", user::TextOf(Tip()));
}

TEST_F(Toolbar, keeps_bar_and_line_at_the_edges) {
    ::MoveWindow(m_frame, 50, 60, 500, 320, TRUE);
    RECT client{};
    ::GetClientRect(m_frame, &client);
    const auto lineIsAtTheBottom = [&] {
        RECT line{};
        ::GetWindowRect(m_line, &line);
        ::MapWindowPoints(nullptr, m_frame, reinterpret_cast<POINT*>(&line), 2);
        return line.left == 0 && line.right == client.right && line.bottom == client.bottom &&
               line.top == client.bottom - 18;
    };
    EXPECT_TRUE(WaitUntil(lineIsAtTheBottom));
    EXPECT_TRUE(Has(red_button, red));
}

TEST_F(Toolbar, ends_when_it_is_closed) {
    user::Press({VK_MENU, VK_F4});
    EXPECT_EQ(0, m_program.WaitForEnd());
}
