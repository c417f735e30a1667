#include <gtest/gtest.h>

#include <stdexcept>

#include "property_desk.h"
#include "tests/owl/desk_user.h"

namespace {

using propdlg_test::Calls;
using propdlg_test::Dialog;
using propdlg_test::Page;
using propdlg_test::PropertyDesk;

// Real keys on a dialog that is in front.
struct KeyboardHook : PropertyDesk {
    void OpenInFront(Dialog& dialog) {
        Open(dialog);
        ASSERT_TRUE(desk::Activate(dialog));
        ASSERT_TRUE(HasFocus(dialog.Strip().GetHandle()));
    }
    static bool HasFocus(HWND window) {
        return desk::PumpUntil([&] { return ::GetFocus() == window; }, 3000);
    }
    static void Focus(HWND window) {
        ::SetFocus(window);
        Pump();
    }
    static bool IsSelected(const Dialog& dialog, int tab) {
        return desk::PumpUntil([&] { return dialog.Strip().GetSelectedTab() == tab; }, 3000);
    }
    /// Handles what a key may lead to, for a while.
    static void Settle() {
        desk::PumpUntil([] { return false; }, 200);
    }
};

TEST_F(KeyboardHook, tab_goes_from_the_strip_through_the_page_to_the_buttons_and_around) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    for (const HWND control :
         {a.GetDlgItem(IDC_FIRST), a.GetDlgItem(IDC_SECOND), a.GetDlgItem(IDC_LAST), dialog.GetDlgItem(IDOK),
          dialog.GetDlgItem(IDCANCEL), dialog.Strip().GetHandle()}) {
        desk::Press({VK_TAB});
        EXPECT_TRUE(HasFocus(control)) << ::GetDlgCtrlID(control);
    }
}

TEST_F(KeyboardHook, shift_and_tab_go_the_other_way) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    for (const HWND control :
         {dialog.GetDlgItem(IDCANCEL), dialog.GetDlgItem(IDOK), a.GetDlgItem(IDC_LAST),
          a.GetDlgItem(IDC_SECOND), a.GetDlgItem(IDC_FIRST), dialog.Strip().GetHandle()}) {
        desk::Press({VK_SHIFT, VK_TAB});
        EXPECT_TRUE(HasFocus(control)) << ::GetDlgCtrlID(control);
    }
}

TEST_F(KeyboardHook, a_field_that_tab_comes_to_has_its_text_selected) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    a.SetDlgItemText(IDC_FIRST, "text");
    desk::Press({VK_TAB});
    ASSERT_TRUE(HasFocus(a.GetDlgItem(IDC_FIRST)));
    Settle();
    EXPECT_EQ(MAKELRESULT(0, 4), a.SendDlgItemMessage(IDC_FIRST, EM_GETSEL));
}

TEST_F(KeyboardHook, tab_leaves_a_field_of_a_combo_box_as_the_box) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    dialog.SelectTab(1);
    Focus(b.GetDlgItem(IDC_LIST));
    desk::Press({VK_TAB});
    const HWND combo = b.GetDlgItem(IDC_COMBO);
    ASSERT_TRUE(desk::PumpUntil([&] { return ::GetParent(::GetFocus()) == combo || ::GetFocus() == combo; }));
    desk::Press({VK_TAB});
    EXPECT_TRUE(HasFocus(b.GetDlgItem(IDC_BOX)));
}

TEST_F(KeyboardHook, control_and_page_keys_go_from_tab_to_tab_and_around_the_ends) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    Focus(a.GetDlgItem(IDC_FIRST));
    desk::Press({VK_CONTROL, VK_NEXT});
    EXPECT_TRUE(IsSelected(dialog, 1));
    desk::Press({VK_CONTROL, VK_NEXT});
    EXPECT_TRUE(IsSelected(dialog, 2));
    desk::Press({VK_CONTROL, VK_NEXT});
    EXPECT_TRUE(IsSelected(dialog, 0));
    desk::Press({VK_CONTROL, VK_PRIOR});
    EXPECT_TRUE(IsSelected(dialog, 2));
}

TEST_F(KeyboardHook, control_and_page_keys_work_from_a_button_of_the_dialog) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    Focus(dialog.GetDlgItem(IDCANCEL));
    desk::Press({VK_CONTROL, VK_NEXT});
    EXPECT_TRUE(IsSelected(dialog, 1));
}

TEST_F(KeyboardHook, control_and_a_page_key_change_one_tab_at_a_time) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    desk::Press({VK_CONTROL, VK_NEXT});
    Settle();
    EXPECT_EQ(1, dialog.Strip().GetSelectedTab());
}

