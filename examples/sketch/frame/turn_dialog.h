// Asks by how much to turn a picture.
#pragma once

#include "owl/dialog.h"

namespace sketch {

class TurnDialog : public owl::TDialog {
public:
    explicit TurnDialog(owl::TWindow* parent);

    /// What was chosen: positive to the left.
    double Degrees() const { return m_degrees; }

    void SetupWindow() override;
    bool CanClose() override;

private:
    double m_degrees = 0;
};

}  // namespace sketch
