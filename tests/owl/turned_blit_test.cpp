#include "owl/turned_blit.h"

#include <gtest/gtest.h>

#include <cmath>

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
    EXPECT_EQ("....\n.RGB\n.CMY\n", Drawn({"RGB", "CMY"}, {1, 0, 0, 1, 1, 1}, 4, 3));
    Surface surface(1, 1);
    SetTransform(surface.dc, {2, 0, 0, -3, 1, 1});
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

TEST(TurnedBlit, refuses_a_source_that_reaches_beyond_the_picture) {
    Surface surface(9, 9);
    const HDC dc = surface.dc;
    SetTransform(surface.dc, Turn(pi / 2, 4, 4));
    for (const TRect& src : {TRect(0, 0, 3, 2), TRect(0, 0, 2, 3), TRect(-1, 0, 1, 2), TRect(0, -1, 2, 1),
                             TRect(0, 0, 0, 2), TRect(0, 0, 2000000000, 2000000000)}) {
        EXPECT_FALSE(owl::StretchTurnedDIBits(dc, TRect(0, 0, 2, 2), src, Quarters().Bits(),
                                              Quarters().Info(), DIB_RGB_COLORS, SRCCOPY));
        EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, ::GetLastError());
    }
    EXPECT_FALSE(owl::StretchTurnedDIBits(dc, TRect(0, 0, 2, 2), TRect(0, 0, 2, 2), nullptr,
                                          Quarters().Info(), DIB_RGB_COLORS, SRCCOPY));
    EXPECT_EQ(std::string::npos, surface.Picture().find_first_not_of(".\n"));
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
