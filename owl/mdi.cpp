#include "owl/mdi.h"

#include "owl/child_walk.h"
#include "owl/key_message.h"
#include "owl/window_table.h"

namespace owl {

namespace {

// The children's commands in the list of the window menu; hosts number theirs below.
constexpr UINT first_child_command = 0xE000;

}  // namespace

TMDIClient::TMDIClient(TModule* module) {
    Init(static_cast<TWindow*>(nullptr), nullptr, module);
    Attr.Style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_HSCROLL | WS_VSCROLL;
    Attr.ExStyle = WS_EX_CLIENTEDGE;
}

TMDIClient::~TMDIClient() = default;

const char* TMDIClient::GetClassName() {
    return "MDICLIENT";
}

void TMDIClient::PerformCreate() {
    const auto* const frame = dynamic_cast<const TMDIFrame*>(Parent);
    CLIENTCREATESTRUCT create{};
    create.hWindowMenu = frame != nullptr ? frame->GetWindowMenu() : nullptr;
    create.idFirstChild = first_child_command;
    Attr.Param = &create;
    TWindow::PerformCreate();
    Attr.Param = nullptr;
}

TMDIChild* TMDIClient::GetActiveMDIChild() const {
    if (!IsWindow())
        return nullptr;
    return dynamic_cast<TMDIChild*>(FindWindowObject(reinterpret_cast<HWND>(SendMessage(WM_MDIGETACTIVE))));
}

void TMDIClient::ActivateChild(const TMDIChild& child) {
    SendMessage(WM_MDIACTIVATE, reinterpret_cast<WPARAM>(child.GetHandle()));
}

void TMDIClient::CascadeChildren() {
    SendMessage(WM_MDICASCADE);
}

void TMDIClient::TileChildren(UINT how) {
    SendMessage(WM_MDITILE, how);
}

void TMDIClient::ArrangeIcons() {
    SendMessage(WM_MDIICONARRANGE);
}

bool TMDIClient::CloseChildren() {
    if (!CanClose())
        return false;
    EachChild(*this, [](TWindow& child) { child.Destroy(); });
    return true;
}

bool TMDIClient::PreProcessMsg(MSG& msg) {
    if (IsKeyMessage(msg.message) && IsWindow() && ::TranslateMDISysAccel(GetHandle(), &msg))
        return true;
    return TWindow::PreProcessMsg(msg);
}

TMDIFrame::TMDIFrame(const char* title, TResId menu, TMDIClient* client, int windowMenu, TModule* module)
    : TFrameWindow(nullptr, title, nullptr, false, module), m_windowMenu(windowMenu) {
    TFrameWindow::Init(nullptr, title, client != nullptr ? client : new TMDIClient(module), false, module);
    Attr.Menu = menu;
}

// While the object is still an MDI frame: its messages have another default.
TMDIFrame::~TMDIFrame() {
    if (IsWindow())
        ::DestroyWindow(GetHandle());
}

TMDIClient* TMDIFrame::GetClientWindow() const {
    return dynamic_cast<TMDIClient*>(TFrameWindow::GetClientWindow());
}

HMENU TMDIFrame::GetWindowMenu() const {
    return m_windowMenu < 0 ? nullptr : ::GetSubMenu(GetMenu(), m_windowMenu);
}

LRESULT TMDIFrame::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) {
    const TMDIClient* const client = GetClientWindow();
    return ::DefFrameProcA(GetHandle(), client != nullptr ? client->GetHandle() : nullptr, msg, wParam,
                           lParam);
}

TMDIChild::TMDIChild(TMDIClient& parent, const char* title, TWindow* client, bool shrinkToClient,
                     TModule* module)
    : TFrameWindow(&parent, title, client, shrinkToClient, module) {
    TFrameWindow::Init(&parent, title, client, shrinkToClient, module);
    Attr.Style = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    Attr.ExStyle = WS_EX_MDICHILD;
    Attr.X = Attr.Y = Attr.W = Attr.H = CW_USEDEFAULT;
    EnableAutoCreate();
    SetFlag(wfDeleteOnClose);
}

TMDIChild::~TMDIChild() {
    TMDIChild::Destroy();
}

const char* TMDIChild::GetClassName() {
    return "OwlMdiChild";
}

// The client takes the child out of its list and activates another one.
void TMDIChild::Destroy(int retVal) {
    static_cast<void>(retVal);
    if (IsWindow())
        ::SendMessageA(::GetParent(GetHandle()), WM_MDIDESTROY, reinterpret_cast<WPARAM>(GetHandle()), 0);
}

LRESULT TMDIChild::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) {
    return ::DefMDIChildProcA(GetHandle(), msg, wParam, lParam);
}

}  // namespace owl
