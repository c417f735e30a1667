// The program of docs/controls.md, used by keys in a process of its own. What comes out is read from its
// controls.
#include <gtest/gtest.h>

#include <string>

#include "examples/paints/paints_ids.h"
#include "lvx/controls/custom_colour_dialog_ids.h"
#include "support/other_program.h"
#include "support/user.h"

namespace {

using user::Press;
using user::WaitUntil;

class Paints : public ::testing::Test {
protected:
    Paints() : m_program(LVX_TEST_PROGRAM_PREFIX "paints.exe") {
        m_shop = user::WaitForShown(nullptr, "Paints");
    }
    void SetUp() override {
        ASSERT_NE(nullptr, m_shop);
        ASSERT_TRUE(m_program.Owns(m_shop));
        ASSERT_TRUE(user::WaitUntilInFront(m_shop));
    }

    static bool Has(HWND dialog, int id, const std::string& text) {
        return WaitUntil([=] { return user::TextOf(::GetDlgItem(dialog, id)) == text; });
    }
    /// Goes to a field by its letter, and types in place of its text.
    void Fill(WORD letter, int id, const std::string& text) const {
        Press({VK_MENU, letter});
        ASSERT_TRUE(WaitUntil([=, this] { return user::FocusOf(m_shop) == ::GetDlgItem(m_shop, id); }));
        Press({VK_HOME});
        Press({VK_SHIFT, VK_END});
        user::Type(text);
    }
    void Order() const { Press({VK_RETURN}); }
    bool Answers(const std::string& text) const { return Has(m_shop, IDC_ANSWER, text); }

    user::OtherProgram m_program;
    HWND m_shop = nullptr;
};

}  // namespace

TEST_F(Paints, takes_the_order_that_stands_there) {
    Order();
    EXPECT_TRUE(Answers("2.5 l of Brick, matt, for 1 coat."));
}

TEST_F(Paints, takes_an_order_that_is_typed) {
    Fill('L', IDC_LITRES, "x0.75");
    Fill('C', IDC_COATS, "12");
    Fill('F', IDC_FINISH, "s");
    Order();
    EXPECT_TRUE(Answers("0.75 l of Brick, satin, for 1 coat."));
}

TEST_F(Paints, asks_for_litres_and_coats) {
    Fill('L', IDC_LITRES, "-");
    Order();
    EXPECT_TRUE(Answers("How many litres?"));
    Fill('L', IDC_LITRES, "3");
    Fill('C', IDC_COATS, "0");
    Order();
    EXPECT_TRUE(Answers("From 1 to 9 coats, please."));
    Fill('C', IDC_COATS, "2");
    Order();
    EXPECT_TRUE(Answers("3 l of Brick, matt, for 2 coats."));
}

TEST_F(Paints, mixes_a_paint_and_sells_it) {
    Press({VK_MENU, 'M'});
    const HWND dialog = user::WaitForShown(user::dialog_class, "Colour");
    ASSERT_NE(nullptr, dialog);
    ASSERT_TRUE(user::WaitUntilInFront(dialog));
    EXPECT_TRUE(Has(dialog, IDC_COLOUR_NAME_EDIT, "Brick"));
    EXPECT_TRUE(Has(dialog, IDC_COLOUR_RED_EDIT, "178"));
    Press({VK_MENU, 'L'});
    user::Type("60");
    EXPECT_TRUE(Has(dialog, IDC_COLOUR_LIGHTNESS_EDIT, "60"));
    // m2 = 0.6 + 0.68 - 0.408 = 0.872, m1 = 0.328: 222.36 and 83.64.
    EXPECT_TRUE(Has(dialog, IDC_COLOUR_RED_EDIT, "222"));
    EXPECT_TRUE(Has(dialog, IDC_COLOUR_BLUE_EDIT, "84"));
    Press({VK_MENU, 'N'});
    user::Type("Rose");
    Press({VK_RETURN});
    EXPECT_TRUE(WaitUntil([=] { return !::IsWindow(dialog); }));
    ASSERT_TRUE(user::WaitUntilInFront(m_shop));
    Order();
    EXPECT_TRUE(Answers("2.5 l of Rose, matt, for 1 coat."));
}

TEST_F(Paints, closes_by_escape) {
    Press({VK_ESCAPE});
    EXPECT_EQ(0, m_program.WaitForEnd());
}
