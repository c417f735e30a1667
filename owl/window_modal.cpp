// Running a window by a loop of its own.
#include "owl/application.h"
#include "owl/error.h"
#include "owl/window.h"

namespace owl {

namespace {

HWND RootOf(const TWindow* window) {
    if (window == nullptr || !window->IsWindow())
        return nullptr;
    return ::GetAncestor(window->GetHandle(), GA_ROOT);
}

}  // namespace

void TWindow::ExpectModal() {
    if (m_modalLoop)
        throw TXWindow("the window runs a loop already");
    m_modal = true;
    m_modalDone = false;
    m_modalResult = IDCANCEL;
}

int TWindow::BeginModal(TWindow* parent, int flags) {
    static_cast<void>(flags);
    ExpectModal();
    const HWND root = RootOf(parent);
    m_disabled = root != nullptr && root != m_handle && ::IsWindowEnabled(root) ? root : nullptr;
    if (m_disabled != nullptr)
        ::EnableWindow(m_disabled, FALSE);
    m_modalLoop = true;
    struct Ending {
        ~Ending() {
            window.EndModal(window.m_modalResult);
            window.m_modalLoop = false;
        }
        TWindow& window;
    } const ending{*this};
    const auto done = [this] { return m_modalDone || m_handle == nullptr; };
    if (GetApplication() != nullptr)
        GetApplication()->RunUntil(done);
    else
        TMsgThread().RunUntil(done);
    return m_modalResult;
}

// The parent takes input again before this window goes: else the system would activate another program's.
void TWindow::EndModal(int result) {
    m_modalResult = result;
    m_modalDone = true;
    m_modal = false;
    if (m_disabled != nullptr && ::IsWindow(m_disabled))
        ::EnableWindow(m_disabled, TRUE);
    m_disabled = nullptr;
}

}  // namespace owl
