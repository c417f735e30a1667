#include "lvx/propdlg/property_page.h"

#include <gtest/gtest.h>

#include "property_desk.h"
#include "tests/owl/desk_user.h"

namespace {

using propdlg_test::Calls;
using propdlg_test::Dialog;
using propdlg_test::Page;
using propdlg_test::PropertyDesk;

struct PropertyPages : PropertyDesk {
    static void Hold(std::initializer_list<int> keys) {
        BYTE state[256] = {};
        for (const int key : keys)
            state[key] = 0x80;
        ::SetKeyboardState(state);
    }
    ~PropertyPages() override { Hold({}); }
};

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

TEST_F(PropertyPages, a_hot_key_selects_a_tab_before_a_control) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    Hold({VK_MENU, 'B'});
    EXPECT_TRUE(a.CheckHotKey(nullptr));
    EXPECT_EQ(1, dialog.Strip().GetSelectedTab());
    // The box of that page has the same key.
    EXPECT_TRUE(b.CheckHotKey(nullptr));
    EXPECT_EQ(0u, b.IsDlgButtonChecked(IDC_BOX));
}

TEST_F(PropertyPages, a_hot_key_clicks_at_a_control_of_the_page_or_of_the_dialog) {
    Dialog dialog(calls, desk.frame, Tab::SingleHeight, IDD_BARE);
    Open(dialog);
    Hold({VK_MENU, 'L'});
    EXPECT_TRUE(a.CheckHotKey(nullptr));
    EXPECT_EQ(1u, a.IsDlgButtonChecked(IDC_LAST));
    EXPECT_FALSE(a.CheckHotKey(&dialog));
    Hold({VK_MENU, 'X'});
    EXPECT_FALSE(a.CheckHotKey(nullptr));
    EXPECT_TRUE(a.CheckHotKey(&dialog));
    EXPECT_EQ(1u, dialog.IsDlgButtonChecked(IDC_EXTRA));
}

TEST_F(PropertyPages, the_hot_key_of_a_label_reaches_the_field_behind_it) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    a.SetDlgItemText(IDC_SECOND, "text");
    Hold({VK_MENU, 'S'});
    EXPECT_TRUE(a.CheckHotKey(nullptr));
    EXPECT_EQ(a.GetDlgItem(IDC_SECOND), ::GetFocus());
    Pump();
    EXPECT_EQ(MAKELRESULT(0, 4), a.SendDlgItemMessage(IDC_SECOND, EM_GETSEL));
}

TEST_F(PropertyPages, a_disabled_control_and_an_unknown_key_are_not_clicked_at) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    ::EnableWindow(a.GetDlgItem(IDC_LAST), FALSE);
    Hold({VK_MENU, 'L'});
    EXPECT_FALSE(a.CheckHotKey(nullptr));
    Hold({VK_MENU, 'Q'});
    EXPECT_FALSE(a.CheckHotKey(nullptr));
    Hold({VK_MENU});
    EXPECT_FALSE(a.CheckHotKey(nullptr));
}

TEST_F(PropertyPages, the_menu_key_asks_for_a_hot_key) {
    Dialog dialog(calls, desk.frame, Tab::SingleHeight, IDD_BARE);
    Open(dialog);
    Hold({VK_MENU, 'C'});
    dialog.SendMessage(WM_SYSCOMMAND, SC_KEYMENU, 'c');
    EXPECT_EQ(2, dialog.Strip().GetSelectedTab());
    Hold({VK_MENU, 'X'});
    c.SendMessage(WM_SYSCOMMAND, SC_KEYMENU, 'x');
    EXPECT_EQ(1u, dialog.IsDlgButtonChecked(IDC_EXTRA));
}

}  // namespace
