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

DEFINE_RESPONSE_TABLE1(LookDialog, LVXCentredDialog)
    EV_COMMAND(IDC_LINE_COLOUR_OTHER, BnLineColour), EV_COMMAND(IDC_FILL_COLOUR_OTHER, BnFillColour),
END_RESPONSE_TABLE;

}  // namespace sketch
