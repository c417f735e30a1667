// lvx/propdlg/property_tab.h
//
// The strip of a property dialog: its tabs, drawn by hand, and below them the frame in which the pages stand.
// It has the keyboard's focus, turns arrow keys and clicks into changes of tab, and shows, hides, makes and
// destroys the windows of the pages. TPropertyDialog makes one; hosts rarely see it.
//
// A child control. Owns its tabs, fonts and bitmaps. The pages belong to whoever made them, but one whose
// window still exists when the strip ends is deleted with it; a page is the strip's child object from the
// time on when the strip is set up. One that is deleted before leaves its tab without a page, and GetPage()
// null. For the thread of its dialog. Windows only.
//
// An index that has no tab throws std::out_of_range "invalid vector<T> subscript" where a tab's own fields
// are asked for. Without a window nothing is laid out or painted; what is set counts as soon as there is one.
#pragma once

#include "lvx/propdlg/tab_layout.h"
#include "owl/control.h"
#include "owl/resource_id.h"

class TPropertyDialog;

class LVX_EXPORT TPropertyTab : public owl::TControl, protected lvx::propdlg::TabState {
public:
    /// With Tab::UseTabBitmaps each tab has an equal share of the bitmap `bitmap` of the application; if that
    /// cannot be loaded, none has. With `bitmapsOnRight` the lower half of the bitmap is a mask: white where
    /// the tab shows through.
    TPropertyTab(owl::TWindow* parent, Tab::Style style, owl::TResId bitmap, bool bitmapsOnRight);
    ~TPropertyTab() override;

    // Tabs

    /// Puts a tab behind the others. `page` stands behind it; a null page is not added. A null text is an
    /// empty one.
    void Add(const char* text, LVXPropertyPage* page, bool enabled);
    int GetEntryCount() const { return Entries.GetItemsInContainer(); }
    int GetSelectedTab() const { return SelectedTab; }
    /// As it was given, without what excludes each other.
    Tab::Style GetTabStyle() const { return Style; }
    int GetTabHeight() const { return TabHeight; }
    int GetTabWidth(int tab) const { return Entries[tab].Width; }
    LVXPropertyPage* GetPage(int tab) const { return Entries[tab].Page; }
    std::string GetTabText(int tab) const { return Entries[tab].Text; }
    /// A null text is an empty one.
    void SetTabText(int tab, const char* text);
    bool IsTabEnabled(int tab) const { return Entries[tab].Enabled; }
    bool IsTabSelected(int tab) const { return tab == SelectedTab; }
    /// A disabled tab is hidden under Tab::Collapsing. Without it every tab is visible.
    bool IsTabVisible(int tab);
    /// A tab that is disabled cannot be chosen by the user; the selected one stays selected.
    void EnableTab(int tab, bool enable);

    // Layout, as told in tab_layout.h

    /// The width of a tab with its text measured on `dc`, by the font of the selected tab.
    int CalcTabWidth(owl::TDC& dc, int tab);
    void CalculateBasicTabWidths();
    void CalculateTabWidths();
    void ReassessTabWidths();
    void SetRect(owl::TRect& rect, int row);
    bool GetTabRect(owl::TRect& rect, int tab, int start);
    int GetTabRow(int tab);
    int GetMouseTab(const owl::TPoint& point);
    int GetLastTab(bool visibleOnly);
    bool AssessScroll();
    void NextOrigin(int direction);
    void GetScrollRect(owl::TRect& rect, int which);
    bool AdjustOrigin(int tab);
    void SetFixedTabWidth(int width);
    void SetWideMarginWidth(int width);

    // Colours

    /// Takes the user's colours for the strip and has it painted. Needs to be called when they change.
    void TabColorChange();
    /// What the selected tab is filled with under Tab::ColorActive; white at first.
    void SetActiveColor(owl::TColor color);

    // Pages and selection

