// What all figures of a drawing take together.
#pragma once

#include "sketch/model/figure.h"

namespace sketch {

/// The smallest rectangle with both in it.
owl::TRect United(const owl::TRect& a, const owl::TRect& b);

/// With the sheet's corner (0, 0) alone if there are no figures.
owl::TRect BoundsOf(const Figures& figures);

}  // namespace sketch
