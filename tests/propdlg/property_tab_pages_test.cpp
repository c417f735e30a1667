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

struct PropertyTabPages : PropertyDesk {};

TEST_F(PropertyTabPages, setting_up_selects_the_first_tab_and_tells_the_dialog_then_the_page) {
    Dialog dialog(calls, desk.frame);
    AddPages(dialog);
    dialog.Create();
    EXPECT_EQ((Calls{"after dialog 0", "after a"}), Asked());
    EXPECT_TRUE(a.GetHandle() != nullptr);
}

TEST_F(PropertyTabPages, setting_up_passes_over_tabs_that_are_disabled) {
    Dialog dialog(calls, desk.frame);
    dialog.Add("&A", &a, false);
    dialog.Add("&B", &b, true);
    dialog.Create();
    EXPECT_EQ(1, dialog.Strip().GetSelectedTab());
    EXPECT_EQ((Calls{"after dialog 1", "after b"}), Asked());
}

TEST_F(PropertyTabPages, without_an_enabled_tab_the_first_is_selected_and_nobody_told) {
    Dialog dialog(calls, desk.frame);
    dialog.Add("&A", &a, false);
    dialog.Create();
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(Asked().empty());
}

TEST_F(PropertyTabPages, a_change_asks_dialog_and_page_and_then_tells_them) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_TRUE(dialog.SelectTab(1));
    EXPECT_EQ((Calls{"leave dialog 1", "leave a", "after dialog 1", "after b"}), Asked());
    EXPECT_EQ(1, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(dialog.Strip().IsTabSelected(1));
    EXPECT_TRUE(b.IsWindowVisible());
    EXPECT_FALSE(a.IsWindowVisible());
}

TEST_F(PropertyTabPages, a_dialog_that_refuses_leaves_the_page_unasked_and_all_as_it_is) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    dialog.may_leave = false;
    EXPECT_FALSE(dialog.SelectTab(1));
    EXPECT_EQ((Calls{"leave dialog 1"}), Asked());
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(a.IsWindowVisible());
}

TEST_F(PropertyTabPages, a_page_that_refuses_stays) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    a.may_leave = false;
    EXPECT_FALSE(dialog.SelectTab(1));
    EXPECT_EQ((Calls{"leave dialog 1", "leave a"}), Asked());
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(a.IsWindowVisible());
}

TEST_F(PropertyTabPages, the_selected_tab_is_selected_again_without_questions_and_gets_the_focus) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    ::SetFocus(dialog.GetDlgItem(IDOK));
    EXPECT_TRUE(dialog.SelectTab(0));
    EXPECT_TRUE(Asked().empty());
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetFocus() == dialog.Strip().GetHandle(); }));
}

TEST_F(PropertyTabPages, minus_one_is_no_tab) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_FALSE(dialog.SelectTab(-1));
    EXPECT_TRUE(Asked().empty());
}

TEST_F(PropertyTabPages, a_subscript_that_has_no_tab_raises_the_range_error) {
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

// When windows of pages come and go

TEST_F(PropertyTabPages, all_pages_are_made_with_the_dialog_and_hidden_when_they_are_left) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    for (const Page* const page : {&a, &b, &c})
        EXPECT_TRUE(page->IsWindow());
    dialog.SelectTab(1);
    EXPECT_TRUE(a.IsWindow());
    dialog.SelectTab(0);
    EXPECT_TRUE(a.IsWindowVisible());
    EXPECT_EQ(1, a.setups);
}

TEST_F(PropertyTabPages, a_page_on_demand_exists_while_its_tab_is_selected_and_saves_when_it_is_left) {
    Dialog dialog(calls, desk.frame, Tab::CreateOnDemand);
    Open(dialog);
    EXPECT_TRUE(a.IsWindow());
    EXPECT_FALSE(b.IsWindow());
    EXPECT_TRUE(dialog.SelectTab(1));
    EXPECT_FALSE(a.IsWindow());
    EXPECT_TRUE(b.IsWindowVisible());
    EXPECT_EQ((Calls{"leave dialog 1", "leave a", "save a", "after dialog 1", "after b"}), Asked());
    dialog.SelectTab(0);
    EXPECT_EQ(2, a.setups);
}

TEST_F(PropertyTabPages, a_page_on_demand_is_left_even_if_it_cannot_save) {
    Dialog dialog(calls, desk.frame, Tab::CreateOnDemand);
    Open(dialog);
    a.saves = false;
    EXPECT_TRUE(dialog.SelectTab(1));
    EXPECT_FALSE(a.IsWindow());
}

TEST_F(PropertyTabPages, a_page_on_demand_comes_back_without_what_was_typed_into_it) {
    Dialog dialog(calls, desk.frame, Tab::CreateOnDemand);
    Open(dialog);
    a.SetDlgItemText(IDC_FIRST, "typed");
    dialog.SelectTab(1);
    dialog.SelectTab(0);
    EXPECT_EQ("", a.GetDlgItemText(IDC_FIRST));
}

TEST_F(PropertyTabPages, a_page_on_demand_comes_back_with_what_it_saved) {
    struct {
        char text[20] = "";
    } data;
    new owl::TEdit(&a, IDC_FIRST, sizeof data.text);
    a.SetTransferBuffer(&data, sizeof data);
    Dialog dialog(calls, desk.frame, Tab::CreateOnDemand);
    Open(dialog);
    a.SetDlgItemText(IDC_FIRST, "typed");
    dialog.SelectTab(1);
    EXPECT_STREQ("typed", data.text);
    dialog.SelectTab(0);
    EXPECT_EQ("typed", a.GetDlgItemText(IDC_FIRST));
}

