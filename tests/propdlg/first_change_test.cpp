// In a process of its own: the very first change of tab that a process sees.
#include <gtest/gtest.h>

#include "property_desk.h"

namespace {

using propdlg_test::Calls;
using propdlg_test::Dialog;
using propdlg_test::Page;

TEST(first_change, cannot_be_refused_and_the_second_can) {
    const desk::Desk desk;
    Calls calls;
    Page a(calls, "a");
    Page b(calls, "b");
    a.may_leave = false;
    b.may_leave = false;
    {
        Dialog dialog(calls, desk.frame);
        dialog.may_leave = false;
        dialog.Add("&A", &a, true);
        dialog.Add("&B", &b, true);
        dialog.Create();
        calls.clear();
        EXPECT_TRUE(dialog.SelectTab(1));
        EXPECT_EQ((Calls{"after dialog 1", "after b"}), calls);
        calls.clear();
        EXPECT_FALSE(dialog.SelectTab(0));
        EXPECT_EQ((Calls{"leave dialog 0"}), calls);
        dialog.CmCancel();
    }
    // Of the whole process, not of the dialog.
    Dialog second(calls, desk.frame);
    second.Add("&A", &a, true);
    second.Add("&B", &b, true);
    second.Create();
    EXPECT_FALSE(second.SelectTab(1));
    second.CmCancel();
}

}  // namespace
