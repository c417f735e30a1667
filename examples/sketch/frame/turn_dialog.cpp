#include "sketch/frame/turn_dialog.h"

#include "sketch/frame/dialog_values.h"
#include "sketch/frame/sketch_ids.h"

namespace sketch {
namespace {

constexpr double whole_turn = 360;

}  // namespace

TurnDialog::TurnDialog(owl::TWindow* parent) : TDialog(parent, IDD_TURN) {}

void TurnDialog::SetupWindow() {
    TDialog::SetupWindow();
    SetDlgItemText(IDC_DEGREES, "30");
    CheckDlgButton(IDC_LEFTWARD, BST_CHECKED);
}

bool TurnDialog::CanClose() {
    double degrees = 0;
    if (!TDialog::CanClose() || !ReadField(*this, IDC_DEGREES, -whole_turn, whole_turn, degrees)) {
        return false;
    }
    m_degrees = IsDlgButtonChecked(IDC_LEFTWARD) == BST_CHECKED ? degrees : -degrees;
    return true;
}

}  // namespace sketch
