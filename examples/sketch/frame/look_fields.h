// The fields for lines and fills, which several dialogs have.
#pragma once

#include "lvx/controls/int_edit.h"
#include "owl/dialog.h"
#include "sketch/frame/colour_field.h"
#include "sketch/model/look.h"

namespace sketch {

/// Of lines: width, style, colour.
class LineFields {
public:
    /// Over the controls IDC_LINE_… of `dialog`, which lives longer. To be made with that.
    explicit LineFields(owl::TDialog& dialog);

    /// Shows the line of `look`. Requires the window.
    void Show(const Look& look);
    /// Reads it back. False, with the user told, if the width is wrong; `look` is as it was then.
    bool Read(Look& look);
    /// Asks for a colour that is not in the list.
    void MakeColour() { m_colour.Make(); }

private:
    owl::TDialog& m_dialog;
    ColourField m_colour;
    // Children are owned by their window.
    LVXIntEdit* m_width;
};

/// Of fills: whether, pattern, colour.
class FillFields {
public:
    /// Likewise over the controls IDC_FILL…
    explicit FillFields(owl::TDialog& dialog);

    void Show(const Look& look);
    void Read(Look& look);
    void MakeColour() { m_colour.Make(); }

private:
    owl::TDialog& m_dialog;
    ColourField m_colour;
};

}  // namespace sketch
