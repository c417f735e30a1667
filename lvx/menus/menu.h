// lvx/menus/menu.h
//
// Menus that change while the program runs: commands that come, go and are renamed, each with a callback.
//
//     class Ring : public CallBack<LVXMenuItem*> {
//     public:
//         bool operator()(LVXMenuItem* item) override { … }
//     };
//     LVXMenu bar(frame);  // over the menu bar of a window
//     auto* bells = new LVXPopupMenu("&Bells");
//     bar.addItem(bells);
//     bells->addItem(new LVXMenuItem("&Ring", new Ring));
//
// The window passes on what the user chose, and the question what can be chosen; false means that it was no
// item of these:
//
//     LRESULT EvCommand(UINT id, HWND control, UINT code) override {
//         if (control == nullptr && LVXMenu::MenuItemSelected(id)) {
//             return 0;
//         }
//         return TFrameWindow::EvCommand(id, control, code);
//     }
//     void EvCommandEnable(owl::TCommandEnabler& enabler) override {
//         if (!LVXMenu::MenuItemEnable(enabler)) {
//             TFrameWindow::EvCommandEnable(enabler);
//         }
//     }
//
// A menu owns its items, an item its callback. Commands get ids of 20000 to 20999, each the id that was freed
// last; a host keeps its own ids out of that range. For the thread of the main window. Windows only.
// Nothing here throws, but for what the standard containers do when memory is short.
// Does not: notice what others do to the system's menu, such as the icon that a maximised MDI child puts in
// front of the bar; positions are those of mitems(). docs/menus.md tells more.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "lvx/platform/export.h"
#include "owl/menu.h"

namespace owl {
class TCommandEnabler;
class TWindow;
}  // namespace owl

class LVXMenu;
class LVXPopupMenu;

/// What is called back. One who is called may delete the item that it belongs to, and itself with it, if it
/// touches neither afterwards.
template <class Argument>
class CallBack {
public:
    CallBack() = default;
    CallBack(const CallBack&) = delete;
    CallBack& operator=(const CallBack&) = delete;
    virtual bool operator()(Argument argument) = 0;
    // Behind the operation, whose place among the virtual ones is the first.
    virtual ~CallBack() = default;
};

/// A command, or with an empty label a separator.
class LVX_EXPORT LVXMenuItem {
public:
    /// A separator.
    LVXMenuItem();
    /// Not in a menu yet, enabled and not checked. A null label is empty; without a callback the item is
    /// nobody's for LVXMenu::MenuItemSelected. An item that is added gets another id than `id`.
    explicit LVXMenuItem(const char* label, CallBack<LVXMenuItem*>* callback = nullptr, int id = 0);
    explicit LVXMenuItem(const std::string& label, CallBack<LVXMenuItem*>* callback = nullptr, int id = 0);
    /// Like the entry at a position of a menu, of its label the first 100 characters. One that is greyed and
    /// not disabled is enabled here. Where there is no such entry, a separator.
    LVXMenuItem(HMENU handle, unsigned int position);
    LVXMenuItem(const LVXMenuItem&) = delete;
    LVXMenuItem& operator=(const LVXMenuItem&) = delete;
    /// Takes the item out of its menu, if it is in one, and returns its id.
    virtual ~LVXMenuItem();

    /// Puts a tick at the item, or takes it away. False outside of a menu, and nothing changes then. Also
    /// false if the system's menu has no such entry; the item keeps the change.
    bool check(bool flag);
    /// Enables the item or greys it; likewise.
    bool enable(bool flag);
    bool checked() const { return isChecked; }
    bool enabled() const { return isEnabled; }

    /// In a menu, what the system's menu shows, the first 299 characters: others may have changed it.
    std::string getLabel() const;
    /// Null is empty. In a menu the tick and the grey stay.
    void setLabel(const char* text);
    void setLabel(const std::string& text);

    /// Calls the callback and returns what it says, if the item is enabled and has one; else returns whether
    /// it is enabled.
    bool selected();

