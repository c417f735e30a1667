#include "owl/turned_area.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "owl/bitmap.h"
#include "owl/brush.h"
#include "owl/dc.h"
#include "owl/device_space.h"
#include "owl/region.h"
#include "surface.h"

namespace {

using owl::TBrush;
using owl::TColor;
using owl::TDC;
using owl::TPoint;
using owl::TRect;
using owl::TRegion;
using owl::TSize;
using owl_test::Surface;

const double pi = std::acos(-1.0);

XFORM Turn(double angle, float dx, float dy) {
    const auto cosine = static_cast<float>(std::cos(angle));
    const auto sine = static_cast<float>(std::sin(angle));
    return {cosine, sine, -sine, cosine, dx, dy};
}

void SetTransform(TDC& dc, const XFORM& transform) {
    dc.SetGraphicsMode(GM_ADVANCED);
    ASSERT_TRUE(dc.SetWorldTransform(transform));
}

/// Whether the middle of a pixel, taken back, lies in the rectangle.
bool IsCovered(int x, int y, const XFORM& t, const TRect& rect) {
    const double determinant = double{t.eM11} * t.eM22 - double{t.eM12} * t.eM21;
    const double right = x + 0.5 - t.eDx;
    const double down = y + 0.5 - t.eDy;
    const double u = (right * t.eM22 - down * t.eM21) / determinant;
    const double v = (down * t.eM11 - right * t.eM12) / determinant;
    return rect.left <= u && u < rect.right && rect.top <= v && v < rect.bottom;
}

const XFORM transforms[] = {
    Turn(0.6, 30, 25),
    Turn(pi / 4, 30, 30),
    Turn(-2.5, 33.25f, 28.5f),
    {1, 0.5f, 0, 1, 20, 10},
    {2, 1, -0.5f, 1, 22.3f, 12},
    {-1, 0, 0, -1, 40, 40},
    {-0.8f, 0.6f, 0.6f, 0.8f, 30, 30},
};

TEST(TurnedArea, covers_the_pixels_whose_middle_lies_in_the_rectangle) {
    const TRect rect(-9, -5, 13, 11);
    for (const XFORM& transform : transforms) {
        Surface surface(64, 64);
        SetTransform(surface.dc, transform);
        const TRegion area(owl::TurnedArea(surface.dc, rect), owl::AutoDelete);
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x)
                ASSERT_EQ(IsCovered(x, y, transform, rect), area.Contains(TPoint(x, y)))
                    << transform.eM11 << " at " << x << "," << y;
        }
    }
}

TEST(TurnedArea, of_quarter_turns_is_exact) {
    Surface surface(9, 9);
    SetTransform(surface.dc, Turn(pi / 2, 6, 2));
    // From (0, 0)-(3, 2) to the left of 6 and below 2.
    EXPECT_TRUE(TRegion(TRect(4, 2, 6, 5)) ==
                TRegion(owl::TurnedArea(surface.dc, TRect(0, 0, 3, 2)), owl::AutoDelete));
    EXPECT_TRUE(TRegion(TRect(4, 2, 6, 5)) ==
                TRegion(owl::TurnedArea(surface.dc, TRect(3, 2, 0, 0)), owl::AutoDelete));
}

TEST(TurnedArea, of_nothing_is_nothing) {
    Surface surface(9, 9);
    SetTransform(surface.dc, Turn(0.6, 4, 4));
    for (const TRect& rect : {TRect(), TRect(0, 0, 5, 0), TRect(100, 100, 120, 120)}) {
        const TRegion area(owl::TurnedArea(surface.dc, rect), owl::AutoDelete);
        ASSERT_NE(nullptr, area.GetHandle());
        EXPECT_TRUE(area.GetRgnBox().IsEmpty());
    }
    const TRegion area(owl::TurnedArea(surface.dc, TRegion()), owl::AutoDelete);
    EXPECT_TRUE(area.GetRgnBox().IsEmpty());
    EXPECT_EQ(nullptr, owl::TurnedArea(surface.dc, HRGN(nullptr)));
}

/// A ring with its upper quarter taken out.
TRegion Ring() {
    TRegion ring(TRect(-20, -20, 20, 20), TRegion::Ellipse);
    ring -= TRegion(TRect(-10, -10, 10, 10), TRegion::Ellipse);
    ring -= TRegion(TRect(-20, -20, 0, -3));
    return ring;
}

