#include <gtest/gtest.h>

#include "letter_picture.h"
#include "owl/brush.h"
#include "owl/dc.h"
#include "surface.h"

namespace {

using owl::TBitmap;
using owl::TBrush;
using owl::TColor;
using owl::TMemoryDC;
using owl::TPoint;
using owl::TRect;
using owl_test::LetterPicture;
using owl_test::Surface;

/// A surface with the letters on it.
void Show(Surface& surface, const std::vector<std::string>& rows) {
    for (std::size_t y = 0; y < rows.size(); ++y) {
        for (std::size_t x = 0; x < rows[y].size(); ++x)
            surface.dc.SetPixel(static_cast<int>(x), static_cast<int>(y), owl_test::ColorOf(rows[y][x]));
    }
}

TEST(DcPicture, fills_by_a_pattern_operation) {
    Surface surface(4, 2);
    const TBrush red(TColor::LtRed);
    surface.dc.SelectObject(red);
    EXPECT_TRUE(surface.dc.PatBlt(TRect(0, 0, 2, 1)));
    EXPECT_TRUE(surface.dc.PatBlt(2, 0, 1, 2, BLACKNESS));
    EXPECT_TRUE(surface.dc.PatBlt(TRect(3, 0, 4, 2), PATINVERT));
    EXPECT_EQ("RR#C\n..#C\n", surface.Picture());
    surface.dc.RestoreBrush();
}

TEST(DcPicture, copies_a_rectangle) {
    Surface source(3, 2);
    Show(source, {"RGB", "CMY"});
    Surface surface(4, 2);
    EXPECT_TRUE(surface.dc.BitBlt(TRect(2, 0, 4, 2), source.dc, TPoint(1, 0)));
    EXPECT_EQ("..GB\n..MY\n", surface.Picture());
    EXPECT_TRUE(surface.dc.BitBlt(0, 0, 3, 1, source.dc, 0, 1));
    EXPECT_EQ("CMYB\n..MY\n", surface.Picture());
}

TEST(DcPicture, mixes_by_the_raster_operation) {
    Surface source(3, 1);
    Show(source, {"RGB"});
    Surface surface(3, 1);
    Show(surface, {"YYY"});
    EXPECT_TRUE(surface.dc.BitBlt(TRect(0, 0, 3, 1), source.dc, TPoint(), SRCAND));
    EXPECT_EQ("RG#\n", surface.Picture());
    EXPECT_TRUE(surface.dc.BitBlt(TRect(0, 0, 3, 1), source.dc, TPoint(), SRCINVERT));
    EXPECT_EQ("##B\n", surface.Picture());
}

TEST(DcPicture, from_a_monochrome_source_takes_the_text_and_background_colours) {
    const WORD row[] = {0x00A0};
    const TBitmap bitmap(3, 1, 1, 1, row);
    TMemoryDC source;
    source.SelectObject(bitmap);
    Surface surface(3, 1);
    surface.dc.SetTextColor(TColor::LtRed);
    surface.dc.SetBkColor(TColor::LtBlue);
    EXPECT_TRUE(surface.dc.BitBlt(TRect(0, 0, 3, 1), source, TPoint()));
    EXPECT_EQ("BRB\n", surface.Picture());
}

TEST(DcPicture, onto_a_monochrome_target_makes_the_background_colour_white) {
    Surface source(4, 1);
    Show(source, {"RGB#"});
    source.dc.SetBkColor(TColor::LtGreen);
    const TBitmap bitmap(4, 1, 1, 1, nullptr);
    TMemoryDC target;
    target.SelectObject(bitmap);
    EXPECT_TRUE(target.BitBlt(TRect(0, 0, 4, 1), source.dc, TPoint()));
    for (int x = 0; x < 4; ++x)
        EXPECT_EQ(x == 1 ? TColor::White : TColor::Black, target.GetPixel(x, 0)) << x;
}

// The operations that emboss a glyph by its mask: the brush where the mask is black, or where it is white.
TEST(DcPicture, draws_the_brush_through_a_mask) {
    const WORD row[] = {0x00A0};
    const TBitmap bitmap(4, 1, 1, 1, row);
    TMemoryDC mask;
    mask.SelectObject(bitmap);
    const TBrush red(TColor::LtRed);
    Surface surface(4, 1);
    Show(surface, {"GGGG"});
    surface.dc.SelectObject(red);
    surface.dc.SetTextColor(TColor::Black);
    surface.dc.SetBkColor(TColor::White);
    EXPECT_TRUE(surface.dc.BitBlt(TRect(0, 0, 4, 1), mask, TPoint(), 0xB8074A));
    EXPECT_EQ("GRGR\n", surface.Picture());
    Show(surface, {"GGGG"});
    EXPECT_TRUE(surface.dc.BitBlt(TRect(0, 0, 4, 1), mask, TPoint(), 0xE20746));
    EXPECT_EQ("RGRG\n", surface.Picture());
    surface.dc.RestoreBrush();
}

TEST(DcPicture, stretches_and_mirrors) {
    Surface source(2, 2);
    Show(source, {"RG", "BY"});
    Surface surface(4, 4);
    surface.dc.SetStretchBltMode(COLORONCOLOR);
    EXPECT_TRUE(surface.dc.StretchBlt(TRect(0, 0, 4, 4), source.dc, TRect(0, 0, 2, 2)));
    EXPECT_EQ("RRGG\nRRGG\nBBYY\nBBYY\n", surface.Picture());
    EXPECT_TRUE(surface.dc.StretchBlt(TRect(0, 0, 2, 2), source.dc, TRect(1, 0, 2, 1)));
    EXPECT_EQ("GGGG\nGGGG\nBBYY\nBBYY\n", surface.Picture());
}

TEST(DcPicture, draws_a_device_independent_one_of_every_depth) {
    const std::vector<std::string> rows = {"#..", ".#."};
    for (const int depth : {1, 4, 8, 16, 24, 32}) {
        for (const bool upperRowFirst : {false, true}) {
            const LetterPicture picture(rows, depth, upperRowFirst);
            Surface surface(3, 2);
            surface.dc.PatBlt(0, 0, 3, 2, DSTINVERT);
            EXPECT_TRUE(surface.dc.StretchDIBits(TRect(0, 0, 3, 2), TRect(0, 0, 3, 2), picture.Bits(),
                                                 picture.Info()));
            EXPECT_EQ("#..\n.#.\n", surface.Picture()) << depth << upperRowFirst;
        }
    }
}

TEST(DcPicture, draws_a_device_independent_one_into_an_enhanced_metafile) {
    for (const int depth : {4, 8, 16, 24, 32}) {
        for (const bool upperRowFirst : {false, true}) {
            const LetterPicture picture({"RGB", "CMY"}, depth, upperRowFirst);
            const HDC recording = ::CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
            EXPECT_TRUE(owl::TDC(recording).StretchDIBits(TRect(1, 0, 4, 2), TRect(0, 0, 3, 2),
                                                          picture.Bits(), picture.Info()));
            const HENHMETAFILE metafile = ::CloseEnhMetaFile(recording);
            ENHMETAHEADER header{};
            ::GetEnhMetaFileHeader(metafile, sizeof header, &header);
            const RECT bounds = {header.rclBounds.left, header.rclBounds.top, header.rclBounds.right,
                                 header.rclBounds.bottom};
            Surface surface(5, 2);
            EXPECT_TRUE(::PlayEnhMetaFile(surface.dc, metafile, &bounds));
            ::DeleteEnhMetaFile(metafile);
            EXPECT_EQ(".RGB.\n.CMY.\n", surface.Picture()) << depth << upperRowFirst;
        }
    }
}

TEST(DcPicture, stretches_a_device_independent_one_and_mixes_it) {
    const LetterPicture picture({"RG"}, 24);
    Surface surface(4, 2);
    surface.dc.SetStretchBltMode(COLORONCOLOR);
    EXPECT_TRUE(surface.dc.StretchDIBits(TRect(0, 0, 4, 1), TRect(0, 0, 2, 1), picture.Bits(), picture.Info(),
                                         DIB_RGB_COLORS, NOTSRCCOPY));
    EXPECT_EQ("CCMM\n....\n", surface.Picture());
}

TEST(DcPicture, of_null_draws_nothing) {
    const LetterPicture picture({"RG"}, 24);
    Surface surface(2, 1);
    EXPECT_FALSE(surface.dc.StretchDIBits(TRect(0, 0, 2, 1), TRect(0, 0, 2, 1), nullptr, picture.Info()));
    EXPECT_FALSE(surface.dc.StretchDIBits(TRect(0, 0, 2, 1), TRect(0, 0, 2, 1), picture.Bits(), nullptr));
    EXPECT_EQ("..\n", surface.Picture());
}

}  // namespace
