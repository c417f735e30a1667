// Which tab is selected, and where the focus goes with it.
#include <algorithm>

#include "lvx/propdlg/control_calls.h"
#include "lvx/propdlg/page_life.h"
#include "lvx/propdlg/pressed_key.h"
#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_page.h"
#include "lvx/propdlg/property_tab.h"
#include "lvx/propdlg/shared_state.h"
#include "lvx/propdlg/strip_surface.h"
#include "owl/application.h"
#include "owl/message_thread.h"
#include "owl/region.h"

using lvx::propdlg::shared_state;

namespace {

// A strip whose pages change paints afterwards what it was to paint before, and nothing in between.
class PaintingPause {
public:
    explicit PaintingPause(TPropertyTab& strip) : m_strip(strip) {
        m_strip.GetUpdateRgn(m_pending, false);
        m_strip.SetRedraw(false);
    }
    ~PaintingPause() {
        // A page that is saved may have ended the dialog.
        if (!lvx::propdlg::is_alive(&m_strip))
            return;
        m_strip.SetRedraw(true);
        m_strip.InvalidateRgn(m_pending, false);
    }
    PaintingPause(const PaintingPause&) = delete;
    PaintingPause& operator=(const PaintingPause&) = delete;

private:
    TPropertyTab& m_strip;
    owl::TRegion m_pending;
};

}  // namespace

TPropertyDialog* TPropertyTab::Dialog() const {
    return dynamic_cast<TPropertyDialog*>(Parent);
}

LVXPropertyPage* TPropertyTab::SelectedPage() const {
    return SelectedTab >= 0 && SelectedTab < GetEntryCount() ? GetPage(SelectedTab) : nullptr;
}

// Messages that were handled, and what hosts do in their functions, may have closed the dialog or deleted it.
bool TPropertyTab::IsOpen(const TPropertyTab* strip) {
    return lvx::propdlg::is_alive(strip) && strip->IsWindow();
}

bool TPropertyTab::SelectTab(int tab) {
    if (tab == -1)
        return false;
    if (tab == SelectedTab)
        return SelectAgain();
    // A tab that there is not is told before anything changes.
    static_cast<void>(GetPage(tab));
    const bool wasOpen = IsWindow();
    if (!MayChange(tab) || IsOpen(this) != wasOpen)
        return false;
    shared_state().FirstChangeDone = true;
    if (!ChangeTo(tab) || IsOpen(this) != wasOpen)
        return true;
    SetPageFocus(true);
    if (IsOpen(this) != wasOpen)
        return true;
    TellOfSelection(tab);
    if (lvx::propdlg::is_alive(this))
        LastSelected = tab;
    return true;
}

bool TPropertyTab::SelectAgain() {
    const int tab = SelectedTab;
    SetPageFocus(true);
    if (lvx::propdlg::is_alive(this))
        LastSelected = tab;
    return true;
}

// The very first change of tab in a process is not asked about, on no dialog: hosts count on it.
bool TPropertyTab::MayChange(int tab) {
    if (!shared_state().FirstChangeDone)
        return true;
    TPropertyDialog* const dialog = Dialog();
    if (dialog != nullptr && !dialog->BeforeLeaving(tab))
        return false;
    LVXPropertyPage* const page = lvx::propdlg::is_alive(this) ? SelectedPage() : nullptr;
    return page == nullptr || page->BeforeLeaving();
}

// False if a page that was left has ended the strip.
bool TPropertyTab::ChangeTo(int tab) {
    SelectedTab = std::max(SelectedTab, 0);
    const bool scrolled = AdjustOrigin(tab);
    const int former = SelectedTab;
    LVXPropertyPage* const page = GetPage(former);
    if (page != nullptr && page != GetPage(tab) && !LeavePage(*page))
        return false;
    Arithmetic(*this)->BringRowForward(tab);
    SelectedTab = tab;
    Arithmetic(*this)->ShowSelection(former, scrolled);
    TellScreenReaders(EVENT_OBJECT_SELECTION, tab);
    return true;
}

