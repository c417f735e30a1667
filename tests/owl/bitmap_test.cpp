#include "owl/bitmap.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "message_window.h"
#include "owl/clipboard.h"
#include "owl/dib.h"
#include "owl/palette.h"
#include "owl/window_dc.h"
#include "surface.h"

namespace {

using owl::TBitmap;
using owl::TClipboard;
using owl::TColor;
using owl::TMemoryDC;
using owl::TScreenDC;
using owl::TSize;
using owl_test::MakeSection;
using owl_test::Surface;

HINSTANCE Module() {
    return ::GetModuleHandleA(nullptr);
}

TColor PixelOf(const TBitmap& bitmap, int x, int y) {
    TMemoryDC dc;
    dc.SelectObject(bitmap);
    return dc.GetPixel(x, y);
}

TEST(Bitmap, of_a_context_has_its_depth_and_is_black) {
    const TScreenDC screen;
    const TBitmap bitmap(screen, 30, 20);
    EXPECT_EQ(TSize(30, 20), bitmap.Size());
    EXPECT_EQ(30, bitmap.Width());
    EXPECT_EQ(20, bitmap.Height());
    EXPECT_EQ(screen.GetDeviceCaps(BITSPIXEL), bitmap.BitsPixel());
    EXPECT_EQ(1, bitmap.Planes());
    EXPECT_EQ(TColor::Black, PixelOf(bitmap, 29, 19));
}

TEST(Bitmap, with_a_side_of_0_has_one_pixel) {
    EXPECT_EQ(TSize(1, 1), TBitmap(TScreenDC(), 0, 5).Size());
    EXPECT_EQ(TSize(1, 1), TBitmap(5, 0, 1, 1, nullptr).Size());
}

TEST(Bitmap, of_bits_takes_the_upper_row_first_and_fills_rows_to_two_bytes) {
    const WORD rows[] = {0x0080, 0x0040};
    const TBitmap bitmap(9, 2, 1, 1, rows);
    EXPECT_EQ(1, bitmap.BitsPixel());
    EXPECT_EQ(TColor::White, PixelOf(bitmap, 0, 0));
    EXPECT_EQ(TColor::White, PixelOf(bitmap, 1, 1));
    EXPECT_EQ(TColor::Black, PixelOf(bitmap, 1, 0));
    EXPECT_EQ(TColor::Black, PixelOf(TBitmap(9, 2, 1, 1, nullptr), 8, 1));
}

TEST(Bitmap, describes_itself) {
    const TBitmap bitmap(MakeSection(5, 4, 24), owl::AutoDelete);
    BITMAP description;
    ASSERT_TRUE(bitmap.GetObject(description));
    EXPECT_EQ(5, description.bmWidth);
    EXPECT_EQ(4, description.bmHeight);
    EXPECT_EQ(24, description.bmBitsPixel);
    EXPECT_NE(nullptr, description.bmBits);
}

TEST(Bitmap, without_a_handle_has_no_size) {
    const TBitmap bitmap(HBITMAP(nullptr), owl::AutoDelete);
    BITMAP description;
    description.bmWidth = 9;
    EXPECT_FALSE(bitmap.GetObject(description));
    EXPECT_EQ(0, description.bmWidth);
    EXPECT_EQ(TSize(0, 0), bitmap.Size());
    EXPECT_EQ(0, bitmap.BitsPixel());
    TSize size(1, 1);
    EXPECT_FALSE(bitmap.GetBitmapDimension(size));
    EXPECT_EQ(TSize(0, 0), size);
    EXPECT_EQ(nullptr, TBitmap(bitmap).GetHandle());
}

TEST(Bitmap, that_cannot_be_made_throws) {
    EXPECT_THROW(TBitmap(1000000000, 1000000000, 1, 32, nullptr), owl::TXGdi);
    EXPECT_THROW(TBitmap(TScreenDC(), 1000000000, 1000000000), owl::TXGdi);
    EXPECT_THROW(TBitmap(1, 1, -1, 1, nullptr), owl::TXGdi);
    EXPECT_THROW(TBitmap(1, 1, 1, -8, nullptr), owl::TXGdi);
}

TEST(Bitmap, is_a_resource_by_number_or_name) {
    const owl::TResId names[] = {7, "GREYS"};
    for (const owl::TResId& name : names) {
        const TBitmap bitmap(Module(), name);
        EXPECT_EQ(TSize(4, 2), bitmap.Size());
        EXPECT_EQ(TColor::Gray, PixelOf(bitmap, 1, 0));
        EXPECT_EQ(TColor::LtRed, PixelOf(bitmap, 0, 1));
        EXPECT_EQ(TColor::LtYellow, PixelOf(bitmap, 3, 1));
    }
    try {
        const TBitmap bitmap(Module(), "NOSUCH");
        FAIL() << "nothing was thrown";
    } catch (const owl::TXGdi& error) {
        EXPECT_EQ(0u, std::string(error.what()).find("LoadBitmap: ")) << error.what();
    }
}

TEST(Bitmap, of_no_module_is_one_of_the_systems_own) {
    const TBitmap arrow(nullptr, 32750);
    EXPECT_GT(arrow.Width(), 4);
    EXPECT_GT(arrow.Height(), 4);
}

TEST(Bitmap, dimension_is_its_size_until_another_is_noted) {
    TBitmap bitmap(MakeSection(5, 4), owl::AutoDelete);
    TSize size;
    EXPECT_TRUE(bitmap.GetBitmapDimension(size));
    EXPECT_EQ(TSize(5, 4), size);
    EXPECT_TRUE(bitmap.SetBitmapDimension(TSize(50, 40)));
    EXPECT_TRUE(bitmap.GetBitmapDimension(size));
    EXPECT_EQ(TSize(50, 40), size);
    EXPECT_EQ(TSize(5, 4), bitmap.Size());
}

/// A pixel drawn on the copy is not on the original, and the copy survives that.
void ExpectIndependentCopy(TBitmap* original, TColor color) {
    {
        TMemoryDC dc;
        dc.SelectObject(*original);
        dc.SetPixel(2, 1, color);
    }
    const int depth = original->BitsPixel();
    TBitmap copy(*original);
    EXPECT_NE(original->GetHandle(), copy.GetHandle());
    {
        TMemoryDC dc;
        dc.SelectObject(copy);
        EXPECT_EQ(color, dc.GetPixel(2, 1)) << depth;
        dc.SetPixel(0, 0, color);
    }
    EXPECT_EQ(TColor::Black, PixelOf(*original, 0, 0)) << depth;
    delete original;
    EXPECT_EQ(TSize(5, 4), copy.Size());
    EXPECT_EQ(depth, copy.BitsPixel());
    EXPECT_EQ(color, PixelOf(copy, 0, 0)) << depth;
    EXPECT_EQ(color, PixelOf(copy, 2, 1)) << depth;
}

TEST(Bitmap, copied_lives_without_the_other) {
    ExpectIndependentCopy(new TBitmap(TScreenDC(), 5, 4), TColor(8, 16, 24));
    ExpectIndependentCopy(new TBitmap(5, 4, 1, 1, nullptr), TColor::White);
    for (const int depth : {1, 24, 32})
        ExpectIndependentCopy(new TBitmap(MakeSection(5, 4, depth), owl::AutoDelete), TColor::White);
    // Colours of the sections' own tables.
    ExpectIndependentCopy(new TBitmap(MakeSection(5, 4, 4), owl::AutoDelete), TColor(7, 7, 7));
    ExpectIndependentCopy(new TBitmap(MakeSection(5, 4, 8), owl::AutoDelete), TColor(100, 100, 100));
}

TEST(Bitmap, copied_from_a_section_is_one_too) {
    const TBitmap copy{TBitmap(MakeSection(5, 4, 8), owl::AutoDelete)};
    BITMAP description;
    copy.GetObject(description);
    EXPECT_NE(nullptr, description.bmBits);
    const TBitmap section(MakeSection(5, 4, 8), owl::AutoDelete);
    const TBitmap second(section);
    second.GetObject(description);
    EXPECT_NE(nullptr, description.bmBits);
    EXPECT_NE(section.GetHandle(), second.GetHandle());
}

TEST(Bitmap, copied_can_be_selected_while_the_other_is) {
    const Surface surface(3, 3);
    const TBitmap copy(surface.bitmap);
    EXPECT_EQ(TColor::White, PixelOf(copy, 2, 2));
}

// The copy of a section with its upper row first came out upside down: the system tells of both kinds alike.
TEST(Bitmap, copied_from_a_section_stands_upright_whichever_row_is_first) {
    for (const bool upperRowFirst : {false, true}) {
        for (const int depth : {1, 4, 8, 16, 24, 32}) {
            const TBitmap section(MakeSection(5, upperRowFirst ? -4 : 4, depth), owl::AutoDelete);
            {
                TMemoryDC dc;
                dc.SelectObject(section);
                dc.SetPixel(3, 0, TColor::White);
            }
            const TBitmap copy(section);
            // Of 4 bits the lightest colour is not white.
            EXPECT_EQ(PixelOf(section, 3, 0), PixelOf(copy, 3, 0)) << depth << upperRowFirst;
            EXPECT_NE(TColor::Black, PixelOf(copy, 3, 0)) << depth << upperRowFirst;
            EXPECT_EQ(TColor::Black, PixelOf(copy, 3, 3)) << depth << upperRowFirst;
        }
    }
}

/// One pixel of 16 or 32 bits whose components lie where the masks say.
TBitmap MaskedPixel(int bitCount, DWORD red, DWORD green, DWORD blue, DWORD pixel) {
    const struct {
        BITMAPINFOHEADER header;
        DWORD masks[3];
    } info = {{40, 1, 1, 1, static_cast<WORD>(bitCount), BI_BITFIELDS, 0, 0, 0, 0, 0}, {red, green, blue}};
    void* bits = nullptr;
    const HBITMAP section = ::CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info),
                                               DIB_RGB_COLORS, &bits, nullptr, 0);
    std::memcpy(bits, &pixel, static_cast<std::size_t>(bitCount) / 8);
    return TBitmap(section, owl::AutoDelete);
}

