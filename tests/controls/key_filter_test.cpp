#include "lvx/controls/key_filter.h"

#include <gtest/gtest.h>

#include "tests/owl/desk.h"

namespace {

using lvx::controls::IsPassed;
using lvx::controls::ShownText;

struct KeyFilter : testing::Test {
    owl::TEdit* Show(const char* text) {
        auto* const field = new owl::TEdit(desk.frame, 5, text, 0, 0, 100, 20);
        field->Create();
        return field;
    }

    desk::Desk desk;
};

}  // namespace

TEST_F(KeyFilter, sees_the_text_and_the_selection_of_a_field) {
    owl::TEdit* const field = Show("12345");
    field->SetSelection(1, 3);
    const ShownText shown(*field);
    const lvx::FieldText seen = shown;
    EXPECT_EQ("12345", seen.text);
    EXPECT_EQ(1, seen.start);
    EXPECT_EQ(3, seen.end);
}

TEST_F(KeyFilter, sees_49_characters_and_a_selection_behind_them) {
    owl::TEdit* const field = Show(std::string(60, '1').c_str());
    field->SetSelection(55, 58);
    const ShownText shown(*field);
    const lvx::FieldText seen = shown;
    EXPECT_EQ(std::string(49, '1'), seen.text);
    EXPECT_EQ(55, seen.start);
    EXPECT_EQ(58, seen.end);
}

TEST_F(KeyFilter, sees_nothing_of_a_field_without_a_window) {
    const owl::TEdit field(desk.frame, 5, "text", 0, 0, 100, 20);
    const ShownText shown(field);
    const lvx::FieldText seen = shown;
    EXPECT_EQ("", seen.text);
    EXPECT_EQ(0, seen.start);
    EXPECT_EQ(0, seen.end);
}

TEST_F(KeyFilter, passes_what_was_judged_so) {
    EXPECT_TRUE(IsPassed(lvx::KeyVerdict::Pass));
    EXPECT_FALSE(IsPassed(lvx::KeyVerdict::Drop));
    EXPECT_FALSE(IsPassed(lvx::KeyVerdict::Beep));
}
