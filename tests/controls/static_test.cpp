#include "lvx/controls/static.h"

#include <gtest/gtest.h>

#include "fields_ids.h"
#include "owl/dialog.h"
#include "tests/owl/desk.h"

namespace {

struct Static : testing::Test {
    Static() : label(new LVXStatic(desk.frame, 5, "a label", 0, 0, 80, 20)) { label->Create(); }

    desk::Desk desk;
    LVXStatic* label;
};

}  // namespace

TEST_F(Static, gives_its_text_in_each_form) {
    EXPECT_EQ("a label", label->GetText());
    char text[4] = "";
    EXPECT_EQ(3, label->GetText(text, sizeof text));
    EXPECT_STREQ("a l", text);
    EXPECT_EQ(0, label->GetText(nullptr, 4));
}

TEST_F(Static, gives_an_empty_and_a_long_text) {
    label->SetText("");
    EXPECT_EQ("", label->GetText());
    const std::string text(5000, 'x');
    label->SetText(text.c_str());
    EXPECT_EQ(text, label->GetText());
}

TEST_F(Static, without_a_window_has_no_text) {
    const LVXStatic none(desk.frame, 6, "text", 0, 0, 80, 20);
    EXPECT_EQ("", none.GetText());
}

TEST_F(Static, takes_over_the_label_of_a_dialog) {
    owl::TDialog dialog(desk.frame, IDD_FIELDS);
    const auto* const taken = new LVXStatic(&dialog, IDC_LABEL);
    dialog.Create();
    EXPECT_EQ("Fields:", taken->GetText());
}
