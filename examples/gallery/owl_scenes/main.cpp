// The framework: its windows, its controls, and what it draws with.
#include "gallery.h"
#include "scenes.h"

int main(int argc, char** argv) {
    return gallery::Run(
        argc, argv,
        {
            {"owl-controls", "Every control of the framework, in its states", &gallery::ShowControls},
            {"owl-message-box", "A message box above a window", &gallery::ShowMessageBox},
            {"owl-open-dialog", "The system's dialog to open a file", &gallery::ShowOpenDialog},
            {"owl-font-dialog", "Its dialog to choose a font", &gallery::ShowFontDialog},
            {"owl-print-dialog", "Its dialog to print", &gallery::ShowPrintDialog},
            {"owl-printing", "What stands there while a document is printed", &gallery::ShowPrinting},
            {"owl-mdi", "An MDI frame with three children", &gallery::ShowMdi},
            {"owl-mdi-maximised", "The same with one of them maximised", &gallery::ShowMdiMaximised},
            {"owl-pens", "Pens: styles, widths and colours", &gallery::ShowPens},
            {"owl-brushes", "Brushes: solid, hatched, of 8 by 8 pixels, of a bitmap", &gallery::ShowBrushes},
            {"owl-fonts", "Fonts: faces, weights, angles, and where a text stands", &gallery::ShowFonts},
            {"owl-regions", "Regions: combined, filled, framed, clipped to", &gallery::ShowRegions},
            {"owl-pictures", "A picture straight, stretched, mirrored and turned", &gallery::ShowPictures},
        });
}
