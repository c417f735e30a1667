// The scenes of ports, tools, shapes and devices.
#pragma once

namespace gallery {

void ShowTools();
void ShowRules();
void ShowShapes();
void ShowPortFonts();
void ShowFaces();
void ShowDevices();

}  // namespace gallery
