#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "owl/dc.h"
#include "owl/font.h"
#include "surface.h"

namespace {

using owl::TColor;
using owl::TFont;
using owl::TRect;
using owl::TSize;
using owl_test::Surface;

/// A surface with a font of 20 units.
class DcText : public testing::Test {
protected:
    DcText() {
        surface.dc.SelectObject(m_font);
        surface.dc.GetTextMetrics(m_metrics);
    }
    ~DcText() override { surface.dc.RestoreObjects(); }

    /// The height of a line, of about 20 units: the system gives the nearest font that it has.
    int Line() const { return m_metrics.tmHeight; }

    /// The rectangle of what is not white.
    TRect Ink() const {
        TRect ink;
        for (int y = 0; y < 60; ++y) {
            for (int x = 0; x < 200; ++x) {
                if (TColor(surface.At(x, y)) != TColor::White)
                    ink |= TRect(x, y, x + 1, y + 1);
            }
        }
        return ink;
    }

private:
    static LOGFONT Description() {
        LOGFONT description{};
        description.lfHeight = 20;
        std::strcpy(description.lfFaceName, "Arial");
        return description;
    }

    TFont m_font{Description()};
    TEXTMETRIC m_metrics{};

protected:
    Surface surface{200, 60};
};

TEST_F(DcText, is_drawn_where_it_should_be_and_as_wide_as_measured) {
    const TSize size = surface.dc.GetTextExtent("HHH");
    EXPECT_NEAR(20, Line(), 2);
    EXPECT_EQ(Line(), size.cy);
    EXPECT_TRUE(surface.dc.TextOut(50, 30, "HHH"));
    const TRect ink = Ink();
    EXPECT_TRUE(TRect(50, 30, 50 + size.cx, 30 + Line()).Contains(ink)) << ink.left << " " << ink.right;
    EXPECT_GT(ink.Width(), size.cx / 2);
    EXPECT_GT(ink.Height(), 9);
}

TEST_F(DcText, takes_the_colours_of_the_context) {
    surface.dc.SetTextColor(TColor::LtRed);
    surface.dc.SetBkColor(TColor::LtGreen);
    surface.dc.TextOut(0, 0, std::string(" "));
    EXPECT_EQ(TColor::LtGreen, TColor(surface.At(1, 1)));
    surface.dc.SetBkMode(TRANSPARENT);
    surface.dc.TextOut(50, 30, "\xA6");
    EXPECT_EQ(TColor::White, TColor(surface.At(50, 30)));
    surface.dc.TextOut(100, 30, "HHH");
    const std::string picture = surface.Picture();
    EXPECT_GT(std::count(picture.begin(), picture.end(), 'R'), 10);
}

TEST_F(DcText, is_measured_in_all_forms_alike) {
    const TSize size = surface.dc.GetTextExtent("abc");
    EXPECT_GT(size.cx, 10);
    EXPECT_EQ(size, surface.dc.GetTextExtent(std::string("abc")));
    EXPECT_EQ(size, surface.dc.GetTextExtent("abcdef", 3));
    EXPECT_EQ(size, surface.dc.GetTextExtentPointW(L"abc"));
    EXPECT_EQ(size, surface.dc.GetTextExtentPointW(L"abcdef", 3));
    EXPECT_LT(size.cx, surface.dc.GetTextExtent("abcd").cx);
}

TEST_F(DcText, that_is_null_or_empty_is_nothing) {
    EXPECT_EQ(0, surface.dc.GetTextExtent(static_cast<const char*>(nullptr)).cx);
    EXPECT_EQ(0, surface.dc.GetTextExtent("").cx);
    EXPECT_EQ(0, surface.dc.GetTextExtent("abc", 0).cx);
    EXPECT_EQ(0, surface.dc.GetTextExtentPointW(nullptr).cx);
    EXPECT_TRUE(surface.dc.TextOut(0, 0, static_cast<const char*>(nullptr), 5));
    EXPECT_TRUE(surface.dc.TextOutW(0, 0, nullptr));
    EXPECT_TRUE(surface.dc.TextOut(0, 0, ""));
    EXPECT_TRUE(Ink().IsNull());
}

TEST_F(DcText, that_is_wide_draws_as_narrow_text_does) {
    surface.dc.TextOut(0, 0, "Hg", 2);
    const std::string narrow = surface.Picture();
    surface.dc.PatBlt(0, 0, 200, 60, WHITENESS);
    EXPECT_TRUE(surface.dc.TextOutW(0, 0, L"Hg?", 2));
    EXPECT_EQ(narrow, surface.Picture());
    surface.dc.PatBlt(0, 0, 200, 60, WHITENESS);
    EXPECT_TRUE(surface.dc.TextOut(owl::TPoint(), std::string("Hg")));
    EXPECT_EQ(narrow, surface.Picture());
}

TEST_F(DcText, in_a_rectangle_is_measured_without_being_drawn) {
    TRect rect(0, 0, 5, 5);
    EXPECT_EQ(Line(), surface.dc.DrawText("abc", rect, DT_CALCRECT | DT_SINGLELINE));
    EXPECT_EQ(TRect(0, 0, surface.dc.GetTextExtent("abc").cx, Line()), rect);
    EXPECT_TRUE(Ink().IsNull());
}

TEST_F(DcText, in_a_rectangle_is_broken_between_words) {
    TRect rect(0, 0, surface.dc.GetTextExtent("abcd").cx, 5);
    EXPECT_EQ(2 * Line(), surface.dc.DrawText("abc def", -1, rect, DT_CALCRECT | DT_WORDBREAK));
    EXPECT_EQ(2 * Line(), rect.bottom);
}

TEST_F(DcText, in_a_rectangle_is_placed_by_the_format) {
    TRect rect(0, 0, 200, 60);
    surface.dc.DrawText("H", rect, DT_RIGHT | DT_BOTTOM | DT_SINGLELINE);
    const TRect ink = Ink();
    EXPECT_GT(ink.left, 150);
    EXPECT_GT(ink.top, 40);
    TRect none(0, 0, 200, 60);
    surface.dc.DrawText(nullptr, 7, none, DT_LEFT);
    EXPECT_EQ(ink, Ink());
}

TEST_F(DcText, tells_the_metrics_and_the_face_of_its_font) {
    TEXTMETRIC metrics{};
    EXPECT_TRUE(surface.dc.GetTextMetrics(metrics));
    EXPECT_EQ(Line(), metrics.tmHeight);
    EXPECT_EQ(metrics.tmHeight, metrics.tmAscent + metrics.tmDescent);
    EXPECT_FALSE(surface.dc.GetTextFace().empty());
}

TEST_F(DcText, face_fits_the_buffer) {
    char buffer[32] = "unchanged";
    EXPECT_EQ(0, surface.dc.GetTextFace(buffer, 0));
    EXPECT_EQ(0, surface.dc.GetTextFace(buffer, -1));
    EXPECT_EQ(0, surface.dc.GetTextFace(nullptr, 31));
    EXPECT_STREQ("unchanged", buffer);
    EXPECT_GT(surface.dc.GetTextFace(buffer, 31), 0);
    EXPECT_EQ(surface.dc.GetTextFace(), buffer);
    char small[4] = {'x', 'x', 'x', 'x'};
    surface.dc.GetTextFace(small, 3);
    EXPECT_EQ('\0', small[2]);
    EXPECT_EQ('x', small[3]);
}

}  // namespace
