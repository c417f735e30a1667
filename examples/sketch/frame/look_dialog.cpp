#include "sketch/frame/look_dialog.h"

#include "sketch/frame/sketch_ids.h"

namespace sketch {

LookDialog::LookDialog(owl::TWindow* parent, const Look& look)
    : LVXCentredDialog(parent, IDD_LOOK, nullptr), m_look(look) {}

void LookDialog::SetupWindow() {
    LVXCentredDialog::SetupWindow();
    m_line.Show(m_look);
    m_fill.Show(m_look);
}

bool LookDialog::CanClose() {
    if (!LVXCentredDialog::CanClose() || !m_line.Read(m_look)) {
        return false;
    }
    m_fill.Read(m_look);
    return true;
}

}  // namespace sketch
