// lvx/controls/font_dialog.h
//
// The system's dialog to choose a font, for the description of one or for some of its parts.
//
//     FontOptionsEnum::FontOptions options = FontOptionsEnum::Face | FontOptionsEnum::Size;
//     if (fontDialog::dialog(this, caption, options, false))
//         Use(caption);
//
// Nothing is kept between two calls. It waits for the user on the caller's thread while the program handles
// messages. TrueType faces alone are offered, and no colours. Windows only.
#pragma once

#include "lvx/platform/export.h"

class myFont;

namespace owl {
class TWindow;
}

namespace FontOptionsEnum {

/// Parts of a font; bits.
enum FontOptions : unsigned {
    None = 0,
    Face = 0x01,
    Size = 0x02,
    Bold = 0x04,
    Italic = 0x08,
    Underline = 0x10,
    Strikeout = 0x20,
    All = 0x3F,
};

constexpr FontOptions operator|(FontOptions a, FontOptions b) {
    return static_cast<FontOptions>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
constexpr FontOptions operator&(FontOptions a, FontOptions b) {
    return static_cast<FontOptions>(static_cast<unsigned>(a) & static_cast<unsigned>(b));
}
constexpr FontOptions& operator|=(FontOptions& a, FontOptions b) {
    return a = a | b;
}

}  // namespace FontOptionsEnum

class LVX_EXPORT fontDialog {
public:
    fontDialog() = delete;

    /// Shows `font`, and the parts of it that `options` names for the user to choose. Underline and strikeout
    /// can always be chosen; without their option their boxes begin undecided. Bold and italic are chosen
    /// together, if one of them is an option.
    ///
    /// True if the user agreed: `font` has what was chosen then, and what could not be chosen as it was. Else
    /// it is as it was. In both cases `options` has the parts that the dialog offered added. A box that is
    /// still undecided is as the system takes it, as a rule for checked. The last argument is not read.
    /// Throws owl::TXCommonDialog if the dialog cannot be shown, and then nothing has changed.
    ///
    /// The dialog opens in the middle of `parent`; null is the screen.
    static bool dialog(owl::TWindow* parent, myFont& font, FontOptionsEnum::FontOptions& options, bool);
};
