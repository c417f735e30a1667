#include "owl/menu.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "owl/error.h"
#include "tests/owl/desk.h"
#include "tests/owl/resource_ids.h"

namespace {

using owl::TMenu;

constexpr UINT none = ~0u;

bool shown = false;

// Once the menu should be open.
void CALLBACK LookAndClose(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    shown = ::IsWindowVisible(::FindWindowA("#32768", nullptr)) != 0;
    desk::Press({VK_ESCAPE});
}

struct Menu : testing::Test {
    Menu() {
        menu.AppendMenu(MF_STRING, 1, "&One");
        menu.AppendMenu(MF_STRING, 2, "&Two");
    }

    TMenu menu;
};

TEST_F(Menu, that_it_made_ends_with_it) {
    HMENU handle = nullptr;
    {
        const TMenu made;
        handle = made;
        EXPECT_TRUE(::IsMenu(handle));
        EXPECT_TRUE(made.IsOwner());
    }
    EXPECT_FALSE(::IsMenu(handle));
}

TEST_F(Menu, of_somebody_else_stays) {
    {
        const TMenu alias(menu.GetHandle());
        EXPECT_FALSE(alias.IsOwner());
    }
    EXPECT_EQ(2, menu.GetMenuItemCount());
}

TEST_F(Menu, that_was_released_stays) {
    HMENU handle = nullptr;
    {
        TMenu made;
        handle = made.Release();
        EXPECT_FALSE(made.IsOwner());
    }
    EXPECT_TRUE(::IsMenu(handle));
    ::DestroyMenu(handle);
}

TEST_F(Menu, that_is_none_refuses_everything) {
    TMenu nothing(static_cast<HMENU>(nullptr));
    EXPECT_FALSE(nothing.IsOK());
    EXPECT_EQ(-1, nothing.GetMenuItemCount());
    EXPECT_FALSE(nothing.AppendMenu(MF_STRING, 1, "x"));
    EXPECT_EQ("", nothing.GetMenuString(0, MF_BYPOSITION));
    EXPECT_EQ(nullptr, nothing.GetSubMenu(0));
}

TEST_F(Menu, comes_from_a_resource_or_throws) {
    const owl::TModule module;
    const TMenu loaded(module, IDM_TEST_MENU);
    EXPECT_EQ(1, loaded.GetMenuItemCount());
    EXPECT_EQ(static_cast<UINT>(CM_TEST_FIRST), TMenu(loaded.GetSubMenu(0)).GetMenuItemID(0));
    EXPECT_THROW(TMenu(module, 999), owl::TXWindow);
}

TEST_F(Menu, tells_about_its_items) {
    EXPECT_EQ(2U, menu.GetMenuItemID(1));
    EXPECT_EQ(none, menu.GetMenuItemID(2));
    EXPECT_EQ(0U, menu.GetMenuState(1, MF_BYCOMMAND));
    EXPECT_EQ(none, menu.GetMenuState(3, MF_BYCOMMAND));
    EXPECT_EQ("&Two", menu.GetMenuString(1, MF_BYPOSITION));
    EXPECT_EQ("", menu.GetMenuString(9, MF_BYPOSITION));
}

TEST_F(Menu, copies_as_much_of_a_text_as_there_is_room_for) {
    char text[3] = "??";
    EXPECT_EQ(2, menu.GetMenuString(1, text, sizeof(text), MF_BYCOMMAND));
    EXPECT_STREQ("&O", text);
    EXPECT_EQ(0, menu.GetMenuString(9, text, sizeof(text), MF_BYCOMMAND));
    EXPECT_STREQ("", text);
    EXPECT_EQ(0, menu.GetMenuString(1, nullptr, 5, MF_BYCOMMAND));
}

TEST_F(Menu, gives_the_whole_of_a_long_text) {
    const std::string text(1000, 'x');
    menu.ModifyMenu(1, MF_BYCOMMAND, 1, text.c_str());
    EXPECT_EQ(text, menu.GetMenuString(1, MF_BYCOMMAND));
}

TEST_F(Menu, inserts_modifies_and_removes) {
    EXPECT_TRUE(menu.InsertMenu(0, MF_BYPOSITION | MF_SEPARATOR));
    EXPECT_TRUE(menu.InsertMenu(2, MF_BYCOMMAND, 3, "Three"));
    EXPECT_EQ(3U, menu.GetMenuItemID(2));
    EXPECT_EQ(0U, menu.GetMenuItemID(0));
    EXPECT_TRUE(menu.ModifyMenu(3, MF_BYCOMMAND, 4, "Four"));
    EXPECT_EQ("Four", menu.GetMenuString(4, MF_BYCOMMAND));
    EXPECT_TRUE(menu.RemoveMenu(4, MF_BYCOMMAND));
    EXPECT_FALSE(menu.RemoveMenu(4, MF_BYCOMMAND));
    EXPECT_TRUE(menu.DeleteMenu(0, MF_BYPOSITION));
    EXPECT_EQ(2, menu.GetMenuItemCount());
}

TEST_F(Menu, removes_a_drop_down_alive_and_deletes_it_dead) {
    owl::TPopupMenu popup;
    const auto handle = reinterpret_cast<UINT_PTR>(popup.GetHandle());
    EXPECT_TRUE(menu.AppendMenu(MF_POPUP, handle, "Sub"));
    EXPECT_EQ(popup.GetHandle(), menu.GetSubMenu(2));
    EXPECT_TRUE(menu.RemoveMenu(2, MF_BYPOSITION));
    EXPECT_TRUE(::IsMenu(popup));
    menu.AppendMenu(MF_POPUP, handle, "Sub");
    EXPECT_TRUE(menu.DeleteMenu(2, MF_BYPOSITION));
    EXPECT_FALSE(::IsMenu(popup.Release()));
}

TEST_F(Menu, checks_and_greys) {
    EXPECT_TRUE(menu.CheckMenuItem(1, MF_CHECKED));
    EXPECT_EQ(static_cast<UINT>(MF_CHECKED), menu.GetMenuState(1, MF_BYCOMMAND));
    EXPECT_TRUE(menu.CheckMenuItem(1, MF_UNCHECKED));
    EXPECT_TRUE(menu.EnableMenuItem(1, MF_GRAYED));
    EXPECT_EQ(static_cast<UINT>(MF_GRAYED), menu.GetMenuState(1, MF_BYCOMMAND));
    EXPECT_FALSE(menu.CheckMenuItem(9, MF_CHECKED));
    EXPECT_FALSE(menu.EnableMenuItem(9, MF_GRAYED));
}

TEST_F(Menu, opens_anywhere_and_is_left_by_the_escape_key) {
    desk::Desk desk;
    ASSERT_TRUE(desk::Activate(*desk.frame));
    owl::TPopupMenu popup;
    popup.AppendMenu(MF_STRING, 7, "&Seven");
    shown = false;
    ::SetTimer(nullptr, 0, 100, &LookAndClose);
    EXPECT_EQ(0, popup.TrackPopupMenu(TPM_RETURNCMD, 60, 60, *desk.frame));
    EXPECT_TRUE(shown);
}

TEST_F(Menu, thousand_of_them_leave_nothing_behind) {
    const DWORD before = desk::UserObjects();
    std::vector<HMENU> handles;
    for (int i = 0; i < 1000; ++i) {
        TMenu bar;
        owl::TPopupMenu popup;
        handles.push_back(bar);
        handles.push_back(popup);
        bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Release()), "Sub");
    }
    EXPECT_EQ(0,
              std::count_if(handles.begin(), handles.end(), [](HMENU left) { return ::IsMenu(left) != 0; }));
    EXPECT_EQ(before, desk::UserObjects());
}

}  // namespace
