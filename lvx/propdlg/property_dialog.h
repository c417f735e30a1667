// lvx/propdlg/property_dialog.h
//
// A dialog with tabs: a strip (TPropertyTab) and a page (LVXPropertyPage) behind each of its tabs. The
// template has the frame and the buttons; the strip takes the room above them, or to their left.
//
//     LinePage line;
//     FillPage fill;
//     TPropertyDialog dialog(this, IDD_PROPERTIES, Tab::WideMargins | Tab::CreateOnDemandAndKeepIt, nullptr);
//     dialog.Add("&Line", &line, true);
//     dialog.Add("&Fill", &fill, true);
//     if (dialog.Execute() == IDOK) …
//
// OK asks all pages whether they agree, has those that have windows save their data, and closes the dialog;
// Cancel asks nobody. Tab and Shift+Tab go around strip, page and buttons, Ctrl+PageUp and Ctrl+PageDown from
// tab to tab, Alt and a letter to a tab or a control.
//
// Owns the strip, not the pages. For the main thread; Windows only. Does not: run without pages (a dialog
// that is set up without any has no strip from then on, and what asks for one answers false or 0), or move
// pages between dialogs that are open.
#pragma once

#include "lvx/controls/centred_dialog.h"
#include "lvx/platform/export.h"
#include "lvx/propdlg/property_tab.h"
#include "lvx/propdlg/tab_style.h"
#include "owl/brush.h"

namespace owl {
class TApplication;
}

class LVX_EXPORT TPropertyDialog : public LVXCentredDialog {
public:
    TPropertyDialog(owl::TWindow* parent, owl::TResId resource, Tab::Style style, owl::TModule* module);
    /// With a share of `bitmap` on each tab, as told for TPropertyTab.
    TPropertyDialog(owl::TWindow* parent, owl::TResId resource, Tab::Style style, owl::TResId bitmap,
                    bool bitmapsOnRight, owl::TModule* module);
    ~TPropertyDialog() override;

    void SetupWindow() override;
    /// Creates the dialog, shows it, and runs it to its end.
    int DoExecute() override;
    void Destroy(int retVal = 0) override;
    /// Alt and a letter that no control of the dialog has are looked for by the selected page.
    bool PreProcessMsg(MSG& msg) override;
    /// Lets the system set the focus if there is no strip.
    bool EvInitDialog(HWND focus) override;

    // The virtual operations stand in the order of the binary interface.

    /// Cuts from `rect`, the room for the strip, what the buttons need, if there is a control IDOK.
    virtual void AdjustMargin(owl::TRect& rect);
    /// What comes from no control goes to the selected page if that answers it; else it is the dialog's.
    LRESULT EvCommand(UINT id, HWND control, UINT notifyCode) override;
    /// Adds a tab behind the others, before the dialog is created. Nothing happens for a null page.
    virtual void Add(const char* text, LVXPropertyPage* page, bool enabled = true);
    virtual void CmOk();
    virtual void CmCancel();
    /// Closes the dialog as the button `id` does, without asking the pages. Under Tab::NoMDIClose nothing.
    virtual void CloseAction(int id);
    virtual bool SelectTab(int tab);
    virtual bool SelectNext();
    virtual bool SelectPrevious();
    /// Called when a tab has been selected. By itself nothing.
    virtual void AfterSelected(int tab);
    /// Whether the selected tab may be left for `tab`. By itself true.
    virtual bool BeforeLeaving(int tab);

    /// Null once the dialog was set up without pages.
    TPropertyTab* GetTabControl() const { return TabControl; }
    /// What holds the font that the dialog and its pages share; empty if theirs is normal already.
    lvx::auto_ptr<owl::TFont>& GetFont() { return Font; }
    /// 0 without a strip.
    int GetEntryCount() const;
    /// The page behind a tab; -1 is the selected one. Null without a strip.
    LVXPropertyPage* GetPageRef(int tab) const;

    /// Puts the strip behind a control in the order of the Tab key; null is in front of all. With `focus` the
    /// focus goes to the dialog's first tab stop.
    void MoveTabsAfterControl(owl::TWindow* control);
    void MoveTabsAfterControl(HWND control, bool focus);
    /// Gives the strip the room `rect` less a margin and what the buttons need.
    void SizeTabWnd(owl::TRect& rect);
    void SetActiveColor(owl::TColor color);
    void SetFixedTabWidth(int width);
    void SetWideMarginWidth(int width);

    /// Sends a message to all pages in order. The last answer; 0 without pages.
    LRESULT SendMsgToEachPage(UINT msg, WPARAM wParam, LPARAM lParam);

    using PageTest = bool (*)(LVXPropertyPage* page, void* user);
    using PageTestMember = bool (TPropertyDialog::*)(LVXPropertyPage* page, void* user);
    using PageAction = void (*)(LVXPropertyPage* page, void* user);
    using PageActionMember = void (TPropertyDialog::*)(LVXPropertyPage* page, void* user);

    /// The first page, in the order of the tabs, for which `test` is true; null if there is none.
    LVXPropertyPage* FirstPageThat(PageTest test, void* user = nullptr);
    LVXPropertyPage* FirstPageThat(PageTestMember test, void* user = nullptr);
    void ForEachPage(PageAction action, void* user = nullptr);
    void ForEachPage(PageActionMember action, void* user = nullptr);

    /// Has the strips of all open dialogs take the user's colours. To be called when those change; the
    /// argument is not used.
    static void TabColorChange(owl::TApplication* application);
    /// The module of the keyboard hook, if it is not to be that of the first dialog.
    static void SetHookInstance(HINSTANCE instance);

    /// In the colour of dialogs. There is one while a dialog with tabs is open; null otherwise.
    static owl::TBrush* brushGray;

protected:
    void EvDestroy();
    void EvSize(UINT how, const owl::TSize& size);
    void EvSysCommand(UINT command, const owl::TPoint& point);
    HBRUSH EvCtlColor(HDC dc, HWND control, UINT type);

    TPropertyTab* TabControl = nullptr;
    Tab::Style TabStyle;

private:
    friend class LVXPropertyPage;

    void Begin(owl::TResId bitmap, bool bitmapsOnRight);
    void DropStrip();
    void PlaceStrip();
    void Register();
    void CloseStrip();
    owl::TSize Margin() const;
    LRESULT EvStepTabs(WPARAM forward, LPARAM);

    DECLARE_RESPONSE_TABLE(TPropertyDialog);
};

/// The keyboard hook of the dialogs with tabs; there is one while any of them is open.
LVX_EXPORT LRESULT CALLBACK PropdlgKbdProc(int code, WPARAM wParam, LPARAM lParam);
