#include "lvx/images/skew_approximation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "images/skew_pictures.h"

namespace {

using lvx::images::SkewApproximation;
using lvx::images::SkewApproximator;
using lvx::images::SkewCover;
using lvx::images::SkewPart;
using lvx::images::SkewPlace;
using lvx::images::SkewTask;
using lvx::images::SkewView;
using lvx_test::SkewCase;
using lvx_test::SkewDice;
using lvx_test::SkewWork;

// A picture without memory for its pixels: only the map is looked at.
std::unique_ptr<SkewWork> work_of(const SkewCase& skewed) {
    auto work = std::make_unique<SkewWork>(skewed, std::string(skewed.PixelsAt(), '\0'));
    work->task.source.size = skewed.Stride() * static_cast<std::size_t>(skewed.height);
    return work;
}

// In coordinates of the source.
SkewPlace by_doubles(const SkewTask& task, int sample, int x, int y) {
    const SkewPlace place = task.map.Map(task.map.At(x + lvx::images::skew_sample_x[sample]),
                                         y + lvx::images::skew_sample_y[sample]);
    return {place.x - static_cast<double>(task.origin.x), place.y - static_cast<double>(task.origin.y)};
}

// `i` and `j` count from the part's first pixel. With `joined` products and sums are rounded together, as
// some processors do.
SkewPlace by_floats(const SkewApproximation& map, int sample, int i, int j, bool joined) {
    const auto sum = [joined](float a, float b, float c) { return joined ? std::fma(a, b, c) : a * b + c; };
    const auto row = static_cast<float>(j + lvx::images::skew_sample_y[sample]);
    const float y = sum(row, map.y_factor[sample][i], map.y_start[sample][i]);
    const float divisor = sum(map.divisor_slope, y, map.divisor_start);
    const float x = sum(map.lever, y, map.x_start[sample] + static_cast<float>(i)) / divisor;
    return {double{x} + map.base_x, double{y} + map.base_y};
}

struct Extremes {
    double error = 0;
    double share = 0;
    double guard = 0;
    int parts = 0;
};

void compare_pixel(const SkewTask& task, const SkewPart& part, const SkewApproximation& map, int i, int j,
                   Extremes& extremes) {
    for (int sample = 0; sample < lvx::images::skew_samples; ++sample) {
        const SkewPlace exact = by_doubles(task, sample, part.x + i, part.y + j);
        for (const bool joined : {false, true}) {
            const SkewPlace found = by_floats(map, sample, i, j, joined);
            const double error = std::max(std::fabs(found.x - exact.x), std::fabs(found.y - exact.y));
            extremes.error = std::max(extremes.error, error);
            extremes.share = std::max(extremes.share, error / map.guard);
        }
    }
}

void compare_part(const SkewTask& task, const SkewPart& part, const SkewApproximator& approximator,
                  Extremes& extremes) {
    SkewApproximation map;
    if (approximator.Approximate(part, map) != SkewView::something) {
        return;
    }
    ++extremes.parts;
    extremes.guard = std::max(extremes.guard, static_cast<double>(map.guard));
    for (int j = 0; j < part.height; j += 3) {
        for (int i = 0; i < part.width; i += 7) {
            compare_pixel(task, part, map, i, j, extremes);
        }
        compare_pixel(task, part, map, part.width - 1, j, extremes);
    }
}

// Looks at parts here and there, `count` in each direction.
Extremes compare(const SkewTask& task, int count) {
    Extremes extremes;
    SkewApproximator approximator(task);
    for (int across = 0; across < count; ++across) {
        SkewPart part{};
        part.x = static_cast<int>(std::int64_t{task.width - 1} * across / count);
        part.width = std::min(SkewPart::most_width, task.width - part.x);
        approximator.SetColumns(part);
        for (int down = 0; down < count; ++down) {
            part.y = static_cast<int>(std::int64_t{task.height - 1} * down / count);
            part.height = std::min(SkewPart::most_height, task.height - part.y);
            compare_part(task, part, approximator, extremes);
        }
    }
    return extremes;
}

TEST(SkewApproximation, is_never_farther_from_the_doubles_than_its_guard) {
    SkewDice dice(1);
    int parts = 0;
    for (int i = 0; i < 400; ++i) {
        const SkewCase skewed = dice.Case(i % 2 == 0 ? 3000 : 60);
        try {
            const Extremes extremes = compare(work_of(skewed)->task, 7);
            EXPECT_LT(extremes.share, 1.0) << lvx_test::described(skewed);
            parts += extremes.parts;
        } catch (const std::runtime_error&) {
            continue;
        }
    }
    EXPECT_GT(parts, 4000);
}

TEST(SkewApproximation, is_never_farther_where_the_map_is_steep) {
    SkewDice dice(2);
    int parts = 0;
    for (int i = 0; i < 400; ++i) {
        SkewCase skewed{dice.Number(50, 2000), dice.Number(50, 2000), 24, dice.OneOf({5, 6, 9, 10})};
        const bool is_left = skewed.corner < 8;
        const bool is_top = skewed.corner % 4 == 1;
        // Nearly onto the edges that the corner does not touch.
        skewed.dx = (skewed.width - dice.Number(1, 40)) * (is_left ? 1 : -1);
        skewed.dy = (skewed.height - dice.Number(1, 40)) * (is_top ? 1 : -1);
        const Extremes extremes = compare(work_of(skewed)->task, 12);
        EXPECT_LT(extremes.share, 1.0) << lvx_test::described(skewed);
        parts += extremes.parts;
    }
    EXPECT_GT(parts, 1000);
}

TEST(SkewApproximation, is_never_farther_in_the_largest_pictures) {
    for (const SkewCase& skewed :
         {SkewCase{500'000'000, 1, 8, 10, 5, 100}, SkewCase{1, 500'000'000, 8, 10, 100, 5},
          SkewCase{20000, 20000, 8, 5, -1500, 900}, SkewCase{20000, 20000, 8, 10, -9000, 10000}}) {
        const Extremes extremes = compare(work_of(skewed)->task, 40);
        EXPECT_LT(extremes.share, 1.0) << lvx_test::described(skewed);
        EXPECT_GT(extremes.parts, 0) << lvx_test::described(skewed);
    }
}

// A guard that is too wide costs time: of 16 coordinates in each pixel twice that share is in doubt.
TEST(SkewApproximation, has_a_narrow_guard_whatever_the_size_of_the_picture) {
    for (const int size : {200, 2000, 20000}) {
        const SkewCase skewed{size, size, 24, 5, -size / 10, -size / 10};
        const Extremes extremes = compare(work_of(skewed)->task, 10);
        EXPECT_LT(extremes.guard, 0.0004) << size;
        EXPECT_GT(extremes.error, 0.000001) << size;
    }
}

SkewView view_of(const SkewCase& skewed, const SkewPart& part) {
    const auto work = work_of(skewed);
    SkewApproximator approximator(work->task);
    approximator.SetColumns(part);
    SkewApproximation map;
    return approximator.Approximate(part, map);
}

TEST(SkewApproximation, sees_nothing_where_the_picture_is_not) {
    const SkewCase skewed{500, 500, 24, 10, 400, 400};
    EXPECT_EQ(SkewView::something, view_of(skewed, {0, 0, 128, 16}));
    EXPECT_EQ(SkewView::nothing, view_of(skewed, {700, 0, 128, 16}));
    EXPECT_EQ(SkewView::nothing, view_of(skewed, {0, 880, 128, 16}));
    EXPECT_EQ(SkewView::something, view_of(skewed, {500, 600, 128, 16}));
}

TEST(SkewApproximation, is_of_no_use_where_the_map_turns_over) {
    // Dragged across the opposite edge: the second divisor vanishes where y' is 214.
    const SkewCase crossed{500, 400, 24, 10, -700, -100};
    EXPECT_EQ(SkewView::unknown, view_of(crossed, {0, 210, 128, 16}));
    EXPECT_EQ(SkewView::something, view_of(crossed, {0, 20, 128, 16}));
    // The first stage's divisor vanishes at column 250.
    const SkewCase steep{500, 400, 24, 5, 250, 399};
    const auto map = work_of(steep)->task.map.First();
    const double column = map.zero - 1 / map.slope;
    ASSERT_TRUE(column > 0 && column < 500) << column;
    EXPECT_EQ(SkewView::unknown, view_of(steep, {static_cast<int>(column) - 20, 0, 64, 16}));
}

class Cover : public testing::Test {
protected:
    // Of some columns of the part at (x, y).
    SkewCover Of(int x, int y, int begin, int end) {
        SkewApproximator approximator(m_work->task);
        const SkewPart part{x, y, 128, 16};
        approximator.SetColumns(part);
        SkewApproximation map;
        EXPECT_EQ(SkewView::something, approximator.Approximate(part, map));
        return lvx::images::cover_of(map, begin, end, part.height);
    }

