// Images that are drawn turned, on every kind of device.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "letter_bitmaps.h"
#include "lvx/drawing/region.h"
#include "owl/bitmap.h"
#include "owl/dc.h"
#include "owl/memory_dc.h"
#include "owl/printer.h"
#include "owl/region.h"
#include "owl/window_dc.h"
#include "tests/owl/message_window.h"
#include "tests/owl/printed.h"
#include "tests/owl/surface.h"

namespace {

using lvx_test::DIBitmap;
using lvx_test::letter_bitmap;
using lvx_test::Letters;
using owl::TColor;
using owl::TPoint;
using owl::TRect;
using owl::TSize;
using owl_test::Surface;

const double pi = std::acos(-1.0);
const Letters six = {"RGB", "CMY"};
const Letters quarters = {"RG", "BY"};

// A quarter against the clock about (1, 4): what was right of the pivot lies above it, what was below it to
// its right.
TEST(DIBitmapTurned, by_a_quarter_loses_no_pixel) {
    for (const int depth : {4, 8, 16, 24, 32}) {
        for (const bool upper_row_first : {false, true}) {
            Surface surface(4, 5);
            letter_bitmap(six, depth, upper_row_first)
                .StretchDIBits(surface.dc, TRect(TPoint(1, 4), TSize(3, 2)), TRect(0, 0, 3, 2), 0, 1, SRCCOPY,
                               nullptr);
            EXPECT_EQ("....\n.BY.\n.GM.\n.RC.\n....\n", surface.Picture()) << depth << upper_row_first;
        }
    }
}

TEST(DIBitmapTurned, by_every_quarter) {
    const DIBitmap picture = letter_bitmap(six, 24);
    const struct {
        double cosine, sine;
        TPoint pivot;
        const char* seen;
    } cases[] = {
        {1, 0, TPoint(0, 0), "RGB\nCMY\n...\n"},
        {0, 1, TPoint(0, 3), "BY.\nGM.\nRC.\n"},
        {-1, 0, TPoint(3, 2), "YMC\nBGR\n...\n"},
        {0, -1, TPoint(2, 0), "CR.\nMG.\nYB.\n"},
        {std::cos(pi), std::sin(pi), TPoint(3, 2), "YMC\nBGR\n...\n"},
    };
    for (const auto& one : cases) {
        Surface surface(3, 3);
        picture.StretchDIBits(surface.dc, TRect(one.pivot, TSize(3, 2)), TRect(0, 0, 3, 2), one.cosine,
                              one.sine, SRCCOPY, nullptr);
        EXPECT_EQ(one.seen, surface.Picture()) << one.cosine << " " << one.sine;
    }
}

/// The letter at a place by the rule for one place: of four quarters of a square of `side` whose upper left
/// corner is the pivot, or white outside. The transform takes (u, v) to (u c + v s, v c - u s).
char expected(double x, double y, double angle, double side) {
    const double u = x * std::cos(angle) - y * std::sin(angle);
    const double v = x * std::sin(angle) + y * std::cos(angle);
    if (u < 0 || v < 0 || u >= side || v >= side) {
        return '.';
    }
    return "RGBY"[(v < side / 2 ? 0 : 2) + (u < side / 2 ? 0 : 1)];
}

/// Whether the whole neighbourhood of a place looks alike, so that no border's rounding matters.
bool is_inside(double x, double y, double angle, double side) {
    const char middle = expected(x, y, angle, side);
    for (const double dx : {-1.5, 0.0, 1.5}) {
        for (const double dy : {-1.5, 0.0, 1.5}) {
            if (expected(x + dx, y + dy, angle, side) != middle) {
                return false;
            }
        }
    }
    return true;
}

/// Compares what `at` tells of each pixel with quarters of 20 about a pivot at (40, 40).
template <class At>
void expect_quarters(double angle, const At& at) {
    int compared = 0;
    for (int y = 0; y < 80; ++y) {
        for (int x = 0; x < 80; ++x) {
            if (is_inside(x - 39.5, y - 39.5, angle, 40)) {
                ASSERT_EQ(expected(x - 39.5, y - 39.5, angle, 40), Surface::Letter(at(x, y)))
                    << angle << " at " << x << "," << y;
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 4500);
}

void draw_quarters(owl::TDC& dc, double angle) {
    letter_bitmap(quarters, 24)
        .StretchDIBits(dc, TRect(TPoint(40, 40), TSize(40, 40)), TRect(0, 0, 2, 2), std::cos(angle),
                       std::sin(angle), SRCCOPY, nullptr);
}

TEST(DIBitmapTurned, lies_at_every_angle_where_it_should) {
    for (int degrees = 0; degrees < 360; degrees += 15) {
        const double angle = degrees * pi / 180;
        Surface surface(80, 80);
        surface.dc.SetStretchBltMode(COLORONCOLOR);
        draw_quarters(surface.dc, angle);
        expect_quarters(angle, [&](int x, int y) { return surface.At(x, y); });
    }
}

TEST(DIBitmapTurned, lies_on_a_window_where_it_should) {
    const owl_test::MessageWindow window(WS_POPUP, 80, 80);
    window.Show();
    owl::TClientDC dc(window);
    dc.PatBlt(0, 0, 80, 80, WHITENESS);
    dc.SetStretchBltMode(COLORONCOLOR);
    draw_quarters(dc, 0.6);
    expect_quarters(0.6, [&](int x, int y) { return dc.GetPixel(x, y); });
}

TEST(DIBitmapTurned, lies_on_a_bitmap_of_the_screen_where_it_should) {
    owl::TBitmap bitmap(owl::TScreenDC(), 80, 80);
    owl::TMemoryDC dc;
    dc.SelectObject(bitmap);
    dc.PatBlt(0, 0, 80, 80, WHITENESS);
    draw_quarters(dc, 2.2);
    expect_quarters(2.2, [&](int x, int y) { return dc.GetPixel(x, y); });
}

TEST(DIBitmapTurned, lies_on_sections_of_every_depth_where_it_should) {
    const Letters blank(80, std::string(80, '.'));
    for (const int depth : {4, 8, 16, 24, 32}) {
        const owl_test::LetterPicture form(blank, depth);
        void* bits = nullptr;
        const owl::TBitmap section(
            ::CreateDIBSection(nullptr, form.Info(), DIB_RGB_COLORS, &bits, nullptr, 0), owl::AutoDelete);
        owl::TMemoryDC dc;
        dc.SelectObject(section);
        // Of few colours whiteness is the last, whatever that is.
        dc.FillRect(TRect(0, 0, 80, 80), owl::TBrush(TColor::White));
        draw_quarters(dc, 0.6);
        expect_quarters(0.6, [&](int x, int y) { return dc.GetPixel(x, y); });
    }
}

TEST(DIBitmapTurned, lies_in_an_enhanced_metafile_where_it_should) {
    const HDC recording = ::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    {
        owl::TDC dc(recording);
        dc.SetStretchBltMode(COLORONCOLOR);
        draw_quarters(dc, 0.6);
    }
    const HENHMETAFILE metafile = ::CloseEnhMetaFile(recording);
    ENHMETAHEADER header{};
    ::GetEnhMetaFileHeader(metafile, sizeof header, &header);
    const RECT bounds = {header.rclBounds.left, header.rclBounds.top, header.rclBounds.right,
                         header.rclBounds.bottom};
    Surface surface(80, 80);
    EXPECT_TRUE(::PlayEnhMetaFile(surface.dc, metafile, &bounds));
    ::DeleteEnhMetaFile(metafile);
    expect_quarters(0.6, [&](int x, int y) { return surface.At(x, y); });
}

/// A page with a picture upright on its left half, and turned by 0.6 on its right half.
class TwoPictures : public owl::TPrintout {
public:
    TwoPictures() : TPrintout("Two pictures") {}
    bool HasPage(int page) override { return page == 1; }
    void PrintPage(int, owl::TRect&, unsigned) override {
        owl::TDC& dc = *GetPrintDC();
        const DIBitmap picture = letter_bitmap(quarters, 8);
        dc.SetStretchBltMode(COLORONCOLOR);
        picture.StretchDIBits(dc, TRect(TPoint(300, 300), TSize(400, 400)), TRect(0, 0, 2, 2), SRCCOPY,
                              nullptr);
        picture.StretchDIBits(dc, TRect(TPoint(1500, 600), TSize(400, 400)), TRect(0, 0, 2, 2), std::cos(0.6),
                              std::sin(0.6), SRCCOPY, nullptr);
    }
};

// 300 dots to the inch are printed, 72 of them looked at.
TEST(DIBitmapTurned, lies_on_paper_where_it_should) {
    const owl_test::FilePrinter file;
    ASSERT_EQ("", file.Problem());
    owl::TPrinter printer(nullptr);
    TwoPictures printout;
    ASSERT_TRUE(printer.Print(nullptr, printout, false));
    const owl_test::RenderedPages pages = file.Pages();
    ASSERT_EQ("", pages.Problem());
    ASSERT_EQ(1u, pages.size());
    constexpr double scale = 72.0 / 300;
    int compared = 0;
    for (int y = 0; y < pages[0].Height(); ++y) {
        for (int x = 0; x < pages[0].Width(); ++x) {
            const bool left = x < 250;
            const double angle = left ? 0 : 0.6;
            const double u = x + 0.5 - (left ? 300 : 1500) * scale;
            const double v = y + 0.5 - (left ? 300 : 600) * scale;
            if (is_inside(u, v, angle, 400 * scale)) {
                ASSERT_EQ(expected(u, v, angle, 400 * scale), Surface::Letter(pages[0].At(x, y)))
                    << x << "," << y;
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 150000);
}

TEST(DIBitmapTurned, a_size_that_is_negative_is_turned_to_a_normal_one) {
    // From (-3, -2) to the pivot, upright: the size of nothing else than a rectangle.
    Surface surface(6, 5);
    letter_bitmap(six, 24).StretchDIBits(surface.dc, TRect(TPoint(4, 3), TSize(-3, -2)), TRect(0, 0, 3, 2), 1,
                                         0, SRCCOPY, nullptr);
    EXPECT_EQ("......\n.RGB..\n.CMY..\n......\n......\n", surface.Picture());
}

TEST(DIBitmapTurned, shows_a_part_and_mixes_it) {
    Surface surface(3, 3);
    // The lower row, a quarter against the clock.
    letter_bitmap(six, 24).StretchDIBits(surface.dc, TRect(TPoint(0, 3), TSize(3, 1)), TRect(0, 0, 3, 1), 0,
                                         1, NOTSRCCOPY, nullptr);
    EXPECT_EQ("B..\nG..\nR..\n", surface.Picture());
}

TEST(DIBitmapTurned, is_clipped_in_units_of_the_device) {
    LVXRectangle shape(RectCorners, 0, 1, 9, 2);
    shape.GetRegion();
    Surface surface(3, 3);
    surface.dc.SelectClipRgn(owl::TRegion(TRect(0, 0, 1, 1)));
    letter_bitmap(six, 24).StretchDIBits(surface.dc, TRect(TPoint(0, 3), TSize(3, 2)), TRect(0, 0, 3, 2), 0,
                                         1, SRCCOPY, &shape);
    EXPECT_EQ("...\nGM.\n...\n", surface.Picture());
    EXPECT_EQ(0, ::GetClipRgn(surface.dc, owl::TRegion()));
    shape.UngetRegion();
}

TEST(DIBitmapTurned, is_not_clipped_to_a_shape_that_has_no_region) {
    LVXRectangle shape(RectCorners, 0, 1, 9, 2);
    Surface surface(3, 3);
    surface.dc.SelectClipRgn(owl::TRegion(TRect(0, 0, 1, 1)));
    letter_bitmap(six, 24).StretchDIBits(surface.dc, TRect(TPoint(0, 3), TSize(3, 2)), TRect(0, 0, 3, 2), 0,
                                         1, SRCCOPY, &shape);
    EXPECT_EQ("BY.\nGM.\nRC.\n", surface.Picture());
}

TEST(DIBitmapTurned, leaves_no_transform_whatever_there_was) {
    Surface surface(3, 3);
    surface.dc.SetGraphicsMode(GM_ADVANCED);
    surface.dc.SetWorldTransform({2, 0, 0, 2, 50, 60});
    letter_bitmap(six, 24).StretchDIBits(surface.dc, TRect(TPoint(0, 3), TSize(3, 2)), TRect(0, 0, 3, 2), 0,
                                         1, SRCCOPY, nullptr);
    EXPECT_EQ("BY.\nGM.\nRC.\n", surface.Picture());
    EXPECT_EQ(GM_COMPATIBLE, surface.dc.GetGraphicsMode());
    XFORM world{};
    EXPECT_TRUE(surface.dc.GetWorldTransform(world));
    EXPECT_EQ(1, world.eM11);
    EXPECT_EQ(0, world.eDx);
}

// What is no angle draws nothing, and puts all in order again.
TEST(DIBitmapTurned, by_what_is_no_angle_draws_nothing) {
    const double nothing = std::nan("");
    for (const auto& [cosine, sine] :
         {std::pair(0.0, 0.0), std::pair(nothing, nothing), std::pair(HUGE_VAL, 0.0)}) {
        Surface surface(3, 3);
        letter_bitmap(six, 24).StretchDIBits(surface.dc, TRect(TPoint(1, 1), TSize(3, 2)), TRect(0, 0, 3, 2),
                                             cosine, sine, SRCCOPY, nullptr);
        EXPECT_EQ(GM_COMPATIBLE, surface.dc.GetGraphicsMode());
    }
}

}  // namespace
