#include "owl/control_bar.h"

#include <gtest/gtest.h>

#include <functional>

#include "owl/command_enabler.h"
#include "owl/dialog.h"
#include "owl/tooltip.h"
#include "tests/owl/gadget_ids.h"
#include "tests/owl/gadget_probe.h"
#include "tests/owl/mouse.h"
#include "tests/owl/surface.h"

namespace {

using gadgets::Probe;
using owl::TControlBar;
using owl::TPoint;
using owl::TRect;
using owl::TTooltip;

/// A frame that has another text for one command, and disables it.
class Frame : public owl::TFrameWindow {
public:
    Frame() : TFrameWindow(nullptr, "frame") { desk::Place(*this); }

    void CePrint(owl::TCommandEnabler& enabler) {
        enabler.Enable(false);
        if (dynamic_cast<owl::TTooltipEnabler*>(&enabler) == nullptr)
            return;
        enabler.SetText("Put on paper");
        if (whenAsked)
            whenAsked();
    }
    void CeHintAlone(owl::TCommandEnabler& enabler) { enabler.Enable(false); }

    /// Called when a tip for the command is asked for.
    std::function<void()> whenAsked;

    DECLARE_RESPONSE_TABLE(Frame);
};

DEFINE_RESPONSE_TABLE1(Frame, owl::TFrameWindow)
    EV_COMMAND_ENABLE(CM_GADGET_PRINT, CePrint), EV_COMMAND_ENABLE(CM_GADGET_HINT_ALONE, CeHintAlone),
END_RESPONSE_TABLE;

/// A gadget that gives its command when it is let go.
class Button : public Probe {
public:
    using Probe::Probe;

    void LButtonUp(UINT modifiers, const TPoint& point) override {
        Probe::LButtonUp(modifiers, point);
        if (PtIn(point))
            GetGadgetWindow()->PostMessage(WM_COMMAND, static_cast<WPARAM>(GetId()));
    }
};

/// A modal dialog with a bar. Its user rests on the bar's button until a tip shows, and clicks then.
class BarDialog : public owl::TDialog {
public:
    explicit BarDialog(owl::TWindow* parent)
        : TDialog(parent, IDD_GADGET_DIALOG),
          m_bar(new TControlBar(this)),
          m_button(new Button(CM_GADGET_SAVE)) {
        m_bar->Attr.W = 200;
        m_bar->Insert(*m_button);
    }
    void SetupWindow() override {
        TDialog::SetupWindow();
        m_bar->GetTooltip()->SetDelay(TTooltip::Initial, 50);
        SetTimer(1, 50);
    }
    void EvTimer(UINT) {
        if (++m_ticks > 100)
            EndModal(IDCANCEL);
        // To and fro: some systems take no notice of the first place behind a window's coming.
        const bool tipShows = m_bar->GetTooltip()->IsWindowVisible();
        if (!tipShows && m_ticks % 10 < 2)
            MoveMouse(5 + m_ticks % 10);
        if (!tipShows || !tip.empty())
            return;
        tip = m_bar->GetTooltip()->GetWindowText();
        user::Click(m_place.x, m_place.y);
    }
    void CmSave() { EndModal(CM_GADGET_SAVE); }

    std::string tip;

    DECLARE_RESPONSE_TABLE(BarDialog);

