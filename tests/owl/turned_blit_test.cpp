#include "owl/turned_blit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "letter_picture.h"
#include "owl/dc.h"
#include "owl/palette.h"
#include "owl/region.h"
#include "surface.h"

namespace {

using owl::TBitmap;
using owl::TColor;
using owl::TDC;
using owl::TMemoryDC;
using owl::TPoint;
using owl::TRect;
using owl_test::LetterPicture;
using owl_test::Surface;

using Rows = std::vector<std::string>;

const Rows sixPixels = {"RGB", "CMY"};

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

/// What a surface shows of the picture, drawn unstretched under the transform.
std::string Drawn(const Rows& rows, const XFORM& transform, int width, int height, int depth = 24,
                  unsigned long rop = SRCCOPY) {
    const LetterPicture picture(rows, depth);
    const TRect all(0, 0, static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
    Surface surface(width, height);
    SetTransform(surface.dc, transform);
    EXPECT_TRUE(surface.dc.StretchDIBits(all, all, picture.Bits(), picture.Info(), DIB_RGB_COLORS, rop));
    return surface.Picture();
}

// x' = -y + 2, y' = x: the first row becomes the right column.
TEST(TurnedBlit, a_quarter_turn_loses_no_pixel) {
    EXPECT_EQ("CR.\nMG.\nYB.\n", Drawn({"RGB", "CMY"}, Turn(pi / 2, 2, 0), 3, 3));
    EXPECT_EQ("BY.\nGM.\nRC.\n", Drawn({"RGB", "CMY"}, Turn(-pi / 2, 0, 3), 3, 3));
}

TEST(TurnedBlit, a_picture_that_is_exchanged_across_its_diagonal_loses_no_pixel) {
    EXPECT_EQ("RC.\nGM.\nBY.\n", Drawn({"RGB", "CMY"}, {0, 1, 1, 0, 0, 0}, 3, 3));
}

TEST(TurnedBlit, is_the_same_from_every_depth) {
    for (const int depth : {4, 8, 16, 24, 32})
        EXPECT_EQ("CR.\nMG.\nYB.\n", Drawn({"RGB", "CMY"}, Turn(pi / 2, 2, 0), 3, 3, depth)) << depth;
    EXPECT_EQ(".#\n#.\n..\n", Drawn({"#..", ".#."}, Turn(pi / 2, 2, 0), 2, 3, 1).substr(0, 9));
}

TEST(TurnedBlit, mixes_by_the_raster_operation) {
    EXPECT_EQ("RC.\nGM.\nBY.\n", Drawn({"RGB", "CMY"}, Turn(pi / 2, 2, 0), 3, 3, 24, NOTSRCCOPY));
    EXPECT_EQ("RC.\nGM.\nBY.\n", Drawn({"RGB", "CMY"}, Turn(pi / 2, 2, 0), 3, 3, 24, SRCINVERT));
}

TEST(TurnedBlit, without_a_turn_is_the_platforms_own) {
    EXPECT_EQ("....\n.RGB\n.CMY\n", Drawn(sixPixels, {1, 0, 0, 1, 1, 1}, 4, 3));
    Surface surface(1, 1);
    SetTransform(surface.dc, {2, 0, 0, 3, 1, 1});
    EXPECT_FALSE(owl::NeedsTurnedPictures(surface.dc));
    surface.dc.ModifyWorldTransform({}, MWT_IDENTITY);
    surface.dc.SetGraphicsMode(GM_COMPATIBLE);
    EXPECT_FALSE(owl::NeedsTurnedPictures(surface.dc));
}

TEST(TurnedBlit, is_needed_for_a_turn_unless_the_platform_can) {
    Surface surface(1, 1);
    SetTransform(surface.dc, Turn(0.1, 0, 0));
    EXPECT_EQ(!owl::PlatformTurnsPictures(), owl::NeedsTurnedPictures(surface.dc));
    SetTransform(surface.dc, {1, 0.5f, 0, 1, 0, 0});
    EXPECT_EQ(!owl::PlatformTurnsPictures(), owl::NeedsTurnedPictures(surface.dc));
}

// Half a turn, told exactly, was drawn one pixel to the right and one below.
TEST(TurnedBlit, that_is_mirrored_by_the_transform_lies_within_its_edges) {
    EXPECT_EQ("...\nYMC\nBGR\n", Drawn(sixPixels, {-1, 0, 0, -1, 3, 3}, 3, 3));
    EXPECT_EQ("BGR\nYMC\n...\n", Drawn(sixPixels, {-1, 0, 0, 1, 3, 0}, 3, 3));
    EXPECT_EQ("CMY\nRGB\n...\n", Drawn(sixPixels, {1, 0, 0, -1, 0, 2}, 3, 3));
    EXPECT_EQ("YYMMCC\nBBGGRR\n", Drawn(sixPixels, {-2, 0, 0, -1, 6, 2}, 6, 2));
}

/// The letter at a place by the rule for one place: of the quarters of a square from -20 to 20, or white
/// outside.
char Expected(double x, double y, double angle, bool mirrored) {
    const double u = (x * std::cos(angle) + y * std::sin(angle)) * (mirrored ? -1 : 1);
    const double v = y * std::cos(angle) - x * std::sin(angle);
    if (std::abs(u) >= 20 || std::abs(v) >= 20)
        return '.';
    return "RGBY"[(v < 0 ? 0 : 2) + (u < 0 ? 0 : 1)];
}

/// Whether the whole neighbourhood of a pixel looks alike, so that no border's rounding matters.
bool IsInside(double x, double y, double angle, bool mirrored) {
    const char middle = Expected(x, y, angle, mirrored);
    for (const double dx : {-1.0, 0.0, 1.0}) {
        for (const double dy : {-1.0, 0.0, 1.0}) {
            if (Expected(x + dx, y + dy, angle, mirrored) != middle)
                return false;
        }
    }
    return true;
}

/// Compares a surface of 80 pixels with four quarters of 20 that are turned about its middle.
void ExpectQuarters(const Surface& surface, double angle, bool mirrored = false) {
    int compared = 0;
    for (int y = 0; y < 80; ++y) {
        for (int x = 0; x < 80; ++x) {
            if (!IsInside(x - 39.5, y - 39.5, angle, mirrored))
                continue;
            ASSERT_EQ(Expected(x - 39.5, y - 39.5, angle, mirrored), Surface::Letter(surface.At(x, y)))
                << angle << " at " << x << "," << y;
            ++compared;
        }
    }
    EXPECT_GT(compared, 5500);
}

const LetterPicture& Quarters() {
    static const LetterPicture picture({"RG", "BY"}, 24);
    return picture;
}

TEST(TurnedBlit, lies_at_every_angle_where_it_should) {
    for (int degrees = 0; degrees < 360; degrees += 15) {
        const double angle = degrees * pi / 180;
        Surface surface(80, 80);
        SetTransform(surface.dc, Turn(angle, 40, 40));
        surface.dc.SetStretchBltMode(COLORONCOLOR);
        EXPECT_TRUE(surface.dc.StretchDIBits(TRect(-20, -20, 20, 20), TRect(0, 0, 2, 2), Quarters().Bits(),
                                             Quarters().Info()));
        ExpectQuarters(surface, angle);
    }
}

// Here whatever the platform can: elsewhere its own drawing may stand in for the turned strips.
TEST(TurnedBlit, in_strips_lies_where_it_should) {
    Surface surface(80, 80);
    SetTransform(surface.dc, Turn(0.6, 40, 40));
    EXPECT_TRUE(owl::StretchTurnedDIBits(surface.dc, TRect(-20, -20, 20, 20), TRect(0, 0, 2, 2),
                                         Quarters().Bits(), Quarters().Info(), DIB_RGB_COLORS, SRCCOPY));
    ExpectQuarters(surface, 0.6);
}

/// Whether the platform's own drawing shows the middles of the quarters where they should be.
bool PlatformShowsQuarters(double angle) {
    Surface surface(80, 80);
    SetTransform(surface.dc, Turn(angle, 40, 40));
    ::StretchDIBits(surface.dc, -20, -20, 40, 40, 0, 0, 2, 2, Quarters().Bits(), Quarters().Info(),
                    DIB_RGB_COLORS, SRCCOPY);
    for (const int x : {-10, 10}) {
        for (const int y : {-10, 10}) {
            const double turnedX = x * std::cos(angle) - y * std::sin(angle);
            const double turnedY = x * std::sin(angle) + y * std::cos(angle);
            const COLORREF found = surface.At(static_cast<int>(40 + turnedX), static_cast<int>(40 + turnedY));
            if (Surface::Letter(found) != Expected(turnedX, turnedY, angle, false))
                return false;
        }
    }
    return true;
}

TEST(TurnedBlit, what_the_probe_found_is_what_the_platform_does) {
    EXPECT_EQ(PlatformShowsQuarters(0.6) && PlatformShowsQuarters(pi / 2), owl::PlatformTurnsPictures());
}

TEST(TurnedBlit, is_mirrored_where_one_rectangle_is_not_normal) {
    const struct {
        TRect dest, src;
        bool mirrored;
    } cases[] = {
        {TRect(20, -20, -20, 20), TRect(0, 0, 2, 2), true},
        {TRect(-20, -20, 20, 20), TRect(2, 0, 0, 2), true},
        {TRect(20, -20, -20, 20), TRect(2, 0, 0, 2), false},
    };
    for (const auto& one : cases) {
        Surface surface(80, 80);
        SetTransform(surface.dc, Turn(0.6, 40, 40));
        surface.dc.SetStretchBltMode(COLORONCOLOR);
        EXPECT_TRUE(surface.dc.StretchDIBits(one.dest, one.src, Quarters().Bits(), Quarters().Info()));
        ExpectQuarters(surface, 0.6, one.mirrored);
    }
}

TEST(TurnedBlit, goes_through_the_page_as_through_the_world) {
    Surface surface(80, 80);
    surface.dc.SetMapMode(MM_ANISOTROPIC);
    surface.dc.SetWindowExt(owl::TSize(1, 1));
    surface.dc.SetViewportExt(owl::TSize(2, 2));
    surface.dc.SetWindowOrg(TPoint(10, 10));
    surface.dc.SetViewportOrg(TPoint(20, 20));
    SetTransform(surface.dc, Turn(0.6, 20, 20));
    surface.dc.SetStretchBltMode(COLORONCOLOR);
    EXPECT_TRUE(surface.dc.StretchDIBits(TRect(-10, -10, 10, 10), TRect(0, 0, 2, 2), Quarters().Bits(),
                                         Quarters().Info()));
    ExpectQuarters(surface, 0.6);
}

TEST(TurnedBlit, stays_inside_the_clip_region) {
    Surface surface(80, 80);
    surface.dc.SelectClipRgn(owl::TRegion(TRect(0, 0, 40, 80)));
    SetTransform(surface.dc, Turn(0.6, 40, 40));
    EXPECT_TRUE(surface.dc.StretchDIBits(TRect(-20, -20, 20, 20), TRect(0, 0, 2, 2), Quarters().Bits(),
                                         Quarters().Info()));
    EXPECT_EQ('R', Surface::Letter(surface.At(30, 30)));
    for (int y = 0; y < 80; ++y) {
        for (int x = 40; x < 80; ++x)
            ASSERT_EQ('.', Surface::Letter(surface.At(x, y))) << x << "," << y;
    }
}

TEST(TurnedBlit, leaves_the_state_of_the_context_as_it_was) {
    Surface surface(80, 80);
    const XFORM transform = Turn(0.6, 40, 40);
    surface.dc.SelectClipRgn(owl::TRegion(TRect(0, 0, 40, 80)));
    SetTransform(surface.dc, transform);
    surface.dc.StretchDIBits(TRect(-20, -20, 20, 20), TRect(0, 0, 2, 2), Quarters().Bits(),
                             Quarters().Info());
    XFORM after{};
    surface.dc.GetWorldTransform(after);
    EXPECT_EQ(transform.eM12, after.eM12);
    EXPECT_EQ(transform.eDx, after.eDx);
    EXPECT_EQ(GM_ADVANCED, surface.dc.GetGraphicsMode());
    surface.dc.ModifyWorldTransform(transform, MWT_IDENTITY);
    TRect box;
    EXPECT_EQ(SIMPLEREGION, surface.dc.GetClipBox(box));
    EXPECT_EQ(TRect(0, 0, 40, 80), box);
}

TEST(TurnedBlit, outside_of_the_device_draws_nothing_and_succeeds) {
    EXPECT_EQ("...\n...\n...\n", Drawn({"RGB", "CMY"}, Turn(pi / 2, 900, 0), 3, 3));
}

// A picture that would cover a million by a million pixels takes no more than what is seen of it.
TEST(TurnedBlit, of_a_huge_picture_draws_what_is_seen) {
    Surface surface(3, 3);
    XFORM transform = Turn(0.6, 1.5f, 1.5f);
    SetTransform(surface.dc, transform);
    surface.dc.SetStretchBltMode(COLORONCOLOR);
    EXPECT_TRUE(surface.dc.StretchDIBits(TRect(-1000000, -1000000, 1000000, 1000000), TRect(0, 0, 2, 2),
                                         Quarters().Bits(), Quarters().Info()));
    EXPECT_EQ('R', Surface::Letter(surface.At(0, 0)));
    EXPECT_EQ('Y', Surface::Letter(surface.At(2, 2)));
}

TEST(TurnedBlit, refuses_no_picture_and_no_part_of_one) {
    Surface surface(9, 9);
    const HDC dc = surface.dc;
    SetTransform(surface.dc, Turn(pi / 2, 4, 4));
    EXPECT_FALSE(owl::StretchTurnedDIBits(dc, TRect(0, 0, 2, 2), TRect(0, 0, 0, 2), Quarters().Bits(),
                                          Quarters().Info(), DIB_RGB_COLORS, SRCCOPY));
    EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, ::GetLastError());
    EXPECT_FALSE(owl::StretchTurnedDIBits(dc, TRect(0, 0, 2, 2), TRect(0, 0, 2, 2), nullptr,
                                          Quarters().Info(), DIB_RGB_COLORS, SRCCOPY));
    EXPECT_EQ(std::string::npos, surface.Picture().find_first_not_of(".\n"));
}

// It was drawn in black, and success reported.
TEST(TurnedBlit, refuses_a_picture_that_makes_no_sense) {
    BITMAPINFO info = *Quarters().Info();
    info.bmiHeader.biBitCount = 7;
    Surface surface(9, 9);
    SetTransform(surface.dc, Turn(pi / 2, 4, 4));
    EXPECT_FALSE(surface.dc.StretchDIBits(TRect(0, 0, 2, 2), TRect(0, 0, 2, 2), Quarters().Bits(), &info));
    EXPECT_FALSE(surface.dc.StretchDIBits(TRect(0, 0, 2, 2), TRect(0, 0, 2, 2), Quarters().Bits(),
                                          Quarters().Info(), 99));
    EXPECT_EQ(std::string::npos, surface.Picture().find_first_not_of(".\n"));
}

/// Rectangles of sides up to 6 about a picture of 3 by 2.
std::vector<TRect> PartsAboutSixPixels() {
    std::vector<TRect> parts;
    for (int left = -2; left <= 4; left += 2) {
        for (const int top : {-3, 0, 1}) {
            for (const int width : {1, 3, 6}) {
                for (const int height : {1, 2, 5})
                    parts.push_back(TRect(TPoint(left, top), owl::TSize(width, height)));
            }
        }
    }
    return parts;
}

std::string Told(const TRect& rect) {
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + " " + std::to_string(rect.Width()) +
           "x" + std::to_string(rect.Height());
}

// Parts that reached beyond the picture were refused, where without a turn as much is drawn as there is.
TEST(TurnedBlit, without_a_turn_would_draw_what_the_platform_draws_of_every_part) {
    for (const bool upperRowFirst : {false, true}) {
        const LetterPicture picture(sixPixels, 24, upperRowFirst);
        for (const TRect& part : PartsAboutSixPixels()) {
            // What is not there is counted from either side.
            if (upperRowFirst && !TRect(0, 0, 3, 2).Contains(part))
                continue;
            const TRect dest(TPoint(4, 4), part.Size());
            Surface straight(12, 12), strips(12, 12);
            ::StretchDIBits(straight.dc, dest.left, dest.top, dest.Width(), dest.Height(), part.left,
                            part.top, part.Width(), part.Height(), picture.Bits(), picture.Info(),
                            DIB_RGB_COLORS, SRCCOPY);
            EXPECT_TRUE(owl::StretchTurnedDIBits(strips.dc, dest, part, picture.Bits(), picture.Info(),
                                                 DIB_RGB_COLORS, SRCCOPY));
            EXPECT_EQ(straight.Picture(), strips.Picture()) << Told(part) << upperRowFirst;
        }
    }
}

TEST(TurnedBlit, without_a_turn_would_copy_what_the_platform_copies_of_every_part) {
    Surface source(3, 2);
    for (int x = 0; x < 3; ++x) {
        for (int y = 0; y < 2; ++y)
            source.dc.SetPixel(
                x, y, owl_test::ColorOf(sixPixels[static_cast<unsigned>(y)][static_cast<unsigned>(x)]));
    }
    for (const TRect& part : PartsAboutSixPixels()) {
        const TRect dest(TPoint(4, 4), part.Size());
        Surface straight(12, 12), strips(12, 12);
        ::StretchBlt(straight.dc, dest.left, dest.top, dest.Width(), dest.Height(), source.dc, part.left,
                     part.top, part.Width(), part.Height(), SRCCOPY);
        EXPECT_TRUE(owl::StretchTurned(strips.dc, dest, source.dc, part, SRCCOPY));
        EXPECT_EQ(straight.Picture(), strips.Picture()) << Told(part);
    }
}

TEST(TurnedBlit, refuses_a_source_that_is_turned_itself) {
    Surface source(3, 2), surface(3, 3);
    SetTransform(source.dc, Turn(0.6, 1, 1));
    SetTransform(surface.dc, Turn(0.6, 1, 1));
    EXPECT_FALSE(owl::StretchTurned(surface.dc, TRect(0, 0, 3, 2), source.dc, TRect(0, 0, 3, 2), SRCCOPY));
    EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, ::GetLastError());
}

