// lvx/images/skew_approximation.h
//
// The map of a skewed picture in floats, and how far from the doubles they can be at most (docs/skew.md
// proves it). Where a float is farther than that from a whole number, it tells which pixel the double is on.
//
// Floats have few digits, so they count from a pixel of the source near those that are seen in the part.
#pragma once

#include <cstdint>

#include "lvx/images/skew_pixel.h"
#include "lvx/images/skew_task.h"

namespace lvx::images {

/// For a point of a part, `x` and `y` counted from the part's first pixel:
///     y' = y_start + y y_factor
///     x' = (x_start + x + y' lever) / (divisor_start + y' divisor_slope)
/// which count from the source's pixel (base_x, base_y).
struct SkewApproximation {
    using Columns = float[skew_samples][SkewPart::most_width];

    /// By sample and column; behind the part's last column that one is repeated.
    Columns y_start;
    Columns y_factor;
    /// By sample, whose place in the pixel is in it.
    float x_start[skew_samples];
    float lever;
    float divisor_start;
    float divisor_slope;
    std::int32_t base_x;
    std::int32_t base_y;

    /// A float that is no nearer than this to a whole number can be relied on.
    float guard;
    /// A place beyond these limits is surely outside of the source. One within them is in the source, or so
    /// near that it cannot be relied on, or just before the first pixel and counts as that.
    float low_x;
    float high_x;
    float low_y;
    float high_y;
    /// Behind the source's last pixel, and behind its last row of which all words end within the block.
    float width;
    float whole_rows;
};

/// What of the source is seen in a part.
enum class SkewView { nothing, something, unknown };

/// Makes the approximations for the parts of one picture.
class SkewApproximator {
public:
    /// Keeps `task`, which has to live as long.
    explicit SkewApproximator(const SkewTask& task);

    /// From now on the parts have the columns of `part`, whatever its rows.
    void SetColumns(const SkewPart& part);

    /// Fills `out` for a part if the result is `something`. It is `unknown` where floats are of no use: where
    /// the map turns over or nearly does.
    SkewView Approximate(const SkewPart& part, SkewApproximation& out) const;

private:
    using Columns = double[skew_samples][SkewPart::most_width];
    struct Reach;

    bool FindReach(const SkewPart& part, Reach& reach) const;
    double NewX(double x, double new_y) const;
    double Divisor(double new_y) const;
    void FillColumns(const SkewPart& part, const Reach& reach, SkewApproximation& out) const;
    void FillNumbers(const SkewPart& part, const Reach& reach, SkewApproximation& out) const;
    double ErrorOfY(const Reach& reach) const;
    double ErrorOfX(const Reach& reach, const SkewApproximation& out) const;
    void FillLimits(const Reach& reach, double error, SkewApproximation& out) const;

    const SkewTask& m_task;
    const SkewMap::Stage& m_first;
    const SkewMap::Stage& m_second;
    /// What is added to a coordinate of the new picture, behind the map, for one of the source.
    double m_shift_x;
    double m_shift_y;
    /// The numbers of the approximation for a base of (0, 0) and the picture's first column.
    double m_x_start;
    double m_lever;
    double m_divisor_start;
    double m_whole_rows;

    /// As in the approximation, with all rows of the picture.
    Columns m_y_start;
    Columns m_y_factor;
    double m_largest_factor = 0;
    bool m_turns_over = true;
};

/// How much of some columns of a part is taken from the source.
enum class SkewCover { none, some, all };

/// For the columns from `begin` to `end` of a part of `height` rows, neither empty. Where it is hard to tell:
/// some.
SkewCover cover_of(const SkewApproximation& approximation, int begin, int end, int height);

}  // namespace lvx::images
