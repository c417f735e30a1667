#include "owl/tooltip.h"

#include <gtest/gtest.h>

#include <cstring>

#include "tests/owl/gadget_ids.h"
#include "tests/owl/mouse.h"

namespace {

using owl::TPoint;
using owl::TRect;
using owl::TTooltip;
using owl::TTooltipEnabler;
using owl::TTooltipText;
using owl::TWindow;

/// A panel whose tools are asked for their texts. It answers with the number that the question is about.
class Panel : public TWindow {
public:
    explicit Panel(TWindow* parent) : TWindow(parent) {
        Attr.W = 300;
        Attr.H = 200;
    }
    LRESULT EvNotify(UINT id, owl::TNotify& notify) override {
        if (notify.code != static_cast<UINT>(TTN_NEEDTEXTA))
            return TWindow::EvNotify(id, notify);
        TTooltipEnabler enabler(reinterpret_cast<TTooltipText&>(notify), *this);
        enabler.SetText(("number " + std::to_string(enabler.GetId())).c_str());
        return 0;
    }
    bool PreProcessMsg(MSG& msg) override {
        if (msg.message == WM_MOUSEMOVE && relay != nullptr)
            relay->RelayEvent(msg);
        return TWindow::PreProcessMsg(msg);
    }
    TTooltip* relay = nullptr;
};

struct Tooltip : testing::Test {
    Tooltip() : panel(new Panel(desk.frame)), tip(new TTooltip(panel)) {
        mouse::MoveAway();
        panel->Create();
        panel->relay = tip;
        tip->SetDelay(TTooltip::Initial, 50);
    }
    ~Tooltip() override { mouse::MoveAway(); }

