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

// As in a host whose loop is not ours: the first loop of ours may lie within the window's own function.
TEST(Condemned, window_objects_outlive_the_only_loop_of_ours_if_it_is_inside_of_their_functions) {
    desk::Desk desk;
    int count = 0;
    auto* window = new Counted(desk.frame, count);
    window->Create();
    desk.frame->PostMessage(WM_NULL);
    EXPECT_EQ(1, window->SendMessage(WM_USER + 1));
}

bool PumpWithoutUs(const int& count) {
    const DWORD start = ::GetTickCount();
    while (count != 0 && ::GetTickCount() - start < 5000) {
        MSG msg{};
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessageA(&msg);
    }
    return count == 0;
}

TEST(Condemned, window_objects_go_in_a_loop_that_is_not_ours_too) {
    desk::Desk desk;
    int count = 0;
    auto* window = new Counted(desk.frame, count);
    window->Create();
    window->Destroy();
    EXPECT_TRUE(PumpWithoutUs(count));
    auto* second = new Counted(desk.frame, count);
    second->Create();
    second->SendMessage(WM_USER + 1);
    EXPECT_TRUE(PumpWithoutUs(count));
}

TEST(Condemned, window_objects_go_with_the_end_of_the_loop) {
    desk::Desk desk;
    int count = 0;
    auto* window = new Counted(desk.frame, count);
    window->Create();
    window->PostMessage(WM_CLOSE);
    EXPECT_TRUE(desk.application.RunUntil([&] { return !window->IsWindow(); }));
    EXPECT_EQ(0, count);
}

TEST(Condemned, window_objects_stay_if_their_windows_are_created_again) {
    desk::Desk desk;
    int count = 0;
    auto* window = new Counted(desk.frame, count);
    window->Create();
    window->Destroy();
    window->Create();
    desk.frame->PostMessage(WM_NULL);
    desk.application.PumpWaitingMessages();
    EXPECT_EQ(1, count);
    EXPECT_TRUE(window->IsWindow());
}

}  // namespace
