#include <gtest/gtest.h>

#include "tests/owl/desk.h"
#include "tests/owl/resource_ids.h"

namespace {

using owl::TPoint;
using owl::TRect;
using owl::TWindow;

// Presses No in the box as soon as there is one.
void CALLBACK PressNo(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND box = ::FindWindowA("#32770", "the caption");
    if (box == nullptr)
        return;
    ::KillTimer(nullptr, timer);
    ::PostMessageA(box, WM_COMMAND, IDNO, 0);
}

struct WindowCalls : testing::Test {
    WindowCalls() : window(new TWindow(desk.frame, "title")) {
        window->Attr.X = 5;
        window->Attr.Y = 6;
        window->Attr.W = 100;
        window->Attr.H = 50;
        window->Attr.Id = 40;
        window->Create();
    }

    desk::Desk desk;
    TWindow* window;
};

TEST_F(WindowCalls, read_and_write_the_text) {
    EXPECT_EQ("title", window->GetWindowText());
    EXPECT_EQ(5, window->GetWindowTextLength());
    window->SetWindowText("a longer title");
    EXPECT_EQ("a longer title", window->GetWindowText());
    EXPECT_EQ("a longer title", window->GetCaption());
}

TEST_F(WindowCalls, cut_a_text_to_the_room_that_there_is) {
    char room[4] = "xxx";
    EXPECT_EQ(3, window->GetWindowText(room, sizeof(room)));
    EXPECT_STREQ("tit", room);
    EXPECT_EQ(0, window->GetWindowText(room, 0));
    EXPECT_EQ(0, window->GetWindowText(nullptr, 10));
}

TEST_F(WindowCalls, tell_places) {
    EXPECT_EQ(TRect(0, 0, 100, 50), window->GetClientRect());
    TRect rect;
    window->GetWindowRect(rect);
    EXPECT_EQ(owl::TSize(100, 50), rect.Size());
    TPoint point(0, 0);
    window->ClientToScreen(point);
    EXPECT_EQ(rect.TopLeft(), point);
    window->ScreenToClient(point);
    EXPECT_EQ(TPoint(0, 0), point);
}

TEST_F(WindowCalls, move) {
    EXPECT_TRUE(window->MoveWindow(TRect(10, 20, 40, 60)));
    EXPECT_EQ(owl::TSize(30, 40), window->GetClientRect().Size());
    EXPECT_TRUE(window->SetWindowPos(nullptr, TRect(0, 0, 7, 8), SWP_NOZORDER | SWP_NOMOVE));
    EXPECT_EQ(owl::TSize(7, 8), window->GetClientRect().Size());
}

TEST_F(WindowCalls, without_a_window_give_nothing_and_do_nothing) {
    TWindow none(desk.frame, "never created");
    EXPECT_EQ("", none.GetWindowText());
    // Under Wine what the buffer had held came back.
    char room[10] = "xyz";
    EXPECT_EQ(0, none.GetWindowText(room, sizeof(room)));
    EXPECT_STREQ("", room);
    EXPECT_EQ(TRect(), none.GetClientRect());
    EXPECT_EQ(TRect(), none.GetWindowRect());
    EXPECT_FALSE(none.MoveWindow(0, 0, 1, 1));
    EXPECT_FALSE(none.ShowWindow(SW_SHOW));
    EXPECT_FALSE(none.IsWindowVisible());
    EXPECT_FALSE(none.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE));
    EXPECT_EQ(nullptr, none.SetFocus());
    EXPECT_EQ(nullptr, none.GetMenu());
    EXPECT_EQ(0U, none.SetTimer(5, 10000));
    const UINT_PTR others = ::SetTimer(nullptr, 0, 10000, nullptr);
    EXPECT_FALSE(none.KillTimer(static_cast<UINT>(others)));
    EXPECT_TRUE(::KillTimer(nullptr, others));
    none.UpdateWindow();
    EXPECT_EQ(0U, none.GetStyle() & WS_BORDER);
    none.Invalidate();
    none.InvalidateRect(TRect(0, 0, 1, 1));
    none.SetWindowText("still none");
    EXPECT_EQ("still none", none.GetCaption());
}

TEST_F(WindowCalls, show_hide_and_enable) {
    desk.frame->ShowWindow(SW_SHOW);
    EXPECT_TRUE(window->IsWindowVisible());
    EXPECT_TRUE(window->ShowWindow(SW_HIDE));
    EXPECT_FALSE(window->IsWindowVisible());
    window->EnableWindow(false);
    EXPECT_FALSE(window->IsWindowEnabled());
    window->EnableWindow(true);
    EXPECT_TRUE(window->IsWindowEnabled());
    EXPECT_FALSE(window->IsIconic());
    EXPECT_FALSE(window->IsZoomed());
}

