// The dialog for fonts, over the description that documents store.
#pragma once

#include "lvx/drawing/my_font.h"

namespace owl {
class TWindow;
}

namespace sketch {

/// Begins with `font`, and replaces it. False, and `font` as it was, if the user chose none.
bool AskForFont(owl::TWindow& parent, myFont& font);

}  // namespace sketch
