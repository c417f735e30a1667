#include "owl/message_thread.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/owl/desk.h"

namespace {

class IdleCounter : public owl::TMsgThread {
public:
    bool IdleAction(long idleCount) override {
        counts.push_back(idleCount);
        if (idleCount == 2)
            ::PostQuitMessage(3);
        return idleCount < 2;
    }

    std::vector<long> counts;
};

class Filter : public owl::TWindow {
public:
    Filter(owl::TWindow* parent, UINT theTaken) : TWindow(parent), taken(theTaken) {}

    bool PreProcessMsg(MSG& msg) override {
        if (msg.message != WM_USER + 5)
            return false;
        ++asked;
        return taken == WM_USER + 5;
    }
    LRESULT Seen(WPARAM, LPARAM) { return ++seen; }

    UINT taken;
    int asked = 0;
    int seen = 0;

    DECLARE_RESPONSE_TABLE(Filter);
};

DEFINE_RESPONSE_TABLE1(Filter, owl::TWindow)
    EV_MESSAGE(WM_USER + 5, Seen),
END_RESPONSE_TABLE;

TEST(MessageThread, returns_the_exit_code_of_the_quit) {
    owl::TMsgThread thread;
    ::PostQuitMessage(42);
    EXPECT_EQ(42, thread.MessageLoop());
}

TEST(MessageThread, takes_the_quit_out_so_that_the_next_loop_runs) {
    owl::TMsgThread thread;
    ::PostQuitMessage(1);
    thread.MessageLoop();
    EXPECT_TRUE(thread.PumpWaitingMessages());
}

TEST(MessageThread, counts_idle_actions_up_while_they_ask_for_more) {
    IdleCounter thread;
    EXPECT_EQ(3, thread.MessageLoop());
    EXPECT_EQ((std::vector<long>{0, 1, 2}), thread.counts);
}

TEST(MessageThread, tells_that_a_quit_waits_and_leaves_it) {
    owl::TMsgThread thread;
    ::PostQuitMessage(9);
    EXPECT_FALSE(thread.PumpWaitingMessages());
    EXPECT_FALSE(thread.PumpWaitingMessages());
    EXPECT_EQ(9, thread.MessageLoop());
}

TEST(MessageThread, runs_until_it_is_done) {
    desk::Desk desk;
    int messages = 0;
    for (int i = 0; i < 5; ++i)
        desk.frame->PostMessage(WM_NULL);
    EXPECT_TRUE(desk.application.RunUntil([&] { return ++messages == 4; }));
    EXPECT_EQ(4, messages);
}

TEST(MessageThread, ends_an_inner_loop_and_the_outer_one_by_one_quit) {
    owl::TMsgThread thread;
    ::PostQuitMessage(5);
    EXPECT_FALSE(thread.RunUntil([] { return false; }));
    EXPECT_EQ(5, thread.MessageLoop());
}

TEST(MessageThread, offers_a_message_to_the_receiver_and_then_upward) {
    desk::Desk desk;
    auto* outer = new Filter(desk.frame, 0);
    outer->Create();
    auto* inner = new Filter(outer, 0);
    inner->Create();
    inner->PostMessage(WM_USER + 5);
    desk.application.PumpWaitingMessages();
    EXPECT_EQ(1, inner->asked);
    EXPECT_EQ(1, outer->asked);
    EXPECT_EQ(1, inner->seen);
    EXPECT_EQ(0, outer->seen);
}

TEST(MessageThread, dispatches_no_message_that_somebody_took) {
    desk::Desk desk;
    auto* outer = new Filter(desk.frame, WM_USER + 5);
    outer->Create();
    auto* inner = new Filter(outer, 0);
    inner->Create();
    inner->PostMessage(WM_USER + 5);
    desk.application.PumpWaitingMessages();
    EXPECT_EQ(1, outer->asked);
    EXPECT_EQ(0, inner->seen);
}

TEST(MessageThread, offers_nothing_past_a_window_that_is_no_child) {
    desk::Desk desk;
    auto* outer = new Filter(desk.frame, 0);
    outer->Create();
    auto* popup = new Filter(outer, 0);
    popup->Attr.Style = WS_POPUP;
    popup->Create();
    popup->PostMessage(WM_USER + 5);
    desk.application.PumpWaitingMessages();
    EXPECT_EQ(1, popup->asked);
    EXPECT_EQ(0, outer->asked);
}

void CALLBACK QuitLate(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    ::PostQuitMessage(77);
}

class Thrower : public owl::TWindow {
public:
    explicit Thrower(owl::TWindow* parent) : TWindow(parent) {}
    LRESULT Throw(WPARAM, LPARAM) { throw std::domain_error("idle"); }

