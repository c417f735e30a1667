#include "owl/turned_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace {

using owl::TPictureTransform;
using owl::TPoint;
using owl::TRect;
using owl::TSize;
using owl::TTurnedPicture;

/// A picture whose rows are told by texts, upper first, as a letter for each pixel.
using Letters = std::vector<std::string>;

/// What is seen in `view`, with '.' where the picture does not reach.
Letters Seen(const Letters& picture, const TPictureTransform& transform, const TRect& view) {
    const TSize size(static_cast<int>(picture[0].size()), static_cast<int>(picture.size()));
    const TTurnedPicture turned(size, transform);
    Letters seen(static_cast<std::size_t>(view.Height()),
                 std::string(static_cast<std::size_t>(view.Width()), '.'));
    for (int y = view.top; y < view.bottom; ++y) {
        const TTurnedPicture::TRun run = turned.RunOf(y);
        for (int x = run.begin; x < run.end; ++x) {
            EXPECT_TRUE(view.Contains(TPoint(x, y))) << x << "," << y;
            const TPoint source = turned.SourceOf(x, y);
            seen[static_cast<std::size_t>(y - view.top)][static_cast<std::size_t>(x - view.left)] =
                picture[static_cast<std::size_t>(source.y)][static_cast<std::size_t>(source.x)];
        }
    }
    return seen;
}

TPictureTransform Turned(double angle, double dx = 0, double dy = 0) {
    return {std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), dx, dy};
}

const double pi = std::acos(-1.0);
const Letters abc = {"abc", "def"};

TEST(TurnedPicture, of_the_identity_is_the_picture) {
    EXPECT_EQ(abc, Seen(abc, {}, TRect(0, 0, 3, 2)));
    EXPECT_EQ(TRect(0, 0, 3, 2), TTurnedPicture(TSize(3, 2), {}).Bounds());
}

TEST(TurnedPicture, moves) {
    EXPECT_EQ((Letters{".....", "..abc", "..def"}), Seen(abc, {1, 0, 0, 1, 2, 1}, TRect(0, 0, 5, 3)));
    EXPECT_EQ(abc, Seen(abc, {1, 0, 0, 1, -7, -9}, TRect(-7, -9, -4, -7)));
}

// x' = -y, y' = x: the first row becomes the right column.
TEST(TurnedPicture, quarter_turns_lose_no_pixel) {
    EXPECT_EQ((Letters{"da", "eb", "fc"}), Seen(abc, Turned(pi / 2, 2, 0), TRect(0, 0, 2, 3)));
    EXPECT_EQ((Letters{"fed", "cba"}), Seen(abc, Turned(pi, 3, 2), TRect(0, 0, 3, 2)));
    EXPECT_EQ((Letters{"cf", "be", "ad"}), Seen(abc, Turned(-pi / 2, 0, 3), TRect(0, 0, 2, 3)));
}

// A transform is kept in numbers of 32 bits, whose quarter turn is not exact.
TEST(TurnedPicture, quarter_turns_lose_no_pixel_when_the_sine_is_slightly_wrong) {
    const float cosine = static_cast<float>(std::cos(pi / 2));
    EXPECT_NE(0.0f, cosine);
    EXPECT_EQ((Letters{"da", "eb", "fc"}), Seen(abc, {cosine, 1, -1, cosine, 2, 0}, TRect(0, 0, 2, 3)));
    EXPECT_EQ((Letters{"da", "eb", "fc"}), Seen(abc, {-1e-7, 1, -1, -1e-7, 2, 0}, TRect(0, 0, 2, 3)));
}

TEST(TurnedPicture, is_mirrored_by_a_negative_scale) {
    EXPECT_EQ((Letters{"cba", "fed"}), Seen(abc, {-1, 0, 0, 1, 3, 0}, TRect(0, 0, 3, 2)));
    EXPECT_EQ((Letters{"def", "abc"}), Seen(abc, {1, 0, 0, -1, 0, 2}, TRect(0, 0, 3, 2)));
    EXPECT_EQ((Letters{"ad", "be", "cf"}), Seen(abc, {0, 1, 1, 0, 0, 0}, TRect(0, 0, 2, 3)));
}

TEST(TurnedPicture, is_stretched_in_whole_pixels) {
    EXPECT_EQ((Letters{"aabbcc", "aabbcc", "aabbcc", "ddeeff", "ddeeff", "ddeeff"}),
              Seen(abc, {2, 0, 0, 3, 0, 0}, TRect(0, 0, 6, 6)));
    // Of a line of four each second pixel is left, that on which the middle falls.
    EXPECT_EQ((Letters{"bd"}), Seen({"abcd"}, {0.5, 0, 0, 1, 0, 0}, TRect(0, 0, 2, 1)));
}

