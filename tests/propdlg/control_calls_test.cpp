#include "lvx/propdlg/control_calls.h"

#include <gtest/gtest.h>

#include "property_desk.h"

namespace {

using lvx::propdlg::apply_small_font;
using lvx::propdlg::is_of_class;
using lvx::propdlg::select_text;
using propdlg_test::Dialog;
using propdlg_test::PropertyDesk;

struct ControlCalls : PropertyDesk {
    static HFONT FontOf(HWND control) {
        return reinterpret_cast<HFONT>(::SendMessageA(control, WM_GETFONT, 0, 0));
    }
};

TEST_F(ControlCalls, classes_are_compared_without_regard_to_case) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_TRUE(is_of_class(a.GetDlgItem(IDC_FIRST), "EDIT"));
    EXPECT_TRUE(is_of_class(a.GetDlgItem(IDC_FIRST), "edit"));
    EXPECT_FALSE(is_of_class(a.GetDlgItem(IDC_LAST), "EDIT"));
    EXPECT_FALSE(is_of_class(nullptr, "EDIT"));
}

TEST_F(ControlCalls, the_small_font_goes_into_controls_of_controls_but_not_into_statics_without_prefix) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    const auto small = static_cast<HFONT>(::GetStockObject(ANSI_VAR_FONT));
    const HFONT before = FontOf(b.GetDlgItem(IDC_NO_PREFIX));
    apply_small_font(b.GetHandle());
    EXPECT_EQ(small, FontOf(b.GetDlgItem(IDC_BOX)));
    EXPECT_EQ(small, FontOf(::GetWindow(b.GetDlgItem(IDC_COMBO), GW_CHILD)));
    EXPECT_EQ(before, FontOf(b.GetDlgItem(IDC_NO_PREFIX)));
    apply_small_font(nullptr);
}

TEST_F(ControlCalls, all_of_a_fields_text_is_selected) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    a.SetDlgItemText(IDC_FIRST, "some text");
    select_text(a.GetDlgItem(IDC_FIRST));
    Pump();
    EXPECT_EQ(MAKELRESULT(0, 9), a.SendDlgItemMessage(IDC_FIRST, EM_GETSEL));
    // These have none.
    select_text(a.GetDlgItem(IDC_LAST));
    select_text(nullptr);
}

}  // namespace
