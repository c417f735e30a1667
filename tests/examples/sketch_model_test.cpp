// The example host's model: what figures do, how documents are written and read, what is refused.
#include <gtest/gtest.h>
#include <windows.h>

#include <cmath>
#include <cstring>
#include <fstream>
#include <numbers>
#include <sstream>

#include "lvx/store/object_store_storage.h"
#include "lvx/store/object_store_stream.h"
#include "owl/memory_dc.h"
#include "sketch/model/box.h"
#include "sketch/model/document.h"
#include "sketch/model/document_file.h"
#include "sketch/model/drawing.h"
#include "sketch/model/error.h"
#include "sketch/model/picture.h"
#include "sketch/model/picture_check.h"
#include "sketch/model/picture_file.h"
#include "sketch/model/polygon.h"
#include "sketch/model/reading.h"
#include "sketch/model/storage_error.h"
#include "sketch/model/stream_names.h"
#include "support/bytes.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace {

using LVXUtilities::DIBitmap;
using owl::TPoint;
using owl::TRect;
using owl::TSize;

sketch::Bitmap BitmapOf(const std::string& block) {
    HGLOBAL handle = ::GlobalAlloc(GMEM_MOVEABLE, block.size());
    std::memcpy(::GlobalLock(handle), block.data(), block.size());
    ::GlobalUnlock(handle);
    return std::make_shared<DIBitmap>(handle, DIBitmap::Adopt);
}

std::string Header(int width, int height, int bits) {
    const BITMAPINFOHEADER header{
        sizeof header, width, height, 1, static_cast<WORD>(bits), BI_RGB, 0, 0, 0, 0, 0};
    return {reinterpret_cast<const char*>(&header), sizeof header};
}

// Of 24 bits, all in one colour.
sketch::Bitmap PlainBitmap(int width, int height, COLORREF colour = RGB(255, 0, 0)) {
    std::string block = Header(width, height, 24);
    const std::size_t stride = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
    for (int y = 0; y < height; ++y) {
        std::string row(stride, '\0');
        for (std::size_t x = 0; x < static_cast<std::size_t>(width); ++x) {
            row[x * 3] = static_cast<char>(GetBValue(colour));
            row[x * 3 + 1] = static_cast<char>(GetGValue(colour));
            row[x * 3 + 2] = static_cast<char>(GetRValue(colour));
        }
        block += row;
    }
    return BitmapOf(block);
}

sketch::Picture PlainPicture(int width = 100, int height = 50) {
    return {PlainBitmap(width, height), "plain", {10, 20}};
}

std::vector<TPoint> PlacesOf(const sketch::Figure& figure) {
    std::vector<TPoint> places;
    for (const sketch::Handle& handle : figure.Handles()) {
        places.push_back(handle.place);
    }
    return places;
}

std::string Cause(const std::string& file) {
    try {
        sketch::LoadDocument(file);
    } catch (const sketch::DocumentError& error) {
        return error.what();
    }
    return "none";
}

// A document's stream, written by hand.
template <class Write>
std::string Damaged(const lvx_test::TempFolder& folder, const Write& write) {
    const std::string file = folder.File("damaged.lvx");
    LVXUtilities::ObjectStoreStorage store;
    std::string error;
    EXPECT_TRUE(store.OpenStorage(file, ObjectStore::ForWrite, error)) << error;
    EXPECT_TRUE(store.OpenStream("Sketch", error)) << error;
    write(store);
    store.CloseStream();
    return file;
}

void WriteBytes(ObjectStore& store, const std::string& bytes) {
    store.Write(bytes.data(), static_cast<unsigned>(bytes.size()));
}

// The beginning of a drawing that holds one figure of a class.
void BeginFigure(ObjectStore& store, const std::string& name) {
    store << 1L;
    WriteBytes(store, "Bcsketch::Drawing\r\no");
    store << 1;
    WriteBytes(store, "Bc" + name + "\r\no");
}

sketch::Look SomeLook();