TEST_F(PropertyTabPages, a_page_on_demand_that_is_kept_is_made_once_and_hidden) {
    Dialog dialog(calls, desk.frame, Tab::CreateOnDemandAndKeepIt);
    Open(dialog);
    EXPECT_FALSE(b.IsWindow());
    dialog.SelectTab(1);
    EXPECT_TRUE(a.IsWindow());
    EXPECT_FALSE(a.IsWindowVisible());
    dialog.SelectTab(0);
    EXPECT_EQ(1, a.setups);
    EXPECT_EQ((Calls{"leave dialog 1", "leave a", "after dialog 1", "after b", "leave dialog 0", "leave b",
                     "after dialog 0", "after a"}),
              Asked());
}

TEST_F(PropertyTabPages, pages_save_when_they_are_left_if_the_style_says_so) {
    for (const unsigned long creation : {0ul, static_cast<unsigned long>(Tab::CreateOnDemandAndKeepIt)}) {
        Dialog dialog(calls, desk.frame, creation | Tab::SaveOnClosePage);
        Open(dialog);
        a.saves = false;
        EXPECT_TRUE(dialog.SelectTab(1));
        EXPECT_EQ((Calls{"leave dialog 1", "leave a", "save a", "after dialog 1", "after b"}), Asked());
        EXPECT_TRUE(a.IsWindow());
    }
}

TEST_F(PropertyTabPages, a_page_on_demand_stands_where_pages_do) {
    Dialog dialog(calls, desk.frame, Tab::CreateOnDemand);
    Open(dialog);
    dialog.SelectTab(1);
    const owl::TRect strip = dialog.Strip().GetClientRect();
    owl::TRect place = b.GetWindowRect();
    ::MapWindowPoints(nullptr, dialog.Strip().GetHandle(), reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(owl::TRect(1, dialog.Strip().GetTabHeight() + 1, strip.right - 2, strip.bottom - 2), place);
}

// One page behind several tabs

TEST_F(PropertyTabPages, a_page_behind_two_tabs_stays_while_one_gives_way_to_the_other) {
    Dialog dialog(calls, desk.frame, Tab::AllowDupPages | Tab::CreateOnDemand);
    dialog.Add("&A", &a, true);
    dialog.Add("A &again", &a, true);
    Show(dialog);
    EXPECT_TRUE(dialog.SelectTab(1));
    EXPECT_EQ((Calls{"leave dialog 1", "leave a", "after dialog 1", "after a"}), Asked());
    EXPECT_TRUE(a.IsWindowVisible());
    EXPECT_EQ(1, a.setups);
    EXPECT_EQ(1, a.ThisTab());
}

TEST_F(PropertyTabPages, a_page_behind_two_tabs_is_made_once) {
    Dialog dialog(calls, desk.frame, Tab::AllowDupPages);
    dialog.Add("&A", &a, true);
    dialog.Add("&B", &b, true);
    dialog.Add("A &again", &a, true);
    Show(dialog);
    EXPECT_EQ(1, a.setups);
    dialog.SelectTab(1);
    dialog.SelectTab(2);
    EXPECT_TRUE(a.IsWindowVisible());
}

// The next tab

TEST_F(PropertyTabPages, the_next_tab_lies_around_the_ends) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_TRUE(dialog.SelectPrevious());
    EXPECT_EQ(2, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(dialog.SelectNext());
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
}

TEST_F(PropertyTabPages, the_next_tab_is_an_enabled_one) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    dialog.Strip().EnableTab(1, false);
    EXPECT_TRUE(dialog.SelectNext());
    EXPECT_EQ(2, dialog.Strip().GetSelectedTab());
}

TEST_F(PropertyTabPages, there_is_no_next_tab_if_it_is_refused_or_there_is_none) {
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

TEST_F(PropertyTabPages, a_key_selects_the_first_enabled_tab_that_has_it) {
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

TEST_F(PropertyTabPages, the_strip_has_the_focus_after_a_change) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    dialog.SelectTab(1);
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetFocus() == dialog.Strip().GetHandle(); }));
}

TEST_F(PropertyTabPages, the_first_control_has_the_focus_after_a_change_if_the_style_says_so) {
    Dialog dialog(calls, desk.frame, Tab::FocusOnFirstControl);
    Open(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    dialog.SelectTab(1);
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetFocus() == b.GetDlgItem(IDC_LIST); }));
    dialog.SelectTab(2);
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetFocus() == c.GetDlgItem(IDC_FIRST); }));
}

TEST_F(PropertyTabPages, a_page_without_controls_leaves_the_focus_to_the_strip) {
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

TEST_F(PropertyTabPages, the_first_control_is_the_first_tab_stop_of_the_selected_page) {
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

TEST_F(PropertyTabPages, a_message_that_deletes_the_dialog_during_a_change_ends_the_change) {
    doomed = new Dialog(calls, desk.frame);
    Open(*doomed);
    ::SetTimer(nullptr, 0, 10, &end_doomed);
    ::Sleep(60);
    EXPECT_TRUE(doomed->SelectTab(1));
    EXPECT_TRUE(doomed == nullptr);
    EXPECT_EQ((Calls{"leave dialog 1", "leave a"}), Asked());
}

}  // namespace