TEST(TurnedArea, of_a_region_covers_the_pixels_whose_middle_lies_in_it) {
    const TRegion ring = Ring();
    for (const double angle : {0.3, 1.0, pi / 4, 4.0}) {
        Surface surface(64, 64);
        SetTransform(surface.dc, Turn(angle, 32, 32));
        const TRegion area(owl::TurnedArea(surface.dc, ring), owl::AutoDelete);
        const double c = std::cos(angle);
        const double s = std::sin(angle);
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x) {
                const double u = (x - 31.5) * c + (y - 31.5) * s;
                const double v = (y - 31.5) * c - (x - 31.5) * s;
                // At a border the transform's own rounding decides.
                if (std::abs(u - std::round(u)) < 1e-4 || std::abs(v - std::round(v)) < 1e-4)
                    continue;
                const TPoint pixel(static_cast<int>(std::floor(u)), static_cast<int>(std::floor(v)));
                ASSERT_EQ(ring.Contains(pixel), area.Contains(TPoint(x, y))) << x << "," << y;
            }
        }
    }
}

// Rows of pixels that touch are many when turned, and one when put together.
TEST(TurnedArea, of_a_region_of_many_rectangles_has_no_gaps) {
    const TRect all(-200, -200, 200, 200);
    TRegion chequered;
    for (int y = -200; y < 200; y += 20) {
        for (int x = -200; x < 200; x += 20)
            chequered ^= TRegion(TRect(x, y, x + (x + y) % 40 / 2 + 20, y + 20));
    }
    TRegion rest(all);
    rest -= chequered;
    Surface surface(300, 300);
    SetTransform(surface.dc, Turn(0.77, 150, 150));
    const TRegion one(owl::TurnedArea(surface.dc, chequered), owl::AutoDelete);
    TRegion both(owl::TurnedArea(surface.dc, rest), owl::AutoDelete);
    TRegion common(one);
    common &= both;
    EXPECT_TRUE(common.GetRgnBox().IsEmpty());
    both |= one;
    const TRegion whole(owl::TurnedArea(surface.dc, all), owl::AutoDelete);
    TRegion beyond(both);
    beyond -= whole;
    TRegion missing(whole);
    missing -= both;
    EXPECT_TRUE(missing.GetRgnBox().IsEmpty());
    // The squares at the right and lower edge reach beyond it.
    EXPECT_FALSE(beyond.GetRgnBox().IsEmpty());
}

TEST(TurnedArea, of_what_cannot_be_seen_costs_nothing) {
    Surface surface(4, 4);
    SetTransform(surface.dc, Turn(0.6, 2, 2));
    const TRegion area(owl::TurnedArea(surface.dc, TRect(-100000000, -100000000, 100000000, 100000000)),
                       owl::AutoDelete);
    EXPECT_EQ(TRect(0, 0, 4, 4), area.GetRgnBox());
}

TEST(TurnedArea, with_too_many_rows_for_a_metafile_is_refused) {
    const HDC recording = ::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    {
        TDC dc(recording);
        SetTransform(dc, Turn(0.6, 2, 2));
        EXPECT_EQ(nullptr, owl::TurnedArea(dc, TRect(0, 0, 1000000, 1000000)));
        EXPECT_FALSE(owl::FillTurned(dc, TRect(0, 0, 1000000, 1000000), BLACKNESS));
    }
    ::DeleteEnhMetaFile(::CloseEnhMetaFile(recording));
}

TEST(TurnedArea, is_needed_for_a_turn_unless_the_platform_can) {
    Surface surface(1, 1);
    EXPECT_FALSE(owl::NeedsTurnedAreas(surface.dc));
    SetTransform(surface.dc, {2, 0, 0, 3, 4, 5});
    EXPECT_FALSE(owl::NeedsTurnedAreas(surface.dc));
    for (const XFORM& transform : transforms) {
        SetTransform(surface.dc, transform);
        EXPECT_EQ(!owl::PlatformTurnsAreas(), owl::NeedsTurnedAreas(surface.dc));
    }
}

