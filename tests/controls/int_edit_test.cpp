#include "lvx/controls/int_edit.h"

#include <gtest/gtest.h>

#include <climits>

#include "controls/field_desk.h"

namespace {

using lvx_test::Press;
using lvx_test::SelectionOf;
using lvx_test::Type;

class IntEdit : public lvx_test::FieldDesk {
protected:
    LVXIntEdit* Show(long min, long max) {
        return FieldDesk::Show(new LVXIntEdit(desk.frame, 5, 0, 0, 100, 20, min, max));
    }
};

}  // namespace

TEST_F(IntEdit, from_0_beeps_at_a_minus_sign_and_at_the_digit_too_many) {
    LVXIntEdit* const edit = Show(0, 100);
    Type("-");
    EXPECT_EQ("", edit->GetText());
    EXPECT_EQ(1, beeps.Count());
    Type("101");
    EXPECT_EQ("10", edit->GetText());
    EXPECT_EQ(1, beeps.Count());
    EXPECT_EQ(10, edit->GetValue());
}

TEST_F(IntEdit, lets_a_number_grow_and_tells_that_it_is_too_small_when_it_is_read) {
    LVXIntEdit* const edit = Show(10, 20);
    Type("1");
    long value = 7;
    EXPECT_FALSE(edit->GetValue(value));
    EXPECT_EQ(7, value);
    EXPECT_EQ(1, edit->GetValue());
    Type("2");
    EXPECT_TRUE(edit->GetValue(value));
    EXPECT_EQ(12, value);
    EXPECT_EQ(0, beeps.Count());
}

TEST_F(IntEdit, takes_a_minus_sign_if_there_are_negative_numbers) {
    LVXIntEdit* const edit = Show(-5, 5);
    Type("-6");
    EXPECT_EQ("-", edit->GetText());
    EXPECT_EQ(1, beeps.Count());
    Type("5");
    EXPECT_EQ("-5", edit->GetText());
    EXPECT_EQ(-5, edit->GetValue());
}

TEST_F(IntEdit, of_negative_numbers_tells_one_too_large_when_it_is_read) {
    LVXIntEdit* const edit = Show(-20, -10);
    Type("-5");
    EXPECT_EQ("-5", edit->GetText());
    EXPECT_EQ(0, beeps.Count());
    long value = 7;
    EXPECT_FALSE(edit->GetValue(value));
    EXPECT_EQ(7, value);
}

TEST_F(IntEdit, beeps_at_all_that_is_no_digit) {
    LVXIntEdit* const edit = Show(0, 1000);
    Type("1x .e2");
    EXPECT_EQ("12", edit->GetText());
    EXPECT_EQ(4, beeps.Count());
}

TEST_F(IntEdit, puts_a_digit_in_place_of_what_is_selected) {
    LVXIntEdit* const edit = Show(0, 255);
    edit->SetValue(255);
    edit->SetSelection(0, 3);
    Type("9");
    EXPECT_EQ("9", edit->GetText());
    edit->SetValue(255);
    edit->SetSelection(0, 1);
    Type("3");
    EXPECT_EQ("255", edit->GetText());
    EXPECT_EQ(1, beeps.Count());
    Type("1");
    EXPECT_EQ("155", edit->GetText());
}

TEST_F(IntEdit, takes_a_minus_sign_behind_a_digit_but_does_not_read_it) {
    LVXIntEdit* const edit = Show(0, 100);
    Type("1-2");
    EXPECT_EQ("1-2", edit->GetText());
    EXPECT_EQ(0, beeps.Count());
    long value = 7;
    EXPECT_FALSE(edit->GetValue(value));
    EXPECT_EQ(7, value);
    EXPECT_EQ(1, edit->GetValue());
}

