#include <gtest/gtest.h>

#include "owl/gadget_window.h"
#include "tests/owl/gadget_ids.h"
#include "tests/owl/gadget_probe.h"
#include "tests/owl/mouse.h"

namespace {

using gadgets::Calls;
using gadgets::Probe;
using owl::TGadget;
using owl::TGadgetWindow;
using owl::TPoint;
using owl::TWindow;

/// A bar on the screen with two gadgets of 20 by 16 pixels at (2, 2) and (22, 2); the mouse is elsewhere.
struct BarMouse : testing::Test {
    BarMouse() : first(bars.Add(1)), second(bars.Add(2)), bar(bars.bar) {
        mouse::MoveAway();
        bars.Show();
        desk::Activate(*bars.desk.frame);
        first->Take();
        second->Take();
    }
    ~BarMouse() override { mouse::MoveAway(); }

    bool Move(int x, int y) { return mouse::MoveTo(*bar, TPoint(x, y)); }

    /// Waits until a gadget has told just these calls.
    static Calls Wait(Probe& gadget, const Calls& wanted) {
        desk::PumpUntil([&] { return gadget.calls.size() >= wanted.size(); }, 2000);
        return gadget.Take();
    }
    static Calls Wait(Probe& gadget, const std::string& wanted) { return Wait(gadget, Calls{wanted}); }

