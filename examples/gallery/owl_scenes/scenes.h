// The scenes of the framework.
#pragma once

namespace gallery {

void ShowControls();
void ShowMessageBox();
void ShowOpenDialog();
void ShowFontDialog();
void ShowPrintDialog();
void ShowPrinting();
void ShowMdi();
void ShowMdiMaximised();
void ShowPens();
void ShowBrushes();
void ShowFonts();
void ShowRegions();
void ShowPictures();

}  // namespace gallery
