// lvx/files/mru_list.h
//
// The files that were used last, six at most, as numbered items of a menu and in a settings file. The list
// brings both up to date at each change; there is nothing to do at the end. The newest has the number 1.
//
// In the settings file it is the section "MRU" with a key per number. In the menu the items stand from
// `position` down, newest first, and a separator below them; a label is "&1 C:\pictures\logo.bmp", with the
// full name as it was given, and the command id is `firstId` plus the number.
//
// Owns its menu, but neither the window nor the settings, which must outlive it. For the thread of the
// window. Does not: take its items out of the menu when it is destroyed, notice that the window has another
// menu bar now (setMenu(nullptr) and Update() do), shorten names, double an "&" in them, take names in
// different case for the same file, look whether the files are there, report failures.
#pragma once

#include <memory>
#include <string>

#include "lvx/files/mru_menu.h"
#include "lvx/files/settings.h"
#include "lvx/platform/export.h"

namespace owl {
class TWindow;
}

class LVX_EXPORT LVXMRUList {
public:
    /// An empty list without a menu. Touches neither the menu nor the file. `window` may be null: then there
    /// is no menu but what setMenu() brings.
    LVXMRUList(owl::TWindow* window, unsigned int firstId, int position, LVXUtilities::Settings& settings);
    LVXMRUList(const LVXMRUList&) = delete;
    LVXMRUList& operator=(const LVXMRUList&) = delete;
    ~LVXMRUList();

    /// Finds the window's menu, by setMRUMenuFinder(), unless there is one already. False if the window is
    /// null or has none.
    /// Without a menu the list changes in memory alone, and nothing reaches the settings file.
    /// Requires: the list is empty, or has its menu. Puts no items into the menu, and later changes take out
    /// as many as there are files: those of the host, if the list's are not there. A list that got files
    /// before needs Update() instead, which does both.
    bool Create();

    /// Gives the list a menu, or another one: the items go from the old one, and enter the new. With null the
    /// list lets go of its menu, whose items stay in it, and the file stays as it is.
    void setMenu(std::unique_ptr<LVXMRUMenu> newMenu);

    /// Takes the items out of the menu, if there is one, and puts them in again. False if there is no menu to
    /// be found.
    bool Update();

    /// Loads the names in the settings file behind those in the list, as newer ones, the file's number 1 as
    /// the newest of all, and rebuilds the menu and the file. Reads the keys 6 to 0; empty ones leave no gap
    /// in the list. Of more than six names in all, those that would come later are dropped. A key above the
    /// number of files, or 0, that someone wrote by hand stays, and is read again next time.
    void readFromINI();

    /// Makes `file` the newest. If it is listed, byte for byte, it moves there; if six others are, the oldest
    /// goes.
    void addFile(const std::string& file);

    /// Takes `file` out; if it is not listed, rebuilds menu and file all the same.
    void removeFile(const std::string& file);

    /// The file with that number, which is a command id minus `firstId`; empty outside 1 to the number of
    /// files.
    std::string getFile(int number);

    // The steps of which the others are made.

    /// Takes `file` out of the list and leaves menu and settings file alone.
    void deleteFile(const std::string& file);

    /// Puts the items into the menu and the names into the settings file. Does nothing without a menu or
    /// without files. Requires: they are not in the menu.
    void addEntries();

    /// Takes the items out of the menu, with their separator, and empties their keys in the settings file.
    /// Does nothing without a menu or without files. Requires: they are in the menu.
    void removeEntries();

private:
    static constexpr int most = 6;

    owl::TWindow* window;
    unsigned int firstId;
    std::unique_ptr<LVXMRUMenu> menu;
    LVXUtilities::Settings& settings;
    int count = 0;
    std::string entries[most];
    int position;
};
