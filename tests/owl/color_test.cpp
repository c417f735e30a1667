#include "owl/color.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using owl::TColor;

COLORREF Bits(unsigned int value) {
    return value;
}

// Copied while units are initialised, as hosts do with the named colours.
const TColor copiedAtStart = TColor::LtCyan;

TEST(Color, keeps_red_in_the_lowest_byte) {
    constexpr TColor color(0x11, 0x22, 0x33);
    EXPECT_EQ(Bits(0x00332211), color.GetValue());
    EXPECT_EQ(0x11, color.Red());
    EXPECT_EQ(0x22, color.Green());
    EXPECT_EQ(0x33, color.Blue());
}

TEST(Color, is_black_when_nothing_is_given) {
    EXPECT_EQ(Bits(0), TColor().GetValue());
}

TEST(Color, takes_the_low_8_bits_of_each_number) {
    EXPECT_EQ(TColor(0x01, 0xFF, 0x00), TColor(0x101, -1, 0x7FFFFF00));
}

TEST(Color, converts_from_and_to_the_systems_value) {
    const COLORREF value = TColor(1, 2, 3);
    EXPECT_EQ(Bits(0x030201), value);
    const TColor color = Bits(0x030201);
    EXPECT_EQ(TColor(1, 2, 3), color);
    EXPECT_EQ(color, Bits(0x030201));
    EXPECT_EQ(sizeof(COLORREF), sizeof(TColor));
    EXPECT_TRUE(std::is_trivially_copyable_v<TColor>);
}

TEST(Color, named_constants_have_the_published_values) {
    const struct {
        TColor color;
        int red, green, blue;
    } names[] = {
        {TColor::Black, 0, 0, 0},         {TColor::White, 255, 255, 255},  {TColor::LtGray, 192, 192, 192},
        {TColor::Gray, 128, 128, 128},    {TColor::DkGray, 64, 64, 64},    {TColor::LtRed, 255, 0, 0},
        {TColor::LtGreen, 0, 255, 0},     {TColor::LtBlue, 0, 0, 255},     {TColor::LtCyan, 0, 255, 255},
        {TColor::LtMagenta, 255, 0, 255}, {TColor::LtYellow, 255, 255, 0},
    };
    for (const auto& name : names) {
        EXPECT_EQ(name.red, name.color.Red());
        EXPECT_EQ(name.green, name.color.Green());
        EXPECT_EQ(name.blue, name.color.Blue());
        EXPECT_EQ(name.color, name.color.Rgb());
    }
    EXPECT_EQ(Bits(0x80FFFFFF), TColor::Transparent.GetValue());
    EXPECT_EQ(TColor::White, TColor::Transparent.Rgb());
    EXPECT_FALSE(TColor::Transparent.IsPaletteIndex());
    EXPECT_FALSE(TColor::Transparent.IsPaletteRelative());
    EXPECT_NE(TColor::White, TColor::Transparent);
}

TEST(Color, named_constants_can_be_copied_at_start_up) {
    EXPECT_EQ(Bits(0x00FFFF00), copiedAtStart.GetValue());
    static_assert(TColor::LtRed.Red() == 255);
}

TEST(Color, palette_relative_form_keeps_the_components) {
    const TColor color = TColor(1, 2, 3).PaletteRelative();
    EXPECT_EQ(Bits(0x02030201), color.GetValue());
    EXPECT_TRUE(color.IsPaletteRelative());
    EXPECT_FALSE(color.IsPaletteIndex());
    EXPECT_EQ(1, color.Red());
    EXPECT_EQ(3, color.Blue());
    EXPECT_NE(TColor(1, 2, 3), color);
    EXPECT_EQ(TColor(1, 2, 3), color.Rgb());
    EXPECT_EQ(color, color.PaletteRelative());
}

TEST(Color, palette_index_form_holds_16_bits) {
    const TColor color = TColor::PaletteIndex(0x1234);
    EXPECT_EQ(Bits(0x01001234), color.GetValue());
    EXPECT_EQ(0x1234, color.Index());
    EXPECT_TRUE(color.IsPaletteIndex());
    EXPECT_FALSE(color.IsPaletteRelative());
    EXPECT_EQ(Bits(0x0100FFFF), TColor::PaletteIndex(-1).GetValue());
    EXPECT_FALSE(TColor(1, 2, 3).IsPaletteIndex());
}

}  // namespace
