// Sub-menus, which are items and menus.
#include "lvx/menus/menu.h"

LVXPopupMenu::LVXPopupMenu() = default;

LVXPopupMenu::LVXPopupMenu(const char* label_)
    : LVXMenuItem(label_), LVXMenu(::CreatePopupMenu(), owl::AutoDelete) {}

LVXPopupMenu::LVXPopupMenu(const std::string& label_) : LVXPopupMenu(label_.c_str()) {}

LVXPopupMenu::LVXPopupMenu(HMENU parentHandle, unsigned int position, HMENU handle)
    : LVXMenuItem(parentHandle, position), LVXMenu(handle, owl::NoAutoDelete) {}

// Here and not in the item's destructor, which knows no sub-menus. A menu that is going has put this one out
// of its list, and the system's menu may live on: it must not keep a drop-down that ends.
LVXPopupMenu::~LVXPopupMenu() {
    if (parent != nullptr) {
        parent->removeItem(this);
    }
    if (parent != nullptr && IsOwner()) {
        parent->RemoveSubMenu(*this);
    }
}
