#include "lvx/propdlg/control_keys.h"

#include <gtest/gtest.h>

#include "property_desk.h"

namespace {

using lvx::propdlg::click_by_key;
using lvx::propdlg::has_control_with_key;
using propdlg_test::Dialog;
using propdlg_test::PropertyDesk;

// On the page with two fields, the label "&Second:" and the box "&Last".
struct ControlKeys : PropertyDesk {
    ControlKeys() { Open(dialog); }
    ~ControlKeys() override { dialog.CmCancel(); }

    Dialog dialog{calls, desk.frame};
};

TEST_F(ControlKeys, are_those_of_the_controls_that_can_be_used) {
    EXPECT_TRUE(has_control_with_key(a.GetHandle(), 'L'));
    EXPECT_TRUE(has_control_with_key(a.GetHandle(), 'S'));
    EXPECT_FALSE(has_control_with_key(a.GetHandle(), 'Q'));
    ::EnableWindow(a.GetDlgItem(IDC_LAST), FALSE);
    EXPECT_FALSE(has_control_with_key(a.GetHandle(), 'L'));
    ::ShowWindow(a.GetDlgItem(IDC_LABEL), SW_HIDE);
    EXPECT_FALSE(has_control_with_key(a.GetHandle(), 'S'));
}

TEST_F(ControlKeys, are_asked_further_behind_a_control_that_cannot_be_seen) {
    ::ShowWindow(a.GetDlgItem(IDC_LABEL), SW_HIDE);
    ::SetWindowTextA(a.GetDlgItem(IDC_LAST), "La&st");
    EXPECT_TRUE(has_control_with_key(a.GetHandle(), 'S'));
}

TEST_F(ControlKeys, are_not_what_was_typed_into_a_field) {
    ::SetWindowTextA(a.GetDlgItem(IDC_FIRST), "&query");
    EXPECT_FALSE(has_control_with_key(a.GetHandle(), 'Q'));
}

TEST_F(ControlKeys, are_none_without_a_key_or_a_dialog) {
    EXPECT_FALSE(has_control_with_key(a.GetHandle(), 0));
    EXPECT_FALSE(has_control_with_key(nullptr, 'L'));
    EXPECT_FALSE(click_by_key(a.GetHandle(), 0));
    EXPECT_FALSE(click_by_key(nullptr, 'L'));
}

TEST_F(ControlKeys, click_at_their_control) {
    EXPECT_TRUE(click_by_key(a.GetHandle(), 'L'));
    EXPECT_EQ(1u, a.IsDlgButtonChecked(IDC_LAST));
    EXPECT_FALSE(click_by_key(a.GetHandle(), 'Q'));
}

TEST_F(ControlKeys, click_at_the_first_of_several_controls) {
    ::SetWindowTextA(a.GetDlgItem(IDC_FIRST), "&Lucky");
    EXPECT_TRUE(click_by_key(a.GetHandle(), 'L'));
    EXPECT_EQ(0u, a.IsDlgButtonChecked(IDC_LAST));
}

TEST_F(ControlKeys, are_looked_for_in_the_first_hundred_characters) {
    const HWND box = a.GetDlgItem(IDC_LAST);
    ::SetWindowTextA(box, (std::string(98, 'x') + "&Q").c_str());
    EXPECT_TRUE(has_control_with_key(a.GetHandle(), 'Q'));
    ::SetWindowTextA(box, (std::string(99, 'x') + "&Q").c_str());
    EXPECT_FALSE(has_control_with_key(a.GetHandle(), 'Q'));
}

}  // namespace
