// How a window object gets its window and loses it.
#include "owl/application.h"
#include "owl/carried_exception.h"
#include "owl/child_walk.h"
#include "owl/class_procedure.h"
#include "owl/condemned.h"
#include "owl/error.h"
#include "owl/last_error.h"
#include "owl/window.h"
#include "owl/window_procedures.h"
#include "owl/window_table.h"

namespace owl {

HINSTANCE TWindow::GetInstance() const {
    const TModule* const module = GetModule();
    return module != nullptr ? module->GetInstance() : ::GetModuleHandleA(nullptr);
}

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

// The window's own is left alone: it may have letters that narrow text lacks.
void TWindow::AgreeOnCaption() {
    const std::string present = GetWindowText();
    if (m_title.empty())
        m_title = present;
    else if (m_title != present)
        SetWindowText(m_title);
}

void TWindow::FinishCreation() {
    const FunctionScope function;
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
    windowClass.hInstance = GetInstance();
    windowClass.hCursor = ::LoadCursorA(nullptr, reinterpret_cast<const char*>(IDC_ARROW));
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<ULONG_PTR>(COLOR_WINDOW + 1));
    windowClass.lpszClassName = GetClassName();
}

void TWindow::RegisterClass() {
    WNDCLASSA existing{};
    if (::GetClassInfoA(GetInstance(), GetClassName(), &existing))
        return;
    WNDCLASSA windowClass{};
    GetWindowClass(windowClass);
    Require<TXWindow>("RegisterClass", [&] { return ::RegisterClassA(&windowClass); });
}

HMENU TWindow::MenuOrId() const {
    if ((Attr.Style & WS_CHILD) != 0)
        return reinterpret_cast<HMENU>(static_cast<LONG_PTR>(Attr.Id));
    if (Attr.Menu.IsNull())
        return nullptr;
    return Require<TXWindow>("LoadMenu", [this] { return ::LoadMenuA(GetInstance(), Attr.Menu); });
}

void TWindow::PerformCreate() {
    const HMENU menu = MenuOrId();
    const HWND parent = Parent != nullptr ? Parent->GetHandle() : nullptr;
    const CreationScope scope(*this);
    ::SetLastError(0);
    const HWND handle = ::CreateWindowExA(Attr.ExStyle, GetClassName(), m_title.c_str(), Attr.Style, Attr.X,
                                          Attr.Y, Attr.W, Attr.H, parent, menu, GetInstance(), Attr.Param);
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

// An object whose window comes again does not end with the former one.
void TWindow::Attach(HWND handle) {
    Absolve(this);
    m_handle = handle;
    RememberWindow(handle, this);
    const ClassProcedure aside = PutInFront(handle, &WindowProcedures::OfObjects);
    m_classProcedure = aside.procedure;
    m_classIsWide = aside.isWide;
}

void TWindow::Detach() {
    const HWND handle = m_handle;
    m_handle = nullptr;
    m_classProcedure = nullptr;
    ForgetWindow(handle, this);
    GiveBack(handle, &WindowProcedures::OfObjects);
}

void TWindow::AfterDestruction() {
    ForgetPutAside(m_handle);
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
    return !AnyChild(*this, [](TWindow& child) { return child.IsWindow() && !child.CanClose(); });
}

// Who is asked may end the window, and its object with it.
bool TWindow::MayClose() {
    const HWND handle = m_handle;
    const bool agrees = IsMainWindow() ? GetApplication()->CanClose() : CanClose();
    return agrees && handle != nullptr && FindWindowObject(handle) == this;
}

void TWindow::CloseWindow(int retVal) {
    if (MayClose())
        Destroy(retVal);
}

void TWindow::Destroy(int retVal) {
    if (m_modal && retVal != 0)
        EndModal(retVal);
    if (m_handle != nullptr)
        ::DestroyWindow(m_handle);
}

}  // namespace owl
