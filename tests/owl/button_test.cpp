#include "owl/button.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "tests/owl/desk.h"

namespace {

class Panel : public owl::TWindow {
public:
    explicit Panel(owl::TWindow* parent) : TWindow(parent) {
        Attr.W = 300;
        Attr.H = 200;
    }
    void CmPressed() { ++pressed; }
    int pressed = 0;

    DECLARE_RESPONSE_TABLE(Panel);
};

DEFINE_RESPONSE_TABLE1(Panel, owl::TWindow)
    EV_COMMAND(5, CmPressed),
END_RESPONSE_TABLE;

struct Button : testing::Test {
    Button() : panel(new Panel(desk.frame)) { panel->Create(); }

    template <class Made>
    Made* Show(Made* made) {
        made->Create();
        return made;
    }

    desk::Desk desk;
    Panel* panel;
};

TEST_F(Button, is_a_command_when_it_is_pressed_by_the_space_bar) {
    auto* button = Show(new owl::TButton(panel, 5, "press", 0, 0, 60, 20));
    ASSERT_TRUE(desk::Activate(*desk.frame));
    button->SetFocus();
    desk::Press({VK_SPACE});
    EXPECT_TRUE(desk::PumpUntil([&] { return panel->pressed == 1; }));
}

TEST_F(Button, may_be_the_default) {
    auto* button = Show(new owl::TButton(panel, 5, "press", 0, 0, 60, 20, true));
    EXPECT_NE(0, button->SendMessage(WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON);
    EXPECT_EQ(0U, button->Transfer(nullptr, owl::tdSizeData));
}

TEST_F(Button, with_a_box_is_checked_by_pressing) {
    auto* box = Show(new owl::TCheckBox(panel, 5, "check", 0, 0, 60, 20));
    EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), box->GetCheck());
    box->SendMessage(BM_CLICK);
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), box->GetCheck());
    EXPECT_EQ(1, panel->pressed);
    box->Uncheck();
    EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), box->GetCheck());
    box->Check();
    box->Toggle();
    EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), box->GetCheck());
}

TEST_F(Button, with_three_states_goes_through_them) {
    auto* box = new owl::TCheckBox(panel, 5, "check", 0, 0, 60, 20);
    box->Attr.Style = WS_CHILD | BS_AUTO3STATE;
    box->Create();
    std::vector<UINT> states;
    for (int i = 0; i < 3; ++i) {
        box->Toggle();
        states.push_back(box->GetCheck());
    }
    EXPECT_EQ((std::vector<UINT>{BST_CHECKED, BST_INDETERMINATE, BST_UNCHECKED}), states);
}

TEST_F(Button, with_a_box_transfers_sixteen_bits) {
    auto* box = Show(new owl::TCheckBox(panel, 5, "check", 0, 0, 60, 20));
    std::uint16_t check = BST_CHECKED;
    EXPECT_EQ(2U, box->Transfer(&check, owl::tdSetData));
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), box->GetCheck());
    box->Uncheck();
    box->Transfer(&check, owl::tdGetData);
    EXPECT_EQ(BST_UNCHECKED, check);
}

TEST_F(Button, of_a_group_leaves_one_checked) {
    auto* group = Show(new owl::TGroupBox(panel, 6, "group", 0, 0, 200, 100));
    auto* first = new owl::TRadioButton(panel, 7, "first", 5, 20, 60, 20);
    first->Attr.Style |= WS_GROUP;
    first->Create();
    auto* second = Show(new owl::TRadioButton(panel, 8, "second", 5, 50, 60, 20));
    first->SendMessage(BM_CLICK);
    second->SendMessage(BM_CLICK);
    EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), first->GetCheck());
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), second->GetCheck());
    EXPECT_EQ(static_cast<LRESULT>(DLGC_STATIC), group->SendMessage(WM_GETDLGCODE));
}

}  // namespace