    /// The command's id; 0 for a separator, for a sub-menu of one's own and for an item that was never added.
    unsigned int getId() const { return id; }

private:
    friend class LVXMenu;
    friend class LVXPopupMenu;

    LVXMenu* parent = nullptr;
    mutable std::string label;
    unsigned int id = 0;
    bool isEnabled = true;
    bool isChecked = false;
    std::unique_ptr<CallBack<LVXMenuItem*>> callback;

    static unsigned int nextMenuId;
};

/// A menu bar, or a drop-down as the base of LVXPopupMenu.
class LVX_EXPORT LVXMenu : public owl::TMenu {
public:
    /// The items of a menu, in order; the menu's to change.
    class MenuList {
    public:
        int count() const { return static_cast<int>(m_items.size()); }
        /// Null outside of 0 to count() - 1.
        LVXMenuItem* operator[](int position) const {
            return position >= 0 && position < count() ? m_items[static_cast<std::size_t>(position)]
                                                       : nullptr;
        }
        std::vector<LVXMenuItem*>::const_iterator begin() const { return m_items.begin(); }
        std::vector<LVXMenuItem*>::const_iterator end() const { return m_items.end(); }

    private:
        friend class LVXMenu;

        /// -1 if it is not there.
        LVX_HIDDEN int PlaceOf(const LVXMenuItem* item) const;
        LVX_HIDDEN void TakeOut(int place);
        /// At the end if there is no such place.
        LVX_HIDDEN void Insert(LVXMenuItem* item, int place);

        std::vector<LVXMenuItem*> m_items;
    };

    /// An empty menu bar, which ends with the object unless a window has got it. Throws owl::TXWindow if the
    /// system has none left.
    LVXMenu();
    /// Over the menu bar of `window`, which stays the window's, with an item for each entry: see
    /// CreateItems(). Without a window, a menu or a menu bar the object is empty, and changes itself alone.
    /// The window outlives the last change.
    explicit LVXMenu(owl::TWindow* window);
    /// Over a menu, likewise. With owl::AutoDelete it ends with the object.
    LVXMenu(HMENU handle, owl::TAutoDelete autoDelete);
    /// Deletes the items, the last one first. A menu that the system still has keeps the entries of commands,
    /// which then are nobody's; sub-menus that end with their objects are taken out of it. The window, which
    /// may have gone before, is not drawn anew.
    ~LVXMenu() override;

    /// Makes items for the entries of the system's menu, behind those that there are; once is enough, and the
    /// constructors do it. For the first entry a plain item, for each other one an LVXPopupMenu, over its
    /// drop-down or over none, whatever the entry is: in the bar of an MDI frame the first place is that of a
    /// child's icon, and hosts count on menuAt(0) to be null. The items keep the ids of their entries, and
    /// MenuItemSelected() does not know them.
    void CreateItems();

    /// Puts an item at the end, and takes it over. A sub-menu goes in front of what a maximised child has put
    /// there. Null is nothing. One that another menu has leaves that; one of this menu moves. Nothing happens
    /// if the item is this menu, or contains it.
    /// A command gets an id, whatever it had. One that was added before keeps its former id besides, and if
    /// it was not removed, its former entry in the system's menu.
    void addItem(LVXMenuItem* item);
    /// Puts it at `position`; a negative one is the end. Behind the end, it comes last in mitems(), and in
    /// the system's menu where that puts it. A sub-menu goes one place further if the first entry of the
    /// system's menu has no text, as a child's icon.
    void addItem(LVXMenuItem* item, int position);
    void insertItem(LVXMenuItem* item, int position);

    /// Takes an item out, which is the caller's then, and keeps its id until it ends or is added again. False
    /// if it was not in this menu, or, having been taken out, if it is a sub-menu that the system's menu does
    /// not have.
    bool removeItem(LVXMenuItem* item);

    void addSeparator();
    /// The items behind it stand in a new column.
    void addVSeparator();

