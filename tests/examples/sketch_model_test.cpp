// The example host's figures: what is done to them and what is refused.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <numbers>

#include "owl/memory_dc.h"
#include "sketch/model/box.h"
#include "sketch/model/error.h"
#include "sketch/model/figure_image.h"
#include "sketch/model/picture_check.h"
#include "sketch/model/picture_file.h"
#include "sketch/model/polygon.h"
#include "support/bytes.h"
#include "support/places.h"
#include "support/sketch_figures.h"
#include "support/temp_folder.h"

namespace {

using namespace sketch_test;
using LVXUtilities::DIBitmap;
using owl::TPoint;
using owl::TRect;
using owl::TSize;

COLORREF PixelOf(const owl::TBitmap& bitmap, int x, int y) {
    owl::TMemoryDC dc;
    dc.SelectObject(bitmap);
    return dc.GetPixel(x, y);
}

int NumberAt(const std::string& bytes, std::size_t offset) {
    int number = 0;
    std::memcpy(&number, bytes.data() + offset, sizeof number);
    return number;
}

// A pixel of the sample pictures, 127 by 64 in 8 or 24 bits, read from the bytes of its bitmap file.
COLORREF ColourInFile(const std::string& file, const TPoint& place) {
    const auto pixels = static_cast<std::size_t>(NumberAt(file, 10));
    const auto header = static_cast<std::size_t>(NumberAt(file, 14));
    const bool isOld = header == 12;
    const bool isTopDown = !isOld && NumberAt(file, 22) < 0;
    const int bits = file[isOld ? 24 : 28];
    const auto row = static_cast<std::size_t>(isTopDown ? place.y : 63 - place.y);
    const std::size_t stride = bits == 8 ? 128 : 384;
    const auto x = static_cast<std::size_t>(place.x) * static_cast<std::size_t>(bits) / 8;
    std::size_t colour = pixels + row * stride + x;
    if (bits == 8) {
        colour = 14 + header + static_cast<unsigned char>(file[colour]) * (isOld ? 3U : 4U);
    }
    return RGB(static_cast<BYTE>(file[colour + 2]), static_cast<BYTE>(file[colour + 1]),
               static_cast<BYTE>(file[colour]));
}

// Skewing mixes each pixel with its neighbours.
bool AreAlike(COLORREF a, COLORREF b) {
    const auto differ = [](BYTE x, BYTE y) { return std::abs(x - y) > 16; };
    return !differ(GetRValue(a), GetRValue(b)) && !differ(GetGValue(a), GetGValue(b)) &&
           !differ(GetBValue(a), GetBValue(b));
}

}  // namespace

TEST(SketchBox, keeps_the_opposite_corner_when_one_is_pulled) {
    sketch::Rectangle box({10, 20, 110, 70}, {});
    box.Pull(0, {10, 20}, {15, 30});
    EXPECT_EQ(TRect(15, 30, 110, 70), box.Bounds());
    box.Pull(1, {110, 30}, {100, 25});
    EXPECT_EQ(TRect(15, 25, 100, 70), box.Bounds());
    box.Pull(2, {100, 70}, {101, 71});
    EXPECT_EQ(TRect(15, 25, 101, 71), box.Bounds());
    box.Pull(3, {15, 71}, {14, 80});
    EXPECT_EQ(TRect(14, 25, 101, 80), box.Bounds());
}

TEST(SketchBox, stays_upright_when_a_corner_is_pulled_beyond_the_opposite_one) {
    sketch::Ellipse box({10, 20, 110, 70}, {});
    box.Pull(0, {10, 20}, {130, 90});
    EXPECT_EQ(TRect(110, 70, 130, 90), box.Bounds());
}

