#include "owl/edit.h"

#include <gtest/gtest.h>

#include "tests/owl/desk.h"

namespace {

// Drops the digits that are typed.
class NoDigits : public owl::TEdit {
public:
    explicit NoDigits(owl::TWindow* parent) : TEdit(parent, 5, "", 0, 0, 100, 20) {}

    void EvChar(UINT key, UINT repeat, UINT flags) {
        if (key < '0' || key > '9')
            TEdit::EvChar(key, repeat, flags);
    }

    DECLARE_RESPONSE_TABLE(NoDigits);
};

DEFINE_RESPONSE_TABLE1(NoDigits, owl::TEdit)
    EV_WM_CHAR,
END_RESPONSE_TABLE;

struct Edit : testing::Test {
    Edit() : edit(new owl::TEdit(desk.frame, 5, "some text", 0, 0, 100, 20, 12)) { edit->Create(); }

    desk::Desk desk;
    owl::TEdit* edit;
};

TEST_F(Edit, selects) {
    EXPECT_TRUE(edit->SetSelection(2, 6));
    int start = 0;
    int end = 0;
    edit->GetSelection(start, end);
    EXPECT_EQ(2, start);
    EXPECT_EQ(6, end);
    edit->SetSelection(0, -1);
    edit->GetSelection(start, end);
    EXPECT_EQ(9, end);
}

TEST_F(Edit, replaces_the_selection) {
    edit->SetSelection(0, 4);
    edit->Insert("more");
    EXPECT_EQ("more text", edit->GetWindowText());
    EXPECT_TRUE(edit->CanUndo());
    edit->Undo();
    EXPECT_EQ("some text", edit->GetWindowText());
}

TEST_F(Edit, deletes_the_selection) {
    edit->SetSelection(4, 9);
    edit->DeleteSelection();
    EXPECT_EQ("some", edit->GetWindowText());
}

TEST_F(Edit, cuts_copies_and_pastes) {
    edit->SetSelection(0, 5);
    edit->Cut();
    EXPECT_EQ("text", edit->GetWindowText());
    edit->SetSelection(4, 4);
    edit->Paste();
    EXPECT_EQ("textsome ", edit->GetWindowText());
    edit->SetSelection(0, 2);
    edit->Copy();
    EXPECT_EQ("textsome ", edit->GetWindowText());
}

TEST_F(Edit, takes_no_more_typed_text_than_its_limit) {
    edit->SetSelection(9, 9);
    for (int i = 0; i < 5; ++i)
        edit->SendMessage(WM_CHAR, 'x', 1);
    EXPECT_EQ("some textxx", edit->GetWindowText());
}

TEST_F(Edit, knows_whether_it_was_changed) {
    edit->ClearModify();
    EXPECT_FALSE(edit->IsModified());
    edit->SendMessage(WM_CHAR, 'x', 1);
    EXPECT_TRUE(edit->IsModified());
    edit->ClearModify();
    EXPECT_FALSE(edit->IsModified());
}

TEST_F(Edit, has_many_lines_if_it_is_made_so) {
    owl::TEdit lines(desk.frame, 6, "one\r\ntwo\r\nthree", 0, 0, 100, 60, 0, true);
    lines.Create();
    EXPECT_EQ(3, lines.GetNumLines());
    EXPECT_EQ(1, edit->GetNumLines());
}

TEST_F(Edit, lets_a_class_drop_keys_that_are_typed) {
    auto* filtered = new NoDigits(desk.frame);
    filtered->Create();
    ASSERT_TRUE(desk::Activate(*desk.frame));
    filtered->SetFocus();
    for (const WORD key : {'A', '1', 'B', '2'})
        desk::Press({key});
    desk::Press({'C'});
    EXPECT_TRUE(desk::PumpUntil([&] { return filtered->GetTextLen() == 3; }));
    EXPECT_EQ("abc", filtered->GetWindowText());
}

TEST_F(Edit, without_a_window_does_nothing) {
    owl::TEdit none(desk.frame, 6, "text", 0, 0, 100, 20);
    int start = 5;
    int end = 5;
    none.GetSelection(start, end);
    EXPECT_EQ(0, start);
    EXPECT_EQ(0, end);
    EXPECT_FALSE(none.SetSelection(0, 1));
}

}  // namespace