TEST(TurnedBlit, copies_from_a_source_with_units_of_its_own) {
    Surface source(4, 2);
    source.dc.PatBlt(0, 0, 2, 2, BLACKNESS);
    source.dc.SetMapMode(MM_ANISOTROPIC);
    source.dc.SetViewportExt(owl::TSize(2, 2));
    Surface surface(1, 2);
    SetTransform(surface.dc, Turn(pi / 2, 1, 0));
    EXPECT_TRUE(surface.dc.BitBlt(TRect(0, 0, 2, 1), source.dc, TPoint()));
    EXPECT_EQ("#\n.\n", surface.Picture());
}

TEST(TurnedBlit, of_run_lengths_shows_what_is_drawn_without_a_turn) {
    struct {
        BITMAPINFOHEADER header;
        RGBQUAD colours[3];
    } info = {{40, 3, 2, 1, 8, BI_RLE8, 0, 0, 0, 3, 0}, {{}, {0, 0, 255, 0}, {255, 0, 0, 0}}};
    // Two red and a blue one, and above them blue, blue, red.
    const BYTE runs[] = {2, 1, 1, 2, 0, 0, 2, 2, 1, 1, 0, 1};
    info.header.biSizeImage = sizeof runs;
    Surface surface(2, 3);
    SetTransform(surface.dc, Turn(pi / 2, 2, 0));
    EXPECT_TRUE(surface.dc.StretchDIBits(TRect(0, 0, 3, 2), TRect(0, 0, 3, 2), runs,
                                         reinterpret_cast<const BITMAPINFO*>(&info)));
    EXPECT_EQ("RB\nRB\nBR\n", surface.Picture());
}

