#include "owl/print_abort_dialog.h"

#include <utility>

#include "owl/module.h"
#include "owl/print_abort_dialog_ids.h"

namespace owl {

namespace {

HINSTANCE OwnInstance() {
    HMODULE module = nullptr;
    ::GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<const char*>(&OwnInstance), &module);
    return module;
}

// The framework itself, which holds the template.
TModule* OwnModule() {
    static TModule module("owl", OwnInstance());
    return &module;
}

}  // namespace

DEFINE_RESPONSE_TABLE1(PrintAbortDialog, TDialog)
    EV_COMMAND(IDCANCEL, CmCancel),
END_RESPONSE_TABLE;

PrintAbortDialog::PrintAbortDialog(TWindow* parent, const std::string& title, const std::string& device,
                                   std::function<void()> cancel)
    : TDialog(parent, IDD_OWL_PRINT_ABORT, OwnModule()),
      m_document(title),
      m_device(device),
      m_cancel(std::move(cancel)) {}

void PrintAbortDialog::SetupWindow() {
    TDialog::SetupWindow();
    SetDlgItemText(IDC_OWL_PRINT_TITLE, m_document.c_str());
    SetDlgItemText(IDC_OWL_PRINT_DEVICE, m_device.c_str());
}

void PrintAbortDialog::SetPage(int page) {
    SetDlgItemText(IDC_OWL_PRINT_PAGE, ("Page " + std::to_string(page)).c_str());
    // The next message may be long in coming.
    ::UpdateWindow(GetDlgItem(IDC_OWL_PRINT_PAGE));
}

void PrintAbortDialog::CmCancel() {
    ::EnableWindow(GetDlgItem(IDCANCEL), FALSE);
    m_cancel();
}

}  // namespace owl
