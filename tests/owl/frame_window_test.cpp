#include "owl/frame_window.h"

#include <gtest/gtest.h>

#include "owl/command_enabler.h"
#include "owl/dialog.h"
#include "owl/edit.h"
#include "owl/error.h"
#include "tests/owl/desk.h"
#include "tests/owl/resource_ids.h"

namespace {

using owl::TWindow;
using Calls = std::vector<std::string>;

Calls calls;

class Client : public TWindow {
public:
    Client() : TWindow(static_cast<TWindow*>(nullptr)) {
        Attr.W = 120;
        Attr.H = 80;
    }
    void CmFirst() { calls.push_back("client"); }

    DECLARE_RESPONSE_TABLE(Client);
};

DEFINE_RESPONSE_TABLE1(Client, TWindow)
    EV_COMMAND(CM_TEST_FIRST, CmFirst),
END_RESPONSE_TABLE;

class Frame : public owl::TFrameWindow {
public:
    explicit Frame(TWindow* client = nullptr, bool shrink = false)
        : TFrameWindow(nullptr, "frame", client, shrink) {
        Attr.Menu = IDM_TEST_MENU;
        Attr.AccelTable = IDA_TEST_KEYS;
        desk::Place(*this);
    }
    void CmFirst() { calls.push_back("frame"); }
    void CmSecond() { calls.push_back("second"); }
    void CeSecond(owl::TCommandEnabler& enabler) {
        enabler.SetText("&Done");
        enabler.SetCheck(owl::TCommandEnabler::Checked);
        enabler.Enable();
    }

    DECLARE_RESPONSE_TABLE(Frame);
};

DEFINE_RESPONSE_TABLE1(Frame, owl::TFrameWindow)
    EV_COMMAND(CM_TEST_FIRST, CmFirst), EV_COMMAND(CM_TEST_SECOND, CmSecond),
        EV_COMMAND_ENABLE(CM_TEST_SECOND, CeSecond),
END_RESPONSE_TABLE;

class Program : public owl::TApplication {
public:
    Program() : TApplication("frame test") { calls.clear(); }
    void CmUnknown() { calls.push_back("application"); }

    DECLARE_RESPONSE_TABLE(Program);
};

DEFINE_RESPONSE_TABLE1(Program, owl::TApplication)
    EV_COMMAND(CM_TEST_UNKNOWN, CmUnknown),
END_RESPONSE_TABLE;

template <class Made>
Made* Show(Program& program, Made* frame) {
    program.SetMainWindow(frame);
    frame->Create();
    return frame;
}

UINT StateOf(const owl::TFrameWindow& frame, UINT id) {
    return ::GetMenuState(frame.GetMenu(), id, MF_BYCOMMAND);
}

std::string TextOf(const owl::TFrameWindow& frame, UINT id) {
    char text[64] = "";
    ::GetMenuStringA(frame.GetMenu(), id, text, sizeof(text), MF_BYCOMMAND);
    return text;
}

TEST(FrameWindow, has_the_menu_of_its_attributes) {
    Program program;
    Frame* frame = Show(program, new Frame);
    ASSERT_NE(nullptr, frame->GetMenu());
    EXPECT_EQ("&First\tCtrl+K", TextOf(*frame, CM_TEST_FIRST));
}

TEST(FrameWindow, takes_another_menu_and_refuses_a_missing_one) {
    Program program;
    Frame* frame = Show(program, new Frame);
    const HMENU former = frame->GetMenu();
    EXPECT_FALSE(frame->AssignMenu(999));
    EXPECT_EQ(former, frame->GetMenu());
    EXPECT_TRUE(frame->AssignMenu(IDM_TEST_MENU));
    EXPECT_NE(former, frame->GetMenu());
    EXPECT_FALSE(::IsMenu(former));
}

TEST(FrameWindow, whose_menu_is_missing_throws) {
    Program program;
    Frame frame;
    frame.Attr.Menu = 999;
    try {
        frame.Create();
        FAIL();
    } catch (const owl::TXWindow& error) {
        EXPECT_EQ(0U, std::string(error.what()).find("LoadMenu: ")) << error.what();
    }
    EXPECT_FALSE(frame.IsWindow());
}

TEST(FrameWindow, fills_itself_with_its_client) {
    Program program;
    auto* client = new Client;
    Frame* frame = Show(program, new Frame(client));
    EXPECT_EQ(client, frame->GetClientWindow());
    EXPECT_EQ(frame->GetClientRect().Size(), client->GetWindowRect().Size());
    frame->MoveWindow(0, 0, 333, 222);
    EXPECT_EQ(frame->GetClientRect().Size(), client->GetWindowRect().Size());
}

TEST(FrameWindow, shrinks_to_what_its_client_asks_for) {
    Program program;
    Frame* frame = Show(program, new Frame(new Client, true));
    EXPECT_EQ(owl::TSize(120, 80), frame->GetClientRect().Size());
}

TEST(FrameWindow, exchanges_its_client) {
    Program program;
    auto* former = new Client;
    Frame* frame = Show(program, new Frame(former));
    auto* next = new Client;
    EXPECT_EQ(former, frame->SetClientWindow(next));
    EXPECT_EQ(next, frame->GetClientWindow());
    EXPECT_TRUE(next->IsWindow());
    EXPECT_EQ(nullptr, former->Parent);
    delete former;
}

TEST(FrameWindow, knows_when_its_client_is_gone) {
    Program program;
    auto* client = new Client;
    Frame* frame = Show(program, new Frame(client));
    delete client;
    EXPECT_EQ(nullptr, frame->GetClientWindow());
    frame->MoveWindow(0, 0, 300, 200);
    frame->SendMessage(WM_SETFOCUS);
}

TEST(FrameWindow, offers_a_command_to_the_client_before_itself) {
    Program program;
    Frame* frame = Show(program, new Frame(new Client));
    frame->SendMessage(WM_COMMAND, CM_TEST_FIRST);
    frame->SendMessage(WM_COMMAND, CM_TEST_SECOND);
    EXPECT_EQ((Calls{"client", "second"}), calls);
}

TEST(FrameWindow, leaves_a_command_that_no_window_knows_to_the_application) {
    Program program;
    Frame* frame = Show(program, new Frame);
    frame->SendMessage(WM_COMMAND, CM_TEST_UNKNOWN);
    EXPECT_EQ(Calls{"application"}, calls);
}

TEST(FrameWindow, enables_checks_and_names_the_items_of_a_menu_that_opens) {
    Program program;
    Frame* frame = Show(program, new Frame);
    const HMENU popup = ::GetSubMenu(frame->GetMenu(), 0);
    ::EnableMenuItem(popup, CM_TEST_FIRST, MF_GRAYED);
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup), 0);
    EXPECT_EQ(0U, StateOf(*frame, CM_TEST_FIRST) & MF_GRAYED);
    EXPECT_EQ(static_cast<UINT>(MF_CHECKED), StateOf(*frame, CM_TEST_SECOND) & MF_CHECKED);
    EXPECT_EQ("&Done", TextOf(*frame, CM_TEST_SECOND));
}

