#include "lvx/images/skew_approximation.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lvx::images {
namespace {

// How much rounding changes a number at most, as a share of it.
constexpr double float_unit = 0x1p-24;
// Likewise for doubles, times more operations than follow each other anywhere.
constexpr double double_unit = 64 * 0x1p-53;

// With a larger one too many pixels would be reckoned twice.
constexpr double worst_guard = 1.0 / 16;
// The divisors are 1 along one edge of the source. Where they come near 0 nothing is bounded.
constexpr double least_divisor = 1.0 / 256;

// The samples that are the farthest to the left and to the right.
constexpr int leftmost = 0;
constexpr int rightmost = 2;

class Range {
public:
    void Include(double number) {
        m_low = std::min(m_low, number);
        m_high = std::max(m_high, number);
    }
    void Widen(double by) {
        m_low -= by;
        m_high += by;
    }
    double Low() const { return m_low; }
    double High() const { return m_high; }
    double Magnitude() const { return std::max(std::fabs(m_low), std::fabs(m_high)); }

private:
    double m_low = std::numeric_limits<double>::infinity();
    double m_high = -std::numeric_limits<double>::infinity();
};

// A float that is not below `number`.
float rounded_up(double number) {
    const auto nearest = static_cast<float>(number);
    return nearest < number ? std::nextafter(nearest, std::numeric_limits<float>::infinity()) : nearest;
}

// A row's last word reaches behind its last pixel.
double whole_rows_of(const SkewSource& source) {
    const std::uint64_t row = static_cast<std::uint64_t>(source.width - 1) * source.depth / 8 + 4;
    if (source.size < row) {
        return 0;
    }
    const std::uint64_t rows = (source.size - row) / source.stride + 1;
    return static_cast<double>(std::min(rows, static_cast<std::uint64_t>(source.height)));
}

bool touches(const Range& places, std::int64_t count) {
    return places.High() > -1 && places.Low() < static_cast<double>(count);
}

}  // namespace

// Where the pixels of a part are taken from, in coordinates of the source and with some room around.
struct SkewApproximator::Reach {
    Range x;
    Range y;
    double least_divisor;
    double base_x;
    double base_y;

    // The greatest of the coordinates, counted from the base.
    double FarX() const { return x.High() - base_x; }
    double FarY() const { return y.High() - base_y; }
};

SkewApproximator::SkewApproximator(const SkewTask& task)
    : m_task(task),
      m_first(task.map.First()),
      m_second(task.map.Second()),
      m_shift_x(0.5 - static_cast<double>(task.origin.x)),
      m_shift_y(0.5 - static_cast<double>(task.origin.y)),
      m_whole_rows(whole_rows_of(task.source)) {
    m_divisor_start = 1 - m_second.zero * m_second.slope - m_second.slope * m_shift_y;
    m_lever = m_second.slope * (m_second.lever + m_shift_x);
    m_x_start = m_shift_x * m_divisor_start - m_second.lever * m_second.slope * (m_second.zero + m_shift_y);
}

void SkewApproximator::SetColumns(const SkewPart& part) {
    Range divisors;
    for (int sample = 0; sample < skew_samples; ++sample) {
        for (int i = 0; i < SkewPart::most_width; ++i) {
            const int x = part.x + std::min(i, part.width - 1);
            const SkewMap::Column column = m_task.map.At(x + skew_sample_x[sample]);
            const double start = column.sum - m_first.lever * m_first.slope * m_first.zero;
            m_y_start[sample][i] = start / column.divisor + m_shift_y;
            m_y_factor[sample][i] = 1 / column.divisor;
            divisors.Include(column.divisor);
        }
    }
    m_turns_over = !(divisors.Low() >= least_divisor || divisors.High() <= -least_divisor);
    m_largest_factor = 1 / std::min(std::fabs(divisors.Low()), std::fabs(divisors.High()));
}