    void ShowDesk() {
        desk.frame->ShowWindow(SW_SHOW);
        desk.frame->SetWindowPos(HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        desk::Activate(*desk.frame);
    }

    /// Rests the mouse there; whether a tip comes.
    bool Rest(int x, int y, DWORD milliseconds = 3000) {
        mouse::MoveTo(*panel, TPoint(x - 1, y));
        desk::PumpUntil([] { return false; }, 50);
        mouse::MoveTo(*panel, TPoint(x, y));
        return desk::PumpUntil([&] { return tip->IsWindowVisible(); }, milliseconds);
    }

    TOOLINFOA InfoOf(UINT_PTR id) {
        TOOLINFOA info{};
        info.cbSize = TTTOOLINFOA_V2_SIZE;
        info.hwnd = panel->GetHandle();
        info.uId = id;
        tip->SendMessage(TTM_GETTOOLINFOA, 0, reinterpret_cast<LPARAM>(&info));
        return info;
    }

    desk::Desk desk;
    Panel* panel;
    TTooltip* tip;
};

/// A question as the control puts it.
struct Question {
    explicit Question(UINT_PTR id, UINT flags = 0) {
        text.hdr.code = static_cast<UINT>(TTN_NEEDTEXTA);
        text.hdr.idFrom = id;
        text.uFlags = flags;
        text.lpszText = text.szText;
    }
    TTooltipText text{};
};

TEST_F(Tooltip, is_a_window_of_the_systems_control_that_its_parent_creates) {
    ASSERT_TRUE(tip->IsWindow());
    char name[64] = "";
    ::GetClassNameA(tip->GetHandle(), name, sizeof(name));
    EXPECT_STREQ(TOOLTIPS_CLASSA, name);
    EXPECT_FALSE(tip->IsWindowVisible());
    EXPECT_NE(0U, tip->GetStyle() & TTS_ALWAYSTIP);
    EXPECT_EQ(0U, tip->NumTools());
}

TEST_F(Tooltip, may_be_for_active_windows_alone) {
    TTooltip other(panel, false);
    other.Create();
    EXPECT_EQ(0U, other.GetStyle() & TTS_ALWAYSTIP);
}

TEST_F(Tooltip, without_a_window_has_no_tools) {
    TTooltip none(panel);
    EXPECT_FALSE(none.AddTool(*panel, TRect(0, 0, 10, 10), 1, "text"));
    EXPECT_FALSE(none.AddTool(*panel, panel->GetHandle(), "text"));
    EXPECT_EQ(0U, none.NumTools());
    none.SetToolRect(*panel, 1, TRect());
    none.RemoveTool(*panel, 1);
    none.RemoveTool(*panel, panel->GetHandle());
    none.RemoveAllTools();
    none.Activate(false);
    none.SetDelay(TTooltip::Initial, 5);
    none.RelayEvent(MSG{});
}

TEST_F(Tooltip, refuses_a_tool_that_is_no_window) {
    EXPECT_FALSE(tip->AddTool(*panel, nullptr, "text"));
    EXPECT_FALSE(tip->AddTool(*panel, reinterpret_cast<HWND>(3), "text"));
    EXPECT_EQ(0U, tip->NumTools());
}

TEST_F(Tooltip, gains_moves_and_loses_tools) {
    const HWND control = ::CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 9, 9, panel->GetHandle(),
                                           reinterpret_cast<HMENU>(7), nullptr, nullptr);
    EXPECT_TRUE(tip->AddTool(*panel, TRect(1, 2, 30, 40), 1, "first"));
    EXPECT_TRUE(tip->AddTool(*panel, TRect(50, 2, 80, 40), 2, "second"));
    EXPECT_TRUE(tip->AddTool(*panel, control));
    EXPECT_EQ(3U, tip->NumTools());
    EXPECT_EQ(TRect(1, 2, 30, 40), TRect(InfoOf(1).rect));
    tip->SetToolRect(*panel, 1, TRect(5, 6, 7, 8));
    EXPECT_EQ(TRect(5, 6, 7, 8), TRect(InfoOf(1).rect));
    tip->SetToolRect(*panel, 99, TRect(5, 6, 7, 8));
    EXPECT_EQ(TRect(50, 2, 80, 40), TRect(InfoOf(2).rect));
    tip->RemoveTool(*panel, 1);
    tip->RemoveTool(*panel, 1);
    EXPECT_EQ(2U, tip->NumTools());
    tip->RemoveTool(*panel, control);
    EXPECT_EQ(1U, tip->NumTools());
    tip->AddTool(*panel, TRect(), 3);
    tip->RemoveAllTools();
    EXPECT_EQ(0U, tip->NumTools());
    EXPECT_TRUE(tip->AddTool(*panel, TRect(1, 2, 30, 40), 1));
}

TEST_F(Tooltip, keeps_the_delays_that_it_is_given) {
    tip->SetDelay(TTooltip::Initial, 321);
    tip->SetDelay(TTooltip::AutoPop, 4321);
    tip->SetDelay(TTooltip::Reshow, 123);
    EXPECT_EQ(321, tip->SendMessage(TTM_GETDELAYTIME, TTDT_INITIAL));
    EXPECT_EQ(4321, tip->SendMessage(TTM_GETDELAYTIME, TTDT_AUTOPOP));
    EXPECT_EQ(123, tip->SendMessage(TTM_GETDELAYTIME, TTDT_RESHOW));
    tip->SetDelay(TTooltip::Initial, -1);
    EXPECT_EQ(0, tip->SendMessage(TTM_GETDELAYTIME, TTDT_INITIAL));
    tip->SetDelay(TTooltip::Initial, 1'000'000);
    EXPECT_EQ(32767, tip->SendMessage(TTM_GETDELAYTIME, TTDT_INITIAL));
}

TEST_F(Tooltip, shows_the_text_of_the_tool_that_the_mouse_rests_on) {
    tip->AddTool(*panel, TRect(10, 10, 60, 30), 1, "a text of its own");
    ShowDesk();
    ASSERT_TRUE(Rest(30, 20));
    EXPECT_EQ("a text of its own", tip->GetWindowText());
    ASSERT_TRUE(mouse::MoveTo(*panel, TPoint(200, 150)));
    EXPECT_TRUE(desk::PumpUntil([&] { return !tip->IsWindowVisible(); }));
}

TEST_F(Tooltip, asks_for_a_text_that_it_has_not) {
    tip->AddTool(*panel, TRect(10, 10, 60, 30), 77);
    ShowDesk();
    ASSERT_TRUE(Rest(30, 20));
    EXPECT_EQ("number 77", tip->GetWindowText());
}

TEST_F(Tooltip, asks_about_a_control_by_its_id) {
    const HWND control = ::CreateWindowExA(0, "STATIC", "", WS_CHILD | WS_VISIBLE | SS_NOTIFY, 10, 10, 50, 20,
                                           panel->GetHandle(), reinterpret_cast<HMENU>(7), nullptr, nullptr);
    tip->AddTool(*panel, control);
    ShowDesk();
    ASSERT_TRUE(Rest(30, 20));
    EXPECT_EQ("number 7", tip->GetWindowText());
}

TEST_F(Tooltip, that_is_switched_off_shows_nothing_until_it_is_on_again) {
    tip->AddTool(*panel, TRect(10, 10, 60, 30), 1, "text");
    tip->Activate(false);
    ShowDesk();
    EXPECT_FALSE(Rest(30, 20, 400));
    tip->Activate();
    EXPECT_TRUE(Rest(35, 20));
}

TEST_F(Tooltip, shows_no_empty_text) {
    tip->AddTool(*panel, TRect(10, 10, 60, 30), 1, "");
    ShowDesk();
    EXPECT_FALSE(Rest(30, 20, 400));
}

TEST_F(Tooltip, ends_with_its_parent) {
    const HWND handle = tip->GetHandle();
    delete panel;
    EXPECT_FALSE(::IsWindow(handle));
}

TEST_F(Tooltip, question_is_answered_by_the_string_resource) {
    Question question(CM_GADGET_SAVE);
    TTooltipEnabler enabler(question.text, *panel);
    EXPECT_EQ(static_cast<UINT>(CM_GADGET_SAVE), enabler.GetId());
    EXPECT_TRUE(enabler.IsReceiver(panel->GetHandle()));
    EXPECT_FALSE(enabler.GetHandled());
    EXPECT_STREQ("Save", question.text.lpszText);
}

TEST_F(Tooltip, question_without_a_resource_is_answered_by_nothing) {
    Question question(CM_GADGET_NO_TEXT);
    const TTooltipEnabler enabler(question.text, *panel);
    EXPECT_STREQ("", question.text.lpszText);
}

TEST_F(Tooltip, question_takes_another_text_and_no_other_answer_changes_it) {
    Question question(CM_GADGET_SAVE);
    TTooltipEnabler enabler(question.text, *panel);
    enabler.Enable(false);
    enabler.SetCheck(owl::TCommandEnabler::Checked);
    EXPECT_TRUE(enabler.GetHandled());
    EXPECT_STREQ("Save", question.text.lpszText);
    enabler.SetText("Keep");
    EXPECT_STREQ("Keep", question.text.lpszText);
    enabler.SetText(nullptr);
    EXPECT_STREQ("", question.text.lpszText);
}

TEST_F(Tooltip, question_about_a_window_is_about_its_id) {
    const HWND control = ::CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 9, 9, panel->GetHandle(),
                                           reinterpret_cast<HMENU>(CM_GADGET_PRINT), nullptr, nullptr);
    Question question(reinterpret_cast<UINT_PTR>(control), TTF_IDISHWND);
    const TTooltipEnabler enabler(question.text, *panel);
    EXPECT_EQ(static_cast<UINT>(CM_GADGET_PRINT), enabler.GetId());
    EXPECT_STREQ("Print", question.text.lpszText);
}

TEST_F(Tooltip, question_has_room_for_79_characters_and_for_more) {
    Question question(CM_GADGET_NO_TEXT);
    TTooltipEnabler enabler(question.text, *panel);
    const std::string fits(79, 'x');
    enabler.SetText(fits.c_str());
    EXPECT_EQ(fits, question.text.lpszText);
    EXPECT_EQ(question.text.szText, question.text.lpszText);
    const std::string longer(80, 'y');
    enabler.SetText(longer.c_str());
    EXPECT_EQ(longer, question.text.lpszText);
    EXPECT_EQ(fits, std::string(question.text.szText));
    const std::string longest(5000, 'z');
    enabler.SetText(longest.c_str());
    EXPECT_EQ(longest, question.text.lpszText);
}

}  // namespace
