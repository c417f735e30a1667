#include <gtest/gtest.h>

#include "tests/owl/desk.h"

namespace {

class Counted : public owl::TWindow {
public:
    Counted(owl::TWindow* parent, int& theCount) : TWindow(parent), count(theCount) {
        ++count;
        SetFlag(owl::wfDeleteOnClose);
    }
    ~Counted() override { --count; }

    // Closes itself, runs a loop within its own function, and still uses its members.
    LRESULT CloseAndPump(WPARAM, LPARAM) {
        Destroy();
        owl::TMsgThread().PumpWaitingMessages();
        return count;
    }

    int& count;

    DECLARE_RESPONSE_TABLE(Counted);
};

DEFINE_RESPONSE_TABLE1(Counted, owl::TWindow)
    EV_MESSAGE(WM_USER + 1, CloseAndPump),
END_RESPONSE_TABLE;

TEST(Condemned, window_objects_go_with_the_next_message) {
    desk::Desk desk;
    int count = 0;
    auto* window = new Counted(desk.frame, count);
    window->Create();
    window->Destroy();
    EXPECT_EQ(1, count);
    desk.frame->PostMessage(WM_NULL);
    desk.application.PumpWaitingMessages();
    EXPECT_EQ(0, count);
    EXPECT_EQ(0U, desk.frame->NumChildren());
}

TEST(Condemned, window_objects_outlive_a_loop_inside_of_their_functions) {
    desk::Desk desk;
    int count = 0;
    auto* window = new Counted(desk.frame, count);
    window->Create();
    window->PostMessage(WM_USER + 1);
    desk.frame->PostMessage(WM_NULL);
    desk.application.PumpWaitingMessages();
    EXPECT_EQ(0, count);
}

TEST(Condemned, window_objects_may_be_deleted_by_their_parent_first) {
    int count = 0;
    {
        desk::Desk desk;
        auto* window = new Counted(desk.frame, count);
        window->Create();
        window->Destroy();
    }
    EXPECT_EQ(0, count);
    ::PostThreadMessageA(::GetCurrentThreadId(), WM_NULL, 0, 0);
    owl::TMsgThread().PumpWaitingMessages();
    EXPECT_EQ(0, count);
}

}  // namespace
