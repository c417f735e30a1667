#include "owl/true_color_fields.h"

#include <bit>

namespace owl {
namespace {

/// The greatest number that the field holds.
std::uint64_t Greatest(std::uint32_t mask) {
    return mask >> std::countr_zero(mask);
}

int Unpacked(std::uint32_t pixel, std::uint32_t mask) {
    if (mask == 0)
        return 0;
    const std::uint64_t number = (pixel & mask) >> std::countr_zero(mask);
    return static_cast<int>((number * 255 + Greatest(mask) / 2) / Greatest(mask));
}

std::uint32_t Packed(int component, std::uint32_t mask) {
    if (mask == 0)
        return 0;
    const std::uint64_t number = (static_cast<std::uint64_t>(component) * Greatest(mask) + 127) / 255;
    return static_cast<std::uint32_t>(number << std::countr_zero(mask)) & mask;
}

}  // namespace

TrueColorFields::TrueColorFields(std::uint32_t red, std::uint32_t green, std::uint32_t blue)
    : m_red(red), m_green(green), m_blue(blue) {}

TColor TrueColorFields::Unpack(std::uint32_t pixel) const {
    return TColor(Unpacked(pixel, m_red), Unpacked(pixel, m_green), Unpacked(pixel, m_blue));
}

std::uint32_t TrueColorFields::Pack(TColor color) const {
    return Packed(color.Red(), m_red) | Packed(color.Green(), m_green) | Packed(color.Blue(), m_blue);
}

}  // namespace owl
