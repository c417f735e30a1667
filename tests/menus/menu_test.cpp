#include "lvx/menus/menu.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>

#include "menus/shown_menu.h"
#include "owl/frame_window.h"
#include "tests/owl/desk.h"

namespace {

using lvx_test::Command;
using lvx_test::Labels;
using lvx_test::Lines;
using lvx_test::Shown;

class Menu : public ::testing::Test {
protected:
    /// Adds commands, one for each label.
    void Add(std::initializer_list<const char*> labels) {
        for (const char* const label : labels) {
            m_menu.addItem(Command(label));
        }
    }

    LVXMenu m_menu;
};

// A menu of the system: a drop-down, a command, a separator, a greyed and a checked command.
class MenuOfTheSystem : public ::testing::Test {
protected:
    MenuOfTheSystem() {
        ::AppendMenuA(m_file, MF_STRING, 1, "&New");
        ::AppendMenuA(m_file, MF_STRING, 2, "&Open");
        ::AppendMenuA(m_edit, MF_STRING, 3, "Cu&t");
        ::AppendMenuA(m_bar, MF_POPUP, reinterpret_cast<UINT_PTR>(m_file), "&File");
        ::AppendMenuA(m_bar, MF_POPUP, reinterpret_cast<UINT_PTR>(m_edit), "&Edit");
        ::AppendMenuA(m_bar, MF_STRING, 4, "&Run");
        ::AppendMenuA(m_bar, MF_SEPARATOR, 0, nullptr);
        ::AppendMenuA(m_bar, MF_GRAYED | MF_CHECKED, 5, "&Stop");
    }
    ~MenuOfTheSystem() override { ::DestroyMenu(m_bar); }

    const Lines m_entries{"&File >", "&Edit >", "&Run", "----", "&Stop * -"};
    HMENU m_bar = ::CreateMenu();
    HMENU m_file = ::CreatePopupMenu();
    HMENU m_edit = ::CreatePopupMenu();
};

}  // namespace

TEST_F(Menu, is_empty_at_first_and_ends_with_its_object) {
    HMENU handle = nullptr;
    {
        const LVXMenu menu;
        handle = menu;
        EXPECT_TRUE(::IsMenu(handle));
        EXPECT_EQ(0, menu.mitems().count());
        EXPECT_EQ(Lines{}, Shown(menu));
    }
    EXPECT_FALSE(::IsMenu(handle));
}

TEST_F(Menu, gets_items_at_its_end) {
    Add({"One", "Two"});
    EXPECT_EQ((Lines{"One", "Two"}), Shown(m_menu));
    EXPECT_EQ((Lines{"One", "Two"}), Labels(m_menu));
    EXPECT_EQ(2, m_menu.mitems().count());
}

TEST_F(Menu, gets_items_at_a_position) {
    Add({"One", "Two"});
    m_menu.addItem(Command("First"), 0);
    m_menu.insertItem(Command("Third"), 2);
    m_menu.addItem(Command("Last"), 4);
    m_menu.addItem(Command("End"), -7);
    const Lines expected{"First", "One", "Third", "Two", "Last", "End"};
    EXPECT_EQ(expected, Shown(m_menu));
    EXPECT_EQ(expected, Labels(m_menu));
}

TEST_F(Menu, gives_no_item_outside_of_its_list) {
    Add({"One"});
    EXPECT_EQ("One", m_menu.mitems()[0]->getLabel());
    EXPECT_EQ(nullptr, m_menu.mitems()[-1]);
    EXPECT_EQ(nullptr, m_menu.mitems()[1]);
    EXPECT_EQ(nullptr, m_menu.mitems()[INT_MAX]);
}

TEST_F(Menu, does_nothing_with_a_null_item) {
    m_menu.addItem(nullptr);
    m_menu.addItem(nullptr, 3);
    m_menu.insertItem(nullptr, 0);
    EXPECT_FALSE(m_menu.removeItem(nullptr));
    EXPECT_EQ(0, m_menu.mitems().count());
    EXPECT_EQ(Lines{}, Shown(m_menu));
}