TEST(SketchBox, does_not_go_where_no_figure_may_be) {
    sketch::Rectangle box({10, 20, 110, 70}, {});
    box.MoveBy({1000000, 0});
    EXPECT_EQ(TRect(10, 20, 110, 70), box.Bounds());
    box.MoveBy({999890, 0});
    EXPECT_EQ(TRect(999900, 20, 1000000, 70), box.Bounds());
}

TEST(SketchBox, is_hit_within_its_shape_alone) {
    const sketch::Rectangle rectangle({10, 20, 110, 70}, {});
    EXPECT_TRUE(rectangle.Contains({11, 21}));
    EXPECT_FALSE(rectangle.Contains({9, 21}));
    const sketch::Ellipse ellipse({10, 20, 110, 70}, {});
    EXPECT_FALSE(ellipse.Contains({11, 21}));
    EXPECT_TRUE(ellipse.Contains({60, 21}));
    EXPECT_TRUE(ellipse.Contains({60, 45}));
    EXPECT_FALSE(sketch::Ellipse({10, 20, 10, 70}, {}).Contains({10, 45}));
}

TEST(SketchPolygon, is_hit_inside_but_not_in_its_notch) {
    const sketch::Polygon polygon({{0, 0}, {100, 0}, {100, 100}, {50, 50}, {0, 100}}, {});
    EXPECT_TRUE(polygon.Contains({50, 25}));
    EXPECT_TRUE(polygon.Contains({10, 60}));
    EXPECT_FALSE(polygon.Contains({50, 80}));
    EXPECT_EQ(TRect(0, 0, 100, 100), polygon.Bounds());
}

TEST(SketchPolygon, moves_one_corner_or_all) {
    sketch::Polygon polygon({{0, 0}, {100, 0}, {100, 100}}, {});
    polygon.Pull(2, {100, 100}, {90, 120});
    polygon.MoveBy({5, 6});
    EXPECT_EQ((std::vector<TPoint>{{5, 6}, {105, 6}, {95, 126}}), polygon.Outline());
}

TEST(SketchPicture, begins_straight_where_it_is_put) {
    const sketch::Picture picture = PlainPicture();
    EXPECT_EQ((std::vector<TPoint>{{10, 20}, {110, 20}, {110, 70}, {10, 70}, {60, -4}}), PlacesOf(picture));
    EXPECT_EQ("Picture \"plain\", 100 x 50", picture.Describe());
}

// The middle is (60, 45): a quarter turn to the left brings the upper left corner, (-50, -25) from there, to
// (-25, 50).
TEST(SketchPicture, turns_around_its_middle_against_the_clock) {
    sketch::Picture picture = PlainPicture();
    EXPECT_TRUE(picture.Turn(std::numbers::pi / 2));
    EXPECT_EQ((std::vector<TPoint>{{35, 95}, {35, -5}, {85, -5}, {85, 95}}), picture.Outline());
    EXPECT_EQ("Picture \"plain\", 100 x 50, turned by 90 degrees to the left", picture.Describe());
}

TEST(SketchPicture, is_straight_again_after_a_whole_turn) {
    sketch::Picture picture = PlainPicture();
    for (int i = 0; i < 24; ++i) {
        EXPECT_TRUE(picture.Turn(15 * std::numbers::pi / 180));
    }
    EXPECT_EQ(0, picture.Frame().angle);
}

TEST(SketchPicture, turns_by_its_knob) {
    sketch::Picture picture = PlainPicture();
    picture.Pull(4, {60, -4}, {109, 45});
    EXPECT_NEAR(-std::numbers::pi / 2, picture.Frame().angle, 1e-9);
}

TEST(SketchPicture, lets_each_corner_be_pulled_alone) {
    const std::vector<TPoint> straight = PlainPicture().Outline();
    for (std::size_t corner = 0; corner < 4; ++corner) {
        sketch::Picture picture = PlainPicture();
        picture.Pull(corner, {0, 0}, {7, -9});
        std::vector<TPoint> expected = straight;
        expected[corner] += TSize(7, -9);
        EXPECT_EQ(expected, picture.Outline()) << corner;
    }
}

