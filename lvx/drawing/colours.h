// lvx/drawing/colours.h
//
// The colours that drawings name. Plain values, constants of compile time: any unit may use them while it is
// initialised.
#pragma once

#include "owl/color.h"

namespace LVX {

/// No colour, for who asks; drawn with, it is white.
inline constexpr owl::TColor Transparent = owl::TColor::Transparent;
inline constexpr owl::TColor Black = owl::TColor::Black;
inline constexpr owl::TColor White = owl::TColor::White;
/// The pure colours, at their full strength.
inline constexpr owl::TColor Red = owl::TColor::LtRed;
inline constexpr owl::TColor Green = owl::TColor::LtGreen;
inline constexpr owl::TColor Blue = owl::TColor::LtBlue;
inline constexpr owl::TColor Cyan = owl::TColor::LtCyan;
inline constexpr owl::TColor Magenta = owl::TColor::LtMagenta;
inline constexpr owl::TColor Yellow = owl::TColor::LtYellow;
inline constexpr owl::TColor LightGrey = owl::TColor::LtGray;

}  // namespace LVX
