// The example host prints: what comes out is rendered by another program, 72 pixels to the inch.
#include <gtest/gtest.h>

#include "support/sketch_session.h"
#include "tests/owl/printed.h"

namespace {

using namespace sketch_test;

class SketchPrinting : public Sketch {
protected:
    void SetUp() override { ASSERT_EQ("", m_printer.Problem()); }
    // Prints and waits for the page.
    owl_test::RenderedPages Print() {
        Press({VK_CONTROL, VK_SHIFT, 'P'});
        const HWND dialog = m_sketch->Dialog("Print");
        Press({VK_RETURN});
        EXPECT_TRUE(m_sketch->IsGone(dialog));
        EXPECT_TRUE(WaitUntil([&] { return m_printer.HasPrinted(); }));
        // The dialog of the job goes when the page is out.
        ::Sleep(500);
        return m_printer.Pages();
    }

    owl_test::FilePrinter m_printer;
};

// A place of the sheet, 96 pixels to the inch, on the rendered page.
int OnPage(int sheet) {
    return sheet * 72 / 96;
}

}  // namespace

TEST_F(SketchPrinting, puts_figures_on_paper_where_they_are_on_the_sheet) {
    StartInFront(Packed());
    Press({VK_F3});
    m_sketch->Pull({300, 100}, {420, 180});
    Press({VK_CONTROL, 'L'});
    const HWND dialog = m_sketch->Dialog("Line and Fill");
    Press({VK_MENU, 'F'});
    Press({VK_MENU, 'O'});
    user::Type("y");
    Press({VK_RETURN});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    const owl_test::RenderedPages pages = Print();
    ASSERT_EQ("", pages.Problem());
    ASSERT_EQ(1U, pages.size());
    EXPECT_EQ(owl::TColor(255, 255, 0), pages[0].At(OnPage(360), OnPage(140)));
    EXPECT_EQ(owl::TColor(255, 255, 255), pages[0].At(OnPage(290), OnPage(140)));
    EXPECT_EQ(owl::TColor(255, 255, 255), pages[0].At(OnPage(430), OnPage(140)));
    // The picture's left upper end is red.
    const owl::TColor red = pages[0].At(OnPage(26) + 1, OnPage(26) + 1);
    EXPECT_LT(240, red.Red());
    EXPECT_GT(30, red.Green());
}

TEST_F(SketchPrinting, makes_a_drawing_smaller_that_the_page_does_not_hold) {
    StartInFront();
    Press({VK_F3});
    m_sketch->Pull({100, 100}, {160, 160});
    // The page is 800 pixels of the sheet wide: far beyond it now.
    for (int i = 0; i < 150; ++i)
        Press({VK_RIGHT});
    EXPECT_TRUE(m_sketch->ShowsStatus("Rectangle, 60 x 60"));
    const owl_test::RenderedPages pages = Print();
    ASSERT_EQ(1U, pages.size());
    // The sheet is 1360 pixels wide up to its right edge, the page 600 of the rendering.
    const int left = 1300 * 600 / 1360;
    bool isMarked = false;
    for (int x = left - 2; x <= left + 2; ++x)
        isMarked = isMarked || !(pages[0].At(x, 130 * 600 / 1360) == owl::TColor(255, 255, 255));
    EXPECT_TRUE(isMarked);
}

TEST_F(SketchPrinting, prints_nothing_when_the_user_cancels) {
    StartInFront();
    DrawARectangle();
    Press({VK_CONTROL, VK_SHIFT, 'P'});
    const HWND dialog = m_sketch->Dialog("Print");
    Press({VK_ESCAPE});
    EXPECT_TRUE(m_sketch->IsGone(dialog));
    EXPECT_FALSE(m_printer.HasPrinted());
    EXPECT_TRUE(m_sketch->ShowsStatus("Rectangle, 120 x 80"));
}
