#include "lvx/controls/float_edit.h"

#include <gtest/gtest.h>

#include <limits>

#include "controls/field_desk.h"

namespace {

using lvx_test::Press;
using lvx_test::SelectionOf;
using lvx_test::Type;

class FloatEdit : public lvx_test::FieldDesk {
protected:
    LVXFloatEdit* Show(const std::string& text) {
        return FieldDesk::Show(new LVXFloatEdit(desk.frame, 5, text, 0, 0, 100, 20));
    }
};

}  // namespace

TEST_F(FloatEdit, beeps_at_a_letter_and_keeps_its_text) {
    LVXFloatEdit* const edit = Show("1.5");
    Type("x");
    EXPECT_EQ("1.5", edit->GetText());
    EXPECT_EQ(std::pair(0, 3), SelectionOf(*edit));
    EXPECT_EQ(1, beeps.Count());
    Type("2");
    EXPECT_EQ("2", edit->GetText());
    EXPECT_EQ(0, beeps.Count());
}

TEST_F(FloatEdit, takes_one_minus_sign_and_one_point) {
    LVXFloatEdit* const edit = Show("");
    Type("--");
    EXPECT_EQ("-", edit->GetText());
    EXPECT_EQ(1, beeps.Count());
    Type("1.2.0");
    EXPECT_EQ("-1.20", edit->GetText());
    EXPECT_EQ(1, beeps.Count());
    EXPECT_EQ(-1.2, edit->GetValue());
}

TEST_F(FloatEdit, lets_an_exponent_be_typed) {
    LVXFloatEdit* const edit = Show("");
    Type("1e-");
    double value = 7;
    EXPECT_FALSE(edit->GetValue(value));
    EXPECT_EQ(7, value);
    Type("5");
    EXPECT_TRUE(edit->GetValue(value));
    EXPECT_EQ(1e-5, value);
    EXPECT_EQ(0, beeps.Count());
}

TEST_F(FloatEdit, does_nothing_at_enter_and_tab) {
    auto* const edit = FieldDesk::Show(new LVXFloatEdit(desk.frame, 5, "12", 0, 0, 100, 60, 0, true));
    Press({VK_RETURN});
    Press({VK_TAB});
    EXPECT_EQ("12", edit->GetText());
    EXPECT_EQ(0, beeps.Count());
}

TEST_F(FloatEdit, leaves_editing_keys_as_they_are) {
    LVXFloatEdit* const edit = Show("125");
    Press({VK_END});
    Press({VK_BACK});
    EXPECT_EQ("12", edit->GetText());
    Press({VK_HOME});
    Press({VK_DELETE});
    EXPECT_EQ("2", edit->GetText());
    Type("-");
    EXPECT_EQ("-2", edit->GetText());
    Press({VK_END});
    Type("-");
    EXPECT_EQ("-2", edit->GetText());
    EXPECT_EQ(1, beeps.Count());
    Press({VK_CONTROL, 'Z'});
    EXPECT_NE("-2", edit->GetText());
}

TEST_F(FloatEdit, lets_anything_be_pasted_and_tells_it_when_it_is_read) {
    LVXFloatEdit* const edit = Show("");
    LVXEdit words(desk.frame, 6, "12 mm", 0, 30, 100, 20);
    words.Create();
    words.SetSelection(0, -1);
    words.Copy();
    edit->SetFocus();
    Press({VK_CONTROL, 'V'});
    EXPECT_EQ("12 mm", edit->GetText());
    EXPECT_EQ(0, beeps.Count());
    double value = 7;
    EXPECT_FALSE(edit->GetValue(value));
    EXPECT_EQ(7, value);
    EXPECT_EQ(12, edit->GetValue());
    Type("3");
    EXPECT_EQ("12 mm", edit->GetText());
    EXPECT_EQ(1, beeps.Count());
}

TEST_F(FloatEdit, judges_a_key_by_the_first_49_characters) {
    LVXFloatEdit* const edit = Show(std::string(49, '1') + "xyz");
    edit->SetSelection(52, 52);
    Type(".");
    EXPECT_EQ(std::string(49, '1') + "xyz.", edit->GetText());
    edit->SetSelection(0, 0);
    Type("x");
    EXPECT_EQ(53, edit->GetTextLen());
    EXPECT_EQ(1, beeps.Count());
}

TEST_F(FloatEdit, shows_a_value_with_the_caret_in_front) {
    LVXFloatEdit* const edit = Show("");
    edit->SetValue(2.5, 3);
    EXPECT_EQ("2.5", edit->GetText());
    EXPECT_EQ(std::pair(0, 0), SelectionOf(*edit));
    edit->SetSelection(1, 2);
    edit->SetValue(-1.23456, 2);
    EXPECT_EQ("-1.23", edit->GetText());
    EXPECT_EQ(std::pair(0, 0), SelectionOf(*edit));
}

TEST_F(FloatEdit, stays_as_it_is_if_it_shows_the_value_already) {
    LVXFloatEdit* const edit = Show("2.5");
    edit->SetSelection(1, 2);
    edit->ClearModify();
    edit->SetValue(2.5, 3);
    EXPECT_EQ("2.5", edit->GetText());
    EXPECT_EQ(std::pair(1, 2), SelectionOf(*edit));
    edit->SetValue(2.50004, 3);
    EXPECT_EQ(std::pair(1, 2), SelectionOf(*edit));
}

TEST_F(FloatEdit, reads_what_is_a_number_alone) {
    LVXFloatEdit* const edit = Show("");
    const struct {
        const char* text;
        bool is_number;
        double value;
    } cases[] = {
        {"", false, 0},
        {"-", false, 0},
        {".", false, 0},
        {"1.5", true, 1.5},
        {"-.5", true, -0.5},
        {"1e", false, 1},
        {"1 2", false, 1},
        {"x1", false, 0},
        {"1e3", true, 1000},
        {"+1", false, 1},
        {"1e999", true, std::numeric_limits<double>::infinity()},
    };
    for (const auto& [text, is_number, number] : cases) {
        edit->SetText(text);
        double value = 7;
        EXPECT_EQ(is_number, edit->GetValue(value)) << text;
        EXPECT_EQ(is_number ? number : 7, value) << text;
        EXPECT_EQ(number, edit->GetValue()) << text;
    }
}

TEST_F(FloatEdit, made_in_code_begins_with_its_value) {
    LVXFloatEdit edit(desk.frame, 5, static_cast<const char*>(nullptr), 0, 0, 100, 20);
    double value = 7;
    EXPECT_FALSE(edit.GetValue(value));
    edit.SetValue(1.25, 2);
    edit.Create();
    EXPECT_TRUE(edit.GetValue(value));
    EXPECT_EQ(1.25, value);
}
