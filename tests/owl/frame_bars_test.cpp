#include <gtest/gtest.h>

#include <memory>

#include "owl/control_bar.h"
#include "owl/frame_window.h"
#include "owl/mdi.h"
#include "tests/owl/gadget_ids.h"
#include "tests/owl/gadget_probe.h"

namespace {

using gadgets::Calls;
using gadgets::Probe;
using owl::TControlBar;
using owl::TFrameWindow;
using owl::TRect;
using owl::TSize;
using owl::TWindow;

/// A plain window, so thick and so long at first.
TWindow* Plain(int width, int height) {
    auto* window = new TWindow(static_cast<TWindow*>(nullptr));
    window->Attr.W = width;
    window->Attr.H = height;
    return window;
}

/// A window's place in the client area of its parent.
TRect PlaceOf(const TWindow& window) {
    TRect rect = window.GetWindowRect();
    owl::TPoint corner = rect.TopLeft();
    window.Parent->ScreenToClient(corner);
    return TRect(corner, rect.Size());
}

/// Makes a frame's client area 300 by 200 pixels.
void Resize(TFrameWindow& frame, int width = 300, int height = 200) {
    const TSize rim = frame.GetWindowRect().Size() - frame.GetClientRect().Size();
    frame.SetWindowPos(nullptr, 0, 0, width + rim.cx, height + rim.cy, SWP_NOMOVE | SWP_NOZORDER);
}

class Hinted : public TFrameWindow {
public:
    Hinted() : TFrameWindow(nullptr, "hinted") { desk::Place(*this); }
    void ShowHint(int command, const std::string& text) override {
        hints.push_back(std::to_string(command) + ":" + text);
    }
    Calls hints;
};

struct FrameBars : testing::Test {
    FrameBars() : frame(desk.frame) { Resize(*frame); }