TEST(TurnedBlit, is_drawn_on_surfaces_of_every_depth) {
    for (const int depth : {1, 4, 8, 16, 24, 32}) {
        void* bits = nullptr;
        const LetterPicture target({"..", "..", ".."}, depth);
        const TBitmap bitmap(::CreateDIBSection(nullptr, target.Info(), DIB_RGB_COLORS, &bits, nullptr, 0),
                             owl::AutoDelete);
        const LetterPicture picture({"#..", "..#"}, 1);
        TMemoryDC dc;
        dc.SelectObject(bitmap);
        SetTransform(dc, Turn(pi / 2, 2, 0));
        EXPECT_TRUE(dc.StretchDIBits(TRect(0, 0, 3, 2), TRect(0, 0, 3, 2), picture.Bits(), picture.Info()));
        dc.ModifyWorldTransform({}, MWT_IDENTITY);
        std::string found;
        for (int y = 0; y < 3; ++y) {
            for (int x = 0; x < 2; ++x)
                found += Surface::Letter(dc.GetPixel(x, y));
        }
        EXPECT_EQ(".#..#.", found) << depth;
    }
}

TEST(TurnedBlit, draws_the_part_of_a_picture_that_is_drawn_without_a_turn) {
    for (const bool upperRowFirst : {false, true}) {
        const LetterPicture picture({"RG", "BY"}, 24, upperRowFirst);
        Surface straight(1, 1);
        EXPECT_TRUE(
            straight.dc.StretchDIBits(TRect(0, 0, 1, 1), TRect(1, 0, 2, 1), picture.Bits(), picture.Info()));
        Surface turned(1, 1);
        SetTransform(turned.dc, Turn(pi / 2, 1, 0));
        EXPECT_TRUE(
            turned.dc.StretchDIBits(TRect(0, 0, 1, 1), TRect(1, 0, 2, 1), picture.Bits(), picture.Info()));
        EXPECT_EQ(straight.Picture(), turned.Picture());
        EXPECT_TRUE(upperRowFirst || turned.Picture() == "Y\n") << turned.Picture();
    }
}

