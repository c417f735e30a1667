#include "owl/window.h"

#include <algorithm>

#include "owl/application.h"
#include "owl/child_walk.h"
#include "owl/condemned.h"
#include "owl/error.h"
#include "owl/window_table.h"

namespace owl {

TWindow::TWindow() = default;

TWindow::TWindow(TWindow* parent, const char* title, TModule* module) {
    Init(parent, title, module);
}

TWindow::TWindow(HWND handle, TModule* module) {
    Init(handle, module);
}

// The window goes while the children's objects still stand: theirs are destroyed with it.
TWindow::~TWindow() {
    if (m_handle != nullptr) {
        if (IsFlagSet(wfAlias))
            Detach();
        else
            ::DestroyWindow(m_handle);
    }
    if (m_accelerators != nullptr)
        ::DestroyAcceleratorTable(m_accelerators);
    DeleteChildren();
    if (Parent != nullptr)
        Parent->RemoveChild(this);
    Absolve(this);
    if (GetApplication() != nullptr)
        GetApplication()->ForgetMainWindow(*this);
}

void TWindow::Init(TWindow* parent, const char* title, TModule* module) {
    m_title = title != nullptr ? title : "";
    m_module = module;
    Attr.Style = WS_CHILD | WS_VISIBLE;
    SetFlag(wfAutoCreate);
    if (parent == Parent)
        return;
    if (Parent != nullptr)
        Parent->RemoveChild(this);
    Parent = parent;
    if (Parent != nullptr)
        Parent->AddChild(this);
}

void TWindow::Init(HWND handle, TModule* module) {
    DWORD process = 0;
    ::GetWindowThreadProcessId(handle, &process);
    if (!::IsWindow(handle) || process != ::GetCurrentProcessId())
        throw TXWindow("an object can only take over a window of its own process");
    if (FindWindowObject(handle) != nullptr)
        throw TXWindow("the window has an object already");
    Init(GetWindowPtr(::GetParent(handle)), nullptr, module);
    SetFlag(wfAlias);
    EnableAutoCreate(false);
    Attach(handle);
    Attr.Style = GetStyle();
    Attr.ExStyle = GetExStyle();
    if ((Attr.Style & WS_CHILD) != 0)
        Attr.Id = ::GetDlgCtrlID(handle);
    m_title = GetWindowText();
}

TWindow* TWindow::FromHandle(HWND handle) {
    return FindWindowObject(handle);
}

TApplication* TWindow::GetApplication() const {
    return GetApplicationObject();
}

TModule* TWindow::GetModule() const {
    for (const TWindow* window = this; window != nullptr; window = window->Parent) {
        if (window->m_module != nullptr)
            return window->m_module;
    }
    return GetApplication();
}

void TWindow::EnableAutoCreate(bool enable) {
    if (enable)
        SetFlag(wfAutoCreate);
    else
        ClearFlag(wfAutoCreate);
}

void TWindow::SetParent(TWindow* parent) {
    for (const TWindow* above = parent; above != nullptr; above = above->Parent) {
        if (above == this)
            throw TXWindow("a window cannot be its own parent");
    }
    if (Parent != nullptr)
        Parent->RemoveChild(this);
    Parent = parent;
    if (Parent != nullptr)
        Parent->AddChild(this);
    if (m_handle != nullptr && (GetStyle() & WS_CHILD) != 0)
        ::SetParent(m_handle, Parent != nullptr ? Parent->GetHandle() : nullptr);
}

void TWindow::AddChild(TWindow* child) {
    m_children.push_back(child);
}

void TWindow::RemoveChild(const TWindow* child) {
    std::erase(m_children, child);
    ChildLeft(*child);
}

void TWindow::ChildLeft(const TWindow& child) {
    static_cast<void>(child);
}

// From the last to the first, as members of a class end. A child that another one deletes is gone from the
// list. Each is taken out first: one that was told of another parent would not take itself out of this one.
void TWindow::DeleteChildren() {
    while (!m_children.empty()) {
        TWindow* const child = m_children.back();
        m_children.pop_back();
        delete child;
    }
}

TWindow* TWindow::ChildWithId(int id) const {
    const auto found = std::find_if(m_children.begin(), m_children.end(),
                                    [id](const TWindow* child) { return child->Attr.Id == id; });
    return found == m_children.end() ? nullptr : *found;
}

void TWindow::CreateChildren() {
    EachChild(*this, [](TWindow& child) {
        const bool wanted = child.IsFlagSet(wfAutoCreate) || child.IsFlagSet(wfFromResource);
        if (wanted && !child.IsWindow())
            child.Create();
    });
}

void TWindow::Paint(TDC& dc, bool erase, TRect& rect) {
    static_cast<void>(dc);
    static_cast<void>(erase);
    static_cast<void>(rect);
}

bool TWindow::IdleAction(long idleCount) {
    bool more = false;
    EachChild(*this, [&](TWindow& child) {
        if (child.IdleAction(idleCount))
            more = true;
    });
    return more;
}

TWindow* GetWindowPtr(HWND handle, const TApplication* application) {
    static_cast<void>(application);
    return FindWindowObject(handle);
}

}  // namespace owl
