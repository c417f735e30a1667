// See images/skew_way_cases.h.
#include <gtest/gtest.h>

#include "images/skew_way_cases.h"

namespace {

using lvx::images::SkewWay;

TEST(PlainSkew, comes_to_what_is_told_for_all_tiny_pictures) {
    lvx_test::expect_all_tiny_pictures_as_told(SkewWay::plain);
}

TEST(PlainSkew, comes_to_what_is_told_for_small_pictures) {
    lvx_test::expect_small_pictures_as_told(SkewWay::plain);
}

TEST(PlainSkew, comes_to_what_is_told_for_pictures_of_several_parts) {
    lvx_test::expect_larger_pictures_as_told(SkewWay::plain);
}

TEST(PlainSkew, comes_to_what_is_told_where_samples_lie_between_two_pixels) {
    lvx_test::expect_pictures_on_the_edge_as_told(SkewWay::plain);
}

TEST(PlainSkew, reads_what_a_short_block_lacks_as_0) {
    lvx_test::expect_short_blocks_as_told(SkewWay::plain);
}

TEST(PlainSkew, shows_the_background_outside_of_the_picture) {
    lvx_test::expect_backgrounds_as_told(SkewWay::plain);
}

}  // namespace
