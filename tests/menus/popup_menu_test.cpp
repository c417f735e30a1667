#include <gtest/gtest.h>

#include <memory>

#include "lvx/menus/menu.h"
#include "menus/shown_menu.h"

namespace {

using lvx_test::Command;
using lvx_test::Labels;
using lvx_test::Lines;
using lvx_test::Shown;

class PopupMenu : public ::testing::Test {
protected:
    LVXPopupMenu* AddSub(LVXMenu& menu, const char* label, int position = -1) {
        auto* const sub = new LVXPopupMenu(label);
        menu.addItem(sub, position);
        return sub;
    }

    LVXMenu m_menu;
};

}  // namespace

TEST_F(PopupMenu, is_an_item_without_an_id_and_a_menu_of_its_own) {
    const LVXPopupMenu sub("&Sub");
    EXPECT_EQ("&Sub", sub.getLabel());
    EXPECT_EQ(0U, sub.getId());
    EXPECT_TRUE(sub.enabled());
    EXPECT_FALSE(sub.checked());
    EXPECT_TRUE(::IsMenu(sub.GetHandle()));
    EXPECT_EQ(0, sub.mitems().count());
    EXPECT_EQ("Sub", LVXPopupMenu(std::string("Sub")).getLabel());
    EXPECT_EQ("", LVXPopupMenu(static_cast<const char*>(nullptr)).getLabel());
}

TEST_F(PopupMenu, ends_its_menu_with_itself) {
    HMENU handle = nullptr;
    {
        const LVXPopupMenu sub("Sub");
        handle = sub.GetHandle();
    }
    EXPECT_FALSE(::IsMenu(handle));
    {
        const LVXPopupMenu unnamed;
        handle = unnamed.GetHandle();
        EXPECT_TRUE(::IsMenu(handle));
    }
    EXPECT_FALSE(::IsMenu(handle));
}

TEST_F(PopupMenu, stands_in_a_menu_as_a_drop_down) {
    LVXPopupMenu* const sub = AddSub(m_menu, "Sub");
    EXPECT_EQ(Lines{"Sub >"}, Shown(m_menu));
    EXPECT_EQ(sub->GetHandle(), ::GetSubMenu(m_menu, 0));
    EXPECT_EQ(sub, m_menu.menuAt(0));
    sub->addItem(Command("One"));
    EXPECT_EQ(Lines{"One"}, Shown(::GetSubMenu(m_menu, 0)));
    EXPECT_EQ(sub->mitems()[0], m_menu.itemOf(sub->mitems()[0]->getId()));
    EXPECT_EQ(sub, m_menu.menuOf(sub->GetHandle()));
}

TEST_F(PopupMenu, without_a_label_is_still_a_drop_down) {
    m_menu.addItem(new LVXPopupMenu);
    EXPECT_EQ(Lines{" >"}, Shown(m_menu));
    EXPECT_NE(nullptr, m_menu.menuAt(0));
}

TEST_F(PopupMenu, is_inserted_at_a_position) {
    m_menu.addItem(Command("One"));
    m_menu.addItem(Command("Two"));
    AddSub(m_menu, "Sub", 1);
    EXPECT_EQ((Lines{"One", "Sub >", "Two"}), Shown(m_menu));
    EXPECT_EQ((Lines{"One", "Sub >", "Two"}), Labels(m_menu));
}

// What has no text in front is taken for the icon of a maximised child.
TEST_F(PopupMenu, goes_one_place_further_behind_an_entry_without_a_text) {
    m_menu.addSeparator();
    m_menu.addItem(Command("One"));
    AddSub(m_menu, "Sub", 0);
    EXPECT_EQ((Lines{"----", "Sub >", "One"}), Shown(m_menu));
    EXPECT_EQ((Lines{"Sub >", "", "One"}), Labels(m_menu));
}

TEST_F(PopupMenu, is_removed_by_its_handle_and_lives_on) {
    AddSub(m_menu, "First");
    const std::unique_ptr<LVXPopupMenu> sub(AddSub(m_menu, "Sub"));
    // The list and the system's menu differ: the place in the list would be another entry's.
    ::InsertMenuA(m_menu, 0, MF_BYPOSITION, 1, "Foreign");
    EXPECT_TRUE(m_menu.removeItem(sub.get()));
    EXPECT_EQ((Lines{"Foreign", "First >"}), Shown(m_menu));
    EXPECT_TRUE(::IsMenu(sub->GetHandle()));
    EXPECT_FALSE(sub->check(true)) << "it is in no menu";
    EXPECT_FALSE(sub->checked());
}

