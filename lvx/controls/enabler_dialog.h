// lvx/controls/enabler_dialog.h
//
// A dialog whose tips the application window names: what the tip of a command says, where the mouse rests on
// a gadget in the dialog, is asked of the dialog's parent before the dialog itself. Other questions about
// commands are the dialog's own.
//
// Used like any owl::TDialog, on the thread of its window; owns nothing of its own. Windows only.
#pragma once

#include "lvx/platform/export.h"
#include "owl/dialog.h"

class LVX_EXPORT LVXEnablerDialog : public owl::TDialog {
public:
    /// As owl::TDialog: `res` is looked for in `module`, or, if that is null, in the parent's, or in the
    /// application's. What is missing is told by Create or Execute.
    LVXEnablerDialog(owl::TWindow* parent, owl::TResId res, owl::TModule* module);
    ~LVXEnablerDialog() override;

    // The virtual operations stand in the order of the binary interface.

    bool IdleAction(long idleCount) override;
    void SetupWindow() override;

    DECLARE_RESPONSE_TABLE(LVXEnablerDialog);

public:
    /// An owl::TTooltipEnabler that was sent to this dialog goes on to the parent as if it had been sent to
    /// it; what that leaves unanswered, and every other question, is the dialog's. Without a parent it is so
    /// too.
    void EvCommandEnable(owl::TCommandEnabler& enabler) override;
};
