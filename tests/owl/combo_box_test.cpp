#include "owl/combo_box.h"

#include <gtest/gtest.h>

#include "tests/owl/desk.h"

namespace {

struct ComboBox : testing::Test {
    ComboBox() : combo(Make(5, CBS_DROPDOWN)) {}

    owl::TComboBox* Make(int id, unsigned long style) {
        auto* made = new owl::TComboBox(desk.frame, id, 0, 0, 100, 120, style, 8);
        made->Create();
        for (const char* text : {"pear", "apple", "fig"})
            made->AddString(text);
        return made;
    }

    desk::Desk desk;
    owl::TComboBox* combo;
};

TEST_F(ComboBox, is_a_list_box_to_who_asks) {
    const owl::TListBox& list = *combo;
    char text[8] = "";
    EXPECT_EQ(5, list.GetStringLen(0));
    EXPECT_EQ(5, list.GetString(text, 0));
    EXPECT_STREQ("apple", text);
    EXPECT_EQ(3, list.GetCount());
    EXPECT_EQ(-1, list.GetStringLen(9));
    EXPECT_EQ(-1, list.GetString(text, 9));
    EXPECT_STREQ("", text);
}

TEST_F(ComboBox, selects_and_shows_what_is_selected) {
    EXPECT_EQ(-1, combo->GetSelIndex());
    EXPECT_TRUE(combo->SetSelIndex(1));
    EXPECT_EQ("fig", combo->GetWindowText());
    EXPECT_EQ(2, combo->SetSelString("pear"));
    char text[8] = "";
    EXPECT_EQ(4, combo->GetSelString(text, sizeof(text)));
    EXPECT_STREQ("pear", text);
    EXPECT_FALSE(combo->SetSelIndex(4));
    EXPECT_TRUE(combo->SetSelIndex(-1));
}

TEST_F(ComboBox, finds_inserts_deletes_and_clears) {
    EXPECT_EQ(1, combo->FindString("fi"));
    EXPECT_EQ(0, combo->InsertString("zucchini", 0));
    EXPECT_EQ(3, combo->DeleteString(0));
    EXPECT_TRUE(combo->SetItemData(0, 9));
    EXPECT_EQ(9, combo->GetItemData(0));
    combo->ClearList();
    EXPECT_EQ(0, combo->GetCount());
}

TEST_F(ComboBox, has_a_field_with_a_limit) {
    combo->SetText("typed");
    EXPECT_EQ(5, combo->GetTextLen());
    char text[16] = "";
    combo->GetText(text, sizeof(text));
    EXPECT_STREQ("typed", text);
    const HWND field = ::FindWindowExA(combo->GetHandle(), nullptr, "Edit", nullptr);
    ASSERT_NE(nullptr, field);
    EXPECT_EQ(7, ::SendMessageA(field, EM_GETLIMITTEXT, 0, 0));
}

TEST_F(ComboBox, opens_and_closes_its_list) {
    ASSERT_TRUE(desk::Activate(*desk.frame));
    combo->ShowList();
    EXPECT_EQ(1, combo->SendMessage(CB_GETDROPPEDSTATE));
    combo->ShowList(false);
    EXPECT_EQ(0, combo->SendMessage(CB_GETDROPPEDSTATE));
}

TEST_F(ComboBox, transfers_a_text_that_is_not_in_the_list) {
    owl::TListBoxData data{{"one", "two"}, -1, "three"};
    owl::TListBoxData* address = &data;
    combo->Transfer(&address, owl::tdSetData);
    EXPECT_EQ("three", combo->GetWindowText());
    EXPECT_EQ(-1, combo->GetSelIndex());
    combo->SetSelIndex(1);
    combo->Transfer(&address, owl::tdGetData);
    EXPECT_EQ(1, data.SelIndex);
    EXPECT_EQ("two", data.SelString);
}

TEST_F(ComboBox, without_a_field_selects_by_the_keyboard) {
    owl::TComboBox* list = Make(6, CBS_DROPDOWNLIST);
    ASSERT_TRUE(desk::Activate(*desk.frame));
    list->SetFocus();
    desk::Press({VK_DOWN});
    EXPECT_TRUE(desk::PumpUntil([&] { return list->GetSelIndex() == 0; }));
    EXPECT_EQ("apple", list->GetWindowText());
}

TEST_F(ComboBox, transfers_the_item_that_is_meant_and_not_one_that_begins_like_it) {
    owl::TComboBox* list = Make(6, CBS_DROPDOWNLIST);
    owl::TListBoxData data{{"pearl", "pear"}, -1, "pear"};
    owl::TListBoxData* address = &data;
    list->Transfer(&address, owl::tdSetData);
    EXPECT_EQ("pear", list->GetWindowText());
    data = {{"pearl"}, -1, "pear"};
    combo->Transfer(&address, owl::tdSetData);
    EXPECT_EQ("pear", combo->GetWindowText());
    EXPECT_EQ(-1, combo->GetSelIndex());
}

}  // namespace