// In the list it comes last; the system is told the position all the same, and does what it does with it.
TEST_F(Menu, puts_an_item_last_that_has_a_position_behind_the_end) {
    Add({"One", "Two"});
    m_menu.removeItem(m_menu.mitems()[1]);
    Add({"Three"});
    ::AppendMenuA(m_menu, MF_STRING, 1, "Foreign");
    m_menu.addItem(Command("Far"), 2);
    m_menu.addItem(Command("Farther"), INT_MAX);
    EXPECT_EQ((Lines{"One", "Three", "Far", "Farther"}), Labels(m_menu));
    EXPECT_EQ((Lines{"One", "Three", "Far", "Foreign", "Farther"}), Shown(m_menu));
    m_menu.addItem(Command("Beside"), 5);
    EXPECT_EQ((Lines{"One", "Three", "Far", "Farther", "Beside"}), Labels(m_menu));
    m_menu.addItem(Command("In"), 4);
    EXPECT_EQ((Lines{"One", "Three", "Far", "Farther", "In", "Beside"}), Labels(m_menu));
    EXPECT_EQ((Lines{"One", "Three", "Far", "Foreign", "In", "Farther", "Beside"}), Shown(m_menu));
}

TEST_F(Menu, position_above_the_count_is_still_that_of_the_system) {
    ::AppendMenuA(m_menu, MF_STRING, 1, "a");
    ::AppendMenuA(m_menu, MF_STRING, 2, "b");
    ::AppendMenuA(m_menu, MF_STRING, 3, "c");
    m_menu.addItem(Command("New"), 2);
    EXPECT_EQ(Lines{"New"}, Labels(m_menu));
    EXPECT_EQ((Lines{"a", "b", "New", "c"}), Shown(m_menu));
}

TEST_F(Menu, adds_a_command_twice_by_moving_it_under_a_new_id) {
    Add({"One", "Two"});
    LVXMenuItem* const one = m_menu.mitems()[0];
    const unsigned int former = one->getId();
    m_menu.addItem(one);
    EXPECT_EQ((Lines{"Two", "One"}), Labels(m_menu));
    EXPECT_EQ((Lines{"One", "Two", "One"}), Shown(m_menu)) << "the former entry should stay";
    EXPECT_NE(former, one->getId());
    EXPECT_EQ(former, ::GetMenuItemID(m_menu, 0));
    EXPECT_EQ(one->getId(), ::GetMenuItemID(m_menu, 2));
    EXPECT_TRUE(LVXMenu::MenuItemSelected(former)) << "the former id should still be known";
    EXPECT_TRUE(LVXMenu::MenuItemSelected(one->getId()));
}

// The ids that were handed out and not freed are not those that come next.
TEST_F(Menu, keeps_the_former_id_of_a_command_out_of_the_pool) {
    unsigned int former = 0;
    unsigned int latter = 0;
    {
        LVXMenu menu;
        LVXMenuItem* const item = Command("One");
        menu.addItem(item);
        former = item->getId();
        menu.addItem(item);
        latter = item->getId();
    }
    const unsigned int next = LVXMenu::AllocateMenuId();
    EXPECT_EQ(latter, next);
    const unsigned int behind = LVXMenu::AllocateMenuId();
    EXPECT_NE(former, behind);
    LVXMenu::FreeMenuId(behind);
    LVXMenu::FreeMenuId(next);
}

// Who chose the entry that had stayed in the menu reached for an item that had gone.
TEST_F(Menu, forgets_a_command_under_its_former_id_too) {
    unsigned int former = 0;
    {
        LVXMenu menu;
        LVXMenuItem* const item = Command("One");
        menu.addItem(item);
        former = item->getId();
        menu.addItem(item);
        EXPECT_TRUE(LVXMenu::MenuItemSelected(former));
    }
    LVXMenuItem other("Other", new lvx_test::Nothing, static_cast<int>(former));
    EXPECT_TRUE(LVXMenu::AddMenuItem(&other)) << "nobody should have the id";
}

