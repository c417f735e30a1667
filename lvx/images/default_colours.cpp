#include "lvx/images/default_colours.h"

namespace lvx::images {
namespace {

constexpr std::uint32_t sixteen[16] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080,
                                       0x008080, 0x808080, 0xC0C0C0, 0xFF0000, 0x00FF00, 0xFFFF00,
                                       0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};

constexpr std::size_t system_colours = 10;
constexpr std::uint32_t first_ten[system_colours] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080,
                                                     0x800080, 0x008080, 0xC0C0C0, 0xC0DCC0, 0xA6CAF0};
constexpr std::uint32_t last_ten[system_colours] = {0xFFFBF0, 0xA0A0A4, 0x808080, 0xFF0000, 0x00FF00,
                                                    0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};

std::uint32_t colour_of_256(std::size_t index) {
    constexpr std::size_t count = 256;
    if (index < system_colours) {
        return first_ten[index];
    }
    if (index >= count - system_colours) {
        return last_ten[index - (count - system_colours)];
    }
    const auto number = static_cast<std::uint32_t>(index);
    return (number & 7) << 21 | (number >> 3 & 7) << 13 | (number >> 6) << 6;
}

}  // namespace

std::uint32_t default_colour(unsigned depth, std::size_t index) {
    switch (depth) {
        case 1:
            return index == 0 ? 0x000000 : 0xFFFFFF;
        case 4:
            return sixteen[index];
        default:
            return colour_of_256(index);
    }
}

}  // namespace lvx::images
