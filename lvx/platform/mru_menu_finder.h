// lvx/platform/mru_menu_finder.h
//
// How lists of recent files find the menu of their window until a host says how: in the menu bar of the
// framework's window, where there is that framework.
#pragma once

#include <memory>

#include "lvx/files/mru_menu.h"

namespace lvx {

#ifdef _WIN32

/// The first drop-down of the window's menu bar, or the second if the first is the icon of a maximised MDI
/// child; null if there is none. The window is not null.
std::unique_ptr<LVXMRUMenu> find_mru_menu_in_bar(owl::TWindow* window);

constexpr LVXMRUMenuFinder first_mru_menu_finder = &find_mru_menu_in_bar;

#else

constexpr LVXMRUMenuFinder first_mru_menu_finder = nullptr;

#endif

}  // namespace lvx
