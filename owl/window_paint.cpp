// Painting a window.
#include "owl/window.h"

namespace owl {

void TWindow::EvPaint() {
    DefaultProcessing();
}

}  // namespace owl
