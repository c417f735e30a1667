#include "owl/frame_window.h"

#include <algorithm>

#include "owl/application.h"
#include "owl/command_enabler.h"
#include "owl/menu_enabler.h"
#include "owl/window_table.h"

namespace owl {

namespace {

constexpr const char* class_name = "OwlFrame";

// The icon as it was drawn for captions: the large one, made smaller, would lose its finer lines.
HICON LoadSmallIcon(const TModule* module, TResId icon) {
    const HINSTANCE instance = module != nullptr ? module->GetInstance() : nullptr;
    return static_cast<HICON>(::LoadImageA(instance, icon, IMAGE_ICON, ::GetSystemMetrics(SM_CXSMICON),
                                           ::GetSystemMetrics(SM_CYSMICON), LR_SHARED));
}

}  // namespace

DEFINE_RESPONSE_TABLE1(TFrameWindow, TWindow)
    EV_WM_ACTIVATE, EV_WM_INITMENUPOPUP, EV_WM_SETFOCUS, EV_WM_SIZE,
END_RESPONSE_TABLE;

TFrameWindow::TFrameWindow() = default;

TFrameWindow::TFrameWindow(TWindow* parent, const char* title, TWindow* client, bool shrinkToClient,
                           TModule* module) {
    Init(parent, title, client, shrinkToClient, module);
}

TFrameWindow::~TFrameWindow() = default;

void TFrameWindow::Init(TWindow* parent, const char* title, TWindow* client, bool shrinkToClient,
                        TModule* module) {
    TWindow::Init(parent, title, module);
    EnableAutoCreate(false);
    Attr.Style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    Attr.X = Attr.W = CW_USEDEFAULT;
    m_shrinkToClient = shrinkToClient;
    SetClientWindow(client);
}

const char* TFrameWindow::GetClassName() {
    return class_name;
}

void TFrameWindow::GetWindowClass(WNDCLASSA& windowClass) {
    TWindow::GetWindowClass(windowClass);
    windowClass.hIcon = ::LoadIconA(nullptr, reinterpret_cast<const char*>(IDI_APPLICATION));
}

// A client that somebody deletes takes itself out of the children.
TWindow* TFrameWindow::GetClientWindow() const {
    const std::vector<TWindow*>& children = GetChildren();
    const bool present = std::find(children.begin(), children.end(), m_client) != children.end();
    return present ? m_client : nullptr;
}

TWindow* TFrameWindow::SetClientWindow(TWindow* client) {
    TWindow* const former = GetClientWindow();
    if (former == client)
        return nullptr;
    if (former != nullptr) {
        former->ShowWindow(SW_HIDE);
        former->SetParent(nullptr);
    }
    m_client = client;
    if (client != nullptr) {
        client->SetParent(this);
        client->EnableAutoCreate();
        if (client->IsWindow())
            client->ShowWindow(SW_SHOW);
        else if (IsWindow())
            client->Create();
    }
    FitClient();
    return former;
}

void TFrameWindow::SetupWindow() {
    TWindow::SetupWindow();
    ShowIcon();
    if (m_shrinkToClient)
        ShrinkToClient();
    ArrangeBars();
}

// Without icons of its own the window keeps those of its class.
void TFrameWindow::ShowIcon() {
    if (m_icon == nullptr || !IsWindow())
        return;
    SendMessage(WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(m_icon));
    SendMessage(WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(m_smallIcon));
}

void TFrameWindow::ShrinkToClient() {
    const TWindow* const client = GetClientWindow();
    if (client == nullptr)
        return;
    const TSize bars = RoomForBars();
    RECT rect{0, 0, client->Attr.W + bars.cx, client->Attr.H + bars.cy};
    ::AdjustWindowRectEx(&rect, GetStyle(), ::GetMenu(GetHandle()) != nullptr, GetExStyle());
    SetWindowPos(nullptr, 0, 0, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void TFrameWindow::FitClient() {
    TWindow* const client = GetClientWindow();
    if (client != nullptr && client->IsWindow() && IsWindow())
        client->MoveWindow(GetClientRoom());
}

bool TFrameWindow::AssignMenu(TResId menu) {
    if (IsWindow()) {
        const HMENU loaded = ::LoadMenuA(GetInstance(), menu);
        if (loaded == nullptr)
            return false;
        ::DestroyMenu(ExchangeMenu(loaded));
    }
    Attr.Menu = menu;
    return true;
}

HMENU TFrameWindow::ExchangeMenu(HMENU menu) {
    const HMENU former = GetMenu();
    SetMenu(menu);
    return former;
}

bool TFrameWindow::SetIcon(TModule* module, TResId icon) {
    const HICON loaded = module != nullptr ? module->LoadIcon(icon) : ::LoadIconA(nullptr, icon);
    if (loaded == nullptr)
        return false;
    m_icon = loaded;
    m_smallIcon = LoadSmallIcon(module, icon);
    ShowIcon();
    return true;
}

HWND TFrameWindow::CommandTarget() const {
    const TWindow* const client = GetClientWindow();
    return client != nullptr && client->IsWindow() ? client->GetHandle() : GetHandle();
}

// Offers to the objects from the one with the focus up to below the frame, then to those that would be asked
// if nobody had it; true as soon as `body` is.
template <class Body>
bool TFrameWindow::OfferToTargets(const Body& body) {
    const HWND focus = IsChild(::GetFocus()) ? ::GetFocus() : nullptr;
    const auto asked = [focus](HWND target) { return target == focus || ::IsChild(target, focus); };
    const auto offer = [&](HWND target) {
        TWindow* const window = FindWindowObject(target);
        return window != nullptr && body(*window);
    };
    for (HWND target = focus; target != nullptr && target != GetHandle(); target = ::GetParent(target)) {
        if (offer(target))
            return true;
    }
    for (HWND target = CommandTarget(); target != nullptr && target != GetHandle();
         target = ::GetParent(target)) {
        if (!asked(target) && offer(target))
            return true;
    }
    return false;
}

LRESULT TFrameWindow::EvCommand(UINT id, HWND control, UINT notifyCode) {
    if (control != nullptr)
        return TWindow::EvCommand(id, control, notifyCode);
    LRESULT answer = 0;
    const bool taken = OfferToTargets([&](TWindow& window) {
        TEventInfo info(WM_COMMAND, id);
        if (!window.Find(info))
            return false;
        answer = window.EvCommand(id, control, notifyCode);
        return true;
    });
    if (taken)
        return answer;
    TEventInfo own(WM_COMMAND, id);
    TEventInfo last(WM_COMMAND, id);
    if (!Find(own) && GetApplication() != nullptr && GetApplication()->Find(last))
        return last.Dispatch({WM_COMMAND, id, 0, id, notifyCode});
    return TWindow::EvCommand(id, control, notifyCode);
}

// Who has a function for the command decides for the whole frame whether it is enabled.
void TFrameWindow::EvCommandEnable(TCommandEnabler& enabler) {
    bool known = false;
    const auto answer = [&](TEventHandler& handler) {
        TEventInfo info(WM_COMMAND_ENABLE, enabler.GetId());
        TEventInfo command(WM_COMMAND, enabler.GetId());
        if (handler.Find(info))
            info.Dispatch({WM_COMMAND_ENABLE, 0, reinterpret_cast<LPARAM>(&enabler), enabler.GetId(), 0});
        else if (handler.Find(command))
            enabler.Enable(true);
        else
            return false;
        return known = true;
    };
    OfferToTargets(answer) || answer(*this) || (GetApplication() != nullptr && answer(*GetApplication()));
    if (!known && !enabler.GetHandled() && enabler.IsReceiver(GetHandle()))
        enabler.Enable(false);
}

void TFrameWindow::EvInitMenuPopup(HMENU menu, UINT position, bool systemMenu) {
    TWindow::EvInitMenuPopup(menu, position, systemMenu);
    if (!systemMenu)
        EnableMenuItems(*this, menu);
}

void TFrameWindow::EvActivate(UINT active, bool minimised, HWND other) {
    if (active == WA_INACTIVE)
        RememberFocus();
    TWindow::EvActivate(active, minimised, other);
}

void TFrameWindow::RememberFocus() {
    if (IsChild(::GetFocus()))
        m_focus = ::GetFocus();
}

void TFrameWindow::EvSetFocus(HWND lost) {
    TWindow::EvSetFocus(lost);
    if (m_focus != nullptr && IsChild(m_focus))
        ::SetFocus(m_focus);
    else if (GetClientWindow() != nullptr)
        GetClientWindow()->SetFocus();
}

void TFrameWindow::EvSize(UINT how, const TSize& size) {
    TWindow::EvSize(how, size);
    if (how != SIZE_MINIMIZED)
        ArrangeBars();
}

}  // namespace owl
