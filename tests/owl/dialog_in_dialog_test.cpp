// Dialogs as parts of a dialog: pages in a strip of our own, commands and colours handed from one to the
// other, a keyboard hook, loops within the setup.
#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "owl/control.h"
#include "owl/dialog.h"
#include "owl/edit.h"
#include "tests/owl/desk.h"
#include "tests/owl/resource_ids.h"

namespace {

using owl::TWindow;
using Calls = std::vector<std::string>;

Calls calls;

// A dialog without a frame, with one field.
class Page : public owl::TDialog {
public:
    Page() : TDialog(nullptr, IDD_TEST_PAGE), edit(new owl::TEdit(this, IDC_TEST_EDIT)) {}

    void SetupWindow() override {
        TDialog::SetupWindow();
        calls.push_back("page");
        if (throws)
            throw std::length_error("page");
    }
    void CmFirst() { calls.push_back("first at page"); }
    void CmCancel() { calls.push_back("cancel at page"); }
    HBRUSH EvCtlColor(HDC dc, HWND child, UINT type);

    owl::TEdit* edit;
    bool throws = false;

    DECLARE_RESPONSE_TABLE(Page);
};

DEFINE_RESPONSE_TABLE1(Page, owl::TDialog)
    EV_COMMAND(CM_TEST_FIRST, CmFirst), EV_COMMAND(IDCANCEL, CmCancel), EV_WM_CTLCOLOR,
END_RESPONSE_TABLE;

// Holds the page; sees the keys that it wants.
class Strip : public owl::TControl {
public:
    explicit Strip(TWindow* parent) : TControl(parent, 29000, "", 0, 0, 150, 90) {}

    void SetupWindow() override {
        TControl::SetupWindow();
        calls.push_back("strip");
        page.SetParent(this);
        page.Create();
        page.ShowWindow(SW_SHOW);
        if (GetApplication() != nullptr)
            GetApplication()->PumpWaitingMessages();
    }
    ~Strip() override { page.SetParent(nullptr); }
    LRESULT EvCommand(UINT id, HWND control, UINT code) override {
        return control == nullptr ? Parent->EvCommand(id, control, code)
                                  : TControl::EvCommand(id, control, code);
    }
    UINT EvGetDlgCode(MSG* msg) { return TControl::EvGetDlgCode(msg) | DLGC_WANTARROWS; }
    void EvKeyDown(UINT key, UINT repeat, UINT flags) {
        calls.push_back("key " + std::to_string(key));
        TControl::EvKeyDown(key, repeat, flags);
    }

    Page page;

    DECLARE_RESPONSE_TABLE(Strip);
};

DEFINE_RESPONSE_TABLE1(Strip, owl::TControl)
    EV_WM_GETDLGCODE, EV_WM_KEYDOWN,
END_RESPONSE_TABLE;

// Runs itself, ends itself, and lets its page answer first.
class Host : public owl::TDialog {
public:
    explicit Host(TWindow* parent) : TDialog(parent, IDD_TEST_DIALOG), strip(new Strip(this)) {}

    void SetupWindow() override {
        TDialog::SetupWindow();
        calls.push_back("host");
        if (!keepsStrip) {
            strip->Destroy();
            delete std::exchange(strip, nullptr);
        }
        if (action)
            PostMessage(WM_APP + 1);
    }
    bool EvInitDialog(HWND focus) override {
        TDialog::EvInitDialog(focus);
        return strip == nullptr;
    }
    int DoExecute() override {
        Create();
        ShowWindow(SW_SHOW);
        SetModal(true);
        return BeginModal(Parent, 0);
    }
    void Destroy(int retVal) override {
        if (retVal != 0 && IsModal())
            EndModal(retVal);
        if (strip != nullptr && strip->page.IsWindow())
            strip->page.Destroy(IDCANCEL);
        SetModal(false);
        TDialog::Destroy(retVal);
    }
    bool Find(owl::TEventInfo& info) override {
        const bool isShared = info.Msg == WM_COMMAND || info.Msg == WM_COMMAND_ENABLE;
        return (isShared && strip != nullptr && strip->page.Find(info)) || FindOwn(info);
    }
    LRESULT Act(WPARAM, LPARAM) {
        action();
        return 0;
    }

    Strip* strip;
    bool keepsStrip = true;
    std::function<void()> action;

private:
    bool FindOwn(owl::TEventInfo& info) {
        static const owl::TResponseTableEntry<Host> entries[] = {
            owl::MakeEntry<Host>(WM_APP + 1, 0, 0, nullptr, &owl::crack::Message<Host, &Host::Act>), {}};
        return owl::SearchEntries(*this, entries, info) || TDialog::Find(info);
    }
};

HBRUSH Page::EvCtlColor(HDC dc, HWND child, UINT type) {
    return Parent->Parent->EvCtlColor(dc, child, type);
}

// Moves on from the strip by PageDown, before anybody else sees the key.
Host* hooked = nullptr;

LRESULT CALLBACK KeyHook(int code, WPARAM key, LPARAM flags) {
    if (code == HC_ACTION && key == VK_NEXT && flags >= 0 && TWindow::GetFocus() != nullptr &&
        owl::GetWindowPtr(::GetParent(TWindow::GetFocus())) == &hooked->strip->page) {
        ::PostMessageA(hooked->GetHandle(), WM_NEXTDLGCTL,
                       reinterpret_cast<WPARAM>(hooked->strip->GetHandle()), TRUE);
        return 1;
    }
    return ::CallNextHookEx(nullptr, code, key, flags);
}

struct DialogInDialog : testing::Test {
    DialogInDialog() : host(desk.frame) {
        calls.clear();
        desk::Activate(*desk.frame);
    }

