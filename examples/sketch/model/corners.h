// What is the same for every row of corners, whosever they are.
#pragma once

#include <vector>

#include "sketch/model/figure.h"

namespace sketch {

/// Empty without corners.
owl::TRect BoundsOf(const std::vector<owl::TPoint>& corners);

/// With the clock, from the upper left one.
std::vector<owl::TPoint> CornersOf(const owl::TRect& rect);

/// A handle at each corner.
std::vector<Handle> CornerHandles(const std::vector<owl::TPoint>& corners);

/// Whether the point is inside of the outline through the corners; where it crosses itself, every second part
/// is outside.
bool IsInside(const std::vector<owl::TPoint>& corners, const owl::TPoint& point);

}  // namespace sketch