// The application's own table knows this one; without it the item is greyed.
TEST(FrameWindow, greys_what_nobody_has_a_function_for) {
    Program program;
    Frame* frame = Show(program, new Frame);
    const HMENU popup = ::GetSubMenu(frame->GetMenu(), 0);
    ::AppendMenuA(popup, MF_STRING, 999, "Nobody");
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup), 0);
    EXPECT_EQ(static_cast<UINT>(MF_GRAYED), StateOf(*frame, 999) & MF_GRAYED);
    EXPECT_EQ(0U, StateOf(*frame, CM_TEST_UNKNOWN) & MF_GRAYED);
}

TEST(FrameWindow, leaves_the_system_menu_as_the_system_made_it) {
    Program program;
    Frame* frame = Show(program, new Frame);
    const HMENU system = frame->GetSystemMenu();
    ::AppendMenuA(system, MF_STRING, 998, "Own");
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(system), MAKELPARAM(0, 1));
    EXPECT_EQ(0U, ::GetMenuState(system, 998, MF_BYCOMMAND) & MF_GRAYED);
}

TEST(FrameWindow, hands_the_focus_to_its_client) {
    Program program;
    auto* client = new Client;
    Frame* frame = Show(program, new Frame(client));
    ASSERT_TRUE(desk::Activate(*frame));
    EXPECT_EQ(client->GetHandle(), TWindow::GetFocus());
}

TEST(FrameWindow, hands_the_focus_back_to_who_had_it) {
    Program program;
    auto* client = new Client;
    auto* inner = new TWindow(client);
    Frame* frame = Show(program, new Frame(client));
    ASSERT_TRUE(desk::Activate(*frame));
    inner->SetFocus();
    frame->SendMessage(WM_ACTIVATE, WA_INACTIVE);
    ::SetFocus(nullptr);
    frame->SendMessage(WM_SETFOCUS);
    EXPECT_EQ(inner->GetHandle(), TWindow::GetFocus());
}

TEST(FrameWindow, is_driven_by_the_keys_of_its_menu) {
    Program program;
    Frame* frame = Show(program, new Frame);
    ASSERT_TRUE(desk::Activate(*frame));
    desk::Press({VK_MENU, 'T'});
    // The item is named anew when the menu opens, and with it its key.
    desk::Press({'D'});
    // Whatever became of it, the menu is closed now.
    desk::Press({VK_ESCAPE});
    desk::Press({VK_ESCAPE});
    EXPECT_TRUE(desk::PumpUntil([&] { return !calls.empty(); }));
    EXPECT_EQ(Calls{"second"}, calls);
}

