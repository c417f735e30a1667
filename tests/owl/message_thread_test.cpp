#include "owl/message_thread.h"

#include <gtest/gtest.h>

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

}  // namespace
