#include "lvx/propdlg/tab_stops.h"

#include "lvx/propdlg/control_calls.h"
#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_page.h"
#include "lvx/propdlg/tab_key.h"
#include "owl/combo_box.h"

namespace lvx::propdlg {

namespace {

HWND if_tab_stop(HWND control) {
    const bool isTabStop = control != nullptr && (::GetWindowLongA(control, GWL_STYLE) & WS_TABSTOP) != 0;
    return isTabStop ? control : nullptr;
}

// In front of the first child the search goes around.
HWND last_item(HWND window) {
    const HWND child = window != nullptr ? ::GetWindow(window, GW_CHILD) : nullptr;
    return child != nullptr ? ::GetNextDlgTabItem(window, child, TRUE) : nullptr;
}

// A control, or a window around it, and the object in which it stands.
struct Inside {
    HWND control;
    owl::TWindow* owner;
};

// A combo box is one control for the dialog manager, whichever of its parts has the focus.
Inside out_of_combo_box(HWND control) {
    const HWND parent = ::GetParent(control);
    Inside inside{control, owl::GetWindowPtr(parent)};
    if (inside.owner == nullptr && is_of_class(parent, "COMBOBOX"))
        inside = {parent, owl::GetWindowPtr(::GetParent(parent))};
    if (dynamic_cast<owl::TComboBox*>(inside.owner) != nullptr)
        inside = {inside.owner->GetHandle(), inside.owner->Parent};
    return inside;
}

TPropertyTab* strip_of(const TPropertyDialog* dialog) {
    return dialog != nullptr ? dialog->GetTabControl() : nullptr;
}

// The dialog of the place, be that in the dialog itself or in a page of it.
TPropertyDialog* dialog_around(const FocusPlace& focus) {
    return focus.page != nullptr ? focus.page->GetPropertyDialog() : focus.dialog;
}

TabKeyPlace place_in_page(const FocusPlace& focus, bool forward) {
    const HWND page = focus.page->GetHandle();
    const HWND edge = forward ? last_tab_stop(page) : first_tab_stop(page);
    return {.owner = KeyOwner::Page, .forward = forward, .onEdge = edge != nullptr && edge == focus.control};
}

TabKeyPlace place_in_dialog(const FocusPlace& focus, const TPropertyTab& strip, bool forward) {
    const HWND next = focus.dialog->GetNextDlgTabItem(focus.control, !forward);
    return {.owner = KeyOwner::Dialog,
            .forward = forward,
            .hasStrip = true,
            .onStrip = focus.control == strip.GetHandle(),
            .nextIsStrip = next == strip.GetHandle(),
            .nextIsFocus = next == focus.control};
}

// The dialog or page that is to give a control of its own the focus, and which one.
struct Target {
    HWND dialog;
    HWND control;
};

Target target_of(TabKeyMove move, const TPropertyDialog& dialog, const TPropertyTab& strip) {
    const LVXPropertyPage* const selected = dialog.GetPageRef(-1);
    const HWND page = selected != nullptr ? selected->GetHandle() : nullptr;
    switch (move) {
        case TabKeyMove::IntoPageFirst:
            return {page, first_tab_stop(page)};
        case TabKeyMove::IntoPageLast:
            return {page, last_tab_stop(page)};
        case TabKeyMove::ToStrip:
            return {dialog.GetHandle(), strip.GetHandle()};
        case TabKeyMove::BehindStrip:
            return {dialog.GetHandle(), dialog.GetNextDlgTabItem(strip.GetHandle())};
        case TabKeyMove::Nothing:
            break;
    }
    return {nullptr, nullptr};
}

}  // namespace

HWND last_tab_stop(HWND window) {
    return if_tab_stop(last_item(window));
}

HWND first_tab_stop(HWND window) {
    const HWND last = last_item(window);
    return last != nullptr ? if_tab_stop(::GetNextDlgTabItem(window, last, FALSE)) : nullptr;
}

bool move_focus(HWND from, HWND to, HWND control) {
    if (control == nullptr)
        return false;
    // Its default button is the outer dialog's again.
    if (from != nullptr)
        ::PostMessageA(from, WM_NEXTDLGCTL, 0, TRUE);
    ::PostMessageA(to, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    select_text(control);
    return true;
}

FocusPlace find_focus() {
    const HWND control = ::GetFocus();
    if (control == nullptr)
        return {};
    const Inside inside = out_of_combo_box(control);
    if (auto* const page = dynamic_cast<LVXPropertyPage*>(inside.owner))
        return {inside.control, page, nullptr};
    return {inside.control, nullptr, dynamic_cast<TPropertyDialog*>(inside.owner)};
}

bool take_tab_key(const FocusPlace& focus, bool forward) {
    const TPropertyDialog* const dialog = dialog_around(focus);
    const TPropertyTab* const strip = strip_of(dialog);
    if (strip == nullptr)
        return false;
    const TabKeyPlace place =
        focus.page != nullptr ? place_in_page(focus, forward) : place_in_dialog(focus, *strip, forward);
    const HWND from = focus.page != nullptr ? focus.page->GetHandle() : dialog->GetHandle();
    const Target target = target_of(move_by_tab_key(place), *dialog, *strip);
    return move_focus(from, target.dialog, target.control);
}

}  // namespace lvx::propdlg
