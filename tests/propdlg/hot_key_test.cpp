#include "lvx/propdlg/hot_key.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "property_desk.h"

namespace {

using lvx::propdlg::has_control_with_key;
using lvx::propdlg::text_of_control;
using propdlg_test::Dialog;
using propdlg_test::PropertyDesk;

using lvx::propdlg::hot_key_of;
using lvx::propdlg::pressed_key;
using lvx::propdlg::shown_text;

// The state of the keyboard as this thread sees it.
void hold(std::initializer_list<int> keys) {
    BYTE state[256] = {};
    for (const int key : keys)
        state[key] = 0x80;
    ::SetKeyboardState(state);
}

struct HotKeys : testing::Test {
    ~HotKeys() override { hold({}); }
};

TEST(hot_key, is_what_the_ampersand_marks_in_upper_case) {
    EXPECT_EQ('L', hot_key_of("&Line"));
    EXPECT_EQ('O', hot_key_of("F&ont"));
    EXPECT_EQ('1', hot_key_of("&1st"));
}

TEST(hot_key, does_not_exist_without_an_ampersand) {
    EXPECT_EQ(0, hot_key_of(""));
    EXPECT_EQ(0, hot_key_of("Line"));
    EXPECT_EQ(0, hot_key_of("Line&"));
}

TEST(hot_key, is_not_marked_by_a_pair_of_ampersands) {
    EXPECT_EQ(0, hot_key_of("&&x"));
    EXPECT_EQ('Y', hot_key_of("&&x&y"));
    EXPECT_EQ('X', hot_key_of("&&&x"));
    EXPECT_EQ(0, hot_key_of("&&&&x"));
    EXPECT_EQ(0, hot_key_of("&&&"));
}

TEST(hot_key, is_the_first_of_several) {
    EXPECT_EQ('A', hot_key_of("&a&b"));
}

TEST(hot_key, does_not_show) {
    EXPECT_EQ("Line", shown_text("&Line"));
    EXPECT_EQ("R & D", shown_text("R && D"));
    EXPECT_EQ("two lines", shown_text("two\rlines"));
    EXPECT_EQ("end", shown_text("end&"));
    EXPECT_EQ("", shown_text(""));
}

TEST_F(HotKeys, a_key_that_is_held_gives_its_character_in_upper_case) {
    hold({'B'});
    EXPECT_EQ('B', pressed_key());
}

TEST_F(HotKeys, alt_does_not_count) {
    hold({VK_MENU, 'Q'});
    EXPECT_EQ('Q', pressed_key());
    hold({VK_MENU});
    EXPECT_EQ(0, pressed_key());
}

TEST_F(HotKeys, keys_without_a_character_do_not_count) {
    hold({VK_SHIFT, VK_F5});
    EXPECT_EQ(0, pressed_key());
    hold({});
    EXPECT_EQ(0, pressed_key());
}

struct HotKeysOfControls : PropertyDesk {};

TEST_F(HotKeysOfControls, are_known_to_the_dialog_manager_but_for_what_is_typed_or_disabled) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    EXPECT_TRUE(has_control_with_key(a.GetHandle(), 'L'));
    EXPECT_TRUE(has_control_with_key(a.GetHandle(), 'S'));
    EXPECT_FALSE(has_control_with_key(a.GetHandle(), 'Q'));
    a.SetDlgItemText(IDC_FIRST, "&query");
    EXPECT_FALSE(has_control_with_key(a.GetHandle(), 'Q'));
    ::EnableWindow(a.GetDlgItem(IDC_LAST), FALSE);
    EXPECT_FALSE(has_control_with_key(a.GetHandle(), 'L'));
    EXPECT_FALSE(has_control_with_key(nullptr, 'L'));
}

TEST_F(HotKeysOfControls, stand_in_the_first_hundred_characters) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    a.SetDlgItemText(IDC_LAST, std::string(300, 'x').c_str());
    EXPECT_EQ(std::string(100, 'x'), text_of_control(a.GetDlgItem(IDC_LAST)));
    EXPECT_EQ("", text_of_control(nullptr));
}

}  // namespace
