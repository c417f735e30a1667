#include "lvx/propdlg/masked_blit.h"

#include <gtest/gtest.h>

#include "owl/bitmap.h"
#include "owl/brush.h"
#include "owl/memory_dc.h"
#include "owl/module.h"
#include "owl/window_dc.h"
#include "propdlg_ids.h"

namespace {

using lvx::propdlg::masked_blit;
using owl::TColor;

// A white ground of 40 by 20 pixels, and three cels of 8 by 8 of which the left halves are transparent.
struct MaskedBlit : testing::Test {
    MaskedBlit()
        : ground(owl::TScreenDC(), 40, 20), cels(::GetModuleHandleA(nullptr), owl::TResId(IDB_MASKED)) {
        dc.SelectObject(ground);
        dc.FillRect(owl::TRect(0, 0, 40, 20), owl::TBrush(TColor::White));
    }
    owl::TBitmap ground;
    owl::TBitmap cels;
    owl::TMemoryDC dc;
};

TEST_F(MaskedBlit, draws_where_the_mask_is_black_and_leaves_the_ground_where_it_is_white) {
    EXPECT_TRUE(masked_blit(dc, owl::TPoint(10, 5), &cels, 8, 8));
    EXPECT_EQ(TColor::White, dc.GetPixel(13, 5));
    EXPECT_EQ(TColor::LtGreen, dc.GetPixel(14, 5));
    EXPECT_EQ(TColor::LtGreen, dc.GetPixel(17, 12));
    EXPECT_EQ(TColor::White, dc.GetPixel(18, 5));
    EXPECT_EQ(TColor::White, dc.GetPixel(14, 4));
    EXPECT_EQ(TColor::White, dc.GetPixel(14, 13));
}

TEST_F(MaskedBlit, a_width_of_0_is_all_columns_that_are_left) {
    EXPECT_TRUE(masked_blit(dc, owl::TPoint(0, 0), &cels, 8, 0));
    EXPECT_EQ(TColor::LtGreen, dc.GetPixel(7, 0));
    EXPECT_EQ(TColor::LtBlue, dc.GetPixel(15, 0));
    EXPECT_EQ(TColor::White, dc.GetPixel(16, 0));
}

TEST_F(MaskedBlit, without_a_bitmap_or_columns_nothing_is_drawn) {
    const owl::TBitmap none(static_cast<HBITMAP>(nullptr));
    EXPECT_FALSE(masked_blit(dc, owl::TPoint(0, 0), nullptr, 0, 8));
    EXPECT_FALSE(masked_blit(dc, owl::TPoint(0, 0), &none, 0, 8));
    EXPECT_FALSE(masked_blit(dc, owl::TPoint(0, 0), &cels, 24, 0));
    EXPECT_FALSE(masked_blit(dc, owl::TPoint(0, 0), &cels, 0, -1));
    EXPECT_EQ(TColor::White, dc.GetPixel(4, 0));
}

TEST_F(MaskedBlit, a_bitmap_that_is_selected_elsewhere_is_not_drawn) {
    owl::TMemoryDC other;
    other.SelectObject(cels);
    EXPECT_FALSE(masked_blit(dc, owl::TPoint(0, 0), &cels, 0, 8));
}

}  // namespace
