#include <gtest/gtest.h>

#include <memory>

#include "lvx/menus/menu.h"
#include "menus/shown_menu.h"
#include "support/vtable_slot.h"

namespace {

using lvx_test::Command;
using lvx_test::Lines;
using lvx_test::Note;
using lvx_test::Shown;

class MenuItem : public ::testing::Test {
protected:
    LVXMenuItem* Add(const char* label) {
        auto* const item = Command(label);
        m_menu.addItem(item);
        return item;
    }

    LVXMenu m_menu;
    Lines m_notes;
};

}  // namespace

TEST_F(MenuItem, begins_enabled_unchecked_and_without_label_or_id) {
    const LVXMenuItem item;
    EXPECT_EQ("", item.getLabel());
    EXPECT_EQ(0U, item.getId());
    EXPECT_TRUE(item.enabled());
    EXPECT_FALSE(item.checked());
}

TEST_F(MenuItem, takes_label_callback_and_id) {
    const LVXMenuItem narrow("&One", nullptr, 7);
    EXPECT_EQ("&One", narrow.getLabel());
    EXPECT_EQ(7U, narrow.getId());
    const LVXMenuItem text(std::string("&Two"), nullptr, 8);
    EXPECT_EQ("&Two", text.getLabel());
    EXPECT_EQ(8U, text.getId());
    EXPECT_EQ("", LVXMenuItem(static_cast<const char*>(nullptr), nullptr, 9).getLabel());
}

TEST_F(MenuItem, deletes_its_callback) {
    { const LVXMenuItem item("One", new Note(m_notes), 0); }
    EXPECT_EQ(Lines{"gone"}, m_notes);
}

TEST_F(MenuItem, outside_of_a_menu_is_not_checked_and_not_disabled) {
    LVXMenuItem item("One", nullptr, 1);
    EXPECT_FALSE(item.check(true));
    EXPECT_FALSE(item.checked());
    EXPECT_FALSE(item.enable(false));
    EXPECT_TRUE(item.enabled());
}

TEST_F(MenuItem, is_checked_in_the_systems_menu) {
    Add("One");
    LVXMenuItem* const two = Add("Two");
    EXPECT_TRUE(two->check(true));
    EXPECT_TRUE(two->checked());
    EXPECT_EQ((Lines{"One", "Two *"}), Shown(m_menu));
    EXPECT_TRUE(two->check(false));
    EXPECT_FALSE(two->checked());
    EXPECT_EQ((Lines{"One", "Two"}), Shown(m_menu));
}

TEST_F(MenuItem, is_greyed_in_the_systems_menu) {
    LVXMenuItem* const one = Add("One");
    EXPECT_TRUE(one->enable(false));
    EXPECT_FALSE(one->enabled());
    EXPECT_EQ(Lines{"One -"}, Shown(m_menu));
    EXPECT_EQ(static_cast<UINT>(MF_GRAYED), ::GetMenuState(m_menu, 0, MF_BYPOSITION));
    EXPECT_TRUE(one->enable(true));
    EXPECT_TRUE(one->enabled());
    EXPECT_EQ(Lines{"One"}, Shown(m_menu));
}

TEST_F(MenuItem, keeps_its_state_if_the_system_has_lost_the_entry) {
    LVXMenuItem* const one = Add("One");
    ::RemoveMenu(m_menu, 0, MF_BYPOSITION);
    EXPECT_FALSE(one->check(true));
    EXPECT_TRUE(one->checked());
    EXPECT_FALSE(one->enable(false));
    EXPECT_FALSE(one->enabled());
    EXPECT_EQ("One", one->getLabel());
}

TEST_F(MenuItem, gets_another_label) {
    LVXMenuItem item("One");
    item.setLabel("Two");
    EXPECT_EQ("Two", item.getLabel());
    item.setLabel(std::string("Three"));
    EXPECT_EQ("Three", item.getLabel());
    item.setLabel(static_cast<const char*>(nullptr));
    EXPECT_EQ("", item.getLabel());
}

TEST_F(MenuItem, shows_its_new_label_under_its_id) {
    LVXMenuItem* const one = Add("One");
    Add("Two");
    one->setLabel("&Uno");
    EXPECT_EQ((Lines{"&Uno", "Two"}), Shown(m_menu));
    EXPECT_EQ(one->getId(), ::GetMenuItemID(m_menu, 0));
    EXPECT_TRUE(LVXMenu::MenuItemSelected(one->getId()));
}

// The tick went with the former label, while the item said that it was checked.
TEST_F(MenuItem, keeps_tick_and_grey_under_a_new_label) {
    LVXMenuItem* const one = Add("One");
    one->check(true);
    one->enable(false);
    one->setLabel("Uno");
    EXPECT_EQ(Lines{"Uno * -"}, Shown(m_menu));
}

TEST_F(MenuItem, sees_a_label_that_others_have_changed) {
    LVXMenuItem* const one = Add("One");
    ::ModifyMenuA(m_menu, one->getId(), MF_BYCOMMAND, one->getId(), "Changed");
    EXPECT_EQ("Changed", one->getLabel());
    m_menu.removeItem(one);
    EXPECT_EQ("Changed", one->getLabel()) << "it was read, and is its own now";
    delete one;
}

