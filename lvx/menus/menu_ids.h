// lvx/menus/menu_ids.h
//
// The command ids of items that come and go, as arithmetic: which id is next, which return, and who has one.
// Knows no menu. Private to the library, and the same on every system.
#pragma once

#include <algorithm>
#include <map>
#include <vector>

namespace lvx {

/// The range of ids that return.
constexpr unsigned int first_menu_id = 20000;
constexpr unsigned int last_menu_id = 20999;

/// The id that was freed last, or if there is none the next one. Ids beyond the range are handed out, too:
/// a program with more items than that works, but these ids never return.
inline unsigned int take_menu_id(std::vector<unsigned int>& free, unsigned int& next) {
    if (free.empty()) {
        return next++;
    }
    const unsigned int id = free.back();
    free.pop_back();
    return id;
}

/// Drops an id that is not of the range.
inline void return_menu_id(std::vector<unsigned int>& free, unsigned int id) {
    if (id >= first_menu_id && id <= last_menu_id) {
        free.push_back(id);
    }
}

inline bool is_free_menu_id(const std::vector<unsigned int>& free, unsigned int id) {
    return std::find(free.begin(), free.end(), id) != free.end();
}

/// Null if nobody has the id.
template <class Item>
Item* find_menu_item(const std::map<unsigned int, Item*>& items, unsigned int id) {
    const auto found = items.find(id);
    return found != items.end() ? found->second : nullptr;
}

/// False, and no change, for id 0 and for one that somebody has.
template <class Item>
bool enter_menu_item(std::map<unsigned int, Item*>& items, unsigned int id, Item* item) {
    return id != 0 && items.emplace(id, item).second;
}

/// Under whatever ids it is.
template <class Item>
void erase_menu_item(std::map<unsigned int, Item*>& items, const Item* item) {
    std::erase_if(items, [item](const auto& entry) { return entry.second == item; });
}

}  // namespace lvx
