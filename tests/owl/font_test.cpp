#include "owl/font.h"

#include <gtest/gtest.h>

#include <cstring>

#include "surface.h"

namespace {

using owl::TFont;
using owl_test::Surface;

LOGFONT Asked(int height, const char* face) {
    LOGFONT description{};
    description.lfHeight = height;
    description.lfItalic = TRUE;
    description.lfWeight = 700;
    std::strncpy(description.lfFaceName, face, LF_FACESIZE - 1);
    return description;
}

TEST(Font, tells_what_was_asked_for) {
    const TFont font(Asked(-17, "Arial"));
    LOGFONT description;
    ASSERT_TRUE(font.GetObject(description));
    EXPECT_EQ(-17, description.lfHeight);
    EXPECT_EQ(700, description.lfWeight);
    EXPECT_EQ(TRUE, description.lfItalic);
    EXPECT_STREQ("Arial", description.lfFaceName);
}

// Which face is near to the one asked for, and how near its height, depends on the fonts that the system has.
TEST(Font, takes_effect_when_selected) {
    Surface surface(1, 1);
    const TFont small(Asked(10, "Arial"));
    const TFont large(Asked(50, "Arial"));
    TEXTMETRIC metrics;
    surface.dc.SelectObject(small);
    ASSERT_TRUE(surface.dc.GetTextMetrics(metrics));
    EXPECT_NEAR(10, metrics.tmHeight, 1);
    surface.dc.SelectObject(large);
    ASSERT_TRUE(surface.dc.GetTextMetrics(metrics));
    EXPECT_NEAR(50, metrics.tmHeight, 2);
}

TEST(Font, borrows_a_stock_font) {
    const HFONT stock = static_cast<HFONT>(::GetStockObject(ANSI_VAR_FONT));
    LOGFONT before, after;
    { EXPECT_TRUE(TFont(stock, owl::NoAutoDelete).GetObject(before)); }
    EXPECT_TRUE(TFont(stock).GetObject(after));
    EXPECT_STREQ(before.lfFaceName, after.lfFaceName);
    EXPECT_NE('\0', after.lfFaceName[0]);
}

TEST(Font, copied_lives_without_the_other) {
    const TFont* first = new TFont(Asked(-17, "Arial"));
    const TFont copy(*first);
    EXPECT_NE(first->GetHandle(), copy.GetHandle());
    delete first;
    LOGFONT description;
    ASSERT_TRUE(copy.GetObject(description));
    EXPECT_EQ(-17, description.lfHeight);
    EXPECT_STREQ("Arial", description.lfFaceName);
}

TEST(Font, on_a_null_handle_describes_nothing_and_cannot_be_copied_or_selected) {
    const TFont font(HFONT(nullptr));
    LOGFONT description;
    EXPECT_FALSE(font.GetObject(description));
    EXPECT_EQ(0, description.lfHeight);
    EXPECT_THROW(TFont copy(font), owl::TXGdi);
    Surface surface(1, 1);
    EXPECT_THROW(surface.dc.SelectObject(font), owl::TXGdi);
}

TEST(Font, leaves_nothing_behind) {
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        const TFont font(Asked(i, "Arial"));
        const TFont copy(font);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
