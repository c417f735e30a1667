// lvx/controls/colour_maths.h
//
// Colours by red, green and blue, and by hue, lightness and saturation, in the whole numbers that a dialog
// shows; from the one to the other and back. Pure functions: they keep no state, throw nothing, and may run
// on any thread. The same numbers come out on every system.
//
// Hue, lightness and saturation are coarser: a colour that goes there and back comes out up to 5 of 255 off
// in red, green or blue.
// Numbers beyond their scales are taken for the scale's end.
#pragma once

#include "lvx/platform/export.h"

namespace lvx {

/// Each from 0 to 255.
struct RgbColour {
    int red = 0;
    int green = 0;
    int blue = 0;

    friend bool operator==(const RgbColour&, const RgbColour&) = default;
};

struct HlsColour {
    /// From 0 to 360 degrees, where both are red; 120 is green, 240 blue.
    int hue = 0;
    /// From 0, black, to 100, white.
    int lightness = 0;
    /// From 0, grey, to 100.
    int saturation = 0;

    friend bool operator==(const HlsColour&, const HlsColour&) = default;
};

inline constexpr int most_of_rgb = 255;
inline constexpr int most_of_hue = 360;
inline constexpr int most_of_lightness = 100;
inline constexpr int most_of_saturation = 100;

/// The colour with each number beyond its scale taken for the scale's end.
LVX_EXPORT RgbColour on_scale(const RgbColour& colour);
LVX_EXPORT HlsColour on_scale(const HlsColour& colour);

/// A grey has no hue of its own and gets `greyHue`: so a slider of the hue stays where it is.
LVX_EXPORT HlsColour hls_of(const RgbColour& colour, int greyHue);

LVX_EXPORT RgbColour rgb_of(const HlsColour& colour);

}  // namespace lvx
