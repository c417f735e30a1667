#include "lvx/images/skew_frame.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "support/expect_throw.h"

namespace {

using lvx::images::place_skew;
using lvx::images::SkewFrame;
using LVXUtilities::Rectangles::Corner;

// "size origin: corner corner corner corner".
std::string told(const SkewFrame& frame) {
    const auto point = [](std::int64_t x, std::int64_t y) {
        return std::to_string(x) + "," + std::to_string(y);
    };
    std::string text = point(frame.width, frame.height) + " " + point(frame.origin.x, frame.origin.y) + ":";
    for (const auto& corner : frame.corners) {
        text += " " + point(corner.x, corner.y);
    }
    return text;
}

std::string placed(Corner corner, int dx, int dy) {
    return told(place_skew(100, 50, corner, dx, dy));
}

using namespace LVXUtilities::Rectangles;

TEST(Corners, have_the_numbers_that_hosts_pass) {
    EXPECT_EQ(5, TopLeft);
    EXPECT_EQ(6, BottomLeft);
    EXPECT_EQ(9, TopRight);
    EXPECT_EQ(10, BottomRight);
}

TEST(SkewFrame, of_a_corner_that_stays_is_the_picture_going_round_to_it) {
    EXPECT_EQ("100,50 0,0: 0,50 100,50 100,0 0,0", placed(TopLeft, 0, 0));
    EXPECT_EQ("100,50 0,0: 100,50 100,0 0,0 0,50", placed(BottomLeft, 0, 0));
    EXPECT_EQ("100,50 0,0: 0,0 0,50 100,50 100,0", placed(TopRight, 0, 0));
    EXPECT_EQ("100,50 0,0: 100,0 0,0 0,50 100,50", placed(BottomRight, 0, 0));
}

TEST(SkewFrame, grows_by_what_a_corner_is_dragged_out) {
    EXPECT_EQ("110,57 10,7: 10,57 110,57 110,7 0,0", placed(TopLeft, -10, -7));
    EXPECT_EQ("110,57 10,0: 110,50 110,0 10,0 0,57", placed(BottomLeft, -10, 7));
    EXPECT_EQ("110,57 0,7: 0,7 0,57 100,57 110,0", placed(TopRight, 10, -7));
    EXPECT_EQ("110,57 0,0: 100,0 0,0 0,50 110,57", placed(BottomRight, 10, 7));
}

TEST(SkewFrame, stays_as_it_is_when_a_corner_is_dragged_in) {
    EXPECT_EQ("100,50 0,0: 0,50 100,50 100,0 10,7", placed(TopLeft, 10, 7));
    EXPECT_EQ("100,50 0,0: 100,50 100,0 0,0 10,43", placed(BottomLeft, 10, -7));
    EXPECT_EQ("100,50 0,0: 0,0 0,50 100,50 90,7", placed(TopRight, -10, 7));
    EXPECT_EQ("100,50 0,0: 100,0 0,0 0,50 90,43", placed(BottomRight, -10, -7));
}

TEST(SkewFrame, does_not_shrink_when_a_corner_is_dragged_across_the_picture) {
    EXPECT_EQ("100,50 0,0: 0,50 100,50 100,0 300,80", placed(TopLeft, 300, 80));
    EXPECT_EQ("100,50 0,0: 100,0 0,0 0,50 -200,-30", placed(BottomRight, -300, -80));
}

TEST(SkewFrame, has_each_direction_by_itself) {
    EXPECT_EQ("110,50 10,0: 10,50 110,50 110,0 0,7", placed(TopLeft, -10, 7));
    EXPECT_EQ("100,57 0,7: 0,57 100,57 100,7 10,0", placed(TopLeft, 10, -7));
}

TEST(SkewFrame, of_no_corner_is_refused) {
    for (const int number : {0, 1, 2, 3, 4, 7, 8, 11, 12, 13, 14, 15, -1, -5, 5 + 16}) {
        EXPECT_THROW_TEXT(placed(static_cast<Corner>(number), 1, 1), std::runtime_error, "Invalid corner")
            << number;
    }
}

TEST(SkewFrame, does_not_wrap_at_the_largest_numbers) {
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    EXPECT_EQ("4294967294,50 0,0: 2147483647,0 0,0 0,50 4294967294,50",
              told(place_skew(most, 50, BottomRight, most, 0)));
    EXPECT_EQ("4294967296,50 2147483648,0: 2147483648,50 4294967296,50 4294967296,0 0,0",
              told(place_skew(std::int64_t{1} << 31, 50, TopLeft, least, 0)));
    EXPECT_EQ("100,50 0,0: 100,0 0,0 0,50 -2147483548,-2147483598",
              told(place_skew(100, 50, BottomRight, least, least)));
}

}  // namespace
