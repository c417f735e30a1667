// lvx/propdlg/property_page.h
//
// The base of a page of a property dialog: a dialog of its own, without frame and buttons, that stands behind
// a tab. The host derives from it:
//
//     class LinePage : public LVXPropertyPage {
//     public:
//         LinePage() : LVXPropertyPage(IDD_LINE, nullptr) { new owl::TEdit(this, IDC_WIDTH, 8); … }
//         bool BeforeLeaving() override { return WidthIsGood(); }
//         bool SaveData() override;
//     };
//
// A page object outlives its window, which comes and goes with the dialog's, or with the selection of its
// tab. Whoever made the object deletes it, after the dialog; only one whose window exists when the strip ends
// is deleted with that. The template is a child (WS_CHILD, no caption) and not visible. For the thread of its
// dialog. Windows only.
#pragma once

#include "lvx/platform/export.h"
#include "owl/dialog.h"

class TPropertyDialog;
class TPropertyTab;

class LVX_EXPORT LVXPropertyPage : public owl::TDialog {
public:
    LVXPropertyPage(owl::TResId resource, owl::TModule* module);
    /// The dialog is the parent until the strip is set up, and that from then on. Null is allowed.
    LVXPropertyPage(TPropertyDialog* dialog, owl::TResId resource, owl::TModule* module);
    ~LVXPropertyPage() override;

    void SetupWindow() override;
    /// Drops Escape, unless it is typed into an edit field: there it cancels the dialog. Alt and a letter
    /// that no control of the page has are looked for by CheckHotKey().
    bool PreProcessMsg(MSG& msg) override;
    /// False: the focus is the dialog's affair.
    bool EvInitDialog(HWND focus) override;

    // The virtual operations stand in the order of the binary interface.

    /// Selects a tab of the dialog; -1 is this page's own. False if it was refused, or without a dialog's
    /// strip.
    virtual bool SelectTab(int tab);
    virtual bool SelectNext();
    virtual bool SelectPrevious();
    /// Called when the page has come forward. By itself nothing.
    virtual void AfterSelected();
    /// Whether another tab may be selected now. By itself true.
    virtual bool BeforeLeaving();
    /// Whether the dialog may be closed by OK; asked of all pages, also of those without a window. By itself
    /// true.
    virtual bool CanPageClose();
    /// Called when CanPageClose() refused. By itself it brings this page forward.
    virtual void AfterCantClose();
    /// Called for a click of the right button on this page's tab; `point` is in the strip's coordinates. By
    /// itself nothing.
    virtual void OnRightClick(unsigned modifiers, owl::TPoint& point);
    /// Called when the dialog is closed by OK, and when the page is left, if the style says so; only while
    /// there is a window. By itself it reads the controls into the transfer buffer. False keeps the dialog
    /// open.
    virtual bool SaveData();

    /// The index of this page's tab, the last one that was added for it; -1 before.
    int ThisTab() const { return TabIndex; }
    TPropertyDialog* GetPropertyDialog() const { return PropertyDialog; }

    // These go to the strip; -1 is this page's own tab. Without a strip they do nothing and answer false or
    // "".

    void EnableTab(int tab, bool enable);
    bool IsTabEnabled(int tab);
    std::string GetTabText(int tab);
    void SetTabText(int tab, const char* text);

    /// Above the nearest window that has a frame.
    int MessageBox(const char* text, const char* caption = nullptr, UINT type = MB_OK) override;
    /// The dialog, or the nearest window above it that has a border or a dialog's frame; the topmost one if
    /// none has. Null without a dialog.
    owl::TWindow* GetParentWindow() const;

    /// Does what the hot key that is held down just now asks for: selects the tab with that key, or clicks at
    /// the control in `dialog` that has it. Null is this page. Whether there was such a one.
    bool CheckHotKey(owl::TDialog* dialog);

protected:
    /// These go to the dialog.
    void CmOk();
    void CmCancel();
    void EvSysCommand(UINT command, const owl::TPoint& point);
    HBRUSH EvCtlColor(HDC dc, HWND control, UINT type);

    int TabIndex = -1;
    TPropertyDialog* PropertyDialog = nullptr;

private:
    friend class TPropertyDialog;

    TPropertyTab* Strip() const;
    static void PassEscape(MSG& msg);
    bool TakeHotKey(owl::TDialog* dialog);
    static bool ClickByKey(const owl::TDialog& dialog, char key);
    int TabOrOwn(int tab) const { return tab == -1 ? TabIndex : tab; }

    DECLARE_RESPONSE_TABLE(LVXPropertyPage);
};
