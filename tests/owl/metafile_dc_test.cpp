#include "owl/metafile_dc.h"

#include <gtest/gtest.h>

#include <string>

#include "letter_picture.h"
#include "owl/bitmap.h"
#include "owl/brush.h"
#include "owl/error.h"
#include "owl/memory_dc.h"
#include "owl/metafile_pict.h"
#include "owl/window_dc.h"
#include "surface.h"

namespace {

using owl::TBrush;
using owl::TColor;
using owl::TMetaFileDC;
using owl::TRect;
using owl_test::Surface;

TEST(MetaFileDc, records_what_is_drawn) {
    TMetaFileDC dc;
    const TBrush red(TColor::LtRed);
    dc.SelectObject(red);
    dc.PatBlt(TRect(1, 0, 3, 1), PATCOPY);
    const HMETAFILE metafile = dc.Close();
    ASSERT_NE(nullptr, metafile);
    Surface surface(4, 2);
    EXPECT_TRUE(::PlayMetaFile(surface.dc, metafile));
    EXPECT_EQ(".RR.\n....\n", surface.Picture());
    ::DeleteMetaFile(metafile);
}

TEST(MetaFileDc, is_closed_once) {
    TMetaFileDC dc;
    ::DeleteMetaFile(dc.Close());
    EXPECT_EQ(nullptr, dc.GetHDC());
    EXPECT_THROW(dc.Close(), owl::TXGdi);
}

TEST(MetaFileDc, records_to_a_file) {
    char folder[MAX_PATH], name[MAX_PATH];
    ::GetTempPathA(sizeof folder, folder);
    ::GetTempFileNameA(folder, "lvx", 0, name);
    {
        TMetaFileDC dc(name);
        const TBrush red(TColor::LtRed);
        dc.SelectObject(red);
        dc.PatBlt(TRect(0, 0, 1, 1), PATCOPY);
        ::DeleteMetaFile(dc.Close());
    }
    const HMETAFILE metafile = ::GetMetaFileA(name);
    ASSERT_NE(nullptr, metafile);
    Surface surface(2, 1);
    EXPECT_TRUE(::PlayMetaFile(surface.dc, metafile));
    EXPECT_EQ("R.\n", surface.Picture());
    ::DeleteMetaFile(metafile);
    ::DeleteFileA(name);
}

TEST(MetaFileDc, of_a_file_that_cannot_be_made_throws) {
    EXPECT_THROW(TMetaFileDC("no such folder\\file.wmf"), owl::TXGdi);
}

// The face was what lay in memory, and the height of a text millions.
TEST(MetaFileDc, measures_no_text_and_says_so) {
    TMetaFileDC dc;
    TEXTMETRIC metrics;
    metrics.tmHeight = 99;
    EXPECT_FALSE(dc.GetTextMetrics(metrics));
    EXPECT_EQ(0, metrics.tmHeight);
    char face[32] = "before";
    EXPECT_EQ(0, dc.GetTextFace(face, 31));
    EXPECT_STREQ("", face);
    EXPECT_EQ("", dc.GetTextFace());
    EXPECT_EQ(owl::TSize(0, 0), dc.GetTextExtent("abc"));
    TRect rect(1, 2, 3, 4);
    EXPECT_EQ(0, dc.DrawText("abc", rect, DT_CALCRECT));
    EXPECT_EQ(TRect(1, 2, 3, 4), rect);
    ::DeleteMetaFile(dc.Close());
}

// The memory context could not be made, since a metafile has no device.
TEST(MetaFileDc, records_what_a_bitmap_shows) {
    TMetaFileDC dc;
    owl::TBitmap bitmap(dc, 2, 1);
    EXPECT_EQ(owl::TScreenDC().GetDeviceCaps(BITSPIXEL), bitmap.BitsPixel());
    {
        owl::TMemoryDC memory(dc);
        memory.SelectObject(bitmap);
        memory.SetPixel(0, 0, TColor::LtRed);
        memory.SetPixel(1, 0, TColor::LtBlue);
        EXPECT_TRUE(dc.BitBlt(TRect(1, 0, 3, 1), memory, owl::TPoint()));
    }
    const owl::TMetaFilePict picture(dc.Close(), owl::AutoDelete);
    Surface surface(4, 1);
    EXPECT_TRUE(::PlayMetaFile(surface.dc, picture));
    EXPECT_EQ(".RB.\n", surface.Picture());
}

TEST(MetaFileDc, knows_no_turn) {
    TMetaFileDC dc;
    EXPECT_EQ(0, dc.SetGraphicsMode(GM_ADVANCED));
    EXPECT_FALSE(dc.SetWorldTransform({0, 1, -1, 0, 0, 0}));
    EXPECT_FALSE(dc.ModifyWorldTransform({}, MWT_IDENTITY));
    ::DeleteMetaFile(dc.Close());
}

/// What is seen of a picture that was recorded.
std::string Played(const void* bits, const BITMAPINFO* info) {
    TMetaFileDC dc;
    EXPECT_TRUE(dc.StretchDIBits(TRect(1, 0, 4, 2), TRect(0, 0, 3, 2), bits, info));
    const owl::TMetaFilePict picture(dc.Close(), owl::AutoDelete);
    Surface surface(5, 2);
    EXPECT_TRUE(::PlayMetaFile(surface.dc, picture));
    return surface.Picture();
}

// Of a picture whose header leaves out how many colours and bytes there are, as it may, none were recorded.
TEST(MetaFileDc, records_a_picture_of_every_depth) {
    for (const bool upperRowFirst : {false, true}) {
        for (const int depth : {4, 8, 16, 24, 32}) {
            const owl_test::LetterPicture letters({"RGB", "CMY"}, depth, upperRowFirst);
            EXPECT_EQ(".RGB.\n.CMY.\n", Played(letters.Bits(), letters.Info())) << depth << upperRowFirst;
        }
        const owl_test::LetterPicture letters({"#.#", ".#."}, 1, upperRowFirst);
        EXPECT_EQ(".#.#.\n..#..\n", Played(letters.Bits(), letters.Info())) << upperRowFirst;
    }
}

TEST(MetaFileDc, records_a_picture_with_the_oldest_header) {
    const struct {
        BITMAPCOREHEADER header;
        RGBTRIPLE colours[2];
    } info = {{sizeof(BITMAPCOREHEADER), 3, 2, 1, 1}, {{0, 0, 255}, {255, 0, 0}}};
    const BYTE bits[] = {0x40, 0, 0, 0, 0xA0, 0, 0, 0};
    EXPECT_EQ(".BRB.\n.RBR.\n", Played(bits, reinterpret_cast<const BITMAPINFO*>(&info)));
}

TEST(MetaFileDc, records_no_picture_that_makes_no_sense) {
    BITMAPINFO info{};
    info.bmiHeader = {40, 3, 2, 1, 7, BI_RGB, 0, 0, 0, 0, 0};
    const BYTE bits[64] = {};
    TMetaFileDC dc;
    EXPECT_FALSE(dc.StretchDIBits(TRect(0, 0, 3, 2), TRect(0, 0, 3, 2), bits, &info));
    info.bmiHeader.biBitCount = 8;
    info.bmiHeader.biSize = 0x7FFFFFFF;
    EXPECT_FALSE(dc.StretchDIBits(TRect(0, 0, 3, 2), TRect(0, 0, 3, 2), bits, &info));
    EXPECT_FALSE(dc.StretchDIBits(TRect(0, 0, 3, 2), TRect(0, 0, 3, 2), nullptr, &info));
    ::DeleteMetaFile(dc.Close());
}

TEST(MetaFileDc, leaves_nothing_behind) {
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        const TBrush red(TColor::LtRed);
        TMetaFileDC dropped;
        dropped.SelectObject(red);
        TMetaFileDC kept;
        kept.SelectObject(red);
        const owl::TMetaFilePict picture(kept.Close(), owl::AutoDelete);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
