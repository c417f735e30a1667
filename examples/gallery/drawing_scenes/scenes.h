// The scenes of ports, tools and shapes.
#pragma once

namespace gallery {

void ShowTools();
void ShowRules();
void ShowShapes();
void ShowPortFonts();

}  // namespace gallery