TEST(TurnedBlit, takes_palette_colours_from_the_context) {
    struct {
        BITMAPINFOHEADER header;
        WORD indices[256];
    } info{};
    info.header.biSize = sizeof info.header;
    info.header.biWidth = 2;
    info.header.biHeight = 1;
    info.header.biPlanes = 1;
    info.header.biBitCount = 8;
    info.indices[0] = 1;
    info.indices[1] = 0;
    const BYTE bits[4] = {0, 1, 0, 0};
    const PALETTEENTRY entries[] = {{255, 0, 0, 0}, {0, 0, 255, 0}};
    const owl::TPalette palette(entries, 2);
    Surface surface(1, 2);
    surface.dc.SelectObject(palette);
    SetTransform(surface.dc, Turn(pi / 2, 1, 0));
    EXPECT_TRUE(surface.dc.StretchDIBits(TRect(0, 0, 2, 1), TRect(0, 0, 2, 1), bits,
                                         reinterpret_cast<const BITMAPINFO*>(&info), DIB_PAL_COLORS));
    EXPECT_EQ("B\nR\n", surface.Picture());
    surface.dc.RestorePalette();
}

TEST(TurnedBlit, turns_what_another_context_shows) {
    Surface source(3, 2);
    source.dc.SetPixel(0, 0, TColor::LtRed);
    source.dc.SetPixel(2, 1, TColor::LtBlue);
    Surface surface(2, 3);
    SetTransform(surface.dc, Turn(pi / 2, 2, 0));
    EXPECT_TRUE(surface.dc.BitBlt(TRect(0, 0, 3, 2), source.dc, TPoint(), SRCCOPY));
    EXPECT_EQ(".R\n..\nB.\n", surface.Picture());
    surface.dc.SetStretchBltMode(COLORONCOLOR);
    EXPECT_TRUE(surface.dc.StretchBlt(TRect(0, 0, 3, 2), source.dc, TRect(2, 1, 3, 2), SRCCOPY));
    EXPECT_EQ("BB\nBB\nBB\n", surface.Picture());
}

