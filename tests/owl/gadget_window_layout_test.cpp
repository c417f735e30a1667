#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "owl/gadget_window.h"
#include "owl/window_dc.h"
#include "tests/owl/gadget_probe.h"

namespace {

using gadgets::Calls;
using gadgets::Probe;
using owl::TGadgetWindow;
using owl::TPoint;
using owl::TRect;
using owl::TSize;

TSize DesiredSizeOf(TGadgetWindow& bar) {
    TSize size;
    bar.GetDesiredSize(size);
    return size;
}

COLORREF PixelOf(const owl::TWindow& window, const TPoint& point) {
    const owl::TClientDC dc(window.GetHandle());
    return dc.GetPixel(point);
}

TEST(GadgetWindowLayout, lays_gadgets_side_by_side_in_the_middle_of_the_thickness) {
    gadgets::BarDesk<> bars;
    Probe* first = bars.Add(1, TSize(20, 16));
    Probe* thick = bars.Add(2, TSize(10, 30));
    Probe* flat = bars.Add(3, TSize(15, 5));
    bars.Show();
    EXPECT_EQ(TRect(2, 9, 22, 25), first->GetBounds());
    EXPECT_EQ(TRect(22, 2, 32, 32), thick->GetBounds());
    EXPECT_EQ(TRect(32, 14, 47, 19), flat->GetBounds());
    EXPECT_EQ(TSize(300, 34), bars.bar->GetWindowRect().Size());
}

TEST(GadgetWindowLayout, lays_gadgets_one_below_the_other) {
    gadgets::BarDesk<> bars(TGadgetWindow::Vertical);
    Probe* first = bars.Add(1, TSize(20, 16));
    Probe* wide = bars.Add(2, TSize(50, 10));
    bars.Show();
    EXPECT_EQ(TRect(17, 2, 37, 18), first->GetBounds());
    EXPECT_EQ(TRect(2, 18, 52, 28), wide->GetBounds());
    EXPECT_EQ(TSize(54, 300), bars.bar->GetWindowRect().Size());
}

TEST(GadgetWindowLayout, wants_room_for_gadgets_and_margins) {
    gadgets::BarDesk<> bars;
    EXPECT_EQ(TSize(4, 4), DesiredSizeOf(*bars.bar));
    bars.Add(1, TSize(20, 16));
    bars.Add(2, TSize(10, 30));
    EXPECT_EQ(TSize(34, 34), DesiredSizeOf(*bars.bar));
    bars.bar->SetMargins({1, 2, 3, 4});
    EXPECT_EQ(TSize(34, 36), DesiredSizeOf(*bars.bar));
    bars.bar->SetDirection(TGadgetWindow::Vertical);
    EXPECT_EQ(TSize(24, 52), DesiredSizeOf(*bars.bar));
}

TEST(GadgetWindowLayout, without_a_length_is_as_long_as_the_gadgets) {
    gadgets::BarDesk<> bars;
    bars.Add(1, TSize(20, 16));
    bars.Add(2, TSize(31, 16));
    bars.bar->Attr.W = 0;
    bars.Show();
    EXPECT_EQ(TSize(55, 20), bars.bar->GetWindowRect().Size());
}

TEST(GadgetWindowLayout, adds_the_frame_of_the_window) {
    gadgets::BarDesk<> bars;
    bars.bar->Attr.Style |= WS_BORDER;
    Probe* gadget = bars.Add(1);
    bars.Show();
    EXPECT_EQ(20, bars.bar->GetClientRect().Height());
    EXPECT_EQ(22, bars.bar->GetWindowRect().Height());
    EXPECT_EQ(TRect(2, 2, 22, 18), gadget->GetBounds());
}

TEST(GadgetWindowLayout, without_gadgets_has_its_margins) {
    gadgets::BarDesk<> bars;
    bars.Show();
    EXPECT_EQ(TSize(300, 4), bars.bar->GetWindowRect().Size());
}

TEST(GadgetWindowLayout, is_made_anew_by_insertion_and_removal) {
    gadgets::BarDesk<> bars;
    Probe* first = bars.Add(1);
    bars.Show();
    auto* before = new Probe(2, TSize(8, 30));
    bars.bar->Insert(*before, TGadgetWindow::Before);
    EXPECT_EQ(TRect(2, 2, 10, 32), before->GetBounds());
    EXPECT_EQ(TRect(10, 9, 30, 25), first->GetBounds());
    EXPECT_EQ(34, bars.bar->GetWindowRect().Height());
    delete before;
    EXPECT_EQ(TRect(2, 2, 22, 18), first->GetBounds());
    EXPECT_EQ(20, bars.bar->GetWindowRect().Height());
}

TEST(GadgetWindowLayout, follows_gadgets_that_want_other_sizes_when_it_is_told) {
    gadgets::BarDesk<> bars;
    Probe* first = bars.Add(1);
    Probe* second = bars.Add(2);
    bars.Show();
    first->size = TSize(40, 26);
    EXPECT_EQ(22, second->GetBounds().left);
    bars.bar->LayoutSession();
    EXPECT_EQ(TRect(42, 7, 62, 23), second->GetBounds());
    EXPECT_EQ(30, bars.bar->GetWindowRect().Height());
}

TEST(GadgetWindowLayout, turns_with_the_direction) {
    gadgets::BarDesk<> bars;
    bars.Add(1);
    Probe* second = bars.Add(2);
    bars.Show();
    bars.bar->SetDirection(TGadgetWindow::Vertical);
    EXPECT_EQ(TGadgetWindow::Vertical, bars.bar->GetDirection());
    EXPECT_EQ(TRect(2, 18, 22, 34), second->GetBounds());
    EXPECT_EQ(24, bars.bar->GetWindowRect().Width());
}

TEST(GadgetWindowLayout, moves_no_gadget_that_stands_right) {
    gadgets::BarDesk<> bars;
    Probe* gadget = bars.Add(1);
    bars.Show();
    gadget->Take();
    bars.bar->MoveWindow(0, 0, 200, 20);
    bars.bar->LayoutSession();
    EXPECT_EQ(Calls(), gadget->Take());
}

TEST(GadgetWindowLayout, without_a_window_waits) {
    gadgets::BarDesk<> bars;
    Probe* gadget = bars.Add(1);
    bars.bar->LayoutSession();
    EXPECT_EQ(TRect(), gadget->GetBounds());
}

TEST(GadgetWindowLayout, finds_gadgets_by_their_points) {
    gadgets::BarDesk<> bars;
    Probe* first = bars.Add(1);
    Probe* second = bars.Add(2);
    bars.Show();
    EXPECT_EQ(first, bars.bar->GadgetFromPoint(TPoint(2, 2)));
    EXPECT_EQ(first, bars.bar->GadgetFromPoint(TPoint(21, 17)));
    EXPECT_EQ(second, bars.bar->GadgetFromPoint(TPoint(22, 17)));
    EXPECT_EQ(nullptr, bars.bar->GadgetFromPoint(TPoint(1, 2)));
    EXPECT_EQ(nullptr, bars.bar->GadgetFromPoint(TPoint(42, 10)));
}

TEST(GadgetWindowLayout, leaves_it_to_gadgets_which_points_are_theirs) {
    struct Half : Probe {
        bool PtIn(const TPoint& point) override { return Probe::PtIn(point) && point.x < 10; }
    };
    gadgets::BarDesk<> bars;
    auto* half = bars.Add(new Half);
    bars.Show();
    EXPECT_EQ(half, bars.bar->GadgetFromPoint(TPoint(11, 5)));
    EXPECT_EQ(nullptr, bars.bar->GadgetFromPoint(TPoint(12, 5)));
}

// Each of them paints far more than its place.
TEST(GadgetWindowLayout, paints_each_gadget_in_its_place_alone) {
    gadgets::BarDesk<> bars;
    bars.Add(1);
    Probe* second = bars.Add(2, TSize(20, 10));
    second->colour = owl::TColor::LtBlue;
    bars.Show();
    bars.bar->UpdateWindow();
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    EXPECT_EQ(face, PixelOf(*bars.bar, TPoint(1, 10)));
    EXPECT_EQ(RGB(255, 0, 0), PixelOf(*bars.bar, TPoint(2, 2)));
    EXPECT_EQ(RGB(255, 0, 0), PixelOf(*bars.bar, TPoint(21, 17)));
    EXPECT_EQ(RGB(0, 0, 255), PixelOf(*bars.bar, TPoint(22, 5)));
    EXPECT_EQ(face, PixelOf(*bars.bar, TPoint(22, 4)));
    EXPECT_EQ(RGB(0, 0, 255), PixelOf(*bars.bar, TPoint(41, 14)));
    EXPECT_EQ(face, PixelOf(*bars.bar, TPoint(42, 10)));
    EXPECT_EQ(face, PixelOf(*bars.bar, TPoint(10, 18)));
}

TEST(GadgetWindowLayout, paints_only_gadgets_that_need_it) {
    gadgets::BarDesk<> bars;
    Probe* first = bars.Add(1);
    Probe* second = bars.Add(2);
    bars.Show();
    bars.bar->UpdateWindow();
    const int before = first->paints;
    second->Invalidate();
    const int painted = second->paints;
    second->Update();
    EXPECT_EQ(before, first->paints);
    EXPECT_EQ(painted + 1, second->paints);
}

// A tool that one gadget leaves selected is not the next one's.
TEST(GadgetWindowLayout, gives_each_gadget_a_fresh_context) {
    struct Careless : Probe {
        void Paint(owl::TDC& dc) override {
            before = dc.GetTextColor();
            dc.SetTextColor(owl::TColor::LtGreen);
            dc.SelectObject(brush);
            dc.PatBlt(0, 0, 20, 16);
        }
        owl::TBrush brush{owl::TColor::LtGreen};
        COLORREF before = 0;
    };
    struct Plain : Probe {
        void Paint(owl::TDC& dc) override { dc.PatBlt(0, 0, 20, 16); }
    };
    gadgets::BarDesk<> bars;
    bars.Add(new Careless);
    auto* second = bars.Add(new Careless);
    bars.Add(new Plain);
    bars.Show();
    bars.bar->UpdateWindow();
    EXPECT_EQ(RGB(0, 0, 0), second->before);
    EXPECT_EQ(RGB(0, 255, 0), PixelOf(*bars.bar, TPoint(30, 10)));
    EXPECT_EQ(RGB(255, 255, 255), PixelOf(*bars.bar, TPoint(50, 10)));
}

/// Does something once, when it is moved or asked for its size.
class Busybody : public Probe {
public:
    Busybody() : Probe(7) {}

