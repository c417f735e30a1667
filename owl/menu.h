// owl/menu.h
//
// A menu: a bar or a drop-down. Owns the system's menu if it made it, or if it is told so; a menu that is
// part of another one, or that a window shows, belongs to that. Items are named by id, or by position with
// MF_BYPOSITION. What changes a menu that a window shows is seen after TWindow::DrawMenuBar.
#pragma once

#include <windows.h>

#include <string>

#include "owl/auto_delete.h"
#include "owl/platform/export.h"
#include "owl/resource_id.h"

namespace owl {

class TModule;
class TWindow;

class OWL_EXPORT TMenu {
public:
    /// An empty menu bar. Throws TXWindow if the system has none left.
    explicit TMenu(TAutoDelete autoDelete = AutoDelete);
    /// On a menu that exists. Null is an empty object whose operations fail.
    explicit TMenu(HMENU handle, TAutoDelete autoDelete = NoAutoDelete);
    /// Loads the resource `id`; throws TXWindow if `module` lacks it.
    TMenu(const TModule& module, TResId id);
    virtual ~TMenu();
    TMenu(const TMenu&) = delete;
    TMenu& operator=(const TMenu&) = delete;

    operator HMENU() const { return m_handle; }
    HMENU GetHandle() const { return m_handle; }
    bool IsOK() const { return m_handle != nullptr; }
    /// Whether the system's menu ends with this object.
    bool IsOwner() const { return m_autoDelete == AutoDelete; }
    /// Leaves the menu to the caller; the object then owns nothing.
    HMENU Release();

    /// -1 without a menu.
    int GetMenuItemCount() const;
    /// The drop-down at a position; null for a command and beyond the items.
    HMENU GetSubMenu(int position) const;
    /// ~0 for a drop-down and beyond the items, 0 for a separator.
    UINT GetMenuItemID(int position) const;
    /// MF_ bits; ~0 if there is no such item.
    UINT GetMenuState(UINT item, UINT flags) const;
    /// Copies at most `size` - 1 bytes and a NUL; returns how many, 0 if there is no such item or it has no
    /// text.
    int GetMenuString(UINT item, char* text, int size, UINT flags) const;
    /// The whole text.
    std::string GetMenuString(UINT item, UINT flags) const;

    /// `id` is a command, or with MF_POPUP the handle of a drop-down, which then belongs to this menu. These
    /// return false if the system refuses.
    bool AppendMenu(UINT flags, UINT_PTR id = 0, const char* text = nullptr);
    bool InsertMenu(UINT before, UINT flags, UINT_PTR id = 0, const char* text = nullptr);
    bool ModifyMenu(UINT item, UINT flags, UINT_PTR id = 0, const char* text = nullptr);
    /// Takes an item out; a drop-down lives on and is the caller's.
    bool RemoveMenu(UINT item, UINT flags);
    /// Takes an item out and destroys its drop-down.
    bool DeleteMenu(UINT item, UINT flags);
    /// `flags` are MF_CHECKED or MF_UNCHECKED, and how the item is named. False if there is no such item.
    bool CheckMenuItem(UINT item, UINT flags);
    /// `flags` are MF_ENABLED, MF_GRAYED or MF_DISABLED, and how the item is named. False if there is no such
    /// item.
    bool EnableMenuItem(UINT item, UINT flags);

private:
    HMENU m_handle;
    TAutoDelete m_autoDelete;
};

/// A menu that opens at any place, by a click of the right button as a rule.
class OWL_EXPORT TPopupMenu : public TMenu {
public:
    explicit TPopupMenu(TAutoDelete autoDelete = AutoDelete);
    explicit TPopupMenu(HMENU handle, TAutoDelete autoDelete = NoAutoDelete);
    ~TPopupMenu() override;

    /// Shows it at a point of the screen until the user chose, which `window` gets as a command. With
    /// TPM_RETURNCMD in `flags` the id is returned instead; else whether it could be shown.
    int TrackPopupMenu(UINT flags, int x, int y, const TWindow& window);
};

}  // namespace owl