TEST(TurnedBlit, of_a_monochrome_context_takes_the_colours_of_the_one_drawn_on) {
    const WORD row[] = {0x0080};
    const TBitmap bitmap(2, 1, 1, 1, row);
    TMemoryDC source;
    source.SelectObject(bitmap);
    Surface surface(1, 2);
    surface.dc.SetTextColor(TColor::LtRed);
    surface.dc.SetBkColor(TColor::LtBlue);
    SetTransform(surface.dc, Turn(pi / 2, 1, 0));
    EXPECT_TRUE(surface.dc.BitBlt(TRect(0, 0, 2, 1), source, TPoint(), SRCCOPY));
    EXPECT_EQ("B\nR\n", surface.Picture());
}

TEST(TurnedBlit, is_recorded_by_an_enhanced_metafile) {
    const HDC recording = ::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(nullptr, recording);
    {
        TDC dc(recording);
        SetTransform(dc, Turn(0.6, 40, 40));
        dc.SetStretchBltMode(COLORONCOLOR);
        EXPECT_TRUE(dc.StretchDIBits(TRect(-20, -20, 20, 20), TRect(0, 0, 2, 2), Quarters().Bits(),
                                     Quarters().Info()));
    }
    const HENHMETAFILE metafile = ::CloseEnhMetaFile(recording);
    ENHMETAHEADER header{};
    ::GetEnhMetaFileHeader(metafile, sizeof header, &header);
    Surface surface(80, 80);
    RECT bounds;
    ::memcpy(&bounds, &header.rclBounds, sizeof bounds);
    EXPECT_TRUE(::PlayEnhMetaFile(surface.dc, metafile, &bounds));
    ::DeleteEnhMetaFile(metafile);
    // The middles of the quarters, 10 from the middle of the picture each way.
    const double angle = 0.6;
    for (const double x : {-10.0, 10.0}) {
        for (const double y : {-10.0, 10.0}) {
            const double turnedX = x * std::cos(angle) - y * std::sin(angle);
            const double turnedY = x * std::sin(angle) + y * std::cos(angle);
            EXPECT_EQ(
                Expected(turnedX, turnedY, angle, false),
                Surface::Letter(surface.At(static_cast<int>(40 + turnedX), static_cast<int>(40 + turnedY))));
        }
    }
    EXPECT_EQ('.', Surface::Letter(surface.At(16, 16)));
}