TEST_F(Menu, takes_an_empty_label_for_a_separator_without_an_id) {
    const unsigned int next = LVXMenu::AllocateMenuId();
    LVXMenu::FreeMenuId(next);
    Add({"One"});
    auto* const separator = new LVXMenuItem;
    m_menu.addItem(separator);
    auto* const named = new LVXMenuItem("", new lvx_test::Nothing, 77);
    m_menu.addItem(named, 0);
    EXPECT_EQ((Lines{"----", "One", "----"}), Shown(m_menu));
    EXPECT_EQ(0U, separator->getId());
    EXPECT_EQ(0U, named->getId());
    EXPECT_EQ(0U, ::GetMenuItemID(m_menu, 0));
    EXPECT_FALSE(LVXMenu::MenuItemSelected(77));
    EXPECT_EQ(next, m_menu.mitems()[1]->getId()) << "the first command should have got the next id";
}

TEST_F(Menu, takes_no_command_of_others_for_a_separator) {
    auto* const separator = new LVXMenuItem("", new lvx_test::Nothing, 77);
    m_menu.addItem(separator);
    ::AppendMenuA(m_menu, MF_STRING, 77, "Foreign");
    separator->check(true);
    EXPECT_EQ((Lines{"----", "Foreign"}), Shown(m_menu));
    EXPECT_TRUE(m_menu.removeItem(separator));
    delete separator;
    EXPECT_EQ(Lines{"Foreign"}, Shown(m_menu));
}

TEST_F(Menu, shows_the_state_of_an_item_that_is_added_again) {
    Add({"One", "Two"});
    LVXMenuItem* const one = m_menu.mitems()[0];
    one->check(true);
    one->enable(false);
    EXPECT_TRUE(m_menu.removeItem(one));
    m_menu.addItem(one);
    EXPECT_EQ((Lines{"Two", "One * -"}), Shown(m_menu));
}

TEST_F(MenuOfTheSystem, moves_a_command_of_the_host_with_its_id) {
    LVXMenu menu(m_bar, owl::NoAutoDelete);
    menu.addItem(menu.mitems()[2], 1);
    EXPECT_EQ((Lines{"&File >", "&Run", "&Edit >", "----", "&Stop * -"}), Shown(m_bar));
    EXPECT_EQ(4U, ::GetMenuItemID(m_bar, 1));
}

// The first item of a bar has that id as well.
TEST_F(MenuOfTheSystem, leaves_the_separator_of_recent_files_to_their_list) {
    ::AppendMenuA(m_file, MF_SEPARATOR, ~0U, nullptr);
    ::AppendMenuA(m_file, MF_STRING, 9, "a.drw");
    LVXMenu menu(m_bar, owl::NoAutoDelete);
    LVXMenuItem* const file = menu.mitems()[0];
    EXPECT_EQ("&File", file->getLabel());
    file->setLabel("Other");
    EXPECT_EQ((Lines{"&New", "&Open", "----", "a.drw"}), Shown(m_file));
    menu.removeItem(file);
    delete file;
    EXPECT_EQ((Lines{"&New", "&Open", "----", "a.drw"}), Shown(m_file));
}

TEST_F(MenuOfTheSystem, keeps_the_grey_of_an_entry_under_a_new_label) {
    LVXMenu menu(m_bar, owl::NoAutoDelete);
    menu.mitems()[4]->setLabel("&Halt");
    EXPECT_EQ("&Halt * -", Shown(m_bar)[4]);
}

