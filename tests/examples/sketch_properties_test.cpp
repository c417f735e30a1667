// The example host as its user sees it: the dialog with tabs for the properties of a figure.
#include <gtest/gtest.h>

#include "support/child_windows.h"
#include "support/sketch_session.h"

namespace {

using namespace sketch_test;

class SketchProperties : public Sketch {
protected:
    void SetUp() override {
        StartInFront(Packed());
        Press({VK_F3});
        m_sketch->Pull({200, 120}, {320, 200});
        ASSERT_TRUE(m_sketch->ShowsStatus("Rectangle, 120 x 80"));
    }
    HWND Open() const {
        Press({VK_MENU, VK_RETURN});
        return m_sketch->Dialog("Properties");
    }
    enum Tab { Shape, Line, Fill, Font, PictureTab };
    // All tabs are about as wide.
    static void GoTo(HWND dialog, Tab tab) {
        const HWND strip = ::FindWindowExA(dialog, nullptr, "tbProperty", nullptr);
        ASSERT_NE(nullptr, strip);
        user::ClickIn(strip, 32 + 64 * tab, 10);
        ::Sleep(200);
    }
    // The field of the page that is to be seen.
    static HWND Field(HWND dialog, int id) {
        HWND found = nullptr;
        const auto fits = [id](HWND window) { return ::GetDlgCtrlID(window) == id; };
        WaitUntil([&] { return (found = user::FindShownChild(dialog, fits)) != nullptr; }, 3000);
        return found;
    }
    static bool IsSeen(HWND dialog, int id) { return Field(dialog, id) != nullptr; }
    // Puts text into a field by clicking there and typing.
    static void Enter(HWND dialog, int id, const std::string& text) {
        const HWND field = Field(dialog, id);
        ASSERT_NE(nullptr, field);
        user::TypeAnew(field, text);
    }
    void Agree(HWND dialog) const {
        Press({VK_RETURN});
        EXPECT_TRUE(m_sketch->IsGone(dialog));
    }
    // The box that says what is wrong; it is closed.
    static std::string TextOfBox(HWND dialog) {
        HWND box = nullptr;
        EXPECT_TRUE(WaitUntil(
            [&] { return (box = ::GetForegroundWindow()) != dialog && user::TextOf(box) == "Properties"; }));
        const std::string text = user::TextOf(::GetDlgItem(box, 0xFFFF));
        Press({VK_RETURN});
        EXPECT_TRUE(user::WaitUntilInFront(dialog));
        return text;
    }
};

}  // namespace

TEST_F(SketchProperties, move_and_size_a_shape_by_numbers) {
    const HWND dialog = Open();
    EXPECT_EQ("200", user::TextOf(Field(dialog, IDC_LEFT)));
    EXPECT_EQ("80", user::TextOf(Field(dialog, IDC_HEIGHT)));
    Enter(dialog, IDC_LEFT, "250");
    Enter(dialog, IDC_TOP, "150");
    Enter(dialog, IDC_WIDTH, "60");
    Enter(dialog, IDC_HEIGHT, "40");
    Agree(dialog);
    EXPECT_TRUE(m_sketch->ShowsStatus("Rectangle, 60 x 40"));
    Press({VK_ESCAPE});
    EXPECT_TRUE(Shows(black, 250, 150));
    EXPECT_TRUE(Shows(black, 309, 189));
    EXPECT_TRUE(Shows(white, 249, 150));
    Press({VK_CONTROL, 'Z'});
    EXPECT_TRUE(Shows(black, 200, 120));
}

TEST_F(SketchProperties, change_line_and_fill_on_their_pages) {
    const HWND dialog = Open();
    GoTo(dialog, Line);
    Enter(dialog, IDC_LINE_WIDTH, "5");
    GoTo(dialog, Fill);
    user::Click(Field(dialog, IDC_FILLED));
    Press({VK_MENU, 'C'});
    user::Type("y");
    Agree(dialog);
    Press({VK_ESCAPE});
    EXPECT_TRUE(Shows(black, 198, 160));
    EXPECT_TRUE(Shows(black, 202, 160));
    EXPECT_TRUE(Shows(RGB(255, 255, 0), 260, 160));
}

