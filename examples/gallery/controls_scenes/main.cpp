// Dialogs and controls: on their own, and in the programs that show how they are used.
#include "gallery.h"
#include "scenes.h"

int main(int argc, char** argv) {
    return gallery::Run(
        argc, argv,
        {
            {"controls-buttons", "Every look of a button, made of one picture", &gallery::ShowButtonLooks},
            {"controls-bitmaps", "The pictures that dialogs share: up, down, with the focus",
             &gallery::ShowBitmaps},
            {"aligned-text", "A bar with a group, a toggle and a command", &gallery::ShowAlignedText},
            {"aligned-text-tip", "The mouse rests on the toggle", &gallery::ShowAlignedTextTip},
            {"dialogs-settings", "A dialog in the middle of its parent, its bold font and old lines modern",
             &gallery::ShowSettings},
            {"dialogs-question", "A question that Enter answers with no", &gallery::ShowQuestion},
            {"dialogs-font", "The choice of a face and a size; the boxes are undecided",
             &gallery::ShowFontParts},
            {"dialogs-open", "A file to open", &gallery::ShowOpenText},
        });
}
