#include "lvx/propdlg/property_page.h"

#include "lvx/propdlg/control_calls.h"
#include "lvx/propdlg/hot_key.h"
#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_tab.h"

DEFINE_RESPONSE_TABLE1(LVXPropertyPage, owl::TDialog)
    EV_COMMAND(IDOK, CmOk), EV_COMMAND(IDCANCEL, CmCancel), EV_WM_SYSCOMMAND, EV_WM_CTLCOLOR,
END_RESPONSE_TABLE;

LVXPropertyPage::LVXPropertyPage(owl::TResId resource, owl::TModule* module)
    : TDialog(nullptr, resource, module) {}

LVXPropertyPage::LVXPropertyPage(TPropertyDialog* dialog, owl::TResId resource, owl::TModule* module)
    : TDialog(dialog, resource, module) {}

LVXPropertyPage::~LVXPropertyPage() = default;

TPropertyTab* LVXPropertyPage::Strip() const {
    return dynamic_cast<TPropertyTab*>(Parent);
}

void LVXPropertyPage::SetupWindow() {
    TDialog::SetupWindow();
    if (PropertyDialog != nullptr)
        LVXCentredDialog::LightenFont(this, PropertyDialog->GetFont(), PropertyDialog->Windows95());
}

bool LVXPropertyPage::EvInitDialog(HWND focus) {
    TDialog::EvInitDialog(focus);
    return false;
}

// Escape

bool LVXPropertyPage::PreProcessMsg(MSG& msg) {
    if (msg.message == WM_KEYDOWN && msg.wParam == VK_ESCAPE) {
        PassEscape(msg);
        return true;
    }
    if (msg.message == WM_CHAR && msg.wParam == VK_ESCAPE) {
        if (PropertyDialog != nullptr && lvx::propdlg::is_of_class(msg.hwnd, "EDIT"))
            PropertyDialog->PostMessage(WM_COMMAND, IDCANCEL);
        return true;
    }
    return (msg.message == WM_SYSCHAR && TakeHotKey(PropertyDialog)) || TDialog::PreProcessMsg(msg);
}

// The dialog managers of page and dialog would cancel at once, whatever control it is. The control gets the
// key, so that a list that dropped down can close; but an edit field only as a character, for one of several
// lines closes the dialog that it stands in.
void LVXPropertyPage::PassEscape(MSG& msg) {
    ::TranslateMessage(&msg);
    if (!lvx::propdlg::is_of_class(msg.hwnd, "EDIT"))
        ::DispatchMessageA(&msg);
}

// What a host may override

bool LVXPropertyPage::SelectTab(int tab) {
    TPropertyTab* const strip = Strip();
    return strip != nullptr && strip->SelectTab(TabOrOwn(tab));
}

bool LVXPropertyPage::SelectNext() {
    TPropertyTab* const strip = Strip();
    return strip != nullptr && strip->SelectNext(1);
}

bool LVXPropertyPage::SelectPrevious() {
    TPropertyTab* const strip = Strip();
    return strip != nullptr && strip->SelectNext(-1);
}

void LVXPropertyPage::AfterSelected() {}

bool LVXPropertyPage::BeforeLeaving() {
    return true;
}

bool LVXPropertyPage::CanPageClose() {
    return true;
}

void LVXPropertyPage::AfterCantClose() {
    SelectTab(-1);
}

void LVXPropertyPage::OnRightClick(unsigned, owl::TPoint&) {}

bool LVXPropertyPage::SaveData() {
    TransferData(owl::tdGetData);
    return true;
}

// The page's tab

void LVXPropertyPage::EnableTab(int tab, bool enable) {
    if (TPropertyTab* const strip = Strip())
        strip->EnableTab(TabOrOwn(tab), enable);
}

bool LVXPropertyPage::IsTabEnabled(int tab) {
    const TPropertyTab* const strip = Strip();
    return strip != nullptr && strip->IsTabEnabled(TabOrOwn(tab));
}

std::string LVXPropertyPage::GetTabText(int tab) {
    const TPropertyTab* const strip = Strip();
    return strip != nullptr ? strip->GetTabText(TabOrOwn(tab)) : std::string();
}

void LVXPropertyPage::SetTabText(int tab, const char* text) {
    if (TPropertyTab* const strip = Strip())
        strip->SetTabText(TabOrOwn(tab), text);
}

// The dialog

void LVXPropertyPage::CmOk() {
    if (PropertyDialog != nullptr)
        PropertyDialog->SendMessage(WM_COMMAND, IDOK);
}

void LVXPropertyPage::CmCancel() {
    if (PropertyDialog != nullptr)
        PropertyDialog->SendMessage(WM_COMMAND, IDCANCEL);
}

HBRUSH LVXPropertyPage::EvCtlColor(HDC dc, HWND control, UINT type) {
    return PropertyDialog != nullptr ? PropertyDialog->EvCtlColor(dc, control, type)
                                     : TDialog::EvCtlColor(dc, control, type);
}

owl::TWindow* LVXPropertyPage::GetParentWindow() const {
    owl::TWindow* window = PropertyDialog;
    while (window != nullptr && window->Parent != nullptr &&
           (window->GetStyle() & (WS_BORDER | WS_DLGFRAME)) == 0)
        window = window->Parent;
    return window;
}

int LVXPropertyPage::MessageBox(const char* text, const char* caption, UINT type) {
    owl::TWindow* const owner = GetParentWindow();
    return owner != nullptr ? owner->MessageBox(text, caption, type)
                            : TDialog::MessageBox(text, caption, type);
}

// Hot keys

void LVXPropertyPage::EvSysCommand(UINT command, const owl::TPoint& point) {
    if ((command & 0xFFF0) == SC_KEYMENU && CheckHotKey(PropertyDialog))
        return;
    TDialog::EvSysCommand(command, point);
}

// A control that gets Alt and a letter asks for a menu then, and nobody above it hears of that. What the
// dialog manager knows of is left to it.
bool LVXPropertyPage::TakeHotKey(owl::TDialog* dialog) {
    return !lvx::propdlg::has_control_with_key(GetHandle(), lvx::propdlg::pressed_key()) &&
           CheckHotKey(dialog);
}

bool LVXPropertyPage::CheckHotKey(owl::TDialog* dialog) {
    const char key = lvx::propdlg::pressed_key();
    TPropertyTab* const strip = Strip();
    if (strip != nullptr && strip->SelectTabByKey(key))
        return true;
    return key != 0 && ClickByKey(dialog != nullptr ? *dialog : *this, key);
}

// The key of a label is that of the field behind it.
bool LVXPropertyPage::ClickByKey(const owl::TDialog& dialog, char key) {
    for (HWND child = ::GetWindow(dialog.GetHandle(), GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        const std::string text = lvx::propdlg::text_of_control(child);
        if (!::IsWindowEnabled(child) || lvx::propdlg::hot_key_of(text) != key)
            continue;
        const bool isTabStop = (::GetWindowLongPtrA(child, GWL_STYLE) & WS_TABSTOP) != 0;
        const HWND control = isTabStop ? child : dialog.GetNextDlgTabItem(child);
        ::SendMessageA(control, WM_LBUTTONDOWN, MK_LBUTTON, 0);
        ::SendMessageA(control, WM_LBUTTONUP, MK_LBUTTON, 0);
        lvx::propdlg::select_text(control);
        return true;
    }
    return false;
}