TEST_F(KeyboardHook, arrows_and_page_keys_on_the_strip_go_from_tab_to_tab) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    const struct {
        WORD key;
        int tab;
    } steps[] = {{VK_RIGHT, 1}, {VK_DOWN, 2}, {VK_NEXT, 0}, {VK_LEFT, 2}, {VK_UP, 1}, {VK_PRIOR, 0}};
    for (const auto& step : steps) {
        desk::Press({step.key});
        EXPECT_TRUE(IsSelected(dialog, step.tab)) << step.key;
        EXPECT_TRUE(HasFocus(dialog.Strip().GetHandle()));
    }
}

TEST_F(KeyboardHook, escape_in_an_edit_field_cancels_the_dialog) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    Focus(a.GetDlgItem(IDC_FIRST));
    desk::Press({VK_ESCAPE});
    EXPECT_TRUE(desk::PumpUntil([&] { return !dialog.IsWindow(); }));
    EXPECT_EQ(IDCANCEL, dialog.result);
}

TEST_F(KeyboardHook, escape_in_a_field_of_several_lines_cancels_the_dialog_and_not_the_page_alone) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    dialog.SelectTab(1);
    Focus(b.GetDlgItem(IDC_LINES));
    desk::Press({VK_ESCAPE});
    EXPECT_TRUE(desk::PumpUntil([&] { return !dialog.IsWindow(); }));
    EXPECT_EQ(IDCANCEL, dialog.result);
}

TEST_F(KeyboardHook, escape_in_a_list_or_a_box_does_nothing) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    dialog.SelectTab(1);
    for (const int control : {IDC_LIST, IDC_BOX}) {
        Focus(b.GetDlgItem(control));
        desk::Press({VK_ESCAPE});
        Settle();
        EXPECT_TRUE(dialog.IsWindow());
        EXPECT_TRUE(b.IsWindow());
    }
}

TEST_F(KeyboardHook, alt_and_a_letter_select_the_tab_from_a_control_of_the_page) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    Focus(a.GetDlgItem(IDC_FIRST));
    desk::Press({VK_MENU, 'B'});
    EXPECT_TRUE(IsSelected(dialog, 1));
}

TEST_F(KeyboardHook, alt_and_a_letter_select_the_tab_from_the_strip_and_from_a_button) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    desk::Press({VK_MENU, 'C'});
    EXPECT_TRUE(IsSelected(dialog, 2));
    Focus(dialog.GetDlgItem(IDOK));
    desk::Press({VK_MENU, 'B'});
    EXPECT_TRUE(IsSelected(dialog, 1));
}

TEST_F(KeyboardHook, alt_and_the_letter_of_a_label_go_to_its_field_from_the_strip) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    desk::Press({VK_MENU, 'S'});
    EXPECT_TRUE(HasFocus(a.GetDlgItem(IDC_SECOND)));
}

TEST_F(KeyboardHook, alt_and_the_letter_of_a_control_of_the_dialog_work_from_the_page) {
    Dialog dialog(calls, desk.frame, Tab::SingleHeight, IDD_BARE);
    OpenInFront(dialog);
    Focus(a.GetDlgItem(IDC_FIRST));
    desk::Press({VK_MENU, 'X'});
    EXPECT_TRUE(desk::PumpUntil([&] { return dialog.IsDlgButtonChecked(IDC_EXTRA) == BST_CHECKED; }, 3000));
}

TEST_F(KeyboardHook, enter_in_a_field_is_ok) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    Focus(a.GetDlgItem(IDC_FIRST));
    desk::Press({VK_RETURN});
    EXPECT_TRUE(desk::PumpUntil([&] { return !dialog.IsWindow(); }));
    EXPECT_EQ(IDOK, dialog.result);
}

TEST_F(KeyboardHook, other_windows_keep_their_tab_key) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    desk.frame->ShowWindow(SW_SHOW);
    ASSERT_TRUE(desk::Activate(*desk.frame));
    desk::Press({VK_TAB});
    desk::Press({VK_CONTROL, VK_NEXT});
    Settle();
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(::GetForegroundWindow() == desk.frame->GetHandle());
}

// A page that throws when it is left.
class Throwing : public propdlg_test::Page {
public:
    using Page::Page;
    bool BeforeLeaving() override { throw std::length_error("left"); }
};