TEST_F(Menu, has_separators_across_and_upright) {
    Add({"One"});
    m_menu.addSeparator();
    Add({"Two"});
    m_menu.addVSeparator();
    Add({"Three"});
    EXPECT_EQ((Lines{"One", "----", "Two", "||||", "Three"}), Shown(m_menu));
    EXPECT_EQ((Lines{"One", "", "Two", "", "Three"}), Labels(m_menu));
    EXPECT_EQ(0U, m_menu.mitems()[1]->getId());
    EXPECT_EQ(0U, m_menu.mitems()[3]->getId());
}

TEST_F(Menu, overwrites_an_id_that_a_command_brings_along) {
    auto* const item = new LVXMenuItem("One", new lvx_test::Nothing, 4711);
    m_menu.addItem(item);
    EXPECT_NE(4711U, item->getId());
    EXPECT_EQ(item->getId(), ::GetMenuItemID(m_menu, 0));
    EXPECT_FALSE(LVXMenu::MenuItemSelected(4711));
}

TEST_F(Menu, removes_a_command_which_is_the_callers_then) {
    Add({"One", "Two", "Three"});
    const std::unique_ptr<LVXMenuItem> two(m_menu.mitems()[1]);
    const unsigned int id = two->getId();
    EXPECT_TRUE(m_menu.removeItem(two.get()));
    EXPECT_EQ((Lines{"One", "Three"}), Shown(m_menu));
    EXPECT_EQ((Lines{"One", "Three"}), Labels(m_menu));
    EXPECT_FALSE(m_menu.removeItem(two.get())) << "it is there no more";
    EXPECT_EQ(id, two->getId());
    EXPECT_TRUE(LVXMenu::MenuItemSelected(id)) << "it should keep its id until it ends";
    EXPECT_FALSE(two->check(true)) << "it is in no menu";
    EXPECT_FALSE(two->checked());
}

TEST_F(Menu, removes_a_separator_by_its_place) {
    m_menu.addSeparator();
    Add({"One"});
    m_menu.addSeparator();
    Add({"Two"});
    m_menu.addSeparator();
    const std::unique_ptr<LVXMenuItem> middle(m_menu.mitems()[2]);
    EXPECT_TRUE(m_menu.removeItem(middle.get()));
    EXPECT_EQ((Lines{"----", "One", "Two", "----"}), Shown(m_menu));
}

TEST_F(Menu, refuses_to_remove_what_another_menu_has) {
    Add({"One"});
    LVXMenu other;
    EXPECT_FALSE(other.removeItem(m_menu.mitems()[0]));
    EXPECT_EQ(Lines{"One"}, Shown(m_menu));
    EXPECT_TRUE(m_menu.mitems()[0]->check(true)) << "it should still be in its menu";
}

TEST_F(Menu, adds_again_what_was_removed_under_a_new_id) {
    Add({"One", "Two"});
    LVXMenuItem* const one = m_menu.mitems()[0];
    const unsigned int former = one->getId();
    m_menu.removeItem(one);
    m_menu.addItem(one, 1);
    EXPECT_EQ((Lines{"Two", "One"}), Shown(m_menu));
    EXPECT_NE(former, one->getId());
}

// Otherwise both menus would delete it.
TEST_F(Menu, takes_over_what_another_menu_has) {
    Add({"One"});
    LVXMenu other;
    LVXMenuItem* const one = m_menu.mitems()[0];
    other.addItem(one);
    EXPECT_EQ(Lines{}, Shown(m_menu));
    EXPECT_EQ(0, m_menu.mitems().count());
    EXPECT_EQ(Lines{"One"}, Shown(other));
}

TEST_F(Menu, forgets_an_item_that_is_deleted) {
    Add({"One", "Two"});
    const unsigned int id = m_menu.mitems()[0]->getId();
    delete m_menu.mitems()[0];
    EXPECT_EQ(Lines{"Two"}, Shown(m_menu));
    EXPECT_EQ(Lines{"Two"}, Labels(m_menu));
    EXPECT_FALSE(LVXMenu::MenuItemSelected(id));
}

