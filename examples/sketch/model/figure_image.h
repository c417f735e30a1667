// A figure as a picture of its own, for programs that know no figures.
#pragma once

#include <windows.h>

#include "sketch/model/figure.h"

namespace sketch {

/// A packed bitmap, the caller's, of the figure on white. Throws DocumentError if it would be too large,
/// std::bad_alloc.
HGLOBAL MakeImage(const Figure& figure);

}  // namespace sketch
