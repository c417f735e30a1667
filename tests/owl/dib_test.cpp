#include "owl/dib.h"

#include <gtest/gtest.h>

#include "owl/error.h"
#include "surface.h"

namespace {

using owl::TColor;
using owl::TDib;
using owl::TRect;
using owl::TSize;
using owl_test::Surface;

/// 4 by 2 pixels of 4 bits: black, grey, light grey and white, and below red, green, blue and yellow.
TDib Greys() {
    return TDib(::GetModuleHandleA(nullptr), "GREYS");
}

/// The same pixels in true colours.
TDib TrueGreys(int bitCount) {
    const TDib greys = Greys();
    TDib dib(4, 2, bitCount);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 4; ++x)
            dib.SetPixel(x, y, greys.GetPixel(x, y));
    }
    return dib;
}

TEST(Dib, made_new_is_black) {
    const TDib dib(3, 2, 24);
    EXPECT_EQ(TSize(3, 2), dib.Size());
    EXPECT_EQ(24, dib.BitsPixel());
    EXPECT_EQ(0, dib.NumColors());
    EXPECT_EQ(12, dib.Pitch());
    EXPECT_EQ(24ul, dib.GetBitsSize());
    EXPECT_EQ(TColor::Black, dib.GetPixel(2, 1));
    EXPECT_THROW(TDib(0, 1, 24), owl::TXGdi);
    EXPECT_THROW(TDib(1, 1, 5), owl::TXGdi);
}

TEST(Dib, counts_its_pixels_from_the_upper_left) {
    const TDib dib = Greys();
    EXPECT_EQ(TColor::Black, dib.GetPixel(0, 0));
    EXPECT_EQ(TColor::Gray, dib.GetPixel(1, 0));
    EXPECT_EQ(TColor::White, dib.GetPixel(3, 0));
    EXPECT_EQ(TColor::LtRed, dib.GetPixel(0, 1));
    EXPECT_EQ(TColor::LtYellow, dib.GetPixel(3, 1));
    EXPECT_EQ(7, dib.GetIndex(3, 1));
}

TEST(Dib, has_no_pixels_outside_of_itself) {
    TDib dib = Greys();
    const int places[][2] = {{-1, 0}, {0, -1}, {4, 0}, {0, 2}, {2147483647, 2147483647}, {-2147483647, 0}};
    for (const auto& place : places) {
        EXPECT_EQ(TColor(CLR_INVALID), dib.GetPixel(place[0], place[1]));
        EXPECT_EQ(-1, dib.GetIndex(place[0], place[1]));
        EXPECT_FALSE(dib.SetPixel(place[0], place[1], TColor::White));
    }
}

TEST(Dib, gives_back_the_pixels_that_it_was_given_in_every_depth) {
    for (const int depth : {1, 4, 8, 16, 24, 32}) {
        TDib dib(11, 3, depth);
        dib.SetColor(1, TColor::White);
        for (int y = 0; y < 3; ++y) {
            for (int x = 0; x < 11; ++x)
                EXPECT_TRUE(dib.SetPixel(x, y, (x + y) % 3 == 0 ? TColor::White : TColor::Black));
        }
        for (int y = 0; y < 3; ++y) {
            for (int x = 0; x < 11; ++x)
                EXPECT_EQ((x + y) % 3 == 0 ? TColor::White : TColor::Black, dib.GetPixel(x, y)) << depth;
        }
    }
}

TEST(Dib, with_a_colour_table_takes_the_nearest_colour) {
    TDib dib = Greys();
    EXPECT_TRUE(dib.SetPixel(0, 0, TColor(190, 190, 195)));
    EXPECT_EQ(TColor::LtGray, dib.GetPixel(0, 0));
    EXPECT_EQ(2, dib.GetIndex(0, 0));
    EXPECT_EQ(-1, TDib(1, 1, 24).GetIndex(0, 0));
}

TEST(Dib, is_drawn_by_the_system_as_its_pixels_say) {
    for (const int depth : {16, 24, 32}) {
        const TDib dib = TrueGreys(depth);
        Surface surface(4, 2);
        EXPECT_TRUE(
            surface.dc.StretchDIBits(TRect(0, 0, 4, 2), TRect(0, 0, 4, 2), dib.GetBits(), dib.GetInfo()));
        for (int y = 0; y < 2; ++y) {
            for (int x = 0; x < 4; ++x)
                EXPECT_EQ(dib.GetPixel(x, y), TColor(surface.At(x, y))) << depth << " " << x << "," << y;
        }
    }
    const TDib dib = Greys();
    Surface surface(4, 2);
    surface.dc.StretchDIBits(TRect(0, 0, 4, 2), TRect(0, 0, 4, 2), dib.GetBits(), dib.GetInfo());
    EXPECT_EQ("#??.\nRGBY\n", surface.Picture());
}

