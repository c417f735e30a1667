// With real children of a real frame. Their icon stands first in the bar while they are maximised, and their
// buttons last.
#include "lvx/menus/bar_places.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "lvx/menus/menu.h"
#include "menus/mdi_desk.h"
#include "menus/shown_menu.h"

namespace {

using lvx_test::Command;
using lvx_test::Labels;
using lvx_test::Lines;
using lvx_test::Shown;
using std::optional;

class BarPlaces : public ::testing::Test {
protected:
    void Append(std::initializer_list<UINT> ids) {
        for (const UINT id : ids) {
            m_menu.AppendMenu(MF_STRING, id, "x");
        }
    }

    owl::TMenu m_menu;
};

class MdiBar : public ::testing::Test {
protected:
    /// The entries' texts, without the icon's and the buttons'.
    static Lines Texts(HMENU bar) {
        Lines lines = Shown(bar);
        std::erase_if(lines, [](const std::string& line) { return line.empty() || line.front() == ' '; });
        return lines;
    }
    bool IsLastInFrontOfTheButtons(const std::string& text) const {
        const Lines lines = Shown(m_desk.Bar());
        const auto found = std::find(lines.begin(), lines.end(), text);
        if (found == lines.end()) {
            return false;
        }
        const int behind = static_cast<int>(found - lines.begin()) + 1;
        const int count = static_cast<int>(lines.size());
        bool buttonsOnly = behind < count;
        for (int position = behind; position < count; ++position) {
            buttonsOnly = buttonsOnly && ::GetMenuItemID(m_desk.Bar(), position) >= 0xF000;
        }
        return buttonsOnly;
    }

    lvx_test::MdiDesk<> m_desk;
};

}  // namespace

TEST_F(BarPlaces, of_restore_is_none_without_a_child) {
    EXPECT_EQ(std::nullopt, lvx::place_of_restore(m_menu));
    Append({1, 2});
    EXPECT_EQ(std::nullopt, lvx::place_of_restore(m_menu));
    EXPECT_EQ(std::nullopt, lvx::place_of_restore(owl::TMenu(static_cast<HMENU>(nullptr))));
}

TEST_F(BarPlaces, of_restore_is_at_the_end_alone_or_among_the_other_buttons) {
    Append({1, 2, 0xF120});
    EXPECT_EQ(optional<UINT>(2), lvx::place_of_restore(m_menu));
    Append({0xF060});
    EXPECT_EQ(optional<UINT>(2), lvx::place_of_restore(m_menu));
    m_menu.InsertMenu(2, MF_BYPOSITION, 0xF020, "x");
    EXPECT_EQ(optional<UINT>(2), lvx::place_of_restore(m_menu));
}

TEST_F(BarPlaces, of_restore_is_not_in_the_middle) {
    Append({0xF120, 1});
    EXPECT_EQ(std::nullopt, lvx::place_of_restore(m_menu));
}

TEST_F(BarPlaces, of_other_buttons_are_of_no_interest) {
    Append({1, 0xF020, 0xF060});
    EXPECT_EQ(std::nullopt, lvx::place_of_restore(m_menu));
}

TEST_F(BarPlaces, first_is_an_icons_if_it_has_no_text) {
    EXPECT_TRUE(lvx::begins_with_icon(m_menu)) << "an empty menu";
    Append({1});
    EXPECT_FALSE(lvx::begins_with_icon(m_menu));
    m_menu.InsertMenu(0, MF_BYPOSITION | MF_SEPARATOR);
    EXPECT_TRUE(lvx::begins_with_icon(m_menu));
}

TEST_F(BarPlaces, first_has_a_text_however_long) {
    m_menu.AppendMenu(MF_STRING, 1, std::string(500, 'x').c_str());
    EXPECT_FALSE(lvx::begins_with_icon(m_menu));
}

TEST_F(MdiBar, has_an_icon_in_front_and_buttons_behind_while_a_child_is_maximised) {
    EXPECT_FALSE(lvx::begins_with_icon(owl::TMenu(m_desk.Bar())));
    owl::TMDIChild* const child = m_desk.OpenMaximised("one");
    const owl::TMenu bar(m_desk.Bar());
    EXPECT_TRUE(lvx::begins_with_icon(bar));
    const optional<UINT> place = lvx::place_of_restore(bar);
    ASSERT_TRUE(place);
    EXPECT_EQ(3U, *place) << "behind the icon, File and Edit";
    child->ShowWindow(SW_RESTORE);
    EXPECT_FALSE(lvx::begins_with_icon(bar));
    EXPECT_EQ(std::nullopt, lvx::place_of_restore(bar));
}