    int Run(const std::function<void()>& action) {
        host.action = action;
        return host.Execute();
    }

    desk::Desk desk;
    Host host;
};

TEST_F(DialogInDialog, is_set_up_before_the_outer_one_is) {
    EXPECT_EQ(7, Run([&] {
                  EXPECT_TRUE(host.strip->page.IsWindowVisible());
                  EXPECT_EQ(host.strip->GetHandle(), ::GetParent(host.strip->page.GetHandle()));
                  host.Destroy(7);
              }));
    EXPECT_EQ((Calls{"strip", "page", "host"}), calls);
    EXPECT_FALSE(host.strip->page.IsWindow());
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
}

TEST_F(DialogInDialog, comes_again_with_the_outer_one) {
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(i, Run([&] { host.Destroy(i); }));
    EXPECT_EQ(9U, calls.size());
}

TEST_F(DialogInDialog, answers_commands_of_the_outer_one) {
    Run([&] {
        host.SendMessage(WM_COMMAND, CM_TEST_FIRST);
        host.strip->page.edit->SetFocus();
        host.strip->SendMessage(WM_COMMAND, CM_TEST_FIRST);
        host.Destroy(IDOK);
    });
    EXPECT_EQ((Calls{"strip", "page", "host", "first at page", "first at page"}), calls);
}

TEST_F(DialogInDialog, takes_its_colours_from_the_outer_one) {
    Run([&] {
        const HDC dc = ::GetDC(nullptr);
        const auto wParam = reinterpret_cast<WPARAM>(dc);
        const auto lParam = reinterpret_cast<LPARAM>(host.strip->page.edit->GetHandle());
        const LRESULT brush = host.strip->page.SendMessage(WM_CTLCOLOREDIT, wParam, lParam);
        EXPECT_EQ(::DefWindowProcA(host.GetHandle(), WM_CTLCOLOREDIT, wParam, lParam), brush);
        ::ReleaseDC(nullptr, dc);
        host.Destroy(IDOK);
    });
}

TEST_F(DialogInDialog, that_throws_leaves_nothing_of_the_outer_one) {
    const int windows = desk::CountWindows();
    host.strip->page.throws = true;
    EXPECT_THROW(host.Execute(), std::length_error);
    EXPECT_FALSE(host.IsWindow());
    EXPECT_FALSE(host.strip->IsWindow());
    EXPECT_FALSE(host.strip->page.IsWindow());
    EXPECT_EQ(windows, desk::CountWindows());
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
}

TEST_F(DialogInDialog, may_be_taken_out_while_the_outer_one_is_set_up) {
    host.keepsStrip = false;
    EXPECT_EQ(IDOK, Run([&] { host.Destroy(IDOK); }));
    EXPECT_EQ(nullptr, host.strip);
}

TEST_F(DialogInDialog, may_be_made_and_destroyed_again_and_again) {
    Run([&] {
        for (int i = 0; i < 50; ++i) {
            host.strip->page.Destroy(IDCANCEL);
            EXPECT_FALSE(host.strip->page.edit->IsWindow());
            host.strip->page.Create();
            EXPECT_EQ(owl::GetWindowPtr(::GetParent(host.strip->page.edit->GetHandle())), &host.strip->page);
        }
        host.Destroy(IDOK);
    });
    EXPECT_EQ(53U, calls.size());
}

TEST_F(DialogInDialog, sees_to_its_own_keys) {
    Run([&] {
        ASSERT_TRUE(desk::Activate(host));
        host.strip->page.edit->SetFocus();
        desk::Press({'A'});
        EXPECT_TRUE(desk::PumpUntil([&] { return host.strip->page.edit->GetWindowText() == "a"; }));
        desk::Press({VK_ESCAPE});
        EXPECT_TRUE(desk::PumpUntil([] { return calls.back() == "cancel at page"; }));
        EXPECT_TRUE(host.IsWindow());
        host.strip->SetFocus();
        desk::Press({VK_RIGHT});
        EXPECT_TRUE(desk::PumpUntil([] { return calls.back() == "key 39"; }));
        host.Destroy(IDOK);
    });
}

TEST_F(DialogInDialog, lets_a_hook_take_a_key_first) {
    hooked = &host;
    const HHOOK hook = ::SetWindowsHookExA(WH_KEYBOARD, &KeyHook, nullptr, ::GetCurrentThreadId());
    Run([&] {
        ASSERT_TRUE(desk::Activate(host));
        host.strip->page.edit->SetFocus();
        desk::Press({VK_NEXT});
        EXPECT_TRUE(desk::PumpUntil([&] { return TWindow::GetFocus() == host.strip->GetHandle(); }));
        host.Destroy(IDOK);
    });
    ::UnhookWindowsHookEx(hook);
}

}  // namespace
