// owl/hatch_brush.h
//
// A brush of two colours whose pattern of 8 by 8 pixels is given as 8 bytes: the upper row first, and in each
// row the left pixel in the highest bit. A set bit is drawn in the foreground colour, another in the
// background colour, whatever the colours of the context are. Windows only.
#pragma once

#include <cstdint>

#include "owl/brush.h"

namespace owl {

class OWL_EXPORT THatch8x8Brush : public TBrush {
public:
    /// Patterns by name: how many pixels of a row are foreground, how many background, and by how much each
    /// row is shifted against the one above: F forward, to the right, B backward. Hatch11F1 is a chequered
    /// grey of one half.
    static const std::uint8_t Hatch11F1[8];
    static const std::uint8_t Hatch22F1[8];
    static const std::uint8_t Hatch22B1[8];
    static const std::uint8_t Hatch13F1[8];
    static const std::uint8_t Hatch13B1[8];

    /// Copies the 8 bytes of `hatch`.
    THatch8x8Brush(const std::uint8_t hatch[8], TColor foreground, TColor background);
    ~THatch8x8Brush() override;

    /// Makes it anew with another pattern or other colours, as when the user changed the colours of the
    /// screen. It must not be selected anywhere. If that fails it stays what it was.
    void Reconstruct(const std::uint8_t hatch[8], TColor foreground, TColor background);
};

}  // namespace owl
