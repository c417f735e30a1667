// The scenes of this program, each a function.
#pragma once

namespace gallery {

void ShowFields();
void ShowColourDialog();
void ShowNamedColour();
void ShowGrey();

}  // namespace gallery
