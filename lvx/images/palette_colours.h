// lvx/images/palette_colours.h
//
// Which colours the palette of a picture has.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lvx::images {

struct PaletteColour {
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;

    friend bool operator==(const PaletteColour&, const PaletteColour&) = default;
};

/// The most that a palette can have.
inline constexpr std::uint32_t most_palette_colours = 0xFFFF;

/// The first `entries` of a colour table of 4 bytes each: blue, green, red and one that is unused. Of the
/// table `size` bytes are there; what it lacks is 0. None if they are more than a palette can have.
std::vector<PaletteColour> table_colours(const unsigned char* table, std::size_t size, std::uint32_t entries);

/// 256 colours for a picture that can have any: 8 shades of red, the fastest, by 8 of green by 4 of blue.
std::vector<PaletteColour> spread_colours();

}  // namespace lvx::images
