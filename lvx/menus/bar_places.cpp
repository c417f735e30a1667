#include "lvx/menus/bar_places.h"

#include "owl/menu.h"

namespace lvx {

namespace {

bool is_button(UINT id) {
    return id == SC_MINIMIZE || id == SC_RESTORE || id == SC_CLOSE;
}

}  // namespace

bool begins_with_icon(const owl::TMenu& menu) {
    char text[20] = "";
    return menu.GetMenuString(0, text, sizeof text, MF_BYPOSITION) <= 0;
}

std::optional<UINT> place_of_restore(const owl::TMenu& menu) {
    bool restores = false;
    int place = menu.GetMenuItemCount();
    for (; place > 0 && is_button(menu.GetMenuItemID(place - 1)); --place) {
        restores = restores || menu.GetMenuItemID(place - 1) == SC_RESTORE;
    }
    return restores ? std::optional<UINT>(place) : std::nullopt;
}

}  // namespace lvx