    gadgets::BarDesk<> bars;
    Probe* first;
    Probe* second;
    TGadgetWindow* bar;
};

#define EXPECT_TOLD(gadget, ...) EXPECT_EQ((Calls{__VA_ARGS__}), Wait(*(gadget), Calls{__VA_ARGS__}))

TEST_F(BarMouse, enters_and_leaves_gadgets) {
    EXPECT_EQ(nullptr, bar->AtMouse());
    ASSERT_TRUE(Move(5, 6));
    EXPECT_TOLD(first, "enter 3,4");
    EXPECT_EQ(first, bar->AtMouse());
    ASSERT_TRUE(Move(30, 10));
    EXPECT_TOLD(first, "leave");
    EXPECT_TOLD(second, "enter 8,8");
    EXPECT_EQ(second, bar->AtMouse());
    ASSERT_TRUE(Move(100, 10));
    EXPECT_TOLD(second, "leave");
    EXPECT_EQ(nullptr, bar->AtMouse());
}

TEST_F(BarMouse, that_stays_on_a_gadget_is_told_once) {
    ASSERT_TRUE(Move(5, 5));
    EXPECT_TOLD(first, "enter 3,3");
    ASSERT_TRUE(Move(6, 5));
    ASSERT_TRUE(Move(7, 5));
    desk::PumpUntil([] { return false; }, 100);
    EXPECT_EQ(Calls(), first->Take());
}

// No message comes to the bar for that: the system has to be asked to tell.
TEST_F(BarMouse, leaves_a_gadget_with_the_bar) {
    ASSERT_TRUE(Move(5, 5));
    EXPECT_TOLD(first, "enter 3,3");
    ASSERT_TRUE(mouse::MoveAway());
    EXPECT_TOLD(first, "leave");
    EXPECT_EQ(nullptr, bar->AtMouse());
}

TEST_F(BarMouse, enters_a_disabled_gadget_but_does_not_press_it) {
    first->SetEnabled(false);
    ASSERT_TRUE(Move(5, 5));
    EXPECT_TOLD(first, "enter 3,3");
    mouse::PressLeft();
    mouse::ReleaseLeft();
    mouse::PressRight();
    mouse::ReleaseRight();
    ASSERT_TRUE(Move(6, 5));
    desk::PumpUntil([] { return false; }, 100);
    EXPECT_EQ(Calls(), first->Take());
    EXPECT_EQ(nullptr, TWindow::GetCapture());
}

TEST_F(BarMouse, presses_and_releases_a_gadget) {
    ASSERT_TRUE(Move(7, 8));
    mouse::PressLeft();
    EXPECT_TOLD(first, "enter 5,6", "down 5,6");
    EXPECT_EQ(bar->GetHandle(), TWindow::GetCapture());
    mouse::ReleaseLeft();
    EXPECT_TOLD(first, "up 5,6");
    EXPECT_EQ(nullptr, TWindow::GetCapture());
    EXPECT_EQ(Calls(), second->Take());
}

TEST_F(BarMouse, pressed_twice_in_a_moment_presses_twice) {
    ASSERT_TRUE(Move(7, 8));
    for (int i = 0; i < 2; ++i) {
        mouse::PressLeft();
        mouse::ReleaseLeft();
    }
    EXPECT_TOLD(first, "enter 5,6", "down 5,6", "up 5,6", "down 5,6", "up 5,6");
}

TEST_F(BarMouse, with_its_right_button_captures_nothing) {
    ASSERT_TRUE(Move(7, 8));
    mouse::PressRight();
    EXPECT_TOLD(first, "enter 5,6", "right down 5,6");
    EXPECT_EQ(nullptr, TWindow::GetCapture());
    mouse::ReleaseRight();
    EXPECT_TOLD(first, "right up 5,6");
}

TEST_F(BarMouse, that_is_captured_tells_one_gadget_alone_wherever_it_goes) {
    ASSERT_TRUE(Move(7, 8));
    mouse::PressLeft();
    EXPECT_TOLD(first, "enter 5,6", "down 5,6");
    ASSERT_TRUE(Move(30, 8));
    EXPECT_TOLD(first, "move 28,6");
    ASSERT_TRUE(Move(10, 100));
    EXPECT_TOLD(first, "move 8,98");
    ASSERT_TRUE(Move(8, 8));
    EXPECT_TOLD(first, "move 6,6");
    EXPECT_EQ(Calls(), second->Take());
    mouse::ReleaseLeft();
    EXPECT_TOLD(first, "up 6,6");
}

TEST_F(BarMouse, that_is_let_go_elsewhere_has_left_the_gadget) {
    ASSERT_TRUE(Move(7, 8));
    mouse::PressLeft();
    EXPECT_TOLD(first, "enter 5,6", "down 5,6");
    ASSERT_TRUE(Move(30, 8));
    EXPECT_TOLD(first, "move 28,6");
    EXPECT_EQ(first, bar->AtMouse());
    mouse::ReleaseLeft();
    EXPECT_TOLD(first, "up 28,6", "leave");
    EXPECT_TOLD(second, "enter 8,6");
}

TEST_F(BarMouse, that_is_let_go_outside_of_the_bar_is_at_no_gadget) {
    ASSERT_TRUE(Move(7, 8));
    mouse::PressLeft();
    EXPECT_TOLD(first, "enter 5,6", "down 5,6");
    ASSERT_TRUE(Move(100, 200));
    EXPECT_TOLD(first, "move 98,198");
    mouse::ReleaseLeft();
    EXPECT_TOLD(first, "up 98,198", "leave");
    EXPECT_EQ(nullptr, bar->AtMouse());
}

// Not only with the next move, which some systems bring about by themselves.
TEST_F(BarMouse, that_is_let_go_elsewhere_has_left_the_gadget_at_once) {
    ASSERT_TRUE(Move(7, 8));
    mouse::PressLeft();
    EXPECT_TOLD(first, "enter 5,6", "down 5,6");
    bar->HandleMessage(WM_LBUTTONUP, 0, MAKELPARAM(30, 8));
    EXPECT_EQ((Calls{"up 28,6", "leave"}), first->Take());
    EXPECT_EQ(Calls{"enter 8,6"}, second->Take());
    mouse::ReleaseLeft();
    desk::PumpUntil([] { return false; }, 100);
}

// A quick hand has gone before the message of its move is handled.
TEST_F(BarMouse, leaves_a_gadget_that_it_has_left_before_it_is_told_to_have_come) {
    bar->HandleMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 6));
    EXPECT_EQ((Calls{"enter 3,4"}), first->Take());
    EXPECT_TOLD(first, "leave");
    EXPECT_EQ(nullptr, bar->AtMouse());
}

TEST_F(BarMouse, leaves_a_gadget_right_behind_a_click) {
    ASSERT_TRUE(Move(7, 8));
    EXPECT_TOLD(first, "enter 5,6");
    mouse::PressLeft();
    mouse::ReleaseLeft();
    ASSERT_TRUE(mouse::MoveAway());
    EXPECT_TOLD(first, "down 5,6", "up 5,6", "leave");
}

