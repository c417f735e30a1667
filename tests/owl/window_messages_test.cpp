#include <gtest/gtest.h>

#include <stdexcept>

#include "owl/command_enabler.h"
#include "tests/owl/desk.h"

namespace {

using owl::TWindow;

class Talker : public TWindow {
public:
    explicit Talker(TWindow* parent) : TWindow(parent) {}

    LRESULT Answer(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) * 10 + lParam; }
    void EvSetFocus(HWND lost) {
        TWindow::EvSetFocus(lost);
        ++focused;
    }
    bool EvEraseBkgnd(HDC dc) { return erases || TWindow::EvEraseBkgnd(dc); }
    HBRUSH EvCtlColor(HDC, HWND, UINT type) {
        types.push_back(type);
        return brush;
    }
    LRESULT DeleteItself(WPARAM, LPARAM) {
        delete this;
        return 5;
    }
    LRESULT Nested(WPARAM depth, LPARAM) {
        if (depth > 0)
            SendMessage(WM_USER + 3, depth - 1);
        // The message that is handled here is this one again: its default is to answer 0.
        return DefaultProcessing() + static_cast<LRESULT>(depth);
    }

    int focused = 0;
    bool erases = false;
    std::vector<UINT> types;
    HBRUSH brush = static_cast<HBRUSH>(::GetStockObject(LTGRAY_BRUSH));

    DECLARE_RESPONSE_TABLE(Talker);
};

DEFINE_RESPONSE_TABLE1(Talker, TWindow)
    EV_MESSAGE(WM_USER + 1, Answer), EV_MESSAGE(WM_USER + 2, DeleteItself), EV_MESSAGE(WM_USER + 3, Nested),
        EV_WM_SETFOCUS, EV_WM_ERASEBKGND, EV_WM_CTLCOLOR,
END_RESPONSE_TABLE;

DWORD WINAPI Ask(void* window) {
    return static_cast<DWORD>(::SendMessageA(static_cast<HWND>(window), WM_COMMAND_ENABLE, 0, 16));
}

struct WindowMessages : testing::Test {
    WindowMessages() : talker(new Talker(desk.frame)) { talker->Create(); }

    desk::Desk desk;
    Talker* talker;
};

TEST_F(WindowMessages, reach_the_function_of_the_table) {
    EXPECT_EQ(23, talker->SendMessage(WM_USER + 1, 2, 3));
    EXPECT_EQ(45, talker->HandleMessage(WM_USER + 1, 4, 5));
}

TEST_F(WindowMessages, that_nobody_answers_get_what_the_system_does) {
    talker->SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>("new"));
    EXPECT_EQ("new", talker->GetWindowText());
}

TEST_F(WindowMessages, go_on_to_the_system_when_the_function_asks_for_it) {
    talker->erases = true;
    EXPECT_EQ(1, talker->SendMessage(WM_ERASEBKGND, 0));
    ::SetFocus(talker->GetHandle());
    EXPECT_EQ(1, talker->focused);
}

TEST_F(WindowMessages, have_no_default_while_none_is_handled) {
    EXPECT_EQ(0, talker->DefaultProcessing());
}

TEST_F(WindowMessages, within_messages_are_kept_apart) {
    EXPECT_EQ(3, talker->SendMessage(WM_USER + 3, 3));
}

TEST_F(WindowMessages, about_colours_are_one_with_their_types) {
    const LPARAM child = reinterpret_cast<LPARAM>(talker->GetHandle());
    const auto brush = reinterpret_cast<LRESULT>(talker->brush);
    EXPECT_EQ(brush, talker->SendMessage(WM_CTLCOLOREDIT, 0, child));
    EXPECT_EQ(brush, talker->SendMessage(WM_CTLCOLORSTATIC, 0, child));
    EXPECT_EQ((std::vector<UINT>{CTLCOLOR_EDIT, CTLCOLOR_STATIC}), talker->types);
}

TEST_F(WindowMessages, may_delete_the_window_that_handles_them) {
    const HWND handle = talker->GetHandle();
    EXPECT_EQ(5, ::SendMessageA(handle, WM_USER + 2, 0, 0));
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(0U, desk.frame->NumChildren());
}