TEST_F(MdiBar, gets_a_sub_menu_in_front_of_the_restore_button) {
    LVXMenu bar(m_desk.frame);
    m_desk.OpenMaximised("one");
    bar.addItem(new LVXPopupMenu("&Added"));
    EXPECT_TRUE(IsLastInFrontOfTheButtons("&Added >"));
    EXPECT_EQ((Lines{"&File >", "&Edit >", "&Added >"}), Texts(m_desk.Bar()));
    EXPECT_EQ((Lines{"&File", "&Edit >", "&Added >"}), Labels(bar));
}

TEST_F(MdiBar, gets_a_sub_menu_at_the_place_that_it_has_without_the_icon) {
    LVXMenu bar(m_desk.frame);
    m_desk.OpenMaximised("one");
    bar.addItem(new LVXPopupMenu("&Added"), 1);
    EXPECT_EQ((Lines{"&File >", "&Added >", "&Edit >"}), Texts(m_desk.Bar()));
    EXPECT_EQ((Lines{"&File", "&Added >", "&Edit >"}), Labels(bar));
    bar.addItem(new LVXPopupMenu("Fir&st"), 0);
    EXPECT_EQ((Lines{"Fir&st >", "&File >", "&Added >", "&Edit >"}), Texts(m_desk.Bar()));
    EXPECT_EQ(" >", Shown(m_desk.Bar()).front()) << "the icon should stay in front";
}

// The buttons were not found at the end any more, and stayed for ever.
TEST_F(MdiBar, is_rid_of_icon_and_buttons_when_the_child_is_restored_or_closed) {
    LVXMenu bar(m_desk.frame);
    owl::TMDIChild* const child = m_desk.OpenMaximised("one");
    bar.addItem(new LVXPopupMenu("&Added"));
    bar.addItem(new LVXPopupMenu("&Second"), 1);
    const Lines expected{"&File >", "&Second >", "&Edit >", "&Added >"};
    child->ShowWindow(SW_RESTORE);
    EXPECT_EQ(expected, Shown(m_desk.Bar()));
    child->ShowWindow(SW_MAXIMIZE);
    child->Destroy();
    EXPECT_EQ(expected, Shown(m_desk.Bar()));
}

TEST_F(MdiBar, loses_a_sub_menu_by_its_handle_with_the_icon_in_front) {
    LVXMenu bar(m_desk.frame);
    auto* const added = new LVXPopupMenu("&Added");
    bar.addItem(added);
    owl::TMDIChild* const child = m_desk.OpenMaximised("one");
    EXPECT_TRUE(bar.removeItem(added));
    delete added;
    EXPECT_EQ((Lines{"&File >", "&Edit >"}), Texts(m_desk.Bar()));
    child->ShowWindow(SW_RESTORE);
    EXPECT_EQ((Lines{"&File >", "&Edit >"}), Shown(m_desk.Bar()));
}

// That is what the first place is kept free for.
TEST_F(MdiBar, over_which_an_object_is_made_with_a_maximised_child_begins_with_its_icon) {
    owl::TMDIChild* const child = m_desk.OpenMaximised("one");
    LVXMenu bar(m_desk.frame);
    EXPECT_EQ(6, bar.mitems().count()) << "icon, File, Edit and three buttons";
    EXPECT_EQ("", bar.mitems()[0]->getLabel());
    EXPECT_EQ(nullptr, bar.menuAt(0));
    ASSERT_NE(nullptr, bar.menuAt(1));
    EXPECT_EQ("&File", bar.menuAt(1)->getLabel());
    EXPECT_EQ(0xF120U, bar.mitems()[4]->getId());
    EXPECT_EQ(child->GetSystemMenu(), ::GetSubMenu(bar, 0));
}

TEST_F(MdiBar, is_drawn_anew_when_a_sub_menu_comes_or_goes) {
    const auto heightOfClient = [&] { return m_desk.frame->GetClientRect().Height(); };
    const int before = heightOfClient();
    LVXMenu bar(m_desk.frame);
    std::vector<LVXPopupMenu*> added;
    for (int i = 0; i < 8; ++i) {
        added.push_back(new LVXPopupMenu("A long name in the bar"));
        bar.addItem(added.back());
    }
    EXPECT_LT(heightOfClient(), before) << "the bar should have got a second line";
    for (LVXPopupMenu* const menu : added) {
        bar.removeItem(menu);
        delete menu;
    }
    EXPECT_EQ(before, heightOfClient());
}