    DECLARE_RESPONSE_TABLE(Thrower);
};

DEFINE_RESPONSE_TABLE1(Thrower, owl::TWindow)
    EV_MESSAGE(WM_USER + 6, Throw),
END_RESPONSE_TABLE;

// It slept with the exception until something else happened.
TEST(MessageThread, throws_what_an_idle_action_sent_into) {
    class Sender : public owl::TMsgThread {
    public:
        explicit Sender(owl::TWindow& theWindow) : window(theWindow) {}
        bool IdleAction(long) override {
            window.SendMessage(WM_USER + 6);
            return false;
        }
        owl::TWindow& window;
    };
    desk::Desk desk;
    Thrower window(desk.frame);
    window.Create();
    desk.application.PumpWaitingMessages();
    Sender thread(window);
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 3000, &QuitLate);
    EXPECT_THROW(thread.MessageLoop(), std::domain_error);
    EXPECT_TRUE(::KillTimer(nullptr, timer));
}

// A message that was looked at counts as seen, and the loop slept although it waited.
TEST(MessageThread, handles_a_message_that_an_idle_action_looked_at) {
    class Looker : public owl::TMsgThread {
    public:
        bool IdleAction(long) override {
            MSG msg{};
            ::PostThreadMessageA(::GetCurrentThreadId(), WM_APP, 0, 0);
            ::PeekMessageA(&msg, nullptr, 0, 0, PM_NOREMOVE);
            ++idles;
            return false;
        }
        int idles = 0;
    };
    Looker thread;
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 3000, &QuitLate);
    EXPECT_TRUE(thread.RunUntil([&] { return thread.idles == 5; }));
    EXPECT_TRUE(::KillTimer(nullptr, timer));
    desk::PumpUntil([] { return false; }, 20);
}

// As a program without an application of ours does, for the windows of a plug-in.
TEST(MessageThread, offers_the_messages_of_a_loop_that_is_not_ours) {
    owl::TFrameWindow frame(nullptr, "hosted");
    frame.Create();
    auto* outer = new Filter(&frame, WM_USER + 5);
    outer->Create();
    auto* inner = new Filter(outer, 0);
    inner->Create();
    MSG msg{};
    msg.hwnd = inner->GetHandle();
    msg.message = WM_USER + 5;
    EXPECT_TRUE(owl::TMsgThread().ProcessAppMsg(msg));
    EXPECT_EQ(1, inner->asked);
    msg.hwnd = frame.GetHandle();
    EXPECT_FALSE(owl::TMsgThread().ProcessAppMsg(msg));
    msg.hwnd = nullptr;
    EXPECT_FALSE(owl::TMsgThread().ProcessAppMsg(msg));
}

TEST(MessageThread, throws_what_was_thrown_below_a_loop_that_is_not_ours) {
    owl::TFrameWindow frame(nullptr, "hosted");
    frame.Create();
    auto* window = new Thrower(&frame);
    window->Create();
    window->PostMessage(WM_USER + 6);
    MSG msg{};
    while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageA(&msg);
    EXPECT_THROW(owl::TMsgThread().PumpWaitingMessages(), std::domain_error);
}

}  // namespace
