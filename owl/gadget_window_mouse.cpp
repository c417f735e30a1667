// The way of the mouse to the gadgets of a bar.
#include "owl/gadget_window.h"

namespace owl {

namespace {

TPoint InGadget(const TGadget& gadget, const TPoint& point) {
    return point - (gadget.GetBounds().TopLeft() - TPoint());
}

// On no gadget, and outside of each.
constexpr TPoint nowhere(-1, -1);

}  // namespace

// Whoever is asked may take itself and others out.
TGadget* TGadgetWindow::GadgetFromPoint(const TPoint& point) const {
    const std::vector<TGadget*> gadgets = m_gadgets;
    for (TGadget* gadget : gadgets) {
        if (Holds(gadget) && gadget->PtIn(InGadget(*gadget, point)) && Holds(gadget))
            return gadget;
    }
    return nullptr;
}

bool TGadgetWindow::GadgetSetCapture(TGadget& gadget) {
    if (!IsWindow() || !Holds(&gadget) || (m_capture != nullptr && m_capture != &gadget))
        return false;
    m_capture = &gadget;
    SetCapture();
    return true;
}

// Noted first: the system tells at once that the capture has changed.
void TGadgetWindow::GadgetReleaseCapture(TGadget& gadget) {
    if (m_capture != &gadget)
        return;
    m_capture = nullptr;
    ReleaseCapture();
    ListenForLeaving();
}

// Who gets the buttons of the mouse.
TGadget* TGadgetWindow::Receiver(const TPoint& point) const {
    if (m_capture != nullptr)
        return m_capture;
    TGadget* const gadget = GadgetFromPoint(point);
    return gadget != nullptr && gadget->GetEnabled() ? gadget : nullptr;
}

void TGadgetWindow::EvLButtonDown(UINT modifiers, const TPoint& point) {
    if (TGadget* const gadget = Receiver(point))
        gadget->LButtonDown(modifiers, InGadget(*gadget, point));
    TWindow::EvLButtonDown(modifiers, point);
}

// The mouse may have gone far while it was captured.
void TGadgetWindow::EvLButtonUp(UINT modifiers, const TPoint& point) {
    if (TGadget* const gadget = Receiver(point))
        gadget->LButtonUp(modifiers, InGadget(*gadget, point));
    if (m_capture == nullptr && m_atMouse != nullptr)
        NoteMouse(modifiers, point);
    TWindow::EvLButtonUp(modifiers, point);
}

void TGadgetWindow::EvRButtonDown(UINT modifiers, const TPoint& point) {
    if (TGadget* const gadget = Receiver(point))
        gadget->RButtonDown(modifiers, InGadget(*gadget, point));
    TWindow::EvRButtonDown(modifiers, point);
}

void TGadgetWindow::EvRButtonUp(UINT modifiers, const TPoint& point) {
    if (TGadget* const gadget = Receiver(point))
        gadget->RButtonUp(modifiers, InGadget(*gadget, point));
    TWindow::EvRButtonUp(modifiers, point);
}

void TGadgetWindow::EvMouseMove(UINT modifiers, const TPoint& point) {
    if (m_capture != nullptr)
        m_capture->MouseMove(modifiers, InGadget(*m_capture, point));
    else
        NoteMouse(modifiers, point);
    TWindow::EvMouseMove(modifiers, point);
}

void TGadgetWindow::NoteMouse(UINT modifiers, const TPoint& point) {
    TGadget* const gadget = GadgetFromPoint(point);
    TGadget* const former = m_atMouse;
    if (gadget == former)
        return;
    m_atMouse = nullptr;
    if (former != nullptr)
        former->MouseLeave(modifiers, InGadget(*former, point));
    if (gadget == nullptr || !Holds(gadget) || !IsWindow())
        return;
    m_atMouse = gadget;
    ListenForLeaving();
    gadget->MouseEnter(modifiers, InGadget(*gadget, point));
}

// The system tells once, and may have told while the mouse was captured, when it did not matter. Of a mouse
// that has gone before it is asked not every system tells.
void TGadgetWindow::ListenForLeaving() {
    if (m_atMouse == nullptr)
        return;
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, GetHandle(), 0};
    ::TrackMouseEvent(&track);
    TPoint mouse;
    GetCursorPos(mouse);
    const HWND below = WindowFromPoint(mouse);
    if (below != GetHandle() && !IsChild(below))
        PostMessage(WM_MOUSELEAVE);
}

void TGadgetWindow::LoseMouse() {
    TGadget* const former = m_atMouse;
    m_atMouse = nullptr;
    if (former != nullptr)
        former->MouseLeave(0, nowhere);
}

LRESULT TGadgetWindow::EvMouseLeave(WPARAM, LPARAM) {
    if (m_capture == nullptr)
        LoseMouse();
    return DefaultProcessing();
}

// The gadget learns it as if the mouse had been drawn off it, and has no other need to know.
void TGadgetWindow::LoseCapture() {
    TGadget* const former = m_capture;
    m_capture = nullptr;
    if (former == nullptr)
        return;
    former->MouseMove(0, nowhere);
    ListenForLeaving();
}

LRESULT TGadgetWindow::EvCaptureChanged(WPARAM, LPARAM lParam) {
    if (reinterpret_cast<HWND>(lParam) != GetHandle())
        LoseCapture();
    return DefaultProcessing();
}

}  // namespace owl
