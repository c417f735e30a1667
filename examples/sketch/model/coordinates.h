// Places and numbers as they stand in a document. What was read is believed only within limits: beyond them
// arithmetic in pixels would wrap, and a damaged document could ask for any amount of memory.
#pragma once

#include <string>

#include "lvx/store/object_store.h"
#include "owl/geometry.h"
#include "sketch/model/error.h"

namespace sketch {

/// No figure lies further than this from the corner of the sheet, in pixels.
constexpr int farthest = 1000000;

/// Reads an int; throws DocumentError, naming it as `what`, if it is not from `least` to `most`.
inline int ReadNumber(ObjectStore& store, int least, int most, const char* what) {
    int number = 0;
    store >> number;
    if (number < least || number > most) {
        throw DocumentError(std::string("The ") + what + " is " + std::to_string(number) + ", not from " +
                            std::to_string(least) + " to " + std::to_string(most) + ".");
    }
    return number;
}

inline void WritePoint(ObjectStore& store, const owl::TPoint& point) {
    store << static_cast<int>(point.x) << static_cast<int>(point.y);
}

inline int ReadCoordinate(ObjectStore& store) {
    return ReadNumber(store, -farthest, farthest, "place of a figure");
}

inline owl::TPoint ReadPoint(ObjectStore& store) {
    const int x = ReadCoordinate(store);
    return {x, ReadCoordinate(store)};
}

/// Whether a figure may be moved to where it would have these bounds.
inline bool IsNear(const owl::TRect& bounds) {
    return bounds.left >= -farthest && bounds.top >= -farthest && bounds.right <= farthest &&
           bounds.bottom <= farthest;
}

}  // namespace sketch
