// What a page does with Escape and with hot keys.
#include "lvx/propdlg/control_calls.h"
#include "lvx/propdlg/control_keys.h"
#include "lvx/propdlg/pressed_key.h"
#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_page.h"
#include "lvx/propdlg/property_tab.h"

namespace {

// The dialog manager would cancel the page at once, whatever control it is. The control gets the key, so that
// a list that has dropped down closes; but an edit field gets it as a character alone, for one of several
// lines closes the dialog that it stands in by itself.
void deliver_escape(const MSG& msg) {
    ::TranslateMessage(&msg);
    if (!lvx::propdlg::is_of_class(msg.hwnd, "EDIT"))
        ::DispatchMessageA(&msg);
}

}  // namespace

bool LVXPropertyPage::PreProcessMsg(MSG& msg) {
    if (msg.message == WM_KEYDOWN && msg.wParam == VK_ESCAPE) {
        deliver_escape(msg);
        return true;
    }
    if (msg.message == WM_CHAR && msg.wParam == VK_ESCAPE) {
        CancelFrom(msg.hwnd);
        return true;
    }
    // The dialog manager looks no further than this page.
    if (msg.message == WM_SYSCHAR && !HasHotKey(static_cast<char>(msg.wParam)) && CheckHotKey(PropertyDialog))
        return true;
    return TDialog::PreProcessMsg(msg);
}

void LVXPropertyPage::CancelFrom(HWND control) {
    if (PropertyDialog != nullptr && lvx::propdlg::is_of_class(control, "EDIT"))
        PropertyDialog->PostMessage(WM_COMMAND, IDCANCEL);
}

bool LVXPropertyPage::HasHotKey(char key) const {
    return lvx::propdlg::has_control_with_key(GetHandle(), lvx::propdlg::upper_case(key));
}

void LVXPropertyPage::EvSysCommand(UINT command, const owl::TPoint& point) {
    if ((command & 0xFFF0) == SC_KEYMENU && CheckHotKey(PropertyDialog))
        return;
    TDialog::EvSysCommand(command, point);
}

bool LVXPropertyPage::CheckHotKey(owl::TDialog* dialog) {
    const char key = lvx::propdlg::pressed_key();
    TPropertyTab* const strip = Strip();
    if (strip != nullptr && strip->SelectTabByKey(key))
        return true;
    const owl::TDialog& searched = dialog != nullptr ? *dialog : *this;
    return lvx::propdlg::click_by_key(searched.GetHandle(), key);
}
