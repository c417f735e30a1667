#include "lvx/images/skew_task.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "images/skew_pictures.h"

namespace {

using lvx::images::pixel_of;
using lvx::images::SkewPart;
using lvx::images::SkewTask;
using lvx::images::SkewWord;
using lvx_test::SkewCase;
using lvx_test::SkewWork;

TEST(SkewedPixel, is_that_of_the_whole_part) {
    EXPECT_EQ(0, pixel_of(0.0, 0, 3));
    EXPECT_EQ(0, pixel_of(0.999, 0, 3));
    EXPECT_EQ(2, pixel_of(2.0, 0, 3));
    EXPECT_EQ(2, pixel_of(std::nextafter(3.0, 0.0), 0, 3));
    EXPECT_EQ(-1, pixel_of(3.0, 0, 3));
}

TEST(SkewedPixel, just_below_0_is_the_first_one_in_a_picture_that_lies_there) {
    EXPECT_EQ(0, pixel_of(-0.001, 0, 3));
    EXPECT_EQ(0, pixel_of(std::nextafter(-1.0, 0.0), 0, 3));
    EXPECT_EQ(-1, pixel_of(-1.0, 0, 3));
    // The whole part is rounded before the origin is taken off.
    EXPECT_EQ(-1, pixel_of(4.999, 5, 3));
    EXPECT_EQ(0, pixel_of(5.0, 5, 3));
    EXPECT_EQ(-1, pixel_of(-0.5, 5, 3));
}

TEST(SkewedPixel, of_a_place_beyond_all_numbers_is_none) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double place : {infinity, -infinity, std::nan(""), 1e300, -1e300, 1e10, 3e9, 4294967296.0}) {
        EXPECT_EQ(-1, pixel_of(place, 0, 2147483647)) << place;
        EXPECT_EQ(-1, pixel_of(place, 0, 1)) << place;
    }
    EXPECT_EQ(2147483646, pixel_of(2147483646.5, 0, 2147483647));
}

const SkewCase two_by_two{.width = 2, .height = 2, .depth = 32};

std::string letters(const char* text) {
    return two_by_two.Header() + text;
}

TEST(SkewedWord, is_the_background_beyond_each_edge) {
    const SkewWork work(two_by_two, letters("aaaabbbbccccdddd"), 0x2E2E2E2E);
    const auto word = [&](double x, double y) {
        return static_cast<char>(lvx::images::skewed_word(work.task, work.task.map.At(x), y));
    };
    EXPECT_EQ('a', word(0.25, 0.25));
    EXPECT_EQ('b', word(0.75, 0.25));
    EXPECT_EQ('c', word(0.25, 0.75));
    EXPECT_EQ('d', word(1.25, 1.25));
    EXPECT_EQ('.', word(1.75, 1.25));
    EXPECT_EQ('.', word(1.25, 1.75));
    EXPECT_EQ('a', word(-1.25, -1.25));
    EXPECT_EQ('.', word(-1.75, 0.25));
    EXPECT_EQ('.', word(0.25, -1.75));
}

TEST(SkewedPixel, is_mixed_of_its_four_samples) {
    const SkewWork work(two_by_two, letters("\4\4\4\4\x8\x8\x8\x8\x10\x10\x10\x10\x20\x20\x20\x20"), 0);
    EXPECT_EQ(0x0F0F0F0Fu, lvx::images::skewed_pixel(work.task, 0, 0));
    EXPECT_EQ(0x0A0A0A0Au, lvx::images::skewed_pixel(work.task, 1, 0));
    EXPECT_EQ(0x0C0C0C0Cu, lvx::images::skewed_pixel(work.task, 0, 1));
    EXPECT_EQ(0x08080808u, lvx::images::skewed_pixel(work.task, 1, 1));
}

class Storing : public testing::Test {
protected:
    // What is stored of a picture of 3 by 2 if there is room for so many bytes.
    std::string Stored(std::size_t room, int x, int y, int width) {
        const SkewWord row[3] = {0x64636261, 0x68676665, 0x6C6B6A69};
        SkewWork work({.width = 3, .height = 2, .depth = 32}, std::string(64, '\0'));
        std::string pixels(24, '.');
        work.task.pixels = reinterpret_cast<unsigned char*>(pixels.data());
        work.task.room = room;
        lvx::images::store_skewed(work.task, x, y, row, width);
        return pixels;
    }
};

TEST_F(Storing, writes_words_little_endian_where_they_belong) {
    EXPECT_EQ("abcdefghijkl............", Stored(24, 0, 0, 3));
    EXPECT_EQ("................abcdefgh", Stored(24, 1, 1, 2));
}

TEST_F(Storing, stops_where_there_is_no_more_room) {
    EXPECT_EQ("abcdefghij..............", Stored(10, 0, 0, 3));
    EXPECT_EQ("abcdefgh................", Stored(8, 0, 0, 3));
    EXPECT_EQ("................a.......", Stored(17, 1, 1, 2));
    EXPECT_EQ("........................", Stored(16, 1, 1, 2));
    EXPECT_EQ("........................", Stored(0, 0, 0, 3));
}

TEST(SkewingNothing, fills_the_part_with_the_mean_of_backgrounds) {
    SkewWork work({.width = 3, .height = 3, .depth = 32}, std::string(76, '\0'));
    work.task.nothing = 0x2D2D2D2D;
    std::string pixels(36, '.');
    work.task.pixels = reinterpret_cast<unsigned char*>(pixels.data());
    work.task.room = 34;
    lvx::images::skew_nothing(work.task, {1, 1, 2, 2});
    EXPECT_EQ("................--------....------..", pixels);
}

}  // namespace
