#include "owl/mdi.h"

#include <gtest/gtest.h>

#include "tests/owl/desk.h"
#include "tests/owl/resource_ids.h"

namespace {

using Calls = std::vector<std::string>;

Calls calls;

class Child : public owl::TMDIChild {
public:
    Child(owl::TMDIClient& client, const char* title) : TMDIChild(client, title) {}
    ~Child() override { calls.push_back("deleted " + GetCaption()); }

    bool CanClose() override { return agrees; }
    void CmFirst() { calls.push_back("first " + GetCaption()); }
    void EvDestroy() {
        TMDIChild::EvDestroy();
        if (tellsItsEnd)
            calls.push_back("gone " + GetCaption());
    }

    bool agrees = true;
    bool tellsItsEnd = false;

    DECLARE_RESPONSE_TABLE(Child);
};

DEFINE_RESPONSE_TABLE1(Child, owl::TMDIChild)
    EV_COMMAND(CM_TEST_FIRST, CmFirst), EV_WM_DESTROY,
END_RESPONSE_TABLE;

struct Mdi : testing::Test {
    Mdi() : application("mdi"), frame(new owl::TMDIFrame("frame", IDM_TEST_MENU, nullptr, 0)) {
        calls.clear();
        desk::Place(*frame);
        application.SetMainWindow(frame);
        frame->Create();
        client = frame->GetClientWindow();
        desk::Activate(*frame);
    }

    Child* Open(const char* title) {
        auto* child = new Child(*client, title);
        child->Create();
        return child;
    }
    void Pump() {
        frame->PostMessage(WM_NULL);
        application.PumpWaitingMessages();
    }

    owl::TApplication application;
    owl::TMDIFrame* frame;
    owl::TMDIClient* client;
};

TEST_F(Mdi, frame_has_a_client_that_fills_it) {
    ASSERT_NE(nullptr, client);
    EXPECT_TRUE(client->IsWindow());
    EXPECT_EQ(frame->GetClientRect().Size(), client->GetWindowRect().Size());
    EXPECT_NE(nullptr, dynamic_cast<owl::TMDIFrame*>(client->Parent));
}

TEST_F(Mdi, client_knows_the_active_child) {
    EXPECT_EQ(nullptr, client->GetActiveMDIChild());
    Child* const one = Open("one");
    Child* const two = Open("two");
    EXPECT_EQ(two, client->GetActiveMDIChild());
    client->ActivateChild(*one);
    EXPECT_EQ(one, client->GetActiveMDIChild());
    EXPECT_EQ("one", one->GetWindowText());
}

TEST_F(Mdi, child_is_deleted_after_it_is_closed) {
    Child* const one = Open("one");
    Child* const two = Open("two");
    two->SendMessage(WM_CLOSE);
    EXPECT_EQ(one, client->GetActiveMDIChild());
    Pump();
    EXPECT_EQ(Calls{"deleted two"}, calls);
    EXPECT_EQ(1U, client->NumChildren());
}

TEST_F(Mdi, child_that_refuses_stays) {
    Child* const one = Open("one");
    one->agrees = false;
    one->SendMessage(WM_CLOSE);
    EXPECT_TRUE(one->IsWindow());
    EXPECT_FALSE(client->CloseChildren());
    EXPECT_FALSE(frame->CanClose());
    one->agrees = true;
    EXPECT_TRUE(client->CloseChildren());
    Pump();
    EXPECT_EQ(Calls{"deleted one"}, calls);
}

TEST_F(Mdi, commands_go_to_the_active_child) {
    Child* const one = Open("one");
    Open("two");
    frame->SendMessage(WM_COMMAND, CM_TEST_FIRST);
    client->ActivateChild(*one);
    frame->SendMessage(WM_COMMAND, CM_TEST_FIRST);
    EXPECT_EQ((Calls{"first two", "first one"}), calls);
}

TEST_F(Mdi, maximised_child_puts_its_system_menu_first_in_the_bar) {
    Child* const one = Open("one");
    const int before = ::GetMenuItemCount(frame->GetMenu());
    one->ShowWindow(SW_MAXIMIZE);
    EXPECT_TRUE(one->IsZoomed());
    EXPECT_LT(before, ::GetMenuItemCount(frame->GetMenu()));
    EXPECT_EQ(one->GetSystemMenu(false), ::GetSubMenu(frame->GetMenu(), 0));
    one->Destroy();
    EXPECT_EQ(before, ::GetMenuItemCount(frame->GetMenu()));
}

TEST_F(Mdi, children_are_listed_in_the_window_menu_and_activated_from_there) {
    Child* const one = Open("one");
    Open("two");
    const HMENU menu = frame->GetWindowMenu();
    ASSERT_NE(nullptr, menu);
    char text[32] = "";
    ::GetMenuStringA(menu, 0xE000, text, sizeof(text), MF_BYCOMMAND);
    EXPECT_STREQ("&1 one", text);
    frame->SendMessage(WM_COMMAND, 0xE000);
    EXPECT_EQ(one, client->GetActiveMDIChild());
}

TEST_F(Mdi, child_is_closed_by_its_key) {
    Open("one");
    Child* const two = Open("two");
    ASSERT_TRUE(desk::Activate(*frame));
    two->SetFocus();
    desk::Press({VK_CONTROL, VK_F4});
    EXPECT_TRUE(desk::PumpUntil([] { return !calls.empty(); }));
    EXPECT_EQ(Calls{"deleted two"}, calls);
}

TEST_F(Mdi, children_are_arranged) {
    Child* const one = Open("one");
    Child* const two = Open("two");
    client->TileChildren(MDITILE_VERTICAL);
    EXPECT_EQ(one->GetWindowRect().top, two->GetWindowRect().top);
    EXPECT_NE(one->GetWindowRect().left, two->GetWindowRect().left);
    client->CascadeChildren();
    EXPECT_NE(one->GetWindowRect().top, two->GetWindowRect().top);
    one->ShowWindow(SW_MINIMIZE);
    client->ArrangeIcons();
    EXPECT_TRUE(one->IsIconic());
}

TEST_F(Mdi, all_of_it_goes_with_the_frame) {
    Open("one");
    Open("two");
    application.SetMainWindow(nullptr);
    EXPECT_EQ((Calls{"deleted two", "deleted one"}), calls);
}

// The system's part of it failed, and what the children's functions had still to do was lost.
TEST_F(Mdi, children_come_to_their_ends_when_the_frame_goes) {
    for (const char* title : {"one", "two", "three"})
        Open(title)->tellsItsEnd = true;
    ::DestroyWindow(frame->GetHandle());
    EXPECT_EQ((Calls{"gone one", "gone two", "gone three"}), calls);
    application.MessageLoop();
}

// The list at the end of the window menu was greyed: no window has functions for its commands.
TEST_F(Mdi, children_can_be_chosen_from_a_window_menu_that_opened) {
    Open("one");
    Open("two");
    const HMENU menu = frame->GetWindowMenu();
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), MAKELPARAM(0, FALSE));
    EXPECT_EQ(0U, ::GetMenuState(menu, 0xE000, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED));
    EXPECT_EQ(0U, ::GetMenuState(menu, 0xE001, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED));
    EXPECT_EQ(static_cast<UINT>(MF_GRAYED), ::GetMenuState(menu, CM_TEST_UNKNOWN, MF_BYCOMMAND) & MF_GRAYED);
}