// What a document with a figure of each kind holds.
std::string StreamOfAllKinds() {
    auto picture = std::make_shared<sketch::Picture>(PlainBitmap(2, 2), "small", TPoint(5, 6));
    picture->Turn(0.5);
    std::ostringstream bytes;
    ObjectStoreStream store;
    store.OpenStream(&bytes);
    store << 1L
          << sketch::Drawing(
                 {std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook()),
                  std::make_shared<sketch::Ellipse>(TRect(1, 2, 3, 4), SomeLook()),
                  std::make_shared<sketch::Polygon>(std::vector<TPoint>{{1, 2}, {3, 4}, {5, 0}}, SomeLook()),
                  picture, picture->Clone()});
    store.CloseStream();
    return bytes.str();
}

sketch::Look SomeLook() {
    sketch::Look look;
    look.lineWidth = 3;
    look.line = LineInsideFrame;
    look.lineColour = owl::TColor(1, 2, 3);
    look.filled = true;
    look.fill = FillCross;
    look.fillColour = owl::TColor(4, 5, 6);
    return look;
}

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

TEST(SketchDocument, comes_back_from_its_file_as_it_was) {
    const lvx_test::TempFolder folder;
    const std::string file = folder.File("all.lvx");
    auto picture = std::make_shared<sketch::Picture>(PlainPicture());
    picture->Turn(0.5);
    picture->SkewBy(sketch::LowerRight, {20, 30});
    const auto copy = picture->Clone();
    copy->MoveBy({3, 4});
    sketch::SaveDocument(
        file, {std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook()),
               std::make_shared<sketch::Ellipse>(TRect(-5, -6, 7, 8), sketch::Look{}),
               std::make_shared<sketch::Polygon>(std::vector<TPoint>{{1, 2}, {3, 4}, {5, 0}}, SomeLook()),
               picture, copy});

    const sketch::LoadedDocument loaded = sketch::LoadDocument(file);
    EXPECT_TRUE(loaded.isOwn);
    ASSERT_EQ(5U, loaded.figures.size());
    EXPECT_EQ("Rectangle, 2 x 2", loaded.figures[0]->Describe());
    EXPECT_EQ(SomeLook(), *loaded.figures[0]->LookOf());
    EXPECT_EQ(TRect(-5, -6, 7, 8), loaded.figures[1]->Bounds());
    EXPECT_EQ("Ellipse, 12 x 14", loaded.figures[1]->Describe());
    EXPECT_EQ((std::vector<TPoint>{{1, 2}, {3, 4}, {5, 0}}), loaded.figures[2]->Outline());
    EXPECT_EQ(picture->Describe(), loaded.figures[3]->Describe());
    EXPECT_EQ(PlacesOf(*picture), PlacesOf(*loaded.figures[3]));
    EXPECT_EQ(PlacesOf(*copy), PlacesOf(*loaded.figures[4]));
}

TEST(SketchDocument, holds_the_pixels_of_copies_once) {
    const lvx_test::TempFolder folder;
    const auto picture = std::make_shared<sketch::Picture>(PlainBitmap(200, 200), "large", TPoint());
    sketch::SaveDocument(folder.File("one.lvx"), {picture});
    sketch::SaveDocument(folder.File("two.lvx"), {picture, picture->Clone()});
    EXPECT_GT(1000U, lvx_test::read_file(folder.File("two.lvx")).size() -
                         lvx_test::read_file(folder.File("one.lvx")).size());
    EXPECT_EQ(2U, sketch::LoadDocument(folder.File("two.lvx")).figures.size());
}

TEST(SketchDocument, of_nothing_is_a_document_too) {
    const lvx_test::TempFolder folder;
    sketch::SaveDocument(folder.File("empty.lvx"), {});
    EXPECT_TRUE(sketch::LoadDocument(folder.File("empty.lvx")).figures.empty());
    EXPECT_EQ(std::vector<std::string>{"Sketch"}, sketch::StreamNames(folder.File("empty.lvx")));
}

