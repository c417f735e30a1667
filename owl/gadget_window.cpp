// The gadgets of a bar, their commands and hints.
#include "owl/gadget_window.h"

#include <algorithm>
#include <utility>

#include "owl/carried_exception.h"
#include "owl/command_enabler.h"
#include "owl/command_text.h"
#include "owl/error.h"
#include "owl/frame_window.h"

namespace owl {

namespace {

constexpr int no_command = -1;

TFont* FontForDialogs() {
    return new TFont(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT)));
}

}  // namespace

// A gadget on its way from its place in the bar to its owner. It may end on the way.
struct TGadgetWindow::Leaving {
    Leaving(TGadgetWindow& theBar, TGadget& theGadget)
        : bar(theBar), gadget(&theGadget), outer(std::exchange(bar.m_leaving, this)) {}
    ~Leaving() {
        bar.m_leaving = outer;
        if (gadget != nullptr)
            gadget->m_window = nullptr;
    }
    Leaving(const Leaving&) = delete;
    Leaving& operator=(const Leaving&) = delete;

    TGadgetWindow& bar;
    TGadget* gadget;
    Leaving* const outer;
};

DEFINE_RESPONSE_TABLE1(TGadgetWindow, TWindow)
    EV_WM_LBUTTONDOWN, EV_WM_LBUTTONUP, EV_WM_MOUSEMOVE, EV_WM_RBUTTONDOWN, EV_WM_RBUTTONUP, EV_WM_SIZE,
        EV_WM_SYSCOLORCHANGE, EV_MESSAGE(WM_CAPTURECHANGED, EvCaptureChanged),
        EV_MESSAGE(WM_MOUSELEAVE, EvMouseLeave),
END_RESPONSE_TABLE;

TGadgetWindow::TGadgetWindow(TWindow* parent, TTileDirection direction, TFont* font, TModule* module)
    : m_direction(direction), m_font(font != nullptr ? font : FontForDialogs()) {
    Init(parent, nullptr, module);
    Attr.Style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
}

TGadgetWindow::~TGadgetWindow() {
    m_capture = m_atMouse = nullptr;
    EndHint();
    while (!m_gadgets.empty()) {
        TGadget* const gadget = m_gadgets.back();
        m_gadgets.pop_back();
        gadget->m_window = nullptr;
        delete gadget;
    }
}

const char* TGadgetWindow::GetClassName() {
    return "OwlGadgetWindow";
}

void TGadgetWindow::GetWindowClass(WNDCLASSA& windowClass) {
    TWindow::GetWindowClass(windowClass);
    windowClass.style &= ~static_cast<UINT>(CS_DBLCLKS);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<ULONG_PTR>(COLOR_BTNFACE + 1));
}

void TGadgetWindow::SetupWindow() {
    TWindow::SetupWindow();
    m_setUp = true;
    ForEachGadget([](TGadget& gadget) { gadget.Created(); });
    LayoutSession();
}

void TGadgetWindow::CleanupWindow() {
    m_setUp = false;
    LoseCapture();
    LoseMouse();
    EndHint();
    TWindow::CleanupWindow();
}

std::vector<TGadget*>::const_iterator TGadgetWindow::Position(const TGadget* gadget) const {
    return std::find(m_gadgets.begin(), m_gadgets.end(), gadget);
}

bool TGadgetWindow::Holds(const TGadget* gadget) const {
    return Position(gadget) != m_gadgets.end();
}

void TGadgetWindow::Insert(TGadget& gadget, TPlacement placement, TGadget* sibling) {
    if (sibling != nullptr && (sibling == &gadget || !Holds(sibling)))
        throw TXOwl("a gadget can only be inserted beside another one of the bar");
    if (gadget.m_window != nullptr && gadget.m_window->Remove(gadget) == nullptr)
        return;
    auto position = placement == Before ? m_gadgets.begin() : m_gadgets.end();
    if (sibling != nullptr && Holds(sibling))
        position = m_gadgets.begin() + (Position(sibling) - m_gadgets.begin()) + (placement == After ? 1 : 0);
    m_gadgets.insert(position, &gadget);
    gadget.m_window = this;
    gadget.Inserted();
    if (m_setUp && Holds(&gadget))
        gadget.Created();
    LayoutSession();
}

TGadget* TGadgetWindow::Remove(TGadget& gadget) {
    if (!Holds(&gadget))
        return nullptr;
    TGadget* const removed = TakeOut(gadget);
    LayoutSession();
    return removed;
}

