// Asks by how much to turn a picture.
#pragma once

#include "lvx/controls/centred_dialog.h"
#include "lvx/controls/float_edit.h"

namespace sketch {

class TurnDialog : public LVXCentredDialog {
public:
    explicit TurnDialog(owl::TWindow* parent);

    /// What was chosen: positive to the left.
    double Degrees() const { return m_degrees; }

    void SetupWindow() override;
    bool CanClose() override;

private:
    double m_degrees = 0;
    // Children are owned by their window.
    LVXFloatEdit* m_field;
};

}  // namespace sketch
