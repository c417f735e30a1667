// Where a picture lies: the arithmetic of turning and skewing, without pixels.
//
// A picture's own coordinates are those of its unskewed pixels as they are seen, x to the right and y
// downward from the upper left corner. They come onto the sheet by a turn around the middle.
#pragma once

#include <array>
#include <vector>

#include "owl/geometry.h"

namespace sketch {

/// Of a picture as it is seen, with the clock.
enum SeenCorner : int { UpperLeft = 0, UpperRight = 1, LowerRight = 2, LowerLeft = 3 };

/// How far one corner was pulled out of its place, in the picture's own coordinates.
struct Skew {
    SeenCorner corner = UpperLeft;
    int dx = 0;
    int dy = 0;

    bool IsNone() const { return dx == 0 && dy == 0; }
    friend bool operator==(const Skew&, const Skew&) = default;
};

/// A place that is not rounded to pixels.
struct Place {
    double x = 0;
    double y = 0;
};

struct PictureFrame {
    owl::TSize size;
    /// Where the middle of the unskewed picture is on the sheet.
    Place middle;
    /// In radians, against the clock as it is seen.
    double angle = 0;
    Skew skew;

    owl::TPoint ToSheet(const Place& own) const;
    Place ToSheetExactly(const Place& own) const;
    /// A way on the sheet in the picture's own coordinates.
    owl::TSize WayToOwn(const owl::TSize& way) const;

    std::array<Place, 4> OwnCorners() const;
    /// The four corners on the sheet, with the clock from the upper left one, the pulled one where it is now.
    std::vector<owl::TPoint> Corners() const;
    /// What the skewed picture takes, in the picture's own coordinates.
    owl::TRect SkewedRect() const;
    Place SkewedMiddle() const;
    /// Where to take hold of the picture to turn it: above the middle of its upper edge.
    owl::TPoint Knob() const;
    /// The angle by which `to` lies further than `from`, seen from the middle.
    double AngleBetween(const owl::TPoint& from, const owl::TPoint& to) const;
};

}  // namespace sketch
