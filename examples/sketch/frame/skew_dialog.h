// Asks which corner of a picture to pull, and how far.
#pragma once

#include "lvx/controls/centred_dialog.h"
#include "lvx/controls/int_edit.h"
#include "sketch/model/picture_frame.h"

namespace sketch {

class SkewDialog : public LVXCentredDialog {
public:
    explicit SkewDialog(owl::TWindow* parent);

    // What was chosen.
    SeenCorner Corner() const { return m_corner; }
    owl::TSize Way() const { return m_way; }

    void SetupWindow() override;
    bool CanClose() override;

private:
    SeenCorner m_corner = UpperLeft;
    owl::TSize m_way;
    // Children are owned by their window.
    LVXIntEdit* m_across;
    LVXIntEdit* m_down;
};

}  // namespace sketch
