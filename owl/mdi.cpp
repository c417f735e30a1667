#include "owl/mdi.h"

#include "owl/child_walk.h"
#include "owl/command_enabler.h"
#include "owl/key_message.h"
#include "owl/window_table.h"

namespace owl {

namespace {

// The children's commands in the list of the window menu; hosts number theirs below.
constexpr UINT first_child_command = 0xE000;
// Behind nine children the list ends with a command for the others.
constexpr UINT last_child_command = first_child_command + 9;

// A maximised child puts its system menu in front of the bar's items.
bool IsInFront(const TMDIClient* client, HMENU bar) {
    const TMDIChild* const child = client != nullptr ? client->GetActiveMDIChild() : nullptr;
    return child != nullptr && child->IsZoomed() && ::GetSubMenu(bar, 0) == child->GetSystemMenu();
}

}  // namespace

DEFINE_RESPONSE_TABLE1(TMDIClient, TWindow)
    EV_WM_DESTROY,
END_RESPONSE_TABLE;

DEFINE_RESPONSE_TABLE1(TMDIChild, TFrameWindow)
    EV_WM_MDIACTIVATE,
END_RESPONSE_TABLE;

TMDIClient::TMDIClient(TModule* module) {
    Init(static_cast<TWindow*>(nullptr), nullptr, module);
    Attr.Style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_HSCROLL | WS_VSCROLL;
    Attr.ExStyle = WS_EX_CLIENTEDGE;
}

// While the object still sees to its messages.
TMDIClient::~TMDIClient() {
    if (IsWindow())
        ::DestroyWindow(GetHandle());
}

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

// The system's client forgets its list of children here, but they ask for it when they go.
void TMDIClient::EvDestroy() {
    EachChild(*this, [](TWindow& child) { child.Destroy(); });
    TWindow::EvDestroy();
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
    if (m_windowMenu < 0)
        return nullptr;
    return ::GetSubMenu(GetMenu(), IsInFront(GetClientWindow(), GetMenu()) ? m_windowMenu + 1 : m_windowMenu);
}

HWND TMDIFrame::CommandTarget() const {
    const TMDIClient* const client = GetClientWindow();
    const TMDIChild* const child = client != nullptr ? client->GetActiveMDIChild() : nullptr;
    return child != nullptr ? child->CommandTarget() : TFrameWindow::CommandTarget();
}

void TMDIFrame::EvCommandEnable(TCommandEnabler& enabler) {
    if (enabler.GetId() >= first_child_command && enabler.GetId() <= last_child_command)
        enabler.Enable();
    else
        TFrameWindow::EvCommandEnable(enabler);
}

// By way of the client, which moves its list and what a maximised child has put into the bar.
HMENU TMDIFrame::ExchangeMenu(HMENU menu) {
    const TMDIClient* const client = GetClientWindow();
    if (client == nullptr || !client->IsWindow())
        return TFrameWindow::ExchangeMenu(menu);
    const HMENU former = GetMenu();
    const HMENU windowMenu = m_windowMenu < 0 ? nullptr : ::GetSubMenu(menu, m_windowMenu);
    client->SendMessage(WM_MDISETMENU, reinterpret_cast<WPARAM>(menu), reinterpret_cast<LPARAM>(windowMenu));
    DrawMenuBar();
    return former;
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

void TMDIChild::EvMDIActivate(HWND activated, HWND deactivated) {
    static_cast<void>(activated);
    if (deactivated == GetHandle())
        RememberFocus();
    DefaultProcessing();
}

LRESULT TMDIChild::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) {
    return ::DefMDIChildProcA(GetHandle(), msg, wParam, lParam);
}

}  // namespace owl
