#include "lvx/controls/int_range_edit.h"

#include <gtest/gtest.h>

#include "controls/field_desk.h"
#include "fields_ids.h"
#include "owl/dialog.h"

namespace {

struct FieldDialog : owl::TDialog {
    explicit FieldDialog(owl::TWindow* parent)
        : TDialog(parent, IDD_FIELDS), field(new IntRangeEdit(this, IDC_FIELD, 255, nullptr)) {}
    IntRangeEdit* field;
};

struct RangeEdit : testing::Test {
    RangeEdit() : dialog(desk.frame) {
        dialog.Create();
        EXPECT_TRUE(desk::Activate(dialog));
        dialog.field->SetFocus();
    }

    desk::Desk desk;
    FieldDialog dialog;
};

}  // namespace

TEST_F(RangeEdit, takes_digits_up_to_its_largest_number) {
    lvx_test::Type("-3x00");
    EXPECT_EQ("30", dialog.field->GetWindowText());
    EXPECT_EQ(30, dialog.field->GetValue());
}

TEST_F(RangeEdit, judges_the_text_without_what_is_selected) {
    dialog.field->SetValue(255);
    EXPECT_EQ("255", dialog.field->GetWindowText());
    EXPECT_EQ(std::pair(0, 3), lvx_test::SelectionOf(*dialog.field));
    lvx_test::Type("9");
    EXPECT_EQ(9, dialog.field->GetValue());
}

TEST_F(RangeEdit, leaves_editing_keys_as_they_are) {
    dialog.field->SetValue(255);
    lvx_test::Press({VK_END});
    lvx_test::Press({VK_BACK});
    EXPECT_EQ(25, dialog.field->GetValue());
    lvx_test::Press({VK_SHIFT, VK_HOME});
    lvx_test::Press({VK_DELETE});
    EXPECT_EQ(0, dialog.field->GetValue());
}

TEST_F(RangeEdit, reads_the_number_that_its_text_begins_with) {
    const struct {
        const char* text;
        int value;
    } cases[] = {{"", 0},
                 {"12", 12},
                 {"-7", -7},
                 {" 12 mm", 12},
                 {"words", 0},
                 {"99999999999999999999", 2147483647},
                 {"-99999999999999999999", -2147483647 - 1}};
    for (const auto& [text, value] : cases) {
        dialog.field->SetText(text);
        EXPECT_EQ(value, dialog.field->GetValue()) << text;
    }
}
