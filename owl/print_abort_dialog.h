// owl/print_abort_dialog.h
//
// What stands on the screen while a job is printed: its title, its printer, the page, and a Cancel button.
// Private to the framework.
#pragma once

#include <functional>
#include <string>

#include "owl/dialog.h"

namespace owl {

class PrintAbortDialog : public TDialog {
public:
    /// `cancel` is called when the user wants no more of it; the dialog stays until it is deleted.
    PrintAbortDialog(TWindow* parent, const std::string& title, const std::string& device,
                     std::function<void()> cancel);

    void SetupWindow() override;
    void SetPage(int page);
    void CmCancel();

private:
    std::string m_document;
    std::string m_device;
    std::function<void()> m_cancel;

    DECLARE_RESPONSE_TABLE(PrintAbortDialog);
};

}  // namespace owl
