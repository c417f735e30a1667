#include "lvx/controls/combo_box.h"

#include <gtest/gtest.h>

#include "fields_ids.h"
#include "owl/dialog.h"
#include "tests/owl/desk.h"

namespace {

struct ComboBox : testing::Test {
    ComboBox() : combo(new LVXComboBox(desk.frame, 5, 0, 0, 100, 80, CBS_DROPDOWN, 6)) {
        combo->Create();
        for (const char* text : {"pear", "apple", ""})
            combo->AddString(text);
    }

    desk::Desk desk;
    LVXComboBox* combo;
};

}  // namespace

TEST_F(ComboBox, gives_its_items_as_strings) {
    EXPECT_EQ("", combo->GetString(0));
    EXPECT_EQ("apple", combo->GetString(1));
    EXPECT_EQ("pear", combo->GetString(2));
    EXPECT_EQ("", combo->GetString(3));
    EXPECT_EQ("", combo->GetString(-1));
}

TEST_F(ComboBox, gives_the_selected_item_or_nothing) {
    EXPECT_EQ("", combo->GetSelString());
    combo->SetSelIndex(1);
    EXPECT_EQ("apple", combo->GetSelString());
    combo->SetSelIndex(-1);
    EXPECT_EQ("", combo->GetSelString());
}

TEST_F(ComboBox, takes_what_is_typed_for_no_item) {
    combo->SetText("plum");
    EXPECT_EQ("", combo->GetSelString());
}

TEST_F(ComboBox, fills_buffers_as_its_base_does) {
    char text[10] = "";
    EXPECT_EQ(4, combo->GetString(text, 2));
    EXPECT_STREQ("pear", text);
    combo->SetSelIndex(1);
    EXPECT_EQ(2, combo->GetSelString(text, 3));
    EXPECT_STREQ("ap", text);
}

TEST_F(ComboBox, has_the_style_that_it_is_made_with) {
    EXPECT_EQ(static_cast<DWORD>(CBS_DROPDOWN), combo->GetStyle() & 3U);
}

TEST_F(ComboBox, without_a_window_has_no_items) {
    const LVXComboBox none(desk.frame, 6, 0, 0, 100, 80, CBS_DROPDOWNLIST, 0);
    EXPECT_EQ("", none.GetString(0));
    EXPECT_EQ("", none.GetSelString());
}

TEST_F(ComboBox, takes_over_that_of_a_dialog) {
    owl::TDialog dialog(desk.frame, IDD_FIELDS);
    auto* const taken = new LVXComboBox(&dialog, IDC_COMBO);
    dialog.Create();
    taken->AddString("fig");
    taken->SetSelIndex(0);
    EXPECT_EQ("fig", taken->GetSelString());
}
