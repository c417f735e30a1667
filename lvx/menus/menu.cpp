#include "lvx/menus/menu.h"

#include <algorithm>
#include <utility>

#include "lvx/menus/bar_places.h"
#include "owl/window.h"

namespace {

HMENU bar_of(const owl::TWindow* window) {
    return window != nullptr && window->IsWindow() ? window->GetMenu() : nullptr;
}

// What the system tells of a drop-down, and what the separator of recent files has for its id.
constexpr unsigned int no_command = ~0U;

UINT_PTR id_of(HMENU menu) {
    return reinterpret_cast<UINT_PTR>(menu);
}

}  // namespace

int LVXMenu::MenuList::PlaceOf(const LVXMenuItem* item) const {
    const auto found = std::find(m_items.begin(), m_items.end(), item);
    return found != m_items.end() ? static_cast<int>(found - m_items.begin()) : -1;
}

void LVXMenu::MenuList::TakeOut(int place) {
    m_items.erase(m_items.begin() + place);
}

void LVXMenu::MenuList::Insert(LVXMenuItem* item, int place) {
    m_items.insert(place >= 0 && place <= count() ? m_items.begin() + place : m_items.end(), item);
}

LVXMenu::LVXMenu() : TMenu(owl::AutoDelete) {}

LVXMenu::LVXMenu(HMENU handle, owl::TAutoDelete autoDelete, owl::TWindow* window_)
    : TMenu(handle, autoDelete), window(window_) {}

// These hand on to the one above, so that an exception finds an object that its destructor clears.

LVXMenu::LVXMenu(owl::TWindow* window_) : LVXMenu(bar_of(window_), owl::NoAutoDelete, window_) {
    CreateItems();
}

LVXMenu::LVXMenu(HMENU handle, owl::TAutoDelete autoDelete) : LVXMenu(handle, autoDelete, nullptr) {
    CreateItems();
}

LVXMenu::~LVXMenu() {
    while (items.count() > 0) {
        LVXMenuItem* const last = items[items.count() - 1];
        items.TakeOut(items.count() - 1);
        delete last;
    }
}

void LVXMenu::CreateItems() {
    const int count = GetMenuItemCount();
    for (int position = 0; position < count; ++position) {
        const auto place = static_cast<unsigned int>(position);
        if (position == 0) {
            Append(std::make_unique<LVXMenuItem>(GetHandle(), place));
        } else {
            Append(std::make_unique<LVXPopupMenu>(GetHandle(), place, GetSubMenu(position)));
        }
    }
}

void LVXMenu::Append(std::unique_ptr<LVXMenuItem> item) {
    items.Insert(item.get(), items.count());
    item.release()->parent = this;
}

void LVXMenu::addItem(LVXMenuItem* item) {
    addItem(item, -1);
}

void LVXMenu::insertItem(LVXMenuItem* item, int position) {
    addItem(item, position);
}

void LVXMenu::addItem(LVXMenuItem* item, int position) {
    if (item == nullptr || IsWithin(*item)) {
        return;
    }
    LeaveFormerPlace(*item);
    items.Insert(item, position);
    item->parent = this;
    auto* const menu = dynamic_cast<LVXPopupMenu*>(item);
    if (menu != nullptr && menu->IsOK()) {
        InsertSubMenu(*menu, position);
    } else if (item->label.empty()) {
        item->id = 0;
        InsertEntry(position, MF_SEPARATOR, 0, nullptr);
    } else {
        // An item over a command of the host's keeps the id that the host knows it by.
        if (menu == nullptr) {
            item->id = AllocateMenuId();
            AddMenuItem(item);
        }
        InsertEntry(position, MF_STRING, item->id, item->label.c_str());
    }
    ShowState(*item);
    Redraw();
}

// An entry begins without a tick, and enabled.
void LVXMenu::ShowState(LVXMenuItem& item) {
    if (item.isChecked) {
        item.check(true);
    }
    if (!item.isEnabled) {
        item.enable(false);
    }
}

// Or if the item is this menu itself.
bool LVXMenu::IsWithin(const LVXMenuItem& item) const {
    for (const LVXMenu* menu = this; menu != nullptr;) {
        const auto* const asItem = dynamic_cast<const LVXPopupMenu*>(menu);
        if (asItem == nullptr) {
            return false;
        }
        if (asItem == &item) {
            return true;
        }
        menu = asItem->parent;
    }
    return false;
}

// A command of this menu leaves its entry behind: hosts that move one count on the former id. A drop-down
// must not stand in two places, each of which would end it.
void LVXMenu::LeaveFormerPlace(LVXMenuItem& item) {
    if (item.parent != this || dynamic_cast<LVXPopupMenu*>(&item) != nullptr) {
        if (item.parent != nullptr) {
            item.parent->removeItem(&item);
        }
        return;
    }
    const int place = items.PlaceOf(&item);
    if (place >= 0) {
        items.TakeOut(place);
    }
}