// How wide the icon is that a window shows; 0 if it has none.
int IconWidth(const owl::TFrameWindow& frame, WPARAM which) {
    const auto icon = reinterpret_cast<HICON>(frame.SendMessage(WM_GETICON, which));
    ICONINFO info{};
    BITMAP bitmap{};
    if (!::GetIconInfo(icon, &info))
        return 0;
    ::GetObjectA(info.hbmMask, sizeof bitmap, &bitmap);
    ::DeleteObject(info.hbmMask);
    ::DeleteObject(info.hbmColor);
    return bitmap.bmWidth;
}

// The caption showed the large icon, made smaller, without its outline.
TEST(FrameWindow, shows_the_small_form_of_its_icon_in_the_caption) {
    Program program;
    auto* frame = Show(program, new Frame);
    EXPECT_EQ(0, IconWidth(*frame, ICON_SMALL));
    EXPECT_TRUE(frame->SetIcon(nullptr, reinterpret_cast<const char*>(IDI_ASTERISK)));
    EXPECT_EQ(::GetSystemMetrics(SM_CXICON), IconWidth(*frame, ICON_BIG));
    EXPECT_EQ(::GetSystemMetrics(SM_CXSMICON), IconWidth(*frame, ICON_SMALL));
}

TEST(FrameWindow, shows_its_icon) {
    Program program;
    auto* frame = new Frame;
    EXPECT_FALSE(frame->SetIcon(&program, 999));
    EXPECT_TRUE(frame->SetIcon(nullptr, reinterpret_cast<const char*>(IDI_ASTERISK)));
    Show(program, frame);
    const auto icon =
        reinterpret_cast<LRESULT>(::LoadIconA(nullptr, reinterpret_cast<const char*>(IDI_ASTERISK)));
    EXPECT_EQ(icon, frame->SendMessage(WM_GETICON, ICON_BIG));
}

// The window class was registered without a background when the first frame had a client.
TEST(FrameWindow, without_a_client_is_erased_whatever_the_frames_before_it_had) {
    class Erased : public Frame {
    public:
        using Frame::Frame;

    protected:
        const char* GetClassName() override { return "owl_frame_background_test"; }
    };
    Program program;
    Show(program, new Erased(new Client));
    Frame* plain = Show(program, new Erased);
    const HDC dc = ::GetDC(plain->GetHandle());
    EXPECT_NE(0, plain->SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc)));
    ::ReleaseDC(plain->GetHandle(), dc);
}

// It was left on the screen, without a frame around it.
TEST(FrameWindow, hides_a_client_that_it_gives_up_and_shows_one_that_it_gets) {
    Program program;
    auto* former = new Client;
    Frame* frame = Show(program, new Frame(former));
    frame->ShowWindow(SW_SHOW);
    ASSERT_TRUE(former->IsWindowVisible());
    frame->SetClientWindow(nullptr);
    EXPECT_FALSE(former->IsWindowVisible());
    frame->SetClientWindow(former);
    EXPECT_TRUE(former->IsWindowVisible());
}

TEST(FrameWindow, offers_a_command_to_its_client_though_a_bar_has_the_focus) {
    Program program;
    Frame* frame = Show(program, new Frame(new Client));
    auto* bar = new TWindow(frame);
    bar->Create();
    ASSERT_TRUE(desk::Activate(*frame));
    bar->SetFocus();
    frame->SendMessage(WM_COMMAND, CM_TEST_FIRST);
    EXPECT_EQ(Calls{"client"}, calls);
}

// As in a plug-in: the resources are those of the program.
TEST(FrameWindow, has_its_menu_and_its_keys_without_an_application_too) {
    calls.clear();
    Frame frame;
    frame.Create();
    EXPECT_NE(nullptr, frame.GetMenu());
    EXPECT_TRUE(frame.AssignMenu(IDM_TEST_MENU));
    ASSERT_TRUE(desk::Activate(frame));
    desk::Press({VK_CONTROL, 'K'});
    EXPECT_TRUE(desk::PumpUntil([] { return !calls.empty(); }));
    EXPECT_EQ(Calls{"frame"}, calls);
}

// The dialog took every key, and the frame never heard of it.
TEST(FrameWindow, keeps_its_keys_with_a_dialog_as_its_client) {
    Program program;
    auto* form = new owl::TDialog(nullptr, IDD_TEST_PAGE);
    auto* edit = new owl::TEdit(form, IDC_TEST_EDIT);
    Frame* frame = Show(program, new Frame(form));
    ASSERT_TRUE(desk::Activate(*frame));
    edit->SetFocus();
    desk::Press({VK_CONTROL, 'K'});
    EXPECT_TRUE(desk::PumpUntil([] { return !calls.empty(); }));
    EXPECT_EQ(Calls{"frame"}, calls);
    desk::Press({'A'});
    EXPECT_TRUE(desk::PumpUntil([&] { return edit->GetWindowText() == "a"; }));
}

}  // namespace
