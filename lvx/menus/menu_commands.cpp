// From a command to its item: the ids, and who has them.
#include <new>

#include "lvx/menus/menu.h"
#include "lvx/menus/menu_ids.h"
#include "owl/command_enabler.h"

unsigned int LVXMenuItem::nextMenuId = lvx::first_menu_id;
std::map<unsigned int, LVXMenuItem*> LVXMenu::itemMap;
std::vector<unsigned int> LVXMenu::freeIds;

bool LVXMenu::AddMenuItem(LVXMenuItem* item) {
    return item != nullptr && lvx::enter_menu_item(itemMap, item->id, item);
}

void LVXMenu::RemoveMenuItem(LVXMenuItem* item) {
    if (item != nullptr) {
        itemMap.erase(item->id);
    }
}

bool LVXMenu::MenuItemSelected(unsigned int id) {
    LVXMenuItem* const item = lvx::find_menu_item(itemMap, id);
    if (item == nullptr || item->callback == nullptr) {
        return false;
    }
    item->selected();
    return true;
}

bool LVXMenu::MenuItemEnable(owl::TCommandEnabler& enabler) {
    const LVXMenuItem* const item = lvx::find_menu_item(itemMap, enabler.GetId());
    if (item == nullptr || item->callback == nullptr) {
        return false;
    }
    enabler.Enable(item->isEnabled);
    return true;
}

unsigned int LVXMenu::AllocateMenuId() {
    return lvx::take_menu_id(freeIds, LVXMenuItem::nextMenuId);
}

void LVXMenu::FreeMenuId(unsigned int id) {
    lvx::return_menu_id(freeIds, id);
}

// Items over a menu that exists may bear the id of another item, whose it stays, or one that was freed
// before: were it freed again, two items would get it. Ids of former additions are not freed; their entries
// may still be in a menu.
void LVXMenu::Forget(const LVXMenuItem& item) {
    const LVXMenuItem* const owner = lvx::find_menu_item(itemMap, item.id);
    if ((owner == nullptr || owner == &item) && !lvx::is_free_menu_id(freeIds, item.id)) {
        try {
            FreeMenuId(item.id);
        } catch (const std::bad_alloc&) {
            // One id less: a destructor may not throw.
        }
    }
    lvx::erase_menu_item(itemMap, &item);
}
