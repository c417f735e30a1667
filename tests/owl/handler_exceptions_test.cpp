// What becomes of an exception, by the kind of the function that throws it: it comes out of the loop that
// dispatched the message, once, and the windows work on.
#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

#include "owl/button.h"
#include "owl/command_enabler.h"
#include "owl/dialog.h"
#include "tests/owl/desk.h"
#include "tests/owl/desk_user.h"
#include "tests/owl/message_window.h"
#include "tests/owl/resource_ids.h"

namespace {

using owl::TPoint;
using owl::TSize;

// What a test wants to be thrown: by the function of that name, and by no other.
struct Thrown : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class Frame : public owl::TFrameWindow {
public:
    Frame() : TFrameWindow(nullptr, "thrower") {
        Attr.Menu = IDM_TEST_MENU;
        Attr.AccelTable = IDA_TEST_KEYS;
        desk::Place(*this);
        new owl::TButton(this, button, "press", 10, 10, 60, 24);
    }

    void Reach(const char* function) {
        if (function == armed) {
            ++thrown;
            throw Thrown(function);
        }
    }

    void CmFirst() { Reach("command"); }
    void CmSecond() { ++seconds; }
    void CeFirst(owl::TCommandEnabler&) { Reach("enabling"); }
    void CmButton() { Reach("button"); }
    LRESULT EvOwn(WPARAM, LPARAM) {
        Reach("message");
        return 5;
    }
    void EvTimer(UINT id) {
        KillTimer(id);
        Reach("timer");
    }
    void EvSize(UINT how, const TSize& size) {
        TFrameWindow::EvSize(how, size);
        Reach("size");
    }
    void EvMove(const TPoint& point) {
        TWindow::EvMove(point);
        Reach("move");
    }
    void EvKeyDown(UINT key, UINT repeat, UINT flags) {
        TWindow::EvKeyDown(key, repeat, flags);
        Reach("key");
    }
    void EvLButtonDown(UINT, const TPoint&) { Reach("mouse"); }
    void EvSetFocus(HWND lost) {
        TFrameWindow::EvSetFocus(lost);
        Reach("focus");
    }
    void EvActivate(UINT active, bool minimised, HWND other) {
        TFrameWindow::EvActivate(active, minimised, other);
        if (active == WA_INACTIVE)
            Reach("activation");
    }
    int EvCreate(CREATESTRUCTA& create) {
        Reach("creation");
        return TWindow::EvCreate(create);
    }
    void EvDestroy() {
        TWindow::EvDestroy();
        Reach("destruction");
    }
    void SetupWindow() override {
        TFrameWindow::SetupWindow();
        Reach("setup");
    }
    void CleanupWindow() override {
        TFrameWindow::CleanupWindow();
        Reach("cleanup");
    }
    bool CanClose() override {
        Reach("closing");
        return TFrameWindow::CanClose();
    }
    void Paint(owl::TDC&, bool, owl::TRect&) override { Reach("painting"); }
    bool IdleAction(long idleCount) override {
        if (idleCount == 0)
            Reach("idling");
        return TFrameWindow::IdleAction(idleCount);
    }
    bool PreProcessMsg(MSG& msg) override {
        if (msg.message == WM_USER + 2)
            Reach("sorting");
        return TFrameWindow::PreProcessMsg(msg);
    }

    static constexpr int button = 77;
    std::string armed;
    int thrown = 0;
    int seconds = 0;

    DECLARE_RESPONSE_TABLE(Frame);
};

DEFINE_RESPONSE_TABLE1(Frame, owl::TFrameWindow)
    EV_COMMAND(CM_TEST_FIRST, CmFirst), EV_COMMAND(CM_TEST_SECOND, CmSecond),
        EV_COMMAND_ENABLE(CM_TEST_FIRST, CeFirst), EV_COMMAND(button, CmButton),
        EV_MESSAGE(WM_USER + 1, EvOwn), EV_WM_TIMER, EV_WM_SIZE, EV_WM_MOVE, EV_WM_KEYDOWN, EV_WM_LBUTTONDOWN,
        EV_WM_SETFOCUS, EV_WM_ACTIVATE, EV_WM_CREATE, EV_WM_DESTROY,
END_RESPONSE_TABLE;

class HandlerExceptions : public testing::Test {
protected:
    HandlerExceptions() : application("thrower"), frame(new Frame) {
        MSG quit{};
        ::PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        application.SetMainWindow(frame);
    }