    void GetDesiredSize(TSize& wanted) override {
        Probe::GetDesiredSize(wanted);
        Do(whenAsked);
    }
    void Moved() override {
        Probe::Moved();
        Do(whenMoved);
    }

    std::function<void()> whenAsked;
    std::function<void()> whenMoved;

private:
    static void Do(std::function<void()>& what) {
        if (const auto once = std::exchange(what, nullptr))
            once();
    }
};

// The gadgets behind stood where there had been room before.
TEST(GadgetWindowLayout, stands_as_a_gadget_that_was_moved_has_changed_it) {
    gadgets::BarDesk<> bars;
    auto* busybody = bars.Add(new Busybody);
    Probe* last = bars.Add(1);
    bars.Show();
    Probe* between = new Probe(2, TSize(30, 16));
    busybody->whenMoved = [&] { bars.bar->Insert(*between, TGadgetWindow::After, busybody); };
    bars.bar->SetMargins({5, 2, 2, 2});
    EXPECT_EQ(TRect(5, 2, 25, 18), busybody->GetBounds());
    EXPECT_EQ(TRect(25, 2, 55, 18), between->GetBounds());
    EXPECT_EQ(TRect(55, 2, 75, 18), last->GetBounds());
}

TEST(GadgetWindowLayout, leaves_a_gadget_alone_that_goes_when_it_is_asked_for_its_size) {
    gadgets::BarDesk<> bars;
    auto* busybody = bars.Add(new Busybody);
    Probe* last = bars.Add(1);
    bars.Show();
    busybody->Take();
    busybody->size = TSize(40, 16);
    busybody->whenAsked = [&] { bars.bar->Remove(*busybody); };
    // Lays out without asking for the sizes beforehand.
    bars.bar->MoveWindow(0, 0, 200, 20);
    EXPECT_EQ(Calls{"removed"}, busybody->Take());
    EXPECT_EQ(TRect(2, 2, 22, 18), last->GetBounds());
    delete busybody;
}

TEST(GadgetWindowLayout, finds_no_gadget_that_goes_when_it_is_asked_for_its_points) {
    struct Shy : Probe {
        bool PtIn(const TPoint&) override {
            GetGadgetWindow()->Remove(*this);
            return true;
        }
    };
    gadgets::BarDesk<> bars;
    Shy* shy = bars.Add(new Shy);
    Probe* behind = bars.Add(1);
    bars.Show();
    EXPECT_EQ(behind, bars.bar->GadgetFromPoint(TPoint(5, 5)));
    EXPECT_EQ(nullptr, shy->GetGadgetWindow());
    delete shy;
}

}  // namespace
