// Words in a label of a dialog that show a font.
#pragma once

#include <memory>

#include "lvx/drawing/font.h"
#include "lvx/drawing/my_font.h"
#include "owl/dialog.h"

namespace sketch {

class FontSample {
public:
    /// The label IDC_SAMPLE shows the font, IDC_FONT_NAME tells it in words. Lives as long as the dialog's
    /// window.
    void Show(owl::TDialog& dialog, const myFont& font);

private:
    struct Free {
        void operator()(LVXFont* font) const { font->free(); }
    };
    std::unique_ptr<LVXFont, Free> m_font;
};

}  // namespace sketch
