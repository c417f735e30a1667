#include <gtest/gtest.h>

#include <string>

#include "drawing/sheet.h"
#include "lvx/drawing/region.h"
#include "owl/brush.h"
#include "owl/pen.h"
#include "owl/region.h"

using lvx_test::OpenPort;
using lvx_test::rows;
using owl::TColor;

namespace {

constexpr int width = 17;
constexpr int height = 13;

class Ellipse : public ::testing::Test {
protected:
    Ellipse() {
        open.port.usePen(&pen);
        open.port.useBrush(&brush);
    }
    ~Ellipse() override {
        open.port.usePen(nullptr);
        open.port.useBrush(nullptr);
    }

    /// What the system alone draws with a red pen, and with a green brush or the hollow one.
    template <class Draw>
    static std::string Bare(bool hollow, const Draw& draw) {
        const owl_test::Surface surface(width, height);
        const HPEN red = ::CreatePen(PS_SOLID, 1, RGB(255, 0, 0));
        const HBRUSH green = ::CreateSolidBrush(RGB(0, 255, 0));
        const HGDIOBJ pen = ::SelectObject(surface.dc, red);
        const HGDIOBJ brush = ::SelectObject(surface.dc, hollow ? ::GetStockObject(NULL_BRUSH) : green);
        draw(static_cast<HDC>(surface.dc));
        ::SelectObject(surface.dc, pen);
        ::SelectObject(surface.dc, brush);
        ::DeleteObject(red);
        ::DeleteObject(green);
        return surface.Picture();
    }

    static std::string BareRegion(BOOL(WINAPI* draw)(HDC, HRGN)) {
        return Bare(false, [draw](HDC dc) {
            const HRGN region = ::CreateEllipticRgn(2, 1, 15, 11);
            draw(dc, region);
            ::DeleteObject(region);
        });
    }

    LVXPen pen{TColor::LtRed};
    LVXBrush brush{FillForeground, TColor::LtGreen, TColor::LtYellow};
    OpenPort open{width, height};
    LVXEllipse ellipse{RectCorners, 2, 1, 15, 11};
};

}  // namespace

TEST_F(Ellipse, is_filled_with_its_frame) {
    open.port.fillRegion(&ellipse, true);
    EXPECT_EQ(Bare(false, [](HDC dc) { ::Ellipse(dc, 2, 1, 15, 11); }), open.Picture());
    EXPECT_EQ(TColor::LtGreen, TColor(open.sheet.surface.At(8, 6)));
    EXPECT_EQ(TColor::LtRed, TColor(open.sheet.surface.At(8, 1)));
    EXPECT_EQ(TColor::LtRed, TColor(open.sheet.surface.At(2, 5)));
    EXPECT_EQ(TColor::White, TColor(open.sheet.surface.At(2, 1)));
    EXPECT_EQ(TColor::White, TColor(open.sheet.surface.At(14, 10)));
}

TEST_F(Ellipse, is_filled_without_its_frame) {
    open.port.fillRegion(&ellipse, false);
    EXPECT_EQ(BareRegion(::PaintRgn), open.Picture());
    EXPECT_EQ(TColor::LtGreen, TColor(open.sheet.surface.At(8, 6)));
    EXPECT_EQ(std::string::npos, open.Picture().find('R'));
    EXPECT_EQ(nullptr, static_cast<HRGN>(ellipse));
}

TEST_F(Ellipse, is_framed_and_leaves_its_inside) {
    open.port.frameRegion(&ellipse);
    EXPECT_EQ(Bare(true, [](HDC dc) { ::Ellipse(dc, 2, 1, 15, 11); }), open.Picture());
    EXPECT_EQ(TColor::White, TColor(open.sheet.surface.At(8, 6)));
    EXPECT_EQ(TColor::LtRed, TColor(open.sheet.surface.At(8, 1)));
}

TEST_F(Ellipse, is_inverted_and_its_corners_are_not) {
    open.port.invertRegion(&ellipse);
    EXPECT_EQ(BareRegion(::InvertRgn), open.Picture());
    EXPECT_EQ(TColor::Black, TColor(open.sheet.surface.At(8, 6)));
    EXPECT_EQ(TColor::White, TColor(open.sheet.surface.At(2, 1)));
    open.port.invertRegion(&ellipse);
    EXPECT_EQ(rows(height, std::string(width, '.')), open.Picture());
}

TEST_F(Ellipse, is_told_as_a_rectangle_is) {
    const LVXEllipse other(RectCentre, 8, 6, 13, 10);
    int numbers[4];
    other.get(RectCorners, &numbers[0], &numbers[1], &numbers[2], &numbers[3]);
    EXPECT_EQ(2, numbers[0]);
    EXPECT_EQ(1, numbers[1]);
    EXPECT_EQ(15, numbers[2]);
    EXPECT_EQ(11, numbers[3]);
}

TEST_F(Ellipse, has_the_region_of_an_ellipse) {
    ellipse.GetRegion();
    const owl::TRegion region(static_cast<HRGN>(ellipse));
    EXPECT_TRUE(region == owl::TRegion(owl::TRect(2, 1, 15, 11), owl::TRegion::Ellipse));
    ellipse.UngetRegion();
}

TEST_F(Ellipse, of_a_negative_size_is_sorted_when_it_is_drawn) {
    LVXEllipse negative(RectCentre, 8, 6, -13, -10);
    open.port.fillRegion(&negative, true);
    int left = 0;
    int right = 0;
    negative.get(RectCorners, &left, nullptr, &right, nullptr);
    EXPECT_EQ(1, left);
    EXPECT_EQ(14, right);
    EXPECT_EQ(TColor::LtGreen, TColor(open.sheet.surface.At(7, 6)));
    for (const bool filled : {false, true}) {
        LVXEllipse other(RectCentre, 8, 6, -13, -10);
        if (filled) {
            open.port.fillRegion(&other, false);
        } else {
            open.port.frameRegion(&other);
        }
        other.get(RectCorners, &left, nullptr, &right, nullptr);
        EXPECT_LT(left, right);
    }
}
