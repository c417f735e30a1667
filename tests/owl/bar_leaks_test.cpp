// Bars, gadgets and tips by the thousand.
#include "leaks.h"
#include "owl/bitmap.h"
#include "owl/cel_array.h"
#include "owl/control_bar.h"
#include "owl/separator_gadget.h"
#include "owl/tooltip.h"
#include "owl/window_dc.h"
#include "tests/owl/gadget_probe.h"

namespace {

using gadgets::Probe;
using owl::TFrameWindow;
using owl::TRect;

/// A gadget with pictures of its own, in each style of border.
class Picture : public Probe {
public:
    explicit Picture(int id) : Probe(id), m_cels(new owl::TBitmap(owl::TScreenDC(), 64, 16), 4) {
        SetBorderStyle(static_cast<TBorderStyle>(id % 5));
    }

private:
    owl::TCelArray m_cels;
};

void Fill(owl::TGadgetWindow& bar) {
    for (int id = 1; id <= 5; ++id)
        bar.Insert(*new Picture(id));
    bar.Insert(*new owl::TSeparatorGadget);
    bar.Attr.W = 300;
}

void Press(owl::TGadgetWindow& bar) {
    bar.HandleMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    bar.HandleMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    bar.HandleMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(90, 5));
}

struct OnShownDesk {
    explicit OnShownDesk(TFrameWindow& frame) : desk(frame) {
        frame.ShowWindow(SW_SHOW);
        frame.UpdateWindow();
    }

    TFrameWindow& desk;
};

// Half of them end with the bar, half with its window.
struct Bars : OnShownDesk {
    static constexpr const char* name = "bars_of_gadgets";
    static constexpr int rounds = 500;
    using OnShownDesk::OnShownDesk;

    void Round() {
        owl::TGadgetWindow first(&desk);
        Fill(first);
        first.Create();
        first.UpdateWindow();
        Press(first);
        owl::TGadgetWindow second(&desk, owl::TGadgetWindow::Vertical, new owl::TFont(LOGFONTA{}));
        Fill(second);
        second.Create();
        second.UpdateWindow();
        Press(second);
        second.Destroy();
    }
};

struct GadgetsOfOneBar : OnShownDesk {
    static constexpr const char* name = "gadgets_that_come_and_go_in_one_bar";
    static constexpr int rounds = 1000;

    explicit GadgetsOfOneBar(TFrameWindow& frame) : OnShownDesk(frame), bar(new owl::TControlBar(&frame)) {
        Fill(*bar);
        frame.Insert(*bar);
    }

    void Round() {
        auto* const gadget = new Picture(100);
        bar->Insert(*gadget, owl::TGadgetWindow::Before);
        bar->UpdateWindow();
        Press(*bar);
        delete gadget;
        EXPECT_EQ(5U, bar->GetTooltip()->NumTools());
    }

    owl::TControlBar* bar;
};

struct ControlBars : OnShownDesk {
    static constexpr const char* name = "bars_with_tips_in_a_frame";
    static constexpr int rounds = 1000;
    using OnShownDesk::OnShownDesk;

    void Round() {
        auto* const bar = new owl::TControlBar(&desk);
        Fill(*bar);
        desk.Insert(*bar);
        bar->UpdateWindow();
        delete bar;
    }
};

struct Tooltips : OnShownDesk {
    static constexpr const char* name = "tips_that_show";
    static constexpr int rounds = 1000;
    using OnShownDesk::OnShownDesk;

    void Round() {
        owl::TTooltip tooltip(&desk);
        tooltip.Create();
        tooltip.AddTool(desk, TRect(0, 0, 50, 50), 1, "tip");
        tooltip.ShowWindow(SW_SHOWNOACTIVATE);
        tooltip.UpdateWindow();
    }
};

using Kinds = testing::Types<Bars, GadgetsOfOneBar, ControlBars, Tooltips>;

}  // namespace

namespace owl_test {

INSTANTIATE_TYPED_TEST_SUITE_P(Bars, Leaks, Kinds, KindName);

}  // namespace owl_test
