#include <gtest/gtest.h>

#include "property_desk.h"

namespace {

using propdlg_test::Calls;
using propdlg_test::Dialog;
using propdlg_test::Page;
using propdlg_test::PropertyDesk;

/// A dialog with members that pages can be walked by.
class Walker : public Dialog {
public:
    using Dialog::Dialog;
    bool IsWanted(LVXPropertyPage* page, void* wanted) { return page == wanted; }
    void Count(LVXPropertyPage* page, void* count) {
        if (page->GetPropertyDialog() == this)
            ++*static_cast<int*>(count);
    }
};

struct PropertyDialogPages : PropertyDesk {};

TEST_F(PropertyDialogPages, pages_are_found_by_their_tabs) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_EQ(3, dialog.GetEntryCount());
    EXPECT_EQ(&a, dialog.GetPageRef(-1));
    EXPECT_EQ(&c, dialog.GetPageRef(2));
    dialog.SelectTab(1);
    EXPECT_EQ(&b, dialog.GetPageRef(-1));
    EXPECT_EQ(1, b.ThisTab());
    EXPECT_EQ(&dialog, b.GetPropertyDialog());
}

TEST_F(PropertyDialogPages, the_first_page_is_found_that_passes_a_test) {
    Walker dialog(calls, desk.frame);
    Open(dialog);
    const auto isB = [](LVXPropertyPage* page, void* wanted) { return page == wanted; };
    EXPECT_EQ(&b, dialog.FirstPageThat(isB, static_cast<LVXPropertyPage*>(&b)));
    EXPECT_TRUE(dialog.FirstPageThat(isB, nullptr) == nullptr);
    const auto member = static_cast<TPropertyDialog::PageTestMember>(&Walker::IsWanted);
    EXPECT_EQ(&c, dialog.FirstPageThat(member, static_cast<LVXPropertyPage*>(&c)));
    EXPECT_TRUE(dialog.FirstPageThat(member, nullptr) == nullptr);
}

TEST_F(PropertyDialogPages, all_pages_are_walked_in_order) {
    Walker dialog(calls, desk.frame);
    Open(dialog);
    std::vector<LVXPropertyPage*> seen;
    dialog.ForEachPage([](LVXPropertyPage* page,
                          void* list) { static_cast<std::vector<LVXPropertyPage*>*>(list)->push_back(page); },
                       &seen);
    EXPECT_EQ((std::vector<LVXPropertyPage*>{&a, &b, &c}), seen);
    int count = 0;
    dialog.ForEachPage(static_cast<TPropertyDialog::PageActionMember>(&Walker::Count), &count);
    EXPECT_EQ(3, count);
}

TEST_F(PropertyDialogPages, a_message_goes_to_each_page_and_the_last_answer_comes_back) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    a.SetWindowText("x");
    c.SetWindowText("four");
    EXPECT_EQ(4, dialog.SendMsgToEachPage(WM_GETTEXTLENGTH, 0, 0));
    Dialog none(calls, desk.frame);
    EXPECT_EQ(0, none.SendMsgToEachPage(WM_GETTEXTLENGTH, 0, 0));
}

TEST_F(PropertyDialogPages, the_strip_stands_in_front_of_the_buttons_or_behind_one) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_EQ(dialog.Strip().GetHandle(), ::GetWindow(dialog.GetHandle(), GW_CHILD));
    dialog.MoveTabsAfterControl(dialog.GetDlgItem(IDOK), false);
    EXPECT_EQ(dialog.Strip().GetHandle(), ::GetWindow(dialog.GetDlgItem(IDOK), GW_HWNDNEXT));
    EXPECT_EQ(dialog.GetDlgItem(IDCANCEL), ::GetWindow(dialog.Strip().GetHandle(), GW_HWNDNEXT));
    dialog.MoveTabsAfterControl(nullptr);
    EXPECT_EQ(dialog.Strip().GetHandle(), ::GetWindow(dialog.GetHandle(), GW_CHILD));
}

TEST_F(PropertyDialogPages, moving_the_strip_with_the_focus_goes_to_the_first_tab_stop) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    dialog.MoveTabsAfterControl(dialog.GetDlgItem(IDOK), true);
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetFocus() == dialog.GetDlgItem(IDOK); }));
}

TEST_F(PropertyDialogPages, widths_and_colours_go_to_the_strip) {
    Dialog dialog(calls, desk.frame, Tab::WideMargins);
    Open(dialog);
    dialog.SetFixedTabWidth(90);
    EXPECT_EQ(90, dialog.Strip().GetTabWidth(0));
    dialog.SetFixedTabWidth(0);
    EXPECT_EQ(64, dialog.Strip().GetTabWidth(0));
    dialog.SetWideMarginWidth(100);
    EXPECT_LT(200, dialog.Strip().GetTabWidth(0));
}

}  // namespace