TEST_F(Mdi, window_menu_is_found_behind_the_system_menu_of_a_maximised_child) {
    Child* const one = Open("one");
    const HMENU menu = frame->GetWindowMenu();
    one->ShowWindow(SW_MAXIMIZE);
    EXPECT_EQ(menu, frame->GetWindowMenu());
}

// The child's system menu was destroyed with the former bar.
TEST_F(Mdi, new_menu_takes_over_the_list_and_the_maximised_child) {
    Child* const one = Open("one");
    one->ShowWindow(SW_MAXIMIZE);
    const HMENU former = frame->GetMenu();
    EXPECT_TRUE(frame->AssignMenu(IDM_TEST_MENU));
    EXPECT_NE(former, frame->GetMenu());
    EXPECT_FALSE(::IsMenu(former));
    EXPECT_EQ(one->GetSystemMenu(false), ::GetSubMenu(frame->GetMenu(), 0));
    EXPECT_TRUE(::IsMenu(one->GetSystemMenu(false)));
    char text[32] = "";
    ::GetMenuStringA(frame->GetWindowMenu(), 0xE000, text, sizeof(text), MF_BYCOMMAND);
    EXPECT_STREQ("&1 one", text);
    EXPECT_FALSE(frame->AssignMenu(999));
}

// A tool window or a bar of the frame has the focus: the document must get its commands nevertheless.
TEST_F(Mdi, commands_go_to_the_active_child_when_the_focus_is_elsewhere) {
    Open("one");
    auto* bar = new owl::TWindow(frame);
    bar->Create();
    bar->SetFocus();
    ASSERT_EQ(bar->GetHandle(), ::GetFocus());
    frame->SendMessage(WM_COMMAND, CM_TEST_FIRST);
    ::SetFocus(nullptr);
    frame->SendMessage(WM_COMMAND, CM_TEST_FIRST);
    EXPECT_EQ((Calls{"first one", "first one"}), calls);
}

TEST_F(Mdi, child_gives_the_focus_back_to_who_had_it) {
    Child* const one = Open("one");
    auto* left = new owl::TWindow(one);
    auto* right = new owl::TWindow(one);
    left->Create();
    right->Create();
    ASSERT_TRUE(desk::Activate(*frame));
    right->SetFocus();
    Open("two");
    ASSERT_NE(right->GetHandle(), ::GetFocus());
    client->ActivateChild(*one);
    EXPECT_EQ(right->GetHandle(), ::GetFocus());
}

}  // namespace
