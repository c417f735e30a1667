#include <gtest/gtest.h>

#include "property_desk.h"

namespace {

using propdlg_test::Calls;
using propdlg_test::Dialog;
using propdlg_test::Page;
using propdlg_test::PropertyDesk;

struct PropertyPageKeys : PropertyDesk {
    static void Hold(std::initializer_list<int> keys) {
        BYTE state[256] = {};
        for (const int key : keys)
            state[key] = 0x80;
        ::SetKeyboardState(state);
    }
    ~PropertyPageKeys() override { Hold({}); }
};

TEST_F(PropertyPageKeys, a_hot_key_selects_a_tab_before_a_control) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    Hold({VK_MENU, 'B'});
    EXPECT_TRUE(a.CheckHotKey(nullptr));
    EXPECT_EQ(1, dialog.Strip().GetSelectedTab());
    // The box of that page has the same key.
    EXPECT_TRUE(b.CheckHotKey(nullptr));
    EXPECT_EQ(0u, b.IsDlgButtonChecked(IDC_BOX));
}

TEST_F(PropertyPageKeys, a_hot_key_clicks_at_a_control_of_the_page_or_of_the_dialog) {
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

TEST_F(PropertyPageKeys, the_hot_key_of_a_label_reaches_the_field_behind_it) {
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

TEST_F(PropertyPageKeys, a_disabled_control_and_an_unknown_key_are_not_clicked_at) {
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

TEST_F(PropertyPageKeys, the_menu_key_asks_for_a_hot_key) {
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
