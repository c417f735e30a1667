#include <gtest/gtest.h>

#include "tests/owl/desk.h"

namespace {

using owl::TWindow;

// Every handler hands on to the base, as if it were not there; what the system does must still come about.
class Through : public TWindow {
public:
    using TWindow::TWindow;

    void EvSysColorChange() {
        ++colourChanges;
        TWindow::EvSysColorChange();
    }

    int colourChanges = 0;

    DECLARE_RESPONSE_TABLE(Through);
};

DEFINE_RESPONSE_TABLE1(Through, TWindow)
    EV_WM_ACTIVATE, EV_WM_CHAR, EV_WM_CREATE, EV_WM_CTLCOLOR, EV_WM_DESTROY, EV_WM_ENABLE, EV_WM_ERASEBKGND,
        EV_WM_GETDLGCODE, EV_WM_GETMINMAXINFO, EV_WM_HELP, EV_WM_HSCROLL, EV_WM_INITMENUPOPUP, EV_WM_KEYDOWN,
        EV_WM_KEYUP, EV_WM_KILLFOCUS, EV_WM_LBUTTONDBLCLK, EV_WM_LBUTTONDOWN, EV_WM_LBUTTONUP,
        EV_WM_MBUTTONDOWN, EV_WM_MBUTTONUP, EV_WM_MENUSELECT, EV_WM_MOUSEMOVE, EV_WM_MOVE, EV_WM_NCDESTROY,
        EV_WM_PALETTECHANGED, EV_WM_QUERYNEWPALETTE, EV_WM_RBUTTONDOWN, EV_WM_RBUTTONUP, EV_WM_SETCURSOR,
        EV_WM_SETFOCUS, EV_WM_SHOWWINDOW, EV_WM_SIZE, EV_WM_SYSCOLORCHANGE, EV_WM_SYSCOMMAND, EV_WM_TIMER,
        EV_WM_VSCROLL, EV_WM_WINDOWPOSCHANGED,
END_RESPONSE_TABLE;

class ThroughEdit : public Through {
public:
    explicit ThroughEdit(TWindow* parent) : Through(parent) {
        Attr.W = 100;
        Attr.H = 30;
        Attr.Style |= ES_AUTOHSCROLL;
    }

protected:
    const char* GetClassName() override { return "EDIT"; }
};

class Sized : public TWindow {
public:
    using TWindow::TWindow;

    void EvSize(UINT how, const owl::TSize& size) {
        TWindow::EvSize(how, size);
        sizes.push_back(size);
    }
    void EvMove(const owl::TPoint& point) { moved = point; }
    void EvWindowPosChanged(WINDOWPOS& position) {
        TWindow::EvWindowPosChanged(position);
        ++positions;
    }

    std::vector<owl::TSize> sizes;
    owl::TPoint moved;
    int positions = 0;

    DECLARE_RESPONSE_TABLE(Sized);
};

DEFINE_RESPONSE_TABLE1(Sized, TWindow)
    EV_WM_SIZE, EV_WM_MOVE, EV_WM_WINDOWPOSCHANGED,
END_RESPONSE_TABLE;

struct WindowEvents : testing::Test {
    desk::Desk desk;
};

TEST_F(WindowEvents, of_a_control_that_are_handed_on_leave_it_working) {
    auto* edit = new ThroughEdit(desk.frame);
    edit->Create();
    ::SetFocus(edit->GetHandle());
    for (const char c : std::string("typed"))
        edit->SendMessage(WM_CHAR, static_cast<WPARAM>(c), 1);
    EXPECT_EQ("typed", edit->GetWindowText());
    edit->SendMessage(WM_KEYDOWN, VK_HOME, 1);
    edit->SendMessage(WM_KEYDOWN, VK_DELETE, 1);
    EXPECT_EQ("yped", edit->GetWindowText());
    EXPECT_NE(0, edit->SendMessage(WM_GETDLGCODE) & DLGC_WANTCHARS);
}

TEST_F(WindowEvents, that_are_handed_on_get_the_systems_answers) {
    Through window(desk.frame);
    window.Create();
    EXPECT_NE(0, window.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(::GetDC(nullptr)), 0));
    EXPECT_EQ(0, window.SendMessage(WM_GETDLGCODE));
    EXPECT_EQ(0, window.SendMessage(WM_QUERYNEWPALETTE));
}

TEST_F(WindowEvents, of_the_mouse_leave_the_capture_of_an_edit_working) {
    auto* edit = new ThroughEdit(desk.frame);
    edit->Create();
    edit->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 1));
    EXPECT_EQ(edit->GetHandle(), TWindow::GetCapture());
    edit->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(1, 1));
    EXPECT_EQ(nullptr, TWindow::GetCapture());
}

TEST_F(WindowEvents, tell_the_new_size_and_place) {
    auto* window = new Sized(desk.frame);
    window->Create();
    window->sizes.clear();
    window->MoveWindow(3, 4, 50, 60);
    EXPECT_EQ((std::vector<owl::TSize>{{50, 60}}), window->sizes);
    EXPECT_EQ(owl::TPoint(3, 4), window->moved);
    EXPECT_LE(1, window->positions);
}

TEST_F(WindowEvents, about_system_colours_reach_the_children) {
    auto* parent = new Through(desk.frame);
    auto* child = new Through(parent);
    auto* absent = new Through(parent);
    absent->EnableAutoCreate(false);
    parent->Create();
    desk.frame->SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(1, parent->colourChanges);
    EXPECT_EQ(1, child->colourChanges);
    EXPECT_EQ(0, absent->colourChanges);
}

TEST_F(WindowEvents, that_close_ask_first) {
    auto* window = new Through(desk.frame);
    window->Create();
    window->SendMessage(WM_CLOSE);
    EXPECT_FALSE(window->IsWindow());
}

TEST_F(WindowEvents, of_the_pointer_show_the_windows_own_cursor) {
    auto* window = new Through(desk.frame);
    window->Create();
    const auto cross = reinterpret_cast<const char*>(IDC_CROSS);
    ASSERT_TRUE(window->SetCursor(nullptr, cross));
    const auto handle = reinterpret_cast<WPARAM>(window->GetHandle());
    EXPECT_EQ(1, window->SendMessage(WM_SETCURSOR, handle, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    EXPECT_EQ(::LoadCursorA(nullptr, cross), ::GetCursor());
}

}  // namespace
