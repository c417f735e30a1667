#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "owl/command_enabler.h"
#include "tests/owl/desk.h"
#include "tests/owl/resource_ids.h"

namespace {

using owl::TWindow;

class Answer : public owl::TCommandEnabler {
public:
    using TCommandEnabler::TCommandEnabler;
    void Enable(bool enable) override {
        TCommandEnabler::Enable(enable);
        state = enable ? "enabled" : "disabled";
    }
    void SetText(const char* text) override { state = text; }
    void SetCheck(int) override {}

    std::string state = "unanswered";
};

class Listener : public TWindow {
public:
    explicit Listener(TWindow* parent) : TWindow(parent) { Attr.AccelTable = IDA_TEST_KEYS; }

    void CmFirst() { calls.push_back("first"); }
    void CeSecond(owl::TCommandEnabler& enabler) { enabler.Enable(false); }
    void CmSecond() { calls.push_back("second"); }
    void Changed() { calls.push_back("changed"); }
    void Scrolled(UINT code) { calls.push_back("scrolled " + std::to_string(code)); }
    void EvVScroll(UINT code, UINT, HWND) { calls.push_back("bar " + std::to_string(code)); }
    LRESULT Notified(owl::TNotify& notify) {
        calls.push_back("notified " + std::to_string(notify.idFrom));
        return 66;
    }

    std::vector<std::string> calls;

    DECLARE_RESPONSE_TABLE(Listener);
};

DEFINE_RESPONSE_TABLE1(Listener, TWindow)
    EV_COMMAND(CM_TEST_FIRST, CmFirst), EV_COMMAND(CM_TEST_SECOND, CmSecond),
        EV_COMMAND_ENABLE(CM_TEST_SECOND, CeSecond), EV_EN_CHANGE(IDC_TEST_EDIT, Changed),
        EV_CHILD_NOTIFY_ALL_CODES(IDC_TEST_SCROLL, Scrolled), EV_NOTIFY(9, NM_CLICK, Notified), EV_WM_VSCROLL,
END_RESPONSE_TABLE;

class Child : public TWindow {
public:
    Child(TWindow* parent, int id, const char* theClass) : TWindow(parent), className(theClass) {
        Attr.Id = id;
        Attr.W = 60;
        Attr.H = 20;
    }

    const char* className;

protected:
    const char* GetClassName() override { return className; }
};

// Takes its own notification before the parent hears of it.
class Selfish : public Child {
public:
    using Child::Child;
    void Changed() { ++changed; }
    int changed = 0;

    DECLARE_RESPONSE_TABLE(Selfish);
};

DEFINE_RESPONSE_TABLE1(Selfish, Child)
    EV_NOTIFY_AT_CHILD(EN_CHANGE, Changed),
END_RESPONSE_TABLE;

using Calls = std::vector<std::string>;

struct WindowCommands : testing::Test {
    WindowCommands() : listener(new Listener(desk.frame)) { listener->Create(); }

    desk::Desk desk;
    Listener* listener;
};

TEST_F(WindowCommands, come_from_menus_and_accelerators) {
    listener->SendMessage(WM_COMMAND, MAKEWPARAM(CM_TEST_FIRST, 0));
    listener->SendMessage(WM_COMMAND, MAKEWPARAM(CM_TEST_FIRST, 1));
    EXPECT_EQ((Calls{"first", "first"}), listener->calls);
}

TEST_F(WindowCommands, come_from_a_button_by_its_number) {
    Child button(listener, CM_TEST_FIRST, "BUTTON");
    button.Create();
    button.SendMessage(BM_CLICK);
    EXPECT_EQ(Calls{"first"}, listener->calls);
}

TEST_F(WindowCommands, do_not_come_from_other_notifications_of_the_same_number) {
    Child edit(listener, CM_TEST_FIRST, "EDIT");
    edit.Create();
    edit.SetWindowText("x");
    EXPECT_EQ(Calls{}, listener->calls);
}

TEST_F(WindowCommands, that_are_notifications_reach_the_parents_table) {
    Child edit(listener, IDC_TEST_EDIT, "EDIT");
    edit.Create();
    edit.SetWindowText("x");
    EXPECT_EQ(Calls{"changed"}, listener->calls);
}

TEST_F(WindowCommands, that_are_notifications_reach_the_control_first) {
    Selfish edit(listener, IDC_TEST_EDIT, "EDIT");
    edit.Create();
    edit.SetWindowText("x");
    EXPECT_EQ(1, edit.changed);
    EXPECT_EQ(Calls{}, listener->calls);
}

// Line up has the code 0 of a command: it is none.
TEST_F(WindowCommands, are_not_what_a_scroll_bar_says) {
    Child bar(listener, IDC_TEST_SCROLL, "SCROLLBAR");
    bar.Create();
    const LPARAM control = reinterpret_cast<LPARAM>(bar.GetHandle());
    listener->SendMessage(WM_HSCROLL, MAKEWPARAM(SB_LINEUP, 0), control);
    listener->SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 12), control);
    EXPECT_EQ((Calls{"scrolled 0", "scrolled 5"}), listener->calls);
}

TEST_F(WindowCommands, leave_scroll_bars_that_nobody_named_to_the_message) {
    Child bar(listener, CM_TEST_FIRST, "SCROLLBAR");
    bar.Create();
    listener->SendMessage(WM_VSCROLL, MAKEWPARAM(SB_LINEUP, 0), reinterpret_cast<LPARAM>(bar.GetHandle()));
    listener->SendMessage(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), 0);
    EXPECT_EQ((Calls{"bar 0", "bar 1"}), listener->calls);
}

TEST_F(WindowCommands, of_the_common_controls_bring_their_structure_and_an_answer_back) {
    owl::TNotify notify{};
    notify.idFrom = 9;
    notify.code = static_cast<UINT>(NM_CLICK);
    EXPECT_EQ(66, listener->SendMessage(WM_NOTIFY, 9, reinterpret_cast<LPARAM>(&notify)));
    notify.code = static_cast<UINT>(NM_DBLCLK);
    EXPECT_EQ(0, listener->SendMessage(WM_NOTIFY, 9, reinterpret_cast<LPARAM>(&notify)));
    EXPECT_EQ(Calls{"notified 9"}, listener->calls);
}

TEST_F(WindowCommands, are_enabled_by_the_receiver_that_has_a_function) {
    Answer known(CM_TEST_FIRST, listener->GetHandle());
    listener->AskWhetherEnabled(known);
    EXPECT_EQ("enabled", known.state);
    Answer unknown(CM_TEST_UNKNOWN, listener->GetHandle());
    listener->AskWhetherEnabled(unknown);
    EXPECT_EQ("disabled", unknown.state);
}

TEST_F(WindowCommands, are_enabled_by_their_own_function_if_there_is_one) {
    Answer answer(CM_TEST_SECOND, listener->GetHandle());
    listener->AskWhetherEnabled(answer);
    EXPECT_EQ("disabled", answer.state);
}

TEST_F(WindowCommands, are_left_open_by_who_is_not_the_receiver) {
    Answer answer(CM_TEST_FIRST, desk.frame->GetHandle());
    listener->AskWhetherEnabled(answer);
    EXPECT_EQ("unanswered", answer.state);
}

TEST_F(WindowCommands, come_from_accelerator_keys_that_are_typed) {
    ASSERT_TRUE(desk::Activate(*desk.frame));
    listener->SetFocus();
    desk::Press({VK_CONTROL, 'K'});
    EXPECT_TRUE(desk::PumpUntil([&] { return !listener->calls.empty(); }));
    EXPECT_EQ(Calls{"first"}, listener->calls);
}

}  // namespace
