// How a window object gets its window and loses it.
#include "owl/application.h"
#include "owl/carried_exception.h"
#include "owl/condemned.h"
#include "owl/error.h"
#include "owl/last_error.h"
#include "owl/window.h"
#include "owl/window_procedures.h"
#include "owl/window_table.h"

namespace owl {

namespace {

HINSTANCE InstanceOf(const TWindow& window) {
    const TModule* const module = window.GetModule();
    return module != nullptr ? module->GetInstance() : ::GetModuleHandleA(nullptr);
}

}  // namespace

bool TWindow::Create() {
    if (m_handle != nullptr)
        return true;
    if (!TakeFromResource()) {
        RegisterClass();
        PerformCreate();
    }
    FinishCreation();
    return true;
}

bool TWindow::TakeFromResource() {
    if (!IsFlagSet(wfFromResource))
        return false;
    const HWND control = Parent != nullptr ? Parent->GetDlgItem(Attr.Id) : nullptr;
    if (control == nullptr)
        throw TXWindow("the dialog has no control " + std::to_string(Attr.Id));
    Attach(control);
    m_title = GetWindowText();
    return true;
}

void TWindow::FinishCreation() {
    try {
        ThrowCarriedException();
        SetupWindow();
    } catch (...) {
        if (m_handle != nullptr && !IsFlagSet(wfFromResource))
            ::DestroyWindow(m_handle);
        throw;
    }
}

void TWindow::SetupWindow() {
    CreateChildren();
    TransferData(tdSetData);
}

void TWindow::CleanupWindow() {}

const char* TWindow::GetClassName() {
    return "OwlWindow";
}

void TWindow::GetWindowClass(WNDCLASSA& windowClass) {
    windowClass = {};
    windowClass.style = CS_DBLCLKS;
    windowClass.lpfnWndProc = &WindowProcedures::OfObjects;
    windowClass.hInstance = InstanceOf(*this);
    windowClass.hCursor = ::LoadCursorA(nullptr, reinterpret_cast<const char*>(IDC_ARROW));
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<ULONG_PTR>(COLOR_WINDOW + 1));
    windowClass.lpszClassName = GetClassName();
}

void TWindow::RegisterClass() {
    WNDCLASSA existing{};
    if (::GetClassInfoA(InstanceOf(*this), GetClassName(), &existing))
        return;
    WNDCLASSA windowClass{};
    GetWindowClass(windowClass);
    Require<TXWindow>("RegisterClass", [&] { return ::RegisterClassA(&windowClass); });
}

HMENU TWindow::MenuOrId() const {
    if ((Attr.Style & WS_CHILD) != 0)
        return reinterpret_cast<HMENU>(static_cast<LONG_PTR>(Attr.Id));
    if (Attr.Menu.IsNull() || GetModule() == nullptr)
        return nullptr;
    return GetModule()->LoadMenu(Attr.Menu);
}

void TWindow::PerformCreate() {
    const HMENU menu = MenuOrId();
    const HWND parent = Parent != nullptr ? Parent->GetHandle() : nullptr;
    const CreationScope scope(*this);
    ::SetLastError(0);
    const HWND handle =
        ::CreateWindowExA(Attr.ExStyle, GetClassName(), m_title.c_str(), Attr.Style, Attr.X, Attr.Y, Attr.W,
                          Attr.H, parent, menu, InstanceOf(*this), Attr.Param);
    if (handle == nullptr) {
        const DWORD reason = ::GetLastError();
        if (menu != nullptr && (Attr.Style & WS_CHILD) == 0)
            ::DestroyMenu(menu);
        ThrowCarriedException();
        throw TXWindow(FailureText("CreateWindow", reason), reason);
    }
    if (m_handle == nullptr)
        Attach(handle);
}

// A window of a class of ours comes through our procedure already.
void TWindow::Attach(HWND handle) {
    m_handle = handle;
    RememberWindow(handle, this);
    const auto procedure = reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(handle, GWLP_WNDPROC));
    if (procedure == &WindowProcedures::OfObjects)
        return;
    m_classProcedure = procedure;
    WindowProcedures::KeepClassProcedure(handle, procedure);
    ::SetWindowLongPtrA(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WindowProcedures::OfObjects));
}

// Who put a procedure on top of ours keeps calling it: it then hands on to the class's.
void TWindow::Detach() {
    const HWND handle = m_handle;
    m_handle = nullptr;
    ForgetWindow(handle, this);
    const auto procedure = reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(handle, GWLP_WNDPROC));
    if (m_classProcedure != nullptr && procedure == &WindowProcedures::OfObjects) {
        ::SetWindowLongPtrA(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_classProcedure));
        WindowProcedures::DropClassProcedure(handle);
    }
    m_classProcedure = nullptr;
}

void TWindow::AfterDestruction() {
    if (m_classProcedure != nullptr)
        WindowProcedures::DropClassProcedure(m_handle);
    ForgetWindow(m_handle, this);
    m_handle = nullptr;
    m_classProcedure = nullptr;
    if (IsFlagSet(wfDeleteOnClose))
        Condemn(this);
}

bool TWindow::IsMainWindow() const {
    return GetApplication() != nullptr && GetApplication()->IsMainWindow(*this);
}

bool TWindow::CanClose() {
    for (TWindow* child : std::vector<TWindow*>(m_children)) {
        if (child->IsWindow() && !child->CanClose())
            return false;
    }
    return true;
}

void TWindow::CloseWindow(int retVal) {
    if (IsMainWindow() ? GetApplication()->CanClose() : CanClose())
        Destroy(retVal);
}

void TWindow::Destroy(int retVal) {
    if (m_modal && retVal != 0)
        EndModal(retVal);
    if (m_handle != nullptr)
        ::DestroyWindow(m_handle);
}

}  // namespace owl
