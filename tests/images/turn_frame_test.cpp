#include "lvx/images/turn_frame.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace {

using lvx::images::turn_frame;
using lvx::images::TurnFrame;

const double pi = std::acos(-1.0);

// "width,height dx,dy".
std::string told(const TurnFrame& frame) {
    const auto number = [](auto value) { return std::to_string(static_cast<long long>(value)); };
    return number(frame.width) + "," + number(frame.height) + " " + number(frame.dx) + "," + number(frame.dy);
}

TEST(TurnFrame, of_no_turn_is_the_picture) {
    EXPECT_EQ("100,50 0,0", told(turn_frame(100, 50, 0)));
    EXPECT_EQ("100,50 0,0", told(turn_frame(100, 50, -0.0)));
}

// The cosine of a quarter turn is not exactly 0, and its corner is cut to 0 all the same.
TEST(TurnFrame, of_quarter_turns_exchanges_the_sides) {
    EXPECT_EQ("50,100 0,100", told(turn_frame(100, 50, pi / 2)));
    EXPECT_EQ("100,50 100,50", told(turn_frame(100, 50, pi)));
    EXPECT_EQ("50,100 50,0", told(turn_frame(100, 50, -pi / 2)));
    EXPECT_EQ("50,100 50,0", told(turn_frame(100, 50, 3 * pi / 2)));
}

// With 3, 4 and 5: cosine 0.8, sine 0.6. Corners (0,0), (30,40), (110,-20), (80,-60).
TEST(TurnFrame, holds_the_turned_corners) {
    const double angle = std::atan2(0.6, 0.8);
    const TurnFrame frame = turn_frame(100, 50, angle);
    EXPECT_NEAR(110, static_cast<double>(frame.width), 1);
    EXPECT_NEAR(100, static_cast<double>(frame.height), 1);
    EXPECT_NEAR(60, frame.dy, 1);
    EXPECT_EQ(0.0F, frame.dx);
    EXPECT_FLOAT_EQ(0.8F, frame.cosine);
    EXPECT_FLOAT_EQ(0.6F, frame.sine);
}

// 7 by 5 at one radian: cosine 0.5403, sine 0.8415. Corners x: 4.2, 7.99, 3.78; y: 2.70, -3.19, -5.89. Cut
// toward 0 they are 0 to 7 and -5 to 2.
TEST(TurnFrame, cuts_each_corner_toward_0) {
    EXPECT_EQ("7,7 0,5", told(turn_frame(7, 5, 1)));
    // The other way: x 4.2 and 3.78 against -4.2: -4.2, -0.43, 3.78; y: 2.70, 8.59, 5.89.
    EXPECT_EQ("7,8 4,0", told(turn_frame(7, 5, -1)));
}

TEST(TurnFrame, of_a_pixel_can_be_empty) {
    // x: 0.7, 1.4, 0.7; y: 0.7, 0, -0.7.
    EXPECT_EQ("1,0 0,0", told(turn_frame(1, 1, pi / 4)));
    EXPECT_EQ("0,0 0,0", told(turn_frame(0, 0, 1)));
}

TEST(TurnFrame, of_an_angle_without_a_sine_is_empty) {
    for (const double angle :
         {std::nan(""), std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ("0,0 0,0", told(turn_frame(100, 50, angle)));
    }
}

TEST(TurnFrame, does_not_wrap_at_the_largest_numbers) {
    constexpr std::int64_t most = std::int64_t{1} << 31;
    EXPECT_EQ(most, turn_frame(most, most, 0).width);
    EXPECT_GT(turn_frame(most, most, pi / 4).width, most);
    EXPECT_EQ(1, turn_frame(1, 1, 1e300).width + turn_frame(1, 1, 1e300).height);
}

}  // namespace
