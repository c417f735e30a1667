// The example host's texts: what they are like on the sheet and on devices of other fineness.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>

#include "lvx/drawing/bitmap.h"
#include "lvx/drawing/port.h"
#include "owl/dc.h"
#include "sketch/model/text.h"
#include "support/sketch_figures.h"

namespace {

using owl::TPoint;
using owl::TRect;
using owl::TSize;

sketch::Text TextOf(const std::string& words, double points = 12) {
    return {words, myFont("Arial", points, false, false, false, false), sketch::Look{}, {100, 50}};
}

// A white picture of the text; `scale` pixels of it are one of the sheet.
class Drawn {
public:
    Drawn(const sketch::Figure& figure, int width, int height, int scale = 1)
        : m_width(width), m_height(height), m_bitmap(width, height, nullptr) {
        m_bitmap.eraseWhite();
        LVX::Port port(m_bitmap);
        port.Open();
        port.GetDC()->SetMapMode(MM_ANISOTROPIC);
        port.GetDC()->SetWindowExt({1, 1});
        port.GetDC()->SetViewportExt({scale, scale});
        figure.Draw(port);
        port.GetDC()->SetMapMode(MM_TEXT);
    }
    /// The smallest rectangle that has all that is not white in it.
    TRect Marked() {
        owl::TDC& dc = *m_bitmap.AcquireDC();
        TRect marked(m_width, m_height, 0, 0);
        for (int y = 0; y < m_height; ++y) {
            for (int x = 0; x < m_width; ++x) {
                if ((::GetPixel(dc, x, y) & 0xFFFFFF) != RGB(255, 255, 255)) {
                    marked = {std::min<int>(marked.left, x), std::min<int>(marked.top, y),
                              std::max<int>(marked.right, x + 1), std::max<int>(marked.bottom, y + 1)};
                }
            }
        }
        m_bitmap.ReleaseDC();
        return marked;
    }
    COLORREF Pixel(int x, int y) {
        const COLORREF colour = ::GetPixel(*m_bitmap.AcquireDC(), x, y);
        m_bitmap.ReleaseDC();
        return colour;
    }

private:
    int m_width;
    int m_height;
    LVXBitmap m_bitmap;
};

}  // namespace

TEST(SketchText, is_as_high_as_its_lines) {
    const int line = TextOf("one").Bounds().Height();
    EXPECT_EQ(3 * line, TextOf("one\ntwo\nthree").Bounds().Height());
    EXPECT_EQ(2 * line, TextOf("one\r\n").Bounds().Height());
    EXPECT_EQ(TPoint(100, 50), TextOf("one").Bounds().TopLeft());
}

TEST(SketchText, is_as_wide_as_its_widest_line) {
    EXPECT_EQ(TextOf("wwwwwwww").Bounds().Width(), TextOf("ww\nwwwwwwww\nw").Bounds().Width());
    EXPECT_LT(TextOf("ww").Bounds().Width(), TextOf("wwwwwwww").Bounds().Width());
}

TEST(SketchText, marks_the_sheet_inside_of_its_bounds) {
    const sketch::Text text = TextOf("Hxg", 24);
    const TRect marked = Drawn(text, 300, 200).Marked();
    ASSERT_FALSE(marked.IsEmpty());
    const TRect bounds = text.Bounds();
    EXPECT_LE(bounds.left, marked.left);
    EXPECT_LE(bounds.top, marked.top);
    EXPECT_GE(bounds.right, marked.right);
    EXPECT_GE(bounds.bottom, marked.bottom);
    // 24 points are 32 pixels from the top of the tallest letters to the foot of the lowest, more or less.
    EXPECT_NEAR(28, marked.Height(), 4);
}

