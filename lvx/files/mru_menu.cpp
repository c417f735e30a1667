#include "lvx/files/mru_menu.h"

#include <utility>

#include "lvx/files/mru_menu_finder.h"
#include "lvx/platform/mru_menu_finder.h"

namespace {

// Constant-initialised: it may be set by static initialisers of any unit.
constinit LVXMRUMenuFinder current_finder = lvx::first_mru_menu_finder;

}  // namespace

// Here, so that its type information stands in this module alone.
LVXMRUMenu::~LVXMRUMenu() = default;

LVXMRUMenuFinder setMRUMenuFinder(LVXMRUMenuFinder finder) {
    return std::exchange(current_finder, finder);
}

namespace lvx {

std::unique_ptr<LVXMRUMenu> find_mru_menu(owl::TWindow* window) {
    return window != nullptr && current_finder != nullptr ? current_finder(window) : nullptr;
}

}  // namespace lvx
