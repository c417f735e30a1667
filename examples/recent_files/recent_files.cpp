// A menu with the files that were used last, printed as text.
//
// usage: recent_files NAME FOLDER FILE...
//
// Uses each FILE in turn and shows the menu. NAME names the settings; FOLDER is where they lie, on systems
// that have no place of their own for them.
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "lvx/files/mru_list.h"
#include "lvx/files/settings.h"
#include "lvx/platform/profile_directory.h"

namespace {

struct Item {
    unsigned int id;
    std::string label;
};
using Items = std::vector<Item>;

// A host's own menu. The list takes over this object; the items stay the host's.
class TextMenu : public LVXMRUMenu {
public:
    explicit TextMenu(Items& items) : m_items(items) {}

    void InsertMenu(int position, unsigned int flags, unsigned int id, const char* label) override {
        m_items.insert(m_items.begin() + position, {id, flags == Separator ? "----" : label});
    }
    void DeleteMenu(int position, unsigned int /*flags*/) override {
        m_items.erase(m_items.begin() + position);
    }

private:
    Items& m_items;
};

constexpr unsigned int command_open = 100;
constexpr unsigned int command_exit = 101;
constexpr unsigned int first_recent = 5000;  // 5001 to 5006 are commands of the list
constexpr int behind_open = 1;

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: recent_files NAME FOLDER FILE...\n";
        return 2;
    }
    lvx::set_profile_directory(argv[2]);
    LVXUtilities::Settings settings(argv[1], false);

    Items items{{command_open, "&Open"}, {command_exit, "E&xit"}};
    LVXMRUList recent(nullptr, first_recent, behind_open, settings);
    recent.setMenu(std::make_unique<TextMenu>(items));
    recent.readFromINI();  // those of the last time

    for (int i = 3; i < argc; ++i) {
        recent.addFile(argv[i]);
    }
    for (const Item& item : items) {
        std::cout << item.label << '\n';
        // What the host does with such a command.
        if (item.id == first_recent + 1) {
            std::cout << "    would open " << recent.getFile(static_cast<int>(item.id - first_recent))
                      << '\n';
        }
    }
    return 0;
}