    void Show() {
        frame->Create();
        ASSERT_TRUE(desk::Activate(*frame));
    }
    // Runs the loop until something came out of it, or for a moment if nothing is expected to; then for
    // another moment, in which nothing may come. What came out, joined by blanks.
    std::string Pump(bool expected = true) {
        const UINT_PTR clock = ::SetTimer(nullptr, 0, 20, nullptr);
        std::string all;
        bool waits = true;
        while (waits) {
            const DWORD start = ::GetTickCount();
            const DWORD patience = expected && all.empty() ? 3000 : 150;
            try {
                application.RunUntil([&] { return ::GetTickCount() - start > patience; });
                waits = false;
            } catch (const Thrown& error) {
                frame->armed.clear();
                all += (all.empty() ? "" : " ") + std::string(error.what());
            }
        }
        ::KillTimer(nullptr, clock);
        return all;
    }
    // Whether the frame answers messages as if nothing had happened.
    bool Works() {
        const int before = frame->seconds;
        frame->PostMessage(WM_COMMAND, CM_TEST_SECOND);
        return Pump(false).empty() && frame->seconds == before + 1 && frame->SendMessage(WM_USER + 1) == 5;
    }

    owl::TApplication application;
    Frame* frame;
};

struct Kind {
    const char* function;
    std::function<void(Frame&)> reach;
};

void PrintTo(const Kind& kind, std::ostream* stream) {
    *stream << kind.function;
}

void ClickIntoTheFrame(Frame& frame) {
    TPoint point(150, 100);
    frame.ClientToScreen(point);
    user::Click(point.x, point.y);
}

void LetAnotherWindowBeActive(Frame&) {
    const owl_test::MessageWindow other;
    other.Show();
    ::SetActiveWindow(other);
}

const Kind kinds[] = {
    {"command", [](Frame& frame) { frame.PostMessage(WM_COMMAND, CM_TEST_FIRST); }},
    {"button", [](Frame& frame) { user::Click(frame.GetDlgItem(Frame::button)); }},
    {"message", [](Frame& frame) { frame.PostMessage(WM_USER + 1); }},
    {"sorting", [](Frame& frame) { frame.PostMessage(WM_USER + 2); }},
    {"timer", [](Frame& frame) { frame.SetTimer(1, 10); }},
    {"size", [](Frame& frame) { frame.SetWindowPos(nullptr, 0, 0, 300, 200, SWP_NOMOVE | SWP_NOZORDER); }},
    {"move", [](Frame& frame) { frame.SetWindowPos(nullptr, 80, 90, 0, 0, SWP_NOSIZE | SWP_NOZORDER); }},
    {"key", [](Frame&) { user::Press({VK_F7}); }},
    {"mouse", ClickIntoTheFrame},
    {"focus", [](Frame& frame) { ::SetFocus(frame.GetDlgItem(Frame::button)), frame.SetFocus(); }},
    {"activation", LetAnotherWindowBeActive},
    {"closing", [](Frame& frame) { frame.PostMessage(WM_CLOSE); }},
    {"painting", [](Frame& frame) { frame.Invalidate(); }},
    {"idling", [](Frame& frame) { frame.PostMessage(WM_NULL); }},
};

class EachHandler : public HandlerExceptions, public testing::WithParamInterface<Kind> {};

TEST_P(EachHandler, that_throws_is_told_by_the_loop_once_and_the_window_works_on) {
    Show();
    frame->armed = GetParam().function;
    GetParam().reach(*frame);
    EXPECT_EQ(GetParam().function, Pump());
    EXPECT_TRUE(frame->IsWindow());
    EXPECT_TRUE(Works());
}

INSTANTIATE_TEST_SUITE_P(Kinds, EachHandler, testing::ValuesIn(kinds),
                         [](const auto& kind) { return std::string(kind.param.function); });

TEST_F(HandlerExceptions, of_a_creation_come_out_of_Create_and_leave_no_window) {
    for (const char* function : {"creation", "setup"}) {
        frame->armed = function;
        try {
            frame->Create();
            ADD_FAILURE() << function;
        } catch (const Thrown& error) {
            EXPECT_STREQ(function, error.what());
        }
        EXPECT_FALSE(frame->IsWindow());
        frame->armed.clear();
        EXPECT_EQ("", Pump(false));
        // The window that failed took its place for the program's end.
        MSG quit{};
        ::PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    }
    Show();
    EXPECT_TRUE(Works());
}

// A program whose main window was gone without a quit ran for ever.
TEST_F(HandlerExceptions, of_an_end_come_out_of_the_loop_and_the_program_ends) {
    for (const char* function : {"destruction", "cleanup"}) {
        Show();
        frame->armed = function;
        ::DestroyWindow(frame->GetHandle());
        EXPECT_FALSE(frame->IsWindow());
        EXPECT_EQ(function, Pump());
        MSG quit{};
        EXPECT_TRUE(::PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << function;
    }
}

TEST_F(HandlerExceptions, of_a_timer_come_out_at_each_tick) {
    Show();
    int ticks = 0;
    for (int i = 0; i < 5; ++i) {
        frame->armed = "timer";
        frame->SetTimer(1, 10);
        ticks += Pump() == "timer" ? 1 : 0;
    }
    EXPECT_EQ(5, ticks);
}

TEST_F(HandlerExceptions, of_a_command_by_its_key_come_out_of_Run_which_may_be_run_again) {
    frame->armed = "command";
    const desk::User user([&] {
        const HWND window = user::WaitForShown(nullptr, "thrower");
        ASSERT_TRUE(user::WaitUntilInFront(window));
        user::Press({VK_CONTROL, 'K'});
        user::Press({VK_MENU, VK_F4});
    });
    EXPECT_THROW(application.Run(), Thrown);
    EXPECT_EQ(0, application.Run());
    EXPECT_EQ(1, frame->thrown);
}

// The system runs a loop of its own while the menu is open.
TEST_F(HandlerExceptions, of_enabling_wait_until_the_menu_is_closed) {
    frame->armed = "enabling";
    bool stayed = false;
    const desk::User user([&] {
        const HWND window = user::WaitForShown(nullptr, "thrower");
        ASSERT_TRUE(user::WaitUntilInFront(window));
        user::Press({VK_MENU, 'T'});
        const HWND menu = user::WaitForShown(user::drop_down_class, nullptr);
        ::Sleep(200);
        stayed = ::IsWindowVisible(menu) != 0;
        user::Press({VK_ESCAPE});
        user::Press({VK_ESCAPE});
        user::Press({VK_MENU, VK_F4});
    });
    EXPECT_THROW(application.Run(), Thrown);
    EXPECT_TRUE(stayed);
    EXPECT_EQ(0, application.Run());
}

// A function that shows a box goes on behind it, whatever is thrown meanwhile.
TEST_F(HandlerExceptions, of_a_timer_wait_until_a_message_box_is_closed) {
    Show();
    frame->armed = "timer";
    const desk::User user([&] {
        const HWND box = user::WaitForShown(user::dialog_class, "box");
        ASSERT_TRUE(user::WaitUntilInFront(box));
        EXPECT_TRUE(user::WaitUntil([&] { return frame->thrown == 1; }));
        EXPECT_TRUE(::IsWindow(box));
        user::Press({VK_RETURN});
    });
    frame->SetTimer(1, 50);
    EXPECT_EQ(IDOK, frame->MessageBox("text", "box"));
    EXPECT_EQ("timer", Pump());
}

}  // namespace
