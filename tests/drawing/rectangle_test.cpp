#include <gtest/gtest.h>

#include <array>

#include "drawing/sheet.h"
#include "lvx/drawing/region.h"
#include "owl/region.h"

using lvx_test::OpenPort;
using lvx_test::rows;
using owl::TColor;

namespace {

using Numbers = std::array<int, 4>;

Numbers get(const LVXRectangle& rectangle, RectOpts meaning) {
    Numbers numbers{};
    rectangle.get(meaning, &numbers[0], &numbers[1], &numbers[2], &numbers[3]);
    return numbers;
}

Numbers corners(const LVXRectangle& rectangle) {
    return get(rectangle, RectCorners);
}

class Rectangle : public ::testing::Test {
protected:
    Rectangle() {
        open.port.usePen(&pen);
        open.port.useBrush(&brush);
    }
    ~Rectangle() override {
        open.port.usePen(nullptr);
        open.port.useBrush(nullptr);
    }

    LVXPen pen{TColor::LtRed};
    LVXBrush brush{FillForeground, TColor::LtGreen, TColor::LtYellow};
    OpenPort open{6, 5};
};

}  // namespace

TEST_F(Rectangle, is_told_by_two_corners) {
    EXPECT_EQ((Numbers{0, 5, 10, 20}), corners(LVXRectangle(RectCorners, 10, 20, 0, 5)));
    EXPECT_EQ((Numbers{0, 5, 10, 20}), corners(LVXRectangle(RectCorners, 0, 5, 10, 20)));
    for (const int meaning : {3, -1, 1000}) {
        EXPECT_EQ((Numbers{0, 5, 10, 20}), corners(LVXRectangle(RectOpts(meaning), 10, 20, 0, 5)));
    }
}

TEST_F(Rectangle, is_told_by_a_corner_and_a_size) {
    EXPECT_EQ((Numbers{6, 6, 10, 10}), corners(LVXRectangle(RectSize, 10, 10, -4, -4)));
    EXPECT_EQ((Numbers{10, 20, 13, 24}), corners(LVXRectangle(RectSize, 10, 20, 3, 4)));
}

TEST_F(Rectangle, is_told_by_its_centre_and_a_size) {
    EXPECT_EQ((Numbers{-2, -2, 3, 3}), corners(LVXRectangle(RectCentre, 0, 0, 5, 5)));
    EXPECT_EQ((Numbers{8, 18, 12, 22}), corners(LVXRectangle(RectCentre, 10, 20, 4, 4)));
    EXPECT_EQ((Numbers{2, 2, -3, -3}), corners(LVXRectangle(RectCentre, 0, 0, -5, -5)));
}

TEST_F(Rectangle, tells_its_edges_in_each_way) {
    const LVXRectangle rectangle(RectCorners, 0, 0, 5, 5);
    EXPECT_EQ((Numbers{2, 2, 5, 5}), get(rectangle, RectCentre));
    EXPECT_EQ((Numbers{0, 0, 5, 5}), get(rectangle, RectSize));
    const LVXRectangle other(RectCorners, -7, 1, 2, 4);
    EXPECT_EQ((Numbers{-2, 2, 9, 3}), get(other, RectCentre));
    EXPECT_EQ((Numbers{-7, 1, 9, 3}), get(other, RectSize));
    EXPECT_EQ((Numbers{-7, 1, 2, 4}), get(other, RectCorners));
    EXPECT_EQ((Numbers{-7, 1, 2, 4}), get(other, RectOpts(3)));
}

TEST_F(Rectangle, tells_those_alone_that_are_asked_for) {
    const LVXRectangle rectangle(RectCorners, 1, 2, 3, 4);
    int number = 0;
    rectangle.get(RectCorners, nullptr, nullptr, nullptr, nullptr);
    rectangle.get(RectCorners, &number, nullptr, nullptr, nullptr);
    EXPECT_EQ(1, number);
    rectangle.get(RectCorners, nullptr, &number, nullptr, nullptr);
    EXPECT_EQ(2, number);
    rectangle.get(RectCorners, nullptr, nullptr, &number, nullptr);
    EXPECT_EQ(3, number);
    rectangle.get(RectCorners, nullptr, nullptr, nullptr, &number);
    EXPECT_EQ(4, number);
}