TEST_F(KeyboardHook, what_a_page_throws_comes_out_of_the_loop_and_not_of_the_hook) {
    Throwing page(calls, "t");
    Dialog dialog(calls, desk.frame);
    dialog.Add("&T", &page, true);
    dialog.Add("&A", &a, true);
    Show(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    desk::Press({VK_CONTROL, VK_NEXT});
    EXPECT_THROW(desk::PumpUntil([] { return false; }, 3000), std::length_error);
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
    Settle();
    // And the next key is one again.
    dialog.SelectTab(0);
    EXPECT_FALSE(lvx::propdlg::shared_state().Step.key.isUnderWay());
}

// A page that asks the user, in a box with a loop of its own, when it is left.
class Asking : public propdlg_test::Page {
public:
    using Page::Page;
    bool BeforeLeaving() override {
        ++asked;
        return MessageBox("Really?", "Question", MB_YESNO) == IDYES;
    }
    int asked = 0;
};

TEST_F(KeyboardHook, a_page_may_ask_the_user_when_it_is_left_by_a_key) {
    Asking page(calls, "q");
    Dialog dialog(calls, desk.frame);
    dialog.Add("&Q", &page, true);
    dialog.Add("&A", &a, true);
    Show(dialog);
    ASSERT_TRUE(desk::Activate(dialog));
    {
        const desk::User user([&] {
            user::Press({VK_CONTROL, VK_NEXT});
            const HWND box = user::WaitForShown(user::dialog_class, "Question");
            EXPECT_TRUE(user::WaitUntilInFront(box));
            user::Press({VK_TAB});
            user::Press({VK_RETURN});
            EXPECT_TRUE(user::WaitUntil([&] { return !::IsWindow(box); }));
        });
        EXPECT_TRUE(desk::PumpUntil([&] { return page.asked == 1 && dialog.IsWindowEnabled(); }));
        Settle();
    }
    EXPECT_EQ(1, page.asked);
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
}

TEST_F(KeyboardHook, keys_that_come_while_the_tab_changes_wait_for_their_turn) {
    Dialog dialog(calls, desk.frame, Tab::CreateOnDemand);
    OpenInFront(dialog);
    Focus(a.GetDlgItem(IDC_FIRST));
    desk::Press({VK_CONTROL, VK_NEXT});
    desk::Press({VK_CONTROL, VK_NEXT});
    EXPECT_TRUE(IsSelected(dialog, 2));
    for (const WORD key : std::initializer_list<WORD>{VK_NEXT, VK_NEXT, VK_NEXT, VK_PRIOR})
        desk::Press({VK_CONTROL, key});
    EXPECT_TRUE(IsSelected(dialog, 1));
    Settle();
    EXPECT_EQ(1, dialog.Strip().GetSelectedTab());
}

TEST_F(KeyboardHook, a_key_that_is_just_held_down_does_not_pile_up_steps) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    desk::Press({VK_CONTROL, VK_NEXT, VK_NEXT});
    Settle();
    EXPECT_EQ(1, dialog.Strip().GetSelectedTab());
}

TEST_F(KeyboardHook, escape_closes_a_list_that_has_dropped_down_and_no_more) {
    Page page(calls, "p", IDD_LIST);
    Dialog dialog(calls, desk.frame);
    dialog.Add("&P", &page, true);
    OpenInFront(dialog);
    const HWND list = page.GetDlgItem(IDC_CHOICE);
    Focus(list);
    ::SendMessageA(list, CB_SHOWDROPDOWN, TRUE, 0);
    desk::Press({VK_ESCAPE});
    EXPECT_TRUE(desk::PumpUntil([&] { return ::SendMessageA(list, CB_GETDROPPEDSTATE, 0, 0) == 0; }));
    Settle();
    EXPECT_TRUE(dialog.IsWindow());
}

TEST_F(KeyboardHook, escape_on_the_strip_and_on_a_button_cancels_the_dialog) {
    for (const int control : {0, IDOK}) {
        Dialog dialog(calls, desk.frame);
        OpenInFront(dialog);
        if (control != 0)
            Focus(dialog.GetDlgItem(control));
        desk::Press({VK_ESCAPE});
        EXPECT_TRUE(desk::PumpUntil([&] { return !dialog.IsWindow(); }));
        EXPECT_EQ(IDCANCEL, dialog.result);
    }
}

TEST_F(KeyboardHook, the_hook_passes_on_what_it_is_not_to_look_at) {
    EXPECT_EQ(0, PropdlgKbdProc(-1, VK_TAB, 0));
    EXPECT_EQ(0, PropdlgKbdProc(HC_NOREMOVE, VK_TAB, 0));
    EXPECT_EQ(0, PropdlgKbdProc(HC_ACTION, VK_TAB, 0));
    EXPECT_EQ(0, PropdlgKbdProc(HC_ACTION, 'A', 0));
}

}  // namespace
