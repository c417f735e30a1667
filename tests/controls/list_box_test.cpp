#include "lvx/controls/list_box.h"

#include <gtest/gtest.h>

#include <cstring>

#include "fields_ids.h"
#include "owl/combo_box.h"
#include "owl/dialog.h"
#include "tests/owl/desk.h"

namespace {

struct ListBox : testing::Test {
    ListBox() : list(new LVXListBox(desk.frame, 5, 0, 0, 100, 80)) {
        list->Create();
        for (const char* text : {"pear", "apple", ""})
            list->AddString(text);
    }

    desk::Desk desk;
    LVXListBox* list;
};

// A list that has what the test says.
struct OddList : owl::TListBox {
    explicit OddList(owl::TWindow* parent) : TListBox(parent, 6, 0, 0, 10, 10) {}

    int GetStringLen(int) const override { return length; }
    int GetString(char* text, int) const override {
        if (item != nullptr)
            std::strcpy(text, item);
        return -1;
    }

    int length = 0;
    const char* item = nullptr;
};

}  // namespace

TEST_F(ListBox, gives_its_items_as_strings) {
    EXPECT_EQ("", list->GetString(0));
    EXPECT_EQ("apple", list->GetString(1));
    EXPECT_EQ("pear", list->GetString(2));
}

TEST_F(ListBox, has_an_empty_string_where_there_is_no_item) {
    EXPECT_EQ("", list->GetString(3));
    EXPECT_EQ("", list->GetString(-1));
    EXPECT_EQ("", list->GetString(INT_MIN));
}

TEST_F(ListBox, gives_the_selected_item_or_nothing) {
    EXPECT_EQ(-1, list->GetSelIndex());
    EXPECT_EQ("", list->GetSelString());
    list->SetSelIndex(2);
    EXPECT_EQ("pear", list->GetSelString());
    list->SetSelIndex(0);
    EXPECT_EQ("", list->GetSelString());
}

TEST_F(ListBox, fills_buffers_as_its_base_does) {
    list->SetSelIndex(1);
    char text[10] = "";
    EXPECT_EQ(3, list->GetSelString(text, 4));
    EXPECT_STREQ("app", text);
    EXPECT_EQ(4, list->GetString(text, 2));
    EXPECT_STREQ("pear", text);
    EXPECT_EQ(-1, list->GetString(text, 7));
    EXPECT_STREQ("", text);
}

TEST_F(ListBox, gives_a_long_item_whole) {
    const std::string item(5000, 'x');
    list->AddString(item.c_str());
    EXPECT_EQ(item, list->GetString(3));
}

TEST_F(ListBox, gives_the_items_of_other_lists) {
    owl::TComboBox combo(desk.frame, 6, 0, 0, 100, 80, CBS_DROPDOWNLIST, 0);
    combo.Create();
    combo.AddString("fig");
    EXPECT_EQ("fig", LVXListBox::GetListString(&combo, 0));
    EXPECT_EQ("", LVXListBox::GetListString(&combo, 1));
    EXPECT_EQ("", LVXListBox::GetListString(nullptr, 0));
}

TEST_F(ListBox, asks_another_list_by_its_virtual_operations) {
    OddList odd(desk.frame);
    odd.length = 10;
    odd.item = "plum";
    EXPECT_EQ("plum", LVXListBox::GetListString(&odd, 0));
    odd.item = nullptr;
    EXPECT_EQ("", LVXListBox::GetListString(&odd, 0));
    odd.length = -1;
    odd.item = "plum";
    EXPECT_EQ("", LVXListBox::GetListString(&odd, 0));
    odd.length = -7;
    EXPECT_EQ("", LVXListBox::GetListString(&odd, 0));
}

TEST_F(ListBox, without_a_window_has_no_items) {
    const LVXListBox none(desk.frame, 6, 0, 0, 100, 80);
    EXPECT_EQ("", none.GetString(0));
    EXPECT_EQ("", none.GetSelString());
}

TEST_F(ListBox, takes_over_the_list_of_a_dialog) {
    owl::TDialog dialog(desk.frame, IDD_FIELDS);
    auto* const taken = new LVXListBox(&dialog, IDC_LIST);
    dialog.Create();
    taken->AddString("fig");
    EXPECT_EQ("fig", taken->GetString(0));
}
