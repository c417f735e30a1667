#include "sketch/frame/turn_dialog.h"

#include "sketch/frame/dialog_values.h"
#include "sketch/frame/sketch_ids.h"

namespace sketch {
namespace {

constexpr double whole_turn = 360;

}  // namespace

TurnDialog::TurnDialog(owl::TWindow* parent)
    : LVXCentredDialog(parent, IDD_TURN, nullptr), m_field(new LVXFloatEdit(this, IDC_DEGREES)) {}

void TurnDialog::SetupWindow() {
    LVXCentredDialog::SetupWindow();
    m_field->SetValue(30, 0);
    CheckDlgButton(IDC_LEFTWARD, BST_CHECKED);
}

bool TurnDialog::CanClose() {
    double degrees = 0;
    if (!LVXCentredDialog::CanClose() || !ReadField(*this, *m_field, -whole_turn, whole_turn, degrees)) {
        return false;
    }
    m_degrees = IsDlgButtonChecked(IDC_LEFTWARD) == BST_CHECKED ? degrees : -degrees;
    return true;
}

}  // namespace sketch
