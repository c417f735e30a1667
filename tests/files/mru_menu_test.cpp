#include "lvx/files/mru_menu.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "files/profile_folder.h"
#include "lvx/files/mru_list.h"

namespace {

using LVXUtilities::Settings;

// Windows are told apart by their address alone, here as in the list.
owl::TWindow* window_at(int& place) {
    return reinterpret_cast<owl::TWindow*>(&place);
}

struct Counts {
    int menus = 0;
    int finds = 0;
    int inserts = 0;
    owl::TWindow* asked = nullptr;
};
Counts counts;

class CountedMenu : public LVXMRUMenu {
public:
    CountedMenu() { ++counts.menus; }
    ~CountedMenu() override { --counts.menus; }
    void InsertMenu(int /*position*/, unsigned int /*flags*/, unsigned int /*id*/,
                    const char* /*label*/) override {
        ++counts.inserts;
    }
    void DeleteMenu(int /*position*/, unsigned int /*flags*/) override {}
};

std::unique_ptr<LVXMRUMenu> find_menu(owl::TWindow* window) {
    ++counts.finds;
    counts.asked = window;
    return std::make_unique<CountedMenu>();
}

std::unique_ptr<LVXMRUMenu> find_none(owl::TWindow* /*window*/) {
    ++counts.finds;
    return nullptr;
}

class MenuFinder : public ::testing::Test {
protected:
    MenuFinder() : m_before(setMRUMenuFinder(nullptr)) { counts = {}; }
    ~MenuFinder() override { setMRUMenuFinder(m_before); }

    lvx_test::ProfileFolder m_profile;
    Settings m_settings{m_profile.Name(), false};
    int m_place = 0;
    LVXMRUList m_list{window_at(m_place), 100, 0, m_settings};

private:
    LVXMRUMenuFinder m_before;
};

}  // namespace

TEST_F(MenuFinder, setting_one_gives_the_one_before) {
    EXPECT_EQ(nullptr, setMRUMenuFinder(find_menu));
    EXPECT_EQ(&find_menu, setMRUMenuFinder(find_none));
    EXPECT_EQ(&find_none, setMRUMenuFinder(nullptr));
}

TEST_F(MenuFinder, without_one_a_window_has_no_menu) {
    EXPECT_FALSE(m_list.Create());
    EXPECT_FALSE(m_list.Update());
}

TEST_F(MenuFinder, it_is_asked_for_the_lists_window_once) {
    setMRUMenuFinder(find_menu);
    EXPECT_TRUE(m_list.Create());
    EXPECT_TRUE(m_list.Create());
    EXPECT_EQ(1, counts.finds);
    EXPECT_EQ(window_at(m_place), counts.asked);
}

TEST_F(MenuFinder, it_is_not_asked_for_a_null_window) {
    setMRUMenuFinder(find_menu);
    LVXMRUList list(nullptr, 100, 0, m_settings);
    EXPECT_FALSE(list.Create());
    EXPECT_EQ(0, counts.finds);
}

TEST_F(MenuFinder, a_window_without_a_menu_is_asked_again_each_time) {
    setMRUMenuFinder(find_none);
    m_list.addFile("a");
    EXPECT_EQ(1, counts.finds);
    EXPECT_FALSE(m_list.Update());
    EXPECT_EQ(2, counts.finds);
    EXPECT_EQ("", m_profile.Content());
}

TEST_F(MenuFinder, the_first_file_finds_the_menu_and_gets_into_it) {
    setMRUMenuFinder(find_menu);
    m_list.addFile("a");
    EXPECT_EQ(2, counts.inserts);
    EXPECT_EQ("a", m_settings.GetStr("MRU", "1", ""));
}

TEST_F(MenuFinder, update_brings_files_into_a_menu_that_is_found_late) {
    m_list.addFile("a");
    setMRUMenuFinder(find_menu);
    EXPECT_TRUE(m_list.Update());
    EXPECT_EQ(2, counts.inserts);
}

TEST_F(MenuFinder, the_menu_goes_with_the_list_or_when_it_is_replaced) {
    setMRUMenuFinder(find_menu);
    {
        LVXMRUList list(window_at(m_place), 100, 0, m_settings);
        EXPECT_TRUE(list.Create());
        EXPECT_EQ(1, counts.menus);
        list.setMenu(std::make_unique<CountedMenu>());
        EXPECT_EQ(1, counts.menus);
        list.setMenu(nullptr);
        EXPECT_EQ(0, counts.menus);
        EXPECT_TRUE(list.Create());
        EXPECT_EQ(1, counts.menus);
    }
    EXPECT_EQ(0, counts.menus);
}