    desk::Desk desk;
    TFrameWindow* frame;
};

TEST_F(FrameBars, lie_along_the_edges_and_the_client_fills_the_rest) {
    auto* client = Plain(1, 1);
    frame->SetClientWindow(client);
    auto* top = Plain(5, 20);
    auto* left = Plain(30, 5);
    auto* bottom = Plain(5, 10);
    auto* right = Plain(40, 5);
    frame->Insert(*top);
    frame->Insert(*left, TFrameWindow::Left);
    frame->Insert(*bottom, TFrameWindow::Bottom);
    frame->Insert(*right, TFrameWindow::Right);
    EXPECT_EQ(TRect(0, 0, 300, 20), PlaceOf(*top));
    EXPECT_EQ(TRect(0, 20, 30, 200), PlaceOf(*left));
    EXPECT_EQ(TRect(30, 190, 300, 200), PlaceOf(*bottom));
    EXPECT_EQ(TRect(260, 20, 300, 190), PlaceOf(*right));
    EXPECT_EQ(TRect(30, 20, 260, 190), PlaceOf(*client));
    EXPECT_EQ(TRect(30, 20, 260, 190), frame->GetClientRoom());
}

TEST_F(FrameBars, lie_inside_of_each_other) {
    auto* outer = Plain(5, 20);
    auto* inner = Plain(5, 7);
    frame->Insert(*outer);
    frame->Insert(*inner);
    EXPECT_EQ(TRect(0, 20, 300, 27), PlaceOf(*inner));
}

TEST_F(FrameBars, follow_the_size_of_the_frame) {
    auto* client = Plain(1, 1);
    frame->SetClientWindow(client);
    auto* bottom = Plain(5, 10);
    frame->Insert(*bottom, TFrameWindow::Bottom);
    Resize(*frame, 250, 120);
    EXPECT_EQ(TRect(0, 110, 250, 120), PlaceOf(*bottom));
    EXPECT_EQ(TRect(0, 0, 250, 110), PlaceOf(*client));
}

TEST_F(FrameBars, that_find_too_little_room_keep_their_thickness) {
    auto* client = Plain(1, 1);
    frame->SetClientWindow(client);
    auto* top = Plain(5, 90);
    auto* bottom = Plain(5, 80);
    frame->Insert(*top);
    frame->Insert(*bottom, TFrameWindow::Bottom);
    Resize(*frame, 300, 60);
    EXPECT_EQ(90, PlaceOf(*top).Height());
    EXPECT_EQ(80, PlaceOf(*bottom).Height());
    EXPECT_TRUE(frame->GetClientRoom().IsEmpty());
    EXPECT_TRUE(frame->GetClientRoom().IsNormal());
    Resize(*frame, 300, 300);
    EXPECT_EQ(TRect(0, 0, 300, 90), PlaceOf(*top));
    EXPECT_EQ(TRect(0, 220, 300, 300), PlaceOf(*bottom));
    EXPECT_EQ(TRect(0, 90, 300, 220), PlaceOf(*client));
}

TEST_F(FrameBars, that_are_hidden_take_no_room) {
    auto* top = Plain(5, 20);
    auto* second = Plain(5, 9);
    frame->Insert(*top);
    frame->Insert(*second);
    top->ShowWindow(SW_HIDE);
    frame->ArrangeBars();
    EXPECT_EQ(TRect(0, 0, 300, 9), PlaceOf(*second));
    EXPECT_EQ(TRect(0, 9, 300, 200), frame->GetClientRoom());
    top->ShowWindow(SW_SHOW);
    frame->ArrangeBars();
    EXPECT_EQ(TRect(0, 20, 300, 29), PlaceOf(*second));
}

TEST_F(FrameBars, may_be_inserted_before_the_frame_is_created) {
    owl::TFrameWindow early(nullptr, "early");
    desk::Place(early);
    auto* bar = new TControlBar(nullptr);
    bar->Insert(*new Probe(1));
    early.Insert(*bar);
    auto* client = Plain(1, 1);
    early.SetClientWindow(client);
    early.Create();
    EXPECT_TRUE(bar->IsWindow());
    EXPECT_EQ(20, PlaceOf(*bar).Height());
    EXPECT_EQ(early.GetClientRect().Width(), PlaceOf(*bar).Width());
    EXPECT_EQ(20, PlaceOf(*client).top);
}

TEST_F(FrameBars, are_added_to_what_a_client_asks_for) {
    auto* client = Plain(120, 80);
    owl::TFrameWindow shrunk(nullptr, "shrunk", client, true);
    shrunk.Insert(*Plain(5, 20));
    shrunk.Insert(*Plain(30, 5), TFrameWindow::Left);
    auto* hidden = Plain(30, 5);
    hidden->Attr.Style = WS_CHILD;
    shrunk.Insert(*hidden, TFrameWindow::Left);
    shrunk.Create();
    EXPECT_EQ(TSize(150, 100), shrunk.GetClientRect().Size());
    EXPECT_EQ(TRect(30, 20, 150, 100), PlaceOf(*client));
}

TEST_F(FrameBars, that_grow_push_the_client_on) {
    auto* client = Plain(1, 1);
    frame->SetClientWindow(client);
    auto* bar = new TControlBar(frame);
    bar->Insert(*new Probe(1));
    frame->Insert(*bar);
    EXPECT_EQ(TRect(0, 20, 300, 200), PlaceOf(*client));
    auto* thick = new Probe(2, TSize(10, 40));
    bar->Insert(*thick);
    EXPECT_EQ(TRect(0, 0, 300, 44), PlaceOf(*bar));
    EXPECT_EQ(TRect(0, 44, 300, 200), PlaceOf(*client));
    delete thick;
    EXPECT_EQ(TRect(0, 20, 300, 200), PlaceOf(*client));
}

TEST_F(FrameBars, may_stand_upright) {
    auto* bar = new TControlBar(frame, TControlBar::Vertical);
    bar->Insert(*new Probe(1));
    frame->Insert(*bar, TFrameWindow::Left);
    EXPECT_EQ(TRect(0, 0, 24, 200), PlaceOf(*bar));
}

TEST_F(FrameBars, that_are_inserted_again_go_to_the_other_edge) {
    auto* first = Plain(8, 20);
    auto* second = Plain(8, 9);
    frame->Insert(*first);
    frame->Insert(*second);
    first->MoveWindow(0, 0, 8, 20);
    frame->Insert(*first, TFrameWindow::Left);
    EXPECT_EQ(TRect(0, 0, 300, 9), PlaceOf(*second));
    EXPECT_EQ(TRect(0, 9, 8, 200), PlaceOf(*first));
}

TEST_F(FrameBars, leave_their_room_when_they_end_or_go) {
    auto* first = Plain(5, 20);
    auto* second = Plain(5, 9);
    frame->Insert(*first);
    frame->Insert(*second);
    delete first;
    frame->ArrangeBars();
    EXPECT_EQ(TRect(0, 9, 300, 200), frame->GetClientRoom());
    second->SetParent(nullptr);
    EXPECT_EQ(TRect(0, 0, 300, 200), frame->GetClientRoom());
    delete second;
}

TEST_F(FrameBars, may_go_to_another_frame) {
    auto* bar = Plain(5, 20);
    frame->Insert(*bar);
    TFrameWindow other(nullptr, "other");
    desk::Place(other);
    other.Create();
    other.Insert(*bar);
    EXPECT_EQ(&other, bar->Parent);
    EXPECT_EQ(20, other.GetClientRoom().top);
    EXPECT_EQ(TRect(0, 0, 300, 200), frame->GetClientRoom());
}

// A later child may stand where the bar's object stood in memory.
TEST_F(FrameBars, that_end_do_not_make_bars_of_others) {
    const auto memory = std::make_unique<std::byte[]>(sizeof(TWindow));
    auto* bar = new (memory.get()) TWindow(frame);
    frame->Insert(*bar);
    bar->~TWindow();
    auto* plain = new (memory.get()) TWindow(frame);
    plain->Attr.W = plain->Attr.H = 33;
    plain->Create();
    frame->ArrangeBars();
    EXPECT_EQ(TRect(0, 0, 33, 33), PlaceOf(*plain));
    plain->~TWindow();
}

TEST_F(FrameBars, may_have_been_the_client) {
    auto* window = Plain(10, 20);
    frame->SetClientWindow(window);
    window->MoveWindow(0, 0, 10, 20);
    frame->Insert(*window);
    EXPECT_EQ(nullptr, frame->GetClientWindow());
    EXPECT_EQ(TRect(0, 0, 300, 20), PlaceOf(*window));
}

TEST_F(FrameBars, stand_beside_the_children_of_an_mdi_frame) {
    owl::TMDIFrame mdi("mdi", owl::TResId());
    desk::Place(mdi);
    mdi.Create();
    auto* bar = new TControlBar(&mdi);
    bar->Insert(*new Probe(1));
    mdi.Insert(*bar);
    Resize(mdi);
    EXPECT_EQ(TRect(0, 0, 300, 20), PlaceOf(*bar));
    EXPECT_EQ(TRect(0, 20, 300, 200), PlaceOf(*mdi.GetClientWindow()));
}

TEST_F(FrameBars, are_left_alone_while_the_frame_is_an_icon) {
    auto* top = Plain(5, 20);
    frame->Insert(*top);
    frame->ShowWindow(SW_SHOW);
    frame->ShowWindow(SW_MINIMIZE);
    ASSERT_TRUE(frame->IsIconic());
    frame->ArrangeBars();
    EXPECT_EQ(TSize(300, 20), top->GetWindowRect().Size());
    frame->ShowWindow(SW_RESTORE);
    EXPECT_TRUE(desk::PumpUntil([&] { return PlaceOf(*top) == TRect(0, 0, 300, 20); }));
}

TEST_F(FrameBars, find_their_frame_however_deep_they_stand) {
    auto* panel = new TWindow(frame);
    auto* bar = new TControlBar(panel);
    EXPECT_EQ(frame, TFrameWindow::FrameOf(bar));
    EXPECT_EQ(frame, TFrameWindow::FrameOf(frame));
    EXPECT_EQ(nullptr, TFrameWindow::FrameOf(nullptr));
    const std::unique_ptr<TWindow> alone(Plain(1, 1));
    EXPECT_EQ(nullptr, TFrameWindow::FrameOf(alone.get()));
}

TEST_F(FrameBars, show_hints_in_the_outermost_frame_unless_one_between_takes_them) {
    Hinted outer;
    outer.Create();
    auto* inner = new TFrameWindow(&outer);
    auto* bar = new TControlBar(inner);
    bar->SetHintCommand(CM_GADGET_PRINT);
    EXPECT_EQ(Calls{"402:Prints the drawing"}, outer.hints);
    frame->ShowHint(1, "nobody is above");
}

}  // namespace
