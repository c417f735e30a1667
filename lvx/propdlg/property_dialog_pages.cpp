// What a property dialog passes on to its strip and its pages.
#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_page.h"
#include "lvx/propdlg/tab_stops.h"

namespace {

// Pages may be added by what is called, and go by it.
template <class Test>
LVXPropertyPage* first_page(const TPropertyDialog& dialog, const Test& test) {
    for (int tab = 0; tab < dialog.GetEntryCount(); ++tab) {
        LVXPropertyPage* const page = dialog.GetPageRef(tab);
        if (page != nullptr && test(page))
            return page;
    }
    return nullptr;
}

template <class Action>
void each_page(const TPropertyDialog& dialog, const Action& action) {
    first_page(dialog, [&](LVXPropertyPage* page) {
        action(page);
        return false;
    });
}

}  // namespace

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
        lvx::propdlg::move_focus(nullptr, GetHandle(), lvx::propdlg::first_tab_stop(GetHandle()));
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
    each_page(*this, [&](LVXPropertyPage* page) { answer = page->SendMessage(msg, wParam, lParam); });
    return answer;
}

LVXPropertyPage* TPropertyDialog::FirstPageThat(PageTest test, void* user) {
    return first_page(*this, [&](LVXPropertyPage* page) { return test(page, user); });
}

LVXPropertyPage* TPropertyDialog::FirstPageThat(PageTestMember test, void* user) {
    return first_page(*this, [&](LVXPropertyPage* page) { return (this->*test)(page, user); });
}

void TPropertyDialog::ForEachPage(PageAction action, void* user) {
    each_page(*this, [&](LVXPropertyPage* page) { action(page, user); });
}

void TPropertyDialog::ForEachPage(PageActionMember action, void* user) {
    each_page(*this, [&](LVXPropertyPage* page) { (this->*action)(page, user); });
}
