// How a property dialog begins and ends, and what it does with messages.
#include "lvx/propdlg/property_dialog.h"

#include <utility>

#include "lvx/propdlg/control_calls.h"
#include "lvx/propdlg/control_keys.h"
#include "lvx/propdlg/pressed_key.h"
#include "lvx/propdlg/property_page.h"
#include "lvx/propdlg/shared_state.h"
#include "lvx/propdlg/step_message.h"
#include "owl/application.h"
#include "owl/command_enabler.h"
#include "owl/module.h"

using lvx::propdlg::shared_state;

namespace {

// Commands with lower ids close the dialog.
constexpr UINT first_command_of_pages = 3;
// Controls, from edit fields and lists on; the dialog itself and its buttons lie behind them.
constexpr UINT first_coloured_type = 3;
// In dialog units, on each side.
constexpr int strip_margin = 4;

}  // namespace

owl::TBrush* TPropertyDialog::brushGray = nullptr;

// Not by a macro: the selected page is asked first.
bool TPropertyDialog::Find(owl::TEventInfo& info) {
    const bool isCommand = info.Msg == WM_COMMAND || info.Msg == WM_COMMAND_ENABLE;
    if (isCommand && FoundAtPage(info))
        return true;
    return owl::SearchEntries<TPropertyDialog>(*this, __entries, info) || LVXCentredDialog::Find(info);
}

bool TPropertyDialog::FoundAtPage(owl::TEventInfo& info) const {
    LVXPropertyPage* const page = GetPageRef(-1);
    return page != nullptr && page != shared_state().ForwardingPage && page->Find(info);
}

OWL_BEGIN_ENTRIES(TPropertyDialog)
EV_COMMAND(IDOK, CmOk),
    EV_COMMAND(IDCANCEL, CmCancel), EV_WM_DESTROY, EV_WM_SIZE, EV_WM_SYSCOMMAND, EV_WM_CTLCOLOR,
    EV_REGISTERED(lvx::propdlg::step_message_name, EvStepTabs),
END_RESPONSE_TABLE
;

TPropertyDialog::TPropertyDialog(owl::TWindow* parent, owl::TResId resource, Tab::Style style,
                                 owl::TModule* module)
    : LVXCentredDialog(parent, resource, module), TabStyle(style) {
    Begin(owl::TResId(), false);
}

TPropertyDialog::TPropertyDialog(owl::TWindow* parent, owl::TResId resource, Tab::Style style,
                                 owl::TResId bitmap, bool bitmapsOnRight, owl::TModule* module)
    : LVXCentredDialog(parent, resource, module), TabStyle(style | Tab::UseTabBitmaps) {
    Begin(bitmap, bitmapsOnRight);
}

void TPropertyDialog::Begin(owl::TResId bitmap, bool bitmapsOnRight) {
    TabControl = new TPropertyTab(this, TabStyle, bitmap, bitmapsOnRight);
    SetModal(false);
}

TPropertyDialog::~TPropertyDialog() {
    if (TabControl == nullptr)
        return;
    // Pages that still have windows go with the strip.
    delete std::exchange(TabControl, nullptr);
    if (shared_state().PropertyTabs.IsEmpty())
        RemoveHook();
}

void TPropertyDialog::RemoveHook() {
    if (shared_state().HookHandle != nullptr)
        ::UnhookWindowsHookEx(std::exchange(shared_state().HookHandle, nullptr));
    delete std::exchange(brushGray, nullptr);
}

void TPropertyDialog::SetHookInstance(HINSTANCE instance) {
    shared_state().HookInstance = instance;
}

void TPropertyDialog::TabColorChange(owl::TApplication*) {
    for (TPropertyTab* const strip : shared_state().PropertyTabs)
        strip->TabColorChange();
}

// Setting up