TEST_F(Rectangle, has_the_region_of_its_edges) {
    LVXRectangle rectangle(RectCorners, 1, 2, 5, 4);
    rectangle.GetRegion();
    EXPECT_EQ(owl::TRect(1, 2, 5, 4), owl::TRegion(static_cast<HRGN>(rectangle)).GetRgnBox());
    EXPECT_TRUE(owl::TRegion(static_cast<HRGN>(rectangle)) == owl::TRegion(owl::TRect(1, 2, 5, 4)));
    rectangle.UngetRegion();
    EXPECT_EQ(nullptr, static_cast<HRGN>(rectangle));
}

TEST_F(Rectangle, is_filled_with_and_without_its_frame) {
    LVXRectangle rectangle(RectCorners, 1, 1, 5, 4);
    open.port.fillRegion(&rectangle, true);
    EXPECT_EQ("......\n.RRRR.\n.RGGR.\n.RRRR.\n......\n", open.Picture());
    open.port.fillRegion(&rectangle, false);
    EXPECT_EQ("......\n.GGGG.\n.GGGG.\n.GGGG.\n......\n", open.Picture());
    EXPECT_EQ(nullptr, static_cast<HRGN>(rectangle));
}

TEST_F(Rectangle, is_filled_with_the_brush_that_is_handed_over) {
    LVXRectangle rectangle(RectCorners, 0, 0, 2, 1);
    rectangle.Fill(open.sheet.surface.dc, pen, LVXBrush(TColor::LtBlue), false);
    EXPECT_EQ("BB....\n", open.Picture().substr(0, 7));
    rectangle.Fill(open.sheet.surface.dc, pen, LVXBrush(TColor::LtBlue), true);
    EXPECT_EQ("RR....\n", open.Picture().substr(0, 7));
}

TEST_F(Rectangle, is_framed_and_leaves_its_inside) {
    LVXRectangle rectangle(RectCorners, 1, 1, 5, 4);
    open.port.frameRegion(&rectangle);
    EXPECT_EQ("......\n.RRRR.\n.R..R.\n.RRRR.\n......\n", open.Picture());
}

TEST_F(Rectangle, is_inverted) {
    LVXRectangle rectangle(RectCorners, 1, 1, 5, 4);
    open.port.invertRegion(&rectangle);
    EXPECT_EQ("......\n.####.\n.####.\n.####.\n......\n", open.Picture());
}

TEST_F(Rectangle, of_a_negative_size_is_sorted_when_it_is_drawn) {
    for (const int operation : {0, 1, 2}) {
        LVXRectangle rectangle(RectCentre, 3, 2, -4, -2);
        EXPECT_EQ((Numbers{5, 3, 1, 1}), corners(rectangle));
        if (operation == 0) {
            open.port.fillRegion(&rectangle, true);
            EXPECT_EQ("......\n.RRRR.\n.RRRR.\n......\n......\n", open.Picture());
        } else if (operation == 1) {
            open.port.fillRegion(&rectangle, false);
            EXPECT_EQ("......\n.GGGG.\n.GGGG.\n......\n......\n", open.Picture());
        } else {
            open.port.frameRegion(&rectangle);
            EXPECT_EQ("......\n.RRRR.\n.RRRR.\n......\n......\n", open.Picture());
        }
        EXPECT_EQ((Numbers{1, 1, 5, 3}), corners(rectangle));
    }
}

TEST_F(Rectangle, without_an_inside_is_not_seen) {
    LVXRectangle empty(RectCorners, 2, 2, 2, 4);
    open.port.fillRegion(&empty, true);
    open.port.fillRegion(&empty, false);
    open.port.frameRegion(&empty);
    open.port.invertRegion(&empty);
    EXPECT_EQ(rows(5, "......"), open.Picture());
}

TEST_F(Rectangle, leaves_the_hollow_brush_to_who_draws_without_a_port) {
    owl::TDC& dc = open.sheet.surface.dc;
    LVXRectangle(RectCorners, 1, 1, 5, 4).Frame(dc, pen);
    EXPECT_EQ(::GetStockObject(HOLLOW_BRUSH), open.sheet.Selected(OBJ_BRUSH));
}
