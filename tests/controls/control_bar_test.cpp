#include "lvx/controls/control_bar.h"

#include <gtest/gtest.h>

#include "controls/toolbar_desk.h"
#include "lvx/controls/centred_dialog.h"
#include "owl/button.h"

namespace {

using owl::TPoint;
using owl::TTooltip;
using toolbars::Button;

struct ControlBar : testing::Test {
    void SetUp() override {
        save = desk.Add(CM_SAVE);
        grid = desk.Add(CM_GRID, LVXButtonGadget::NonExclusive);
        desk.Show();
    }

    /// Rests the mouse on a gadget; whether a tip comes.
    bool Rest(const owl::TGadget& gadget, DWORD milliseconds = 3000) {
        const TPoint middle = desk.MiddleOf(gadget);
        mouse::MoveTo(*desk.bar, middle.OffsetBy(-1, 0));
        desk.Pump();
        mouse::MoveTo(*desk.bar, middle);
        return desk::PumpUntil([&] { return HasTip(); }, milliseconds);
    }
    bool HasTip() const { return desk.bar->GetTooltip()->IsWindowVisible(); }
    std::string Tip() const { return desk.bar->GetTooltip()->GetWindowText(); }

    toolbars::Desk desk;
    Button* save = nullptr;
    Button* grid = nullptr;
};

/// Counts what its tooltip hears. The tooltip is the bar's; the control behind it is listened to.
class Listening {
public:
    explicit Listening(const LVXControlBar& bar) : m_handle(bar.GetTooltip()->GetHandle()) {
        current = this;
        m_former = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrA(m_handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Listen)));
    }
    ~Listening() {
        ::SetWindowLongPtrA(m_handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_former));
        current = nullptr;
    }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;

    /// What was heard since the last time.
    std::vector<MSG> Take() {
        std::vector<MSG> taken;
        taken.swap(m_heard);
        return taken;
    }

private:
    static LRESULT CALLBACK Listen(HWND window, UINT msg, WPARAM wParam, LPARAM lParam) {
        if (msg == TTM_RELAYEVENT) {
            current->m_heard.push_back(*reinterpret_cast<const MSG*>(lParam));
        }
        return ::CallWindowProcA(current->m_former, window, msg, wParam, lParam);
    }

    static inline Listening* current = nullptr;
    HWND m_handle;
    WNDPROC m_former;
    std::vector<MSG> m_heard;
};

}  // namespace

TEST_F(ControlBar, tells_hints_while_the_mouse_is_over_a_gadget) {
    EXPECT_EQ(owl::TGadgetWindow::EnterHints, desk.bar->GetHintMode());
    EXPECT_EQ(owl::TGadgetWindow::Horizontal, desk.bar->GetDirection());
}

TEST_F(ControlBar, leaves_its_commands_to_its_parent) {
    desk.bar->SendMessage(WM_COMMAND, 4711);
    EXPECT_EQ(std::vector<int>{4711}, desk.frame->TakeCommands());
}

TEST_F(ControlBar, leaves_questions_about_commands_to_its_parent) {
    LVXButtonGadgetEnabler enabler(desk.bar->GetHandle(), save);
    desk.frame->asked.clear();
    desk.bar->AskWhetherEnabled(enabler);
    EXPECT_TRUE(enabler.GetHandled());
    EXPECT_EQ(std::vector<int>{CM_SAVE}, desk.frame->asked);
}

TEST_F(ControlBar, shows_the_name_of_a_command_where_the_mouse_rests) {
    ASSERT_TRUE(Rest(*save));
    EXPECT_EQ("Save", Tip());
    EXPECT_LT(0, desk.frame->tipsAsked);
    desk.MoveOff();
    EXPECT_TRUE(desk::PumpUntil([&] { return !HasTip(); }));
}

TEST_F(ControlBar, shows_the_name_that_the_resources_have_if_the_parent_does_not_answer) {
    desk.frame->answersTips = false;
    ASSERT_TRUE(Rest(*grid));
    EXPECT_EQ("Grid", Tip());
    EXPECT_LT(0, desk.frame->tipsAsked);
}

TEST_F(ControlBar, hides_the_tip_when_a_button_is_pressed) {
    ASSERT_TRUE(Rest(*save));
    mouse::PressLeft();
    EXPECT_TRUE(desk::PumpUntil([&] { return !HasTip(); }));
    mouse::ReleaseLeft();
    desk.Pump();
}

TEST_F(ControlBar, shows_the_tips_of_its_controls) {
    auto* const control = new owl::TButton(desk.bar, CM_LEFT, "L", 120, 2, 20, 20);
    control->Create();
    desk.bar->GetTooltip()->AddTool(*desk.bar, control->GetHandle());
    mouse::MoveTo(*control, {9, 9});
    desk.Pump();
    mouse::MoveTo(*control, {10, 10});
    ASSERT_TRUE(desk::PumpUntil([&] { return HasTip(); }));
    EXPECT_EQ("Left", Tip());
}