TEST(Bitmap, copied_from_a_section_with_masks_keeps_them) {
    const TBitmap many = MaskedPixel(16, 0xF800, 0x07E0, 0x001F, 0x07E0);
    EXPECT_EQ(TColor::LtGreen, PixelOf(TBitmap(many), 0, 0));
    const TBitmap reversed = MaskedPixel(32, 0xFF, 0xFF00, 0xFF0000, 0x0000FF);
    EXPECT_EQ(TColor::LtRed, PixelOf(TBitmap(reversed), 0, 0));
    DIBSECTION section{};
    const TBitmap copy(many);
    ASSERT_EQ(int{sizeof section}, ::GetObject(copy.GetHandle(), sizeof section, &section));
    EXPECT_EQ(0x07E0u, section.dsBitfields[1]);
}

// What lies beside the colours in 32 bits, transparency for one, is the host's.
TEST(Bitmap, copied_from_a_section_keeps_the_fourth_byte) {
    const TBitmap section(MakeSection(1, 1, 32), owl::AutoDelete);
    BITMAP description;
    section.GetObject(description);
    const DWORD pixel = 0x80123456;
    std::memcpy(description.bmBits, &pixel, sizeof pixel);
    const TBitmap copy(section);
    copy.GetObject(description);
    EXPECT_EQ(0, std::memcmp(description.bmBits, &pixel, sizeof pixel));
}

