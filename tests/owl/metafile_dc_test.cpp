#include "owl/metafile_dc.h"

#include <gtest/gtest.h>

#include <string>

#include "owl/brush.h"
#include "owl/error.h"
#include "owl/metafile_pict.h"
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
