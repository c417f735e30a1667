#include "sketch/frame/skew_dialog.h"

#include "sketch/frame/dialog_values.h"
#include "sketch/frame/sketch_ids.h"

namespace sketch {
namespace {

constexpr int farthest_pull = 10000;

}  // namespace

SkewDialog::SkewDialog(owl::TWindow* parent) : TDialog(parent, IDD_SKEW) {}

void SkewDialog::SetupWindow() {
    TDialog::SetupWindow();
    CheckDlgButton(IDC_UPPER_LEFT + m_corner, BST_CHECKED);
    SetDlgItemText(IDC_ACROSS, "40");
    SetDlgItemText(IDC_DOWN, "0");
}

bool SkewDialog::CanClose() {
    int across = 0;
    int down = 0;
    if (!TDialog::CanClose() || !ReadField(*this, IDC_ACROSS, -farthest_pull, farthest_pull, across) ||
        !ReadField(*this, IDC_DOWN, -farthest_pull, farthest_pull, down)) {
        return false;
    }
    for (const SeenCorner corner : {UpperLeft, UpperRight, LowerRight, LowerLeft}) {
        if (IsDlgButtonChecked(IDC_UPPER_LEFT + corner) == BST_CHECKED) {
            m_corner = corner;
        }
    }
    m_way = owl::TSize(across, down);
    return true;
}

}  // namespace sketch
