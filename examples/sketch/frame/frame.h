// The main window: menu, view and status line, and everything about files.
#pragma once

#include "owl/frame_window.h"
#include "owl/printer.h"
#include "sketch/frame/status_line.h"
#include "sketch/model/document.h"
#include "sketch/view/view.h"

namespace sketch {

class Frame : public owl::TFrameWindow {
public:
    /// Shows an empty document.
    Frame();

    /// Opens `file` in the place of the document; tells in a box if that fails. What was changed is lost.
    void Open(const std::string& file);

    /// Asks whether to save what was changed.
    bool CanClose() override;
    void SetupWindow() override;

    void CmNew();
    void CmOpen();
    void CmSave();
    void CmSaveAs();
    void CmPrint();
    void CmAddPicture();
    void CmExit() { CloseWindow(); }
    void CmAbout();

private:
    bool MayLoseChanges();
    bool Save();
    bool SaveAs();
    bool SaveTo(const std::string& file);
    void ShowState();
    /// A box that names the file and the cause.
    void TellFailure(const std::string& file, const char* what, const char* cause);

    Document m_document;
    owl::TPrinter m_printer;
    View* m_view;
    StatusLine* m_status;

    DECLARE_RESPONSE_TABLE(Frame);
};

}  // namespace sketch