double SkewApproximator::Divisor(double new_y) const {
    return m_divisor_start + new_y * m_second.slope;
}

double SkewApproximator::NewX(double x, double new_y) const {
    return (m_x_start + x + new_y * m_lever) / Divisor(new_y);
}

// Along a row and along a column y' only grows or only falls; x' does so along a row with the same y', and
// with y' at the same x. So their limits are those of the corners.
bool SkewApproximator::FindReach(const SkewPart& part, Reach& reach) const {
    const int last = part.width - 1;
    for (const double row : {part.y, part.y + part.height}) {
        reach.y.Include(m_y_start[leftmost][0] + row * m_y_factor[leftmost][0]);
        reach.y.Include(m_y_start[rightmost][last] + row * m_y_factor[rightmost][last]);
    }
    reach.y.Widen(1);
    reach.least_divisor = std::min(Divisor(reach.y.Low()), Divisor(reach.y.High()));
    if (!(reach.least_divisor >= least_divisor)) {
        return false;
    }
    for (const double new_y : {reach.y.Low(), reach.y.High()}) {
        reach.x.Include(NewX(part.x, new_y));
        reach.x.Include(NewX(part.x + part.width, new_y));
    }
    reach.x.Widen(1);
    reach.base_x = std::floor(reach.x.Low());
    reach.base_y = std::floor(reach.y.Low());
    return true;
}

SkewView SkewApproximator::Approximate(const SkewPart& part, SkewApproximation& out) const {
    Reach reach{};
    if (m_turns_over || !FindReach(part, reach)) {
        return SkewView::unknown;
    }
    FillNumbers(part, reach, out);
    const double error = std::max(ErrorOfY(reach), ErrorOfX(reach, out));
    if (!(error < worst_guard)) {
        return SkewView::unknown;
    }
    if (!touches(reach.x, m_task.source.width) || !touches(reach.y, m_task.source.height)) {
        return SkewView::nothing;
    }
    FillColumns(part, reach, out);
    FillLimits(reach, error, out);
    return SkewView::something;
}

void SkewApproximator::FillNumbers(const SkewPart& part, const Reach& reach, SkewApproximation& out) const {
    const double divisor = Divisor(reach.base_y);
    const double x_start = m_x_start + part.x + reach.base_y * m_lever - reach.base_x * divisor;
    for (int sample = 0; sample < skew_samples; ++sample) {
        out.x_start[sample] = static_cast<float>(x_start + skew_sample_x[sample]);
    }
    out.lever = static_cast<float>(m_lever - reach.base_x * m_second.slope);
    out.divisor_start = static_cast<float>(divisor);
    out.divisor_slope = static_cast<float>(m_second.slope);
}

void SkewApproximator::FillColumns(const SkewPart& part, const Reach& reach, SkewApproximation& out) const {
    for (int sample = 0; sample < skew_samples; ++sample) {
        const double* const start = m_y_start[sample];
        const double* const factor = m_y_factor[sample];
        for (int i = 0; i < SkewPart::most_width; ++i) {
            out.y_start[sample][i] = static_cast<float>(start[i] + part.y * factor[i] - reach.base_y);
            out.y_factor[sample][i] = static_cast<float>(factor[i]);
        }
    }
}

double SkewApproximator::ErrorOfY(const Reach& reach) const {
    const auto height = static_cast<double>(m_task.height);
    const double far = reach.y.Magnitude() + static_cast<double>(m_task.origin.y) + 1;
    const double across = std::fabs(m_first.slope) * (m_task.width + std::fabs(m_first.zero)) + 1;
    const double doubles =
        m_largest_factor * ((std::fabs(m_first.lever) + far) * across + 2 * height) + 2 * far;
    const double floats = 3 * SkewPart::most_height * m_largest_factor + 2 * reach.FarY();
    return double_unit * doubles + 1.1 * float_unit * floats;
}

