#include "owl/region.h"

#include "owl/last_error.h"

namespace owl {
namespace {

HRGN MakeRectangle(const TRect& rect) {
    return Require<TXGdi>("CreateRectRgnIndirect", [&] { return ::CreateRectRgnIndirect(&rect); });
}

HRGN MakeEllipse(const TRect& rect) {
    return Require<TXGdi>("CreateEllipticRgnIndirect", [&] { return ::CreateEllipticRgnIndirect(&rect); });
}

HRGN MakePolygon(const TPoint* points, int count, int fillMode) {
    if (!points || count < 3)
        return MakeRectangle(TRect());
    return Require<TXGdi>("CreatePolygonRgn", [&] { return ::CreatePolygonRgn(points, count, fillMode); });
}

}  // namespace

TRegion::TRegion() : TRegion(TRect()) {}

TRegion::TRegion(const TRect& rect) : TGdiObject(MakeRectangle(rect), AutoDelete) {}

TRegion::TRegion(const TRect& rect, TEllipse) : TGdiObject(MakeEllipse(rect), AutoDelete) {}

TRegion::TRegion(const TPoint* points, int count, int fillMode)
    : TGdiObject(MakePolygon(points, count, fillMode), AutoDelete) {}

TRegion::TRegion(HRGN handle, TAutoDelete autoDelete) : TGdiObject(handle, autoDelete) {}

TRegion::TRegion(const TRegion& other) : TRegion() {
    *this |= other;
}

TRegion::~TRegion() = default;

TRect TRegion::GetRgnBox() const {
    TRect box;
    return ::GetRgnBox(*this, &box) > NULLREGION ? box : TRect();
}

bool TRegion::Contains(const TPoint& point) const {
    return ::PtInRegion(*this, point.x, point.y) != FALSE;
}

bool TRegion::Touches(const TRect& rect) const {
    return ::RectInRegion(*this, &rect) != FALSE;
}

TRegion& TRegion::operator+=(const TSize& way) {
    Require<TXGdi>("OffsetRgn", [&] { return ::OffsetRgn(*this, way.cx, way.cy); });
    return *this;
}

TRegion& TRegion::operator|=(const TRegion& other) {
    return Combine(other, RGN_OR);
}

TRegion& TRegion::operator-=(const TRegion& other) {
    return Combine(other, RGN_DIFF);
}

TRegion& TRegion::operator&=(const TRegion& other) {
    return Combine(other, RGN_AND);
}

TRegion& TRegion::operator^=(const TRegion& other) {
    return Combine(other, RGN_XOR);
}

TRegion& TRegion::Combine(const TRegion& other, int mode) {
    Require<TXGdi>("CombineRgn", [&] { return ::CombineRgn(*this, *this, other, mode); });
    return *this;
}

}  // namespace owl
