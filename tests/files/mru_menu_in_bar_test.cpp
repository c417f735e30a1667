// Recent files in real menu bars of real windows, chosen by the keys that a user presses.
#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <string>
#include <utility>

#include "files/profile_folder.h"
#include "lvx/files/mru_list.h"
#include "menus/mdi_desk.h"
#include "menus/shown_menu.h"
#include "owl/menu.h"

namespace {

using lvx_test::Lines;
using lvx_test::Shown;
using LVXUtilities::Settings;
using std::string;

constexpr unsigned int first_recent = 5000;
constexpr int behind_new = 1;

// A host, as far as recent files go.
class Host : public owl::TMDIFrame {
public:
    Host(const char* title, owl::TResId menu) : TMDIFrame(title, menu) {}

    void CmRecent(UINT id) { chosen.push_back(recent->getFile(static_cast<int>(id - first_recent))); }

    LVXMRUList* recent = nullptr;
    Lines chosen;

    DECLARE_RESPONSE_TABLE(Host);
};

DEFINE_RESPONSE_TABLE1(Host, owl::TMDIFrame)
    EV_COMMAND_AND_ID(first_recent + 1, CmRecent), EV_COMMAND_AND_ID(first_recent + 2, CmRecent),
        EV_COMMAND_AND_ID(first_recent + 3, CmRecent), EV_COMMAND_AND_ID(first_recent + 4, CmRecent),
        EV_COMMAND_AND_ID(first_recent + 5, CmRecent), EV_COMMAND_AND_ID(first_recent + 6, CmRecent),
END_RESPONSE_TABLE;

class RecentFilesInBar : public ::testing::Test {
protected:
    RecentFilesInBar()
        : m_file(::GetSubMenu(m_desk.Bar(), 0)), m_list(m_desk.frame, first_recent, behind_new, m_settings) {
        m_desk.frame->recent = &m_list;
    }

    void Add(const Lines& files) {
        for (const string& file : files) {
            m_list.addFile(file);
        }
    }
    string Stored(int number) { return m_settings.GetStr("MRU", std::to_string(number), string("-")); }
    /// Presses the keys, the first two together, and waits until something was chosen.
    bool Choose(WORD mnemonic, WORD item) {
        m_desk.frame->chosen.clear();
        desk::Press({VK_MENU, mnemonic});
        desk::Press({item});
        return desk::PumpUntil([&] { return !m_desk.frame->chosen.empty(); });
    }

    lvx_test::ProfileFolder m_profile;
    Settings m_settings{m_profile.Name(), false};
    lvx_test::MdiDesk<Host> m_desk;
    const HMENU m_file;
    LVXMRUList m_list;
};

}  // namespace

TEST_F(RecentFilesInBar, find_their_menu_by_themselves) {
    EXPECT_TRUE(m_list.Create());
    EXPECT_EQ((Lines{"&New", "E&xit"}), Shown(m_file));
    EXPECT_EQ("", m_profile.Content());
}

TEST_F(RecentFilesInBar, stand_at_their_place_with_full_names_numbers_and_ids) {
    Add({"c:\\pictures\\logo.bmp", "c:\\house.drw"});
    EXPECT_EQ((Lines{"&New", "&1 c:\\house.drw", "&2 c:\\pictures\\logo.bmp", "----", "E&xit"}),
              Shown(m_file));
    EXPECT_EQ(101U, ::GetMenuItemID(m_file, 0));
    EXPECT_EQ(5001U, ::GetMenuItemID(m_file, 1));
    EXPECT_EQ(5002U, ::GetMenuItemID(m_file, 2));
    EXPECT_EQ("[MRU]\r\n1=c:\\house.drw\r\n2=c:\\pictures\\logo.bmp\r\n", m_profile.Content());
}

TEST_F(RecentFilesInBar, are_six_at_most) {
    Add({"a", "b", "c", "d", "e", "f", "g"});
    EXPECT_EQ((Lines{"&New", "&1 g", "&2 f", "&3 e", "&4 d", "&5 c", "&6 b", "----", "E&xit"}),
              Shown(m_file));
    EXPECT_EQ(5006U, ::GetMenuItemID(m_file, 6));
    EXPECT_EQ("b", Stored(6));
    EXPECT_EQ("-", Stored(7));
}

TEST_F(RecentFilesInBar, move_up_when_they_are_used_again) {
    Add({"a", "b", "a", "A"});
    EXPECT_EQ((Lines{"&New", "&1 A", "&2 a", "&3 b", "----", "E&xit"}), Shown(m_file));
}

