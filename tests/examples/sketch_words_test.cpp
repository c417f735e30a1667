// The example host as its user sees it: texts and their fonts.
#include <gtest/gtest.h>

#include "support/sketch_session.h"

namespace {

using namespace sketch_test;

class SketchWords : public Sketch {
protected:
    // Enters words into the dialog that is there.
    void Enter(const std::string& words) const {
        const HWND dialog = m_sketch->Dialog("Text");
        user::Type(words);
        Press({VK_RETURN});
        EXPECT_TRUE(m_sketch->IsGone(dialog));
    }
    void WriteAt(int x, int y, const std::string& words) const {
        Press({VK_F6});
        m_sketch->ClickAt(x, y);
        Enter(words);
    }
};

}  // namespace

TEST_F(SketchWords, are_written_where_the_mouse_clicks) {
    StartInFront();
    WriteAt(100, 120, "Hello");
    EXPECT_TRUE(m_sketch->ShowsStatus("Text \"Hello\", Arial, 18 points"));
    Press({VK_ESCAPE});
    const ScreenPicture picture = StillPicture();
    EXPECT_LT(50, picture.Count(black));
    EXPECT_TRUE(Shows(white, 99, 130));
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled* - Sketch"));
}

TEST_F(SketchWords, are_written_by_keys_alone_in_several_lines) {
    StartInFront();
    Press({VK_F6});
    Press({VK_RETURN});
    const HWND dialog = m_sketch->Dialog("Text");
    user::Type("one");
    Press({VK_CONTROL, VK_RETURN});
    user::Type("two");
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    EXPECT_TRUE(m_sketch->ShowsStatus("Text \"one...\", Arial, 18 points"));
}

TEST_F(SketchWords, are_none_when_the_dialog_is_cancelled_or_empty) {
    StartInFront();
    Press({VK_F6});
    Press({VK_RETURN});
    const HWND dialog = m_sketch->Dialog("Text");
    user::Type("  ");
    Press({VK_RETURN});
    HWND box = nullptr;
    ASSERT_TRUE(
        WaitUntil([&] { return (box = ::GetForegroundWindow()) != dialog && user::TextOf(box) == "Text"; }));
    Press({VK_RETURN});
    ASSERT_TRUE(user::WaitUntilInFront(dialog));
    Press({VK_ESCAPE});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    EXPECT_TRUE(m_sketch->ShowsTitle("Untitled - Sketch"));
}

TEST_F(SketchWords, are_changed_by_a_double_click) {
    StartInFront();
    WriteAt(100, 120, "Hello");
    Press({VK_ESCAPE});
    m_sketch->DoubleClickAt(110, 135);
    Enter("Goodbye");
    EXPECT_TRUE(m_sketch->ShowsStatus("Text \"Goodbye\", Arial, 18 points"));
    Press({VK_CONTROL, 'Z'});
    Press({VK_TAB});
    EXPECT_TRUE(m_sketch->ShowsStatus("Text \"Hello\", Arial, 18 points"));
}

TEST_F(SketchWords, get_the_font_that_is_chosen) {
    StartInFront();
    WriteAt(100, 120, "Hello");
    Press({VK_CONTROL, 'E'});
    const HWND dialog = m_sketch->Dialog("Text");
    Press({VK_MENU, 'F'});
    const HWND fonts = m_sketch->Dialog("Font");
    Press({VK_MENU, 'S'});
    user::Type("36");
    Press({VK_RETURN});
    ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(fonts); }));
    ASSERT_TRUE(user::WaitUntilInFront(dialog));
    EXPECT_EQ("Arial, 36 points", user::TextOf(::GetDlgItem(dialog, IDC_FONT_NAME)));
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    EXPECT_TRUE(m_sketch->ShowsStatus("Text \"Hello\", Arial, 36 points"));
}

TEST_F(SketchWords, have_the_line_colour) {
    StartInFront();
    WriteAt(100, 120, "HHHH");
    Press({VK_CONTROL, 'L'});
    const HWND dialog = m_sketch->Dialog("Line and Fill");
    Press({VK_MENU, 'C'});
    user::Type("r");
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    Press({VK_ESCAPE});
    EXPECT_LT(50, StillPicture().Count(RGB(255, 0, 0)));
}