TEST(SketchPicture, follows_the_mouse_with_a_corner_when_it_is_turned) {
    sketch::Picture picture = PlainPicture();
    picture.Turn(std::numbers::pi / 2);
    const std::vector<TPoint> before = picture.Outline();
    picture.Pull(1, before[1], before[1] + TSize(12, -8));
    std::vector<TPoint> expected = before;
    expected[1] += TSize(12, -8);
    EXPECT_EQ(expected, picture.Outline());
}

TEST(SketchPicture, stays_where_it_is_when_a_second_corner_is_pulled) {
    sketch::Picture picture = PlainPicture();
    picture.SkewBy(sketch::UpperRight, {30, -10});
    picture.SkewBy(sketch::LowerLeft, {-20, 5});
    // The frame of the first skew, 10 higher and 30 wider, is what the second one starts from.
    EXPECT_EQ((std::vector<TPoint>{{10, 10}, {140, 10}, {140, 70}, {-10, 75}}), picture.Outline());
}

TEST(SketchPicture, refuses_a_corner_that_comes_across_another) {
    sketch::Picture picture = PlainPicture();
    const std::vector<TPoint> before = picture.Outline();
    EXPECT_FALSE(picture.SkewBy(sketch::UpperRight, {-100, 50}));
    EXPECT_FALSE(picture.SkewBy(sketch::UpperRight, {100000, 100000}));
    EXPECT_EQ(before, picture.Outline());
}

TEST(SketchPicture, is_straightened) {
    sketch::Picture picture = PlainPicture();
    picture.Turn(1);
    picture.SkewBy(sketch::UpperLeft, {-30, -10});
    picture.Straighten();
    EXPECT_EQ(PlainPicture().Outline(), picture.Outline());
}

TEST(SketchPicture, has_its_colours_on_the_screen_whatever_its_kind) {
    const std::string folder = lvx_test::own_data() + "/pictures/";
    for (const char* name : {"pal8os2.bmp", "pal8topdown.bmp", "pal8v4.bmp", "rgb24.bmp"}) {
        const auto shown = sketch::ForScreen(*sketch::LoadPicture(folder + name));
        const std::string file = lvx_test::read_file(folder + name);
        ASSERT_EQ(TSize(127, 64), shown->Size()) << name;
        for (const TPoint& place : {TPoint(1, 1), TPoint(40, 30), TPoint(70, 50), TPoint(126, 63)}) {
            EXPECT_EQ(ColourInFile(file, place), PixelOf(*shown, place.x, place.y)) << name << " " << place.x;
        }
    }
}

TEST(SketchPicture, keeps_its_colours_when_it_is_turned_or_skewed_whatever_its_kind) {
    const std::string folder = lvx_test::own_data() + "/pictures/";
    for (const char* name : {"pal8os2.bmp", "pal8topdown.bmp", "pal8v4.bmp", "rgb24.bmp"}) {
        const sketch::Bitmap bitmap = sketch::LoadPicture(folder + name);
        const std::string file = lvx_test::read_file(folder + name);
        // The left end stays where it is when the upper right corner is pulled to the right.
        const auto skewed = sketch::ForScreen(*sketch::Skewed(bitmap, {sketch::UpperRight, 30, 0}));
        ASSERT_EQ(TSize(157, 64), skewed->Size()) << name;
        EXPECT_TRUE(AreAlike(ColourInFile(file, {1, 1}), PixelOf(*skewed, 1, 1))) << name;
        EXPECT_TRUE(AreAlike(ColourInFile(file, {1, 62}), PixelOf(*skewed, 1, 62))) << name;
        EXPECT_NE(PixelOf(*skewed, 1, 1), PixelOf(*skewed, 1, 62)) << name;
        // What was at the left end is at the right one after half a turn.
        const auto turned = sketch::ForScreen(*sketch::Turned(bitmap, std::numbers::pi));
        const TSize size = turned->Size();
        EXPECT_EQ(ColourInFile(file, {3, 3}), PixelOf(*turned, size.cx - 4, size.cy - 4)) << name;
        EXPECT_EQ(ColourInFile(file, {3, 60}), PixelOf(*turned, size.cx - 4, 3)) << name;
    }
}

