// owl/color.h
//
// A colour as the system takes it: 8 bits each of red, green and blue, and a byte that says how they are
// meant. A plain value of 32 bits. The named colours are constants of compile time: any unit may copy them
// while it is initialised. Does not: know transparency. `Transparent` is a value to compare with; drawn with,
// it is white.
#pragma once

#include "owl/platform/export.h"
#include "owl/platform/geometry_types.h"

namespace owl {

class TColor {
public:
    /// Black.
    constexpr TColor() = default;
    /// A colour as the system hands it out, in any of its forms.
    constexpr TColor(COLORREF value) : m_value(value) {}
    /// Of each number the low 8 bits count.
    constexpr TColor(int red, int green, int blue)
        : m_value(Byte(red) | Byte(green) << 8 | Byte(blue) << 16) {}

    /// What the user has chosen for a part of the screen just now, such as COLOR_BTNFACE. Black for an index
    /// that the system does not know. Windows only.
    OWL_EXPORT static TColor FromSystem(int index);
    /// The entry `index` of the palette that is selected where the colour is used. Its low 16 bits count.
    static constexpr TColor PaletteIndex(int index) {
        return TColor(paletteIndexForm | (static_cast<COLORREF>(index) & 0xFFFF));
    }

    static const TColor Black;
    static const TColor White;
    /// Greys from light to dark: 192, 128 and 64 of 255.
    static const TColor LtGray;
    static const TColor Gray;
    static const TColor DkGray;
    /// Red, green and blue alone, and two of them together, at their full strength.
    static const TColor LtRed;
    static const TColor LtGreen;
    static const TColor LtBlue;
    static const TColor LtCyan;
    static const TColor LtMagenta;
    static const TColor LtYellow;
    /// No colour at all, for who asks: white with a bit that drawing does not look at.
    static const TColor Transparent;

    constexpr int Red() const { return static_cast<int>(m_value & 0xFF); }
    constexpr int Green() const { return static_cast<int>(m_value >> 8 & 0xFF); }
    constexpr int Blue() const { return static_cast<int>(m_value >> 16 & 0xFF); }
    /// Which entry of a palette, of a colour that PaletteIndex() made.
    constexpr int Index() const { return static_cast<int>(m_value & 0xFFFF); }

    /// Red, green and blue without the byte that says how they are meant.
    constexpr TColor Rgb() const { return TColor(m_value & 0x00FFFFFF); }
    /// The same colour, to be met by the nearest entry of the selected palette instead of by a dither.
    constexpr TColor PaletteRelative() const { return TColor(paletteRelativeForm | (m_value & 0x00FFFFFF)); }
    constexpr bool IsPaletteIndex() const { return m_value >> 24 == paletteIndexForm >> 24; }
    constexpr bool IsPaletteRelative() const { return m_value >> 24 == paletteRelativeForm >> 24; }

    constexpr COLORREF GetValue() const { return m_value; }
    constexpr operator COLORREF() const { return m_value; }

    /// Equal in all 32 bits: red is not equal to palette-relative red.
    friend constexpr bool operator==(const TColor& a, const TColor& b) { return a.m_value == b.m_value; }
    friend constexpr bool operator==(const TColor& a, COLORREF b) { return a.m_value == b; }

private:
    static constexpr COLORREF paletteIndexForm = 0x01000000;
    static constexpr COLORREF paletteRelativeForm = 0x02000000;

    static constexpr COLORREF Byte(int number) { return static_cast<COLORREF>(number) & 0xFF; }

    COLORREF m_value = 0;
};

inline constexpr TColor TColor::Black{0, 0, 0};
inline constexpr TColor TColor::White{255, 255, 255};
inline constexpr TColor TColor::LtGray{192, 192, 192};
inline constexpr TColor TColor::Gray{128, 128, 128};
inline constexpr TColor TColor::DkGray{64, 64, 64};
inline constexpr TColor TColor::LtRed{255, 0, 0};
inline constexpr TColor TColor::LtGreen{0, 255, 0};
inline constexpr TColor TColor::LtBlue{0, 0, 255};
inline constexpr TColor TColor::LtCyan{0, 255, 255};
inline constexpr TColor TColor::LtMagenta{255, 0, 255};
inline constexpr TColor TColor::LtYellow{255, 255, 0};
inline constexpr TColor TColor::Transparent{static_cast<COLORREF>(0x80FFFFFF)};

}  // namespace owl