// The copy came out without its colours, and later was refused.
TEST(Bitmap, copied_from_a_section_with_colours_that_is_selected_has_them) {
    const TBitmap section(MakeSection(5, 4, 8), owl::AutoDelete);
    TMemoryDC dc;
    dc.SelectObject(section);
    dc.SetPixel(1, 1, TColor(100, 100, 100));
    EXPECT_EQ(TColor(100, 100, 100), PixelOf(TBitmap(section), 1, 1));
}

TEST(Bitmap, is_made_of_a_picture) {
    owl::TDib dib(2, 2, 24);
    dib.SetPixel(0, 0, TColor::LtRed);
    dib.SetPixel(1, 1, TColor::LtBlue);
    const TBitmap bitmap(dib);
    EXPECT_EQ(TScreenDC().GetDeviceCaps(BITSPIXEL), bitmap.BitsPixel());
    EXPECT_EQ(TColor::LtRed, PixelOf(bitmap, 0, 0));
    EXPECT_EQ(TColor::LtBlue, PixelOf(bitmap, 1, 1));
    const PALETTEENTRY entry = {1, 2, 3, 0};
    const owl::TPalette palette(&entry, 1);
    EXPECT_EQ(TColor::LtRed, PixelOf(TBitmap(dib, &palette), 0, 0));
}

TEST(Bitmap, goes_over_the_clipboard) {
    const owl_test::MessageWindow window;
    {
        TBitmap bitmap(TScreenDC(), 3, 2);
        {
            TMemoryDC dc;
            dc.SelectObject(bitmap);
            dc.SetPixel(2, 1, TColor::LtRed);
        }
        TClipboard clipboard(window);
        clipboard.EmptyClipboard();
        EXPECT_THROW(TBitmap{clipboard}, owl::TXWindow);
        bitmap.ToClipboard(clipboard);
    }
    TClipboard* clipboard = new TClipboard(window);
    const TBitmap taken(*clipboard);
    clipboard->EmptyClipboard();
    delete clipboard;
    EXPECT_EQ(TSize(3, 2), taken.Size());
    EXPECT_EQ(TColor::LtRed, PixelOf(taken, 2, 1));
}

TEST(Bitmap, is_still_the_callers_when_the_clipboard_refuses_it) {
    const owl_test::MessageWindow window;
    const TBitmap bitmap(3, 2, 1, 1, nullptr);
    TClipboard clipboard(window);
    clipboard.CloseClipboard();
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 100; ++i)
        EXPECT_THROW(bitmap.ToClipboard(clipboard), owl::TXWindow);
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

TEST(Bitmap, leaves_nothing_behind) {
    const TScreenDC screen;
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        const TBitmap compatible(screen, 3, 2);
        const TBitmap copy(compatible);
        const TBitmap section(MakeSection(5, 4, 8), owl::AutoDelete);
        const TBitmap sectionCopy(section);
    }
    for (int i = 0; i < 100; ++i)
        const TBitmap loaded(Module(), 7);
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
