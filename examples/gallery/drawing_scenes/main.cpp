// What the library draws with: ports, tools, rules, shapes, devices, images.
#include "gallery.h"
#include "scenes.h"

int main(int argc, char** argv) {
    return gallery::Run(
        argc, argv,
        {
            {"drawing-tools", "Pens and brushes: every line and every pattern", &gallery::ShowTools},
            {"drawing-rules", "Rules: ellipses, lines and a bitmap over two colours", &gallery::ShowRules},
            {"drawing-shapes", "Shapes: filled with and without a frame, framed, inverted, erased",
             &gallery::ShowShapes},
            {"drawing-fonts", "Fonts by points, and text on the background of a brush",
             &gallery::ShowPortFonts},
            {"drawing-faces",
             "Faces out of the list of those that there are, every third in italics, and the stock tools",
             &gallery::ShowFaces},
            {"drawing-devices", "A drawing on bitmaps and in a metafile", &gallery::ShowDevices},
            {"drawing-images", "An image stretched, inverted, clipped, blended over and turned",
             &gallery::ShowImages},
        });
}
