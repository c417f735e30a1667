#include "lvx/propdlg/property_page.h"

#include <gtest/gtest.h>

#include "property_desk.h"
#include "tests/owl/desk_user.h"

namespace {

using propdlg_test::Calls;
using propdlg_test::Dialog;
using propdlg_test::Page;
using propdlg_test::PropertyDesk;

struct PropertyPages : PropertyDesk {};

TEST_F(PropertyPages, by_itself_a_page_agrees_to_everything_and_saves_its_controls) {
    struct {
        char text[20] = "";
    } data;
    LVXPropertyPage page(IDD_FIELDS, nullptr);
    new owl::TEdit(&page, IDC_FIRST, sizeof data.text);
    page.SetTransferBuffer(&data, sizeof data);
    Dialog dialog(calls, desk.frame);
    dialog.Add("&P", &page, true);
    dialog.Add("&A", &a, true);
    Show(dialog);
    EXPECT_TRUE(page.BeforeLeaving());
    EXPECT_TRUE(page.CanPageClose());
    owl::TPoint point;
    page.OnRightClick(0, point);
    page.AfterSelected();
    page.SetDlgItemText(IDC_FIRST, "kept");
    EXPECT_TRUE(page.SaveData());
    EXPECT_STREQ("kept", data.text);
    dialog.SelectTab(1);
    page.AfterCantClose();
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
}

TEST_F(PropertyPages, a_page_goes_by_its_own_tab_unless_another_is_named) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_TRUE(b.SelectTab(-1));
    EXPECT_EQ(1, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(b.SelectTab(2));
    EXPECT_TRUE(b.SelectPrevious());
    EXPECT_TRUE(b.SelectNext());
    EXPECT_EQ(2, dialog.Strip().GetSelectedTab());
    b.SetTabText(-1, "own");
    b.SetTabText(0, nullptr);
    EXPECT_EQ("own", b.GetTabText(-1));
    EXPECT_EQ("", b.GetTabText(0));
    b.EnableTab(-1, false);
    EXPECT_FALSE(b.IsTabEnabled(-1));
    EXPECT_TRUE(b.IsTabEnabled(0));
}

TEST_F(PropertyPages, a_page_without_a_strip_does_nothing) {
    LVXPropertyPage page(IDD_FIELDS, nullptr);
    EXPECT_EQ(-1, page.ThisTab());
    EXPECT_TRUE(page.GetPropertyDialog() == nullptr);
    EXPECT_TRUE(page.GetParentWindow() == nullptr);
    EXPECT_FALSE(page.SelectTab(-1));
    EXPECT_FALSE(page.SelectNext());
    EXPECT_FALSE(page.SelectPrevious());
    EXPECT_FALSE(page.IsTabEnabled(-1));
    EXPECT_EQ("", page.GetTabText(-1));
    page.EnableTab(-1, true);
    page.SetTabText(-1, "text");
    page.AfterCantClose();
    EXPECT_FALSE(page.CheckHotKey(nullptr));
}

TEST_F(PropertyPages, the_dialog_is_the_parent_until_the_strip_is_set_up) {
    Dialog dialog(calls, desk.frame);
    LVXPropertyPage page(&dialog, IDD_FIELDS, nullptr);
    EXPECT_EQ(static_cast<owl::TWindow*>(&dialog), page.Parent);
    dialog.Add("&P", &page, true);
    Show(dialog);
    EXPECT_EQ(static_cast<owl::TWindow*>(&dialog.Strip()), page.Parent);
    EXPECT_EQ(dialog.Strip().GetHandle(), ::GetParent(page.GetHandle()));
    dialog.CmCancel();
}

TEST_F(PropertyPages, a_message_box_stands_above_the_nearest_framed_window) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_EQ(static_cast<owl::TWindow*>(&dialog), a.GetParentWindow());
    auto* const child = new Dialog(calls, desk.frame, Tab::SingleHeight, IDD_CHILD);
    Page page(calls, "p");
    child->Add("&P", &page, true);
    child->Create();
    EXPECT_EQ(static_cast<owl::TWindow*>(desk.frame), page.GetParentWindow());
    child->CmCancel();
    delete child;
    int result = 0;
    desk.frame->ShowWindow(SW_SHOW);
    {
        const desk::User user([&] {
            const HWND box = user::WaitForShown(user::dialog_class, "Question");
            EXPECT_EQ(dialog.GetHandle(), ::GetWindow(box, GW_OWNER));
            EXPECT_TRUE(user::WaitUntilInFront(box));
            user::Press({VK_RETURN});
        });
        result = a.MessageBox("Really?", "Question", MB_OK);
    }
    EXPECT_EQ(IDOK, result);
}

TEST_F(PropertyPages, a_page_that_goes_before_its_dialog_leaves_its_tab_without_a_page) {
    Dialog dialog(calls, desk.frame, Tab::CreateOnDemandAndKeepIt);
    auto* const early = new Page(calls, "e");
    dialog.Add("&E", early, true);
    dialog.Add("&A", &a, true);
    Show(dialog);
    delete early;
    EXPECT_TRUE(dialog.GetPageRef(0) == nullptr);
    EXPECT_TRUE(dialog.SelectTab(1));
    EXPECT_TRUE(dialog.SelectTab(0));
    EXPECT_TRUE(dialog.Strip().GetFirstControl() == nullptr);
    dialog.SendMessage(WM_COMMAND, CM_PAGE);
    dialog.SendMessage(WM_SYSCOMMAND, SC_KEYMENU, 'q');
    EXPECT_EQ(0, dialog.SendMsgToEachPage(WM_NULL, 0, 0));
    dialog.CmOk();
    EXPECT_EQ(IDOK, dialog.result);
}

TEST_F(PropertyPages, a_page_knows_its_dialog_no_more_when_that_has_gone) {
    {
        Dialog dialog(calls, desk.frame);
        Open(dialog);
        dialog.CmCancel();
    }
    EXPECT_TRUE(a.GetPropertyDialog() == nullptr);
    Dialog next(calls, desk.frame);
    Open(next);
    EXPECT_EQ(&next, a.GetPropertyDialog());
}

TEST_F(PropertyPages, a_page_knows_its_tab_before_the_dialog_is_set_up) {
    Dialog dialog(calls, desk.frame);
    AddPages(dialog);
    EXPECT_EQ("&B", b.GetTabText(-1));
    b.SetTabText(-1, "&Renamed");
    b.EnableTab(0, false);
    Show(dialog);
    EXPECT_EQ("&Renamed", dialog.Strip().GetTabText(1));
    EXPECT_EQ(1, dialog.Strip().GetSelectedTab());
}

// A page that answers OK itself, and then hands it on.
class Answering : public Page {
public:
    using Page::Page;
    void CmOk() {
        ++answered;
        Page::CmOk();
    }
    int answered = 0;

    DECLARE_RESPONSE_TABLE(Answering);
};

DEFINE_RESPONSE_TABLE1(Answering, Page)
    EV_COMMAND(IDOK, CmOk),
END_RESPONSE_TABLE;

TEST_F(PropertyPages, a_page_that_answers_ok_itself_can_hand_it_on_to_the_dialog) {
    Answering page(calls, "o");
    Dialog dialog(calls, desk.frame);
    dialog.Add("&O", &page, true);
    Show(dialog);
    // The page is asked first, but not again for what it hands on.
    dialog.SendMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(1, page.answered);
    EXPECT_EQ(IDOK, dialog.result);
}

}  // namespace