void TPropertyDialog::SetupWindow() {
    LVXCentredDialog::SetupWindow();
    // Messages were handled: one of them may have closed the dialog.
    if (!IsWindow())
        return;
    if (Tab::Has(TabStyle, Tab::UseSmallFont))
        lvx::propdlg::apply_small_font(GetHandle());
    if (GetEntryCount() == 0)
        DropStrip();
    else
        PlaceStrip();
    if (IsWindow() && Tab::Has(TabStyle, Tab::CenterDialog))
        Centre(this);
}

void TPropertyDialog::DropStrip() {
    lvx::propdlg::forget_strip(TabControl);
    delete std::exchange(TabControl, nullptr);
}

void TPropertyDialog::PlaceStrip() {
    Register();
    owl::TRect rect = GetClientRect();
    SizeTabWnd(rect);
    MoveTabsAfterControl(nullptr, true);
    if (Tab::Has(TabStyle, Tab::FocusOnFirstControl))
        TabControl->SetPageFocus(true);
}

// The first dialog brings the hook and the brush. They may still be there from one that was closed and not
// deleted yet.
void TPropertyDialog::Register() {
    if (shared_state().PropertyTabs.IsEmpty()) {
        if (brushGray == nullptr)
            brushGray = new owl::TBrush(owl::TColor(::GetSysColor(COLOR_BTNFACE)));
        if (shared_state().HookHandle == nullptr)
            InstallHook();
    }
    lvx::propdlg::forget_strip(TabControl);
    shared_state().PropertyTabs.Add(TabControl);
}

void TPropertyDialog::InstallHook() const {
    auto& shared = shared_state();
    if (shared.HookInstance == nullptr && GetModule() != nullptr)
        shared.HookInstance = GetModule()->GetInstance();
    shared.HookHandle =
        ::SetWindowsHookExA(WH_KEYBOARD, &PropdlgKbdProc, shared.HookInstance, ::GetCurrentThreadId());
}

bool TPropertyDialog::EvInitDialog(HWND focus) {
    LVXCentredDialog::EvInitDialog(focus);
    return TabControl == nullptr;
}

void TPropertyDialog::Forget(const LVXPropertyPage& page) {
    if (TabControl != nullptr)
        TabControl->ForgetPage(page);
}

void TPropertyDialog::Add(const char* text, LVXPropertyPage* page, bool enabled) {
    if (page == nullptr || TabControl == nullptr)
        return;
    page->PropertyDialog = this;
    page->TabIndex = GetEntryCount();
    TabControl->Add(text, page, enabled);
}

// Room for the strip

owl::TSize TPropertyDialog::Margin() const {
    owl::TRect margin(0, 0, strip_margin, strip_margin);
    MapDialogRect(margin);
    return margin.Size();
}

void TPropertyDialog::SizeTabWnd(owl::TRect& rect) {
    if (TabControl == nullptr)
        return;
    if (Tab::Has(TabStyle, Tab::WizardFrame)) {
        // The rows, which a wizard does not show, lie above the dialog.
        rect =
            owl::TRect(rect.left - 2, rect.top - TabControl->GetTabHeight(), rect.right + 2, rect.bottom + 2);
    } else {
        rect.Inflate(-Margin().Width(), -Margin().Height());
    }
    AdjustMargin(rect);
    TabControl->SetWindowPos(nullptr, rect, SWP_NOZORDER);
    TabControl->Invalidate(true);
}

void TPropertyDialog::AdjustMargin(owl::TRect& rect) {
    const HWND button = GetDlgItem(IDOK);
    if (button == nullptr)
        return;
    owl::TRect place;
    ::GetWindowRect(button, &place);
    owl::TPoint corner = place.TopLeft();
    ScreenToClient(corner);
    if (Tab::Has(TabStyle, Tab::ButtonsOnRight))
        rect.right = corner.x - Margin().Width();
    else
        rect.bottom = corner.y - Margin().Height();
}