TEST_F(ControlBar, asks_for_a_controls_tip_by_its_number) {
    auto* const control = new owl::TButton(desk.bar, CM_CENTRE, "C", 120, 2, 20, 20);
    control->Create();
    owl::TTooltipText text{};
    text.hdr.code = TTN_NEEDTEXTA;
    text.hdr.hwndFrom = desk.bar->GetTooltip()->GetHandle();
    text.hdr.idFrom = reinterpret_cast<UINT_PTR>(control->GetHandle());
    text.uFlags = TTF_IDISHWND | TTF_CENTERTIP;
    EXPECT_EQ(0, desk.bar->EvNotify(0, text.hdr));
    EXPECT_EQ(static_cast<UINT_PTR>(CM_CENTRE), text.hdr.idFrom);
    EXPECT_EQ(static_cast<UINT>(TTF_CENTERTIP), text.uFlags);
    EXPECT_STREQ("Centre", text.lpszText);
}

TEST_F(ControlBar, tells_the_tooltip_of_each_message_once) {
    Listening listening(*desk.bar);
    MSG msg{};
    msg.hwnd = desk.bar->GetHandle();
    msg.message = WM_MOUSEMOVE;
    msg.lParam = MAKELPARAM(12, 9);
    // As the program's loop does.
    EXPECT_FALSE(desk.bar->PreProcessMsg(msg));
    ::DispatchMessageA(&msg);
    EXPECT_EQ(1u, listening.Take().size());
    ::DispatchMessageA(&msg);
    EXPECT_EQ(1u, listening.Take().size());
}

// A loop that does not offer messages to the windows before it dispatches them.
TEST_F(ControlBar, tells_the_tooltip_of_messages_that_come_straight) {
    Listening listening(*desk.bar);
    const std::vector<UINT> messages{WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_MBUTTONDOWN,
                                     WM_MBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP};
    for (const UINT message : messages) {
        // Outside of the bar while that is possible: a context menu would open for the frame's caption.
        const int y = message == WM_MOUSEMOVE ? -7 : 15;
        desk.bar->SendMessage(message, MK_SHIFT, MAKELPARAM(150, y));
        const std::vector<MSG> heard = listening.Take();
        ASSERT_EQ(1u, heard.size()) << message;
        EXPECT_EQ(message, heard[0].message);
        EXPECT_EQ(desk.bar->GetHandle(), heard[0].hwnd);
        EXPECT_EQ(static_cast<WPARAM>(MK_SHIFT), heard[0].wParam);
        EXPECT_EQ(MAKELPARAM(150, y), heard[0].lParam);
        EXPECT_EQ(150, heard[0].pt.x);
        EXPECT_EQ(y, heard[0].pt.y);
    }
}

TEST_F(ControlBar, tells_the_tooltip_of_no_other_messages) {
    Listening listening(*desk.bar);
    MSG msg{};
    msg.hwnd = desk.bar->GetHandle();
    for (const UINT message : {0x1FFu, 0x20Fu, static_cast<UINT>(WM_TIMER)}) {
        msg.message = message;
        desk.bar->PreProcessMsg(msg);
    }
    msg.hwnd = desk.frame->GetHandle();
    msg.message = WM_MOUSEMOVE;
    desk.bar->PreProcessMsg(msg);
    EXPECT_TRUE(listening.Take().empty());
    msg.hwnd = desk.bar->GetHandle();
    msg.message = 0x20E;
    desk.bar->PreProcessMsg(msg);
    EXPECT_EQ(1u, listening.Take().size());
}

TEST_F(ControlBar, works_without_its_tooltip) {
    delete desk.bar->GetTooltip();
    ASSERT_EQ(nullptr, desk.bar->GetTooltip());
    desk.Click(*save);
    EXPECT_EQ(std::vector<int>{CM_SAVE}, desk.frame->TakeCommands());
}

TEST_F(ControlBar, works_while_its_tooltip_has_no_window) {
    desk.bar->GetTooltip()->Destroy();
    desk.Click(*save);
    EXPECT_EQ(std::vector<int>{CM_SAVE}, desk.frame->TakeCommands());
}

