// Items, with the system's entries that show them.
#include "lvx/menus/menu.h"

namespace {

std::string text_of(const char* text) {
    return text != nullptr ? text : "";
}

constexpr UINT no_entry = ~0U;
constexpr int most_of_a_label_that_is_read = 100;
constexpr int room_for_a_label = 300;

}  // namespace

LVXMenuItem::LVXMenuItem() = default;

LVXMenuItem::LVXMenuItem(const char* label_, CallBack<LVXMenuItem*>* callback_, int id_)
    : label(text_of(label_)), id(static_cast<unsigned int>(id_)), callback(callback_) {}

LVXMenuItem::LVXMenuItem(const std::string& label_, CallBack<LVXMenuItem*>* callback_, int id_)
    : label(label_), id(static_cast<unsigned int>(id_)), callback(callback_) {}

LVXMenuItem::LVXMenuItem(HMENU handle, unsigned int position) {
    const owl::TMenu menu(handle);
    const UINT state = menu.GetMenuState(position, MF_BYPOSITION);
    if (state == no_entry) {
        return;
    }
    id = menu.GetMenuItemID(static_cast<int>(position));
    isEnabled = (state & MF_DISABLED) == 0;
    isChecked = (state & MF_CHECKED) != 0;
    char text[most_of_a_label_that_is_read + 1] = "";
    menu.GetMenuString(position, text, sizeof text, MF_BYPOSITION);
    label = text;
}

LVXMenuItem::~LVXMenuItem() {
    if (parent != nullptr) {
        parent->removeItem(this);
    }
    LVXMenu::Forget(*this);
}

bool LVXMenuItem::check(bool flag) {
    if (parent == nullptr) {
        return false;
    }
    isChecked = flag;
    LVXMenu::Entry entry{};
    return parent->FindEntry(*this, entry) &&
           parent->CheckMenuItem(entry.item, entry.flags | (flag ? MF_CHECKED : MF_UNCHECKED));
}

bool LVXMenuItem::enable(bool flag) {
    if (parent == nullptr) {
        return false;
    }
    isEnabled = flag;
    LVXMenu::Entry entry{};
    const bool done = parent->FindEntry(*this, entry) &&
                      parent->EnableMenuItem(entry.item, entry.flags | (flag ? MF_ENABLED : MF_GRAYED));
    parent->Redraw();
    return done;
}

std::string LVXMenuItem::getLabel() const {
    LVXMenu::Entry entry{};
    if (parent != nullptr && parent->FindEntry(*this, entry) &&
        parent->GetMenuState(entry.item, entry.flags) != no_entry) {
        char text[room_for_a_label] = "";
        parent->GetMenuString(entry.item, text, sizeof text, entry.flags);
        label = text;
    }
    return label;
}

void LVXMenuItem::setLabel(const char* text) {
    setLabel(text_of(text));
}

// The system takes an entry's state anew together with its text.
void LVXMenuItem::setLabel(const std::string& text) {
    label = text;
    LVXMenu::Entry entry{};
    if (parent == nullptr || !parent->FindEntry(*this, entry)) {
        return;
    }
    const UINT now = parent->GetMenuState(entry.item, entry.flags);
    if (now == no_entry) {
        return;
    }
    const UINT state = now & (MF_CHECKED | MF_GRAYED | MF_DISABLED);
    parent->ModifyMenu(entry.item, entry.flags | entry.kind | state, entry.id, label.c_str());
    parent->Redraw();
}

bool LVXMenuItem::selected() {
    return isEnabled && callback != nullptr ? (*callback)(this) : isEnabled;
}
