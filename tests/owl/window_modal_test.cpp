#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "owl/error.h"
#include "tests/owl/desk.h"

namespace {

using owl::TWindow;

// A popup that does what the test says when its message comes.
class Box : public TWindow {
public:
    explicit Box(TWindow* parent) : TWindow(parent) {
        Attr.Style = WS_POPUP | WS_VISIBLE;
        EnableAutoCreate(false);
    }

    LRESULT Act(WPARAM, LPARAM) {
        action();
        return 0;
    }
    int Run(const std::function<void()>& theAction) {
        action = theAction;
        Create();
        PostMessage(WM_USER + 1);
        return BeginModal(Parent);
    }

    std::function<void()> action;

    DECLARE_RESPONSE_TABLE(Box);
};

DEFINE_RESPONSE_TABLE1(Box, TWindow)
    EV_MESSAGE(WM_USER + 1, Act),
END_RESPONSE_TABLE;

struct WindowModal : testing::Test {
    desk::Desk desk;
};

TEST_F(WindowModal, returns_what_ends_it) {
    Box box(desk.frame);
    EXPECT_EQ(17, box.Run([&] { box.EndModal(17); }));
    EXPECT_FALSE(box.IsModal());
    EXPECT_TRUE(box.IsWindow());
}

TEST_F(WindowModal, keeps_its_parent_from_input_meanwhile) {
    Box box(desk.frame);
    bool enabled = true;
    bool modal = false;
    box.Run([&] {
        enabled = desk.frame->IsWindowEnabled();
        modal = box.IsModal();
        box.EndModal(1);
        EXPECT_TRUE(desk.frame->IsWindowEnabled());
    });
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(modal);
}

TEST_F(WindowModal, disables_the_top_level_window_of_a_child) {
    TWindow child(desk.frame);
    child.Create();
    Box box(&child);
    bool enabled = true;
    box.Run([&] {
        enabled = desk.frame->IsWindowEnabled();
        box.EndModal(1);
    });
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
}

TEST_F(WindowModal, leaves_a_parent_disabled_that_was_before) {
    desk.frame->EnableWindow(false);
    Box box(desk.frame);
    box.Run([&] { box.EndModal(1); });
    EXPECT_FALSE(desk.frame->IsWindowEnabled());
}

TEST_F(WindowModal, ends_with_its_window) {
    Box box(desk.frame);
    EXPECT_EQ(IDCANCEL, box.Run([&] { box.Destroy(); }));
}

TEST_F(WindowModal, ends_with_the_result_that_destroys_it) {
    Box box(desk.frame);
    EXPECT_EQ(IDOK, box.Run([&] { box.Destroy(IDOK); }));
}

TEST_F(WindowModal, ends_with_its_parents_window) {
    auto* box = new Box(desk.frame);
    EXPECT_EQ(IDCANCEL, box->Run([&] { ::DestroyWindow(desk.frame->GetHandle()); }));
    EXPECT_FALSE(box->IsWindow());
    desk.application.MessageLoop();
}

TEST_F(WindowModal, ends_with_the_program_whose_loop_ends_as_well) {
    Box box(desk.frame);
    EXPECT_EQ(IDCANCEL, box.Run([&] { ::PostQuitMessage(6); }));
    EXPECT_EQ(6, desk.application.MessageLoop());
}

TEST_F(WindowModal, lets_an_exception_out_and_its_parent_in) {
    Box box(desk.frame);
    EXPECT_THROW(box.Run([] { throw std::domain_error("modal"); }), std::domain_error);
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
    EXPECT_FALSE(box.IsModal());
}

TEST_F(WindowModal, runs_within_another) {
    Box outer(desk.frame);
    Box inner(&outer);
    int result = 0;
    const int outerResult = outer.Run([&] {
        result = inner.Run([&] { inner.EndModal(3); });
        EXPECT_TRUE(outer.IsWindowEnabled());
        EXPECT_FALSE(desk.frame->IsWindowEnabled());
        outer.EndModal(4);
    });
    EXPECT_EQ(3, result);
    EXPECT_EQ(4, outerResult);
}

class Idle : public Box {
public:
    using Box::Box;
    bool IdleAction(long idleCount) override {
        if (idleCount == 1)
            EndModal(21);
        return idleCount < 1;
    }
};

TEST_F(WindowModal, is_idle_too_and_may_end_by_it) {
    Idle box(desk.frame);
    EXPECT_EQ(21, box.Run([] {}));
}

// The inner run forgot which window the outer one had disabled.
TEST_F(WindowModal, is_not_run_within_itself) {
    Box box(desk.frame);
    EXPECT_EQ(7, box.Run([&] {
        EXPECT_THROW(box.BeginModal(desk.frame), owl::TXWindow);
        EXPECT_FALSE(desk.frame->IsWindowEnabled());
        box.EndModal(7);
    }));
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
}

}  // namespace
