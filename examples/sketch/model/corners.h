// What is the same for every row of corners, whosever they are.
#pragma once

#include <vector>

#include "owl/geometry.h"

namespace sketch {

/// Empty without corners.
owl::TRect BoundsOf(const std::vector<owl::TPoint>& corners);

/// Whether the point is inside of the outline through the corners; where it crosses itself, every second part
/// is outside.
bool IsInside(const std::vector<owl::TPoint>& corners, const owl::TPoint& point);

}  // namespace sketch
