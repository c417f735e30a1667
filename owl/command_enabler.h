// owl/command_enabler.h
//
// A question on its way through the windows: may the command `id` be given, is it checked, what is it called?
// Whoever shows the command (a menu, a toolbar) makes one and sends it as WM_COMMAND_ENABLE; who knows the
// command answers by calling Enable, SetCheck or SetText, which change what is shown.
#pragma once

#include <windows.h>

#include "owl/platform/export.h"

namespace owl {

class OWL_EXPORT TCommandEnabler {
public:
    /// What SetCheck takes.
    enum TCommandState { Unchecked, Checked, Indeterminate };

    /// Asks about `id`. `receiver` is the window that gets the question first; null is none.
    explicit TCommandEnabler(UINT id, HWND receiver = nullptr);
    TCommandEnabler(const TCommandEnabler&) = delete;
    TCommandEnabler& operator=(const TCommandEnabler&) = delete;

    /// Allows the command or forbids it; either way the question is answered. What overrides it calls it.
    virtual void Enable(bool enable = true);
    virtual void SetText(const char* text) = 0;
    /// `check` is a TCommandState.
    virtual void SetCheck(int check) = 0;
    virtual ~TCommandEnabler();

    UINT GetId() const { return m_id; }
    /// Whether somebody answered by Enable.
    bool GetHandled() const { return m_handled; }
    /// Whether `window` was sent the question, and does not see it on its way up from a child. It is the one
    /// to disable a command that nobody knows. Never true for null.
    bool IsReceiver(HWND window) const { return window != nullptr && window == m_receiver; }
    void SetReceiver(HWND receiver) { m_receiver = receiver; }

private:
    UINT m_id;
    HWND m_receiver;
    bool m_handled = false;
};

}  // namespace owl