// The hint of a button stayed when the mouse went away after a press that had strayed.
TEST_F(BarMouse, leaves_a_gadget_though_it_was_away_while_it_was_captured) {
    ASSERT_TRUE(Move(7, 8));
    mouse::PressLeft();
    EXPECT_TOLD(first, "enter 5,6", "down 5,6");
    ASSERT_TRUE(Move(100, 200));
    EXPECT_TOLD(first, "move 98,198");
    // Longer than the system takes to notice.
    desk::PumpUntil([] { return false; }, 1000);
    ASSERT_TRUE(Move(8, 8));
    EXPECT_TOLD(first, "move 6,6");
    mouse::ReleaseLeft();
    EXPECT_TOLD(first, "up 6,6");
    ASSERT_TRUE(mouse::MoveAway());
    EXPECT_TOLD(first, "leave");
}

TEST_F(BarMouse, that_somebody_takes_away_seems_to_be_drawn_off) {
    ASSERT_TRUE(Move(7, 8));
    mouse::PressLeft();
    EXPECT_TOLD(first, "enter 5,6", "down 5,6");
    ::SetCapture(bars.desk.frame->GetHandle());
    EXPECT_TOLD(first, "move -1,-1");
    ::ReleaseCapture();
    EXPECT_TRUE(bar->GadgetSetCapture(*second));
    bar->GadgetReleaseCapture(*second);
    mouse::ReleaseLeft();
    desk::PumpUntil([] { return false; }, 100);
}

TEST_F(BarMouse, has_one_captor_at_a_time) {
    EXPECT_TRUE(bar->GadgetSetCapture(*first));
    EXPECT_TRUE(bar->GadgetSetCapture(*first));
    EXPECT_FALSE(bar->GadgetSetCapture(*second));
    bar->GadgetReleaseCapture(*second);
    EXPECT_EQ(bar->GetHandle(), TWindow::GetCapture());
    bar->GadgetReleaseCapture(*first);
    EXPECT_EQ(nullptr, TWindow::GetCapture());
    EXPECT_EQ(Calls(), first->Take());
    Probe stranger;
    EXPECT_FALSE(bar->GadgetSetCapture(stranger));
}

TEST_F(BarMouse, cannot_be_captured_without_a_window) {
    bar->Destroy();
    first->LButtonDown(0, TPoint());
    EXPECT_FALSE(bar->GadgetSetCapture(*first));
    bar->Create();
    EXPECT_TRUE(bar->GadgetSetCapture(*second));
    bar->GadgetReleaseCapture(*second);
}

TEST_F(BarMouse, is_free_when_its_captor_is_removed) {
    ASSERT_TRUE(Move(7, 8));
    mouse::PressLeft();
    EXPECT_TOLD(first, "enter 5,6", "down 5,6");
    bar->Remove(*first);
    EXPECT_EQ(nullptr, TWindow::GetCapture());
    EXPECT_EQ(nullptr, bar->AtMouse());
    EXPECT_EQ(Calls{"removed"}, first->Take());
    delete first;
    mouse::ReleaseLeft();
    EXPECT_TRUE(desk::PumpUntil([&] { return second->calls.back() == "up 5,6"; }));
}

TEST_F(BarMouse, survives_the_end_of_the_gadget_that_it_is_at) {
    ASSERT_TRUE(Move(5, 5));
    EXPECT_TOLD(first, "enter 3,3");
    bar->SetHintCommand(1);
    delete first;
    EXPECT_EQ(nullptr, bar->AtMouse());
    EXPECT_EQ(-1, bar->GetHintCommand());
    second->Take();
    ASSERT_TRUE(Move(6, 5));
    EXPECT_TOLD(second, "enter 4,3");
}

TEST_F(BarMouse, ends_no_hint_of_others_with_a_gadget) {
    bar->SetHintCommand(2);
    delete first;
    EXPECT_EQ(2, bar->GetHintCommand());
}

/// A gadget that deletes another one, or itself, in the midst of things.
class Killer : public Probe {
public:
    explicit Killer(std::string theWhen) : Probe(3), when(std::move(theWhen)) {}