// What a maximised child has put into the bar counts for the system and not for the host.
void LVXMenu::InsertSubMenu(LVXPopupMenu& menu, int position) {
    const HMENU handle = menu.GetHandle();
    const char* const text = menu.label.c_str();
    if (position >= 0) {
        const UINT icons = lvx::begins_with_icon(*this) ? 1 : 0;
        InsertMenu(static_cast<UINT>(position) + icons, MF_BYPOSITION | MF_POPUP, id_of(handle), text);
    } else if (const auto place = lvx::place_of_restore(*this)) {
        InsertMenu(*place, MF_BYPOSITION | MF_POPUP, id_of(handle), text);
    } else {
        AppendMenu(MF_POPUP, id_of(handle), text);
    }
}

void LVXMenu::InsertEntry(int position, UINT flags, UINT_PTR entryId, const char* text) {
    if (position < 0) {
        AppendMenu(flags, entryId, text);
    } else {
        InsertMenu(static_cast<UINT>(position), MF_BYPOSITION | flags, entryId, text);
    }
}

void LVXMenu::addSeparator() {
    AppendSeparator(MF_SEPARATOR);
}

void LVXMenu::addVSeparator() {
    AppendSeparator(MF_MENUBARBREAK);
}

void LVXMenu::AppendSeparator(UINT flags) {
    Append(std::make_unique<LVXMenuItem>());
    AppendMenu(flags);
    Redraw();
}

bool LVXMenu::removeItem(LVXMenuItem* item) {
    const int place = items.PlaceOf(item);
    if (place < 0) {
        return false;
    }
    items.TakeOut(place);
    item->parent = nullptr;
    const bool removed = RemoveEntry(*item, place);
    Redraw();
    return removed;
}

bool LVXMenu::RemoveEntry(const LVXMenuItem& item, int place) {
    const auto* const menu = dynamic_cast<const LVXPopupMenu*>(&item);
    if (menu != nullptr && menu->IsOK()) {
        return RemoveSubMenu(*menu);
    }
    if (item.id == 0) {
        RemoveMenu(static_cast<UINT>(place), MF_BYPOSITION);
    } else if (item.id != no_command) {
        RemoveMenu(item.id, MF_BYCOMMAND);
    }
    return true;
}

bool LVXMenu::RemoveSubMenu(const LVXPopupMenu& menu) {
    const int position = PositionOf(menu);
    return position >= 0 && RemoveMenu(static_cast<UINT>(position), MF_BYPOSITION);
}

int LVXMenu::PositionOf(const LVXPopupMenu& menu) const {
    const int count = GetMenuItemCount();
    for (int position = 0; position < count; ++position) {
        if (GetSubMenu(position) == menu.GetHandle()) {
            return position;
        }
    }
    return -1;
}

// A sub-menu has no id. That of a separator is 0, as are those of all others, so it cannot be told.
bool LVXMenu::FindEntry(const LVXMenuItem& item, Entry& entry) const {
    const auto* const menu = dynamic_cast<const LVXPopupMenu*>(&item);
    if (menu == nullptr || !menu->IsOK()) {
        entry = {item.id, MF_BYCOMMAND, MF_STRING, item.id};
        return item.id != 0 && item.id != no_command;
    }
    const int position = PositionOf(*menu);
    entry = {static_cast<UINT>(position), MF_BYPOSITION, MF_POPUP, id_of(menu->GetHandle())};
    return position >= 0;
}

void LVXMenu::Redraw() {
    if (window != nullptr) {
        window->DrawMenuBar();
    }
}

LVXPopupMenu* LVXMenu::menuAt(int position) const {
    return dynamic_cast<LVXPopupMenu*>(items[position]);
}

LVXMenuItem* LVXMenu::itemOf(unsigned int id) const {
    for (LVXMenuItem* const item : items) {
        if (item->id == id) {
            return item;
        }
        const auto* const menu = dynamic_cast<const LVXPopupMenu*>(item);
        LVXMenuItem* const below = menu != nullptr ? menu->itemOf(id) : nullptr;
        if (below != nullptr) {
            return below;
        }
    }
    return nullptr;
}

LVXMenu* LVXMenu::menuOf(HMENU handle) {
    // Items over no drop-down have a null handle.
    if (handle == nullptr) {
        return nullptr;
    }
    if (handle == GetHandle()) {
        return this;
    }
    for (LVXMenuItem* const item : items) {
        auto* const menu = dynamic_cast<LVXPopupMenu*>(item);
        LVXMenu* const below = menu != nullptr ? menu->menuOf(handle) : nullptr;
        if (below != nullptr) {
            return below;
        }
    }
    return nullptr;
}