TEST(TurnedPicture, is_sheared) {
    EXPECT_EQ((Letters{"abc..", ".def.", "..ghi"}),
              Seen({"abc", "def", "ghi"}, {1, 0, 1, 1, -0.5, 0}, TRect(0, 0, 5, 3)));
}

// By hand: a place is covered when its middle lies at (x, y) from the upper corner with |x| + |y - 2.1213|
// < 2.1213. The middles of the rows are at y = 0.75, 1.75, 2.75 and 3.75, which leaves |x| below
// 0.75, 1.75, 1.49 and 0.49.
TEST(TurnedPicture, by_45_degrees_becomes_a_diamond) {
    const Letters square = {"aaa", "aaa", "aaa"};
    EXPECT_EQ((Letters{"..aa..", ".aaaa.", "..aa..", "......"}),
              Seen(square, Turned(pi / 4, 3, -0.25), TRect(0, 0, 6, 4)));
}

/// Whether a place is covered and what is seen there, worked out for it alone.
bool SeenAlone(const TSize& picture, double angle, double dx, double dy, int x, int y, TPoint& source) {
    const double px = x + 0.5 - dx;
    const double py = y + 0.5 - dy;
    const double u = px * std::cos(angle) + py * std::sin(angle);
    const double v = py * std::cos(angle) - px * std::sin(angle);
    source = TPoint(static_cast<int>(std::floor(u)), static_cast<int>(std::floor(v)));
    return u >= 0 && v >= 0 && u < picture.cx && v < picture.cy;
}

TEST(TurnedPicture, agrees_at_every_place_with_the_rule_for_one_place) {
    const TSize picture(37, 23);
    for (int degrees = 7; degrees < 360; degrees += 30) {
        const double angle = degrees * pi / 180;
        const TTurnedPicture turned(picture, Turned(angle, 3.3, -8.8));
        int covered = 0;
        for (int y = -60; y < 60; ++y) {
            const TTurnedPicture::TRun run = turned.RunOf(y);
            for (int x = -60; x < 60; ++x) {
                TPoint source;
                const bool expected = SeenAlone(picture, angle, 3.3, -8.8, x, y, source);
                ASSERT_EQ(expected, x >= run.begin && x < run.end) << degrees << " " << x << "," << y;
                if (!expected)
                    continue;
                ASSERT_EQ(source, turned.SourceOf(x, y)) << degrees << " " << x << "," << y;
                EXPECT_TRUE(turned.Bounds().Contains(TPoint(x, y)));
                ++covered;
            }
        }
        // A turn keeps the area, but for the places on the border.
        EXPECT_NEAR(37 * 23, covered, 37 + 23);
    }
}

TEST(TurnedPicture, copies_the_pixels_of_a_run) {
    const std::uint32_t pixels[] = {1, 2, 3, 99, 4, 5, 6, 99};
    const TTurnedPicture turned(TSize(3, 2), Turned(pi / 2, 2, 0));
    std::uint32_t row[2] = {};
    turned.CopyRun(pixels, 4, 1, turned.RunOf(1), row);
    EXPECT_EQ(5u, row[0]);
    EXPECT_EQ(2u, row[1]);
}

TEST(TurnedPicture, copies_of_long_runs_the_pixel_that_is_seen_at_each_place) {
    constexpr int width = 300;
    constexpr int height = 200;
    std::vector<std::uint32_t> pixels(width * height);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = static_cast<std::uint32_t>(i);
    for (const double angle : {0.0, 0.3, 1.0, pi / 2, 2.0, pi, 4.5}) {
        const TTurnedPicture turned(TSize(width, height), Turned(angle, 0.3, -0.7));
        int longest = 0;
        for (int y = turned.Bounds().top; y < turned.Bounds().bottom; ++y) {
            const TTurnedPicture::TRun run = turned.RunOf(y);
            std::vector<std::uint32_t> row(static_cast<std::size_t>(run.end - run.begin));
            turned.CopyRun(pixels.data(), width, y, run, row.data());
            for (int x = run.begin; x < run.end; ++x) {
                const TPoint source = turned.SourceOf(x, y);
                ASSERT_EQ(static_cast<std::uint32_t>(source.y * width + source.x),
                          row[static_cast<std::size_t>(x - run.begin)])
                    << angle << " at " << x << "," << y;
            }
            longest = std::max(longest, run.end - run.begin);
        }
        EXPECT_GT(longest, 190);
    }
}

TEST(TurnedPicture, covers_nothing_without_pixels_or_when_it_becomes_a_line) {
    const double infinite = std::numeric_limits<double>::infinity();
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const struct {
        TSize picture;
        TPictureTransform transform;
    } cases[] = {
        {TSize(0, 2), {}},
        {TSize(2, 0), {}},
        {TSize(-2, 2), {}},
        {TSize(2, 2), {0, 0, 0, 0, 0, 0}},
        {TSize(2, 2), {1, 2, 2, 4, 0, 0}},
        {TSize(2, 2), {infinite, 0, 0, 1, 0, 0}},
        {TSize(2, 2), {1, 0, 0, 1, notANumber, 0}},
        {TSize(2, 2), {1, 0, 0, 1, 0, infinite}},
    };
    for (const auto& one : cases) {
        const TTurnedPicture turned(one.picture, one.transform);
        EXPECT_TRUE(turned.Bounds().IsEmpty());
        EXPECT_EQ(turned.RunOf(0).begin, turned.RunOf(0).end);
        EXPECT_EQ(TPoint(), turned.SourceOf(5, 5));
    }
}

