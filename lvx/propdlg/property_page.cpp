#include "lvx/propdlg/property_page.h"

#include <utility>

#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_tab.h"
#include "lvx/propdlg/shared_state.h"

namespace {

// While a page hands a command on, its dialog does not ask it whether it is for the page.
class Forwarding {
public:
    explicit Forwarding(const LVXPropertyPage* page) : m_outer(std::exchange(current(), page)) {}
    ~Forwarding() { current() = m_outer; }
    Forwarding(const Forwarding&) = delete;
    Forwarding& operator=(const Forwarding&) = delete;

private:
    static const LVXPropertyPage*& current() { return lvx::propdlg::shared_state().ForwardingPage; }

    const LVXPropertyPage* m_outer;
};

}  // namespace

DEFINE_RESPONSE_TABLE1(LVXPropertyPage, owl::TDialog)
    EV_COMMAND(IDOK, CmOk), EV_COMMAND(IDCANCEL, CmCancel), EV_WM_SYSCOMMAND, EV_WM_CTLCOLOR,
END_RESPONSE_TABLE;

LVXPropertyPage::LVXPropertyPage(owl::TResId resource, owl::TModule* module)
    : TDialog(nullptr, resource, module) {}

LVXPropertyPage::LVXPropertyPage(TPropertyDialog* dialog, owl::TResId resource, owl::TModule* module)
    : TDialog(dialog, resource, module) {}

// One that goes before its dialog leaves its tab behind.
LVXPropertyPage::~LVXPropertyPage() {
    if (PropertyDialog != nullptr)
        PropertyDialog->Forget(*this);
}

// It may have been added to another one since.
void LVXPropertyPage::LeaveDialog(const TPropertyDialog* dialog) {
    if (PropertyDialog == dialog)
        PropertyDialog = nullptr;
}

// Before the strip is set up it is not the parent yet.
TPropertyTab* LVXPropertyPage::Strip() const {
    if (auto* const strip = dynamic_cast<TPropertyTab*>(Parent))
        return strip;
    return PropertyDialog != nullptr ? PropertyDialog->GetTabControl() : nullptr;
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

void LVXPropertyPage::Forward(UINT command) {
    if (PropertyDialog == nullptr)
        return;
    const Forwarding forwarding(this);
    PropertyDialog->HandleMessage(WM_COMMAND, command);
}

void LVXPropertyPage::CmOk() {
    Forward(IDOK);
}

void LVXPropertyPage::CmCancel() {
    Forward(IDCANCEL);
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
