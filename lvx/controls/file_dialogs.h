// lvx/controls/file_dialogs.h
//
// The system's dialogs to choose a file to open, or one to save to: in the middle of the window that asks,
// with a font of normal weight, and always of the newer kind that can be resized.
//
//     owl::TOpenSaveDialog::TData data(OFN_FILEMUSTEXIST, "Drawings (*.drw)|*.drw|All files|*.*");
//     if (LVXFileOpenDialog(this, data, owl::TResId(), "Open a drawing", nullptr).Execute() == IDOK)
//         Open(data.FileName);
//
// The data are the caller's and must live as long as the dialog. Each dialog owns the lighter font of its
// controls. What is said in owl/open_save_dialog.h holds here too. Windows only.
#pragma once

#include "lvx/platform/export.h"
#include "lvx/text/ownership.h"
#include "owl/font.h"
#include "owl/open_save_dialog.h"

class LVX_EXPORT LVXFileSaveDialog : public owl::TFileSaveDialog {
public:
    /// `templateId` names a template in `module` with controls of one's own, or nothing. A null `title`
    /// leaves the system's.
    LVXFileSaveDialog(owl::TWindow* parent, owl::TOpenSaveDialog::TData& data, owl::TResId templateId,
                      const char* title, owl::TModule* module);
    ~LVXFileSaveDialog() override;

    /// IDOK when a name was chosen, else IDCANCEL. Either way the flags of the data have OFN_EXPLORER and
    /// OFN_ENABLESIZING afterwards, and their filter index is the one that was shown last. Throws
    /// owl::TXCommonDialog, or what a handler threw.
    int DoExecute() override;
    void SetupWindow() override;

protected:
    /// Empty until a font was lightened.
    lvx::auto_ptr<owl::TFont> Font;
};

class LVX_EXPORT LVXFileOpenDialog : public owl::TFileOpenDialog {
public:
    /// As LVXFileSaveDialog.
    LVXFileOpenDialog(owl::TWindow* parent, owl::TOpenSaveDialog::TData& data, owl::TResId templateId,
                      const char* title, owl::TModule* module);
    ~LVXFileOpenDialog() override;

    /// As LVXFileSaveDialog::DoExecute.
    int DoExecute() override;
    void SetupWindow() override;
    /// Centres the dialog whenever it is shown or hidden: some systems place it after it was set up.
    void EvShowWindow(bool show, unsigned status);

protected:
    /// Empty until a font was lightened.
    lvx::auto_ptr<owl::TFont> Font;

    DECLARE_RESPONSE_TABLE(LVXFileOpenDialog);
};