TEST_F(SketchProperties, change_nothing_when_cancelled) {
    const ScreenPicture before = StillPicture();
    const HWND dialog = Open();
    Enter(dialog, IDC_LEFT, "7");
    Press({VK_ESCAPE});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    EXPECT_TRUE(WaitUntil([&] { return Picture() == before; }));
}

TEST_F(SketchProperties, do_not_let_a_page_go_while_its_number_is_wrong) {
    const HWND dialog = Open();
    // The first change of tab of a program is never refused.
    GoTo(dialog, Line);
    // A number beyond 64 cannot be typed, but none can.
    Enter(dialog, IDC_LINE_WIDTH, "");
    GoTo(dialog, Fill);
    EXPECT_EQ("Please enter a whole number from 0 to 64.", TextOfBox(dialog));
    EXPECT_TRUE(IsSeen(dialog, IDC_LINE_WIDTH));
    // Nor does it let the dialog close.
    Press({VK_RETURN});
    EXPECT_EQ("Please enter a whole number from 0 to 64.", TextOfBox(dialog));
    Enter(dialog, IDC_LINE_WIDTH, "9");
    GoTo(dialog, Fill);
    EXPECT_TRUE(IsSeen(dialog, IDC_FILLED));
    Agree(dialog);
    Press({VK_ESCAPE});
    EXPECT_TRUE(Shows(black, 196, 160));
}

TEST_F(SketchProperties, bring_the_page_forward_that_does_not_agree) {
    const HWND dialog = Open();
    Enter(dialog, IDC_WIDTH, "");
    GoTo(dialog, Line);
    EXPECT_TRUE(IsSeen(dialog, IDC_LINE_WIDTH));
    Press({VK_RETURN});
    EXPECT_EQ("Please enter a whole number from 0 to 1000000.", TextOfBox(dialog));
    EXPECT_TRUE(IsSeen(dialog, IDC_WIDTH));
    Press({VK_ESCAPE});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
}

TEST_F(SketchProperties, turn_and_name_a_picture) {
    Press({VK_TAB});
    ASSERT_TRUE(m_sketch->ShowsStatus("Picture \"test\", 127 x 64"));
    const HWND dialog = Open();
    // The pages for lines, fills and fonts are not its own.
    GoTo(dialog, PictureTab);
    Enter(dialog, IDC_NAME, "rose");
    Enter(dialog, IDC_DEGREES, "22.5");
    Agree(dialog);
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture \"rose\", 127 x 64, turned by 23 degrees to the left"));
    const HWND again = Open();
    GoTo(again, PictureTab);
    EXPECT_EQ("22.5", user::TextOf(Field(again, IDC_DEGREES)));
    Enter(again, IDC_DEGREES, "0");
    Agree(again);
    EXPECT_TRUE(m_sketch->ShowsStatus("Picture \"rose\", 127 x 64"));
}

TEST_F(SketchProperties, are_those_of_the_shapes_to_come_when_nothing_is_selected) {
    Press({VK_ESCAPE});
    const HWND dialog = Open();
    EXPECT_TRUE(IsSeen(dialog, IDC_LINE_WIDTH));
    Enter(dialog, IDC_LINE_WIDTH, "5");
    Agree(dialog);
    Press({VK_F3});
    m_sketch->Pull({400, 220}, {440, 260});
    Press({VK_ESCAPE});
    EXPECT_TRUE(Shows(black, 398, 240));
    EXPECT_TRUE(Shows(black, 402, 240));
    // The one that was there keeps its own.
    EXPECT_TRUE(Shows(white, 198, 160));
}

TEST_F(SketchProperties, come_by_a_double_click) {
    m_sketch->DoubleClickAt(260, 160);
    const HWND dialog = m_sketch->Dialog("Properties");
    Press({VK_ESCAPE});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
}