TEST_F(Menu, deletes_its_items_from_the_last_to_the_first) {
    Lines notes;
    class Named : public lvx_test::Nothing {
    public:
        Named(Lines& notes, const char* name) : m_notes(notes), m_name(name) {}
        ~Named() override { m_notes.push_back(m_name); }

    private:
        Lines& m_notes;
        const char* m_name;
    };
    {
        LVXMenu menu;
        for (const char* const name : {"one", "two", "three"}) {
            menu.addItem(new LVXMenuItem(name, new Named(notes, name)));
        }
    }
    EXPECT_EQ((Lines{"three", "two", "one"}), notes);
}

TEST_F(Menu, without_a_menu_of_the_system_changes_itself_alone) {
    LVXMenu menu(static_cast<HMENU>(nullptr), owl::NoAutoDelete);
    EXPECT_EQ(0, menu.mitems().count());
    menu.addItem(Command("One"));
    menu.addItem(new LVXPopupMenu("Two"));
    menu.addItem(new LVXPopupMenu("Three"), 0);
    menu.addSeparator();
    EXPECT_EQ((Lines{"Three >", "One", "Two >", ""}), Labels(menu));
    EXPECT_FALSE(menu.mitems()[1]->check(true));
    EXPECT_TRUE(menu.mitems()[1]->checked());
    const std::unique_ptr<LVXMenuItem> one(menu.mitems()[1]);
    EXPECT_TRUE(menu.removeItem(one.get()));
    const std::unique_ptr<LVXMenuItem> three(menu.mitems()[0]);
    EXPECT_FALSE(menu.removeItem(three.get())) << "the system does not have it";
    EXPECT_EQ((Lines{"Two >", ""}), Labels(menu));
    EXPECT_EQ(nullptr, menu.menuOf(nullptr));
}

TEST_F(Menu, of_no_window_is_empty) {
    LVXMenu none(static_cast<owl::TWindow*>(nullptr));
    EXPECT_FALSE(none.IsOK());
    owl::TFrameWindow frame(nullptr, "never created");
    LVXMenu early(&frame);
    EXPECT_FALSE(early.IsOK());
    early.addItem(Command("One"));
    EXPECT_EQ(Lines{"One"}, Labels(early));
}

TEST_F(MenuOfTheSystem, has_a_plain_item_first_and_sub_menus_behind_it) {
    const LVXMenu menu(m_bar, owl::NoAutoDelete);
    EXPECT_EQ((Lines{"&File", "&Edit >", "&Run >", " >", "&Stop >"}), Labels(menu));
    EXPECT_EQ(nullptr, menu.menuAt(0));
    ASSERT_NE(nullptr, menu.menuAt(1));
    EXPECT_EQ(m_edit, menu.menuAt(1)->GetHandle());
    ASSERT_NE(nullptr, menu.menuAt(2)) << "a command behind the first place, too";
    EXPECT_EQ(nullptr, menu.menuAt(2)->GetHandle());
    EXPECT_EQ(0, menu.menuAt(2)->mitems().count());
    EXPECT_EQ(m_entries, Shown(m_bar)) << "the system's menu should be as it was";
}

TEST_F(MenuOfTheSystem, is_split_by_position_all_the_way_down) {
    ::AppendMenuA(m_edit, MF_POPUP, reinterpret_cast<UINT_PTR>(::CreatePopupMenu()), "Deeper");
    const LVXMenu menu(m_bar, owl::NoAutoDelete);
    const LVXPopupMenu& edit = *menu.menuAt(1);
    EXPECT_EQ((Lines{"Cu&t", "Deeper >"}), Labels(edit));
    EXPECT_EQ(0, edit.menuAt(1)->mitems().count());
}