TEST_F(MenuItem, reads_back_299_characters_of_its_label) {
    LVXMenuItem* const one = Add("One");
    const std::string label(400, 'x');
    one->setLabel(label);
    EXPECT_EQ(std::string(299, 'x'), one->getLabel());
}

TEST_F(MenuItem, that_is_a_separator_leaves_the_others_alone) {
    m_menu.addSeparator();
    Add("One");
    m_menu.addSeparator();
    LVXMenuItem* const last = m_menu.mitems()[2];
    last->setLabel("Text");
    EXPECT_FALSE(last->check(true));
    EXPECT_FALSE(last->enable(false));
    EXPECT_EQ((Lines{"----", "One", "----"}), Shown(m_menu));
    EXPECT_EQ("", m_menu.mitems()[0]->getLabel());
}

TEST_F(MenuItem, over_an_entry_has_its_label_id_and_state) {
    ::AppendMenuA(m_menu, MF_STRING, 3, "Plain");
    ::AppendMenuA(m_menu, MF_CHECKED, 4, "Checked");
    ::AppendMenuA(m_menu, MF_DISABLED, 5, "Disabled");
    ::AppendMenuA(m_menu, MF_GRAYED, 6, "Greyed");
    struct Expected {
        const char* label;
        unsigned int id;
        bool enabled;
        bool checked;
    };
    const Expected table[] = {
        {"Plain", 3, true, false},
        {"Checked", 4, true, true},
        {"Disabled", 5, false, false},
        {"Greyed", 6, true, false},
    };
    for (unsigned int position = 0; position < 4; ++position) {
        const LVXMenuItem item(m_menu, position);
        EXPECT_EQ(table[position].label, item.getLabel());
        EXPECT_EQ(table[position].id, item.getId());
        EXPECT_EQ(table[position].enabled, item.enabled()) << table[position].label;
        EXPECT_EQ(table[position].checked, item.checked()) << table[position].label;
    }
}

TEST_F(MenuItem, over_an_entry_takes_a_hundred_characters_of_its_label) {
    ::AppendMenuA(m_menu, MF_STRING, 3, std::string(100, 'a').c_str());
    ::AppendMenuA(m_menu, MF_STRING, 4, (std::string(100, 'b') + "c").c_str());
    EXPECT_EQ(std::string(100, 'a'), LVXMenuItem(m_menu, 0).getLabel());
    EXPECT_EQ(std::string(100, 'b'), LVXMenuItem(m_menu, 1).getLabel());
}

TEST_F(MenuItem, over_no_entry_is_a_separator) {
    for (const HMENU menu : {m_menu.GetHandle(), static_cast<HMENU>(nullptr)}) {
        const LVXMenuItem item(menu, 5);
        EXPECT_EQ("", item.getLabel());
        EXPECT_EQ(0U, item.getId());
        EXPECT_TRUE(item.enabled());
        EXPECT_FALSE(item.checked());
    }
}

TEST_F(MenuItem, calls_its_callback_when_it_is_selected) {
    LVXMenuItem yes("Yes", new Note(m_notes, true));
    LVXMenuItem no("No", new Note(m_notes, false));
    EXPECT_TRUE(yes.selected());
    EXPECT_FALSE(no.selected());
    EXPECT_EQ((Lines{"Yes", "No"}), m_notes);
}

TEST_F(MenuItem, says_whether_it_is_enabled_when_there_is_nobody_to_call) {
    auto* const item = new LVXMenuItem("One");
    m_menu.addItem(item);
    EXPECT_TRUE(item->selected());
    item->enable(false);
    EXPECT_FALSE(item->selected());
}

TEST_F(MenuItem, does_not_call_while_it_is_disabled) {
    auto* const item = new LVXMenuItem("One", new Note(m_notes));
    m_menu.addItem(item);
    item->enable(false);
    EXPECT_FALSE(item->selected());
    EXPECT_EQ(Lines{}, m_notes);
    m_menu.removeItem(item);
    delete item;
}

TEST_F(MenuItem, may_be_deleted_by_its_callback) {
    class Leave : public CallBack<LVXMenuItem*> {
    public:
        bool operator()(LVXMenuItem* item) override {
            delete item;
            return true;
        }
    };
    auto* const item = new LVXMenuItem("Leave", new Leave);
    m_menu.addItem(item);
    const unsigned int id = item->getId();
    EXPECT_TRUE(LVXMenu::MenuItemSelected(id));
    EXPECT_EQ(Lines{}, Shown(m_menu));
    EXPECT_FALSE(LVXMenu::MenuItemSelected(id));
}

// The place is part of the interface that compiled programs rely on.
TEST_F(MenuItem, callback_has_its_operation_in_the_first_virtual_place) {
    EXPECT_EQ(0U, lvx_test::slot_of(&CallBack<LVXMenuItem*>::operator()));
}
