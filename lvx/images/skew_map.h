// lvx/images/skew_map.h
//
// Where in the old picture a point of a skewed one is taken from. The way goes in two stages, each a division
// by something that depends on the place: first y, then x by the y that came out.
//
// Pictures have to come out the same on every machine, to the last bit. So each operation is a rounded double
// of its own, in this order, and the sources that use this are compiled without joining multiplications and
// additions.
#pragma once

#include <array>
#include <cmath>

#include "lvx/images/skew_frame.h"

namespace lvx::images {

/// A place in the old picture, in the new one's coordinates. Its pixel is that of the whole parts, rounded
/// toward 0.
struct SkewPlace {
    double x;
    double y;
};

class SkewMap {
public:
    /// A stage divides by `slope` p + 1 - `zero` `slope`, where p is x for the first and y for the second.
    struct Stage {
        double slope;
        double zero;
        double lever;
    };

    /// What is the same for all points above each other.
    struct Column {
        double x;
        double divisor;
        double sum;
    };

    /// Requires: corners from place_skew(). Throws std::runtime_error "Divide by zero (1)" or "Divide by zero
    /// (2)" if they cannot be mapped, as those of a picture without pixels.
    explicit SkewMap(const std::array<SkewPoint, 4>& corners);

    Column At(double x) const {
        return {x, m_first.slope * x + 1 - m_first.zero * m_first.slope, m_first.lever * m_first.slope * x};
    }

    /// Never a NaN. Where a divisor is next to 0, the point itself.
    SkewPlace Map(const Column& column, double y) const {
        if (IsZero(column.divisor)) {
            return {column.x, y};
        }
        const double new_y = (column.sum + y - m_first.lever * m_first.slope * m_first.zero) / column.divisor;
        const double divisor = m_second.slope * new_y + 1 - m_second.zero * m_second.slope;
        if (IsZero(divisor)) {
            return {column.x, y};
        }
        const double new_x = (new_y * m_second.slope * m_second.lever + column.x -
                              m_second.lever * m_second.slope * m_second.zero) /
                             divisor;
        return {new_x + 0.5, new_y + 0.5};
    }

    /// y' = (lever slope x + y - lever slope zero) / divisor
    const Stage& First() const { return m_first; }
    /// x' = (y' slope lever + x - lever slope zero) / divisor; then a half is added to x' and to y'.
    const Stage& Second() const { return m_second; }

    static bool IsZero(double number) { return std::fabs(number) < 0.00001; }

private:
    Stage m_first;
    Stage m_second;
};

}  // namespace lvx::images
