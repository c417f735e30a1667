// The images of a toolbar button worked out in plain arithmetic, a pixel at a time: what the raster
// operations of the library are compared with.
#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

#include "owl/color.h"
#include "owl/hatch_brush.h"

namespace lvx_test {

/// The colours that the user chose for buttons, and those of the hatch, which change later.
struct Colours {
    static Colours OfSystem() {
        const auto face = owl::TColor::FromSystem(COLOR_BTNFACE);
        const auto highlight = owl::TColor::FromSystem(COLOR_BTNHIGHLIGHT);
        return {face, highlight, owl::TColor::FromSystem(COLOR_BTNSHADOW), highlight, face};
    }

    COLORREF face;
    COLORREF highlight;
    COLORREF shadow;
    COLORREF hatchOn;
    COLORREF hatchOff;
};

/// A picture, pixel by pixel.
class Glyph {
public:
    Glyph(int theWidth, int theHeight)
        : width(theWidth),
          height(theHeight),
          m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

    template <class ColourAt>
    void Fill(const ColourAt& colourAt) {
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                At(x, y) = colourAt(x, y);
            }
        }
    }
    COLORREF& At(int x, int y) { return m_pixels[Index(x, y)]; }
    COLORREF At(int x, int y) const { return m_pixels[Index(x, y)]; }

    const int width;
    const int height;

private:
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
    }

    std::vector<COLORREF> m_pixels;
};

/// The four images side by side: as it is, embossed, a shadow over a hatch, the glyph over a hatch.
class ButtonImages {
public:
    ButtonImages(const Glyph& glyph, const Colours& colours) : m_glyph(glyph), m_colours(colours) {}

    COLORREF At(int x, int y) const {
        const int inImage = x % m_glyph.width;
        switch (x / m_glyph.width) {
            case 0:
                return m_glyph.At(inImage, y);
            case 1:
                return Embossed(inImage, y);
            case 2:
                return IsDark(inImage, y) ? m_colours.shadow : Hatch(x, y);
            default:
                return IsTransparent(inImage, y) ? Hatch(x, y) : m_glyph.At(inImage, y);
        }
    }

private:
    bool IsTransparent(int x, int y) const { return m_glyph.At(x, y) == m_colours.face; }
    /// Neither transparent nor a highlight. Nothing is dark outside of the glyph.
    bool IsDark(int x, int y) const {
        return x >= 0 && y >= 0 && !IsTransparent(x, y) && m_glyph.At(x, y) != m_colours.highlight;
    }
    COLORREF Embossed(int x, int y) const {
        if (IsDark(x, y)) {
            return m_colours.shadow;
        }
        return IsDark(x - 1, y - 1) ? m_colours.highlight : m_colours.face;
    }
    /// The pattern begins at the corner of the first image.
    COLORREF Hatch(int x, int y) const {
        const bool isOn = (owl::THatch8x8Brush::Hatch11F1[y % 8] & (0x80 >> x % 8)) != 0;
        return isOn ? m_colours.hatchOn : m_colours.hatchOff;
    }

    const Glyph m_glyph;
    const Colours m_colours;
};

}  // namespace lvx_test
