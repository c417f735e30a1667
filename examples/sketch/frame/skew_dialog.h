// Asks which corner of a picture to pull, and how far.
#pragma once

#include "owl/dialog.h"
#include "sketch/model/picture_frame.h"

namespace sketch {

class SkewDialog : public owl::TDialog {
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
};

}  // namespace sketch
