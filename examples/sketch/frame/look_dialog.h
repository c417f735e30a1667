// Asks for the pen and brush of shapes.
#pragma once

#include "owl/dialog.h"
#include "sketch/model/look.h"

namespace sketch {

class LookDialog : public owl::TDialog {
public:
    /// Begins with `look`.
    LookDialog(owl::TWindow* parent, const Look& look);

    const Look& Chosen() const { return m_look; }

    void SetupWindow() override;
    bool CanClose() override;

private:
    Look m_look;
};

}  // namespace sketch