TEST_F(PopupMenu, tells_if_the_system_does_not_have_it_any_more) {
    const std::unique_ptr<LVXPopupMenu> sub(AddSub(m_menu, "Sub"));
    ::RemoveMenu(m_menu, 0, MF_BYPOSITION);
    EXPECT_FALSE(m_menu.removeItem(sub.get()));
    EXPECT_EQ(0, m_menu.mitems().count()) << "it is taken out all the same";
    EXPECT_FALSE(sub->check(true));
    EXPECT_FALSE(sub->checked());
}

TEST_F(PopupMenu, leaves_its_menu_when_it_is_deleted) {
    LVXPopupMenu* const sub = AddSub(m_menu, "Sub");
    AddSub(m_menu, "Other");
    delete sub;
    EXPECT_EQ(Lines{"Other >"}, Shown(m_menu));
    EXPECT_EQ(Lines{"Other >"}, Labels(m_menu));
}

TEST_F(PopupMenu, has_one_place_however_often_it_is_added) {
    LVXPopupMenu* const sub = AddSub(m_menu, "Sub");
    m_menu.addItem(Command("One"));
    m_menu.addItem(sub);
    EXPECT_EQ((Lines{"One", "Sub >"}), Shown(m_menu));
    EXPECT_EQ((Lines{"One", "Sub >"}), Labels(m_menu));
    LVXMenu other;
    other.addItem(sub);
    EXPECT_EQ(Lines{"One"}, Shown(m_menu));
    EXPECT_EQ(Lines{"Sub >"}, Shown(other));
}

// It would contain itself, and end itself twice.
TEST_F(PopupMenu, does_not_go_into_itself_nor_into_what_it_contains) {
    LVXPopupMenu* const outer = AddSub(m_menu, "Outer");
    LVXPopupMenu* const inner = AddSub(*outer, "Inner");
    outer->addItem(outer);
    inner->addItem(outer);
    EXPECT_EQ(Lines{"Outer >"}, Labels(m_menu));
    EXPECT_EQ(Lines{"Inner >"}, Labels(*outer));
    EXPECT_EQ(Lines{}, Labels(*inner));
    EXPECT_EQ(Lines{"Outer >"}, Shown(m_menu));
    EXPECT_EQ(Lines{}, Shown(*inner));
}

TEST_F(PopupMenu, shows_its_own_state_and_label_and_nobody_elses) {
    m_menu.addSeparator();
    LVXPopupMenu* const sub = AddSub(m_menu, "Sub");
    EXPECT_TRUE(sub->enable(false));
    EXPECT_TRUE(sub->check(true));
    sub->setLabel("Named");
    EXPECT_EQ((Lines{"----", "Named * - >"}), Shown(m_menu));
    EXPECT_EQ(sub->GetHandle(), ::GetSubMenu(m_menu, 1));
    EXPECT_EQ("Named", sub->getLabel());
}

TEST_F(PopupMenu, over_an_entry_has_its_label_and_state) {
    const HMENU below = ::CreatePopupMenu();
    ::AppendMenuA(below, MF_STRING, 1, "One");
    ::AppendMenuA(m_menu, MF_STRING, 2, "First");
    ::AppendMenuA(m_menu, MF_POPUP | MF_CHECKED, reinterpret_cast<UINT_PTR>(below), "Below");
    {
        const LVXPopupMenu sub(m_menu, 1, below);
        EXPECT_EQ("Below", sub.getLabel());
        EXPECT_TRUE(sub.checked());
        EXPECT_EQ(~0U, sub.getId());
        EXPECT_EQ(Lines{"One"}, Labels(sub));
    }
    EXPECT_TRUE(::IsMenu(below)) << "it is the menu's";
    EXPECT_EQ((Lines{"First", "Below * >"}), Shown(m_menu));
}

TEST_F(PopupMenu, takes_what_is_below_it_along) {
    Lines notes;
    LVXPopupMenu* const sub = AddSub(m_menu, "Sub");
    AddSub(*sub, "Deeper")->addItem(new LVXMenuItem("One", new lvx_test::Note(notes)));
    delete sub;
    EXPECT_EQ(Lines{"gone"}, notes);
}
