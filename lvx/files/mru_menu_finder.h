// lvx/files/mru_menu_finder.h
//
// The menu of a window, in the way that was set with setMRUMenuFinder().
#pragma once

#include <memory>

#include "lvx/files/mru_menu.h"

namespace lvx {

/// Null if `window` is, if it has no such menu, and if there is no way to find one.
std::unique_ptr<LVXMRUMenu> find_mru_menu(owl::TWindow* window);

}  // namespace lvx
