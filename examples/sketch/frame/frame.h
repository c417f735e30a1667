// The main window: menu, view and status line, and everything about files.
#pragma once

#include "lvx/files/mru_list.h"
#include "lvx/files/settings.h"
#include "owl/frame_window.h"
#include "owl/printer.h"
#include "sketch/frame/dde_service.h"
#include "sketch/frame/shape_menu.h"
#include "sketch/frame/status_line.h"
#include "sketch/model/document.h"
#include "sketch/view/view.h"

namespace sketch {

class Frame : public owl::TFrameWindow, private Told {
public:
    /// Shows an empty document.
    Frame();

    ~Frame() override;

    /// Opens `file` in the place of the document; tells in a box if that fails. What was changed is lost.
    void Open(const std::string& file);

    /// Asks whether to save what was changed.
    bool CanClose() override;
    void SetupWindow() override;
    LRESULT EvCommand(UINT id, HWND control, UINT notifyCode) override;
    void EvCommandEnable(owl::TCommandEnabler& enabler) override;
    void EvInitMenuPopup(HMENU menu, UINT position, bool systemMenu);

    /// What a button of the bar does, in the place of the status.
    void ShowHint(int command, const std::string& text) override;

    void CmNew();
    void CmOpen();
    /// Of the recent files, by their commands.
    void CmRecent(UINT command);
    void CmSave();
    void CmSaveAs();
    void CmPrint();
    void CmAddPicture();
    void CmExit() { CloseWindow(); }
    void CmSettings();
    void CmAbout();

private:
    bool MayLoseChanges();
    bool Save();
    bool SaveAs();
    bool SaveTo(const std::string& file);
    void ShowState();
    // Without a word to the user; these throw DocumentError and std::bad_alloc.
    void Load(const std::string& name);
    void Store(const std::string& name);

    // For other programs, in frame_commands.cpp.
    Items PresentItems() const override;
    bool IsBusy() const override;
    bool MakeNew() override;
    bool OpenFile(const std::string& file) override;
    bool SaveFile(const std::string& file) override;
    bool PrintNow() override;
    bool SelectNumber(int number) override;
    bool DeleteSelected() override;
    bool AddRectangle(const owl::TRect& rect) override;
    bool AddEllipse(const owl::TRect& rect) override;
    bool AddWords(const std::string& words, const owl::TPoint& place) override;
    bool SetLineColour(const owl::TColor& colour) override;
    bool SetFillColour(const owl::TColor& colour) override;
    bool ClearFill() override;

    /// A box that names the file and the cause.
    void TellFailure(const std::string& file, const char* what, const char* cause);

    Document m_document;
    owl::TPrinter m_printer;
    View* m_view;
    StatusLine* m_status;
    std::string m_hint;
    LVXUtilities::Settings m_settings;
    LVXMRUList m_recent;
    // There are none before the window.
    std::unique_ptr<ShapeMenu> m_shapes;
    std::unique_ptr<DdeService> m_service;

    DECLARE_RESPONSE_TABLE(Frame);
};

}  // namespace sketch
