#include "owl/pen.h"

#include <gtest/gtest.h>

#include "surface.h"

namespace {

using owl::TColor;
using owl::TPen;
using owl_test::Surface;

TEST(Pen, has_the_colour_width_and_style_asked_for) {
    const TPen pen(TColor(1, 2, 3), 5, PS_DASH);
    LOGPEN description;
    ASSERT_TRUE(pen.GetObject(description));
    EXPECT_EQ(UINT{PS_DASH}, description.lopnStyle);
    EXPECT_EQ(5, description.lopnWidth.x);
    EXPECT_EQ(COLORREF{0x030201}, description.lopnColor);
}

TEST(Pen, is_solid_and_one_unit_wide_when_nothing_is_asked) {
    LOGPEN description;
    ASSERT_TRUE(TPen(TColor::LtRed).GetObject(description));
    EXPECT_EQ(UINT{PS_SOLID}, description.lopnStyle);
    EXPECT_EQ(1, description.lopnWidth.x);
}

TEST(Pen, draws_in_its_colour_and_width) {
    Surface surface(5, 5);
    const TPen pen(TColor::LtRed, 3);
    surface.dc.SelectObject(pen);
    surface.dc.MoveTo(-5, 2);
    surface.dc.LineTo(15, 2);
    EXPECT_EQ(".....\nRRRRR\nRRRRR\nRRRRR\n.....\n", surface.Picture());
}

TEST(Pen, copied_lives_without_the_other) {
    LOGPEN description;
    {
        const TPen* first = new TPen(TColor::LtBlue, 2, PS_DOT);
        const TPen copy(*first);
        EXPECT_NE(first->GetHandle(), copy.GetHandle());
        delete first;
        ASSERT_TRUE(copy.GetObject(description));
    }
    EXPECT_EQ(UINT{PS_DOT}, description.lopnStyle);
    EXPECT_EQ(2, description.lopnWidth.x);
    EXPECT_EQ(TColor::LtBlue, TColor(description.lopnColor));
}

TEST(Pen, on_a_null_handle_describes_nothing_and_cannot_be_copied_or_selected) {
    const TPen pen(HPEN(nullptr));
    LOGPEN description;
    description.lopnColor = 7;
    EXPECT_FALSE(pen.GetObject(description));
    EXPECT_EQ(COLORREF{0}, description.lopnColor);
    EXPECT_THROW(TPen copy(pen), owl::TXGdi);
    Surface surface(1, 1);
    EXPECT_THROW(surface.dc.SelectObject(pen), owl::TXGdi);
}

TEST(Pen, leaves_nothing_behind) {
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        const TPen pen(TColor::LtRed, 2);
        const TPen copy(pen);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
