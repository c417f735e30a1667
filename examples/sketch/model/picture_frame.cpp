#include "sketch/model/picture_frame.h"

#include <algorithm>
#include <cmath>

namespace sketch {
namespace {

constexpr double knob_distance = 24;

double AngleOf(const Place& middle, const owl::TPoint& point) {
    // y grows downward, angles grow against the clock.
    return std::atan2(middle.y - point.y, point.x - middle.x);
}

}  // namespace

Place PictureFrame::ToSheetExactly(const Place& own) const {
    const double x = own.x - size.cx / 2.0;
    const double y = own.y - size.cy / 2.0;
    return {middle.x + x * std::cos(angle) + y * std::sin(angle),
            middle.y - x * std::sin(angle) + y * std::cos(angle)};
}

owl::TPoint PictureFrame::ToSheet(const Place& own) const {
    const Place place = ToSheetExactly(own);
    return {static_cast<int>(std::lround(place.x)), static_cast<int>(std::lround(place.y))};
}

owl::TSize PictureFrame::WayToOwn(const owl::TSize& way) const {
    return {static_cast<int>(std::lround(way.cx * std::cos(angle) - way.cy * std::sin(angle))),
            static_cast<int>(std::lround(way.cx * std::sin(angle) + way.cy * std::cos(angle)))};
}

std::array<Place, 4> PictureFrame::OwnCorners() const {
    const double right = size.cx;
    const double bottom = size.cy;
    std::array<Place, 4> corners{Place{0, 0}, Place{right, 0}, Place{right, bottom}, Place{0, bottom}};
    corners[skew.corner].x += skew.dx;
    corners[skew.corner].y += skew.dy;
    return corners;
}

std::vector<owl::TPoint> PictureFrame::Corners() const {
    std::vector<owl::TPoint> places;
    for (const Place& corner : OwnCorners()) {
        places.push_back(ToSheet(corner));
    }
    return places;
}

owl::TRect PictureFrame::SkewedRect() const {
    const bool left = skew.corner == UpperLeft || skew.corner == LowerLeft;
    const bool upper = skew.corner == UpperLeft || skew.corner == UpperRight;
    // A corner that is pulled inward leaves the frame as it is.
    return {left ? std::min(skew.dx, 0) : 0, upper ? std::min(skew.dy, 0) : 0,
            left ? static_cast<int>(size.cx)
                 : std::max(static_cast<int>(size.cx) + skew.dx, static_cast<int>(size.cx)),
            upper ? static_cast<int>(size.cy)
                  : std::max(static_cast<int>(size.cy) + skew.dy, static_cast<int>(size.cy))};
}

Place PictureFrame::SkewedMiddle() const {
    const owl::TRect rect = SkewedRect();
    return ToSheetExactly({(rect.left + rect.right) / 2.0, (rect.top + rect.bottom) / 2.0});
}

owl::TPoint PictureFrame::Knob() const {
    const std::array<Place, 4> corners = OwnCorners();
    return ToSheet({(corners[UpperLeft].x + corners[UpperRight].x) / 2,
                    (corners[UpperLeft].y + corners[UpperRight].y) / 2 - knob_distance});
}

double PictureFrame::AngleBetween(const owl::TPoint& from, const owl::TPoint& to) const {
    return AngleOf(middle, to) - AngleOf(middle, from);
}

}  // namespace sketch