TEST(SketchText, takes_as_much_of_the_sheet_on_a_finer_device) {
    const sketch::Text text = TextOf("Hxg", 24);
    const TRect coarse = Drawn(text, 300, 200).Marked();
    const TRect fine = Drawn(text, 1200, 800, 4).Marked();
    EXPECT_NEAR(4 * coarse.left, fine.left, 6);
    EXPECT_NEAR(4 * coarse.Height(), fine.Height(), 8);
    EXPECT_NEAR(4 * coarse.Width(), fine.Width(), 16);
}

TEST(SketchText, has_the_line_colour_on_the_fill_colour) {
    sketch::Text text = TextOf("HHHH", 40);
    text.LookOf()->filled = true;
    text.LookOf()->fillColour = LVX::Yellow;
    text.LookOf()->lineColour = LVX::Red;
    Drawn drawn(text, 400, 200);
    const TRect bounds = text.Bounds();
    EXPECT_EQ(bounds, drawn.Marked());
    EXPECT_EQ(RGB(255, 255, 0), drawn.Pixel(bounds.left, bounds.top));
    bool isRed = false;
    for (LONG x = bounds.left; x < bounds.right; ++x) {
        isRed = isRed || drawn.Pixel(x, (bounds.top + bounds.bottom) / 2) == RGB(255, 0, 0);
    }
    EXPECT_TRUE(isRed);
}

TEST(SketchText, gets_letters_as_large_as_its_height_is_pulled) {
    sketch::Text text = TextOf("pull me", 20);
    const TRect before = text.Bounds();
    // The lower right corner; the upper left one stays.
    text.Pull(2, before.BottomRight(), before.BottomRight() + TSize(0, before.Height()));
    EXPECT_EQ(40, text.Font().Size());
    EXPECT_EQ(before.TopLeft(), text.Bounds().TopLeft());
    // The upper left one; the lower right one stays.
    const TRect large = text.Bounds();
    text.Pull(0, large.TopLeft(), large.TopLeft() + TSize(0, large.Height() / 2));
    EXPECT_NEAR(20, text.Font().Size(), 0.5);
    EXPECT_EQ(large.BottomRight(), text.Bounds().BottomRight());
}

TEST(SketchText, stays_within_the_sizes_that_may_be_when_it_is_pulled) {
    sketch::Text text = TextOf("a", 20);
    const TRect before = text.Bounds();
    text.Pull(2, before.BottomRight(), before.TopRight());
    EXPECT_EQ(sketch::Text::smallest, text.Font().Size());
    text.Pull(2, {}, {0, 900000});
    EXPECT_EQ(sketch::Text::largest, text.Font().Size());
}

TEST(SketchText, tells_its_first_words_and_its_font) {
    EXPECT_EQ("Text \"one\", Arial, 12 points", TextOf("one").Describe());
    EXPECT_EQ("Text \"one...\", Arial, 12 points", TextOf("one\ntwo").Describe());
    EXPECT_EQ("Text \"123456789012345678901234567890...\", Arial, 12 points",
              TextOf("1234567890123456789012345678901").Describe());
    EXPECT_EQ("Arial, 10.5 points, bold, underlined", sketch::DescribeFont(sketch_test::SomeFont()));
    EXPECT_EQ("Arial, 1 point, italic, struck out",
              sketch::DescribeFont(myFont("Arial", 1, false, true, false, true)));
}

TEST(SketchText, does_not_go_where_no_figure_may_be) {
    sketch::Text text = TextOf("far");
    text.MoveBy({-2000000, 0});
    EXPECT_EQ(TPoint(100, 50), text.Bounds().TopLeft());
    text.MoveBy({-10, 5});
    EXPECT_EQ(TPoint(90, 55), text.Bounds().TopLeft());
}

TEST(SketchText, changes_its_words_where_it_is) {
    sketch::Text text = TextOf("before");
    text.Write("after\r\nthat", sketch_test::SomeFont());
    EXPECT_EQ("after\nthat", text.Words());
    EXPECT_TRUE(sketch_test::SomeFont() == text.Font());
    EXPECT_EQ(TPoint(100, 50), text.Bounds().TopLeft());
}
