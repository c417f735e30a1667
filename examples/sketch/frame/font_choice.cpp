#include "sketch/frame/font_choice.h"

#include <algorithm>

#include "lvx/controls/font_dialog.h"
#include "sketch/model/text.h"

namespace sketch {

bool AskForFont(owl::TWindow& parent, myFont& font) {
    FontOptionsEnum::FontOptions options = FontOptionsEnum::All;
    if (!fontDialog::dialog(&parent, font, options, false)) {
        return false;
    }
    font.Size(std::clamp(font.Size(), Text::smallest, Text::largest));
    return true;
}

}  // namespace sketch
