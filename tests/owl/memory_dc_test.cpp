#include "owl/memory_dc.h"

#include <gtest/gtest.h>

#include "owl/bitmap.h"
#include "owl/pen.h"
#include "owl/window_dc.h"
#include "surface.h"

namespace {

using owl::TBitmap;
using owl::TColor;
using owl::TMemoryDC;
using owl_test::MakeSection;

TEST(MemoryDc, draws_on_the_selected_bitmap) {
    const TBitmap bitmap(MakeSection(2, 2), owl::AutoDelete);
    {
        TMemoryDC dc;
        dc.SelectObject(bitmap);
        dc.SetPixel(1, 1, TColor(7, 8, 9));
    }
    TMemoryDC dc;
    dc.SelectObject(bitmap);
    EXPECT_EQ(TColor(7, 8, 9), dc.GetPixel(1, 1));
    EXPECT_EQ(TColor::Black, dc.GetPixel(0, 0));
}

TEST(MemoryDc, is_made_fit_for_another_context) {
    const owl::TScreenDC screen;
    const TMemoryDC dc(screen);
    EXPECT_EQ(screen.GetDeviceCaps(BITSPIXEL), dc.GetDeviceCaps(BITSPIXEL));
    EXPECT_EQ(DWORD{OBJ_MEMDC}, ::GetObjectType(dc));
}

TEST(MemoryDc, restores_its_first_bitmap_after_many_others) {
    TMemoryDC dc;
    const HGDIOBJ first = ::GetCurrentObject(dc, OBJ_BITMAP);
    const TBitmap one(MakeSection(2, 2), owl::AutoDelete);
    const TBitmap two(MakeSection(2, 2), owl::AutoDelete);
    dc.SelectObject(one);
    dc.SelectObject(two);
    EXPECT_EQ(two.GetHandle(), ::GetCurrentObject(dc, OBJ_BITMAP));
    dc.RestoreBitmap();
    EXPECT_EQ(first, ::GetCurrentObject(dc, OBJ_BITMAP));
    dc.RestoreBitmap();
    EXPECT_EQ(first, ::GetCurrentObject(dc, OBJ_BITMAP));
}

// A painter that was handed the context and restored its tools took the bitmap away, and the rest was drawn
// nowhere.
TEST(MemoryDc, keeps_its_bitmap_when_the_tools_are_restored) {
    const TBitmap bitmap(MakeSection(2, 2), owl::AutoDelete);
    TMemoryDC dc;
    dc.SelectObject(bitmap);
    dc.RestoreObjects();
    EXPECT_EQ(bitmap.GetHandle(), ::GetCurrentObject(dc, OBJ_BITMAP));
}

TEST(MemoryDc, lets_go_of_its_bitmap_at_its_end) {
    const TBitmap bitmap(MakeSection(2, 2), owl::AutoDelete);
    {
        TMemoryDC dc;
        dc.SelectObject(bitmap);
    }
    TMemoryDC other;
    other.SelectObject(bitmap);
    EXPECT_EQ(bitmap.GetHandle(), ::GetCurrentObject(other, OBJ_BITMAP));
}

TEST(MemoryDc, restored_leaves_its_bitmap_to_another) {
    const TBitmap bitmap(MakeSection(2, 2), owl::AutoDelete);
    TMemoryDC first;
    TMemoryDC second;
    first.SelectObject(bitmap);
    EXPECT_THROW(second.SelectObject(bitmap), owl::TXGdi);
    first.RestoreBitmap();
    second.SelectObject(bitmap);
    EXPECT_EQ(bitmap.GetHandle(), ::GetCurrentObject(second, OBJ_BITMAP));
}

TEST(MemoryDc, does_not_take_a_bitmap_without_a_handle) {
    TMemoryDC dc;
    EXPECT_THROW(dc.SelectObject(TBitmap(HBITMAP(nullptr))), owl::TXGdi);
}

TEST(MemoryDc, still_selects_the_other_tools) {
    TMemoryDC dc;
    const owl::TPen pen(TColor::LtRed);
    dc.SelectObject(pen);
    EXPECT_EQ(pen.GetHandle(), ::GetCurrentObject(dc, OBJ_PEN));
}

// The tools and the bitmap were still selected when they were deleted, and stayed behind.
TEST(MemoryDc, leaves_nothing_behind) {
    const owl::TScreenDC screen;
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        const TBitmap bitmap(MakeSection(2, 2), owl::AutoDelete);
        const owl::TPen pen(TColor::LtRed);
        TMemoryDC dc(screen);
        dc.SelectObject(bitmap);
        dc.SelectObject(pen);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
