// lvx/drawing/font_resolution.h
//
// How many of its units a device counts to an inch, for the size of fonts.
#pragma once

#include <windows.h>

namespace lvx::drawing {

/// What the device tells (LOGPIXELSY); if that is 0, as of a metafile, by its map mode, and by tenths of a
/// millimetre if that says nothing either.
constexpr int units_per_inch(int told, int mapMode) {
    if (told != 0) {
        return told;
    }
    switch (mapMode) {
        case MM_HIMETRIC:
            return 2540;
        case MM_LOENGLISH:
            return 100;
        case MM_HIENGLISH:
            return 1000;
        default:
            return 254;
    }
}

}  // namespace lvx::drawing