TEST(SketchPictureCheck, refuses_what_claims_more_than_it_holds) {
    std::string block = Header(10, 10, 24);
    block += std::string(10 * 32 - 1, '\0');
    EXPECT_THROW(sketch::CheckPicture(*BitmapOf(block)), sketch::DocumentError);
    EXPECT_NO_THROW(sketch::CheckPicture(*BitmapOf(block + std::string(1, '\0'))));
}

TEST(SketchPictureCheck, refuses_sides_and_kinds_that_cannot_be) {
    const std::string pixels(4000, '\0');
    for (const auto& [width, height, bits] : {std::tuple{0, 10, 24},
                                              {-1, 10, 24},
                                              {10, 0, 24},
                                              {10, INT_MIN, 24},
                                              {INT_MAX, 1, 24},
                                              {10, 10, 3}}) {
        EXPECT_THROW(sketch::CheckPicture(*BitmapOf(Header(width, height, bits) + pixels)),
                     sketch::DocumentError)
            << width << " x " << height << ", " << bits;
    }
    EXPECT_THROW(sketch::CheckPicture(DIBitmap(nullptr, DIBitmap::Copy)), sketch::DocumentError);
    std::string coded = Header(10, 10, 8) + pixels;
    coded[16] = BI_RLE8;
    EXPECT_THROW(sketch::CheckPicture(*BitmapOf(coded)), sketch::DocumentError);
}

TEST(SketchPictureFile, refuses_what_is_no_picture) {
    const lvx_test::TempFolder folder;
    std::ofstream(folder.File("text.jpg")) << "This is a text.";
    std::ofstream(folder.File("short.bmp")) << "BM";
    std::ofstream(folder.File("empty.bmp"));
    for (const char* name : {"text.jpg", "short.bmp", "empty.bmp", "none.bmp"}) {
        EXPECT_THROW(sketch::Picture(sketch::LoadPicture(folder.File(name)), "", TPoint()),
                     sketch::DocumentError)
            << name;
    }
}

TEST(SketchPictureFile, names_pictures_without_folder_and_extension) {
    EXPECT_EQ("rose", sketch::PictureName("Z:\\garden\\rose.jpg"));
    EXPECT_EQ("rose.red", sketch::PictureName("rose.red.jpg"));
    EXPECT_EQ("rose", sketch::PictureName("rose"));
}

TEST(SketchFigureImage, holds_the_figure_and_its_line) {
    sketch::Look look;
    look.lineWidth = 4;
    const sketch::Rectangle box(TRect(100, 200, 130, 220), look);
    const sketch::Bitmap image = std::make_shared<DIBitmap>(sketch::MakeImage(box), DIBitmap::Adopt);
    // Three pixels beside it on each side: half of the line, and one more.
    EXPECT_EQ(TSize(36, 26), image->GetSize());
    EXPECT_EQ(32, image->GetBitsPerPixel());
    const auto shown = sketch::ForScreen(*image);
    EXPECT_EQ(RGB(255, 255, 255), PixelOf(*shown, 0, 0));
    EXPECT_EQ(RGB(0, 0, 0), PixelOf(*shown, 3, 13));
    EXPECT_EQ(RGB(255, 255, 255), PixelOf(*shown, 18, 13));
}

TEST(SketchFigureImage, is_refused_where_it_would_be_too_large) {
    const sketch::Rectangle box(TRect(0, 0, 900000, 900000), sketch::Look{});
    EXPECT_THROW(sketch::MakeImage(box), sketch::DocumentError);
}
