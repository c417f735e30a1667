// The scenes of the dialogs and controls.
#pragma once

namespace gallery {

// On windows of this program's own.

void ShowButtonLooks();
void ShowBitmaps();

// On the programs of examples/.

void ShowAlignedText();
void ShowAlignedTextTip();
void ShowSettings();
void ShowQuestion();
void ShowFontParts();
void ShowOpenText();

}  // namespace gallery
