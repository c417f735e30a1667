#include "owl/turned_picture.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace owl {
namespace {

constexpr double farthest = 1 << 29;

/// The first number from `begin` to `end` for which `holds`, which stays true once it is; `end` if there is
/// none.
template <class Predicate>
int FirstWhere(int begin, int end, const Predicate& holds) {
    while (begin < end) {
        const int middle = begin + (end - begin) / 2;
        if (holds(middle))
            end = middle;
        else
            begin = middle + 1;
    }
    return begin;
}

int Floor(double number) {
    return static_cast<int>(std::floor(std::clamp(number, -farthest, farthest)));
}

int Ceiling(double number) {
    return static_cast<int>(std::ceil(std::clamp(number, -farthest, farthest)));
}

/// The least and the greatest of 0, `a`, `b` and their sum.
std::pair<double, double> Extremes(double a, double b) {
    return std::minmax({0.0, a, b, a + b});
}

TRect BoundsOf(const TSize& picture, const TPictureTransform& transform) {
    const auto [left, right] = Extremes(picture.cx * transform.m11, picture.cy * transform.m21);
    const auto [top, bottom] = Extremes(picture.cx * transform.m12, picture.cy * transform.m22);
    return TRect(Floor(left + transform.dx), Floor(top + transform.dy), Ceiling(right + transform.dx),
                 Ceiling(bottom + transform.dy));
}

/// The pixel that a place lies on, or the nearest one. Of numbers not below 0 the conversion takes the whole
/// part.
int Pixel(double place, int count) {
    return static_cast<int>(std::clamp(place, 0.0, count - 0.5));
}

/// As many places as are worked out at once, in a loop that the compiler does several of at a time.
constexpr int blockSize = 64;
using Block = int[blockSize];

/// The way back of one coordinate along a row.
class Along {
public:
    Along(double step, double rest, int count) : m_step(step), m_rest(rest), m_last(count - 0.5) {}

    /// The pixels that the places from `x` on lie on, or the nearest ones.
    void Fill(int x, Block& pixels) const {
        for (int i = 0; i < blockSize; ++i) {
            const double place = (x + i + 0.5) * m_step + m_rest;
            const double notBelow = place > 0 ? place : 0;
            pixels[i] = static_cast<int>(notBelow < m_last ? notBelow : m_last);
        }
    }

private:
    double m_step;
    double m_rest;
    double m_last;
};

}  // namespace

double TTurnedPicture::Back::At(int x, int y) const {
    return (x + 0.5) * a + ((y + 0.5) * b + c);
}

TTurnedPicture::TTurnedPicture(const TSize& picture, const TPictureTransform& t) : m_picture(picture) {
    const double determinant = t.m11 * t.m22 - t.m12 * t.m21;
    const double constantX = t.m21 * t.dy - t.m22 * t.dx;
    const double constantY = t.m12 * t.dx - t.m11 * t.dy;
    m_backX = {t.m22 / determinant, -t.m21 / determinant, constantX / determinant};
    m_backY = {-t.m12 / determinant, t.m11 / determinant, constantY / determinant};
    const double all = m_backX.a + m_backX.b + m_backX.c + m_backY.a + m_backY.b + m_backY.c;
    if (picture.cx > 0 && picture.cy > 0 && std::isfinite(all))
        m_bounds = BoundsOf(picture, t);
}

// Along a row the way back only grows or only falls, rounding included, so that its limits can be searched
// for.
TTurnedPicture::TRun TTurnedPicture::Between(const Back& back, int y, int from, int limit) const {
    const int begin = m_bounds.left;
    const int end = m_bounds.right;
    const bool grows = back.a >= 0;
    return {
        FirstWhere(begin, end, [&](int x) { return grows ? back.At(x, y) >= from : back.At(x, y) < limit; }),
        FirstWhere(begin, end, [&](int x) { return grows ? back.At(x, y) >= limit : back.At(x, y) < from; })};
}

TTurnedPicture::TRun TTurnedPicture::RunOf(int y) const {
    return RunOf(y, TRect(TPoint(), m_picture));
}

TTurnedPicture::TRun TTurnedPicture::RunOf(int y, const TRect& part) const {
    const TRect inside = part & TRect(TPoint(), m_picture);
    if (inside.IsEmpty() || y < m_bounds.top || y >= m_bounds.bottom)
        return {0, 0};
    const TRun across = Between(m_backX, y, inside.left, inside.right);
    const TRun down = Between(m_backY, y, inside.top, inside.bottom);
    const TRun both = {std::max(across.begin, down.begin), std::min(across.end, down.end)};
    return both.begin < both.end ? both : TRun{0, 0};
}

TPoint TTurnedPicture::SourceOf(int x, int y) const {
    if (m_bounds.IsEmpty())
        return TPoint();
    return TPoint(Pixel(m_backX.At(x, y), m_picture.cx), Pixel(m_backY.At(x, y), m_picture.cy));
}

void TTurnedPicture::CopyRun(const std::uint32_t* picture, std::ptrdiff_t stride, int y, const TRun& run,
                             std::uint32_t* out) const {
    const Along alongX(m_backX.a, (y + 0.5) * m_backX.b + m_backX.c, m_picture.cx);
    const Along alongY(m_backY.a, (y + 0.5) * m_backY.b + m_backY.c, m_picture.cy);
    Block sourceX, sourceY;
    for (int begin = run.begin; begin < run.end; begin += blockSize) {
        alongX.Fill(begin, sourceX);
        alongY.Fill(begin, sourceY);
        const int count = std::min(blockSize, run.end - begin);
        for (int i = 0; i < count; ++i)
            *out++ = picture[sourceY[i] * stride + sourceX[i]];
    }
}

}  // namespace owl
