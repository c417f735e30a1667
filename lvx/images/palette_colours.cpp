#include "lvx/images/palette_colours.h"

#include <cstring>

#include "lvx/platform/bitmap_headers.h"

namespace lvx::images {

std::vector<PaletteColour> table_colours(const unsigned char* table, std::size_t size,
                                         std::uint32_t entries) {
    if (entries > most_palette_colours) {
        return {};
    }
    std::vector<RGBQUAD> quads(entries);
    const std::size_t wanted = entries * sizeof(RGBQUAD);
    if (size != 0 && wanted != 0) {
        std::memcpy(quads.data(), table, size < wanted ? size : wanted);
    }
    std::vector<PaletteColour> colours;
    colours.reserve(entries);
    for (const RGBQUAD& quad : quads) {
        colours.push_back({quad.rgbRed, quad.rgbGreen, quad.rgbBlue});
    }
    return colours;
}

std::vector<PaletteColour> spread_colours() {
    constexpr int all = 256;
    constexpr int step_of_red_and_green = 32;
    constexpr int step_of_blue = 64;
    std::vector<PaletteColour> colours;
    for (int blue = 0; blue < all; blue += step_of_blue) {
        for (int green = 0; green < all; green += step_of_red_and_green) {
            for (int red = 0; red < all; red += step_of_red_and_green) {
                colours.push_back({static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
                                   static_cast<std::uint8_t>(blue)});
            }
        }
    }
    return colours;
}

}  // namespace lvx::images
