#include "owl/true_color_fields.h"

#include <gtest/gtest.h>

namespace {

using owl::TColor;
using owl::TrueColorFields;

TEST(TrueColorFields, of_8_bits_are_the_components_themselves) {
    const TrueColorFields fields(0xFF0000, 0x00FF00, 0x0000FF);
    EXPECT_EQ(TColor(1, 2, 3), fields.Unpack(0x00010203));
    EXPECT_EQ(0x00010203u, fields.Pack(TColor(1, 2, 3)));
    EXPECT_EQ(TColor(1, 2, 3), fields.Unpack(0xAB010203));
}

TEST(TrueColorFields, of_fewer_bits_reach_from_0_to_255) {
    const TrueColorFields fields(0xF800, 0x07E0, 0x001F);
    EXPECT_EQ(TColor(255, 255, 255), fields.Unpack(0xFFFF));
    EXPECT_EQ(TColor(0, 0, 0), fields.Unpack(0));
    EXPECT_EQ(TColor(255, 0, 0), fields.Unpack(0xF800));
    // 16 of 31 and 32 of 63, spread to 255 and rounded.
    EXPECT_EQ(TColor(132, 130, 132), fields.Unpack(0x8410));
}

TEST(TrueColorFields, pack_to_the_nearest_number) {
    const TrueColorFields fields(0x7C00, 0x03E0, 0x001F);
    EXPECT_EQ(0x7FFFu, fields.Pack(TColor(255, 255, 255)));
    EXPECT_EQ(0x7C00u, fields.Pack(TColor(254, 3, 4)));
    EXPECT_EQ(0x0001u, fields.Pack(TColor(0, 0, 5)));
    for (std::uint32_t pixel = 0; pixel < 0x8000; pixel += 0x0421)
        EXPECT_EQ(pixel, fields.Pack(fields.Unpack(pixel)));
}

TEST(TrueColorFields, without_bits_are_0) {
    const TrueColorFields fields(0, 0xFF, 0);
    EXPECT_EQ(TColor(0, 7, 0), fields.Unpack(0xFFFFFF07));
    EXPECT_EQ(7u, fields.Pack(TColor(255, 7, 255)));
}

TEST(TrueColorFields, can_be_32_bits_wide) {
    const TrueColorFields fields(0xFFFFFFFF, 0x80000000, 1);
    EXPECT_EQ(255, fields.Unpack(0xFFFFFFFF).Red());
    EXPECT_EQ(255, fields.Unpack(0x80000000).Green());
    EXPECT_EQ(128, fields.Unpack(0x80000000).Red());
    EXPECT_EQ(0xFFFFFFFFu, fields.Pack(TColor(255, 255, 255)));
}

}  // namespace
