// Images on real device contexts. What is drawn through the framework's StretchDIBits is tested with that;
// here is what the image makes of it.
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

#include "letter_bitmaps.h"
#include "lvx/drawing/region.h"
#include "owl/bitmap.h"
#include "owl/dc.h"
#include "owl/memory_dc.h"
#include "owl/metafile_dc.h"
#include "owl/metafile_pict.h"
#include "owl/palette.h"
#include "owl/region.h"
#include "owl/window_dc.h"
#include "tests/owl/hoard.h"
#include "tests/owl/message_window.h"
#include "tests/owl/surface.h"

namespace {

using lvx_test::bytes;
using lvx_test::DIBitmap;
using lvx_test::Info;
using lvx_test::letter_bitmap;
using lvx_test::Letters;
using lvx_test::make_block;
using lvx_test::word_bitmap;
using owl::TColor;
using owl::TPoint;
using owl::TRect;
using owl::TSize;
using owl_test::Surface;

const Letters six = {"RGB", "CMY"};

DIBitmap adopted(const std::string& block) {
    return DIBitmap(make_block(block), DIBitmap::Adopt);
}

/// The letters of a bitmap of the device.
std::string seen(const owl::TBitmap& bitmap) {
    owl::TMemoryDC dc;
    dc.SelectObject(bitmap);
    std::string text;
    for (int y = 0; y < bitmap.Height(); ++y) {
        for (int x = 0; x < bitmap.Width(); ++x) {
            text += Surface::Letter(dc.GetPixel(x, y));
        }
        text += '\n';
    }
    return text;
}

bool has_clip_region(const owl::TDC& dc) {
    const owl::TRegion region;
    return ::GetClipRgn(dc, region) != 0;
}

// --- MakeBitmap

TEST(DIBitmapRender, of_every_depth_becomes_a_bitmap_of_the_screen) {
    const owl::TScreenDC screen;
    for (const bool upper_row_first : {false, true}) {
        for (const int depth : {4, 8, 16, 24, 32}) {
            const auto bitmap = letter_bitmap(six, depth, upper_row_first).MakeBitmap(screen);
            ASSERT_NE(nullptr, bitmap.get()) << depth;
            EXPECT_EQ(screen.GetDeviceCaps(BITSPIXEL), bitmap->BitsPixel());
            EXPECT_TRUE(bitmap->IsOwner());
            EXPECT_EQ("RGB\nCMY\n", seen(*bitmap)) << depth << upper_row_first;
        }
        const auto bitmap = letter_bitmap({"#.#", ".#."}, 1, upper_row_first).MakeBitmap(screen);
        EXPECT_EQ("#.#\n.#.\n", seen(*bitmap)) << upper_row_first;
    }
}

TEST(DIBitmapRender, with_another_header_becomes_a_bitmap_too) {
    const owl::TScreenDC screen;
    // Two pixels of 24 bits, blue, green and red first; the row is filled to 8 bytes.
    const std::string pixels = bytes("0000FF 00FF00 0000");
    EXPECT_EQ("RG\n", seen(*adopted(lvx_test::core_header(2, 1, 24) + pixels).MakeBitmap(screen)));
    const std::string longer = Info{2, 1, 24, 0, 0, 0, 108}.Header() + std::string(68, '\0') + pixels;
    EXPECT_EQ("RG\n", seen(*adopted(longer).MakeBitmap(screen)));
    const std::string masks = bytes("FF000000 00FF0000 0000FF00");
    const std::string words = bytes("FF000000 00FF0000");
    EXPECT_EQ("RG\n", seen(*adopted(Info{2, 1, 32, 3}.Header() + masks + words).MakeBitmap(screen)));
}

TEST(DIBitmapRender, that_is_empty_or_damaged_becomes_no_bitmap) {
    const owl::TScreenDC screen;
    EXPECT_EQ(nullptr, DIBitmap(nullptr, DIBitmap::Copy).MakeBitmap(screen).get());
    EXPECT_EQ(nullptr, adopted("abc").MakeBitmap(screen).get());
    EXPECT_EQ(nullptr, adopted(Info{30000, 30000, 32}.Header()).MakeBitmap(screen).get());
    EXPECT_EQ(nullptr, adopted(Info{1, 1, 7}.Header() + "abcd").MakeBitmap(screen).get());
}

TEST(DIBitmapRender, becomes_no_bitmap_where_the_system_refuses_one) {
    owl::TMetaFileDC metafile;
    EXPECT_EQ(nullptr, letter_bitmap(six, 24).MakeBitmap(metafile).get());
    ::DeleteMetaFile(metafile.Close());
    const DIBitmap picture = letter_bitmap(six, 24);
    const owl::TScreenDC screen;
    owl_test::Hoard hoard(0);
    EXPECT_EQ(nullptr, picture.MakeBitmap(screen).get());
}

// --- MakePalette

std::array<int, 4> entry(const owl::TPalette& palette, int index) {
    PALETTEENTRY found{9, 9, 9, 9};
    EXPECT_TRUE(palette.GetPaletteEntry(index, found)) << index;
    return {found.peRed, found.peGreen, found.peBlue, found.peFlags};
}

using Entry = std::array<int, 4>;

TEST(DIBitmapRender, palette_has_the_colours_of_the_table_in_its_order) {
    std::string block = Info{1, 1, 8}.Header();
    for (int i = 0; i < 256; ++i) {
        for (const int byte : {i, 255 - i, i / 2, 77}) {
            block += static_cast<char>(byte);
        }
    }
    const auto palette = adopted(block + "abcd").MakePalette();
    ASSERT_NE(nullptr, palette.get());
    ASSERT_EQ(256, palette->GetNumEntries());
    for (int i = 0; i < 256; ++i) {
        EXPECT_EQ((Entry{i / 2, 255 - i, i, 0}), entry(*palette, i));
    }
}

TEST(DIBitmapRender, palette_has_as_many_colours_as_are_used) {
    const std::string table = bytes("010203FF 040506FF 070809FF");
    const auto palette = adopted(Info{1, 1, 8, 0, 0, 3}.Header() + table + "abcd").MakePalette();
    ASSERT_EQ(3, palette->GetNumEntries());
    EXPECT_EQ((Entry{9, 8, 7, 0}), entry(*palette, 2));
    // A table behind a longer header, and one of a picture of true colours.
    const std::string longer = Info{1, 1, 24, 0, 0, 3, 108}.Header() + std::string(68, 'x') + table;
    EXPECT_EQ((Entry{3, 2, 1, 0}), entry(*adopted(longer + "abcd").MakePalette(), 0));
}

// They count as a table, and always did.
TEST(DIBitmapRender, palette_of_bit_fields_has_their_masks) {
    const std::string masks = bytes("0000FF00 00FF0000 FF000000");
    const auto palette = adopted(Info{1, 1, 32, 3}.Header() + masks + "abcd").MakePalette();
    ASSERT_EQ(3, palette->GetNumEntries());
    EXPECT_EQ((Entry{255, 0, 0, 0}), entry(*palette, 0));
    EXPECT_EQ((Entry{0, 255, 0, 0}), entry(*palette, 1));
    EXPECT_EQ((Entry{0, 0, 255, 0}), entry(*palette, 2));
}

TEST(DIBitmapRender, palette_of_24_bits_has_colours_from_all_over) {
    const auto palette = letter_bitmap(six, 24).MakePalette();
    ASSERT_EQ(256, palette->GetNumEntries());
    EXPECT_EQ((Entry{0, 0, 0, 0}), entry(*palette, 0));
    EXPECT_EQ((Entry{32, 0, 0, 0}), entry(*palette, 1));
    EXPECT_EQ((Entry{0, 32, 0, 0}), entry(*palette, 8));
    EXPECT_EQ((Entry{0, 0, 64, 0}), entry(*palette, 64));
    EXPECT_EQ((Entry{224, 224, 192, 0}), entry(*palette, 255));
}

TEST(DIBitmapRender, other_pictures_have_no_palette) {
    EXPECT_EQ(nullptr, letter_bitmap(six, 32).MakePalette().get());
    EXPECT_EQ(nullptr, letter_bitmap(six, 16).MakePalette().get());
    EXPECT_EQ(nullptr, DIBitmap(nullptr, DIBitmap::Copy).MakePalette().get());
    EXPECT_EQ(nullptr,
              adopted(lvx_test::core_header(1, 1, 8) + std::string(768, 'c') + "abcd").MakePalette().get());
    EXPECT_EQ(nullptr, adopted(lvx_test::core_header(1, 1, 24) + "abcd").MakePalette().get());
}

TEST(DIBitmapRender, palette_of_a_table_that_is_cut_off_or_too_long) {
    const auto palette = adopted(Info{1, 1, 4}.Header() + bytes("010203FF 0405")).MakePalette();
    ASSERT_EQ(16, palette->GetNumEntries());
    EXPECT_EQ((Entry{0, 5, 4, 0}), entry(*palette, 1));
    EXPECT_EQ((Entry{0, 0, 0, 0}), entry(*palette, 15));
    EXPECT_EQ(nullptr, adopted(Info{1, 1, 8, 0, 0, 65536}.Header()).MakePalette().get());
    EXPECT_EQ(nullptr, adopted(Info{1, 1, 8, 0, 0, 0xFFFFFFFF}.Header()).MakePalette().get());
    owl_test::Hoard hoard(0);
    EXPECT_EQ(nullptr, adopted(Info{1, 1, 4}.Header()).MakePalette().get());
}

// --- StretchDIBits, upright

TEST(DIBitmapRender, is_drawn_where_it_is_asked_for) {
    for (const bool upper_row_first : {false, true}) {
        for (const int depth : {4, 8, 16, 24, 32}) {
            Surface surface(5, 3);
            letter_bitmap(six, depth, upper_row_first)
                .StretchDIBits(surface.dc, TRect(1, 1, 4, 3), TRect(0, 0, 3, 2), SRCCOPY, nullptr);
            EXPECT_EQ(".....\n.RGB.\n.CMY.\n", surface.Picture()) << depth << upper_row_first;
        }
    }
}

TEST(DIBitmapRender, is_stretched_mixed_and_cut) {
    Surface surface(6, 2);
    surface.dc.SetStretchBltMode(COLORONCOLOR);
    // The lower row, twice as wide.
    letter_bitmap(six, 24).StretchDIBits(surface.dc, TRect(0, 0, 6, 1), TRect(0, 0, 3, 1), SRCCOPY, nullptr);
    letter_bitmap(six, 24).StretchDIBits(surface.dc, TRect(0, 1, 3, 2), TRect(0, 1, 3, 2), NOTSRCCOPY,
                                         nullptr);
    EXPECT_EQ("CCMMYY\nCMY...\n", surface.Picture());
}

TEST(DIBitmapRender, is_clipped_to_a_shape_and_leaves_no_clip_region) {
    LVXRectangle shape(RectCorners, 1, 0, 3, 1);
    shape.GetRegion();
    Surface surface(4, 2);
    surface.dc.SelectClipRgn(owl::TRegion(TRect(0, 0, 1, 1)));
    letter_bitmap(six, 24).StretchDIBits(surface.dc, TRect(0, 0, 3, 2), TRect(0, 0, 3, 2), SRCCOPY, &shape);
    EXPECT_EQ(".GB.\n....\n", surface.Picture());
    EXPECT_FALSE(has_clip_region(surface.dc));
    shape.UngetRegion();
}

TEST(DIBitmapRender, without_a_shape_keeps_the_clip_region_that_was_there) {
    Surface surface(4, 2);
    surface.dc.SelectClipRgn(owl::TRegion(TRect(0, 0, 2, 1)));
    letter_bitmap(six, 24).StretchDIBits(surface.dc, TRect(0, 0, 3, 2), TRect(0, 0, 3, 2), SRCCOPY, nullptr);
    EXPECT_EQ("RG..\n....\n", surface.Picture());
    EXPECT_TRUE(has_clip_region(surface.dc));
}

TEST(DIBitmapRender, is_not_clipped_to_a_shape_that_has_no_region) {
    LVXRectangle shape(RectCorners, 1, 0, 3, 1);
    Surface surface(4, 2);
    surface.dc.SelectClipRgn(owl::TRegion(TRect(0, 0, 1, 1)));
    letter_bitmap(six, 24).StretchDIBits(surface.dc, TRect(0, 0, 3, 2), TRect(0, 0, 3, 2), SRCCOPY, &shape);
    EXPECT_EQ("RGB.\nCMY.\n", surface.Picture());
    EXPECT_FALSE(has_clip_region(surface.dc));
}

TEST(DIBitmapRender, that_is_empty_or_damaged_is_not_drawn_and_leaves_no_clip_region) {
    const DIBitmap pictures[] = {
        DIBitmap(nullptr, DIBitmap::Copy), adopted("abc"), adopted(Info{30000, 30000, 32}.Header()),
        adopted(Info{1, 1, 24, 0, 0, 0, 0x7FFFFFFF}.Header()), adopted(Info{1, 1, 7}.Header() + "abcd")};
    LVXRectangle shape(RectCorners, 0, 0, 1, 1);
    shape.GetRegion();
    for (const DIBitmap& picture : pictures) {
        Surface surface(2, 1);
        surface.dc.SelectClipRgn(owl::TRegion(TRect(0, 0, 1, 1)));
        picture.StretchDIBits(surface.dc, TRect(0, 0, 1, 1), TRect(0, 0, 1, 1), SRCCOPY, &shape);
        EXPECT_FALSE(has_clip_region(surface.dc));
        picture.StretchDIBits(surface.dc, TRect(0, 0, 1, 1), TRect(0, 0, 1, 1), 0, 1, SRCCOPY, &shape);
        picture.AlphaBlend(surface.dc, TRect(0, 0, 1, 1), TRect(0, 0, 1, 1));
        EXPECT_EQ("..\n", surface.Picture());
    }
    shape.UngetRegion();
}

TEST(DIBitmapRender, is_drawn_black_where_its_block_ends_early) {
    Surface surface(2, 2);
    // The lower row is there: green, green.
    adopted(Info{2, 2, 24}.Header() + bytes("00FF00 00FF00 0000"))
        .StretchDIBits(surface.dc, TRect(0, 0, 2, 2), TRect(0, 0, 2, 2), SRCCOPY, nullptr);
    EXPECT_EQ("##\nGG\n", surface.Picture());
}

// --- other devices

TEST(DIBitmapRender, is_drawn_on_a_window) {
    const owl_test::MessageWindow window(WS_POPUP, 40, 40);
    window.Show();
    owl::TClientDC dc(window);
    letter_bitmap(six, 24).StretchDIBits(dc, TRect(1, 1, 4, 3), TRect(0, 0, 3, 2), SRCCOPY, nullptr);
    EXPECT_EQ(TColor::LtRed, dc.GetPixel(1, 1));
    EXPECT_EQ(TColor::LtYellow, dc.GetPixel(3, 2));
}

/// What is played of what `draw` draws on a metafile.
template <class Draw>
std::string recorded(const Draw& draw) {
    owl::TMetaFileDC dc;
    draw(dc);
    const owl::TMetaFilePict picture(dc.Close(), owl::AutoDelete);
    Surface surface(5, 3);
    EXPECT_TRUE(::PlayMetaFile(surface.dc, picture));
    return surface.Picture();
}

TEST(DIBitmapRender, is_recorded_by_a_metafile) {
    for (const int depth : {4, 8, 16, 24, 32}) {
        const DIBitmap picture = letter_bitmap(six, depth);
        EXPECT_EQ(".....\n.RGB.\n.CMY.\n", recorded([&](owl::TDC& dc) {
                      picture.StretchDIBits(dc, TRect(1, 1, 4, 3), TRect(0, 0, 3, 2), SRCCOPY, nullptr);
                  }))
            << depth;
    }
}

// It has no transform, so the turn and the pivot are lost, and nothing tells so.
TEST(DIBitmapRender, lies_upright_at_the_origin_of_a_metafile_when_it_is_turned) {
    const DIBitmap picture = letter_bitmap(six, 24);
    EXPECT_EQ("RGB..\nCMY..\n.....\n", recorded([&](owl::TDC& dc) {
                  picture.StretchDIBits(dc, TRect(1, 1, 4, 3), TRect(0, 0, 3, 2), 0, 1, SRCCOPY, nullptr);
              }));
    EXPECT_EQ(".....\n.....\n.....\n",
              recorded([&](owl::TDC& dc) { picture.AlphaBlend(dc, TRect(1, 1, 4, 3), TRect(0, 0, 3, 2)); }));
}

// --- AlphaBlend

TEST(DIBitmapRender, is_blended_by_its_fourth_bytes) {
    // Opaque red; nothing; half of blue, as multiplied by it; what is nearly nothing.
    const DIBitmap picture = word_bitmap({0xFFFF0000, 0x00000000, 0x80000080, 0x01000000});
    Surface surface(5, 1);
    picture.AlphaBlend(surface.dc, TRect(0, 0, 4, 1), TRect(0, 0, 4, 1));
    EXPECT_EQ(TColor(255, 0, 0), TColor(surface.At(0, 0)));
    EXPECT_EQ(TColor(255, 255, 255), TColor(surface.At(1, 0)));
    EXPECT_EQ(TColor(127, 127, 255), TColor(surface.At(2, 0)));
    EXPECT_EQ(TColor(254, 254, 254), TColor(surface.At(3, 0)));
    EXPECT_EQ(TColor(255, 255, 255), TColor(surface.At(4, 0)));
}

TEST(DIBitmapRender, is_blended_stretched_and_in_part) {
    Surface surface(4, 2);
    surface.dc.SetStretchBltMode(COLORONCOLOR);
    word_bitmap({0xFFFF0000, 0xFF0000FF, 0xFF00FF00})
        .AlphaBlend(surface.dc, TRect(1, 0, 4, 2), TRect(1, 0, 2, 1));
    EXPECT_EQ(".BBB\n.BBB\n", surface.Picture());
}

TEST(DIBitmapRender, is_not_blended_without_a_bitmap_or_a_context) {
    const DIBitmap picture = word_bitmap({0xFFFF0000});
    Surface surface(1, 1);
    // Room for the bitmap alone, for none of the two, and for both.
    for (const std::size_t left : {0u, 1u}) {
        owl_test::Hoard hoard(left);
        picture.AlphaBlend(surface.dc, TRect(0, 0, 1, 1), TRect(0, 0, 1, 1));
        EXPECT_EQ(left, hoard.TakeAll());
    }
    EXPECT_EQ(".\n", surface.Picture());
    picture.AlphaBlend(surface.dc, TRect(0, 0, 1, 1), TRect(0, 0, 1, 1));
    EXPECT_EQ("R\n", surface.Picture());
}

TEST(DIBitmapRender, leaves_nothing_behind) {
    const DIBitmap picture = letter_bitmap(six, 24);
    const DIBitmap damaged = adopted(Info{2, 2, 24}.Header());
    LVXRectangle shape(RectCorners, 1, 0, 3, 1);
    shape.GetRegion();
    Surface surface(9, 9);
    const TRect all(0, 0, 3, 2);
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 300; ++i) {
        picture.MakeBitmap(surface.dc);
        picture.MakePalette();
        picture.StretchDIBits(surface.dc, all, all, SRCCOPY, &shape);
        picture.StretchDIBits(surface.dc, all, all, 0.6, 0.8, SRCCOPY, &shape);
        picture.AlphaBlend(surface.dc, all, all);
        damaged.StretchDIBits(surface.dc, all, all, SRCCOPY, &shape);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
    shape.UngetRegion();
}

}  // namespace
