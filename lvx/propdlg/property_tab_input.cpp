// What a strip does with the mouse, the keys, the focus and its size.
#include "lvx/propdlg/accessible_tabs.h"
#include "lvx/propdlg/property_page.h"
#include "lvx/propdlg/property_tab.h"
#include "lvx/propdlg/shared_state.h"
#include "lvx/propdlg/strip_surface.h"

DEFINE_RESPONSE_TABLE1(TPropertyTab, owl::TControl)
    EV_WM_LBUTTONDOWN, EV_WM_RBUTTONDOWN, EV_WM_SIZE, EV_WM_SETFOCUS, EV_WM_KILLFOCUS, EV_WM_KEYDOWN,
        EV_WM_GETDLGCODE, EV_MESSAGE(WM_GETOBJECT, EvGetObject),
        EV_REGISTERED(lvx::propdlg::choose_message, EvChooseTab),
END_RESPONSE_TABLE;

void TPropertyTab::EvLButtonDown(UINT, const owl::TPoint& point) {
    using lvx::propdlg::StripPart;
    switch (Arithmetic(*this)->PartAt(point)) {
        case StripPart::LeftArrow:
            NextOrigin(-1);
            break;
        case StripPart::RightArrow:
            NextOrigin(1);
            break;
        case StripPart::DimmedArrow:
            break;
        case StripPart::Tabs:
            SelectTab(GetMouseTab(point));
            break;
    }
}

void TPropertyTab::EvRButtonDown(UINT modifiers, const owl::TPoint& point) {
    const int tab = GetMouseTab(point);
    if (tab < 0)
        return;
    owl::TPoint where = point;
    if (LVXPropertyPage* const page = GetPage(tab))
        page->OnRightClick(modifiers, where);
}

void TPropertyTab::EvKeyDown(UINT key, UINT repeat, UINT flags) {
    // Ctrl+PageUp and Ctrl+PageDown come by the keyboard hook. Ctrl may have been let go while it stepped.
    if (::GetKeyState(VK_CONTROL) < 0 || lvx::propdlg::shared_state().SteppedKey.key == key)
        return;
    switch (key) {
        case VK_PRIOR:
        case VK_LEFT:
        case VK_UP:
            SelectNext(-1);
            break;
        case VK_NEXT:
        case VK_RIGHT:
        case VK_DOWN:
            SelectNext(1);
            break;
        default:
            TControl::EvKeyDown(key, repeat, flags);
    }
}

UINT TPropertyTab::EvGetDlgCode(MSG* msg) {
    return TControl::EvGetDlgCode(msg) | DLGC_WANTARROWS;
}

void TPropertyTab::EvSetFocus(HWND lost) {
    TControl::EvSetFocus(lost);
    InvalidateFocusMark();
}

// By the handler of the other message, on purpose: either goes on with the message that is being handled.
void TPropertyTab::EvKillFocus(HWND gets) {
    TControl::EvSetFocus(gets);
    InvalidateFocusMark();
}

void TPropertyTab::InvalidateFocusMark() {
    owl::TRect rect;
    GetTabRect(rect, SelectedTab, -1);
    InvalidateRect(owl::TRect(rect.left, rect.top, rect.right + 1, rect.bottom + 2), false);
}

void TPropertyTab::EvSize(UINT how, const owl::TSize& size) {
    TControl::EvSize(how, size);
    Arithmetic(*this)->Resized();
}

LRESULT TPropertyTab::EvCommand(UINT id, HWND control, UINT notifyCode) {
    if (control == nullptr && Parent != nullptr)
        return Parent->EvCommand(id, control, notifyCode);
    return TControl::EvCommand(id, control, notifyCode);
}

// A wizard shows no tabs that could be told of.
LRESULT TPropertyTab::EvGetObject(WPARAM flags, LPARAM object) {
    if (static_cast<LONG>(object) != OBJID_CLIENT || Tab::Has(Style, Tab::WizardFrame))
        return DefaultProcessing();
    auto* const tabs = new lvx::propdlg::AccessibleTabs(*this);
    const LRESULT answer = ::LresultFromObject(__uuidof(IAccessible), flags, tabs);
    tabs->Release();
    return answer;
}

LRESULT TPropertyTab::EvChooseTab(WPARAM tab, LPARAM) {
    const int index = static_cast<int>(tab);
    if (index >= 0 && index < GetEntryCount() && IsTabEnabled(index))
        SelectTab(index);
    return 0;
}

void TPropertyTab::TellScreenReaders(DWORD event, int tab) const {
    if (IsWindow())
        ::NotifyWinEvent(event, GetHandle(), OBJID_CLIENT, tab + 1);
}