TEST_F(WindowCalls, change_styles) {
    const DWORD before = window->GetStyle();
    EXPECT_EQ(before, window->SetStyle(before | WS_BORDER));
    EXPECT_EQ(before | WS_BORDER, window->GetStyle());
    window->SetExStyle(WS_EX_CLIENTEDGE);
    EXPECT_NE(0U, window->GetExStyle() & WS_EX_CLIENTEDGE);
}

TEST_F(WindowCalls, invalidate_what_they_are_told) {
    desk.frame->ShowWindow(SW_SHOW);
    desk::PumpUntil([] { return false; }, 100);
    window->RedrawWindow(nullptr, nullptr, RDW_VALIDATE);
    window->InvalidateRect(TRect(1, 2, 3, 4));
    const HRGN region = ::CreateRectRgn(0, 0, 0, 0);
    EXPECT_TRUE(window->GetUpdateRgn(region, false));
    TRect box;
    ::GetRgnBox(region, &box);
    EXPECT_EQ(TRect(1, 2, 3, 4), box);
    ::SetRectRgn(region, 10, 10, 20, 20);
    window->InvalidateRgn(region);
    window->UpdateWindow();
    EXPECT_FALSE(window->GetUpdateRgn(region, false));
    ::DeleteObject(region);
}

TEST_F(WindowCalls, find_neighbours) {
    EXPECT_EQ(window->GetHandle(), desk.frame->GetDlgItem(40));
    EXPECT_EQ(nullptr, desk.frame->GetDlgItem(41));
    EXPECT_EQ(window->GetHandle(), desk.frame->GetWindow(GW_CHILD));
    EXPECT_TRUE(desk.frame->IsChild(window->GetHandle()));
    EXPECT_FALSE(window->IsChild(desk.frame->GetHandle()));
}

TEST_F(WindowCalls, find_the_next_tab_stop_in_both_ways) {
    TWindow* const other = new TWindow(desk.frame);
    other->Attr.Style |= WS_TABSTOP;
    window->SetStyle(window->GetStyle() | WS_TABSTOP);
    desk.frame->ShowWindow(SW_SHOW);
    other->Create();
    EXPECT_EQ(other->GetHandle(), desk.frame->GetNextDlgTabItem(window->GetHandle()));
    EXPECT_EQ(other->GetHandle(), desk.frame->GetNextDlgTabItem(window->GetHandle(), true));
}

TEST_F(WindowCalls, know_where_the_mouse_is_and_what_lies_there) {
    ASSERT_TRUE(desk::Activate(*desk.frame));
    TPoint point(20, 20);
    window->ClientToScreen(point);
    ::SetCursorPos(point.x, point.y);
    TPoint found;
    TWindow::GetCursorPos(found);
    EXPECT_EQ(point, found);
    EXPECT_EQ(window->GetHandle(), TWindow::WindowFromPoint(point));
}

TEST_F(WindowCalls, carry_properties) {
    int mark = 0;
    EXPECT_EQ(nullptr, window->GetProp("owl.test"));
    EXPECT_TRUE(window->SetProp("owl.test", &mark));
    EXPECT_EQ(&mark, window->GetProp("owl.test"));
    EXPECT_EQ(&mark, window->RemoveProp("owl.test"));
    EXPECT_EQ(nullptr, window->GetProp("owl.test"));
}

TEST_F(WindowCalls, give_a_child_no_menu_though_it_has_a_number) {
    EXPECT_EQ(nullptr, window->GetMenu());
    EXPECT_EQ(nullptr, desk.frame->GetMenu());
    const HMENU menu = desk.application.LoadMenu(IDM_TEST_MENU);
    EXPECT_TRUE(desk.frame->SetMenu(menu));
    EXPECT_EQ(menu, desk.frame->GetMenu());
    desk.frame->DrawMenuBar();
    EXPECT_NE(nullptr, desk.frame->GetSystemMenu());
}

TEST_F(WindowCalls, time) {
    class Timed : public TWindow {
    public:
        using TWindow::TWindow;
        bool PreProcessMsg(MSG& msg) override {
            if (msg.message == WM_TIMER)
                ++ticks;
            return false;
        }
        int ticks = 0;
    };
    auto* timed = new Timed(desk.frame);
    timed->Create();
    EXPECT_NE(0U, timed->SetTimer(3, 20));
    EXPECT_TRUE(desk::PumpUntil([&] { return timed->ticks >= 2; }));
    EXPECT_TRUE(timed->KillTimer(3));
    EXPECT_FALSE(timed->KillTimer(3));
}

TEST_F(WindowCalls, show_a_box_whose_buttons_are_keys) {
    ASSERT_TRUE(desk::Activate(*desk.frame));
    ::SetTimer(nullptr, 0, 50, &PressNo);
    EXPECT_EQ(IDNO, desk.frame->MessageBox("the text", "the caption", MB_YESNO));
}

TEST_F(WindowCalls, refuse_a_cursor_that_there_is_not) {
    EXPECT_FALSE(window->SetCursor(&desk.application, 999));
}

}  // namespace
