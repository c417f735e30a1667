// owl/geometry.h
//
// Plain values of the framework's geometry: a point, a size and a rectangle, in the units of whoever hands
// them over: pixels, as a rule. Each is the system's structure of the same kind with operations added: it is
// passed where that structure is asked for, by reference or by address. Arithmetic is exact in 32 bits and
// wraps beyond them, as the system's does; it never fails.
#pragma once

#include <cstdint>

#include "owl/platform/geometry_types.h"

namespace owl {

namespace detail {

/// The sum of two coordinates modulo 2^32.
constexpr int Sum(int a, int b) {
    return static_cast<int>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

/// The first less the second, modulo 2^32.
constexpr int Difference(int a, int b) {
    return static_cast<int>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

constexpr int Lesser(int a, int b) {
    return a < b ? a : b;
}

constexpr int Greater(int a, int b) {
    return a < b ? b : a;
}

}  // namespace detail

/// A width and a height, also the way from one point to another. Either number may be negative.
class TSize : public SIZE {
public:
    constexpr TSize() : SIZE{0, 0} {}
    constexpr TSize(int width, int height) : SIZE{width, height} {}
    /// From what the system fills in.
    constexpr TSize(const SIZE& size) : SIZE(size) {}

    constexpr int Width() const { return cx; }
    constexpr int Height() const { return cy; }

    constexpr TSize& operator+=(const TSize& other) {
        cx = detail::Sum(cx, other.cx);
        cy = detail::Sum(cy, other.cy);
        return *this;
    }
    constexpr TSize& operator-=(const TSize& other) {
        cx = detail::Difference(cx, other.cx);
        cy = detail::Difference(cy, other.cy);
        return *this;
    }
    friend constexpr TSize operator+(TSize a, const TSize& b) { return a += b; }
    friend constexpr TSize operator-(TSize a, const TSize& b) { return a -= b; }
    friend constexpr TSize operator-(const TSize& a) { return TSize() -= a; }

    friend constexpr bool operator==(const TSize& a, const TSize& b) { return a.cx == b.cx && a.cy == b.cy; }
};

/// A place: `x` to the right and `y` downward from an origin.
class TPoint : public POINT {
public:
    /// The origin.
    constexpr TPoint() : POINT{0, 0} {}
    constexpr TPoint(int theX, int theY) : POINT{theX, theY} {}
    /// From what the system fills in.
    constexpr TPoint(const POINT& point) : POINT(point) {}

    constexpr int X() const { return x; }
    constexpr int Y() const { return y; }

    /// Moves by `way`.
    constexpr TPoint& operator+=(const TSize& way) {
        x = detail::Sum(x, way.cx);
        y = detail::Sum(y, way.cy);
        return *this;
    }
    constexpr TPoint& operator-=(const TSize& way) {
        x = detail::Difference(x, way.cx);
        y = detail::Difference(y, way.cy);
        return *this;
    }
    constexpr TPoint& Offset(int dx, int dy) { return *this += TSize(dx, dy); }
    constexpr TPoint OffsetBy(int dx, int dy) const { return TPoint(*this).Offset(dx, dy); }

    friend constexpr TPoint operator+(TPoint point, const TSize& way) { return point += way; }
    friend constexpr TPoint operator-(TPoint point, const TSize& way) { return point -= way; }
    /// The way from `from` to `to`.
    friend constexpr TSize operator-(const TPoint& to, const TPoint& from) {
        return TSize(detail::Difference(to.x, from.x), detail::Difference(to.y, from.y));
    }

    friend constexpr bool operator==(const TPoint& a, const TPoint& b) { return a.x == b.x && a.y == b.y; }
};

/// A rectangle from `left`, `top` up to but without `right` and `bottom`. It is normal when `right` is not
/// below `left` nor `bottom` below `top`, and empty when it has no point in it; one that is not normal is
/// empty too. Does not: normalise itself, unless told to.
class TRect : public RECT {
public:
    /// All four edges 0.
    constexpr TRect() : RECT{0, 0, 0, 0} {}
    constexpr TRect(int theLeft, int theTop, int theRight, int theBottom)
        : RECT{theLeft, theTop, theRight, theBottom} {}
    constexpr TRect(const TPoint& topLeft, const TPoint& bottomRight)
        : TRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y) {}
    constexpr TRect(const TPoint& topLeft, const TSize& size) : TRect(topLeft, topLeft + size) {}
    /// From what the system fills in.
    constexpr TRect(const RECT& rect) : RECT(rect) {}

    /// The left and the top edge, also of a rectangle that is not normal.
    constexpr int X() const { return left; }
    constexpr int Y() const { return top; }
    /// Right less left: negative when the rectangle is not normal.
    constexpr int Width() const { return detail::Difference(right, left); }
    constexpr int Height() const { return detail::Difference(bottom, top); }
    constexpr TSize Size() const { return TSize(Width(), Height()); }

    constexpr TPoint TopLeft() const { return TPoint(left, top); }
    constexpr TPoint TopRight() const { return TPoint(right, top); }
    constexpr TPoint BottomLeft() const { return TPoint(left, bottom); }
    constexpr TPoint BottomRight() const { return TPoint(right, bottom); }

    constexpr bool IsNormal() const { return left <= right && top <= bottom; }
    constexpr bool IsEmpty() const { return left >= right || top >= bottom; }
    /// Whether all four edges are 0.
    constexpr bool IsNull() const { return *this == TRect(); }

    constexpr void Set(int theLeft, int theTop, int theRight, int theBottom) {
        *this = TRect(theLeft, theTop, theRight, theBottom);
    }
    /// Makes all four edges 0.
    constexpr void SetEmpty() { *this = TRect(); }

    /// Exchanges edges that stand the wrong way round.
    constexpr TRect& Normalize() {
        return *this = TRect(detail::Lesser(left, right), detail::Lesser(top, bottom),
                             detail::Greater(left, right), detail::Greater(top, bottom));
    }
    constexpr TRect Normalized() const { return TRect(*this).Normalize(); }

    /// Moves each edge outward: `dx` both sides, `dy` top and bottom; negative numbers move them inward, and
    /// may leave a rectangle that is not normal.
    constexpr TRect& Inflate(int dx, int dy) {
        return *this = TRect(detail::Difference(left, dx), detail::Difference(top, dy),
                             detail::Sum(right, dx), detail::Sum(bottom, dy));
    }
    constexpr TRect InflatedBy(int dx, int dy) const { return TRect(*this).Inflate(dx, dy); }
    constexpr TRect InflatedBy(const TSize& by) const { return InflatedBy(by.cx, by.cy); }

    constexpr TRect& Offset(int dx, int dy) {
        return *this = TRect(detail::Sum(left, dx), detail::Sum(top, dy), detail::Sum(right, dx),
                             detail::Sum(bottom, dy));
    }
    constexpr TRect OffsetBy(int dx, int dy) const { return TRect(*this).Offset(dx, dy); }
    constexpr TRect OffsetBy(const TSize& way) const { return OffsetBy(way.cx, way.cy); }
    /// The same size with its upper left corner at (`x`, `y`).
    constexpr TRect MovedTo(int x, int y) const { return TRect(TPoint(x, y), Size()); }

    /// Whether the point lies inside: on the left or upper edge it does, on the right or lower one not.
    constexpr bool Contains(const TPoint& point) const {
        return left <= point.x && point.x < right && top <= point.y && point.y < bottom;
    }
    /// Whether every point of `other` lies inside. An empty `other` does if its corners are not outside.
    constexpr bool Contains(const TRect& other) const {
        return left <= other.left && other.right <= right && top <= other.top && other.bottom <= bottom;
    }
    /// Whether the two have a point in common. Rectangles that only share an edge have none.
    constexpr bool Touches(const TRect& other) const { return !(*this & other).IsEmpty(); }

    constexpr TRect& operator+=(const TSize& way) { return Offset(way.cx, way.cy); }
    constexpr TRect& operator-=(const TSize& way) {
        return *this = TRect(TopLeft() - way, BottomRight() - way);
    }
    constexpr TRect& operator&=(const TRect& other) { return *this = *this & other; }
    constexpr TRect& operator|=(const TRect& other) { return *this = *this | other; }

    friend constexpr TRect operator+(TRect rect, const TSize& way) { return rect += way; }
    friend constexpr TRect operator-(TRect rect, const TSize& way) { return rect -= way; }

    /// What the two have in common; null when that is nothing.
    friend constexpr TRect operator&(const TRect& a, const TRect& b) {
        const TRect common(detail::Greater(a.left, b.left), detail::Greater(a.top, b.top),
                           detail::Lesser(a.right, b.right), detail::Lesser(a.bottom, b.bottom));
        return common.IsEmpty() ? TRect() : common;
    }
    /// The smallest rectangle that holds both. An empty one adds nothing; two of them give a null one.
    friend constexpr TRect operator|(const TRect& a, const TRect& b) {
        if (a.IsEmpty())
            return b.IsEmpty() ? TRect() : b;
        if (b.IsEmpty())
            return a;
        return TRect(detail::Lesser(a.left, b.left), detail::Lesser(a.top, b.top),
                     detail::Greater(a.right, b.right), detail::Greater(a.bottom, b.bottom));
    }

    friend constexpr bool operator==(const TRect& a, const TRect& b) {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }
};

}  // namespace owl
