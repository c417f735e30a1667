// The four images of a button, compared pixel by pixel with the same logic in plain arithmetic.
#include "lvx/controls/glyph_cels.h"

#include <gtest/gtest.h>

#include <array>

#include "controls/glyph_oracle.h"
#include "controls/toolbar_ids.h"
#include "owl/error.h"
#include "owl/hatch_brush.h"
#include "owl/window_dc.h"

namespace {

using lvx::controls::GlyphCels;
using lvx_test::ButtonImages;
using lvx_test::Colours;
using lvx_test::Glyph;

/// The images that the library makes of a glyph in the colours of now.
struct MadeImages {
    explicit MadeImages(const owl::TDib& glyph)
        : cels(new owl::TBitmap(owl::TScreenDC(), glyph.Width() * 4, glyph.Height()), 4) {
        const owl::TBitmap mask(128, 512, 1, 1, nullptr);
        const owl::THatch8x8Brush hatch(owl::THatch8x8Brush::Hatch11F1,
                                        owl::TColor::FromSystem(COLOR_BTNHIGHLIGHT),
                                        owl::TColor::FromSystem(COLOR_BTNFACE));
        GlyphCels(cels, mask).Draw(glyph, hatch);
        // Nothing of it is selected any more.
        owl::TMemoryDC other;
        other.SelectObject(mask);
    }

    owl::TCelArray cels;
};

owl::TDib LoadGlyph(int id) {
    owl::TDib glyph(::GetModuleHandleA(nullptr), id);
    glyph.MapUIColors(0xF);
    return glyph;
}

Glyph PixelsOf(const owl::TDib& dib) {
    Glyph glyph(dib.Width(), dib.Height());
    glyph.Fill([&](int x, int y) { return dib.GetPixel(x, y); });
    return glyph;
}

/// All pixels of all images that are not as they should be.
int CountWrong(const owl::TCelArray& cels, const ButtonImages& expected) {
    owl::TMemoryDC dc;
    dc.SelectObject(static_cast<const owl::TBitmap&>(cels));
    int wrong = 0;
    for (int y = 0; y < cels.CelSize().cy; ++y) {
        for (int x = 0; x < 4 * cels.CelSize().cx; ++x) {
            const COLORREF found = ::GetPixel(dc, x, y);
            const COLORREF wanted = expected.At(x, y);
            if (found != wanted && ++wrong <= 5) {
                ADD_FAILURE() << x << "," << y << ": " << std::hex << found << " and not " << wanted;
            }
        }
    }
    return wrong;
}

}  // namespace

TEST(GlyphCels, are_the_four_images_that_the_mask_makes) {
    const owl::TDib glyph = LoadGlyph(IDB_COLOURS);
    ASSERT_EQ(owl::TSize(21, 18), glyph.Size());
    const MadeImages made(glyph);
    EXPECT_EQ(0, CountWrong(made.cels, ButtonImages(PixelsOf(glyph), Colours::OfSystem())));
}

TEST(GlyphCels, of_a_small_glyph_are_so_too) {
    const owl::TDib glyph = LoadGlyph(CM_SAVE);
    const MadeImages made(glyph);
    EXPECT_EQ(0, CountWrong(made.cels, ButtonImages(PixelsOf(glyph), Colours::OfSystem())));
}

TEST(GlyphCels, of_every_size_up_to_the_largest_are_so_too) {
    const std::array<owl::TSize, 6> sizes{{{1, 1}, {1, 512}, {128, 1}, {8, 8}, {127, 511}, {128, 512}}};
    const Colours colours = Colours::OfSystem();
    const std::array<COLORREF, 4> kinds{colours.face, colours.highlight, RGB(0, 0, 0), RGB(1, 2, 3)};
    for (const owl::TSize& size : sizes) {
        owl::TDib glyph(size.cx, size.cy, 24);
        for (int y = 0; y < size.cy; ++y) {
            for (int x = 0; x < size.cx; ++x) {
                glyph.SetPixel(x, y, kinds[static_cast<std::size_t>((x * 5 + y * 3 + x * y) % 4)]);
            }
        }
        const MadeImages made(glyph);
        EXPECT_EQ(0, CountWrong(made.cels, ButtonImages(PixelsOf(glyph), colours)))
            << size.cx << " by " << size.cy;
    }
}

// Rebuilt on top of what was there.
TEST(GlyphCels, do_not_depend_on_what_was_there) {
    const owl::TDib glyph = LoadGlyph(IDB_COLOURS);
    const MadeImages made(glyph);
    {
        owl::TMemoryDC dc;
        dc.SelectObject(static_cast<const owl::TBitmap&>(made.cels));
        dc.PatBlt(owl::TRect(0, 0, 84, 18), DSTINVERT);
    }
    const owl::TBitmap mask(128, 512, 1, 1, nullptr);
    const owl::THatch8x8Brush hatch(owl::THatch8x8Brush::Hatch11F1,
                                    owl::TColor::FromSystem(COLOR_BTNHIGHLIGHT),
                                    owl::TColor::FromSystem(COLOR_BTNFACE));
    GlyphCels(made.cels, mask).Draw(glyph, hatch);
    EXPECT_EQ(0, CountWrong(made.cels, ButtonImages(PixelsOf(glyph), Colours::OfSystem())));
}

TEST(GlyphCels, need_bitmaps_that_nobody_draws_on) {
    const owl::TDib glyph = LoadGlyph(CM_SAVE);
    const MadeImages made(glyph);
    const owl::TBitmap mask(128, 512, 1, 1, nullptr);
    owl::TMemoryDC other;
    other.SelectObject(mask);
    EXPECT_THROW(GlyphCels(made.cels, mask), owl::TXGdi);
    other.RestoreBitmap();
    EXPECT_NO_THROW(GlyphCels(made.cels, mask));
}
