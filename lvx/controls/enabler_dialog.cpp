#include "lvx/controls/enabler_dialog.h"

#include "owl/tooltip.h"

DEFINE_RESPONSE_TABLE1(LVXEnablerDialog, owl::TDialog)
END_RESPONSE_TABLE;

LVXEnablerDialog::LVXEnablerDialog(owl::TWindow* parent, owl::TResId res, owl::TModule* module)
    : TDialog(parent, res, module) {}

LVXEnablerDialog::~LVXEnablerDialog() = default;

bool LVXEnablerDialog::IdleAction(long idleCount) {
    return TDialog::IdleAction(idleCount);
}

void LVXEnablerDialog::SetupWindow() {
    TDialog::SetupWindow();
}

void LVXEnablerDialog::EvCommandEnable(owl::TCommandEnabler& enabler) {
    const bool isOfTip = dynamic_cast<owl::TTooltipEnabler*>(&enabler) != nullptr;
    if (isOfTip && Parent != nullptr && enabler.IsReceiver(GetHandle())) {
        enabler.SetReceiver(Parent->GetHandle());
        Parent->EvCommandEnable(enabler);
        if (enabler.GetHandled()) {
            return;
        }
    }
    TWindow::EvCommandEnable(enabler);
}