bool TPropertyTab::LeavePage(LVXPropertyPage& page) {
    const PaintingPause pause(*this);
    if (!page.IsWindow())
        return true;
    const int tab = SelectedTab;
    const lvx::propdlg::Leaving leaving = lvx::propdlg::leaving_under(Style);
    // Whether that works is nobody's question here: leaving was agreed to before.
    if (leaving.saves)
        page.SaveData();
    if (!lvx::propdlg::is_alive(this))
        return false;
    if (GetPage(tab) != &page || !page.IsWindow())
        return true;
    if (leaving.destroys)
        page.Destroy(IDCANCEL);
    else
        page.ShowWindow(SW_HIDE);
    return true;
}

void TPropertyTab::TellOfSelection(int tab) {
    if (TPropertyDialog* const dialog = Dialog())
        dialog->AfterSelected(tab);
    LVXPropertyPage* const page = lvx::propdlg::is_alive(this) ? GetPage(tab) : nullptr;
    if (page != nullptr)
        page->AfterSelected();
}

bool TPropertyTab::SelectNext(int direction) {
    const int tab = Arithmetic(*this)->NextUsableTab(direction);
    if (tab < 0 || !SelectTab(tab))
        return false;
    if (lvx::propdlg::is_alive(this))
        UpdateWindow();
    return true;
}

bool TPropertyTab::SelectTabByKey(char key) {
    if (key == 0)
        return false;
    for (int tab = 0; tab < GetEntryCount(); ++tab) {
        if (IsTabEnabled(tab) && lvx::propdlg::hot_key_of(Entries[tab].Text) == key)
            return SelectTab(tab);
    }
    return false;
}

void TPropertyTab::PumpWaitingMessages() {
    if (owl::TApplication* const application = GetApplication())
        application->PumpWaitingMessages();
    else
        owl::TMsgThread().PumpWaitingMessages();
}

void TPropertyTab::MakeSelectedPage() {
    LVXPropertyPage* const page = SelectedPage();
    if (page == nullptr || page->IsWindow() || !lvx::propdlg::is_made_on_demand(Style))
        return;
    MakePage(*page);
    page->SetWindowPos(nullptr, PageRect, SWP_NOZORDER);
}

HWND TPropertyTab::SetPageFocus(bool focus) {
    if (!IsWindow())
        return nullptr;
    MakeSelectedPage();
    HWND owner = GetHandle();
    if (focus) {
        PumpWaitingMessages();
        if (!IsOpen(this))
            return nullptr;
        owner = PostFocus();
    }
    PumpWaitingMessages();
    if (!IsOpen(this))
        return nullptr;
    if (LVXPropertyPage* const page = SelectedPage())
        page->ShowWindow(SW_SHOW);
    return owner;
}

HWND TPropertyTab::PostFocus() {
    HWND owner = GetHandle();
    const bool intoPage = Tab::Has(Style, Tab::FocusOnFirstControl);
    if (const HWND control = intoPage ? GetFirstControl() : nullptr)
        owner = control;
    if (intoPage || ::GetFocus() != owner)
        Parent->PostMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(owner), TRUE);
    return owner;
}

HWND TPropertyTab::GetFirstControl() {
    const LVXPropertyPage* const page = SelectedPage();
    if (page == nullptr || !page->IsWindow())
        return nullptr;
    const HWND first = ::GetWindow(page->GetHandle(), GW_CHILD);
    const HWND last = first != nullptr ? ::GetWindow(first, GW_HWNDLAST) : nullptr;
    // Behind the last one the search goes around.
    return last != nullptr ? page->GetNextDlgTabItem(last) : nullptr;
}

void TPropertyTab::SelectFirstControl() {
    const HWND control = GetFirstControl();
    if (control == nullptr)
        return;
    SelectedPage()->PostMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    lvx::propdlg::select_text(control);
}
