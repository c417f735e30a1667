// owl/dialog.h
//
// A dialog, made from a template in the resources. Execute shows it and waits until it is closed; Create
// shows it beside the others. Control objects with ids of the template, made as children before, take over
// their controls.
#pragma once

#include "owl/window.h"

namespace owl {

class OWL_EXPORT TDialog : virtual public TWindow {
public:
    /// `resource` is looked for in `module`, or where GetModule says if that is null.
    explicit TDialog(TWindow* parent, TResId resource, TModule* module = nullptr);
    /// From a template in memory, which must live until the dialog is created.
    TDialog(TWindow* parent, const DLGTEMPLATE* dialogTemplate, TModule* module = nullptr);
    ~TDialog() override;

    /// Makes a modeless dialog; it shows if its template says so. Its caption is the template's, unless
    /// SetWindowText gave it another before. Throws TXWindow, or what SetupWindow threw.
    bool Create() override;
    /// Shows the dialog, keeps its parent from input, and returns what closed it: IDOK, IDCANCEL or what
    /// CloseWindow, Destroy or EndModal got. The window is gone then, also if a handler's exception comes out
    /// of here. SetupWindow may end it in the same ways before it shows.
    int Execute();
    /// What Execute does; for what is to be done around it.
    virtual int DoExecute();

    /// Closes the dialog if CanClose agrees, having read the controls into the transfer buffer.
    void CloseWindow(int retVal = IDCANCEL) override;
    /// What the OK button does: CloseWindow(IDOK).
    void CmOk();
    /// What the Cancel button, the Escape key and the close box do: Destroy(IDCANCEL).
    void CmCancel();

    /// Sees to the keys of dialogs: Tab, arrows, Enter, Escape, mnemonics.
    bool PreProcessMsg(MSG& msg) override;
    /// Sets the caption and calls SetupWindow. True lets the system set the focus.
    virtual bool EvInitDialog(HWND focus);
    void EvClose();
    /// Calls Paint: a dialog's background can be drawn on.
    void EvPaint();

    /// Turns dialog units into pixels.
    void MapDialogRect(TRect& rect) const;
    void SetDlgItemText(int id, const char* text);
    std::string GetDlgItemText(int id) const;
    void CheckDlgButton(int id, UINT check);
    UINT IsDlgButtonChecked(int id) const;
    /// The id of the button that Enter presses; 0 if there is none.
    int GetDefaultId() const;
    void SetDefaultId(int id);

protected:
    TDialog();
    void Init(TWindow* parent, TResId resource, TModule* module);
    const char* GetClassName() override;
    void PerformCreate() override;

private:
    static INT_PTR CALLBACK DialogProcedure(HWND handle, UINT msg, WPARAM wParam, LPARAM lParam);
    void ThrowFailedSetup();

    TResId m_resource;
    const DLGTEMPLATE* m_template = nullptr;

    DECLARE_RESPONSE_TABLE(TDialog);
};

}  // namespace owl
