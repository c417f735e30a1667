// owl/true_color_fields.h
//
// How red, green and blue are packed into the bits of a pixel, told by masks. Pure arithmetic. Private to the
// framework.
#pragma once

#include <cstdint>

#include "owl/color.h"

namespace owl {

class TrueColorFields {
public:
    /// Each mask has the bits of one component, side by side; one without bits is always 0.
    TrueColorFields(std::uint32_t red, std::uint32_t green, std::uint32_t blue);

    /// The colour of a pixel, each component spread to 0..255.
    TColor Unpack(std::uint32_t pixel) const;
    /// The nearest pixel to a colour. Bits outside the masks are 0.
    std::uint32_t Pack(TColor color) const;

private:
    std::uint32_t m_red;
    std::uint32_t m_green;
    std::uint32_t m_blue;
};

}  // namespace owl
