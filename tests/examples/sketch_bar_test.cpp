// The example host as its user sees it: the bar of buttons, and colours of one's own.
#include <gtest/gtest.h>

#include "support/sketch_session.h"

namespace {

using namespace sketch_test;

class SketchBar : public Sketch {
protected:
    // Where the middle of a button is, from the bar's left end.
    enum Button {
        New = 12,
        Cut = 98,
        Paste = 136,
        UndoLast = 164,
        Select = 211,
        RectangleTool = 230,
        Properties = 316
    };

    HWND Bar() const { return ::GetDlgItem(m_sketch->Frame(), IDC_BAR); }
    // Whether a button is enabled is asked in idle moments: no hand is faster than those.
    void ClickOn(Button button) const {
        ::Sleep(300);
        user::ClickIn(Bar(), button, 14);
    }
    void HoverOver(Button button) const {
        RECT rect{};
        ::GetWindowRect(Bar(), &rect);
        user::MoveTo(rect.left + button, rect.top + 14);
    }
};

}  // namespace

TEST_F(SketchBar, chooses_tools_and_takes_back_what_they_drew) {
    StartInFront();
    ClickOn(RectangleTool);
    m_sketch->Pull({100, 120}, {220, 200});
    EXPECT_TRUE(m_sketch->ShowsStatus("Rectangle, 120 x 80"));
    // Its keys are still those of the drawing.
    Press({VK_ESCAPE});
    ClickOn(UndoLast);
    EXPECT_TRUE(Shows(white, 100, 120));
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled - Sketch"));
}

TEST_F(SketchBar, cuts_and_pastes) {
    StartInFront();
    DrawARectangle();
    ClickOn(Cut);
    EXPECT_TRUE(Shows(white, 100, 120));
    ClickOn(Paste);
    HoverOver(Select);
    m_sketch->ClickAt(10, 10);
    Press({VK_TAB});
    EXPECT_TRUE(m_sketch->ShowsStatus("Rectangle, 120 x 80"));
}

TEST_F(SketchBar, does_nothing_for_a_command_that_cannot_be) {
    StartInFront();
    ClickOn(UndoLast);
    ClickOn(Cut);
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled - Sketch"));
    DrawARectangle();
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled* - Sketch"));
}

TEST_F(SketchBar, says_what_a_button_does_while_the_mouse_is_over_it) {
    StartInFront();
    const std::string before = m_sketch->Status();
    HoverOver(RectangleTool);
    EXPECT_TRUE(m_sketch->ShowsStatus("Draws rectangles"));
    const POINT sheet = m_sketch->At(200, 200);
    user::MoveTo(sheet.x, sheet.y);
    EXPECT_TRUE(m_sketch->ShowsStatus(before));
}

TEST_F(SketchBar, opens_the_properties) {
    StartInFront();
    DrawARectangle();
    ClickOn(Properties);
    const HWND dialog = m_sketch->Dialog("Properties");
    Press({VK_ESCAPE});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
}

TEST_F(SketchBar, leaves_a_colour_of_ones_own_to_its_dialog) {
    StartInFront();
    DrawARectangle();
    Press({VK_CONTROL, 'L'});
    const HWND dialog = m_sketch->Dialog("Line and Fill");
    Press({VK_MENU, 'F'});
    Press({VK_MENU, 'H'});
    const HWND colours = m_sketch->Dialog("Colour");
    Press({VK_MENU, 'R'});
    user::Type("10");
    Press({VK_MENU, 'G'});
    user::Type("200");
    Press({VK_MENU, 'B'});
    user::Type("30");
    Press({VK_RETURN});
    ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(colours); }));
    ASSERT_TRUE(user::WaitUntilInFront(dialog));
    EXPECT_EQ("#0AC81E", user::TextOf(::GetDlgItem(dialog, IDC_FILL_COLOUR)));
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    EXPECT_TRUE(Shows(RGB(10, 200, 30), 160, 160));
}

TEST_F(SketchBar, keeps_the_former_colour_when_its_dialog_is_cancelled) {
    StartInFront();
    DrawARectangle();
    Press({VK_CONTROL, 'L'});
    const HWND dialog = m_sketch->Dialog("Line and Fill");
    Press({VK_MENU, 'H'});
    const HWND colours = m_sketch->Dialog("Colour");
    user::Type("7");
    Press({VK_ESCAPE});
    ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(colours); }));
    ASSERT_TRUE(user::WaitUntilInFront(dialog));
    EXPECT_EQ("White", user::TextOf(::GetDlgItem(dialog, IDC_FILL_COLOUR)));
    Press({VK_ESCAPE});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
}
