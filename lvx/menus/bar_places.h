// lvx/menus/bar_places.h
//
// Where drop-downs go in the bar of an MDI frame. A maximised child has its icon, a drop-down without a text,
// in front of the bar's own, and the buttons that minimise, restore and close it at the end. Private to the
// library.
#pragma once

#include <windows.h>

#include <optional>

namespace owl {
class TMenu;
}

namespace lvx {

/// Whether the first entry has no text, as a child's icon, and a separator. True for an empty menu.
bool begins_with_icon(const owl::TMenu& menu);

/// The position of the first button at the end, if one of those that stand there restores a child.
std::optional<UINT> place_of_restore(const owl::TMenu& menu);

}  // namespace lvx
