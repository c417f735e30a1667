// Dialogs with tabs among other windows: several at once, in an MDI child, above an owner that goes; by real
// keys.
#include <gtest/gtest.h>

#include "owl/mdi.h"
#include "property_desk.h"
#include "tests/owl/desk_user.h"

namespace {

using propdlg_test::Calls;
using propdlg_test::Dialog;
using propdlg_test::Page;
using propdlg_test::PropertyDesk;

struct OpenDialogs : PropertyDesk {
    static bool IsSelected(const Dialog& dialog, int tab) {
        return desk::PumpUntil([&] { return dialog.Strip().GetSelectedTab() == tab; }, 3000);
    }
    static bool HasFocus(HWND window) {
        return desk::PumpUntil([&] { return ::GetFocus() == window; }, 3000);
    }

    Page d{calls, "d"};
    Page e{calls, "e"};
};

TEST_F(OpenDialogs, of_two_the_one_in_front_takes_the_keys) {
    Dialog first(calls, desk.frame);
    Open(first);
    Dialog second(calls, desk.frame);
    second.Add("&D", &d, true);
    second.Add("&E", &e, true);
    Show(second);
    ASSERT_TRUE(desk::Activate(second));
    ASSERT_TRUE(HasFocus(second.Strip().GetHandle()));
    desk::Press({VK_CONTROL, VK_NEXT});
    EXPECT_TRUE(IsSelected(second, 1));
    EXPECT_EQ(0, first.Strip().GetSelectedTab());
    ASSERT_TRUE(desk::Activate(first));
    ASSERT_TRUE(HasFocus(first.Strip().GetHandle()));
    desk::Press({VK_CONTROL, VK_PRIOR});
    EXPECT_TRUE(IsSelected(first, 2));
    EXPECT_EQ(1, second.Strip().GetSelectedTab());
}

TEST_F(OpenDialogs, one_goes_on_taking_keys_when_the_first_has_gone) {
    Dialog second(calls, desk.frame);
    {
        Dialog first(calls, desk.frame);
        first.Add("&D", &d, true);
        Show(first);
        Open(second);
        first.CmCancel();
    }
    ASSERT_TRUE(desk::Activate(second));
    ASSERT_TRUE(HasFocus(second.Strip().GetHandle()));
    desk::Press({VK_CONTROL, VK_NEXT});
    EXPECT_TRUE(IsSelected(second, 1));
}

TEST_F(OpenDialogs, one_may_open_another_from_a_page) {
    Dialog outer(calls, desk.frame);
    Open(outer);
    Dialog inner(calls, &outer);
    inner.Add("&D", &d, true);
    inner.Add("&E", &e, true);
    int result = 0;
    {
        const desk::User user([&] {
            EXPECT_TRUE(user::WaitUntil([&] { return inner.IsWindow() && inner.IsWindowVisible(); }));
            EXPECT_TRUE(user::WaitUntilInFront(inner.GetHandle()));
            EXPECT_FALSE(::IsWindowEnabled(outer.GetHandle()));
            user::Press({VK_RETURN});
        });
        result = inner.Execute();
    }
    EXPECT_EQ(IDOK, result);
    EXPECT_TRUE(::IsWindowEnabled(outer.GetHandle()));
    EXPECT_EQ(1, lvx::propdlg::shared_state().PropertyTabs.GetItemsInContainer());
}

void CALLBACK destroy_frame(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    owl::GetApplicationObject()->GetMainWindow()->Destroy();
}

TEST_F(OpenDialogs, a_modal_one_ends_with_its_owner) {
    Dialog dialog(calls, desk.frame);
    AddPages(dialog);
    desk.frame->ShowWindow(SW_SHOW);
    ::SetTimer(nullptr, 0, 200, &destroy_frame);
    EXPECT_EQ(IDCANCEL, dialog.Execute());
    EXPECT_FALSE(dialog.IsWindow());
    EXPECT_FALSE(a.IsWindow());
    EXPECT_TRUE(lvx::propdlg::shared_state().PropertyTabs.IsEmpty());
}

TEST_F(OpenDialogs, one_in_an_mdi_child_takes_keys_like_any_other) {
    auto* const client = new owl::TMDIClient;
    auto* const frame = new owl::TMDIFrame("mdi", owl::TResId(), client);
    desk::Place(*frame);
    desk.application.SetMainWindow(frame);
    frame->Create();
    auto* const dialog = new Dialog(calls, nullptr, Tab::NoMDIClose, IDD_CHILD);
    AddPages(*dialog);
    auto* const child = new owl::TMDIChild(*client, "child", dialog);
    child->Create();
    ASSERT_TRUE(desk::Activate(*frame));
    ::SetFocus(dialog->Strip().GetHandle());
    desk::Press({VK_TAB});
    EXPECT_TRUE(HasFocus(a.GetDlgItem(IDC_FIRST)));
    desk::Press({VK_CONTROL, VK_NEXT});
    EXPECT_TRUE(IsSelected(*dialog, 1));
    desk::Press({VK_MENU, 'C'});
    EXPECT_TRUE(IsSelected(*dialog, 2));
    // OK and Cancel of a document are those of its frame.
    desk::Press({VK_ESCAPE});
    desk::Press({VK_RETURN});
    desk::PumpUntil([] { return false; }, 200);
    EXPECT_TRUE(dialog->IsWindow());
    child->SendMessage(WM_CLOSE);
    Pump();
    EXPECT_FALSE(c.IsWindow());
    EXPECT_TRUE(lvx::propdlg::shared_state().PropertyTabs.IsEmpty());
}

}  // namespace
