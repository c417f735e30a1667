// owl/region.h
//
// A set of pixels, for painting and clipping, in the units of whoever uses it: device units where it clips,
// logical ones where it is painted. Windows only.
#pragma once

#include "owl/gdi_object.h"
#include "owl/geometry.h"

namespace owl {

class OWL_EXPORT TRegion : public TGdiObject {
public:
    /// Says that a region is the ellipse in a rectangle.
    enum TEllipse { Ellipse };

    /// Nothing.
    TRegion();
    /// The rectangle, without its right and lower edge. Edges that stand the wrong way round are exchanged.
    explicit TRegion(const TRect& rect);
    TRegion(const TRect& rect, TEllipse);
    /// The inside of a polygon, which is closed from its last point to its first. `fillMode` is ALTERNATE or
    /// WINDING. Fewer than three points hold nothing.
    TRegion(const TPoint* points, int count, int fillMode);
    /// On a region that exists. A null `handle` is accepted.
    explicit TRegion(HRGN handle, TAutoDelete autoDelete = NoAutoDelete);
    /// A region of its own with the same pixels. Throws TXGdi if `other` has no handle.
    TRegion(const TRegion& other);
    ~TRegion() override;

    operator HRGN() const { return static_cast<HRGN>(GetHandle()); }

    /// The smallest rectangle that holds it; null if it is empty.
    TRect GetRgnBox() const;
    bool Contains(const TPoint& point) const;
    /// Whether it has a pixel in common with `rect`.
    bool Touches(const TRect& rect) const;

    /// Moves it.
    TRegion& operator+=(const TSize& way);
    /// Adds, takes away, keeps what is common, keeps what is in one of the two alone. Throw TXGdi if `other`
    /// or this has no handle.
    TRegion& operator|=(const TRegion& other);
    TRegion& operator-=(const TRegion& other);
    TRegion& operator&=(const TRegion& other);
    TRegion& operator^=(const TRegion& other);

    /// Whether both hold the same pixels.
    friend bool operator==(const TRegion& a, const TRegion& b) { return ::EqualRgn(a, b) == TRUE; }

private:
    TRegion& Combine(const TRegion& other, int mode);
};

}  // namespace owl
