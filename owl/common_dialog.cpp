#include "owl/common_dialog.h"

#include <utility>

#include "owl/carried_exception.h"
#include "owl/common_dialog_text.h"
#include "owl/condemned.h"

namespace owl {

namespace {

thread_local TCommonDialog* awaited = nullptr;

// While it lives, the next dialog of the system on this thread is that of `dialog`.
class Awaiting {
public:
    explicit Awaiting(TCommonDialog& dialog) : m_outer(std::exchange(awaited, &dialog)) {}
    ~Awaiting() { awaited = m_outer; }
    Awaiting(const Awaiting&) = delete;
    Awaiting& operator=(const Awaiting&) = delete;

private:
    TCommonDialog* m_outer;
};

// Some systems keep the reason of an older failure when the user cancels a dialog. This one cannot be that of
// a dialog of ours.
DWORD LeaveKnownError() {
    PRINTDLGA withoutSize{};
    ::PrintDlgA(&withoutSize);
    return ::CommDlgExtendedError();
}

}  // namespace

DEFINE_RESPONSE_TABLE1(TCommonDialog, TDialog)
    EV_COMMAND(IDOK, CmOk), EV_COMMAND(IDCANCEL, CmCancel), EV_WM_PAINT,
END_RESPONSE_TABLE;

TXCommonDialog::TXCommonDialog(const char* call, unsigned long code)
    : TXWindow(std::string(call) + ": " + CommonDialogText(code), code) {}

TXCommonDialog::~TXCommonDialog() = default;

TCommonDialog::TCommonDialog(TWindow* parent, const char* title, TModule* module) {
    Init(parent, TResId(), module);
    SetWindowText(title != nullptr ? title : "");
}

TCommonDialog::~TCommonDialog() = default;

bool TCommonDialog::Create() {
    PerformCreate();
    return true;
}

void TCommonDialog::PerformCreate() {
    throw TXWindow("a dialog of the system is run by Execute, not created");
}

int TCommonDialog::RunDialog(const char* call, DWORD& error, const std::function<bool()>& show) {
    if (IsModal())
        throw TXWindow("the dialog is shown already");
    // The parent may end with a message that the system's loop handles, but not its object.
    const FunctionScope function;
    m_givenUp = false;
    SetModal(true);
    const DWORD known = LeaveKnownError();
    bool agreed = false;
    {
        const Awaiting awaiting(*this);
        agreed = show();
    }
    const DWORD left = ::CommDlgExtendedError();
    error = agreed || left == known ? 0 : left;
    SetModal(false);
    ThrowCarriedException();
    if (error != 0)
        throw TXCommonDialog(call, error);
    return agreed ? IDOK : IDCANCEL;
}

UINT_PTR CALLBACK TCommonDialog::HookProcedure(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg != WM_INITDIALOG || awaited == nullptr)
        return FALSE;
    return awaited->TakeOver(dialog, wParam, lParam);
}

TCommonDialog* TCommonDialog::Awaited() {
    return awaited;
}

bool TCommonDialog::TakeOver(HWND dialog, WPARAM focus, LPARAM lParam) {
    awaited = nullptr;
    Attach(dialog);
    return ReceiveMessage(WM_INITDIALOG, focus, lParam) != FALSE;
}

// Execute throws on what is carried, as soon as the system's loop lets go. Not at once: the system may be in
// the middle of its own preparations.
void TCommonDialog::ExceptionCarried() {
    m_givenUp = true;
    PostMessage(WM_COMMAND, IDCANCEL);
}

LRESULT TCommonDialog::WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) {
    if (m_givenUp && msg != WM_DESTROY)
        return DefWindowProc(msg, wParam, lParam);
    return TDialog::WindowProc(msg, wParam, lParam);
}

void TCommonDialog::CloseWindow(int retVal) {
    if (!MayClose())
        return;
    if (retVal != IDOK) {
        Destroy();
        return;
    }
    TransferData(tdGetData);
    Press(IDOK);
}

void TCommonDialog::Destroy(int retVal) {
    static_cast<void>(retVal);
    Press(IDCANCEL);
}

// Past the tables: a class that answers a button may close the dialog that way.
void TCommonDialog::Press(int id) {
    if (IsWindow())
        DefWindowProc(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(GetDlgItem(id)));
}

void TCommonDialog::CmOk() {
    CloseWindow(IDOK);
}

void TCommonDialog::CmCancel() {
    Destroy();
}

void TCommonDialog::EvPaint() {
    DefaultProcessing();
}

HWND TCommonDialog::GetOwnerHandle() const {
    return Parent != nullptr ? Parent->GetHandle() : nullptr;
}

}  // namespace owl