TEST_F(IntEdit, lets_anything_be_pasted_and_tells_it_when_it_is_read) {
    LVXIntEdit* const edit = Show(0, 100);
    LVXEdit words(desk.frame, 6, "999", 0, 30, 100, 20);
    words.Create();
    words.SetSelection(0, -1);
    words.Copy();
    edit->SetFocus();
    Press({VK_CONTROL, 'V'});
    EXPECT_EQ("999", edit->GetText());
    long value = 7;
    EXPECT_FALSE(edit->GetValue(value));
    EXPECT_EQ(7, value);
    EXPECT_EQ(0, beeps.Count());
    Press({VK_BACK});
    Press({VK_CONTROL, 'X'});
    EXPECT_EQ("99", edit->GetText());
    EXPECT_EQ(0, beeps.Count());
}

// The framework keeps Tab for itself unless the field wants it; as a character it is the field's.
TEST_F(IntEdit, hands_tab_and_enter_on_without_a_beep) {
    LVXIntEdit* const edit = Show(0, 100);
    Type("1");
    edit->SendMessage(WM_CHAR, '\t', 1);
    edit->SendMessage(WM_CHAR, '\r', 1);
    EXPECT_EQ(0, beeps.Count());
    Type("2");
    long value = 0;
    edit->GetValue(value);
    EXPECT_EQ(12, value);
}

TEST_F(IntEdit, shows_a_value_without_a_look_at_its_range) {
    LVXIntEdit* const edit = Show(0, 100);
    const struct {
        long value;
        const char* text;
    } cases[] = {{0, "0"}, {100, "100"}, {-7, "-7"}, {2147483647, "2147483647"}, {LONG_MIN, "-2147483648"}};
    static_assert(LONG_MIN == -2147483647 - 1);
    for (const auto& [value, text] : cases) {
        edit->SetValue(value);
        EXPECT_EQ(text, edit->GetText());
    }
}

TEST_F(IntEdit, stays_as_it_is_if_it_shows_the_value_already) {
    LVXIntEdit* const edit = Show(0, 1000);
    edit->SetValue(123);
    edit->SetSelection(1, 2);
    edit->SetValue(123);
    EXPECT_EQ("123", edit->GetText());
    EXPECT_EQ(std::pair(1, 2), SelectionOf(*edit));
}

TEST_F(IntEdit, reads_numbers_within_its_range_alone) {
    LVXIntEdit* const edit = Show(-5, 5);
    const struct {
        const char* text;
        bool accepted;
        long value;
    } cases[] = {
        {"", false, 0},
        {"-", false, 0},
        {"5", true, 5},
        {"6", false, 6},
        {"-5", true, -5},
        {"-6", false, -6},
        {"1.0", false, 1},
        {" 1", false, 1},
        {"+1", false, 1},
        {"x", false, 0},
        {"007", false, 7},
        {"003", true, 3},
        {"99999999999", false, LONG_MAX},
    };
    for (const auto& [text, accepted, number] : cases) {
        edit->SetText(text);
        long value = 12345;
        EXPECT_EQ(accepted, edit->GetValue(value)) << text;
        EXPECT_EQ(accepted ? number : 12345, value) << text;
        EXPECT_EQ(number, edit->GetValue()) << text;
    }
}

TEST_F(IntEdit, of_the_widest_range_reads_no_number_beyond) {
    LVXIntEdit* const edit = Show(LONG_MIN, LONG_MAX);
    Type("99999999999");
    EXPECT_EQ("999999999", edit->GetText());
    EXPECT_EQ(2, beeps.Count());
    edit->SetText("99999999999");
    long value = 7;
    EXPECT_FALSE(edit->GetValue(value));
}

TEST_F(IntEdit, made_in_code_is_empty_and_of_one_line) {
    LVXIntEdit* const edit = Show(0, 100);
    EXPECT_EQ("", edit->GetText());
    EXPECT_EQ(0U, edit->GetStyle() & ES_MULTILINE);
    EXPECT_EQ(0U, edit->GetTextLimit());
}
