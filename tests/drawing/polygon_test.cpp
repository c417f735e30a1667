#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "drawing/sheet.h"
#include "lvx/drawing/region.h"
#include "owl/region.h"

using lvx_test::OpenPort;
using lvx_test::rows;
using owl::TColor;
using owl::TPoint;

namespace {

class Polygon : public ::testing::Test {
protected:
    Polygon() {
        open.port.usePen(&pen);
        open.port.useBrush(&brush);
    }
    ~Polygon() override {
        open.port.usePen(nullptr);
        open.port.useBrush(nullptr);
    }

    void Add(const std::vector<TPoint>& corners) {
        for (const TPoint& corner : corners) {
            points.add(static_cast<int>(corner.x), static_cast<int>(corner.y));
        }
    }

    LVXPen pen{TColor::LtRed};
    LVXBrush brush{FillForeground, TColor::LtGreen, TColor::LtYellow};
    OpenPort open{7, 6};
    LVXPointArray points{10};
    LVXPolygon polygon{&points};
};

const std::vector<TPoint> square = {{1, 1}, {5, 1}, {5, 4}, {1, 4}};

}  // namespace

TEST_F(Polygon, is_filled_with_its_frame_closed) {
    Add(square);
    open.port.fillRegion(&polygon, true);
    EXPECT_EQ(".......\n.RRRRR.\n.RGGGR.\n.RGGGR.\n.RRRRR.\n.......\n", open.Picture());
}

TEST_F(Polygon, is_filled_without_its_right_and_lower_edge) {
    Add(square);
    open.port.fillRegion(&polygon, false);
    EXPECT_EQ(".......\n.GGGG..\n.GGGG..\n.GGGG..\n.......\n.......\n", open.Picture());
    EXPECT_EQ(nullptr, static_cast<HRGN>(polygon));
}

TEST_F(Polygon, is_framed_open) {
    Add(square);
    open.port.frameRegion(&polygon);
    EXPECT_EQ(".......\n.RRRRR.\n.....R.\n.....R.\n..RRRR.\n.......\n", open.Picture());
}

TEST_F(Polygon, is_framed_closed_when_its_last_point_repeats_the_first) {
    Add(square);
    Add({{1, 1}});
    open.port.frameRegion(&polygon);
    EXPECT_EQ(".......\n.RRRRR.\n.R...R.\n.R...R.\n.RRRRR.\n.......\n", open.Picture());
}

TEST_F(Polygon, is_inverted) {
    Add(square);
    open.port.invertRegion(&polygon);
    EXPECT_EQ(".......\n.####..\n.####..\n.####..\n.......\n.......\n", open.Picture());
}

TEST_F(Polygon, that_winds_around_twice_has_a_hole) {
    Add({{0, 0}, {6, 0}, {6, 5}, {0, 5}, {0, 0}, {2, 1}, {4, 1}, {4, 3}, {2, 3}, {2, 1}});
    open.port.fillRegion(&polygon, false);
    EXPECT_EQ("GGGGGG.\nGG..GG.\nGG..GG.\nGGGGGG.\nGGGGGG.\n.......\n", open.Picture());
}

TEST_F(Polygon, without_points_draws_nothing) {
    const auto expect_nothing = [this](LVXPolygon& shape) {
        open.port.fillRegion(&shape, true);
        open.port.fillRegion(&shape, false);
        open.port.frameRegion(&shape);
        open.port.invertRegion(&shape);
        open.port.eraseRegion(&shape);
        EXPECT_EQ(rows(6, "......."), open.Picture());
    };
    expect_nothing(polygon);
    LVXPointArray none(0);
    LVXPolygon empty(&none);
    expect_nothing(empty);
    LVXPolygon null(nullptr);
    expect_nothing(null);
    points.add(3, 3);
    expect_nothing(polygon);
}

TEST_F(Polygon, follows_its_points) {
    Add({{1, 1}, {3, 1}});
    open.port.frameRegion(&polygon);
    EXPECT_EQ(".......\n.RR....\n", open.Picture().substr(0, 16));
    points.add(3, 4);
    open.port.frameRegion(&polygon);
    EXPECT_EQ(".......\n.RRR...\n...R...\n...R...\n.......\n.......\n", open.Picture());
}

// What becomes of a drawing whose array was made too small: its first corner moves to the origin.
TEST_F(Polygon, of_an_array_that_grew_begins_at_the_origin) {
    const std::vector<TPoint> meant = {{10, 10}, {50, 10}, {50, 40}, {10, 40}};
    const std::vector<TPoint> drawn = {{0, 0}, {50, 10}, {50, 40}, {10, 40}};
    LVXPointArray grown(3);
    for (const TPoint& corner : meant) {
        grown.add(static_cast<int>(corner.x), static_cast<int>(corner.y));
    }
    LVXPolygon shape(&grown);
    shape.GetRegion();
    const owl::TRegion region(static_cast<HRGN>(shape));
    EXPECT_TRUE(region == owl::TRegion(drawn.data(), 4, ALTERNATE));
    EXPECT_FALSE(region == owl::TRegion(meant.data(), 4, ALTERNATE));
    shape.UngetRegion();
}
