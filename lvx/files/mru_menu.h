// lvx/files/mru_menu.h
//
// The menu that a list of recent files keeps its items in, as that list sees it: two operations. On Windows
// the list finds one in the menu bar of the framework's window by itself. A host whose menu is another one
// derives from LVXMRUMenu and gives it to LVXMRUList::setMenu().
// Called on the thread of the list, from within the list's operations; must not call the list back.
#pragma once

#include <memory>

#include "lvx/platform/export.h"
#include "lvx/platform/system_macros.h"

namespace owl {
class TWindow;
}

class LVX_EXPORT LVXMRUMenu {
public:
    /// `flags` for an item with a label: `position` is a position and not an id.
    static constexpr unsigned int ByPosition = 0x400;
    /// `flags` for a separator, at a position likewise.
    static constexpr unsigned int Separator = 0xC00;
    /// What a separator has for an id.
    static constexpr unsigned int NoId = ~0U;

    LVXMRUMenu() = default;
    LVXMRUMenu(const LVXMRUMenu&) = delete;
    LVXMRUMenu& operator=(const LVXMRUMenu&) = delete;
    virtual ~LVXMRUMenu();

    /// Puts an item in at `position`, counted from 0, so that what was there from then on moves down by one:
    /// with Separator a separator, whose `id` is NoId and whose `label` is null, and with ByPosition one with
    /// this command id and label, in which "&" stands in front of the mnemonic. Behind the end means at the
    /// end.
    virtual void InsertMenu(int position, unsigned int flags, unsigned int id, const char* label) = 0;

    /// Takes the item at `position` away; `flags` is ByPosition. Does nothing if there is none.
    virtual void DeleteMenu(int position, unsigned int flags) = 0;
};

/// Finds the menu of a window that is to hold its recent files; null if there is none. The window is not
/// null.
using LVXMRUMenuFinder = std::unique_ptr<LVXMRUMenu> (*)(owl::TWindow* window);

/// Sets how LVXMRUList::Create() finds the menu of its window, and returns how it did so far: null if there
/// was no way, and then no window has a menu. On Windows the way is at first the first drop-down of the
/// window's menu bar; where an owl::TMDIFrame has a maximised child, whose icon stands first, the second one.
/// Elsewhere there is none at first. Call it before the lists are used; it takes no lock.
LVX_EXPORT LVXMRUMenuFinder setMRUMenuFinder(LVXMRUMenuFinder finder);