TEST(TurnedPicture, has_no_places_outside_its_bounds) {
    const TTurnedPicture turned(TSize(3, 2), {});
    for (const int y : {-1, 2, -2147483647 - 1, 2147483647})
        EXPECT_EQ(turned.RunOf(y).begin, turned.RunOf(y).end) << y;
}

TEST(TurnedPicture, takes_the_nearest_pixel_for_a_place_that_it_does_not_cover) {
    const TTurnedPicture turned(TSize(3, 2), {});
    EXPECT_EQ(TPoint(0, 0), turned.SourceOf(-100, -1));
    EXPECT_EQ(TPoint(2, 1), turned.SourceOf(2147483647, 2147483647));
}

TEST(TurnedPicture, leaves_out_what_is_too_far_away_to_count) {
    const TTurnedPicture turned(TSize(10, 10), {1e12, 0, 0, 1e12, -5e12, -5e12});
    EXPECT_EQ(TRect(-(1 << 29), -(1 << 29), 1 << 29, 1 << 29), turned.Bounds());
    const TTurnedPicture::TRun run = turned.RunOf(0);
    EXPECT_EQ(-(1 << 29), run.begin);
    EXPECT_EQ(1 << 29, run.end);
    EXPECT_EQ(TPoint(5, 5), turned.SourceOf(0, 0));
}

// The places of a chequered picture of 12 by 8, of which each pixel is asked for alone, by their pixel.
TEST(TurnedPicture, parts_that_fill_it_share_no_place_and_leave_none_out) {
    const TPictureTransform transforms[] = {Turned(0.6, 3, 2),
                                            Turned(pi / 4, 0, 0),
                                            {0.5, 0, 0, 0.5, 0, 0},
                                            {-1.5, 0.25, 0.5, 2, 1, 1},
                                            {0.6, 0.8, -0.8, 0.6, 0, 0}};
    for (const TPictureTransform& transform : transforms) {
        const TTurnedPicture turned(TSize(12, 8), transform);
        for (int y = turned.Bounds().top; y < turned.Bounds().bottom; ++y) {
            const TTurnedPicture::TRun all = turned.RunOf(y);
            std::vector<int> times(static_cast<std::size_t>(all.end - all.begin));
            for (int part = 0; part < 12 * 8; ++part) {
                const TPoint pixel(part % 12, part / 12);
                const TTurnedPicture::TRun run = turned.RunOf(y, TRect(pixel, TSize(1, 1)));
                for (int x = run.begin; x < run.end; ++x) {
                    EXPECT_EQ(pixel, turned.SourceOf(x, y));
                    ++times.at(static_cast<std::size_t>(x - all.begin));
                }
            }
            EXPECT_EQ(std::vector<int>(times.size(), 1), times) << y;
        }
    }
}

TEST(TurnedPicture, a_part_that_reaches_beyond_it_is_cut_off) {
    const TTurnedPicture turned(TSize(3, 2), {});
    EXPECT_EQ(1, turned.RunOf(0, TRect(1, -5, 99, 5)).begin);
    EXPECT_EQ(3, turned.RunOf(0, TRect(1, -5, 99, 5)).end);
    for (const TRect& part : {TRect(), TRect(3, 0, 9, 2), TRect(2, 1, 1, 0), TRect(0, 1, 3, 2)})
        EXPECT_EQ(turned.RunOf(0, part).begin, turned.RunOf(0, part).end);
}

// Printers show some of the places about a picture.
TEST(TurnedPicture, copies_the_nearest_pixels_to_places_that_it_does_not_cover) {
    std::vector<std::uint32_t> picture(12 * 8);
    for (std::uint32_t i = 0; i < picture.size(); ++i)
        picture[i] = i;
    const TTurnedPicture turned(TSize(12, 8), Turned(0.6, 3, 2));
    for (int y = turned.Bounds().top - 1; y <= turned.Bounds().bottom; ++y) {
        std::vector<std::uint32_t> row(40, 999);
        turned.CopyRun(picture.data(), 12, y, {-20, 20}, row.data());
        for (int x = -20; x < 20; ++x) {
            const TPoint source = turned.SourceOf(x, y);
            ASSERT_EQ(static_cast<std::uint32_t>(source.y * 12 + source.x),
                      row[static_cast<std::size_t>(x + 20)]);
        }
    }
}

}  // namespace
