#include "lvx/files/mru_list.h"

#include <algorithm>
#include <utility>

#include "lvx/files/mru_menu_finder.h"

namespace {

std::string section() {
    return "MRU";
}

std::string key_of(int number) {
    return std::to_string(number);
}

}  // namespace

LVXMRUList::LVXMRUList(owl::TWindow* window_, unsigned int firstId_, int position_,
                       LVXUtilities::Settings& settings_)
    : window(window_), firstId(firstId_), settings(settings_), position(position_) {}

LVXMRUList::~LVXMRUList() = default;

bool LVXMRUList::Create() {
    if (menu == nullptr) {
        menu = lvx::find_mru_menu(window);
    }
    return menu != nullptr;
}

void LVXMRUList::setMenu(std::unique_ptr<LVXMRUMenu> newMenu) {
    if (newMenu == nullptr) {
        menu.reset();
        return;
    }
    if (menu != nullptr) {
        removeEntries();
    }
    menu = std::move(newMenu);
    addEntries();
}

bool LVXMRUList::Update() {
    if (menu != nullptr) {
        removeEntries();
    }
    if (!Create()) {
        return false;
    }
    addEntries();
    return true;
}

void LVXMRUList::readFromINI() {
    if (menu != nullptr) {
        removeEntries();
    }
    // Seven keys: a 0, which the list never writes, counts as the newest.
    for (int number = most; number >= 0; --number) {
        std::string file = settings.GetStr(section(), key_of(number), std::string());
        if (!file.empty() && count < most) {
            entries[count] = std::move(file);
            ++count;
        }
    }
    addEntries();
}

void LVXMRUList::addFile(const std::string& file) {
    if (menu != nullptr) {
        removeEntries();
    }
    deleteFile(file);
    if (count >= most) {
        std::move(entries + 1, entries + count, entries);
        entries[count - 1] = file;
    } else {
        entries[count] = file;
        ++count;
    }
    addEntries();
}

void LVXMRUList::removeFile(const std::string& file) {
    if (menu != nullptr) {
        removeEntries();
    }
    deleteFile(file);
    addEntries();
}

std::string LVXMRUList::getFile(int number) {
    return number >= 1 && number <= count ? entries[count - number] : std::string();
}

void LVXMRUList::deleteFile(const std::string& file) {
    std::string* const end = entries + count;
    std::string* const found = std::find(entries, end, file);
    if (found == end) {
        return;
    }
    std::move(found + 1, end, found);
    --count;
    entries[count].clear();
}

void LVXMRUList::addEntries() {
    if (!Create() || count < 1) {
        return;
    }
    menu->InsertMenu(position, LVXMRUMenu::Separator, LVXMRUMenu::NoId, nullptr);
    // Each goes to the same position and pushes the older ones down, and the separator below them all.
    for (int index = 0; index < count; ++index) {
        const int number = count - index;
        std::string label = "&";
        label.append(key_of(number)).append(" ").append(entries[index]);
        menu->InsertMenu(position, LVXMRUMenu::ByPosition, firstId + static_cast<unsigned int>(number),
                         label.c_str());
        settings.WriteStr(section(), key_of(number), entries[index]);
    }
}

void LVXMRUList::removeEntries() {
    if (!Create() || count < 1) {
        return;
    }
    // One more than there are files, for the separator.
    for (int number = count; number >= 0; --number) {
        menu->DeleteMenu(position, LVXMRUMenu::ByPosition);
        if (number != 0) {
            settings.WriteStr(section(), key_of(number), std::string());
        }
    }
}
