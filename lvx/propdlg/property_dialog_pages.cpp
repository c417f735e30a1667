// What a property dialog passes on to its strip and its pages.
#include "lvx/propdlg/control_calls.h"
#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_page.h"
#include "lvx/propdlg/tab_stops.h"

bool TPropertyDialog::SelectTab(int tab) {
    return TabControl != nullptr && TabControl->SelectTab(tab);
}

bool TPropertyDialog::SelectNext() {
    return TabControl != nullptr && TabControl->SelectNext(1);
}

bool TPropertyDialog::SelectPrevious() {
    return TabControl != nullptr && TabControl->SelectNext(-1);
}

void TPropertyDialog::AfterSelected(int) {}

bool TPropertyDialog::BeforeLeaving(int) {
    return true;
}

int TPropertyDialog::GetEntryCount() const {
    return TabControl != nullptr ? TabControl->GetEntryCount() : 0;
}

LVXPropertyPage* TPropertyDialog::GetPageRef(int tab) const {
    if (GetEntryCount() == 0)
        return nullptr;
    return TabControl->GetPage(tab == -1 ? TabControl->GetSelectedTab() : tab);
}

void TPropertyDialog::MoveTabsAfterControl(owl::TWindow* control) {
    MoveTabsAfterControl(control != nullptr ? control->GetHandle() : nullptr, true);
}

void TPropertyDialog::MoveTabsAfterControl(HWND control, bool focus) {
    if (TabControl == nullptr)
        return;
    TabControl->SetWindowPos(control, owl::TRect(), SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    if (focus)
        lvx::propdlg::move_focus(nullptr, *this, lvx::propdlg::first_tab_stop(GetHandle()));
}

void TPropertyDialog::SetActiveColor(owl::TColor color) {
    if (TabControl != nullptr)
        TabControl->SetActiveColor(color);
}

void TPropertyDialog::SetFixedTabWidth(int width) {
    if (TabControl != nullptr)
        TabControl->SetFixedTabWidth(width);
}

void TPropertyDialog::SetWideMarginWidth(int width) {
    if (TabControl != nullptr)
        TabControl->SetWideMarginWidth(width);
}

LRESULT TPropertyDialog::SendMsgToEachPage(UINT msg, WPARAM wParam, LPARAM lParam) {
    LRESULT answer = 0;
    for (int tab = 0; tab < GetEntryCount(); ++tab)
        answer = GetPageRef(tab)->SendMessage(msg, wParam, lParam);
    return answer;
}

LVXPropertyPage* TPropertyDialog::FirstPageThat(PageTest test, void* user) {
    for (int tab = 0; tab < GetEntryCount(); ++tab) {
        if (test(GetPageRef(tab), user))
            return GetPageRef(tab);
    }
    return nullptr;
}

LVXPropertyPage* TPropertyDialog::FirstPageThat(PageTestMember test, void* user) {
    for (int tab = 0; tab < GetEntryCount(); ++tab) {
        if ((this->*test)(GetPageRef(tab), user))
            return GetPageRef(tab);
    }
    return nullptr;
}

void TPropertyDialog::ForEachPage(PageAction action, void* user) {
    for (int tab = 0; tab < GetEntryCount(); ++tab)
        action(GetPageRef(tab), user);
}

void TPropertyDialog::ForEachPage(PageActionMember action, void* user) {
    for (int tab = 0; tab < GetEntryCount(); ++tab)
        (this->*action)(GetPageRef(tab), user);
}
