#include <gtest/gtest.h>

#include <stdexcept>

#include "property_desk.h"

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

TEST_F(PropertyTabPages, a_page_that_is_added_to_an_open_dialog_gets_its_tab_and_its_window) {
    for (const Tab::Style style : {Tab::SingleHeight, Tab::CreateOnDemand}) {
        Page late(calls, "l");
        Dialog dialog(calls, desk.frame, style);
        dialog.Add("&A", &a, true);
        Show(dialog);
        dialog.Add("&Late", &late, true);
        EXPECT_EQ(style == Tab::SingleHeight, late.IsWindow());
        EXPECT_LT(0, dialog.Strip().GetTabWidth(1));
        EXPECT_TRUE(dialog.SelectTab(1));
        EXPECT_TRUE(late.IsWindowVisible());
        EXPECT_EQ(dialog.Strip().GetHandle(), ::GetParent(late.GetHandle()));
        dialog.CmCancel();
    }
}

// Closes its dialog while it is asked whether it may be left.
class Closing : public Page {
public:
    using Page::Page;
    bool BeforeLeaving() override {
        GetPropertyDialog()->Destroy(77);
        return true;
    }
};

TEST_F(PropertyTabPages, a_page_may_close_the_dialog_when_it_is_left) {
    Closing page(calls, "x");
    Dialog dialog(calls, desk.frame);
    dialog.Add("&X", &page, true);
    dialog.Add("&A", &a, true);
    Show(dialog);
    EXPECT_FALSE(dialog.SelectTab(1));
    EXPECT_EQ(77, dialog.result);
    EXPECT_EQ(Calls{"leave dialog 1"}, Asked());
}

// Closes its dialog while it is asked whether all may be closed.
class ClosingAtTheEnd : public Page {
public:
    using Page::Page;
    bool CanPageClose() override {
        GetPropertyDialog()->Destroy(77);
        return true;
    }
};

TEST_F(PropertyTabPages, a_page_may_close_the_dialog_when_all_is_to_be_closed) {
    ClosingAtTheEnd page(calls, "x");
    Dialog dialog(calls, desk.frame);
    dialog.Add("&X", &page, true);
    Show(dialog);
    dialog.HandleMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(77, dialog.result);
}

// Closes its dialog while it is left and saved.
class ClosingWhenSaved : public Page {
public:
    using Page::Page;
    bool SaveData() override {
        GetPropertyDialog()->Destroy(77);
        return true;
    }
};

TEST_F(PropertyTabPages, a_page_may_close_the_dialog_when_it_is_saved_on_leaving) {
    ClosingWhenSaved page(calls, "x");
    Dialog dialog(calls, desk.frame, Tab::SaveOnClosePage);
    dialog.Add("&X", &page, true);
    dialog.Add("&A", &a, true);
    Show(dialog);
    dialog.SelectTab(1);
    EXPECT_EQ(77, dialog.result);
}

// Cannot be set up.
class Broken : public Page {
public:
    using Page::Page;
    void SetupWindow() override { throw std::length_error("setup"); }
};

TEST_F(PropertyTabPages, a_page_that_cannot_be_set_up_leaves_no_dialog_and_no_hook) {
    Broken page(calls, "x");
    {
        Dialog dialog(calls, desk.frame);
        dialog.Add("&A", &a, true);
        dialog.Add("&X", &page, true);
        EXPECT_THROW(dialog.Create(), std::length_error);
        EXPECT_FALSE(dialog.IsWindow());
        EXPECT_FALSE(a.IsWindow());
        EXPECT_TRUE(lvx::propdlg::shared_state().PropertyTabs.IsEmpty());
    }
    EXPECT_TRUE(lvx::propdlg::shared_state().HookHandle == nullptr);
}

}  // namespace
