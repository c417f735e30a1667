#include "owl/list_box.h"

#include <gtest/gtest.h>

#include "tests/owl/desk.h"

namespace {

struct ListBox : testing::Test {
    ListBox() : list(new owl::TListBox(desk.frame, 5, 0, 0, 100, 80)) {
        list->Create();
        for (const char* text : {"pear", "apple", "fig"})
            list->AddString(text);
    }

    std::string Item(int index) const {
        std::vector<char> text(static_cast<std::size_t>(list->GetStringLen(index)) + 1);
        list->GetString(text.data(), index);
        return text.data();
    }

    desk::Desk desk;
    owl::TListBox* list;
};

TEST_F(ListBox, sorts_what_is_added) {
    EXPECT_EQ(3, list->GetCount());
    EXPECT_EQ("apple", Item(0));
    EXPECT_EQ("fig", Item(1));
    EXPECT_EQ("pear", Item(2));
    EXPECT_EQ(1, list->AddString("banana"));
}

TEST_F(ListBox, inserts_where_it_is_told) {
    EXPECT_EQ(0, list->InsertString("zucchini", 0));
    EXPECT_EQ("zucchini", Item(0));
}

TEST_F(ListBox, finds_and_deletes) {
    EXPECT_EQ(1, list->FindString("FI"));
    EXPECT_EQ(-1, list->FindString("plum"));
    EXPECT_EQ(2, list->DeleteString(1));
    EXPECT_EQ(-1, list->DeleteString(7));
    list->ClearList();
    EXPECT_EQ(0, list->GetCount());
}

TEST_F(ListBox, selects_one_or_none) {
    EXPECT_EQ(-1, list->GetSelIndex());
    EXPECT_TRUE(list->SetSelIndex(2));
    EXPECT_EQ(2, list->GetSelIndex());
    EXPECT_FALSE(list->SetSelIndex(3));
    EXPECT_TRUE(list->SetSelIndex(-1));
    EXPECT_EQ(-1, list->GetSelIndex());
    EXPECT_EQ(1, list->SetSelString("fig"));
}

TEST_F(ListBox, copies_the_selected_text_as_far_as_there_is_room) {
    char text[4] = "???";
    EXPECT_EQ(0, list->GetSelString(text, sizeof(text)));
    EXPECT_STREQ("", text);
    list->SetSelIndex(0);
    EXPECT_EQ(3, list->GetSelString(text, sizeof(text)));
    EXPECT_STREQ("app", text);
    EXPECT_EQ(0, list->GetSelString(nullptr, 5));
}

TEST_F(ListBox, says_minus_one_for_a_bad_index) {
    char text[8] = "x";
    EXPECT_EQ(-1, list->GetStringLen(3));
    EXPECT_EQ(-1, list->GetStringLen(-1));
    EXPECT_EQ(-1, list->GetString(text, 3));
    EXPECT_STREQ("", text);
}

TEST_F(ListBox, keeps_a_number_with_each_item) {
    EXPECT_TRUE(list->SetItemData(1, 77));
    EXPECT_EQ(77, list->GetItemData(1));
    EXPECT_FALSE(list->SetItemData(9, 77));
}

TEST_F(ListBox, without_a_window_has_nothing) {
    owl::TListBox none(desk.frame, 6, 0, 0, 10, 10);
    EXPECT_EQ(-1, none.AddString("x"));
    EXPECT_EQ(-1, none.GetCount());
    EXPECT_EQ(-1, none.GetSelIndex());
    EXPECT_FALSE(none.SetSelIndex(-1));
}

TEST_F(ListBox, transfers_its_items_in_and_its_selection_both_ways) {
    owl::TListBoxData data{{"two", "one"}, 0, "two"};
    owl::TListBoxData* address = &data;
    EXPECT_EQ(sizeof(address), list->Transfer(nullptr, owl::tdSizeData));
    list->Transfer(&address, owl::tdSetData);
    EXPECT_EQ(2, list->GetCount());
    EXPECT_EQ("one", Item(0));
    EXPECT_EQ(1, list->GetSelIndex());
    list->SetSelIndex(0);
    list->Transfer(&address, owl::tdGetData);
    EXPECT_EQ(0, data.SelIndex);
    EXPECT_EQ("one", data.SelString);
    list->SetSelIndex(-1);
    list->Transfer(&address, owl::tdGetData);
    EXPECT_EQ(-1, data.SelIndex);
    EXPECT_EQ("", data.SelString);
}

TEST_F(ListBox, passes_over_a_null_address) {
    owl::TListBoxData* address = nullptr;
    list->Transfer(&address, owl::tdSetData);
    list->Transfer(&address, owl::tdGetData);
    EXPECT_EQ(3, list->GetCount());
}

// "pearl" begins with it as well and stands further up.
TEST_F(ListBox, transfers_the_item_that_is_meant_and_not_one_that_begins_like_it) {
    owl::TListBox plain(desk.frame, 7, 0, 0, 100, 80);
    plain.Attr.Style &= ~static_cast<DWORD>(LBS_SORT);
    plain.Create();
    owl::TListBoxData data{{"pearl", "PEAR", "pear", "pear"}, 3, "pear"};
    owl::TListBoxData* address = &data;
    plain.Transfer(&address, owl::tdSetData);
    EXPECT_EQ(3, plain.GetSelIndex());
    data.SelIndex = 0;
    plain.Transfer(&address, owl::tdSetData);
    EXPECT_EQ(2, plain.GetSelIndex());
    data.SelString = "plum";
    plain.Transfer(&address, owl::tdSetData);
    EXPECT_EQ(0, plain.GetSelIndex());
}

TEST_F(ListBox, holds_texts_of_any_length) {
    const std::string text(70000, 'z');
    const int index = list->AddString(text.c_str());
    EXPECT_EQ(3, index);
    EXPECT_EQ(70000, list->GetStringLen(index));
    EXPECT_EQ(text, Item(index));
    list->SetSelIndex(index);
    std::vector<char> room(70001);
    EXPECT_EQ(70000, list->GetSelString(room.data(), 70001));
    EXPECT_EQ(text, room.data());
}

TEST_F(ListBox, takes_no_text_as_an_empty_one) {
    EXPECT_EQ(0, list->AddString(nullptr));
    EXPECT_EQ(0, list->GetStringLen(0));
}

}  // namespace
