#include "lvx/controls/colour_maths.h"

#include <algorithm>

namespace lvx {

namespace {

constexpr double degrees_of_sextant = 60;
constexpr double full_turn = 360;

struct Fractions {
    double red;
    double green;
    double blue;
};

Fractions fractions_of(const RgbColour& colour) {
    constexpr double step = 1.0 / most_of_rgb;
    return {colour.red * step, colour.green * step, colour.blue * step};
}

// Halves go up, and so does what lies so close below one that the sum is rounded: all systems show the same
// numbers.
int rounded(double value) {
    return static_cast<int>(value + 0.5);  // NOLINT(bugprone-incorrect-roundings) as the comment says
}

// Which of the three is the largest tells the sextants, red before green before blue where two are equal; the
// difference of the others, where between them.
double hue_of(const Fractions& colour, double max, double delta) {
    const auto [red, green, blue] = colour;
    double hue = 4 + (red - green) / delta;
    if (red == max) {
        hue = (green - blue) / delta;
    } else if (green == max) {
        hue = 2 + (blue - red) / delta;
    }
    hue *= degrees_of_sextant;
    return hue < 0 ? hue + full_turn : hue;
}

// One channel at `hue`, its own place on the circle: it climbs from `low` to `high`, stays, and falls again.
double channel_at(double hue, double low, double high) {
    if (hue > full_turn) {
        hue -= full_turn;
    }
    if (hue < 0) {
        hue += full_turn;
    }
    if (hue < degrees_of_sextant) {
        return low + (high - low) * hue / degrees_of_sextant;
    }
    if (hue < 3 * degrees_of_sextant) {
        return high;
    }
    if (hue < 4 * degrees_of_sextant) {
        return low + (high - low) * (4 * degrees_of_sextant - hue) / degrees_of_sextant;
    }
    return low;
}

}  // namespace

RgbColour on_scale(const RgbColour& colour) {
    const auto [red, green, blue] = colour;
    return {std::clamp(red, 0, most_of_rgb), std::clamp(green, 0, most_of_rgb),
            std::clamp(blue, 0, most_of_rgb)};
}

HlsColour on_scale(const HlsColour& colour) {
    const auto [hue, lightness, saturation] = colour;
    return {std::clamp(hue, 0, most_of_hue), std::clamp(lightness, 0, most_of_lightness),
            std::clamp(saturation, 0, most_of_saturation)};
}

HlsColour hls_of(const RgbColour& colour, int greyHue) {
    const Fractions fractions = fractions_of(on_scale(colour));
    const auto [min, max] = std::minmax({fractions.red, fractions.green, fractions.blue});
    if (min == max) {
        return {greyHue, rounded(fractions.red * most_of_lightness), 0};
    }
    const double delta = max - min;
    const double lightness = (max + min) * 0.5;
    const double saturation = lightness <= 0.5 ? delta / (max + min) : delta / (2 - max - min);
    return {rounded(hue_of(fractions, max, delta)), rounded(lightness * most_of_lightness),
            rounded(saturation * most_of_saturation)};
}

RgbColour rgb_of(const HlsColour& colour) {
    const auto [hue, wholeLightness, wholeSaturation] = on_scale(colour);
    const double lightness = wholeLightness * 0.01;
    const double saturation = wholeSaturation * 0.01;
    const double high =
        lightness <= 0.5 ? (1 + saturation) * lightness : lightness + saturation - lightness * saturation;
    const double low = 2 * lightness - high;
    const bool isGrey = wholeSaturation == 0;
    const auto channel = [&](double place) {
        return rounded((isGrey ? lightness : channel_at(place, low, high)) * most_of_rgb);
    };
    return {channel(hue + 120), channel(hue), channel(hue - 120)};
}

}  // namespace lvx
