#include "lvx/propdlg/tab_stops.h"

#include "lvx/propdlg/control_calls.h"
#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_page.h"
#include "owl/combo_box.h"

namespace lvx::propdlg {

namespace {

HWND counted(HWND control) {
    const bool isTabStop = control != nullptr && (::GetWindowLongPtrA(control, GWL_STYLE) & WS_TABSTOP) != 0;
    return isTabStop ? control : nullptr;
}

// In front of the first child the search goes around.
HWND last_item(HWND window) {
    const HWND child = window != nullptr ? ::GetWindow(window, GW_CHILD) : nullptr;
    return child != nullptr ? ::GetNextDlgTabItem(window, child, TRUE) : nullptr;
}

bool take_tab_key_in_dialog(TPropertyDialog& dialog, HWND focus, bool forward) {
    TPropertyTab* const strip = dialog.GetTabControl();
    if (strip == nullptr || strip->GetEntryCount() == 0)
        return false;
    LVXPropertyPage& page = *dialog.GetPageRef(-1);
    const HWND next = dialog.GetNextDlgTabItem(focus, !forward);
    if (focus == strip->GetHandle()) {
        if (forward)
            return move_focus(&dialog, page, first_tab_stop(page.GetHandle()));
        if (next != focus)
            return false;
    }
    if (next != strip->GetHandle() || forward)
        return false;
    return move_focus(&dialog, page, last_tab_stop(page.GetHandle()));
}

bool take_tab_key_in_page(LVXPropertyPage& page, HWND focus, bool forward) {
    const HWND edge = forward ? last_tab_stop(page.GetHandle()) : first_tab_stop(page.GetHandle());
    TPropertyDialog* const dialog = page.GetPropertyDialog();
    TPropertyTab* const strip = dialog != nullptr ? dialog->GetTabControl() : nullptr;
    if (edge == nullptr || edge != focus || strip == nullptr)
        return false;
    const HWND control = forward ? dialog->GetNextDlgTabItem(strip->GetHandle()) : strip->GetHandle();
    return move_focus(&page, *dialog, control);
}

}  // namespace

HWND last_tab_stop(HWND window) {
    return counted(last_item(window));
}

HWND first_tab_stop(HWND window) {
    const HWND last = last_item(window);
    return last != nullptr ? counted(::GetNextDlgTabItem(window, last, FALSE)) : nullptr;
}

bool move_focus(owl::TWindow* from, owl::TWindow& to, HWND control) {
    if (control == nullptr)
        return false;
    if (from != nullptr)
        from->PostMessage(WM_NEXTDLGCTL, 0, TRUE);
    to.PostMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    select_text(control);
    return true;
}

FocusOwner find_focus_owner() {
    FocusOwner owner{::GetFocus(), nullptr};
    if (owner.focus == nullptr)
        return owner;
    HWND parent = ::GetParent(owner.focus);
    owner.window = owl::GetWindowPtr(parent);
    // The field in a combo box without an object.
    if (owner.window == nullptr && is_of_class(parent, "COMBOBOX")) {
        owner.focus = parent;
        owner.window = owl::GetWindowPtr(::GetParent(parent));
    }
    if (dynamic_cast<owl::TComboBox*>(owner.window) != nullptr) {
        owner.focus = owner.window->GetHandle();
        owner.window = owner.window->Parent;
    }
    const bool isOurs = dynamic_cast<LVXPropertyPage*>(owner.window) != nullptr ||
                        dynamic_cast<TPropertyDialog*>(owner.window) != nullptr;
    if (!isOurs)
        owner.window = nullptr;
    return owner;
}

bool take_tab_key(const FocusOwner& owner, bool forward) {
    if (auto* const page = dynamic_cast<LVXPropertyPage*>(owner.window))
        return take_tab_key_in_page(*page, owner.focus, forward);
    if (auto* const dialog = dynamic_cast<TPropertyDialog*>(owner.window))
        return take_tab_key_in_dialog(*dialog, owner.focus, forward);
    return false;
}

void step_tabs(const FocusOwner& owner, bool forward) {
    const auto* const page = dynamic_cast<LVXPropertyPage*>(owner.window);
    auto* const dialog =
        page != nullptr ? page->GetPropertyDialog() : dynamic_cast<TPropertyDialog*>(owner.window);
    // By way of its window: what a page throws when it is asked must not cross the hook.
    if (dialog != nullptr)
        dialog->SendMessage(::RegisterWindowMessageA(step_message), forward ? 1 : 0);
}

}  // namespace lvx::propdlg