    void MoveMouse(int x) {
        m_place = TPoint(x, 10);
        m_bar->ClientToScreen(m_place);
        user::MoveTo(m_place.x, m_place.y);
    }
    TControlBar* m_bar;
    Button* m_button;
    TPoint m_place;
    int m_ticks = 0;
};

DEFINE_RESPONSE_TABLE1(BarDialog, owl::TDialog)
    EV_WM_TIMER, EV_COMMAND(CM_GADGET_SAVE, CmSave),
END_RESPONSE_TABLE;

struct ControlBar : testing::Test {
    ControlBar() : program("bars"), frame(new Frame), bar(new TControlBar(frame)) {
        mouse::MoveAway();
        program.SetMainWindow(frame);
        bar->Attr.W = 300;
        save = Add(CM_GADGET_SAVE);
        print = Add(CM_GADGET_PRINT);
        frame->Create();
        bar->Create();
        bar->GetTooltip()->SetDelay(TTooltip::Initial, 50);
        frame->ShowWindow(SW_SHOW);
        frame->SetWindowPos(HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        desk::Activate(*frame);
    }
    ~ControlBar() override { mouse::MoveAway(); }

    Probe* Add(int id) {
        auto* gadget = new Probe(id);
        bar->Insert(*gadget);
        return gadget;
    }

    /// Rests the mouse on a gadget; whether a tip comes.
    bool Rest(const owl::TGadget& gadget, DWORD milliseconds = 3000) {
        const TPoint middle = gadget.GetBounds().TopLeft().OffsetBy(10, 8);
        mouse::MoveTo(*bar, middle.OffsetBy(-1, 0));
        desk::PumpUntil([] { return false; }, 50);
        mouse::MoveTo(*bar, middle);
        return desk::PumpUntil([&] { return bar->GetTooltip()->IsWindowVisible(); }, milliseconds);
    }

    std::string TextOfTip() { return bar->GetTooltip()->GetWindowText(); }

    owl::TApplication program;
    Frame* frame;
    TControlBar* bar;
    Probe* save;
    Probe* print;
};

TEST_F(ControlBar, shows_the_name_of_a_command_where_the_mouse_rests) {
    ASSERT_TRUE(Rest(*save));
    EXPECT_EQ("Save", TextOfTip());
    TPoint pointer;
    owl::TWindow::GetCursorPos(pointer);
    const TRect tip = bar->GetTooltip()->GetWindowRect();
    EXPECT_FALSE(tip.Contains(pointer));
    EXPECT_TRUE(tip.InflatedBy(40, 40).Contains(pointer));
    EXPECT_LT(10, tip.Width());
}

TEST_F(ControlBar, paints_the_tip_in_its_colours) {
    ASSERT_TRUE(Rest(*save));
    const TRect tip = bar->GetTooltip()->GetWindowRect();
    bar->GetTooltip()->UpdateWindow();
    const HDC screen = ::GetDC(bar->GetTooltip()->GetHandle());
    int ground = 0;
    int text = 0;
    for (int y = 0; y < tip.Height() - 2; ++y) {
        for (int x = 0; x < tip.Width() - 2; ++x) {
            const COLORREF pixel = ::GetPixel(screen, x, y);
            ground += pixel == ::GetSysColor(COLOR_INFOBK);
            text += pixel == ::GetSysColor(COLOR_INFOTEXT);
        }
    }
    ::ReleaseDC(bar->GetTooltip()->GetHandle(), screen);
    EXPECT_LT(100, ground);
    EXPECT_LT(10, text);
}

TEST_F(ControlBar, asks_its_parent_for_the_text) {
    ASSERT_TRUE(Rest(*print));
    EXPECT_EQ("Put on paper", TextOfTip());
}

TEST_F(ControlBar, shows_the_tip_of_a_disabled_gadget) {
    save->SetEnabled(false);
    ASSERT_TRUE(Rest(*save));
    EXPECT_EQ("Save", TextOfTip());
}

TEST_F(ControlBar, shows_long_texts_whole) {
    Probe* wordy = Add(CM_GADGET_LONG_TIP);
    ASSERT_TRUE(Rest(*wordy));
    EXPECT_EQ(100U, TextOfTip().size());
    EXPECT_EQ("0123456789 12345", TextOfTip().substr(0, 16));
}

TEST_F(ControlBar, shows_no_tip_where_there_is_no_text) {
    EXPECT_FALSE(Rest(*Add(CM_GADGET_HINT_ALONE), 400));
    EXPECT_FALSE(Rest(*Add(CM_GADGET_NO_TEXT), 400));
    EXPECT_FALSE(Rest(*Add(0), 400));
}

TEST_F(ControlBar, hides_the_tip_when_the_mouse_goes_or_presses) {
    ASSERT_TRUE(Rest(*save));
    mouse::PressLeft();
    EXPECT_TRUE(desk::PumpUntil([&] { return !bar->GetTooltip()->IsWindowVisible(); }));
    mouse::ReleaseLeft();
    ASSERT_TRUE(Rest(*print));
    mouse::MoveTo(*bar, TPoint(150, 100));
    EXPECT_TRUE(desk::PumpUntil([&] { return !bar->GetTooltip()->IsWindowVisible(); }));
}

TEST_F(ControlBar, shows_the_tip_no_more_while_a_gadget_is_held_down) {
    ASSERT_TRUE(Rest(*save));
    mouse::PressLeft();
    EXPECT_TRUE(desk::PumpUntil([&] { return !bar->GetTooltip()->IsWindowVisible(); }));
    EXPECT_FALSE(desk::PumpUntil([&] { return bar->GetTooltip()->IsWindowVisible(); }, 500));
    mouse::ReleaseLeft();
    EXPECT_TRUE(Rest(*print));
}

TEST_F(ControlBar, moves_the_tips_with_the_gadgets) {
    EXPECT_EQ(2U, bar->GetTooltip()->NumTools());
    save->size = owl::TSize(60, 16);
    bar->LayoutSession();
    EXPECT_EQ(2U, bar->GetTooltip()->NumTools());
    ASSERT_TRUE(Rest(*print));
    EXPECT_EQ("Put on paper", TextOfTip());
    delete save;
    EXPECT_EQ(1U, bar->GetTooltip()->NumTools());
}

TEST_F(ControlBar, shows_the_tips_of_its_controls_too) {
    auto* field = new owl::TWindow(bar);
    field->Attr.Id = CM_GADGET_SAVE;
    field->Attr.X = 100;
    field->Attr.W = 50;
    field->Attr.H = 18;
    field->Create();
    bar->GetTooltip()->AddTool(*bar, field->GetHandle());
    mouse::MoveTo(*field, TPoint(10, 10));
    desk::PumpUntil([] { return false; }, 50);
    mouse::MoveTo(*field, TPoint(11, 10));
    ASSERT_TRUE(desk::PumpUntil([&] { return bar->GetTooltip()->IsWindowVisible(); }, 3000));
    EXPECT_EQ("Save", TextOfTip());
}

// They were gone as soon as the frame got another size.
TEST_F(ControlBar, keeps_the_tools_of_others_when_it_is_laid_out) {
    TTooltip& tooltip = *bar->GetTooltip();
    const HWND field = ::CreateWindowExA(0, "EDIT", "", WS_CHILD | WS_VISIBLE, 100, 0, 50, 18,
                                         bar->GetHandle(), nullptr, nullptr, nullptr);
    ASSERT_TRUE(tooltip.AddTool(*bar, field, "field"));
    ASSERT_TRUE(tooltip.AddTool(*frame, TRect(0, 100, 50, 150), CM_GADGET_SAVE, "corner"));
    EXPECT_EQ(4U, tooltip.NumTools());
    bar->LayoutSession();
    bar->MoveWindow(0, 0, 250, 20);
    EXPECT_EQ(4U, tooltip.NumTools());
    delete print;
    EXPECT_EQ(3U, tooltip.NumTools());
    bar->Destroy();
    bar->Create();
    EXPECT_EQ(1U, tooltip.NumTools());
}

TEST_F(ControlBar, in_a_modal_dialog_shows_tips_and_gives_commands) {
    BarDialog dialog(frame);
    EXPECT_EQ(CM_GADGET_SAVE, dialog.Execute());
    EXPECT_EQ("Save", dialog.tip);
}

TEST_F(ControlBar, hands_other_notifications_on) {
    owl::TNotify notify{bar->GetHandle(), 1, NM_CLICK};
    EXPECT_EQ(0, bar->SendMessage(WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&notify)));
}

TEST_F(ControlBar, works_without_its_tooltip) {
    delete bar->GetTooltip();
    EXPECT_EQ(nullptr, bar->GetTooltip());
    bar->LayoutSession();
    mouse::MoveTo(*bar, TPoint(5, 5));
    EXPECT_TRUE(desk::PumpUntil([&] { return bar->AtMouse() == save; }));
    bar->Destroy();
}

// The control goes on with the tip that it was asking for.
TEST_F(ControlBar, may_lose_its_window_while_it_is_asked_for_a_tip) {
    const HWND tooltip = bar->GetTooltip()->GetHandle();
    frame->whenAsked = [&] { bar->Destroy(); };
    Rest(*print, 500);
    EXPECT_FALSE(bar->IsWindow());
    EXPECT_TRUE(desk::PumpUntil([&] { return !::IsWindow(tooltip); }));
    frame->whenAsked = nullptr;
    mouse::MoveAway();
    bar->Create();
    bar->GetTooltip()->SetDelay(TTooltip::Initial, 50);
    ASSERT_TRUE(Rest(*save));
    EXPECT_EQ("Save", TextOfTip());
}

TEST_F(ControlBar, keeps_its_tips_while_its_window_goes_and_comes) {
    const HWND former = bar->GetTooltip()->GetHandle();
    bar->Destroy();
    EXPECT_FALSE(::IsWindow(former));
    mouse::MoveAway();
    bar->Create();
    bar->GetTooltip()->SetDelay(TTooltip::Initial, 50);
    ASSERT_TRUE(Rest(*save));
    EXPECT_EQ("Save", TextOfTip());
}

TEST_F(ControlBar, leaves_nothing_behind) {
    const auto comeAndGo = [&] {
        TControlBar other(frame);
        other.Insert(*new Probe(1));
        other.Create();
    };
    comeAndGo();
    const int windows = desk::CountWindows();
    const DWORD before = desk::UserObjects();
    const int room = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 200; ++i)
        comeAndGo();
    EXPECT_EQ(windows, desk::CountWindows());
    EXPECT_EQ(before, desk::UserObjects());
    EXPECT_EQ(room, owl_test::RoomForGdiObjects());
}

}  // namespace