void TPropertyDialog::EvSize(UINT how, const owl::TSize& size) {
    LVXCentredDialog::EvSize(how, size);
    if (how == SIZE_MINIMIZED || TabControl == nullptr || !TabControl->IsWindow() ||
        !Tab::Has(TabStyle, Tab::AutoTabResize))
        return;
    owl::TRect rect = GetClientRect();
    SizeTabWnd(rect);
}

// Coming to an end

int TPropertyDialog::DoExecute() {
    return LVXCentredDialog::DoExecute();
}

void TPropertyDialog::CmOk() {
    if (Tab::Has(TabStyle, Tab::NoMDIClose))
        return;
    if (TPropertyTab* const strip = TabControl) {
        const bool wasOpen = IsWindow();
        if (!strip->CheckCanClose() || !strip->SavePageData())
            return;
        // A page that was asked may have closed the dialog, with a result of its own.
        if (!lvx::propdlg::is_alive(strip) || IsWindow() != wasOpen)
            return;
    }
    CloseAction(IDOK);
}

void TPropertyDialog::CmCancel() {
    CloseAction(IDCANCEL);
}

void TPropertyDialog::CloseAction(int id) {
    if (Tab::Has(TabStyle, Tab::NoMDIClose))
        return;
    if (id == IDOK)
        owl::TDialog::CmOk();
    else if (id == IDCANCEL)
        owl::TDialog::CmCancel();
    else
        CloseWindow(id);
}

void TPropertyDialog::CloseStrip() {
    if (TabControl == nullptr)
        return;
    TabControl->DestroyPages();
    lvx::propdlg::forget_strip(TabControl);
}

void TPropertyDialog::Destroy(int retVal) {
    if (retVal != 0 && IsModal())
        EndModal(retVal);
    CloseStrip();
    SetModal(false);
    LVXCentredDialog::Destroy(retVal);
}

void TPropertyDialog::EvDestroy() {
    CloseStrip();
    LVXCentredDialog::EvDestroy();
}

// Messages

LRESULT TPropertyDialog::EvCommand(UINT id, HWND control, UINT notifyCode) {
    owl::TEventInfo info(WM_COMMAND, id);
    if (control == nullptr && id >= first_command_of_pages && FoundAtPage(info))
        return GetPageRef(-1)->EvCommand(id, control, notifyCode);
    return owl::TWindow::EvCommand(id, control, notifyCode);
}

LRESULT TPropertyDialog::EvStepTabs(WPARAM forward, LPARAM) {
    return forward != 0 ? SelectNext() : SelectPrevious();
}

// The dialog manager does not know of the tabs.
bool TPropertyDialog::PreProcessMsg(MSG& msg) {
    const auto isOwnKey = [&] {
        return lvx::propdlg::has_control_with_key(GetHandle(),
                                                  lvx::propdlg::upper_case(static_cast<char>(msg.wParam)));
    };
    LVXPropertyPage* const page = msg.message == WM_SYSCHAR ? GetPageRef(-1) : nullptr;
    if (page != nullptr && !isOwnKey() && page->CheckHotKey(nullptr))
        return true;
    return LVXCentredDialog::PreProcessMsg(msg);
}

void TPropertyDialog::EvSysCommand(UINT command, const owl::TPoint& point) {
    LVXPropertyPage* const page = (command & 0xFFF0) == SC_KEYMENU ? GetPageRef(-1) : nullptr;
    if (page != nullptr && page->CheckHotKey(nullptr))
        return;
    LVXCentredDialog::EvSysCommand(command, point);
}

HBRUSH TPropertyDialog::EvCtlColor(HDC dc, HWND control, UINT type) {
    if (!shared_state().ModernShell || brushGray == nullptr || type < first_coloured_type)
        return LVXCentredDialog::EvCtlColor(dc, control, type);
    ::SetTextColor(dc, ::IsWindowEnabled(control) ? 0 : ::GetSysColor(COLOR_GRAYTEXT));
    ::SetBkColor(dc, ::GetSysColor(COLOR_BTNFACE));
    return *brushGray;
}