/// Draws under a turn on a surface of 64 pixels, white or `black`, and looks whether the pixels that lie well
/// inside of `rect`, or outside, have the colours told.
void ExpectDrawn(const std::function<bool(TDC&)>& draw, const TRect& rect, TColor inside, TColor outside,
                 bool black = false) {
    const XFORM transform = Turn(0.6, 32, 32);
    Surface surface(64, 64);
    if (black)
        surface.dc.PatBlt(0, 0, 64, 64, BLACKNESS);
    SetTransform(surface.dc, transform);
    EXPECT_TRUE(draw(surface.dc));
    int compared = 0;
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            const bool isInside = IsCovered(x, y, transform, rect.InflatedBy(-2, -2));
            if (isInside == IsCovered(x, y, transform, rect.InflatedBy(2, 2))) {
                ASSERT_EQ(isInside ? inside : outside, TColor(surface.At(x, y))) << x << "," << y;
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 3000);
}

constexpr TRect box(-15, -10, 20, 12);

// An upright sliver was filled, and success reported.
TEST(TurnedArea, is_filled_by_whatever_fills) {
    const TBrush red(TColor::LtRed), blue(TColor::LtBlue);
    const TRegion region(box);
    ExpectDrawn([&](TDC& dc) { return dc.FillRect(box, red); }, box, TColor::LtRed, TColor::White);
    ExpectDrawn([&](TDC& dc) { return dc.InvertRect(box); }, box, TColor::Black, TColor::White);
    ExpectDrawn([&](TDC& dc) { return dc.PatBlt(box, BLACKNESS); }, box, TColor::Black, TColor::White);
    ExpectDrawn([&](TDC& dc) { return dc.PatBlt(-15, -10, 35, 22, BLACKNESS); }, box, TColor::Black,
                TColor::White);
    ExpectDrawn([&](TDC& dc) { return dc.FillRgn(region, red); }, box, TColor::LtRed, TColor::White);
    ExpectDrawn([&](TDC& dc) { return dc.InvertRgn(region); }, box, TColor::Black, TColor::White);
    const auto paint = [&](TDC& dc) {
        dc.SelectObject(blue);
        const bool painted = dc.PaintRgn(region);
        dc.RestoreBrush();
        return painted;
    };
    ExpectDrawn(paint, box, TColor::LtBlue, TColor::White);
}

TEST(TurnedArea, is_mixed_by_the_operation) {
    const TBrush red(TColor::LtRed);
    const auto mix = [&](TDC& dc) {
        dc.SelectObject(red);
        const bool mixed = dc.PatBlt(box, PATINVERT);
        dc.RestoreBrush();
        return mixed;
    };
    ExpectDrawn(mix, box, TColor::LtCyan, TColor::White);
    ExpectDrawn(mix, box, TColor::LtRed, TColor::Black, true);
}

TEST(TurnedArea, clips) {
    const auto fillAll = [](TDC& dc) {
        const TBrush red(TColor::LtRed);
        return dc.FillRect(TRect(-90, -90, 90, 90), red);
    };
    ExpectDrawn([&](TDC& dc) { return dc.IntersectClipRect(box) != ERROR && fillAll(dc); }, box,
                TColor::LtRed, TColor::White);
    ExpectDrawn([&](TDC& dc) { return dc.ExcludeClipRect(box) != ERROR && fillAll(dc); }, box, TColor::White,
                TColor::LtRed);
}

TEST(TurnedArea, is_visible_where_it_is_not_clipped) {
    Surface surface(64, 64);
    surface.dc.SelectClipRgn(TRegion(TRect(40, 0, 64, 64)));
    SetTransform(surface.dc, Turn(pi / 4, 20, 32));
    EXPECT_TRUE(surface.dc.RectVisible(TRect(0, -20, 25, 0)));
    EXPECT_FALSE(surface.dc.RectVisible(TRect(-40, 0, -30, 5)));
}

TEST(TurnedArea, has_a_frame) {
    const XFORM transform = Turn(0.6, 32, 32);
    const TBrush red(TColor::LtRed);
    Surface surface(64, 64);
    SetTransform(surface.dc, transform);
    EXPECT_TRUE(surface.dc.FrameRgn(TRegion(box), red, TSize(5, 4)));
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            const auto isIn = [&](int dx, int dy) {
                return IsCovered(x, y, transform, box.InflatedBy(dx, dy));
            };
            if (isIn(-1, -1) && !isIn(-4, -3)) {
                ASSERT_EQ(TColor::LtRed, TColor(surface.At(x, y))) << x << "," << y;
            }
            if (!isIn(1, 1) || isIn(-6, -5)) {
                ASSERT_EQ(TColor::White, TColor(surface.At(x, y))) << x << "," << y;
            }
        }
    }
}