TEST(SketchDocument, shows_the_pictures_of_one_that_was_packed) {
    const lvx_test::TempFolder folder;
    const std::string file = folder.File("packed.lvx");
    LVXUtilities::ObjectStoreStorage store;
    std::string error;
    ASSERT_TRUE(store.OpenStorage(file, ObjectStore::ForWrite, error) && store.OpenStream("rose", error));
    store << 1L << *PlainBitmap(30, 40);
    store.CloseStream();

    const sketch::LoadedDocument loaded = sketch::LoadDocument(file);
    EXPECT_FALSE(loaded.isOwn);
    ASSERT_EQ(1U, loaded.figures.size());
    EXPECT_EQ("Picture \"rose\", 30 x 40", loaded.figures[0]->Describe());
    EXPECT_EQ(TRect(24, 24, 54, 64), loaded.figures[0]->Bounds());
}

TEST(SketchDocument, that_is_none_is_told_as_such) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("There is no such file. (HRESULT = 80030002)", Cause(folder.File("nothing.lvx")));
    std::ofstream(folder.File("text.lvx")) << "This is a text.";
    EXPECT_NE(std::string::npos, Cause(folder.File("text.lvx")).find("HRESULT = "));
}

TEST(SketchDocument, cut_off_anywhere_ends_in_an_error) {
    const lvx_test::TempFolder folder;
    const std::string whole = StreamOfAllKinds();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string cut =
            Damaged(folder, [&](ObjectStore& store) { WriteBytes(store, whole.substr(0, length)); });
        EXPECT_NE("none", Cause(cut)) << length;
    }
}

// Whatever it is then: it opens, or is refused by name.
TEST(SketchDocument, with_any_byte_changed_opens_or_ends_in_an_error) {
    const lvx_test::TempFolder folder;
    const std::string whole = StreamOfAllKinds();
    int refused = 0;
    for (std::size_t place = 0; place < whole.size(); ++place) {
        std::string changed = whole;
        changed[place] = static_cast<char>(~changed[place]);
        const std::string file = Damaged(folder, [&](ObjectStore& store) { WriteBytes(store, changed); });
        refused += Cause(file) == "none" ? 0 : 1;
    }
    EXPECT_LT(100, refused);
}

TEST(SketchDocument, of_another_version_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("It was written by another version of this program (2).",
              Cause(Damaged(folder, [](ObjectStore& store) { store << 2L; })));
}

TEST(SketchDocument, with_an_unknown_class_tells_its_name) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ(
        "Class 'sketch::Spiral' is not registered with the object factory - cannot create an instance of "
        "one.",
        Cause(Damaged(folder, [](ObjectStore& store) { BeginFigure(store, "sketch::Spiral"); })));
}

TEST(SketchDocument, with_a_bitmap_for_a_figure_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("There is an object of the class LVXUtilities::DIBitmap where it does not belong.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  store << 1L;
                  WriteBytes(store, "Bcsketch::Drawing\r\no");
                  store << 1 << *PlainBitmap(1, 1);
              })));
}

TEST(SketchDocument, with_a_figure_for_a_bitmap_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("There is an object of the class sketch::Picture where it does not belong.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  BeginFigure(store, "sketch::Picture");
                  WriteBytes(store, "BO");
                  store << 1;  // the picture itself
              })));
}

TEST(SketchDocument, with_the_drawing_in_itself_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("There is an object of the class sketch::Drawing where it does not belong.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  store << 1L;
                  WriteBytes(store, "Bcsketch::Drawing\r\no");
                  store << 1;
                  WriteBytes(store, "BO");
                  store << 0;
              })));
}

TEST(SketchReading, is_what_figures_are_read_in_and_nothing_else) {
    std::stringstream bytes;
    ObjectStoreStream store;
    store.OpenStream(static_cast<std::ostream*>(&bytes));
    store << sketch::Rectangle(TRect(1, 2, 3, 4), SomeLook());
    store.OpenStream(static_cast<std::istream*>(&bytes));
    Storable* figure = nullptr;
    EXPECT_THROW(store >> figure, sketch::DocumentError);
}