// It had a black seam: what is played larger, or printed, is clipped by outlines and not by pixels.
TEST(TurnedBlit, has_no_seam_when_it_is_played_larger) {
    const HDC recording = ::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    {
        TDC dc(recording);
        SetTransform(dc, Turn(0.6, 20, 20));
        dc.StretchDIBits(TRect(-10, -10, 10, 10), TRect(0, 0, 2, 2), Quarters().Bits(), Quarters().Info());
    }
    const HENHMETAFILE metafile = ::CloseEnhMetaFile(recording);
    for (const int side : {50, 73, 110}) {
        Surface surface(side, side);
        surface.dc.SetStretchBltMode(COLORONCOLOR);
        const RECT all = {0, 0, side, side};
        EXPECT_TRUE(::PlayEnhMetaFile(surface.dc, metafile, &all));
        EXPECT_EQ(std::string::npos, surface.Picture().find('#')) << side;
        EXPECT_NE(std::string::npos, surface.Picture().find('Y')) << side;
    }
    ::DeleteEnhMetaFile(metafile);
}

/// The bounds that an enhanced metafile notes of a picture of 40 by 40, drawn turned about a place.
TRect RecordedBounds(float x, float y, int side, bool& drawn) {
    const HDC recording = ::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    {
        TDC dc(recording);
        SetTransform(dc, Turn(pi / 4, x, y));
        drawn = dc.StretchDIBits(TRect(-side / 2, -side / 2, side / 2, side / 2), TRect(0, 0, 2, 2),
                                 Quarters().Bits(), Quarters().Info());
    }
    const HENHMETAFILE metafile = ::CloseEnhMetaFile(recording);
    ENHMETAHEADER header{};
    ::GetEnhMetaFileHeader(metafile, sizeof header, &header);
    ::DeleteEnhMetaFile(metafile);
    return TRect(header.rclBounds.left, header.rclBounds.top, header.rclBounds.right,
                 header.rclBounds.bottom);
}

