// The menu of recent files in the menu bar of the framework's window.
#include "lvx/platform/mru_menu_finder.h"
#include "owl/mdi.h"
#include "owl/menu.h"

namespace {

class DropDown : public LVXMRUMenu {
public:
    explicit DropDown(HMENU handle) : m_menu(handle) {}

    void InsertMenu(int position, unsigned int flags, unsigned int id, const char* label) override {
        m_menu.InsertMenu(static_cast<UINT>(position), flags, id, label);
    }
    void DeleteMenu(int position, unsigned int flags) override {
        m_menu.DeleteMenu(static_cast<UINT>(position), flags);
    }

private:
    // The bar's.
    owl::TMenu m_menu;
};

bool is_icon_of_child(const owl::TWindow* window, HMENU menu) {
    const auto* const frame = dynamic_cast<const owl::TMDIFrame*>(window);
    const owl::TMDIClient* const client = frame != nullptr ? frame->GetClientWindow() : nullptr;
    const owl::TMDIChild* const child = client != nullptr ? client->GetActiveMDIChild() : nullptr;
    return child != nullptr && child->GetSystemMenu(false) == menu;
}

}  // namespace

std::unique_ptr<LVXMRUMenu> lvx::find_mru_menu_in_bar(owl::TWindow* window) {
    const owl::TMenu bar(window->GetMenu());
    HMENU menu = bar.GetSubMenu(0);
    if (is_icon_of_child(window, menu)) {
        menu = bar.GetSubMenu(1);
    }
    return menu != nullptr ? std::make_unique<DropDown>(menu) : nullptr;
}