double SkewApproximator::ErrorOfX(const Reach& reach, const SkewApproximation& out) const {
    const double slope = std::fabs(m_second.slope);
    const double lever = std::fabs(out.lever);
    const double far_x = reach.x.Magnitude() + static_cast<double>(m_task.origin.x) + 1;
    const double far_y = reach.y.Magnitude() + static_cast<double>(m_task.origin.y) + 1;
    const double along = slope * (far_y + std::fabs(m_second.zero)) + 1;
    const double doubles = (std::fabs(m_second.lever) + far_x) * along + m_task.width;
    const double dividend = SkewPart::most_width + std::fabs(out.x_start[0]) + 1 + lever * reach.FarY();
    const double divisor = 1.5 * slope * reach.FarY() + std::fabs(out.divisor_start);
    const double floats = 1.5 * dividend + reach.FarX() * divisor;
    return ((lever + slope * reach.FarX()) * ErrorOfY(reach) + double_unit * doubles +
            2.2 * float_unit * floats) /
               reach.least_divisor +
           double_unit * far_x + 1.1 * float_unit * reach.FarX();
}

// All rounded outward, and the guard so wide that it covers what that adds. A limit that is out of reach is
// taken nearer, where floats are finer.
void SkewApproximator::FillLimits(const Reach& reach, double error, SkewApproximation& out) const {
    constexpr double rounding_of_fractions = 0x1p-20;
    constexpr double out_of_reach = 2;
    const double most_x = reach.FarX() + out_of_reach;
    const double most_y = reach.FarY() + out_of_reach;
    const double width = std::min(static_cast<double>(m_task.source.width) - reach.base_x, most_x);
    const double height = std::min(static_cast<double>(m_task.source.height) - reach.base_y, most_y);
    const double first_x = std::max((m_task.origin.x == 0 ? -1 : 0) - reach.base_x, -out_of_reach);
    const double first_y = std::max((m_task.origin.y == 0 ? -1 : 0) - reach.base_y, -out_of_reach);
    out.base_x = static_cast<std::int32_t>(reach.base_x);
    out.base_y = static_cast<std::int32_t>(reach.base_y);
    out.low_x = -rounded_up(error - first_x);
    out.low_y = -rounded_up(error - first_y);
    out.high_x = rounded_up(width + error);
    out.high_y = rounded_up(height + error);
    const double widest =
        std::max({error, out.high_x - width, out.high_y - height, first_x - out.low_x, first_y - out.low_y});
    out.guard = rounded_up(widest + rounding_of_fractions);
    out.width = static_cast<float>(width);
    out.whole_rows = static_cast<float>(std::min(m_whole_rows - reach.base_y, most_y));
}

SkewCover cover_of(const SkewApproximation& map, int begin, int end, int height) {
    const double margin = 2 * static_cast<double>(map.guard);
    const int last = end - 1;
    Range y;
    for (const double row : {0, height}) {
        y.Include(map.y_start[leftmost][begin] + row * map.y_factor[leftmost][begin]);
        y.Include(map.y_start[rightmost][last] + row * map.y_factor[rightmost][last]);
    }
    y.Widen(margin);
    Range x;
    for (const double new_y : {y.Low(), y.High()}) {
        const double divisor = map.divisor_start + map.divisor_slope * new_y;
        x.Include((double{map.x_start[leftmost]} + begin + map.lever * new_y) / divisor);
        x.Include((double{map.x_start[rightmost]} + last + map.lever * new_y) / divisor);
    }
    x.Widen(margin);
    if (x.High() < map.low_x || x.Low() > map.high_x || y.High() < map.low_y || y.Low() > map.high_y) {
        return SkewCover::none;
    }
    const bool is_all =
        x.Low() > -map.base_x && x.High() < map.width && y.Low() > -map.base_y && y.High() < map.whole_rows;
    return is_all ? SkewCover::all : SkewCover::some;
}

}  // namespace lvx::images
