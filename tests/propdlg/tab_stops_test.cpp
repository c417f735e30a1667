#include "lvx/propdlg/tab_stops.h"

#include <gtest/gtest.h>

#include "property_desk.h"

namespace {

using lvx::propdlg::find_focus_owner;
using lvx::propdlg::first_tab_stop;
using lvx::propdlg::last_tab_stop;
using lvx::propdlg::take_tab_key;
using propdlg_test::Dialog;
using propdlg_test::Page;
using propdlg_test::PropertyDesk;

struct TabStops : PropertyDesk {};

TEST_F(TabStops, first_and_last_are_those_of_the_tab_key) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_EQ(a.GetDlgItem(IDC_FIRST), first_tab_stop(a.GetHandle()));
    EXPECT_EQ(a.GetDlgItem(IDC_LAST), last_tab_stop(a.GetHandle()));
}

TEST_F(TabStops, a_control_that_is_disabled_is_no_tab_stop) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    ::EnableWindow(a.GetDlgItem(IDC_LAST), FALSE);
    EXPECT_EQ(a.GetDlgItem(IDC_SECOND), last_tab_stop(a.GetHandle()));
}

TEST_F(TabStops, a_window_without_controls_has_none) {
    Page nothing(calls, "n", IDD_NOTHING);
    Dialog dialog(calls, desk.frame);
    dialog.Add("&N", &nothing, true);
    Show(dialog);
    EXPECT_TRUE(first_tab_stop(nothing.GetHandle()) == nullptr);
    EXPECT_TRUE(last_tab_stop(nothing.GetHandle()) == nullptr);
    EXPECT_TRUE(first_tab_stop(nullptr) == nullptr);
}

TEST_F(TabStops, the_owner_of_the_focus_is_the_page_or_the_dialog) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    ::SetFocus(a.GetDlgItem(IDC_FIRST));
    EXPECT_EQ(static_cast<owl::TWindow*>(&a), find_focus_owner().window);
    ::SetFocus(dialog.GetDlgItem(IDOK));
    EXPECT_EQ(static_cast<owl::TWindow*>(&dialog), find_focus_owner().window);
    EXPECT_EQ(dialog.GetDlgItem(IDOK), find_focus_owner().focus);
}

TEST_F(TabStops, the_field_of_a_combo_box_counts_as_the_box) {
    for (const bool hasObject : {false, true}) {
        Page page(calls, "p", IDD_LIST);
        if (hasObject)
            new owl::TComboBox(&page, IDC_COMBO, 10);
        Dialog dialog(calls, desk.frame);
        dialog.Add("&P", &page, true);
        Show(dialog);
        ASSERT_TRUE(desk::Activate(dialog));
        ::SetFocus(::GetWindow(page.GetDlgItem(IDC_COMBO), GW_CHILD));
        const auto owner = find_focus_owner();
        EXPECT_EQ(page.GetDlgItem(IDC_COMBO), owner.focus);
        EXPECT_EQ(static_cast<owl::TWindow*>(&page), owner.window);
        dialog.CmCancel();
    }
}

TEST_F(TabStops, a_window_of_another_kind_owns_no_focus_of_ours) {
    desk.frame->ShowWindow(SW_SHOW);
    ASSERT_TRUE(desk::Activate(*desk.frame));
    EXPECT_TRUE(find_focus_owner().window == nullptr);
    EXPECT_FALSE(take_tab_key(find_focus_owner(), true));
}

TEST_F(TabStops, inside_of_a_page_the_dialog_manager_does_the_work) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_FALSE(take_tab_key({a.GetDlgItem(IDC_FIRST), &a}, true));
    EXPECT_TRUE(take_tab_key({a.GetDlgItem(IDC_LAST), &a}, true));
    EXPECT_FALSE(take_tab_key({a.GetDlgItem(IDC_SECOND), &a}, false));
    EXPECT_TRUE(take_tab_key({a.GetDlgItem(IDC_FIRST), &a}, false));
}

TEST_F(TabStops, among_the_buttons_the_dialog_manager_does_the_work) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_FALSE(take_tab_key({dialog.GetDlgItem(IDOK), &dialog}, true));
    EXPECT_TRUE(take_tab_key({dialog.GetDlgItem(IDOK), &dialog}, false));
    EXPECT_FALSE(take_tab_key({dialog.GetDlgItem(IDCANCEL), &dialog}, true));
    EXPECT_TRUE(take_tab_key({dialog.Strip().GetHandle(), &dialog}, true));
    EXPECT_FALSE(take_tab_key({dialog.Strip().GetHandle(), &dialog}, false));
}

TEST_F(TabStops, a_page_without_tab_stops_is_passed_over) {
    Page nothing(calls, "n", IDD_NOTHING);
    Dialog dialog(calls, desk.frame);
    dialog.Add("&N", &nothing, true);
    Show(dialog);
    EXPECT_FALSE(take_tab_key({dialog.Strip().GetHandle(), &dialog}, true));
}

TEST_F(TabStops, a_dialog_without_a_strip_has_nothing_to_take) {
    Dialog dialog(calls, desk.frame);
    Show(dialog);
    EXPECT_FALSE(take_tab_key({dialog.GetDlgItem(IDOK), &dialog}, true));
}

}  // namespace
