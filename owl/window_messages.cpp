// The way of a message from the system to the function that answers it.
#include "owl/carried_exception.h"
#include "owl/class_procedure.h"
#include "owl/command_enabler.h"
#include "owl/condemned.h"
#include "owl/window.h"
#include "owl/window_procedures.h"
#include "owl/window_table.h"

namespace owl {

namespace {

thread_local TWindow* under_creation = nullptr;

// The messages that are being handled on this thread, the innermost first. On the stack, not in the window: a
// window may be deleted by what its message does.
struct MessageScope {
    MessageScope(const TWindow* theWindow, UINT theMsg, WPARAM theWParam, LPARAM theLParam)
        : window(theWindow), msg(theMsg), wParam(theWParam), lParam(theLParam), outer(innermost) {
        innermost = this;
    }
    ~MessageScope() { innermost = outer; }
    MessageScope(const MessageScope&) = delete;
    MessageScope& operator=(const MessageScope&) = delete;

    const TWindow* const window;
    const UINT msg;
    const WPARAM wParam;
    const LPARAM lParam;
    MessageScope* const outer;

    static thread_local MessageScope* innermost;
};

thread_local MessageScope* MessageScope::innermost = nullptr;

UINT LookUpOf(UINT msg) {
    return msg >= WM_CTLCOLORMSGBOX && msg <= WM_CTLCOLORSTATIC ? WM_CTLCOLOR : msg;
}

}  // namespace

CreationScope::CreationScope(TWindow& window) : m_outer(under_creation) {
    under_creation = &window;
}

CreationScope::~CreationScope() {
    under_creation = m_outer;
}

TWindow* CreationScope::Take() {
    TWindow* const window = under_creation;
    under_creation = nullptr;
    return window;
}

LRESULT CALLBACK WindowProcedures::OfObjects(HWND handle, UINT msg, WPARAM wParam, LPARAM lParam) {
    TWindow* window = FindWindowObject(handle);
    if (window == nullptr) {
        const ClassProcedure aside = PutAside(handle);
        if (!aside.IsNone())
            return aside.Call(handle, msg, wParam, lParam);
        window = CreationScope::Take();
        if (window == nullptr)
            return ::DefWindowProcA(handle, msg, wParam, lParam);
        window->Attach(handle);
    }
    // It holds the address of an object, which only HandleMessage vouches for.
    if (msg == WM_COMMAND_ENABLE)
        return 0;
    return window->ReceiveMessage(msg, wParam, lParam);
}

LRESULT TWindow::ReceiveMessage(UINT msg, WPARAM wParam, LPARAM lParam) noexcept {
    const HWND handle = m_handle;
    LRESULT answer = 0;
    try {
        answer = HandleMessage(msg, wParam, lParam);
    } catch (...) {
        CarryException();
        if (FindWindowObject(handle) == this)
            TellOfException();
    }
    if (msg == WM_NCDESTROY && FindWindowObject(handle) == this)
        AfterDestruction();
    return answer;
}

void TWindow::TellOfException() {
    TWindow* outermost = this;
    while (outermost->Parent != nullptr && (outermost->GetStyle() & WS_CHILD) != 0)
        outermost = outermost->Parent;
    outermost->ExceptionCarried();
}

void TWindow::ExceptionCarried() {}

LRESULT TWindow::HandleMessage(UINT msg, WPARAM wParam, LPARAM lParam) {
    const FunctionScope function;
    const MessageScope scope(this, msg, wParam, lParam);
    return WindowProc(msg, wParam, lParam);
}

LRESULT TWindow::DefaultProcessing() {
    const MessageScope* const scope = MessageScope::innermost;
    if (scope == nullptr || scope->window != this || m_handle == nullptr)
        return 0;
    return DefWindowProc(scope->msg, scope->wParam, scope->lParam);
}

LRESULT TWindow::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) {
    if (m_classProcedure != nullptr)
        return ClassProcedure{m_classProcedure, m_classIsWide}.Call(m_handle, msg, wParam, lParam);
    return ::DefWindowProcA(m_handle, msg, wParam, lParam);
}

LRESULT TWindow::WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) {
    const TEvent event{msg, wParam, lParam, 0, 0};
    switch (msg) {
        case WM_COMMAND:
            return EvCommand(LOWORD(wParam), reinterpret_cast<HWND>(lParam),
                             lParam != 0 ? HIWORD(wParam) : 0);
        case WM_NOTIFY:
            return EvNotify(static_cast<UINT>(wParam), *reinterpret_cast<TNotify*>(lParam));
        case WM_COMMAND_ENABLE:
            EvCommandEnable(*reinterpret_cast<TCommandEnabler*>(lParam));
            return 0;
        case WM_HSCROLL:
        case WM_VSCROLL:
            return AnswerScrollBar(event);
        case WM_DESTROY:
            if (IsMainWindow())
                ::PostQuitMessage(0);
            CleanupWindow();
            break;
        default:
            break;
    }
    return AnswerMessage(event, LookUpOf(msg));
}

LRESULT TWindow::AnswerMessage(const TEvent& event, UINT lookUp) {
    TEventInfo info(lookUp);
    if (Find(info))
        return info.Dispatch(event);
    return DefaultProcessing();
}

LRESULT TWindow::SendMessage(UINT msg, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageA(m_handle, msg, wParam, lParam);
}

bool TWindow::PostMessage(UINT msg, WPARAM wParam, LPARAM lParam) const {
    return m_handle != nullptr && ::PostMessageA(m_handle, msg, wParam, lParam);
}

LRESULT TWindow::SendDlgItemMessage(int id, UINT msg, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageA(GetDlgItem(id), msg, wParam, lParam);
}

}  // namespace owl