TEST_F(RecentFilesInBar, take_the_separator_along_when_the_last_one_goes) {
    Add({"a"});
    m_list.removeFile("a");
    EXPECT_EQ((Lines{"&New", "E&xit"}), Shown(m_file));
    EXPECT_EQ("", Stored(1));
    EXPECT_EQ("[MRU]\r\n1=\r\n", m_profile.Content());
}

TEST_F(RecentFilesInBar, are_rebuilt_when_one_goes_that_is_not_listed) {
    Add({"a", "b"});
    ::ModifyMenuA(m_file, 1, MF_BYPOSITION, 5001, "spoiled");
    m_settings.WriteStr("MRU", "1", "spoiled");
    m_list.removeFile("x");
    EXPECT_EQ((Lines{"&New", "&1 b", "&2 a", "----", "E&xit"}), Shown(m_file));
    EXPECT_EQ("b", Stored(1));
}

TEST_F(RecentFilesInBar, show_an_ampersand_as_it_is_given) {
    Add({"r&d.drw"});
    EXPECT_EQ("&1 r&d.drw", Shown(m_file)[1]);
}

TEST_F(RecentFilesInBar, are_loaded_into_the_menu) {
    m_profile.SetContent("[MRU]\r\n1=new\r\n2=\r\n3=old\r\n");
    m_list.readFromINI();
    EXPECT_EQ((Lines{"&New", "&1 new", "&2 old", "----", "E&xit"}), Shown(m_file));
}

TEST_F(RecentFilesInBar, are_loaded_six_at_most_of_seven) {
    m_profile.SetContent("[MRU]\r\n0=0\r\n1=1\r\n2=2\r\n3=3\r\n4=4\r\n5=5\r\n6=6\r\n");
    m_list.readFromINI();
    m_list.readFromINI();
    EXPECT_EQ((Lines{"&New", "&1 1", "&2 2", "&3 3", "&4 4", "&5 5", "&6 6", "----", "E&xit"}),
              Shown(m_file));
}

TEST_F(RecentFilesInBar, are_put_in_again_by_an_update) {
    Add({"a", "b"});
    EXPECT_TRUE(m_list.Update());
    EXPECT_EQ((Lines{"&New", "&1 b", "&2 a", "----", "E&xit"}), Shown(m_file));
}

TEST_F(RecentFilesInBar, leave_the_menu_to_the_window_when_the_list_goes) {
    {
        LVXMRUList list(m_desk.frame, 6000, 0, m_settings);
        list.addFile("a");
    }
    EXPECT_TRUE(::IsMenu(m_file));
    EXPECT_EQ((Lines{"&1 a", "----", "&New", "E&xit"}), Shown(m_file));
}

TEST_F(RecentFilesInBar, are_chosen_by_their_numbers) {
    Add({"a.drw", "b.drw", "c.drw"});
    EXPECT_TRUE(Choose('F', '2'));
    EXPECT_EQ(Lines{"b.drw"}, m_desk.frame->chosen);
    m_list.addFile("b.drw");
    EXPECT_TRUE(Choose('F', '1'));
    EXPECT_EQ(Lines{"b.drw"}, m_desk.frame->chosen);
    EXPECT_TRUE(Choose('F', '3'));
    EXPECT_EQ(Lines{"a.drw"}, m_desk.frame->chosen);
}

TEST_F(RecentFilesInBar, are_chosen_by_the_arrows) {
    Add({"a.drw", "b.drw"});
    desk::Press({VK_MENU, 'F'});
    desk::Press({VK_DOWN});
    desk::Press({VK_DOWN});
    desk::Press({VK_RETURN});
    EXPECT_TRUE(desk::PumpUntil([&] { return !m_desk.frame->chosen.empty(); }));
    EXPECT_EQ(Lines{"a.drw"}, m_desk.frame->chosen) << "below New and the first";
}

TEST_F(RecentFilesInBar, stay_in_the_file_menu_with_a_child_that_is_not_maximised) {
    m_desk.Open("one");
    Add({"a"});
    EXPECT_EQ((Lines{"&New", "&1 a", "----", "E&xit"}), Shown(m_file));
}

