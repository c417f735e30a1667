#include "lvx/images/colour_table.h"

#include <gtest/gtest.h>

namespace {

using lvx::images::entries_of_depth;
using lvx::images::entries_of_info;

TEST(ColourTable, has_an_entry_for_each_value_of_a_shallow_pixel) {
    EXPECT_EQ(2u, entries_of_depth(1));
    EXPECT_EQ(16u, entries_of_depth(4));
    EXPECT_EQ(256u, entries_of_depth(8));
}

TEST(ColourTable, has_no_entries_for_other_depths) {
    for (const unsigned int depth : {0u, 2u, 3u, 7u, 16u, 24u, 32u, 65535u}) {
        EXPECT_EQ(0u, entries_of_depth(depth)) << depth;
    }
}

TEST(ColourTable, has_as_many_entries_as_the_header_uses) {
    EXPECT_EQ(5u, entries_of_info(5, 8, BI_RGB));
    EXPECT_EQ(7u, entries_of_info(7, 24, BI_RGB));
    EXPECT_EQ(9u, entries_of_info(9, 16, BI_BITFIELDS));
    EXPECT_EQ(0xFFFFFFFFu, entries_of_info(0xFFFFFFFF, 1, BI_RGB));
}

TEST(ColourTable, has_those_of_the_depth_when_the_header_uses_none) {
    EXPECT_EQ(2u, entries_of_info(0, 1, BI_RGB));
    EXPECT_EQ(16u, entries_of_info(0, 4, BI_RLE4));
    EXPECT_EQ(256u, entries_of_info(0, 8, BI_RLE8));
    EXPECT_EQ(256u, entries_of_info(0, 8, BI_BITFIELDS));
    EXPECT_EQ(0u, entries_of_info(0, 24, BI_RGB));
}

TEST(ColourTable, is_the_three_masks_of_bit_fields) {
    EXPECT_EQ(3u, entries_of_info(0, 16, BI_BITFIELDS));
    EXPECT_EQ(3u, entries_of_info(0, 32, BI_BITFIELDS));
    EXPECT_EQ(3u, entries_of_info(0, 24, BI_BITFIELDS));
    EXPECT_EQ(0u, entries_of_info(0, 16, 4));
}

}  // namespace
