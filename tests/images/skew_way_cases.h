// What every way of skewing has to come to: the bits that the oracle has.
#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "images/skew_pictures.h"
#include "support/skew_oracle.h"

namespace lvx_test {

/// The pixels by the oracle, which are the last bytes of its block.
inline std::string oracle_pixels(const SkewCase& skewed, const std::string& block,
                                 std::uint32_t background = 0x00FFFFFF) {
    const std::string whole = SkewOracle(block, skewed.corner, skewed.dx, skewed.dy, background).Block();
    const std::size_t image_size = number_at(whole, 20);
    const std::size_t table = skewed.used != 0 ? 4 * skewed.used : skewed.compression == 3 ? 12 : 0;
    return whole.substr(40 + table, image_size);
}

/// The number of the first pixel that is not the oracle's; -1 if all are.
inline std::ptrdiff_t first_difference(const std::string& found, const std::string& expected) {
    if (found.size() != expected.size()) {
        return 0;
    }
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (found[i] != expected[i]) {
            return static_cast<std::ptrdiff_t>(i / 4);
        }
    }
    return -1;
}

/// Whether a case was skewed and came out as the oracle's.
inline bool skews_as_told(const SkewCase& skewed, const std::string& block, lvx::images::SkewWay way,
                          std::uint32_t background = 0x00FFFFFF) {
    try {
        SkewWork work(skewed, block, background);
        const std::string expected = oracle_pixels(skewed, block, background);
        EXPECT_EQ(-1, first_difference(work.Pixels(way), expected)) << described(skewed);
        return true;
    } catch (const std::runtime_error&) {
        EXPECT_THROW(oracle_pixels(skewed, block), std::runtime_error) << described(skewed);
        return false;
    }
}

/// Small pictures of every kind, dragged anywhere.
inline void expect_small_pictures_as_told(lvx::images::SkewWay way) {
    SkewDice dice(1);
    int skewed = 0;
    for (int i = 0; i < 6000; ++i) {
        const SkewCase next = dice.Case(i % 7 == 0 ? 40 : 9);
        skewed += skews_as_told(next, dice.Block(next), way) ? 1 : 0;
    }
    EXPECT_GT(skewed, 3000);
}

/// All sizes up to 3 by 3, and every way that leads at most two pixels beyond the picture on either side.
inline void expect_all_tiny_pictures_as_told(lvx::images::SkewWay way) {
    SkewDice dice(7);
    SkewCase skewed;
    int compared = 0;
    for (skewed.width = 1; skewed.width <= 3; ++skewed.width) {
        for (skewed.height = 1; skewed.height <= 3; ++skewed.height) {
            for (const std::uint32_t depth : {1u, 4u, 8u, 16u, 24u, 32u}) {
                skewed.depth = depth;
                const std::string block = dice.Block(skewed);
                for (const int corner : {5, 6, 9, 10}) {
                    skewed.corner = corner;
                    for (skewed.dx = -skewed.width - 2; skewed.dx <= skewed.width + 2; ++skewed.dx) {
                        for (skewed.dy = -skewed.height - 2; skewed.dy <= skewed.height + 2; ++skewed.dy) {
                            compared += skews_as_told(skewed, block, way) ? 1 : 0;
                        }
                    }
                }
            }
        }
    }
    EXPECT_GT(compared, 12000);
}

/// Larger ones, in several parts of which some lie in the picture wholly, and some not at all.
inline void expect_larger_pictures_as_told(lvx::images::SkewWay way) {
    const SkewCase cases[] = {
        {300, 100, 24, 5, 40, 20},     {300, 100, 24, 5, -140, -60},  {301, 97, 32, 10, 200, 90},
        {299, 61, 16, 6, -70, 40},     {150, 200, 8, 9, -80, -90},    {128, 16, 32, 10, 0, 0},
        {129, 17, 24, 5, 1, 1},        {127, 15, 24, 5, -1, -1},      {256, 32, 32, 9, 3, -3},
        {400, 90, 4, 10, -390, -80},   {400, 90, 1, 5, 390, 80},      {260, 70, 24, 6, 0, -69},
        {1, 700, 24, 10, 3, 0},        {700, 1, 24, 10, 0, 3},        {200, 200, 32, 5, 600, 500},
        {200, 150, 24, 9, -1000, -10}, {200, 150, 24, 10, 250, -149}, {31, 33, 32, 5, -900, -700},
    };
    SkewDice dice(2);
    for (const SkewCase& skewed : cases) {
        EXPECT_TRUE(skews_as_told(skewed, dice.Block(skewed), way)) << described(skewed);
    }
}

/// A map by which every sample comes to lie exactly between two pixels, or next to it.
inline void expect_pictures_on_the_edge_as_told(lvx::images::SkewWay way) {
    SkewDice dice(3);
    for (const int dx : {-100, -50, -200, 100, 50, 0}) {
        for (const int dy : {-80, -40, 40, 20, 0}) {
            for (const int corner : {5, 6, 9, 10}) {
                const SkewCase skewed{200, 80, 32, corner, dx, dy};
                skews_as_told(skewed, dice.Block(skewed), way);
            }
        }
    }
}

/// Blocks that lack a part of their pixels, one byte or many.
inline void expect_short_blocks_as_told(lvx::images::SkewWay way) {
    SkewDice dice(4);
    for (int i = 0; i < 600; ++i) {
        const SkewCase skewed = dice.Case(60);
        std::string block = dice.Block(skewed);
        const std::size_t pixels = block.size() - skewed.PixelsAt();
        block.resize(block.size() - static_cast<std::size_t>(dice.Number(1, 5)) % (pixels + 1));
        if (i % 3 == 0) {
            block.resize(skewed.PixelsAt() + pixels / 2);
        }
        skews_as_told(skewed, block, way);
    }
}

/// Another background, with all of its bytes set.
inline void expect_backgrounds_as_told(lvx::images::SkewWay way) {
    SkewDice dice(5);
    for (const std::uint32_t background : {0u, 0x00FFFF80u, 0xFFFFFFFFu, 0xC0804021u}) {
        const SkewCase skewed{50, 40, 24, 10, 60, 50};
        EXPECT_TRUE(skews_as_told(skewed, dice.Block(skewed), way, background)) << background;
    }
}

}  // namespace lvx_test
