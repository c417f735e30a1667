#include <gtest/gtest.h>

#include "owl/command_enabler.h"
#include "tests/owl/desk.h"

namespace {

// Answers each command of its menu as the command's number says.
class Frame : public owl::TFrameWindow {
public:
    Frame() : TFrameWindow(nullptr, "menu") {}

    void EvCommandEnable(owl::TCommandEnabler& enabler) override {
        asked.push_back(enabler.GetId());
        switch (enabler.GetId()) {
            case 1:
                enabler.Enable(false);
                break;
            case 2:
                enabler.SetText("New");
                break;
            case 3:
                enabler.SetText("New\tF3");
                break;
            case 4:
                enabler.SetCheck(owl::TCommandEnabler::Checked);
                break;
            case 5:
                enabler.SetCheck(owl::TCommandEnabler::Unchecked);
                break;
            case 6:
                enabler.SetCheck(owl::TCommandEnabler::Indeterminate);
                break;
            default:
                enabler.SetText(nullptr);
        }
    }

    std::vector<UINT> asked;
};

struct MenuEnabler : testing::Test {
    MenuEnabler() : frame(new Frame), menu(::CreatePopupMenu()) {
        application.SetMainWindow(frame);
        frame->Create();
        for (UINT id = 1; id <= 7; ++id)
            ::AppendMenuA(menu, id == 5 ? MF_STRING | MF_CHECKED : MF_STRING, id, "Old\tF2");
        ::AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
        ::AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(::CreatePopupMenu()), "Sub");
        ::AppendMenuA(menu, MF_STRING, SC_RESTORE, "System");
        frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), 0);
    }
    ~MenuEnabler() override { ::DestroyMenu(menu); }

    UINT State(UINT id) const { return ::GetMenuState(menu, id, MF_BYCOMMAND); }
    std::string Text(UINT id) const {
        char text[32] = "";
        ::GetMenuStringA(menu, id, text, sizeof(text), MF_BYCOMMAND);
        return text;
    }

    owl::TApplication application;
    Frame* frame;
    HMENU menu;
};

TEST_F(MenuEnabler, asks_for_commands_alone) {
    EXPECT_EQ((std::vector<UINT>{1, 2, 3, 4, 5, 6, 7}), frame->asked);
}

TEST_F(MenuEnabler, greys_what_is_disabled) {
    EXPECT_NE(0U, State(1) & MF_GRAYED);
    EXPECT_EQ(0U, State(2) & MF_GRAYED);
}

TEST_F(MenuEnabler, keeps_the_key_behind_a_new_text) {
    EXPECT_EQ("New\tF2", Text(2));
}

TEST_F(MenuEnabler, takes_a_new_key_with_a_new_text) {
    EXPECT_EQ("New\tF3", Text(3));
}

TEST_F(MenuEnabler, takes_no_text_as_an_empty_one) {
    EXPECT_EQ("\tF2", Text(7));
}

TEST_F(MenuEnabler, checks_and_unchecks) {
    EXPECT_NE(0U, State(4) & MF_CHECKED);
    EXPECT_EQ(0U, State(5) & MF_CHECKED);
    EXPECT_NE(0U, State(6) & MF_CHECKED);
}

}  // namespace
