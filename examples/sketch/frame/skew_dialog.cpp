#include "sketch/frame/skew_dialog.h"

#include "sketch/frame/dialog_values.h"
#include "sketch/frame/sketch_ids.h"

namespace sketch {
namespace {

constexpr int farthest_pull = 10000;

}  // namespace

SkewDialog::SkewDialog(owl::TWindow* parent)
    : LVXCentredDialog(parent, IDD_SKEW, nullptr),
      m_across(new LVXIntEdit(this, IDC_ACROSS, -farthest_pull, farthest_pull)),
      m_down(new LVXIntEdit(this, IDC_DOWN, -farthest_pull, farthest_pull)) {}

void SkewDialog::SetupWindow() {
    LVXCentredDialog::SetupWindow();
    CheckDlgButton(IDC_UPPER_LEFT + m_corner, BST_CHECKED);
    m_across->SetValue(40);
    m_down->SetValue(0);
}

bool SkewDialog::CanClose() {
    int across = 0;
    int down = 0;
    if (!LVXCentredDialog::CanClose() ||
        !ReadField(*this, *m_across, -farthest_pull, farthest_pull, across) ||
        !ReadField(*this, *m_down, -farthest_pull, farthest_pull, down)) {
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
