// Asks for the pen and brush of shapes.
#pragma once

#include "lvx/controls/centred_dialog.h"
#include "lvx/controls/int_edit.h"
#include "sketch/model/look.h"

namespace sketch {

class LookDialog : public LVXCentredDialog {
public:
    /// Begins with `look`.
    LookDialog(owl::TWindow* parent, const Look& look);

    const Look& Chosen() const { return m_look; }

    void SetupWindow() override;
    bool CanClose() override;

private:
    Look m_look;
    // Children are owned by their window.
    LVXIntEdit* m_width;
};

}  // namespace sketch
