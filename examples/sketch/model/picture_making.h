// From pictures in memory to what is drawn of them.
#pragma once

#include <memory>

#include "lvx/images/dibitmap.h"
#include "owl/bitmap.h"
#include "sketch/model/picture_frame.h"

namespace sketch {

using Bitmap = std::shared_ptr<LVXUtilities::DIBitmap>;

/// The bitmap for the screen. Throws DocumentError if the system cannot make it, std::bad_alloc.
std::shared_ptr<owl::TBitmap> ForScreen(const LVXUtilities::DIBitmap& bitmap);

/// The picture with a corner pulled; the same one if the skew is none. Pictures with a colour table, or with
/// the top row first, come out right as well. Throws as SkewPoint does, and DocumentError if the result would
/// be too large.
Bitmap Skewed(const Bitmap& bitmap, const Skew& skew);

/// The picture turned by `angle`; the same one for 0. Throws std::bad_alloc, and DocumentError if the system
/// cannot turn it.
Bitmap Turned(const Bitmap& bitmap, double angle);

}  // namespace sketch