    const MenuList& mitems() const { return items; }
    /// The sub-menu at a position of mitems(); null if there is none.
    LVXPopupMenu* menuAt(int position) const;
    /// The first item with that id, an item in front of what its sub-menu has; null if there is none. 0 finds
    /// separators.
    LVXMenuItem* itemOf(unsigned int id) const;
    /// This menu or one below it, whose handle it is; null if there is none, and for a null handle.
    LVXMenu* menuOf(HMENU handle);

    // Commands and ids, for all menus of the process.

    /// Makes an item known under its id. False for null, for id 0 and if the id has an item.
    static bool AddMenuItem(LVXMenuItem* item);
    /// Whoever has the id of `item` is not known under it any more.
    static void RemoveMenuItem(LVXMenuItem* item);
    /// For the window that gets commands. False if no item with a callback is known under the id. True,
    /// whatever the callback says, and also if the item is disabled; it is not called then.
    static bool MenuItemSelected(unsigned int id);
    /// For the window that is asked whether a command is enabled. False like MenuItemSelected(), and then
    /// nothing was answered.
    static bool MenuItemEnable(owl::TCommandEnabler& enabler);
    /// The id that was freed last, else the next one from 20000 on, without an end.
    static unsigned int AllocateMenuId();
    /// For an id of AllocateMenuId(), once. An id outside of 20000 to 20999 is dropped.
    static void FreeMenuId(unsigned int id);

private:
    friend class LVXMenuItem;
    friend class LVXPopupMenu;

    /// How the system is told of which entry it is, and what the entry stands for.
    struct Entry {
        UINT item;
        UINT flags;
        UINT kind;
        UINT_PTR id;
    };

    LVX_HIDDEN LVXMenu(HMENU handle, owl::TAutoDelete autoDelete, owl::TWindow* window);
    LVX_HIDDEN void Append(std::unique_ptr<LVXMenuItem> item);
    LVX_HIDDEN void AppendSeparator(UINT flags);
    LVX_HIDDEN bool IsWithin(const LVXMenuItem& item) const;
    LVX_HIDDEN void LeaveFormerPlace(LVXMenuItem& item);
    LVX_HIDDEN void InsertSubMenu(LVXPopupMenu& menu, int position);
    LVX_HIDDEN static void ShowState(LVXMenuItem& item);
    LVX_HIDDEN void InsertEntry(int position, UINT flags, UINT_PTR entryId, const char* text);
    LVX_HIDDEN bool RemoveEntry(const LVXMenuItem& item, int place);
    LVX_HIDDEN bool RemoveSubMenu(const LVXPopupMenu& menu);
    /// Of a command its id, of a sub-menu its position. False if the item has no entry of its own.
    LVX_HIDDEN bool FindEntry(const LVXMenuItem& item, Entry& entry) const;
    LVX_HIDDEN int PositionOf(const LVXPopupMenu& menu) const;
    LVX_HIDDEN void Redraw();
    LVX_HIDDEN static void Forget(const LVXMenuItem& item);

    owl::TWindow* window = nullptr;
    MenuList items;

    static std::map<unsigned int, LVXMenuItem*> itemMap;
    static std::vector<unsigned int> freeIds;
};

/// A sub-menu: an item of one menu, and a menu of items. Its operations tell it from a command by its class.
class LVX_EXPORT LVXPopupMenu : public LVXMenuItem, public LVXMenu {
public:
    /// Without a label, over an empty menu.
    LVXPopupMenu();
    /// Over an empty drop-down, which ends with the object. A null label is empty.
    explicit LVXPopupMenu(const char* label);
    explicit LVXPopupMenu(const std::string& label);
    /// Like the entry at a position of a menu, over its drop-down `handle`, which stays that menu's; a null
    /// one makes it a command of the host.
    LVXPopupMenu(HMENU parentHandle, unsigned int position, HMENU handle);
    /// Takes the sub-menu out of the menu that it is in.
    ~LVXPopupMenu() override;
};
