#include "lvx/propdlg/shared_state.h"

#include <gtest/gtest.h>

#include "property_desk.h"

namespace {

using lvx::propdlg::shared_state;
using propdlg_test::Dialog;
using propdlg_test::PropertyDesk;

struct SharedStateTest : PropertyDesk {};

TEST_F(SharedStateTest, knows_the_strips_of_dialogs_that_are_set_up) {
    EXPECT_TRUE(shared_state().PropertyTabs.IsEmpty());
    Dialog dialog(calls, desk.frame);
    AddPages(dialog);
    EXPECT_TRUE(shared_state().PropertyTabs.IsEmpty());
    dialog.Create();
    ASSERT_EQ(1, shared_state().PropertyTabs.GetItemsInContainer());
    EXPECT_EQ(&dialog.Strip(), shared_state().PropertyTabs[0]);
    dialog.CmCancel();
    EXPECT_TRUE(shared_state().PropertyTabs.IsEmpty());
}

TEST_F(SharedStateTest, knows_every_strip_that_exists) {
    EXPECT_TRUE(shared_state().LiveTabs.empty());
    {
        const Dialog dialog(calls, desk.frame);
        ASSERT_EQ(1u, shared_state().LiveTabs.size());
        EXPECT_EQ(&dialog.Strip(), shared_state().LiveTabs[0]);
    }
    EXPECT_TRUE(shared_state().LiveTabs.empty());
}

TEST_F(SharedStateTest, knows_a_modern_shell) {
    const Dialog dialog(calls, desk.frame);
    EXPECT_TRUE(shared_state().ModernShell);
}

TEST_F(SharedStateTest, the_module_of_the_hook_is_that_of_the_first_dialog_unless_it_was_named) {
    shared_state().HookInstance = nullptr;
    {
        Dialog dialog(calls, desk.frame);
        Open(dialog);
        EXPECT_EQ(desk.application.GetInstance(), shared_state().HookInstance);
        dialog.CmCancel();
    }
    const HINSTANCE library = ::GetModuleHandleA("lvx.dll");
    TPropertyDialog::SetHookInstance(library);
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_EQ(library, shared_state().HookInstance);
    dialog.CmCancel();
    shared_state().HookInstance = nullptr;
}

}  // namespace
