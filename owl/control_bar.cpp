#include "owl/control_bar.h"

#include "owl/tooltip.h"

namespace owl {

namespace {

bool IsOfMouse(UINT msg) {
    return msg >= WM_MOUSEFIRST && msg <= WM_MOUSELAST;
}

}  // namespace

TControlBar::TControlBar(TWindow* parent, TTileDirection direction, TFont* font, TModule* module)
    : TGadgetWindow(parent, direction, font, module),
      m_tooltip(new TTooltip(this)),
      m_tooltipBase(m_tooltip) {}

TControlBar::~TControlBar() = default;

bool TControlBar::HasTooltip() const {
    return m_tooltip != nullptr && m_tooltip->IsWindow();
}

void TControlBar::ChildLeft(const TWindow& child) {
    TGadgetWindow::ChildLeft(child);
    if (&child != m_tooltipBase)
        return;
    m_tooltip = nullptr;
    m_tooltipBase = nullptr;
}

// The system ends the tooltip with the frame, not with the bar.
void TControlBar::CleanupWindow() {
    TGadgetWindow::CleanupWindow();
    m_tools.clear();
    if (m_tooltip != nullptr)
        m_tooltip->Destroy();
}

void TControlBar::TileGadgets() {
    TGadgetWindow::TileGadgets();
    if (HasTooltip())
        MakeTools();
}

void TControlBar::MakeTools() {
    RemoveTools();
    for (const TGadget* gadget = FirstGadget(); gadget != nullptr; gadget = gadget->NextGadget()) {
        const auto id = static_cast<UINT>(gadget->GetId());
        if (gadget->GetId() > 0 && m_tooltip->AddTool(*this, gadget->GetBounds(), id))
            m_tools.push_back(id);
    }
}

void TControlBar::RemoveTools() {
    for (const UINT id : m_tools)
        m_tooltip->RemoveTool(*this, id);
    m_tools.clear();
}

LRESULT TControlBar::EvNotify(UINT id, TNotify& notify) {
    if (notify.code != TTN_NEEDTEXTA)
        return TGadgetWindow::EvNotify(id, notify);
    TTooltipEnabler enabler(reinterpret_cast<TTooltipText&>(notify), *this);
    AskWhetherEnabled(enabler);
    return 0;
}

bool TControlBar::PreProcessMsg(MSG& msg) {
    const bool ours = msg.hwnd == GetHandle() || IsChild(msg.hwnd);
    if (ours && IsOfMouse(msg.message) && HasTooltip())
        m_tooltip->RelayEvent(msg);
    return TGadgetWindow::PreProcessMsg(msg);
}

}  // namespace owl
