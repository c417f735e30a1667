#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

#include "property_desk.h"
#include "support/expect_throw.h"

namespace {

using propdlg_test::Calls;
using propdlg_test::Dialog;
using propdlg_test::Page;
using propdlg_test::PropertyDesk;

struct PropertyTabSelection : PropertyDesk {};

TEST_F(PropertyTabSelection, a_change_asks_dialog_and_page_and_then_tells_them) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_TRUE(dialog.SelectTab(1));
    EXPECT_EQ((Calls{"leave dialog 1", "leave a", "after dialog 1", "after b"}), Asked());
    EXPECT_EQ(1, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(dialog.Strip().IsTabSelected(1));
    EXPECT_TRUE(b.IsWindowVisible());
    EXPECT_FALSE(a.IsWindowVisible());
}

TEST_F(PropertyTabSelection, a_dialog_that_refuses_leaves_the_page_unasked_and_all_as_it_is) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    dialog.may_leave = false;
    EXPECT_FALSE(dialog.SelectTab(1));
    EXPECT_EQ((Calls{"leave dialog 1"}), Asked());
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(a.IsWindowVisible());
}

TEST_F(PropertyTabSelection, a_page_that_refuses_stays) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    a.may_leave = false;
    EXPECT_FALSE(dialog.SelectTab(1));
    EXPECT_EQ((Calls{"leave dialog 1", "leave a"}), Asked());
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(a.IsWindowVisible());
}

TEST_F(PropertyTabSelection, the_selected_tab_is_selected_again_without_questions_and_gets_the_focus) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    ::SetFocus(dialog.GetDlgItem(IDOK));
    EXPECT_TRUE(dialog.SelectTab(0));
    EXPECT_TRUE(Asked().empty());
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetFocus() == dialog.Strip().GetHandle(); }));
}

TEST_F(PropertyTabSelection, minus_one_is_no_tab) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_FALSE(dialog.SelectTab(-1));
    EXPECT_TRUE(Asked().empty());
}

TEST_F(PropertyTabSelection, a_subscript_that_has_no_tab_raises_the_range_error) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    const std::string text = "invalid vector<T> subscript";
    EXPECT_THROW_TEXT(dialog.SelectTab(3), std::out_of_range, text);
    EXPECT_THROW_TEXT(dialog.SelectTab(-2), std::out_of_range, text);
    EXPECT_THROW_TEXT(dialog.Strip().GetPage(3), std::out_of_range, text);
    EXPECT_THROW_TEXT(dialog.Strip().GetTabText(3), std::out_of_range, text);
    EXPECT_THROW_TEXT(dialog.Strip().GetTabWidth(3), std::out_of_range, text);
    EXPECT_THROW_TEXT(dialog.Strip().IsTabEnabled(3), std::out_of_range, text);
    EXPECT_THROW_TEXT(dialog.GetPageRef(3), std::out_of_range, text);
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(Asked().empty());
}

// The next tab

TEST_F(PropertyTabSelection, the_next_tab_lies_around_the_ends) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_TRUE(dialog.SelectPrevious());
    EXPECT_EQ(2, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(dialog.SelectNext());
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
}

TEST_F(PropertyTabSelection, the_next_tab_is_an_enabled_one) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    dialog.Strip().EnableTab(1, false);
    EXPECT_TRUE(dialog.SelectNext());
    EXPECT_EQ(2, dialog.Strip().GetSelectedTab());
}

TEST_F(PropertyTabSelection, there_is_no_next_tab_if_it_is_refused_or_there_is_none) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    a.may_leave = false;
    EXPECT_FALSE(dialog.SelectNext());
    dialog.Strip().EnableTab(1, false);
    dialog.Strip().EnableTab(2, false);
    a.may_leave = true;
    EXPECT_FALSE(dialog.SelectNext());
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
}

TEST_F(PropertyTabSelection, a_key_selects_the_first_enabled_tab_that_has_it) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_FALSE(dialog.Strip().SelectTabByKey(0));
    EXPECT_FALSE(dialog.Strip().SelectTabByKey('Z'));
    EXPECT_TRUE(dialog.Strip().SelectTabByKey('B'));
    EXPECT_EQ(1, dialog.Strip().GetSelectedTab());
    dialog.Strip().EnableTab(2, false);
    EXPECT_FALSE(dialog.Strip().SelectTabByKey('C'));
    dialog.Strip().SetTabText(0, "&B too");
    EXPECT_TRUE(dialog.Strip().SelectTabByKey('B'));
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
}

// The focus

TEST_F(PropertyTabSelection, the_strip_has_the_focus_after_a_change) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    dialog.SelectTab(1);
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetFocus() == dialog.Strip().GetHandle(); }));
}

TEST_F(PropertyTabSelection, the_first_control_has_the_focus_after_a_change_if_the_style_says_so) {
    Dialog dialog(calls, desk.frame, Tab::FocusOnFirstControl);
    Open(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    dialog.SelectTab(1);
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetFocus() == b.GetDlgItem(IDC_LIST); }));
    dialog.SelectTab(2);
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetFocus() == c.GetDlgItem(IDC_FIRST); }));
}

TEST_F(PropertyTabSelection, a_page_without_controls_leaves_the_focus_to_the_strip) {
    Page nothing(calls, "n", IDD_NOTHING);
    Dialog dialog(calls, desk.frame, Tab::FocusOnFirstControl);
    dialog.Add("&A", &a, true);
    dialog.Add("&N", &nothing, true);
    Show(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    dialog.SelectTab(1);
    EXPECT_TRUE(dialog.Strip().GetFirstControl() == nullptr);
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetFocus() == dialog.Strip().GetHandle(); }));
}

TEST_F(PropertyTabSelection, the_first_control_is_the_first_tab_stop_of_the_selected_page) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_EQ(a.GetDlgItem(IDC_FIRST), dialog.Strip().GetFirstControl());
    ASSERT_TRUE(desk::Activate(dialog));
    a.SetDlgItemText(IDC_FIRST, "text");
    dialog.Strip().SelectFirstControl();
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetFocus() == a.GetDlgItem(IDC_FIRST); }));
    PropertyDesk::Pump();
    EXPECT_EQ(MAKELRESULT(0, 4), a.SendDlgItemMessage(IDC_FIRST, EM_GETSEL));
}

// A dialog that goes while it changes

Dialog* doomed = nullptr;

void CALLBACK end_doomed(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    doomed->Destroy(IDCANCEL);
    delete std::exchange(doomed, nullptr);
}

TEST_F(PropertyTabSelection, a_message_that_deletes_the_dialog_during_a_change_ends_the_change) {
    doomed = new Dialog(calls, desk.frame);
    Open(*doomed);
    ::SetTimer(nullptr, 0, 10, &end_doomed);
    ::Sleep(60);
    EXPECT_TRUE(doomed->SelectTab(1));
    EXPECT_TRUE(doomed == nullptr);
    EXPECT_EQ((Calls{"leave dialog 1", "leave a"}), Asked());
}

}  // namespace
