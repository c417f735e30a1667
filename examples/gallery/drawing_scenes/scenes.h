// The scenes of ports, tools, shapes, devices and images.
#pragma once

namespace gallery {

void ShowTools();
void ShowRules();
void ShowShapes();
void ShowPortFonts();
void ShowFaces();
void ShowDevices();
void ShowImages();

}  // namespace gallery
