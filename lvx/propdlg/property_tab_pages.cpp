// The pages behind the tabs: how they are taken over, shown, left, asked and destroyed; which one is
// selected.
#include <algorithm>

#include "lvx/propdlg/control_calls.h"
#include "lvx/propdlg/hot_key.h"
#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_page.h"
#include "lvx/propdlg/property_tab.h"
#include "lvx/propdlg/shared_state.h"
#include "lvx/propdlg/strip_surface.h"
#include "owl/application.h"
#include "owl/message_thread.h"
#include "owl/region.h"

using lvx::propdlg::is_alive;
using lvx::propdlg::shared_state;

namespace {

constexpr Tab::Style any_on_demand = Tab::CreateOnDemand | Tab::CreateOnDemandAndKeepIt;

// A strip whose pages change paints afterwards what it was to paint before, and nothing in between.
class PaintingPause {
public:
    explicit PaintingPause(owl::TWindow& window) : m_window(window) {
        m_window.GetUpdateRgn(m_pending, false);
        m_window.SetRedraw(false);
    }
    ~PaintingPause() {
        m_window.SetRedraw(true);
        m_window.InvalidateRgn(m_pending, false);
    }
    PaintingPause(const PaintingPause&) = delete;
    PaintingPause& operator=(const PaintingPause&) = delete;

private:
    owl::TWindow& m_window;
    owl::TRegion m_pending;
};

}  // namespace

TPropertyDialog* TPropertyTab::Dialog() const {
    return dynamic_cast<TPropertyDialog*>(Parent);
}

LVXPropertyPage* TPropertyTab::SelectedPage() const {
    return SelectedTab >= 0 && SelectedTab < GetEntryCount() ? GetPage(SelectedTab) : nullptr;
}

void TPropertyTab::SetupWindow() {
    TControl::SetupWindow();
    DivideTabBitmaps();
    AdoptPages();
    SelectFirstUsableTab();
    SetPageFocus(false);
}

void TPropertyTab::DivideTabBitmaps() {
    if (TabBitmaps == nullptr || GetEntryCount() == 0)
        return;
    const owl::TBitmap& bitmap = *TabBitmaps;
    TabBitmaps->SetNumCels(GetEntryCount());
    TabBitmaps->SetCelSize(owl::TSize(bitmap.Width() / GetEntryCount(), bitmap.Height()));
}

void TPropertyTab::AdoptPages() {
    for (int tab = 0; tab < GetEntryCount(); ++tab) {
        LVXPropertyPage& page = *GetPage(tab);
        if (Tab::Has(Style, Tab::AllowDupPages) && page.IsWindow())
            continue;
        if (page.Parent != this)
            page.SetParent(this);
        if ((Style & any_on_demand) != 0)
            continue;
        page.Create();
        if (Tab::Has(Style, Tab::UseSmallFont))
            lvx::propdlg::apply_small_font(page.GetHandle());
    }
}

void TPropertyTab::SelectFirstUsableTab() {
    const int tab = Arithmetic(*this)->FirstUsableTab();
    if (tab < 0)
        return;
    SelectedTab = tab;
    if (TPropertyDialog* const dialog = Dialog())
        dialog->AfterSelected(tab);
    GetPage(tab)->AfterSelected();
}

// The very first change of tab in a process is not asked about, on no dialog: hosts count on it.
bool TPropertyTab::MayChange(int tab) {
    if (!shared_state().FirstChangeDone)
        return true;
    TPropertyDialog* const dialog = Dialog();
    if (dialog != nullptr && !dialog->BeforeLeaving(tab))
        return false;
    LVXPropertyPage* const page = SelectedPage();
    return page == nullptr || page->BeforeLeaving();
}

void TPropertyTab::LeavePage(LVXPropertyPage& page) {
    const PaintingPause pause(*this);
    if (!page.IsWindow())
        return;
    if (Tab::Has(Style, Tab::CreateOnDemand)) {
        page.SaveData();
        page.Destroy(IDCANCEL);
        return;
    }
    if (Tab::Has(Style, Tab::SaveOnClosePage))
        page.SaveData();
    page.ShowWindow(SW_HIDE);
}