TEST(SketchDocument, with_a_figure_twice_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("A figure is there twice.", Cause(Damaged(folder, [](ObjectStore& store) {
                  const auto figure = std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook());
                  store << 1L << sketch::Drawing({figure, figure});
              })));
}

TEST(SketchDocument, with_numbers_beyond_reason_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("The number of figures is 2000000000, not from 0 to 1000000.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  store << 1L;
                  WriteBytes(store, "Bcsketch::Drawing\r\no");
                  store << 2000000000;
              })));
    EXPECT_EQ("The number of a polygon's corners is 1, not from 2 to 10000.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  BeginFigure(store, "sketch::Polygon");
                  store << 1;
              })));
    EXPECT_EQ("The place of a figure is 1000001, not from -1000000 to 1000000.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  BeginFigure(store, "sketch::Rectangle");
                  store << 1000001;
              })));
    EXPECT_EQ("A picture lies where none can be.", Cause(Damaged(folder, [](ObjectStore& store) {
                  BeginFigure(store, "sketch::Picture");
                  store << *PlainBitmap(1, 1) << std::string() << std::nan("");
              })));
}

TEST(SketchDocument, with_a_picture_shorter_than_it_says_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("A picture claims to be larger than what there is of it.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  BeginFigure(store, "sketch::Picture");
                  store << *BitmapOf(Header(1000, 1000, 24) + "few") << std::string() << 0.0 << 0.0 << 0.0
                        << 0 << 0 << 0;
              })));
}

TEST(SketchDocument, that_cannot_be_saved_leaves_the_file_as_it_was) {
    const lvx_test::TempFolder folder;
    const std::string file = folder.File("no-such-folder\\garden.lvx");
    EXPECT_THROW(sketch::SaveDocument(file, {}), sketch::DocumentError);

    const std::string held = folder.File("held.lvx");
    sketch::SaveDocument(held, {});
    const std::string before = lvx_test::read_file(held);
    const HANDLE open = ::CreateFileA(held.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, open);
    EXPECT_THROW(
        sketch::SaveDocument(held, {std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook())}),
        sketch::DocumentError);
    ::CloseHandle(open);
    EXPECT_EQ(before, lvx_test::read_file(held));
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, ::GetFileAttributesA((held + ".new").c_str()));
}

TEST(SketchDocument, goes_back_and_forth_through_its_edits) {
    sketch::Document document;
    const auto figure = std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook());
    EXPECT_FALSE(document.IsChanged() || document.CanUndo() || document.CanRedo());
    document.Edit({figure});
    document.Edit({figure, figure->Clone()});
    document.Undo();
    EXPECT_EQ(1U, document.Contents().size());
    document.Undo();
    EXPECT_FALSE(document.IsChanged());
    EXPECT_FALSE(document.CanUndo());
    document.Redo();
    EXPECT_EQ(sketch::Figures{figure}, document.Contents());
    document.Edit({});
    EXPECT_FALSE(document.CanRedo());
    EXPECT_TRUE(document.IsChanged());
}

TEST(SketchDocument, is_unchanged_where_it_was_saved) {
    const lvx_test::TempFolder folder;
    sketch::Document document;
    document.Edit({std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook())});
    document.Save(folder.File("garden.lvx"));
    EXPECT_FALSE(document.IsChanged());
    EXPECT_EQ("garden.lvx", document.Title());
    document.Undo();
    EXPECT_TRUE(document.IsChanged());
    document.Redo();
    EXPECT_FALSE(document.IsChanged());
}

TEST(SketchDocument, stays_as_it_was_when_another_does_not_open) {
    const lvx_test::TempFolder folder;
    sketch::Document document;
    document.Edit({std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook())});
    EXPECT_THROW(document.Open(folder.File("nothing.lvx")), sketch::DocumentError);
    EXPECT_EQ(1U, document.Contents().size());
    EXPECT_TRUE(document.CanUndo());
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
