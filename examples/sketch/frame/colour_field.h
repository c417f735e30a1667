// A list of colours in a dialog, and a way to one that is not in it.
#pragma once

#include "owl/color.h"
#include "owl/dialog.h"

namespace sketch {

class ColourField {
public:
    /// Over the drop-down list `id` of `dialog`, which lives longer.
    ColourField(owl::TDialog& dialog, int id) : m_dialog(dialog), m_id(id) {}

    /// Fills the list and selects `colour`; one without a name stands at its end. Requires the window.
    void Show(const owl::TColor& colour);
    /// Has the user make a colour, and selects it.
    void Make();
    owl::TColor Chosen() const;

private:
    void SelectColour();

    owl::TDialog& m_dialog;
    int m_id;
    // What was shown or made last.
    owl::TColor m_colour;
};

}  // namespace sketch
