#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "lvx/menus/menu.h"
#include "menus/shown_menu.h"

namespace {

using lvx_test::Lines;
using lvx_test::Note;
using lvx_test::Question;

class MenuCommands : public ::testing::Test {
protected:
    LVXMenuItem* Add(const char* label, bool answer = true) {
        auto* const item = new LVXMenuItem(label, new Note(m_notes, answer));
        m_menu.addItem(item);
        return item;
    }

    // In front of the menu, whose callbacks tell it of their ends.
    Lines m_notes;
    LVXMenu m_menu;
};

// Takes ids out of the pool, and returns them in the end in the order that leaves the pool as it was.
class TakenIds {
public:
    ~TakenIds() {
        for (; !m_ids.empty(); m_ids.pop_back()) {
            LVXMenu::FreeMenuId(m_ids.back());
        }
    }
    unsigned int Take() {
        m_ids.push_back(LVXMenu::AllocateMenuId());
        return m_ids.back();
    }

private:
    std::vector<unsigned int> m_ids;
};

}  // namespace

TEST_F(MenuCommands, call_the_item_that_was_chosen) {
    Add("One");
    LVXMenuItem* const two = Add("Two");
    EXPECT_TRUE(LVXMenu::MenuItemSelected(two->getId()));
    EXPECT_EQ(Lines{"Two"}, m_notes);
}

TEST_F(MenuCommands, are_taken_whatever_the_callback_says) {
    LVXMenuItem* const no = Add("No", false);
    EXPECT_TRUE(LVXMenu::MenuItemSelected(no->getId()));
    EXPECT_EQ(Lines{"No"}, m_notes);
}

TEST_F(MenuCommands, of_a_disabled_item_are_taken_and_nobody_is_called) {
    LVXMenuItem* const one = Add("One");
    one->enable(false);
    EXPECT_TRUE(LVXMenu::MenuItemSelected(one->getId()));
    EXPECT_EQ(Lines{}, m_notes);
}

TEST_F(MenuCommands, that_nobody_has_are_left_to_others) {
    auto* const silent = new LVXMenuItem("Silent");
    m_menu.addItem(silent);
    for (const unsigned int id : {0U, 1U, 4711U, ~0U, silent->getId()}) {
        EXPECT_FALSE(LVXMenu::MenuItemSelected(id)) << id;
        Question question(id);
        EXPECT_FALSE(LVXMenu::MenuItemEnable(question)) << id;
        EXPECT_EQ("none", question.answer) << id;
        EXPECT_FALSE(question.GetHandled());
    }
}

TEST_F(MenuCommands, are_enabled_as_their_items_are) {
    LVXMenuItem* const one = Add("One");
    Question first(one->getId());
    EXPECT_TRUE(LVXMenu::MenuItemEnable(first));
    EXPECT_EQ("enabled", first.answer);
    one->enable(false);
    Question second(one->getId());
    EXPECT_TRUE(LVXMenu::MenuItemEnable(second));
    EXPECT_EQ("disabled", second.answer);
    EXPECT_TRUE(second.GetHandled());
    EXPECT_EQ(Lines{}, m_notes);
}

TEST_F(MenuCommands, have_one_item_each) {
    Lines notes;
    LVXMenuItem first("First", new Note(m_notes), 4711);
    LVXMenuItem second("Second", new Note(notes), 4711);
    EXPECT_TRUE(LVXMenu::AddMenuItem(&first));
    EXPECT_FALSE(LVXMenu::AddMenuItem(&first));
    EXPECT_FALSE(LVXMenu::AddMenuItem(&second));
    EXPECT_TRUE(LVXMenu::MenuItemSelected(4711));
    EXPECT_EQ(Lines{"First"}, m_notes);
    LVXMenu::RemoveMenuItem(&first);
    EXPECT_FALSE(LVXMenu::MenuItemSelected(4711));
    LVXMenu::RemoveMenuItem(&first);
}

TEST_F(MenuCommands, are_not_for_items_without_an_id_nor_for_none) {
    LVXMenuItem separator;
    EXPECT_FALSE(LVXMenu::AddMenuItem(&separator));
    EXPECT_FALSE(LVXMenu::AddMenuItem(nullptr));
    LVXMenu::RemoveMenuItem(&separator);
    LVXMenu::RemoveMenuItem(nullptr);
}

TEST_F(MenuCommands, forget_an_item_that_ends_and_keep_one_of_the_same_id) {
    LVXMenuItem keeper("Keeper", new Note(m_notes), 4711);
    LVXMenu::AddMenuItem(&keeper);
    { const LVXMenuItem other("Other", nullptr, 4711); }
    EXPECT_TRUE(LVXMenu::MenuItemSelected(4711));
    auto item = std::make_unique<LVXMenuItem>("Item", new Note(m_notes), 4712);
    LVXMenu::AddMenuItem(item.get());
    item.reset();
    EXPECT_FALSE(LVXMenu::MenuItemSelected(4712));
}

TEST_F(MenuCommands, have_ids_that_return_when_items_end) {
    TakenIds ids;
    const unsigned int one = Add("One")->getId();
    const unsigned int two = Add("Two")->getId();
    delete m_menu.itemOf(one);
    delete m_menu.itemOf(two);
    EXPECT_EQ(two, ids.Take());
    EXPECT_EQ(one, ids.Take());
}

TEST_F(MenuCommands, have_ids_of_which_the_last_freed_comes_first) {
    TakenIds ids;
    const unsigned int one = ids.Take();
    const unsigned int two = ids.Take();
    EXPECT_NE(one, two);
    LVXMenu::FreeMenuId(one);
    LVXMenu::FreeMenuId(two);
    EXPECT_EQ(two, LVXMenu::AllocateMenuId());
    EXPECT_EQ(one, LVXMenu::AllocateMenuId());
}

TEST_F(MenuCommands, have_ids_of_which_those_outside_of_the_range_do_not_return) {
    TakenIds ids;
    LVXMenu::FreeMenuId(21000);
    LVXMenu::FreeMenuId(19999);
    LVXMenu::FreeMenuId(0);
    const unsigned int next = ids.Take();
    EXPECT_GE(next, 20000U);
    EXPECT_LE(next, 20999U);
}

TEST_F(MenuCommands, give_an_id_of_the_host_to_its_item_and_back) {
    const unsigned int id = LVXMenu::AllocateMenuId();
    { const LVXMenuItem item("One", nullptr, static_cast<int>(id)); }
    TakenIds ids;
    EXPECT_EQ(id, ids.Take());
}

TEST_F(MenuCommands, have_more_ids_than_return) {
    std::vector<std::unique_ptr<LVXMenuItem>> items;
    {
        LVXMenu menu;
        for (int i = 0; i < 1200; ++i) {
            menu.addItem(new LVXMenuItem("Item", new Note(m_notes)));
        }
        EXPECT_LT(21000U, menu.mitems()[1199]->getId());
        EXPECT_TRUE(LVXMenu::MenuItemSelected(menu.mitems()[1199]->getId()));
        EXPECT_EQ("Item", m_notes.back());
    }
    TakenIds ids;
    EXPECT_GT(21000U, ids.Take());
}
