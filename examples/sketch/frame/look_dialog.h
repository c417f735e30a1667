// Asks for the pen and brush of shapes.
#pragma once

#include "lvx/controls/centred_dialog.h"
#include "sketch/frame/look_fields.h"

namespace sketch {

class LookDialog : public LVXCentredDialog {
public:
    /// Begins with `look`.
    LookDialog(owl::TWindow* parent, const Look& look);

    const Look& Chosen() const { return m_look; }

    void SetupWindow() override;
    bool CanClose() override;

private:
    void BnLineColour() { m_line.MakeColour(); }
    void BnFillColour() { m_fill.MakeColour(); }

    Look m_look;
    LineFields m_line{*this};
    FillFields m_fill{*this};

    DECLARE_RESPONSE_TABLE(LookDialog);
};

}  // namespace sketch