TEST_F(MenuOfTheSystem, items_keep_their_ids_and_are_not_known_by_them) {
    const LVXMenu menu(m_bar, owl::NoAutoDelete);
    EXPECT_EQ(~0U, menu.mitems()[0]->getId());
    EXPECT_EQ(~0U, menu.mitems()[1]->getId());
    EXPECT_EQ(4U, menu.mitems()[2]->getId());
    EXPECT_EQ(0U, menu.mitems()[3]->getId());
    EXPECT_EQ(5U, menu.mitems()[4]->getId());
    for (const unsigned int id : {1U, 2U, 3U, 4U, 5U, ~0U}) {
        EXPECT_FALSE(LVXMenu::MenuItemSelected(id)) << id;
    }
}

TEST_F(MenuOfTheSystem, sub_menus_are_found_within_the_list_only) {
    const LVXMenu menu(m_bar, owl::NoAutoDelete);
    EXPECT_EQ(nullptr, menu.menuAt(-1));
    EXPECT_EQ(nullptr, menu.menuAt(5));
    EXPECT_EQ(nullptr, menu.menuAt(INT_MAX));
    EXPECT_EQ(nullptr, menu.menuAt(INT_MIN));
}

TEST_F(MenuOfTheSystem, items_are_found_by_id_with_what_stands_in_front_of_what_is_below) {
    ::AppendMenuA(m_edit, MF_STRING, 4, "Same id as Run");
    const LVXMenu menu(m_bar, owl::NoAutoDelete);
    ASSERT_NE(nullptr, menu.itemOf(3));
    EXPECT_EQ("Cu&t", menu.itemOf(3)->getLabel());
    EXPECT_EQ("Same id as Run", menu.itemOf(4)->getLabel()) << "Edit comes in front of Run";
    EXPECT_EQ(menu.mitems()[0], menu.itemOf(~0U));
    EXPECT_EQ(menu.mitems()[3], menu.itemOf(0)) << "separators have the id 0";
    EXPECT_EQ(nullptr, menu.itemOf(1)) << "what is below the first place has no items";
    EXPECT_EQ(nullptr, menu.itemOf(99));
}

TEST_F(MenuOfTheSystem, menus_are_found_by_handle) {
    const HMENU deeper = ::CreatePopupMenu();
    ::AppendMenuA(m_edit, MF_POPUP, reinterpret_cast<UINT_PTR>(deeper), "Deeper");
    LVXMenu menu(m_bar, owl::NoAutoDelete);
    EXPECT_EQ(&menu, menu.menuOf(m_bar));
    EXPECT_EQ(menu.menuAt(1), menu.menuOf(m_edit));
    EXPECT_EQ(menu.menuAt(1)->menuAt(1), menu.menuOf(deeper));
    EXPECT_EQ(nullptr, menu.menuOf(m_file)) << "what is below the first place has no menu";
    EXPECT_EQ(nullptr, menu.menuOf(nullptr)) << "which is the handle of items without a drop-down";
}

TEST_F(MenuOfTheSystem, stays_when_the_object_goes) {
    { const LVXMenu menu(m_bar, owl::NoAutoDelete); }
    EXPECT_EQ(m_entries, Shown(m_bar));
    EXPECT_EQ((Lines{"&New", "&Open"}), Shown(m_file));
    EXPECT_EQ(Lines{"Cu&t"}, Shown(m_edit));
}

TEST_F(MenuOfTheSystem, ends_with_the_object_if_that_is_told_so) {
    const HMENU bar = ::CreateMenu();
    const HMENU below = ::CreatePopupMenu();
    ::AppendMenuA(bar, MF_STRING, 1, "One");
    ::AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(below), "Two");
    { const LVXMenu menu(bar, owl::AutoDelete); }
    EXPECT_FALSE(::IsMenu(bar));
    EXPECT_FALSE(::IsMenu(below));
}

