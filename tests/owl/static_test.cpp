#include "owl/static.h"

#include <gtest/gtest.h>

#include "tests/owl/desk.h"

namespace {

struct Static : testing::Test {
    Static() : label(new owl::TStatic(desk.frame, 5, "label", 0, 0, 80, 20, 6)) { label->Create(); }

    desk::Desk desk;
    owl::TStatic* label;
};

TEST_F(Static, shows_its_text) {
    EXPECT_EQ(5, label->GetTextLen());
    char text[4] = "";
    EXPECT_EQ(3, label->GetText(text, sizeof(text)));
    EXPECT_STREQ("lab", text);
    EXPECT_EQ(0U, label->GetStyle() & WS_TABSTOP);
}

TEST_F(Static, takes_another_text_and_none) {
    label->SetText("other");
    EXPECT_EQ("other", label->GetWindowText());
    label->SetText(nullptr);
    EXPECT_EQ("", label->GetWindowText());
    label->SetText("x");
    label->Clear();
    EXPECT_EQ(0, label->GetTextLen());
}

TEST_F(Static, transfers_as_many_bytes_as_its_limit) {
    char buffer[6] = "";
    EXPECT_EQ(6U, label->Transfer(nullptr, owl::tdSizeData));
    label->SetText("too long a text");
    EXPECT_EQ(6U, label->Transfer(buffer, owl::tdGetData));
    EXPECT_STREQ("too l", buffer);
}

TEST_F(Static, reads_no_further_than_its_limit) {
    const char buffer[] = {'w', 'i', 't', 'h', 'o', 'u', 't', ' ', 'e', 'n', 'd'};
    char copy[sizeof(buffer)];
    std::copy(std::begin(buffer), std::end(buffer), copy);
    label->Transfer(copy, owl::tdSetData);
    EXPECT_EQ("witho", label->GetWindowText());
}

TEST_F(Static, without_a_limit_transfers_nothing) {
    owl::TStatic other(desk.frame, 6, "other", 0, 0, 80, 20);
    other.Create();
    char buffer[2] = "x";
    EXPECT_EQ(0U, other.Transfer(buffer, owl::tdGetData));
    EXPECT_STREQ("x", buffer);
}

}  // namespace