TEST_F(RecentFilesInBar, step_over_the_icon_of_a_maximised_child) {
    owl::TMDIChild* const child = m_desk.OpenMaximised("one");
    ASSERT_EQ(child->GetSystemMenu(), ::GetSubMenu(m_desk.Bar(), 0));
    const Lines before = Shown(child->GetSystemMenu());
    Add({"a"});
    EXPECT_EQ((Lines{"&New", "&1 a", "----", "E&xit"}), Shown(m_file));
    EXPECT_EQ(before, Shown(child->GetSystemMenu()));
    EXPECT_TRUE(Choose('F', '1'));
    EXPECT_EQ(Lines{"a"}, m_desk.frame->chosen);
}

TEST_F(RecentFilesInBar, stay_where_they_are_when_a_child_is_maximised_and_restored) {
    Add({"a"});
    owl::TMDIChild* const child = m_desk.OpenMaximised("one");
    m_list.addFile("b");
    EXPECT_EQ((Lines{"&New", "&1 b", "&2 a", "----", "E&xit"}), Shown(m_file));
    child->ShowWindow(SW_RESTORE);
    m_list.addFile("c");
    EXPECT_EQ((Lines{"&New", "&1 c", "&2 b", "&3 a", "----", "E&xit"}), Shown(m_file));
    child->Destroy();
    m_list.removeFile("b");
    EXPECT_EQ((Lines{"&New", "&1 c", "&2 a", "----", "E&xit"}), Shown(m_file));
}

TEST_F(RecentFilesInBar, have_no_menu_in_a_bar_that_has_a_childs_icon_alone) {
    m_desk.frame->SetMenu(::CreateMenu());
    owl::TMDIChild* const child = m_desk.OpenMaximised("one");
    ASSERT_EQ(child->GetSystemMenu(), ::GetSubMenu(m_desk.Bar(), 0));
    EXPECT_FALSE(m_list.Create());
    m_list.addFile("a");
    EXPECT_EQ("", m_profile.Content());
}

TEST_F(RecentFilesInBar, have_no_menu_without_a_bar_or_a_drop_down) {
    m_desk.frame->SetMenu(nullptr);
    EXPECT_FALSE(m_list.Create());
    const HMENU bar = ::CreateMenu();
    ::AppendMenuA(bar, MF_STRING, 7, "Command");
    ::AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(::CreatePopupMenu()), "Second");
    m_desk.frame->SetMenu(bar);
    EXPECT_FALSE(m_list.Update()) << "the first entry is no drop-down";
    m_list.addFile("a");
    EXPECT_EQ("a", m_list.getFile(1));
    EXPECT_EQ("", m_profile.Content());
}

TEST_F(RecentFilesInBar, have_no_menu_before_the_window_is_there) {
    owl::TFrameWindow early(nullptr, "early");
    LVXMRUList list(&early, first_recent, 0, m_settings);
    EXPECT_FALSE(list.Create());
}

TEST_F(RecentFilesInBar, find_the_first_drop_down_of_a_frame_without_children) {
    owl::TFrameWindow frame(nullptr, "plain");
    frame.Create();
    frame.SetMenu(lvx_test::FileAndEdit());
    LVXMRUList list(&frame, first_recent, 2, m_settings);
    list.addFile("a");
    EXPECT_EQ((Lines{"&New", "E&xit", "&1 a", "----"}), Shown(::GetSubMenu(frame.GetMenu(), 0)));
}

TEST_F(RecentFilesInBar, move_to_the_next_bar_when_they_are_told_to) {
    Add({"a"});
    const HMENU former = m_desk.Bar();
    m_desk.frame->SetMenu(lvx_test::FileAndEdit());
    ::DestroyMenu(former);
    m_list.setMenu(nullptr);
    EXPECT_TRUE(m_list.Update());
    EXPECT_EQ((Lines{"&New", "&1 a", "----", "E&xit"}), Shown(::GetSubMenu(m_desk.Bar(), 0)));
}

TEST_F(RecentFilesInBar, outlive_a_bar_that_was_destroyed) {
    Add({"a"});
    const HMENU former = m_desk.Bar();
    m_desk.frame->SetMenu(nullptr);
    ::DestroyMenu(former);
    m_list.addFile("b");
    EXPECT_EQ("b", m_list.getFile(1));
    EXPECT_EQ("b", Stored(1));
}

TEST_F(RecentFilesInBar, are_found_by_a_way_that_can_be_replaced) {
    const LVXMRUMenuFinder own = setMRUMenuFinder(nullptr);
    EXPECT_NE(nullptr, own);
    EXPECT_FALSE(m_list.Create());
    setMRUMenuFinder(own);
    EXPECT_TRUE(m_list.Create());
}
