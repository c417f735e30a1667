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
TTurnedPicture::TRun TTurnedPicture::Between(const Back& back, int y, int limit) const {
    const int begin = m_bounds.left;
    const int end = m_bounds.right;
    const bool grows = back.a >= 0;
    return {
        FirstWhere(begin, end, [&](int x) { return grows ? back.At(x, y) >= 0 : back.At(x, y) < limit; }),
        FirstWhere(begin, end, [&](int x) { return grows ? back.At(x, y) >= limit : back.At(x, y) < 0; })};
}

TTurnedPicture::TRun TTurnedPicture::RunOf(int y) const {
    if (m_bounds.IsEmpty() || y < m_bounds.top || y >= m_bounds.bottom)
        return {0, 0};
    const TRun across = Between(m_backX, y, m_picture.cx);
    const TRun down = Between(m_backY, y, m_picture.cy);
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
    for (int x = run.begin; x < run.end; ++x) {
        const TPoint source = SourceOf(x, y);
        *out++ = picture[source.y * stride + source.x];
    }
}

}  // namespace owl