// The destroyed drop-down stayed in the bar, and what was made next could get its handle.
TEST_F(MenuOfTheSystem, is_rid_of_sub_menus_that_end_with_the_object) {
    HMENU added = nullptr;
    {
        LVXMenu menu(m_bar, owl::NoAutoDelete);
        auto* const sub = new LVXPopupMenu("Added");
        added = sub->GetHandle();
        menu.addItem(sub);
        EXPECT_EQ("Added >", Shown(m_bar).back());
    }
    EXPECT_FALSE(::IsMenu(added));
    EXPECT_EQ(m_entries, Shown(m_bar));
}

TEST_F(MenuOfTheSystem, keeps_the_entries_of_commands_which_are_nobodys) {
    unsigned int id = 0;
    {
        LVXMenu menu(m_bar, owl::NoAutoDelete);
        menu.addItem(Command("Added"));
        id = menu.mitems()[5]->getId();
    }
    EXPECT_EQ("Added", Shown(m_bar).back());
    EXPECT_FALSE(LVXMenu::MenuItemSelected(id));
}

TEST_F(MenuOfTheSystem, gives_up_what_is_removed) {
    LVXMenu menu(m_bar, owl::NoAutoDelete);
    const std::unique_ptr<LVXMenuItem> edit(menu.mitems()[1]);
    EXPECT_TRUE(menu.removeItem(edit.get()));
    EXPECT_EQ((Lines{"&File >", "&Run", "----", "&Stop * -"}), Shown(m_bar));
    EXPECT_TRUE(::IsMenu(m_edit)) << "the drop-down is the host's now";
    // Over no drop-down, it is the command that goes, not the first entry without one.
    const std::unique_ptr<LVXMenuItem> stop(menu.mitems()[3]);
    EXPECT_TRUE(menu.removeItem(stop.get()));
    EXPECT_EQ((Lines{"&File >", "&Run", "----"}), Shown(m_bar));
    const std::unique_ptr<LVXMenuItem> separator(menu.mitems()[2]);
    EXPECT_TRUE(menu.removeItem(separator.get()));
    EXPECT_EQ((Lines{"&File >", "&Run"}), Shown(m_bar));
    ::DestroyMenu(m_edit);
}

// Two objects over the same menu: the second knew the items of the first by their ids, and freed those.
TEST_F(MenuOfTheSystem, leaves_ids_to_the_items_that_have_them) {
    LVXMenu menu(m_bar, owl::NoAutoDelete);
    menu.addItem(Command("Added"));
    LVXMenuItem* const added = menu.mitems()[5];
    { const LVXMenu second(m_bar, owl::NoAutoDelete); }
    EXPECT_TRUE(LVXMenu::MenuItemSelected(added->getId()));
    const unsigned int next = LVXMenu::AllocateMenuId();
    EXPECT_NE(added->getId(), next);
    LVXMenu::FreeMenuId(next);
}

TEST_F(MenuOfTheSystem, frees_no_id_a_second_time) {
    auto first = std::make_unique<LVXMenu>(m_bar, owl::NoAutoDelete);
    first->addItem(Command("Added"));
    const unsigned int id = first->mitems()[5]->getId();
    auto second = std::make_unique<LVXMenu>(m_bar, owl::NoAutoDelete);
    first.reset();
    second.reset();
    EXPECT_EQ(id, LVXMenu::AllocateMenuId());
    const unsigned int next = LVXMenu::AllocateMenuId();
    EXPECT_NE(id, next);
    LVXMenu::FreeMenuId(next);
    LVXMenu::FreeMenuId(id);
}

TEST_F(MenuOfTheSystem, may_be_a_thousand_drop_downs_deep) {
    HMENU lowest = m_edit;
    for (int depth = 0; depth < 1000; ++depth) {
        const HMENU next = ::CreatePopupMenu();
        ::AppendMenuA(next, MF_STRING, 6, "Here");
        ::AppendMenuA(lowest, MF_POPUP, reinterpret_cast<UINT_PTR>(next), "Deeper");
        lowest = next;
    }
    LVXMenu menu(m_bar, owl::NoAutoDelete);
    EXPECT_NE(nullptr, menu.menuOf(lowest));
}
