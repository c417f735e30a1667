#include "lvx/runtime/notifier.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <type_traits>

#include "support/box_reader.h"
#include "support/peer_process.h"
#include "tests/owl/desk.h"

namespace {

static_assert(std::is_same_v<decltype(_notifier), LVXNotifier* const>);
static_assert(std::is_empty_v<LVXNotifier> && !std::is_copy_constructible_v<LVXNotifier>);

// What a host's own start-up sees of it.
const LVXNotifier* const at_start = _notifier;

constexpr int untouched = -12345;

// Puts the mouse on a pixel of the screen, as a hand does, and waits until the system knows.
bool move_mouse(POINT to) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    input.mi.dx = (to.x * 65536 + 32768) / ::GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (to.y * 65536 + 32768) / ::GetSystemMetrics(SM_CYSCREEN);
    ::SendInput(1, &input, sizeof input);
    return desk::PumpUntil([&] {
        POINT now{};
        return ::GetCursorPos(&now) != 0 && now.x == to.x && now.y == to.y;
    });
}

POINT centre_of(HWND window) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

// Left of its middle, outside.
POINT beside(HWND window) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    return {rect.left - 20, (rect.top + rect.bottom) / 2};
}

class NotifierTest : public testing::Test {
protected:
    NotifierTest() {
        desk.frame->ShowWindow(SW_SHOW);
        EXPECT_TRUE(desk::Activate(*desk.frame));
    }

    // A button in the frame.
    owl::TWindow& Child() {
        child.Attr.X = 100;
        child.Attr.Y = 100;
        child.Attr.W = 80;
        child.Attr.H = 40;
        child.Create();
        return child;
    }

    desk::Desk desk;
    owl::TWindow child{desk.frame, "child"};
};

}  // namespace

TEST(Notifier, is_there_from_the_start) {
    ASSERT_NE(nullptr, at_start);
    EXPECT_EQ(at_start, _notifier);
}

TEST(Notifier, tells_the_size_of_the_screen) {
    const HDC screen = ::CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
    int width = untouched;
    int height = untouched;
    _notifier->getScreenSize(&width, &height);
    EXPECT_EQ(::GetDeviceCaps(screen, HORZRES), width);
    EXPECT_EQ(::GetDeviceCaps(screen, VERTRES), height);
    EXPECT_NE(width, height);
    ::DeleteDC(screen);
}

TEST(Notifier, leaves_out_what_has_no_place_of_the_screens_size) {
    int width = untouched;
    int height = untouched;
    _notifier->getScreenSize(nullptr, &height);
    EXPECT_EQ(::GetSystemMetrics(SM_CYSCREEN), height);
    _notifier->getScreenSize(&width, nullptr);
    EXPECT_EQ(::GetSystemMetrics(SM_CXSCREEN), width);
    _notifier->getScreenSize(nullptr, nullptr);
}

TEST_F(NotifierTest, tells_where_the_mouse_went) {
    for (const POINT place : {POINT{300, 200}, POINT{77, 411}, POINT{1, 1}}) {
        ASSERT_TRUE(move_mouse(place));
        int x = untouched;
        int y = untouched;
        _notifier->getCursorPos(&x, &y);
        EXPECT_EQ(place.x, x);
        EXPECT_EQ(place.y, y);
    }
}

TEST_F(NotifierTest, leaves_out_what_has_no_place_of_the_mouse) {
    ASSERT_TRUE(move_mouse({123, 321}));
    int x = untouched;
    int y = untouched;
    _notifier->getCursorPos(nullptr, &y);
    EXPECT_EQ(321, y);
    _notifier->getCursorPos(&x, nullptr);
    EXPECT_EQ(123, x);
    _notifier->getCursorPos(nullptr, nullptr);
}

TEST_F(NotifierTest, finds_the_window_under_the_mouse) {
    ASSERT_TRUE(move_mouse(centre_of(Child().GetHandle())));
    EXPECT_EQ(&child, _notifier->whereIsMouse());
    ASSERT_TRUE(move_mouse(beside(child.GetHandle())));
    EXPECT_EQ(desk.frame, _notifier->whereIsMouse());
}

TEST_F(NotifierTest, looks_through_a_control_that_is_disabled) {
    Child().EnableWindow(false);
    ASSERT_TRUE(move_mouse(centre_of(child.GetHandle())));
    EXPECT_EQ(desk.frame, _notifier->whereIsMouse());
}

TEST_F(NotifierTest, finds_nothing_where_a_window_has_no_object) {
    const HWND plain = ::CreateWindowExA(0, "BUTTON", "plain", WS_CHILD | WS_VISIBLE, 10, 10, 100, 50,
                                         desk.frame->GetHandle(), nullptr, nullptr, nullptr);
    ASSERT_TRUE(move_mouse(centre_of(plain)));
    EXPECT_EQ(plain, owl::TWindow::WindowFromPoint(centre_of(plain)));
    EXPECT_EQ(nullptr, _notifier->whereIsMouse());
}

TEST_F(NotifierTest, finds_nothing_where_there_is_no_window_of_ours) {
    ASSERT_TRUE(move_mouse({1000, 900}));
    EXPECT_EQ(nullptr, _notifier->whereIsMouse());
}

TEST_F(NotifierTest, finds_nothing_over_a_window_of_another_process) {
    lvx_test::PeerProcess peer("lvx_report_peer.exe", {});
    HWND below = nullptr;
    owl::TWindow* found = desk.frame;
    lvx_test::BoxReader reader(peer.Id(), [&] {
        const HWND box = ::FindWindowA("#32770", "Error");
        below = box;
        if (move_mouse(centre_of(box))) {
            found = _notifier->whereIsMouse();
            below = ::GetAncestor(owl::TWindow::WindowFromPoint(centre_of(box)), GA_ROOT);
        }
        EXPECT_EQ(box, below);
    });
    EXPECT_TRUE(reader.Contents().closed);
    EXPECT_EQ(nullptr, found);
}

TEST_F(NotifierTest, gives_the_keyboard_to_a_window) {
    Child();
    ASSERT_EQ(desk.frame->GetHandle(), ::GetFocus());
    _notifier->setFocus(&child);
    EXPECT_EQ(child.GetHandle(), ::GetFocus());
    _notifier->setFocus(desk.frame);
    EXPECT_EQ(desk.frame->GetHandle(), ::GetFocus());
}

TEST_F(NotifierTest, leaves_the_keyboard_where_it_is_without_a_window) {
    _notifier->setFocus(nullptr);
    EXPECT_EQ(desk.frame->GetHandle(), ::GetFocus());
    _notifier->setFocus(&child);
    EXPECT_FALSE(child.IsWindow());
    EXPECT_EQ(desk.frame->GetHandle(), ::GetFocus());
}