// A window that comes above the bar takes the mouse without a word.
TEST_F(ControlBar, notices_in_an_idle_moment_that_the_mouse_has_gone) {
    desk.MoveTo(*save);
    ASSERT_TRUE(desk::PumpUntil([&] { return desk.bar->GetHintCommand() == CM_SAVE; }));
    owl::TFrameWindow above(nullptr, "above");
    const owl::TRect place = desk.bar->GetWindowRect();
    above.Attr.X = place.left - 20;
    above.Attr.Y = place.top - 40;
    above.Attr.W = 300;
    above.Attr.H = 200;
    above.Attr.Style = WS_POPUP;
    above.Create();
    above.SetWindowPos(HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW | SWP_NOACTIVATE);
    ASSERT_EQ(save, desk.bar->AtMouse());
    desk.bar->IdleAction(1);
    EXPECT_EQ(save, desk.bar->AtMouse());
    desk.bar->IdleAction(0);
    EXPECT_EQ(nullptr, desk.bar->AtMouse());
    EXPECT_EQ(-1, desk.bar->GetHintCommand());
}

TEST_F(ControlBar, keeps_the_mouse_that_is_over_a_gadget_in_idle_moments) {
    desk.MoveTo(*save);
    ASSERT_TRUE(desk::PumpUntil([&] { return desk.bar->AtMouse() == save; }));
    desk.bar->IdleAction(0);
    EXPECT_EQ(save, desk.bar->AtMouse());
    EXPECT_EQ(CM_SAVE, desk.bar->GetHintCommand());
}

TEST_F(ControlBar, asks_for_commands_in_the_first_idle_moment_only) {
    desk.frame->asked.clear();
    desk.bar->IdleAction(1);
    EXPECT_TRUE(desk.frame->asked.empty());
    desk.bar->IdleAction(0);
    EXPECT_EQ((std::vector<int>{CM_SAVE, CM_GRID}), desk.frame->asked);
}

namespace {

/// A modal dialog with a bar. Its user rests on the first button until a tip shows, and clicks then.
class BarDialog : public LVXCentredDialog {
public:
    explicit BarDialog(owl::TWindow* parent)
        : LVXCentredDialog(parent, IDD_TOOLBAR, nullptr), m_bar(new LVXControlBar(this)) {
        m_bar->Attr.W = 200;
        m_bar->Insert(*new LVXButtonGadget(CM_SAVE, CM_SAVE));
    }
    void SetupWindow() override {
        LVXCentredDialog::SetupWindow();
        m_bar->GetTooltip()->SetDelay(TTooltip::Initial, 50);
        SetTimer(1, 50);
    }
    void EvTimer(UINT) {
        if (++m_ticks > 100) {
            EndModal(IDCANCEL);
        }
        // To and fro: some systems take no notice of the first place behind a window's coming.
        const bool tipShows = m_bar->GetTooltip()->IsWindowVisible();
        if (!tipShows && m_ticks % 10 < 2) {
            MoveMouse(8 + m_ticks % 10);
        }
        if (!tipShows || !tip.empty()) {
            return;
        }
        tip = m_bar->GetTooltip()->GetWindowText();
        user::Click(m_place.x, m_place.y);
    }
    void CmSave() { EndModal(CM_SAVE); }

    std::string tip;

    DECLARE_RESPONSE_TABLE(BarDialog);

    void MoveMouse(int x) {
        m_place = TPoint(x, 10);
        m_bar->ClientToScreen(m_place);
        user::MoveTo(m_place.x, m_place.y);
    }
    LVXControlBar* m_bar;
    TPoint m_place;
    int m_ticks = 0;
};

DEFINE_RESPONSE_TABLE1(BarDialog, LVXCentredDialog)
    EV_WM_TIMER, EV_COMMAND(CM_SAVE, CmSave),
END_RESPONSE_TABLE;

}  // namespace

TEST_F(ControlBar, works_in_a_modal_dialog_whose_tips_the_application_window_names) {
    desk.frame->tipsAsked = 0;
    BarDialog dialog(desk.frame);
    EXPECT_EQ(CM_SAVE, dialog.Execute());
    EXPECT_EQ("Save", dialog.tip);
    EXPECT_LT(0, desk.frame->tipsAsked);
}

TEST(VerticalControlBar, lays_its_buttons_below_each_other) {
    toolbars::Desk desk(owl::TGadgetWindow::Vertical);
    Button* const first = desk.Add(CM_SAVE);
    Button* const second = desk.Add(CM_GRID);
    desk.Show();
    EXPECT_EQ(first->GetBounds().left, second->GetBounds().left);
    EXPECT_EQ(first->GetBounds().bottom, second->GetBounds().top);
    desk.Click(*second);
    EXPECT_EQ(std::vector<int>{CM_GRID}, desk.frame->TakeCommands());
}

TEST(LonelyControlBar, needs_no_parent) {
    const owl::TApplication program("lonely");
    LVXControlBar bar(nullptr);
    bar.Attr.Style = WS_POPUP;
    auto* const button = new Button(CM_SAVE, CM_SAVE);
    bar.Insert(*button);
    bar.Create();
    bar.SendMessage(WM_COMMAND, CM_SAVE);
    bar.IdleAction(0);
    // Nobody knows the command.
    EXPECT_FALSE(button->GetEnabled());
}