// The question's address would be read from wherever another thread says.
TEST_F(WindowMessages, that_ask_for_enabling_are_not_taken_from_other_threads) {
    const HWND handle = talker->GetHandle();
    const HANDLE thread = ::CreateThread(nullptr, 0, &Ask, handle, 0, nullptr);
    ASSERT_NE(nullptr, thread);
    EXPECT_TRUE(desk::PumpUntil([&] { return ::WaitForSingleObject(thread, 0) == WAIT_OBJECT_0; }));
    DWORD answer = 99;
    ::GetExitCodeThread(thread, &answer);
    ::CloseHandle(thread);
    EXPECT_EQ(0U, answer);
}

TEST_F(WindowMessages, can_be_posted_and_sent_to_children) {
    auto* child = new Talker(talker);
    child->Attr.Id = 12;
    child->Create();
    EXPECT_EQ(23, talker->SendDlgItemMessage(12, WM_USER + 1, 2, 3));
    EXPECT_EQ(0, talker->SendDlgItemMessage(13, WM_USER + 1, 2, 3));
    EXPECT_TRUE(talker->PostMessage(WM_USER + 1));
    TWindow none(desk.frame);
    EXPECT_FALSE(none.PostMessage(WM_USER + 1));
}

// Throws, and says when it hears that somebody has.
class Hearing : public TWindow {
public:
    Hearing(TWindow* parent, DWORD style) : TWindow(parent) { Attr.Style = style; }

    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override {
        if (msg == WM_USER + 1)
            throw std::length_error("handler");
        return TWindow::WindowProc(msg, wParam, lParam);
    }
    int heard = 0;

protected:
    void ExceptionCarried() override { ++heard; }
};

TEST_F(WindowMessages, that_end_with_an_exception_are_told_to_the_outermost_window) {
    auto* popup = new Hearing(desk.frame, WS_POPUP);
    auto* child = new Hearing(popup, WS_CHILD);
    auto* grandchild = new Hearing(child, WS_CHILD);
    popup->Create();
    int thrower = 0;
    for (const Hearing* window : {grandchild, child, popup}) {
        window->PostMessage(WM_USER + 1);
        EXPECT_THROW(desk::PumpUntil([] { return false; }, 1000), std::length_error);
        EXPECT_EQ(++thrower, popup->heard);
    }
    EXPECT_EQ(0, child->heard);
    EXPECT_EQ(0, grandchild->heard);
}

// As windows do that keep controls in another window inside of theirs.
TEST_F(WindowMessages, to_a_control_go_to_where_the_window_says_that_it_is) {
    class Elsewhere : public TWindow {
    public:
        using TWindow::TWindow;
        HWND GetDlgItem(int id) const override { return id == 77 ? place : TWindow::GetDlgItem(id); }
        HWND place = nullptr;
    } window(desk.frame);
    window.Create();
    window.place = talker->GetHandle();
    EXPECT_EQ(23, window.SendDlgItemMessage(77, WM_USER + 1, 2, 3));
    EXPECT_EQ(0, window.SendDlgItemMessage(78, WM_USER + 1, 2, 3));
}

// It would be read from there.
TEST_F(WindowMessages, that_ask_for_enabling_are_not_taken_from_the_queue) {
    talker->PostMessage(WM_COMMAND_ENABLE, 0, 16);
    EXPECT_TRUE(desk.application.PumpWaitingMessages());
    EXPECT_EQ(0, talker->SendMessage(WM_COMMAND_ENABLE, 0, 16));
}

// A page hands the question on to its dialog, which has no such message of its own just then.
TEST_F(WindowMessages, about_colours_may_be_handed_to_another_window) {
    class Forwarder : public TWindow {
    public:
        explicit Forwarder(TWindow* parent) : TWindow(parent) {}
        bool Find(owl::TEventInfo& info) override { return TWindow::Find(info); }
        LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override {
            if (msg != WM_CTLCOLOREDIT)
                return TWindow::WindowProc(msg, wParam, lParam);
            return reinterpret_cast<LRESULT>(Parent->EvCtlColor(
                reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam), CTLCOLOR_EDIT));
        }
    };
    auto* page = new Forwarder(desk.frame);
    page->Create();
    const HDC dc = ::GetDC(page->GetHandle());
    const auto wParam = reinterpret_cast<WPARAM>(dc);
    const LRESULT expected = ::DefWindowProcA(desk.frame->GetHandle(), WM_CTLCOLOREDIT, wParam, 0);
    EXPECT_NE(0, expected);
    EXPECT_EQ(expected, page->SendMessage(WM_CTLCOLOREDIT, wParam));
    ::ReleaseDC(page->GetHandle(), dc);
}

}  // namespace