TGadget* TGadgetWindow::TakeOut(TGadget& gadget) {
    const Leaving leaving(*this, gadget);
    gadget.Invalidate();
    std::erase(m_gadgets, &gadget);
    LetGoOf(gadget);
    gadget.Removed();
    return leaving.gadget;
}

// One that is leaving has been taken out already.
void TGadgetWindow::GadgetEnds(TGadget& gadget) {
    for (Leaving* leaving = m_leaving; leaving != nullptr; leaving = leaving->outer) {
        if (leaving->gadget == &gadget)
            leaving->gadget = nullptr;
    }
    Remove(gadget);
}

void TGadgetWindow::LetGoOf(const TGadget& gadget) {
    const bool captured = m_capture == &gadget;
    const bool atMouse = m_atMouse == &gadget;
    if (captured) {
        m_capture = nullptr;
        ReleaseCapture();
    }
    if (atMouse)
        m_atMouse = nullptr;
    if ((captured || atMouse) && gadget.GetId() == m_hintCommand)
        EndHint();
}

// For what ends and cannot fail: who shows the hint may.
void TGadgetWindow::EndHint() noexcept {
    try {
        SetHintCommand(no_command);
    } catch (...) {
        CarryException();
    }
}

TGadget* TGadgetWindow::FirstGadget() const {
    return m_gadgets.empty() ? nullptr : m_gadgets.front();
}

TGadget* TGadgetWindow::NextGadget(const TGadget& gadget) const {
    const auto found = Position(&gadget);
    return found == m_gadgets.end() || found + 1 == m_gadgets.end() ? nullptr : found[1];
}

TGadget* TGadgetWindow::GadgetWithId(int id) const {
    const auto found = std::find_if(m_gadgets.begin(), m_gadgets.end(),
                                    [id](const TGadget* gadget) { return gadget->GetId() == id; });
    return found == m_gadgets.end() ? nullptr : *found;
}

void TGadgetWindow::SetHintCommand(int id) {
    if (id == m_hintCommand)
        return;
    m_hintCommand = id;
    TFrameWindow* const frame = TFrameWindow::FrameOf(this);
    if (frame == nullptr)
        return;
    const std::string text = id == no_command ? std::string() : HintText(GetModule(), static_cast<UINT>(id));
    frame->ShowHint(id, text);
}

bool TGadgetWindow::HasFunctionFor(UINT event, UINT id, UINT notifyCode) {
    TEventInfo info(event, id, notifyCode);
    return Find(info);
}

LRESULT TGadgetWindow::EvCommand(UINT id, HWND control, UINT notifyCode) {
    const bool own = (notifyCode == 0 && HasFunctionFor(WM_COMMAND, id)) ||
                     (control != nullptr && HasFunctionFor(TEventInfo::ChildNotification, id, notifyCode));
    if (Parent == nullptr || own)
        return TWindow::EvCommand(id, control, notifyCode);
    return Parent->EvCommand(id, control, notifyCode);
}

LRESULT TGadgetWindow::EvNotify(UINT id, TNotify& notify) {
    if (Parent == nullptr || HasFunctionFor(WM_NOTIFY, id, notify.code))
        return TWindow::EvNotify(id, notify);
    return Parent->EvNotify(id, notify);
}

void TGadgetWindow::EvCommandEnable(TCommandEnabler& enabler) {
    const UINT id = enabler.GetId();
    if (Parent == nullptr || HasFunctionFor(WM_COMMAND_ENABLE, id) || HasFunctionFor(WM_COMMAND, id)) {
        TWindow::EvCommandEnable(enabler);
        return;
    }
    if (enabler.IsReceiver(GetHandle()))
        enabler.SetReceiver(Parent->GetHandle());
    Parent->EvCommandEnable(enabler);
}

// Whatever a gadget does, those behind it are asked only if they are still there.
void TGadgetWindow::ForEachGadget(const std::function<void(TGadget&)>& body) {
    const std::vector<TGadget*> gadgets = m_gadgets;
    for (TGadget* gadget : gadgets) {
        if (Holds(gadget))
            body(*gadget);
    }
}

bool TGadgetWindow::IdleAction(long idleCount) {
    bool more = false;
    ForEachGadget([&](TGadget& gadget) { more = gadget.IdleAction(idleCount) || more; });
    return TWindow::IdleAction(idleCount) || more;
}

void TGadgetWindow::EvSysColorChange() {
    ForEachGadget([](TGadget& gadget) { gadget.SysColorChange(); });
    TWindow::EvSysColorChange();
    Invalidate();
}

}  // namespace owl