    void MouseEnter(UINT, const TPoint&) override { Kill("enter"); }
    void MouseLeave(UINT, const TPoint&) override { Kill("leave"); }
    void LButtonDown(UINT modifiers, const TPoint& point) override {
        Probe::LButtonDown(modifiers, point);
        Kill("down");
    }
    void LButtonUp(UINT modifiers, const TPoint& point) override {
        Probe::LButtonUp(modifiers, point);
        Kill("up");
    }

    std::string when;

private:
    void Kill(const std::string& what) {
        if (what != when)
            return;
        TGadgetWindow* const bar = GetGadgetWindow();
        delete bar->GadgetWithId(2);
        delete this;
        killed = true;
    }

public:
    static bool killed;
};

bool Killer::killed = false;

struct Killings : BarMouse {
    void Try(const std::string& when) {
        Killer::killed = false;
        bars.Add(new Killer(when));
        ASSERT_TRUE(Move(50, 10));
        desk::PumpUntil([&] { return Killer::killed || bar->AtMouse() != nullptr; });
        mouse::PressLeft();
        mouse::ReleaseLeft();
        ASSERT_TRUE(Move(30, 10));
        EXPECT_TRUE(desk::PumpUntil([] { return Killer::killed; }));
        EXPECT_EQ(nullptr, bar->AtMouse());
        EXPECT_EQ(first, bar->FirstGadget());
        EXPECT_EQ(1U, bar->NumGadgets());
        EXPECT_EQ(nullptr, TWindow::GetCapture());
        ASSERT_TRUE(Move(10, 10));
        EXPECT_TRUE(desk::PumpUntil([&] { return bar->AtMouse() == first; }));
    }
};

TEST_F(Killings, when_a_gadget_is_entered_are_survived) {
    Try("enter");
}

// The gadget that would have been entered next is among the dead.
TEST_F(Killings, when_a_gadget_is_left_are_survived) {
    Try("leave");
}

TEST_F(Killings, when_a_gadget_is_pressed_are_survived) {
    Try("down");
}

TEST_F(Killings, when_a_gadget_is_let_go_are_survived) {
    Try("up");
}

TEST_F(BarMouse, is_let_go_when_the_window_ends) {
    ASSERT_TRUE(Move(7, 8));
    mouse::PressLeft();
    EXPECT_TOLD(first, "enter 5,6", "down 5,6");
    bar->Destroy();
    EXPECT_EQ((Calls{"move -1,-1", "leave"}), first->Take());
    EXPECT_EQ(nullptr, bar->AtMouse());
    EXPECT_EQ(nullptr, TWindow::GetCapture());
    mouse::ReleaseLeft();
    bar->Create();
    desk::PumpUntil([&] { return bar->AtMouse() == first; }, 500);
    first->Take();
}

TEST_F(BarMouse, is_let_go_when_the_bar_ends_as_an_object) {
    ASSERT_TRUE(Move(7, 8));
    mouse::PressLeft();
    EXPECT_TOLD(first, "enter 5,6", "down 5,6");
    delete bar;
    EXPECT_EQ(nullptr, TWindow::GetCapture());
    mouse::ReleaseLeft();
    mouse::MoveAway();
}

// What a bar does about a mouse that has gone without a message.
TEST_F(BarMouse, has_gone_when_a_move_to_nowhere_is_told) {
    bar->HandleMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 6));
    EXPECT_EQ(Calls{"enter 3,4"}, first->Take());
    bar->HandleMessage(WM_MOUSEMOVE, 0, -1);
    EXPECT_EQ(Calls{"leave"}, first->Take());
    EXPECT_EQ(nullptr, bar->AtMouse());
}

TEST_F(BarMouse, is_at_no_gadget_when_the_window_ends_on_its_way) {
    struct Closer : Probe {
        void MouseLeave(UINT, const TPoint&) override { GetGadgetWindow()->Destroy(); }
    };
    bars.Add(new Closer);
    bar->HandleMessage(WM_MOUSEMOVE, 0, MAKELPARAM(50, 10));
    second->Take();
    bar->HandleMessage(WM_MOUSEMOVE, 0, MAKELPARAM(30, 10));
    EXPECT_FALSE(bar->IsWindow());
    EXPECT_EQ(nullptr, bar->AtMouse());
    EXPECT_EQ(Calls(), second->Take());
}

}  // namespace
