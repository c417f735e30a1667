#include "lvx/controls/edit.h"

#include <gtest/gtest.h>

#include "controls/field_desk.h"
#include "fields_ids.h"
#include "owl/dialog.h"

namespace {

using lvx_test::SelectionOf;

class Edit : public lvx_test::FieldDesk {
protected:
    LVXEdit* Show(const std::string& text) {
        return FieldDesk::Show(new LVXEdit(desk.frame, 5, text, 0, 0, 100, 20));
    }
};

// A dialog of the old kind, whose frames stand out, with a field in it.
struct FieldDialog : owl::TDialog {
    explicit FieldDialog(owl::TWindow* parent)
        : TDialog(parent, IDD_FIELDS), field(new LVXEdit(this, IDC_FIELD, 5)) {}
    LVXEdit* field;
};

}  // namespace

TEST_F(Edit, has_the_small_system_font) {
    EXPECT_EQ(static_cast<HFONT>(::GetStockObject(ANSI_VAR_FONT)), Show("text")->GetWindowFont());
}

TEST_F(Edit, has_no_sunken_edge_and_lets_the_text_have_its_room) {
    FieldDialog dialog(desk.frame);
    dialog.Create();
    const HWND plain = dialog.GetDlgItem(IDC_PLAIN_FIELD);
    ASSERT_NE(0, ::GetWindowLongA(plain, GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
    EXPECT_EQ(0U, dialog.field->GetExStyle() & WS_EX_CLIENTEDGE);
    RECT client{};
    ::GetClientRect(plain, &client);
    const int edges = 2 * ::GetSystemMetrics(SM_CXEDGE);
    EXPECT_EQ(client.right + edges, dialog.field->GetClientRect().Width());
    EXPECT_EQ(static_cast<HFONT>(::GetStockObject(ANSI_VAR_FONT)), dialog.field->GetWindowFont());
}

TEST_F(Edit, takes_over_the_field_of_a_dialog_with_its_limit) {
    FieldDialog dialog(desk.frame);
    dialog.Create();
    ASSERT_TRUE(desk::Activate(dialog));
    dialog.field->SetFocus();
    lvx_test::Type("abcdefgh");
    EXPECT_EQ("abcd", dialog.field->GetText());
}

TEST_F(Edit, selects_all_of_its_text_when_it_gets_the_focus) {
    LVXEdit* const edit = Show("some text");
    EXPECT_EQ(std::pair(0, 9), SelectionOf(*edit));
    edit->SetSelection(3, 3);
    auto* const other = FieldDesk::Show(new LVXEdit(desk.frame, 6, "", 0, 30, 100, 20));
    EXPECT_EQ(std::pair(0, 0), SelectionOf(*other));
    edit->SetFocus();
    EXPECT_EQ(std::pair(0, 9), SelectionOf(*edit));
}

TEST_F(Edit, puts_what_is_typed_in_place_of_its_text) {
    LVXEdit* const edit = Show("some text");
    lvx_test::Type("x y");
    EXPECT_EQ("x y", edit->GetText());
    EXPECT_EQ(0, beeps.Count());
}

TEST_F(Edit, gives_its_text_back_in_each_form) {
    const LVXEdit* const edit = Show("some text");
    EXPECT_EQ("some text", edit->GetText());
    std::string text = "before";
    edit->GetText(text);
    EXPECT_EQ("some text", text);
    char buffer[5] = "";
    EXPECT_EQ(4, edit->GetText(buffer, sizeof buffer));
    EXPECT_STREQ("some", buffer);
}

TEST_F(Edit, gives_an_empty_and_a_long_text_back) {
    LVXEdit* const edit = Show("");
    EXPECT_EQ("", edit->GetText());
    const std::string long_text(20000, 'x');
    edit->SetText(long_text.c_str());
    EXPECT_EQ(long_text, edit->GetText());
    std::string text = "before";
    edit->SetText("");
    edit->GetText(text);
    EXPECT_EQ("", text);
}

TEST_F(Edit, leaves_a_buffer_without_room_alone) {
    const LVXEdit* const edit = Show("text");
    char buffer = 'x';
    EXPECT_EQ(0, edit->GetText(&buffer, 0));
    EXPECT_EQ(0, edit->GetText(&buffer, -1));
    EXPECT_EQ('x', buffer);
    EXPECT_EQ(0, edit->GetText(nullptr, 10));
    EXPECT_EQ(0, edit->GetText(&buffer, 1));
    EXPECT_EQ('\0', buffer);
}

TEST_F(Edit, takes_a_null_text_for_an_empty_one) {
    LVXEdit edit(desk.frame, 5, nullptr, 0, 0, 100, 20);
    edit.Create();
    EXPECT_EQ("", edit.GetText());
}

TEST_F(Edit, may_have_several_lines) {
    LVXEdit lines(desk.frame, 5, "one\r\ntwo", 0, 0, 100, 60, 0, true);
    lines.Create();
    EXPECT_EQ(2, lines.GetNumLines());
    EXPECT_EQ("one\r\ntwo", lines.GetText());
}

TEST_F(Edit, without_a_window_has_no_text) {
    const LVXEdit edit(desk.frame, 5, "text", 0, 0, 100, 20);
    std::string text = "before";
    edit.GetText(text);
    EXPECT_EQ("", text);
    EXPECT_EQ("", edit.GetText());
}