TEST(Dib, colours_are_read_changed_and_found) {
    TDib dib = Greys();
    EXPECT_EQ(16, dib.NumColors());
    EXPECT_EQ(TColor::LtGray, dib.GetColor(2));
    EXPECT_EQ(TColor::Black, dib.GetColor(16));
    EXPECT_EQ(TColor::Black, dib.GetColor(-1));
    EXPECT_EQ(2, dib.FindColor(TColor::LtGray));
    EXPECT_EQ(-1, dib.FindColor(TColor(1, 2, 3)));
    EXPECT_TRUE(dib.SetColor(2, TColor(1, 2, 3)));
    EXPECT_EQ(2, dib.FindColor(TColor(1, 2, 3)));
    EXPECT_EQ(TColor(1, 2, 3), dib.GetPixel(2, 0));
    EXPECT_FALSE(dib.SetColor(16, TColor::White));
    EXPECT_FALSE(dib.SetColor(-1, TColor::White));
}

TEST(Dib, maps_the_first_or_all_of_a_colour) {
    TDib dib = Greys();
    // Black stands first and in the eight entries at the end.
    EXPECT_EQ(1, dib.MapColor(TColor::Black, TColor::LtCyan));
    EXPECT_EQ(TColor::LtCyan, dib.GetColor(0));
    EXPECT_EQ(TColor::Black, dib.GetColor(8));
    EXPECT_EQ(8, dib.MapColor(TColor::Black, TColor::LtCyan, true));
    EXPECT_EQ(0, dib.MapColor(TColor::Black, TColor::LtCyan, true));
    EXPECT_EQ(0, dib.MapColor(TColor::Black, TColor::LtCyan));
    EXPECT_EQ(0, dib.MapColor(TColor::LtCyan, TColor::LtCyan, true));
}

TEST(Dib, maps_the_pixels_of_true_colours) {
    TDib dib = TrueGreys(24);
    EXPECT_EQ(1, dib.MapColor(TColor::LtRed, TColor::LtCyan));
    EXPECT_EQ(TColor::LtCyan, dib.GetPixel(0, 1));
    EXPECT_EQ(TColor::LtGreen, dib.GetPixel(1, 1));
}

/// Sets the colours of buttons as long as it lives.
class ButtonColours {
public:
    ButtonColours(COLORREF text, COLORREF shadow, COLORREF face, COLORREF highlight) {
        for (int i = 0; i < 4; ++i)
            m_before[i] = ::GetSysColor(m_elements[i]);
        const COLORREF colours[] = {text, shadow, face, highlight};
        ::SetSysColors(4, m_elements, colours);
    }
    ~ButtonColours() { ::SetSysColors(4, m_elements, m_before); }
    ButtonColours(const ButtonColours&) = delete;
    ButtonColours& operator=(const ButtonColours&) = delete;

private:
    static constexpr INT m_elements[] = {COLOR_BTNTEXT, COLOR_BTNSHADOW, COLOR_BTNFACE, COLOR_BTNHIGHLIGHT};
    COLORREF m_before[4];
};

TEST(Dib, maps_the_standard_greys_to_the_users_colours) {
    const ButtonColours user(RGB(1, 1, 1), RGB(2, 2, 2), RGB(3, 3, 3), RGB(4, 4, 4));
    for (const bool table : {true, false}) {
        TDib dib = table ? Greys() : TrueGreys(32);
        dib.MapUIColors(0xF);
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(TColor(x + 1, x + 1, x + 1), dib.GetPixel(x, 0)) << table << x;
        EXPECT_EQ(TColor::LtRed, dib.GetPixel(0, 1));
    }
}

TEST(Dib, maps_only_the_greys_that_are_asked_for) {
    const ButtonColours user(RGB(1, 1, 1), RGB(2, 2, 2), RGB(3, 3, 3), RGB(4, 4, 4));
    const struct {
        unsigned int mask;
        int x;
    } cases[] = {{TDib::MapText, 0}, {TDib::MapShadow, 1}, {TDib::MapFace, 2}, {TDib::MapHighlight, 3}};
    const TColor standard[] = {TColor::Black, TColor::Gray, TColor::LtGray, TColor::White};
    for (const auto& one : cases) {
        TDib dib = Greys();
        dib.MapUIColors(one.mask);
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(x == one.x ? TColor(x + 1, x + 1, x + 1) : standard[x], dib.GetPixel(x, 0));
    }
    TDib dib = Greys();
    dib.MapUIColors(0);
    EXPECT_EQ(TColor::LtGray, dib.GetPixel(2, 0));
    const TColor face(9, 8, 7);
    dib.MapUIColors(TDib::MapFace, &face);
    EXPECT_EQ(face, dib.GetPixel(2, 0));
}

// Mapped one after the other, the second would take up what the first had made.
TEST(Dib, maps_each_colour_once) {
    const ButtonColours user(RGB(128, 128, 128), RGB(192, 192, 192), RGB(255, 255, 255), RGB(0, 0, 0));
    TDib dib = Greys();
    dib.MapUIColors(0xF);
    EXPECT_EQ(TColor::Gray, dib.GetPixel(0, 0));
    EXPECT_EQ(TColor::LtGray, dib.GetPixel(1, 0));
    EXPECT_EQ(TColor::White, dib.GetPixel(2, 0));
    EXPECT_EQ(TColor::Black, dib.GetPixel(3, 0));
}

TEST(Dib, copied_lives_without_the_other) {
    TDib* first = new TDib(Greys());
    const TDib copy(*first);
    first->SetPixel(0, 0, TColor::White);
    delete first;
    EXPECT_EQ(TColor::Black, copy.GetPixel(0, 0));
}

}  // namespace
