#include "owl/dialog.h"

#include "owl/carried_exception.h"
#include "owl/error.h"
#include "owl/key_message.h"
#include "owl/last_error.h"
#include "owl/message_chain.h"
#include "owl/window_table.h"
#include "owl/window_text.h"

namespace owl {

namespace {

// The dialog whose template is being read on this thread. Controls of our own window classes come before its
// first message if the template names no font, so the scope of other windows would not do.
thread_local TDialog* under_creation = nullptr;

// Of an outer dialog the accelerators count, but not what it would do with the keys of its own controls.
bool IsTakenAbove(HWND dialog, MSG& msg) {
    for (HWND above = AboveForMessages(dialog); above != nullptr; above = AboveForMessages(above)) {
        TWindow* const window = FindWindowObject(above);
        if (window == nullptr)
            continue;
        const bool isDialog = dynamic_cast<TDialog*>(window) != nullptr;
        if (isDialog ? window->TWindow::PreProcessMsg(msg) : window->PreProcessMsg(msg))
            return true;
    }
    return false;
}

}  // namespace

DEFINE_RESPONSE_TABLE1(TDialog, TWindow)
    EV_COMMAND(IDOK, CmOk), EV_COMMAND(IDCANCEL, CmCancel), EV_WM_CLOSE, EV_WM_INITDIALOG, EV_WM_PAINT,
END_RESPONSE_TABLE;

TDialog::TDialog() = default;

TDialog::TDialog(TWindow* parent, TResId resource, TModule* module) {
    Init(parent, resource, module);
}

TDialog::TDialog(TWindow* parent, const DLGTEMPLATE* dialogTemplate, TModule* module)
    : m_template(dialogTemplate) {
    Init(parent, TResId(), module);
}

TDialog::~TDialog() = default;

void TDialog::Init(TWindow* parent, TResId resource, TModule* module) {
    TWindow::Init(parent, nullptr, module);
    EnableAutoCreate(false);
    m_resource = resource;
}

const char* TDialog::GetClassName() {
    return "#32770";
}

INT_PTR CALLBACK TDialog::DialogProcedure(HWND handle, UINT msg, WPARAM wParam, LPARAM lParam) {
    TDialog* const dialog = under_creation;
    if (dialog == nullptr || dialog->IsWindow())
        return FALSE;
    under_creation = nullptr;
    dialog->Attach(handle);
    // Later messages come through the object's procedure, and here only as what the class does with them.
    return msg == WM_INITDIALOG ? dialog->ReceiveMessage(msg, wParam, lParam) : FALSE;
}

void TDialog::PerformCreate() {
    const HWND parent = Parent != nullptr ? Parent->GetHandle() : nullptr;
    TDialog* const outer = under_creation;
    under_creation = this;
    ::SetLastError(0);
    const HWND handle =
        m_template != nullptr
            ? ::CreateDialogIndirectParamA(GetInstance(), m_template, parent, &DialogProcedure, 0)
            : ::CreateDialogParamA(GetInstance(), m_resource, parent, &DialogProcedure, 0);
    const DWORD reason = ::GetLastError();
    under_creation = outer;
    ThrowFailedSetup();
    if (handle == nullptr)
        throw TXWindow(FailureText("CreateDialog", reason), reason);
}

void TDialog::ThrowFailedSetup() {
    try {
        ThrowCarriedException();
    } catch (...) {
        if (IsWindow())
            ::DestroyWindow(GetHandle());
        throw;
    }
}

bool TDialog::Create() {
    if (!IsWindow())
        PerformCreate();
    return true;
}

int TDialog::Execute() {
    return DoExecute();
}

int TDialog::DoExecute() {
    ExpectModal();
    struct Ending {
        ~Ending() {
            dialog.SetModal(false);
            if (dialog.IsWindow())
                ::DestroyWindow(dialog.GetHandle());
        }
        TDialog& dialog;
    } const ending{*this};
    Create();
    // SetupWindow may have decided already.
    if (!IsModal() || !IsWindow())
        return GetModalResult();
    ShowWindow(SW_SHOW);
    return BeginModal(Parent);
}

bool TDialog::EvInitDialog(HWND focus) {
    static_cast<void>(focus);
    AgreeOnCaption();
    SetupWindow();
    return true;
}

void TDialog::CloseWindow(int retVal) {
    if (!MayClose())
        return;
    TransferData(tdGetData);
    Destroy(retVal);
}

void TDialog::CmOk() {
    CloseWindow(IDOK);
}

void TDialog::CmCancel() {
    Destroy(IDCANCEL);
}

// As the command, so that a class which answers Cancel its own way answers the close box too.
void TDialog::EvClose() {
    HandleMessage(WM_COMMAND, IDCANCEL);
}

void TDialog::EvPaint() {
    PaintByObject();
}

// The system takes every key of a dialog: who stands above one that is a child is asked before.
bool TDialog::PreProcessMsg(MSG& msg) {
    if (TWindow::PreProcessMsg(msg))
        return true;
    if (!IsKeyMessage(msg.message))
        return false;
    return IsTakenAbove(GetHandle(), msg) || (IsWindow() && ::IsDialogMessageA(GetHandle(), &msg));
}

void TDialog::MapDialogRect(TRect& rect) const {
    ::MapDialogRect(GetHandle(), &rect);
}

void TDialog::SetDlgItemText(int id, const char* text) {
    ::SetWindowTextA(GetDlgItem(id), text);
}

std::string TDialog::GetDlgItemText(int id) const {
    return TextOfWindow(GetDlgItem(id));
}

void TDialog::CheckDlgButton(int id, UINT check) {
    SendDlgItemMessage(id, BM_SETCHECK, check);
}

UINT TDialog::IsDlgButtonChecked(int id) const {
    return static_cast<UINT>(SendDlgItemMessage(id, BM_GETCHECK));
}

int TDialog::GetDefaultId() const {
    const LRESULT answer = SendMessage(DM_GETDEFID);
    return HIWORD(answer) == DC_HASDEFID ? LOWORD(answer) : 0;
}

void TDialog::SetDefaultId(int id) {
    SendMessage(DM_SETDEFID, static_cast<WPARAM>(id));
}

}  // namespace owl
