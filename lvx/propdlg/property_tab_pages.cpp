// The pages behind the tabs: how they are taken over, asked, saved, placed and let go.
#include <utility>

#include "lvx/propdlg/control_calls.h"
#include "lvx/propdlg/page_life.h"
#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_page.h"
#include "lvx/propdlg/property_tab.h"
#include "lvx/propdlg/shared_state.h"
#include "lvx/propdlg/strip_surface.h"

void TPropertyTab::Add(const char* text, LVXPropertyPage* page, bool enabled) {
    if (page == nullptr)
        return;
    TPropertyEntry entry;
    entry.Text = text != nullptr ? text : "";
    entry.Page = page;
    entry.Enabled = enabled;
    Entries.Add(entry);
    if (!IsWindow())
        return;
    DivideTabBitmaps();
    AdoptPage(*page);
    Arithmetic(*this)->Resized();
    Invalidate(true);
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
        if (LVXPropertyPage* const page = GetPage(tab))
            AdoptPage(*page);
    }
}

void TPropertyTab::AdoptPage(LVXPropertyPage& page) {
    if (Tab::Has(Style, Tab::AllowDupPages) && page.IsWindow())
        return;
    if (page.Parent != this)
        page.SetParent(this);
    if (!lvx::propdlg::is_made_on_demand(Style))
        MakePage(page);
}

void TPropertyTab::MakePage(LVXPropertyPage& page) {
    page.Create();
    if (Tab::Has(Style, Tab::UseSmallFont))
        lvx::propdlg::apply_small_font(page.GetHandle());
}

void TPropertyTab::SelectFirstUsableTab() {
    const int tab = Arithmetic(*this)->FirstUsableTab();
    if (tab < 0)
        return;
    SelectedTab = tab;
    TellOfSelection(tab);
}

void TPropertyTab::ForgetPage(const LVXPropertyPage& page) {
    for (TPropertyEntry& entry : Entries) {
        if (entry.Page == &page)
            entry.Page = nullptr;
    }
}

// Those that have windows go with the strip, the others are left to whoever made them.
void TPropertyTab::ReleasePages() {
    for (int tab = 0; tab < GetEntryCount(); ++tab) {
        LVXPropertyPage* const page = GetPage(tab);
        if (page == nullptr)
            continue;
        ForgetPage(*page);
        page->LeaveDialog(Dialog());
        if (page->IsWindow() && page->Parent == this)
            delete page;
        else if (page->Parent == this || page->Parent == Parent)
            page->SetParent(nullptr);
    }
}

void TPropertyTab::DestroyPages() {
    for (int tab = 0; tab < GetEntryCount(); ++tab) {
        LVXPropertyPage* const page = GetPage(tab);
        if (page != nullptr && page->IsWindow())
            page->Destroy(IDCANCEL);
    }
}

bool TPropertyTab::SavePageData() {
    for (int tab = 0; tab < GetEntryCount(); ++tab) {
        LVXPropertyPage* const page = GetPage(tab);
        if (page != nullptr && page->IsWindow() && !page->SaveData())
            return false;
        if (!lvx::propdlg::is_alive(this))
            return false;
    }
    return true;
}

bool TPropertyTab::CheckCanClose() {
    for (int tab = 0; tab < GetEntryCount(); ++tab) {
        LVXPropertyPage* const page = GetPage(tab);
        const bool agrees = page == nullptr || page->CanPageClose();
        // What hosts do there may have ended the dialog, or the page alone.
        if (!lvx::propdlg::is_alive(this))
            return false;
        if (agrees)
            continue;
        if (GetPage(tab) == page)
            page->AfterCantClose();
        return false;
    }
    return true;
}

void TPropertyTab::RedrawDialogs() {
    const owl::TRect client = GetClientRect();
    PageRect = owl::TRect(1, TabHeight * RowCount + 1, client.right - 2, client.bottom - 2);
    for (int tab = 0; tab < GetEntryCount(); ++tab) {
        if (LVXPropertyPage* const page = GetPage(tab))
            page->SetWindowPos(nullptr, PageRect, SWP_NOZORDER);
    }
}
