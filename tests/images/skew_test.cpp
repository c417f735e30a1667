#include "lvx/images/skew.h"

#include <gtest/gtest.h>

#include "images/skew_way_cases.h"

namespace {

using lvx::images::SkewWay;
using lvx_test::SkewCase;
using lvx_test::SkewDice;
using lvx_test::SkewWork;

constexpr SkewWay ways[] = {SkewWay::plain, SkewWay::by_four, SkewWay::by_eight};

// The ways of this processor.
std::vector<SkewWay> own_ways() {
    std::vector<SkewWay> result;
    for (const SkewWay way : ways) {
        if (way <= lvx::images::fastest_skew_way()) {
            result.push_back(way);
        }
    }
    return result;
}

TEST(Skew, takes_several_lanes_where_it_can) {
    EXPECT_NE(SkewWay::plain, lvx::images::fastest_skew_way());
}

TEST(Skew, of_a_large_picture_is_the_same_in_every_way) {
    SkewDice dice(6);
    const SkewCase skewed{1500, 1100, 24, 5, -130, -90};
    SkewWork work(skewed, dice.Block(skewed));
    const std::string plain = work.Pixels(SkewWay::plain);
    for (const SkewWay way : own_ways()) {
        EXPECT_EQ(-1, lvx_test::first_difference(work.Pixels(way), plain)) << static_cast<int>(way);
    }
}

// A row of more bits than 32 bits can count, of which the block has the first bytes only.
TEST(Skew, of_a_source_that_32_bits_cannot_count_goes_the_plain_way) {
    SkewDice dice(7);
    const SkewCase skewed{40, 30, 32, 10, 9, 9};
    SkewWork work(skewed, dice.Block(skewed));
    for (const std::uint64_t stride : {std::uint64_t{1} << 31, std::uint64_t{1} << 40}) {
        work.task.source.stride = stride;
        const std::string plain = work.Pixels(SkewWay::plain);
        for (const SkewWay way : own_ways()) {
            EXPECT_EQ(plain, work.Pixels(way));
        }
    }
}

TEST(Skew, of_a_source_of_any_depth_is_the_same_in_every_way) {
    SkewDice dice(8);
    for (const std::uint32_t depth : {0u, 2u, 3u, 5u, 31u, 33u, 48u, 64u, 65535u}) {
        const SkewCase shape{40, 30, 32, 10, 9, 9};
        SkewWork work(shape, dice.Block(shape));
        work.task.source.depth = depth;
        const std::string plain = work.Pixels(SkewWay::plain);
        for (const SkewWay way : own_ways()) {
            EXPECT_EQ(plain, work.Pixels(way)) << depth;
        }
    }
}

// As the header of no bits per pixel makes it.
TEST(Skew, of_a_source_whose_rows_have_no_bytes_is_the_same_in_every_way) {
    const SkewCase shape{40, 30, 32, 10, 9, 9};
    SkewDice dice(11);
    SkewWork work(shape, dice.Block(shape));
    work.task.source.depth = 0;
    work.task.source.stride = 0;
    const std::string plain = work.Pixels(SkewWay::plain);
    for (const SkewWay way : own_ways()) {
        EXPECT_EQ(plain, work.Pixels(way));
    }
}

TEST(Skew, of_a_source_without_bytes_shows_black_and_the_background) {
    const SkewCase skewed{20, 20, 24, 10, 30, 30};
    SkewDice dice(9);
    const std::string block = dice.Block(skewed).substr(0, 40);
    for (const SkewWay way : own_ways()) {
        EXPECT_TRUE(lvx_test::skews_as_told(skewed, block, way));
    }
}

TEST(Skew, writes_no_further_than_there_is_room) {
    SkewDice dice(10);
    const SkewCase skewed{50, 30, 24, 5, -9, -9};
    SkewWork work(skewed, dice.Block(skewed));
    const std::string whole = work.Pixels(SkewWay::plain);
    for (const SkewWay way : own_ways()) {
        for (const std::size_t room :
             {std::size_t{0}, std::size_t{1}, whole.size() / 2 + 3, whole.size() - 1}) {
            std::vector<unsigned char> pixels(room);
            work.task.pixels = pixels.data();
            work.task.room = room;
            lvx::images::skew(work.task, way);
            EXPECT_EQ(whole.substr(0, room), std::string(pixels.begin(), pixels.end()));
        }
    }
}

}  // namespace
