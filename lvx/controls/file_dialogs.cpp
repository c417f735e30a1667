#include "lvx/controls/file_dialogs.h"

#include "lvx/controls/centred_dialog.h"

namespace {

constexpr DWORD modern_flags = OFN_EXPLORER | OFN_ENABLESIZING;

void ask_to_be_centred(owl::TWindow& dialog) {
    dialog.SetStyle(dialog.GetStyle() | DS_CENTER);
}

}  // namespace

LVXFileSaveDialog::LVXFileSaveDialog(owl::TWindow* parent, owl::TOpenSaveDialog::TData& data,
                                     owl::TResId templateId, const char* title, owl::TModule* module)
    : TFileSaveDialog(parent, data, templateId, title, module) {}

LVXFileSaveDialog::~LVXFileSaveDialog() = default;

int LVXFileSaveDialog::DoExecute() {
    Data.Flags |= modern_flags;
    const int result = TFileSaveDialog::DoExecute();
    Data.FilterIndex = static_cast<int>(ofn.nFilterIndex);
    return result;
}

void LVXFileSaveDialog::SetupWindow() {
    TFileSaveDialog::SetupWindow();
    LVXCentredDialog::Centre(this);
    LVXCentredDialog::LightenFont(this, Font, false);
}

DEFINE_RESPONSE_TABLE1(LVXFileOpenDialog, owl::TFileOpenDialog)
    EV_WM_SHOWWINDOW,
END_RESPONSE_TABLE;

LVXFileOpenDialog::LVXFileOpenDialog(owl::TWindow* parent, owl::TOpenSaveDialog::TData& data,
                                     owl::TResId templateId, const char* title, owl::TModule* module)
    : TFileOpenDialog(parent, data, templateId, title, module) {}

LVXFileOpenDialog::~LVXFileOpenDialog() = default;

int LVXFileOpenDialog::DoExecute() {
    Data.Flags |= modern_flags;
    const int result = TFileOpenDialog::DoExecute();
    Data.FilterIndex = static_cast<int>(ofn.nFilterIndex);
    return result;
}

void LVXFileOpenDialog::SetupWindow() {
    TFileOpenDialog::SetupWindow();
    ask_to_be_centred(*this);
    LVXCentredDialog::Centre(this);
    LVXCentredDialog::LightenFont(this, Font, false);
}

void LVXFileOpenDialog::EvShowWindow(bool show, unsigned status) {
    ask_to_be_centred(*this);
    TFileOpenDialog::EvShowWindow(show, status);
    LVXCentredDialog::Centre(this);
}
