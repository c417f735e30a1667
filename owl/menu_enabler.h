// owl/menu_enabler.h
//
// The question whether a command is enabled, asked for an item of a menu. Private to the framework.
#pragma once

#include "owl/command_enabler.h"

namespace owl {

class TWindow;

class TMenuItemEnabler : public TCommandEnabler {
public:
    TMenuItemEnabler(HMENU menu, UINT position, UINT id, HWND receiver);

    void Enable(bool enable = true) override;
    /// What stands behind a tab in the present text, a key, stays unless `text` has a tab of its own.
    void SetText(const char* text) override;
    void SetCheck(int check) override;

private:
    HMENU m_menu;
    UINT m_position;
};

/// Asks `window` for every command of a menu. Sub-menus ask when they open themselves.
void EnableMenuItems(TWindow& window, HMENU menu);

}  // namespace owl
