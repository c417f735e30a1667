#include "owl/cel_array.h"

#include <gtest/gtest.h>

#include <limits>

#include "owl/brush.h"
#include "owl/error.h"
#include "tests/owl/surface.h"

namespace {

using owl::TBitmap;
using owl::TCelArray;
using owl::TPoint;
using owl::TRect;
using owl::TSize;

TBitmap* Strip(int width, int height) {
    return new TBitmap(owl_test::MakeSection(width, height), owl::AutoDelete);
}

bool Exists(HGDIOBJ object) {
    BITMAP description;
    return ::GetObject(object, sizeof description, &description) != 0;
}

TEST(CelArray, is_one_cel_of_the_whole_bitmap_at_first) {
    const TCelArray cels(Strip(30, 8));
    EXPECT_EQ(1, cels.NumCels());
    EXPECT_EQ(TSize(30, 8), cels.CelSize());
    EXPECT_EQ(TRect(0, 0, 30, 8), cels.CelRect(0));
}

TEST(CelArray, shares_the_width_out_equally) {
    const TCelArray cels(Strip(64, 16), 4);
    EXPECT_EQ(TSize(16, 16), cels.CelSize());
    EXPECT_EQ(TRect(0, 0, 16, 16), cels.CelRect(0));
    EXPECT_EQ(TRect(48, 0, 64, 16), cels.CelRect(3));
    EXPECT_EQ(TPoint(32, 0), cels.CelOffset(2));
}

TEST(CelArray, leaves_the_rest_of_a_width_that_does_not_divide) {
    const TCelArray cels(Strip(11, 5), 4);
    EXPECT_EQ(TSize(2, 5), cels.CelSize());
    EXPECT_EQ(TRect(6, 0, 8, 5), cels.CelRect(3));
}

TEST(CelArray, takes_a_size_and_an_offset_of_its_own) {
    TCelArray cels(Strip(100, 40), 3, TSize(10, 20), TPoint(5, 7));
    EXPECT_EQ(TPoint(5, 7), cels.Offset());
    EXPECT_EQ(TRect(25, 7, 35, 27), cels.CelRect(2));
    cels.SetOffset(TPoint(1, 2));
    cels.SetCelSize(TSize(4, 6));
    EXPECT_EQ(TRect(9, 2, 13, 8), cels.CelRect(2));
    EXPECT_EQ(TSize(4, 6), cels.CelSize());
}

TEST(CelArray, is_divided_anew_without_a_change_of_size) {
    TCelArray cels(Strip(60, 10));
    cels.SetNumCels(5);
    EXPECT_EQ(5, cels.NumCels());
    EXPECT_EQ(TSize(60, 10), cels.CelSize());
    cels.SetCelSize(TSize(60 / 5, 10));
    EXPECT_EQ(TRect(48, 0, 60, 10), cels.CelRect(4));
}

TEST(CelArray, has_one_cel_at_least) {
    TCelArray none(Strip(10, 10), 0);
    EXPECT_EQ(1, none.NumCels());
    EXPECT_EQ(TSize(10, 10), none.CelSize());
    none.SetNumCels(-3);
    EXPECT_EQ(1, none.NumCels());
}

TEST(CelArray, has_no_place_for_a_cel_that_there_is_not) {
    const TCelArray cels(Strip(40, 10), 4);
    EXPECT_EQ(TRect(), cels.CelRect(-1));
    EXPECT_EQ(TRect(), cels.CelRect(4));
    EXPECT_EQ(TRect(), cels.CelRect(std::numeric_limits<int>::max()));
    EXPECT_EQ(TPoint(40, 0), cels.CelOffset(4));
    EXPECT_EQ(TPoint(-10, 0), cels.CelOffset(-1));
}

TEST(CelArray, ends_the_bitmap_that_it_owns) {
    HBITMAP handle = nullptr;
    {
        auto* bitmap = Strip(10, 10);
        handle = *bitmap;
        const TCelArray cels(bitmap);
        EXPECT_TRUE(Exists(handle));
    }
    EXPECT_FALSE(Exists(handle));
}

TEST(CelArray, leaves_a_bitmap_that_it_borrows) {
    const TBitmap bitmap(owl_test::MakeSection(10, 10), owl::AutoDelete);
    { const TCelArray cels(const_cast<TBitmap*>(&bitmap), 1, TSize(), TPoint(), owl::NoAutoDelete); }
    EXPECT_TRUE(Exists(bitmap));
}

TEST(CelArray, refuses_to_be_without_a_bitmap) {
    EXPECT_THROW(TCelArray(nullptr), owl::TXOwl);
    EXPECT_THROW(TCelArray(nullptr, 4, TSize(1, 1), TPoint(), owl::NoAutoDelete), owl::TXOwl);
}

TEST(CelArray, is_drawn_on_and_from_as_its_bitmap) {
    TCelArray cels(Strip(6, 2), 3);
    owl::TMemoryDC dc;
    dc.SelectObject(static_cast<TBitmap&>(cels));
    const COLORREF colours[] = {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255)};
    for (int cel = 0; cel < 3; ++cel)
        dc.FillRect(cels.CelRect(cel), owl::TBrush(owl::TColor(colours[cel])));
    owl_test::Surface surface(4, 4);
    surface.dc.BitBlt(TRect(TPoint(1, 1), cels.CelSize()), dc, cels.CelOffset(1));
    EXPECT_EQ("....\n.GG.\n.GG.\n....\n", surface.Picture());
}

}  // namespace
