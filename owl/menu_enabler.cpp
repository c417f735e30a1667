#include "owl/menu_enabler.h"

#include <string>

#include "owl/menu.h"
#include "owl/window.h"

namespace owl {

namespace {

std::string TextOf(HMENU menu, UINT position) {
    return TMenu(menu).GetMenuString(position, MF_BYPOSITION);
}

bool IsCommand(UINT id) {
    constexpr UINT sub_menu = ~0u;
    constexpr UINT first_of_system = 0xF000;
    return id != 0 && id != sub_menu && id < first_of_system;
}

}  // namespace

TMenuItemEnabler::TMenuItemEnabler(HMENU menu, UINT position, UINT id, HWND receiver)
    : TCommandEnabler(id, receiver), m_menu(menu), m_position(position) {}

void TMenuItemEnabler::Enable(bool enable) {
    TCommandEnabler::Enable(enable);
    const UINT state = enable ? MF_ENABLED : MF_GRAYED;
    ::EnableMenuItem(m_menu, m_position, MF_BYPOSITION | state);
}

void TMenuItemEnabler::SetText(const char* text) {
    std::string label = text != nullptr ? text : "";
    const std::string former = TextOf(m_menu, m_position);
    const std::size_t key = former.find('\t');
    if (key != std::string::npos && label.find('\t') == std::string::npos)
        label += former.substr(key);
    if (label == former)
        return;
    MENUITEMINFOA info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_STRING;
    info.dwTypeData = label.data();
    ::SetMenuItemInfoA(m_menu, m_position, TRUE, &info);
}

void TMenuItemEnabler::SetCheck(int check) {
    const UINT state = check == Unchecked ? MF_UNCHECKED : MF_CHECKED;
    ::CheckMenuItem(m_menu, m_position, MF_BYPOSITION | state);
}

void EnableMenuItems(TWindow& window, HMENU menu) {
    const int count = ::GetMenuItemCount(menu);
    for (int position = 0; position < count; ++position) {
        const UINT id = ::GetMenuItemID(menu, position);
        if (!IsCommand(id))
            continue;
        TMenuItemEnabler enabler(menu, static_cast<UINT>(position), id, window.GetHandle());
        window.AskWhetherEnabled(enabler);
    }
}

}  // namespace owl