    void SetupWindow() override;
    /// Brings a tab's page forward. False, and nothing changed, for -1 or if the dialog or the page that is
    /// to be left refuses; the first change of tab in a process cannot be refused. True at once if the tab is
    /// selected already: then it gets the focus again.
    bool SelectTab(int tab);
    /// Selects the next tab that is enabled, by steps of `direction` and around the ends. False if there is
    /// none, or if it was refused.
    bool SelectNext(int direction);
    /// Selects the first enabled tab with this hot key, an upper-case letter. False if there is none, if it
    /// was refused, or for a key of 0.
    bool SelectTabByKey(char key);
    /// Destroys the windows of all pages. The objects stay.
    void DestroyPages();
    /// Has the pages that have windows save their data, in order, up to one that fails. False if one did.
    bool SavePageData();
    /// Asks all pages, in order, whether the dialog may close, up to one that refuses. False if one did; it
    /// has been told so.
    bool CheckCanClose();
    /// Puts the windows of all pages where they belong.
    void RedrawDialogs();
    /// Makes the selected page's window if it is made on demand, and shows it. With `focus` the focus is
    /// moved: to the strip, or under Tab::FocusOnFirstControl into the page. Returns the window that should
    /// have it.
    HWND SetPageFocus(bool focus);
    /// The first tab stop of the selected page; null if it has no window or no controls.
    HWND GetFirstControl();
    /// Moves the focus there, and selects its text.
    void SelectFirstControl();

    void Paint(owl::TDC& dc, bool erase, owl::TRect& rect) override;
    /// What comes from no control is the dialog's.
    LRESULT EvCommand(UINT id, HWND control, UINT notifyCode) override;

protected:
    const char* GetClassName() override;
    void GetWindowClass(WNDCLASSA& windowClass) override;

    // What Paint() is put together from.

    void DrawTabs(owl::TDC& dc);
    void DrawStackedTabs(owl::TDC& dc);
    /// Draws a tab at (`x`, `y`), and moves `x` behind it. Only the lowest row meets the page.
    void DrawTab(owl::TDC& dc, int& x, int tab, int y, bool lowestRow);
    void DrawWizardFrame(owl::TDC& dc);

    void EvLButtonDown(UINT modifiers, const owl::TPoint& point);
    void EvRButtonDown(UINT modifiers, const owl::TPoint& point);
    void EvSize(UINT how, const owl::TSize& size);
    void EvSetFocus(HWND lost);
    void EvKillFocus(HWND gets);
    void EvKeyDown(UINT key, UINT repeat, UINT flags);
    UINT EvGetDlgCode(MSG* msg);

private:
    friend class TPropertyDialog;
    class Surface;
    class Arithmetic;
    class TabPainter;

    void LoadTabBitmaps(owl::TResId bitmap);
    void MakeFonts();
    void DrawArrows(owl::TDC& dc);
    void DrawPageFrame(owl::TDC& dc);
    void CloseAgainstPage(owl::TDC& dc, int from, int to, int y);
    void FillRowEnd(owl::TDC& dc, int x, const owl::TRect& row);
    void InvalidateFocusMark();
    LRESULT EvGetObject(WPARAM flags, LPARAM object);
    LRESULT EvChooseTab(WPARAM tab, LPARAM);
    void TellScreenReaders(DWORD event, int tab) const;
    TPropertyDialog* Dialog() const;
    LVXPropertyPage* SelectedPage() const;
    static bool IsOpen(const TPropertyTab* strip);
    bool SelectAgain();
    bool MayChange(int tab);
    bool ChangeTo(int tab);
    bool LeavePage(LVXPropertyPage& page);
    void TellOfSelection(int tab);
    void AdoptPages();
    void AdoptPage(LVXPropertyPage& page);
    void MakePage(LVXPropertyPage& page);
    void MakeSelectedPage();
    void ForgetPage(const LVXPropertyPage& page);
    void ReleasePages();
    void DivideTabBitmaps();
    void SelectFirstUsableTab();
    HWND PostFocus();
    void PumpWaitingMessages();

    DECLARE_RESPONSE_TABLE(TPropertyTab);
};