// What lay beyond the screen's size, or left of its origin, was left out without a word.
TEST(TurnedBlit, is_recorded_by_an_enhanced_metafile_at_any_place) {
    for (const float place : {-3000.0f, 0.0f, 9000.0f}) {
        bool drawn = false;
        const TRect bounds = RecordedBounds(place, -place, 40, drawn);
        const double half = 20 * std::sqrt(2.0);
        EXPECT_TRUE(drawn) << place;
        EXPECT_NEAR(place - half, bounds.left, 2) << place;
        EXPECT_NEAR(-place - half, bounds.top, 2) << place;
        EXPECT_NEAR(place + half, bounds.right, 2) << place;
        EXPECT_NEAR(-place + half, bounds.bottom, 2) << place;
    }
}

TEST(TurnedBlit, refuses_to_fill_a_metafile_with_gigabytes) {
    if (owl::PlatformTurnsPictures())
        return;
    bool drawn = true;
    RecordedBounds(0, 0, 20000, drawn);
    EXPECT_FALSE(drawn);
}

TEST(TurnedBlit, leaves_nothing_behind) {
    Surface surface(80, 80);
    SetTransform(surface.dc, Turn(0.6, 40, 40));
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 100; ++i) {
        surface.dc.StretchDIBits(TRect(-20, -20, 20, 20), TRect(0, 0, 2, 2), Quarters().Bits(),
                                 Quarters().Info());
        surface.dc.StretchDIBits(TRect(-20, -20, 20, 20), TRect(0, 0, 9, 9), Quarters().Bits(),
                                 Quarters().Info());
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
