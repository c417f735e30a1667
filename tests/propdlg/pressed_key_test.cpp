#include "lvx/propdlg/pressed_key.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

using lvx::propdlg::hot_key_of;
using lvx::propdlg::pressed_key;
using lvx::propdlg::upper_case;

// The state of the keyboard as this thread sees it.
void hold(std::initializer_list<int> keys) {
    BYTE state[256] = {};
    for (const int key : keys)
        state[key] = 0x80;
    ::SetKeyboardState(state);
}

struct PressedKey : testing::Test {
    ~PressedKey() override { hold({}); }
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

TEST(upper_case, is_by_the_users_code_page) {
    EXPECT_EQ('Q', upper_case('q'));
    EXPECT_EQ('Q', upper_case('Q'));
    EXPECT_EQ('7', upper_case('7'));
    EXPECT_EQ('\xC4', upper_case('\xE4'));
    EXPECT_EQ(0, upper_case(0));
}

TEST_F(PressedKey, a_key_that_is_held_gives_its_character_in_upper_case) {
    hold({'B'});
    EXPECT_EQ('B', pressed_key());
}

TEST_F(PressedKey, alt_does_not_count) {
    hold({VK_MENU, 'Q'});
    EXPECT_EQ('Q', pressed_key());
    hold({VK_MENU});
    EXPECT_EQ(0, pressed_key());
}

TEST_F(PressedKey, keys_without_a_character_do_not_count) {
    hold({VK_SHIFT, VK_F5});
    EXPECT_EQ(0, pressed_key());
    hold({});
    EXPECT_EQ(0, pressed_key());
}

}  // namespace