TEST(TurnedArea, a_frame_is_what_the_platform_frames_without_a_turn) {
    const TBrush red(TColor::LtRed);
    TRegion moved = Ring();
    moved += TSize(22, 22);
    Surface platform(44, 44), ours(44, 44);
    ::FrameRgn(platform.dc, moved, red, 3, 2);
    ours.dc.FillRgn(TRegion(owl::FrameOf(moved, TSize(3, 2)), owl::AutoDelete), red);
    EXPECT_EQ(platform.Picture(), ours.Picture());
    EXPECT_EQ(nullptr, owl::FrameOf(nullptr, TSize(3, 2)));
}

TEST(TurnedArea, a_frame_of_a_rectangle_is_one_unit_wide) {
    const TBrush red(TColor::LtRed);
    Surface surface(5, 5);
    SetTransform(surface.dc, Turn(pi / 2, 4, 0));
    EXPECT_TRUE(surface.dc.FrameRect(TRect(0, 0, 5, 3), red));
    EXPECT_EQ(".RRR.\n.R.R.\n.R.R.\n.R.R.\n.RRR.\n", surface.Picture());
}

TEST(TurnedArea, leaves_the_state_of_the_context_as_it_was) {
    Surface surface(64, 64);
    const XFORM transform = Turn(0.6, 32, 32);
    const HGDIOBJ brush = ::GetCurrentObject(surface.dc, OBJ_BRUSH);
    const TBrush red(TColor::LtRed);
    SetTransform(surface.dc, transform);
    surface.dc.FillRect(box, red);
    surface.dc.FillRgn(TRegion(box), red);
    EXPECT_EQ(brush, ::GetCurrentObject(surface.dc, OBJ_BRUSH));
    EXPECT_EQ(transform.eM12, owl::WorldOf(surface.dc).eM12);
    surface.dc.ModifyWorldTransform({}, MWT_IDENTITY);
    TRect clip;
    surface.dc.GetClipBox(clip);
    EXPECT_EQ(TRect(0, 0, 64, 64), clip);
}

TEST(TurnedArea, cannot_be_filled_without_a_brush) {
    Surface surface(8, 8);
    SetTransform(surface.dc, Turn(0.6, 4, 4));
    const TBrush none{HBRUSH(nullptr)};
    EXPECT_FALSE(surface.dc.FillRect(TRect(0, 0, 4, 4), none));
    EXPECT_FALSE(surface.dc.FillRgn(TRegion(TRect(0, 0, 4, 4)), none));
    EXPECT_FALSE(surface.dc.PaintRgn(TRegion(HRGN(nullptr))));
}

TEST(TurnedArea, is_recorded_by_an_enhanced_metafile) {
    const HDC recording = ::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    {
        TDC dc(recording);
        SetTransform(dc, Turn(0.6, 32, 32));
        const TBrush red(TColor::LtRed);
        EXPECT_TRUE(dc.FillRect(box, red));
    }
    const HENHMETAFILE metafile = ::CloseEnhMetaFile(recording);
    ENHMETAHEADER header{};
    ::GetEnhMetaFileHeader(metafile, sizeof header, &header);
    RECT bounds = {header.rclBounds.left, header.rclBounds.top, header.rclBounds.right,
                   header.rclBounds.bottom};
    Surface surface(64, 64);
    EXPECT_TRUE(::PlayEnhMetaFile(surface.dc, metafile, &bounds));
    ::DeleteEnhMetaFile(metafile);
    EXPECT_EQ(TColor::LtRed, TColor(surface.At(32, 32)));
    // The corner (-15, -10) lies at (25, 15): what is upright there is not filled.
    EXPECT_EQ(TColor::White, TColor(surface.At(18, 16)));
    EXPECT_EQ(TColor::LtRed, TColor(surface.At(26, 18)));
}

TEST(TurnedArea, leaves_nothing_behind) {
    Surface surface(64, 64);
    SetTransform(surface.dc, Turn(0.6, 32, 32));
    const TBrush red(TColor::LtRed);
    const TRegion ring = Ring();
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 20; ++i) {
        surface.dc.FillRect(box, red);
        surface.dc.FrameRect(box, red);
        surface.dc.FrameRgn(ring, red, TSize(2, 2));
        surface.dc.InvertRgn(ring);
        surface.dc.RectVisible(box);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