    std::unique_ptr<SkewWork> m_work = work_of({500, 400, 24, 5, -100, -100});
};

TEST_F(Cover, is_all_inside_of_the_picture) {
    EXPECT_EQ(SkewCover::all, Of(300, 300, 0, 128));
    EXPECT_EQ(SkewCover::all, Of(300, 300, 32, 64));
}

TEST_F(Cover, is_none_outside) {
    // The upper edge falls by 1 in 6 from the dragged corner.
    EXPECT_EQ(SkewCover::some, Of(60, 0, 0, 32));
    EXPECT_EQ(SkewCover::none, Of(60, 0, 96, 128));
}

TEST_F(Cover, is_some_across_an_edge) {
    EXPECT_EQ(SkewCover::some, Of(50, 300, 0, 128));
    EXPECT_EQ(SkewCover::some, Of(300, 484, 0, 128));
    EXPECT_EQ(SkewCover::some, Of(472, 300, 100, 128));
}

// The last row's last word reaches behind the block, and a word that is not there is read one by one.
TEST_F(Cover, is_not_all_where_words_reach_behind_the_end_of_the_block) {
    const SkewPart part{300, 300, 128, 16};
    m_work->task.source.size -= static_cast<std::size_t>(m_work->task.source.stride * 210);
    EXPECT_EQ(SkewCover::some, Of(part.x, part.y, 0, 32));
    m_work->task.source.size = 3;
    EXPECT_EQ(SkewCover::some, Of(part.x, part.y, 0, 32));
}

}  // namespace
