#include "owl/palette.h"

#include <gtest/gtest.h>

#include <vector>

#include "surface.h"

namespace {

using owl::TColor;
using owl::TPalette;

const PALETTEENTRY three[] = {{10, 11, 12, 0}, {20, 21, 22, 0}, {30, 31, 32, 0}};

TEST(Palette, has_the_entries_given) {
    const TPalette palette(three, 3);
    EXPECT_EQ(3, palette.GetNumEntries());
    PALETTEENTRY entry{};
    ASSERT_TRUE(palette.GetPaletteEntry(1, entry));
    EXPECT_EQ(20, entry.peRed);
    EXPECT_EQ(21, entry.peGreen);
    EXPECT_EQ(22, entry.peBlue);
    EXPECT_EQ(0, entry.peFlags);
}

TEST(Palette, is_made_of_the_systems_description) {
    LOGPALETTE description{0x300, 1, {{7, 8, 9, 0}}};
    const TPalette palette(description);
    PALETTEENTRY entry{};
    EXPECT_EQ(1, palette.GetNumEntries());
    ASSERT_TRUE(palette.GetPaletteEntry(0, entry));
    EXPECT_EQ(9, entry.peBlue);
}

TEST(Palette, holds_from_1_to_65535_entries) {
    const std::vector<PALETTEENTRY> entries(65536);
    EXPECT_EQ(1024, TPalette(entries.data(), 1024).GetNumEntries());
    EXPECT_THROW(TPalette(entries.data(), 65536), owl::TXGdi);
    EXPECT_THROW(TPalette(entries.data(), 0), owl::TXGdi);
    EXPECT_THROW(TPalette(entries.data(), -1), owl::TXGdi);
    EXPECT_THROW(TPalette(nullptr, 1), owl::TXGdi);
}

TEST(Palette, gives_as_many_entries_as_there_are) {
    const TPalette palette(three, 3);
    PALETTEENTRY entries[4] = {};
    EXPECT_EQ(2, palette.GetPaletteEntries(1, 4, entries));
    EXPECT_EQ(30, entries[1].peRed);
    EXPECT_EQ(0, entries[2].peRed);
    EXPECT_EQ(0, palette.GetPaletteEntries(3, 1, entries));
    EXPECT_EQ(0, palette.GetPaletteEntries(-1, 1, entries));
    EXPECT_EQ(0, palette.GetPaletteEntries(0, 0, entries));
    EXPECT_EQ(0, palette.GetPaletteEntries(0, -1, entries));
    PALETTEENTRY entry{1, 2, 3, 4};
    EXPECT_FALSE(palette.GetPaletteEntry(3, entry));
    EXPECT_EQ(1, entry.peRed);
}

TEST(Palette, replaces_as_many_entries_as_there_are) {
    TPalette palette(three, 3);
    const PALETTEENTRY others[] = {{1, 1, 1, 0}, {2, 2, 2, 0}, {3, 3, 3, 0}};
    EXPECT_EQ(2, palette.SetPaletteEntries(1, 3, others));
    EXPECT_EQ(3, palette.GetNumEntries());
    PALETTEENTRY entry{};
    palette.GetPaletteEntry(2, entry);
    EXPECT_EQ(2, entry.peRed);
    palette.GetPaletteEntry(0, entry);
    EXPECT_EQ(10, entry.peRed);
    EXPECT_TRUE(palette.SetPaletteEntry(0, others[2]));
    palette.GetPaletteEntry(0, entry);
    EXPECT_EQ(3, entry.peRed);
    EXPECT_FALSE(palette.SetPaletteEntry(3, others[0]));
    EXPECT_FALSE(palette.SetPaletteEntry(-1, others[0]));
    EXPECT_EQ(0, palette.SetPaletteEntries(0, -5, others));
}

TEST(Palette, finds_the_nearest_entry) {
    const TPalette palette(three, 3);
    EXPECT_EQ(0, palette.GetNearestPaletteIndex(TColor(0, 0, 0)));
    EXPECT_EQ(1, palette.GetNearestPaletteIndex(TColor(22, 22, 22)));
    EXPECT_EQ(2, palette.GetNearestPaletteIndex(TColor(255, 255, 255)));
}

TEST(Palette, copied_lives_without_the_other) {
    TPalette* first = new TPalette(three, 3);
    const TPalette copy(*first);
    first->SetPaletteEntry(1, {99, 99, 99, 0});
    delete first;
    PALETTEENTRY entry{};
    ASSERT_TRUE(copy.GetPaletteEntry(1, entry));
    EXPECT_EQ(20, entry.peRed);
    EXPECT_EQ(3, copy.GetNumEntries());
}

TEST(Palette, on_a_null_handle_has_no_entries) {
    TPalette palette(HPALETTE(nullptr));
    PALETTEENTRY entry{};
    EXPECT_EQ(0, palette.GetNumEntries());
    EXPECT_FALSE(palette.GetPaletteEntry(0, entry));
    EXPECT_FALSE(palette.SetPaletteEntry(0, entry));
    EXPECT_EQ(-1, palette.GetNearestPaletteIndex(TColor::White));
    EXPECT_THROW(TPalette copy(palette), owl::TXGdi);
}

TEST(Palette, selected_lends_its_colours_to_palette_indices) {
    owl_test::Surface surface(1, 1);
    const TPalette palette(three, 3);
    surface.dc.SelectObject(palette);
    surface.dc.RealizePalette();
    EXPECT_EQ(palette.GetHandle(), ::GetCurrentObject(surface.dc, OBJ_PAL));
    surface.dc.SetPixel(0, 0, TColor::PaletteIndex(1));
    EXPECT_EQ(TColor(20, 21, 22), TColor(surface.At(0, 0)));
}

TEST(Palette, leaves_nothing_behind) {
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        const TPalette palette(three, 3);
        const TPalette copy(palette);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
