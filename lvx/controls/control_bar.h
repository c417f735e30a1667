// lvx/controls/control_bar.h
//
// A bar of buttons (button_gadget.h) that leaves commands and the questions about them to its parent, and
// tells its tooltip of the mouse itself, whichever way the mouse's messages come: through the program's loop,
// or, in a modal dialog or a loop of the host's, straight to the window.
//
//     auto* bar = new LVXControlBar(this);
//     bar->Insert(*new LVXButtonGadget(CM_SAVE, CM_SAVE));
//     Insert(*bar, Top);  // a frame's
//
// In a dialog of the library (enabler_dialog.h) the application window names the tips. Screen readers find
// the bar's gadgets by the names of their tips. What is said in owl/control_bar.h and owl/gadget_window.h
// holds here too. Windows only. Does not: take the keyboard; what its buttons do belongs in a menu as well.
#pragma once

#include "lvx/platform/export.h"
#include "owl/control_bar.h"

class LVX_EXPORT LVXControlBar : public owl::TControlBar {
public:
    /// As owl::TGadgetWindow; hints show while the mouse is over a gadget.
    explicit LVXControlBar(owl::TWindow* parent, owl::TGadgetWindow::TTileDirection direction = Horizontal,
                           owl::TFont* font = nullptr, owl::TModule* module = nullptr);
    ~LVXControlBar() override;

    /// Lets the gadgets ask whether their commands are enabled, and finds out, first, whether the mouse has
    /// gone without a word: to another window that took it, say.
    bool IdleAction(long idleCount) override;
    /// The parent's answer; the bar has no commands of its own.
    LRESULT EvCommand(UINT id, HWND control, UINT notifyCode) override;
    /// A question about a tip that was sent to this bar goes to the parent as if it had been sent to it; what
    /// that leaves unanswered is the bar's.
    void EvCommandEnable(owl::TCommandEnabler& enabler) override;
    /// Asks for the text of a tip, of a gadget or of a control in the bar.
    LRESULT EvNotify(UINT id, owl::TNotify& notify) override;
    bool PreProcessMsg(MSG& msg) override;

    // Each tells the tooltip, unless PreProcessMsg did, and does what the base does.

    void EvMouseMove(UINT modifiers, const owl::TPoint& point);
    void EvLButtonDown(UINT modifiers, const owl::TPoint& point);
    void EvMButtonDown(UINT modifiers, const owl::TPoint& point);
    void EvRButtonDown(UINT modifiers, const owl::TPoint& point);
    void EvLButtonUp(UINT modifiers, const owl::TPoint& point);
    void EvMButtonUp(UINT modifiers, const owl::TPoint& point);
    void EvRButtonUp(UINT modifiers, const owl::TPoint& point);

protected:
    /// Tells the tooltip of a message of the mouse, unless it has seen it already.
    void ForwardTooltipMessage(UINT message, UINT flags, const owl::TPoint& point);

    /// The tooltip has seen the message that is on its way.
    bool TooltipSeen = false;

private:
    owl::TTooltip* LiveTooltip() const;
    LRESULT EvGetObject(WPARAM wParam, LPARAM lParam);

    DECLARE_RESPONSE_TABLE(LVXControlBar);
};
