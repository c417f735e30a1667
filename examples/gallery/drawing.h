// A frame around a drawing, for the scenes of what the framework draws with.
#pragma once

#include <string>

#include "owl/dc.h"
#include "owl/geometry.h"

namespace gallery {

/// Shows what `draw` draws on a white ground of that size, and has it posed.
void ShowDrawing(const char* title, const owl::TSize& size, void (*draw)(owl::TDC& dc));

/// Writes what something is, in the font of dialogs, without a ground.
void Label(owl::TDC& dc, int x, int y, const std::string& text);

}  // namespace gallery
