// Colours as texts, "#RRGGBB", as they come from other programs.
#pragma once

#include <optional>
#include <string>

#include "owl/color.h"

namespace sketch {

std::string ColourText(const owl::TColor& colour);

/// Nothing for any other text; the letters may be small.
std::optional<owl::TColor> ParseColour(const std::string& text);

}  // namespace sketch