bool TPropertyTab::SelectTab(int tab) {
    if (tab == -1)
        return false;
    if (tab == SelectedTab) {
        SetPageFocus(true);
        if (is_alive(this))
            LastSelected = tab;
        return true;
    }
    LVXPropertyPage* const page = GetPage(tab);
    if (!MayChange(tab))
        return false;
    shared_state().FirstChangeDone = true;
    SelectedTab = std::max(SelectedTab, 0);
    const bool scrolled = AdjustOrigin(tab);
    const int former = SelectedTab;
    if (GetPage(former) != page)
        LeavePage(*GetPage(former));
    Arithmetic(*this)->BringRowForward(tab);
    SelectedTab = tab;
    Arithmetic(*this)->ShowSelection(former, scrolled);
    TellScreenReaders(EVENT_OBJECT_SELECTION, tab);
    SetPageFocus(true);
    // Messages were handled: one of them may have closed the dialog.
    if (!is_alive(this))
        return true;
    if (TPropertyDialog* const dialog = Dialog())
        dialog->AfterSelected(tab);
    page->AfterSelected();
    LastSelected = tab;
    return true;
}

bool TPropertyTab::SelectNext(int direction) {
    const int tab = Arithmetic(*this)->NextUsableTab(direction);
    if (tab < 0 || !SelectTab(tab))
        return false;
    if (is_alive(this))
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

void TPropertyTab::ShowPageOnDemand(LVXPropertyPage& page) {
    page.Create();
    page.SetWindowPos(nullptr, PageRect, SWP_NOZORDER);
    if (Tab::Has(Style, Tab::UseSmallFont))
        lvx::propdlg::apply_small_font(page.GetHandle());
}

HWND TPropertyTab::SetPageFocus(bool focus) {
    if (!IsWindow())
        return nullptr;
    LVXPropertyPage* const wanted = SelectedPage();
    if (wanted != nullptr && (Style & any_on_demand) != 0 && !wanted->IsWindow())
        ShowPageOnDemand(*wanted);
    HWND owner = GetHandle();
    // A message that is handled here may end the dialog, and this strip with it.
    const auto isGone = [this] { return !is_alive(this) || !IsWindow(); };
    if (focus) {
        PumpWaitingMessages();
        if (isGone())
            return nullptr;
        if (Tab::Has(Style, Tab::FocusOnFirstControl)) {
            const HWND control = GetFirstControl();
            owner = control != nullptr ? control : owner;
            Parent->PostMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(owner), TRUE);
        } else if (::GetFocus() != GetHandle()) {
            Parent->PostMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(owner), TRUE);
        }
    }
    PumpWaitingMessages();
    if (isGone())
        return nullptr;
    if (LVXPropertyPage* const page = SelectedPage())
        page->ShowWindow(SW_SHOW);
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

void TPropertyTab::DestroyPages() {
    for (const TPropertyEntry& entry : Entries) {
        if (entry.Page->IsWindow())
            entry.Page->Destroy(IDCANCEL);
    }
}

bool TPropertyTab::SavePageData() {
    return std::all_of(Entries.begin(), Entries.end(), [](const TPropertyEntry& entry) {
        return !entry.Page->IsWindow() || entry.Page->SaveData();
    });
}

bool TPropertyTab::CheckCanClose() {
    for (int tab = 0; tab < GetEntryCount(); ++tab) {
        LVXPropertyPage& page = *GetPage(tab);
        if (page.CanPageClose())
            continue;
        page.AfterCantClose();
        return false;
    }
    return true;
}

void TPropertyTab::RedrawDialogs() {
    const owl::TRect client = GetClientRect();
    PageRect = owl::TRect(1, TabHeight * RowCount + 1, client.right - 2, client.bottom - 2);
    for (const TPropertyEntry& entry : Entries) {
        if (entry.Page->IsWindow())
            entry.Page->SetWindowPos(nullptr, PageRect, SWP_NOZORDER);
    }
}
