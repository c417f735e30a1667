// See images/skew_way_cases.h.
#include <gtest/gtest.h>

#include <iostream>

#include "images/skew_way_cases.h"

namespace {

using lvx::images::SkewWay;

// Without the instructions there is nothing to test.
bool can_go() {
    const bool can = lvx::images::fastest_skew_way() == SkewWay::by_eight;
    if (!can) {
        std::cout << "this processor has no eight lanes\n";
    }
    return can;
}

TEST(SkewByEight, comes_to_what_is_told_for_all_tiny_pictures) {
    if (can_go()) {
        lvx_test::expect_all_tiny_pictures_as_told(SkewWay::by_eight);
    }
}

TEST(SkewByEight, comes_to_what_is_told_for_small_pictures) {
    if (can_go()) {
        lvx_test::expect_small_pictures_as_told(SkewWay::by_eight);
    }
}

TEST(SkewByEight, comes_to_what_is_told_for_pictures_of_several_parts) {
    if (can_go()) {
        lvx_test::expect_larger_pictures_as_told(SkewWay::by_eight);
    }
}

TEST(SkewByEight, comes_to_what_is_told_where_samples_lie_between_two_pixels) {
    if (can_go()) {
        lvx_test::expect_pictures_on_the_edge_as_told(SkewWay::by_eight);
    }
}

TEST(SkewByEight, reads_what_a_short_block_lacks_as_0) {
    if (can_go()) {
        lvx_test::expect_short_blocks_as_told(SkewWay::by_eight);
    }
}

TEST(SkewByEight, shows_the_background_outside_of_the_picture) {
    if (can_go()) {
        lvx_test::expect_backgrounds_as_told(SkewWay::by_eight);
    }
}

}  // namespace
