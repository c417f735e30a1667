#include "owl/dialog.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <stdexcept>

#include "owl/button.h"
#include "owl/combo_box.h"
#include "owl/edit.h"
#include "owl/error.h"
#include "owl/scroll_bar.h"
#include "tests/owl/desk.h"
#include "tests/owl/resource_ids.h"

namespace {

using owl::TWindow;

// Says what it sees; what a test posts to it runs inside of its loop.
class Dialog : public owl::TDialog {
public:
    explicit Dialog(TWindow* parent, int resource = IDD_TEST_DIALOG) : TDialog(parent, resource) {}

    void SetupWindow() override {
        TDialog::SetupWindow();
        ++setups;
        if (throws)
            throw std::length_error("setup");
        if (inSetup)
            inSetup();
        if (action)
            PostMessage(WM_APP + 1);
    }
    bool CanClose() override { return agrees; }
    LRESULT Act(WPARAM, LPARAM) {
        action();
        return 0;
    }
    std::function<void()> action;
    std::function<void()> inSetup;
    int setups = 0;
    bool throws = false;
    bool agrees = true;

    DECLARE_RESPONSE_TABLE(Dialog);
};

DEFINE_RESPONSE_TABLE1(Dialog, owl::TDialog)
    EV_MESSAGE(WM_APP + 1, Act),
END_RESPONSE_TABLE;

void CALLBACK PressCancel(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    if (const HWND box = ::FindWindowA("#32770", "Every control"))
        ::PostMessageA(box, WM_COMMAND, IDCANCEL, 0);
}

struct DialogTest : testing::Test {
    DialogTest() { desk::Activate(*desk.frame); }

    int Run(Dialog& dialog, const std::function<void()>& action) {
        dialog.action = action;
        return dialog.Execute();
    }

    desk::Desk desk;
};

TEST_F(DialogTest, returns_what_closes_it) {
    Dialog dialog(desk.frame);
    EXPECT_EQ(IDOK, Run(dialog, [&] { dialog.SendMessage(WM_COMMAND, IDOK); }));
    EXPECT_EQ(IDCANCEL, Run(dialog, [&] { dialog.SendMessage(WM_COMMAND, IDCANCEL); }));
    EXPECT_EQ(77, Run(dialog, [&] { dialog.CloseWindow(77); }));
    EXPECT_EQ(78, Run(dialog, [&] { dialog.EndModal(78); }));
    EXPECT_EQ(4, dialog.setups);
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(DialogTest, is_cancelled_by_its_close_box) {
    Dialog dialog(desk.frame);
    EXPECT_EQ(IDCANCEL, Run(dialog, [&] { dialog.PostMessage(WM_CLOSE); }));
}

TEST_F(DialogTest, is_set_up_before_it_shows) {
    Dialog dialog(desk.frame);
    dialog.Create();
    EXPECT_EQ(1, dialog.setups);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_EQ("Every control", dialog.GetWindowText());
}

TEST_F(DialogTest, keeps_its_parent_from_input_and_gives_it_back) {
    Dialog dialog(desk.frame);
    bool enabled = true;
    Run(dialog, [&] {
        enabled = desk.frame->IsWindowEnabled();
        dialog.CmOk();
    });
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetActiveWindow() == desk.frame->GetHandle(); }));
}

TEST_F(DialogTest, stays_open_when_it_refuses_to_close) {
    Dialog dialog(desk.frame);
    bool open = false;
    dialog.agrees = false;
    Run(dialog, [&] {
        dialog.CmOk();
        open = dialog.IsWindow();
        dialog.CmCancel();
    });
    EXPECT_TRUE(open);
}

TEST_F(DialogTest, throws_what_setup_throws_and_leaves_no_window) {
    Dialog dialog(desk.frame);
    dialog.throws = true;
    const int before = desk::CountWindows();
    EXPECT_THROW(dialog.Execute(), std::length_error);
    EXPECT_FALSE(dialog.IsWindow());
    EXPECT_EQ(before, desk::CountWindows());
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
}

TEST_F(DialogTest, lets_an_exception_of_a_handler_out_of_Execute) {
    Dialog dialog(desk.frame);
    EXPECT_THROW(Run(dialog, [] { throw std::length_error("handler"); }), std::length_error);
    EXPECT_FALSE(dialog.IsWindow());
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
}

TEST_F(DialogTest, of_a_missing_resource_throws) {
    Dialog dialog(desk.frame, 9999);
    EXPECT_THROW(dialog.Execute(), owl::TXWindow);
    EXPECT_THROW(dialog.Create(), owl::TXWindow);
}

TEST_F(DialogTest, is_idle_inside_of_its_loop) {
    class Closing : public Dialog {
    public:
        using Dialog::Dialog;
        bool IdleAction(long idleCount) override {
            PostMessage(WM_COMMAND, IDOK);
            return Dialog::IdleAction(idleCount);
        }
    } dialog(desk.frame);
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 5000, &PressCancel);
    EXPECT_EQ(IDOK, dialog.Execute());
    EXPECT_TRUE(::KillTimer(nullptr, timer));
}

TEST_F(DialogTest, runs_within_another_to_any_depth) {
    Dialog outer(desk.frame);
    Dialog inner(&outer);
    int innerResult = 0;
    EXPECT_EQ(IDCANCEL, Run(outer, [&] {
                  innerResult = Run(inner, [&] { inner.CmOk(); });
                  outer.CmCancel();
              }));
    EXPECT_EQ(IDOK, innerResult);
}

TEST_F(DialogTest, ends_with_its_parents_window) {
    auto* dialog = new Dialog(desk.frame);
    EXPECT_EQ(IDCANCEL, Run(*dialog, [&] { ::DestroyWindow(desk.frame->GetHandle()); }));
    desk.application.MessageLoop();
}

TEST_F(DialogTest, takes_its_controls_over_by_their_numbers) {
    Dialog dialog(desk.frame);
    auto* edit = new owl::TEdit(&dialog, IDC_TEST_EDIT, 10);
    dialog.Create();
    EXPECT_EQ(dialog.GetDlgItem(IDC_TEST_EDIT), edit->GetHandle());
    edit->SetText("taken");
    EXPECT_EQ("taken", dialog.GetDlgItemText(IDC_TEST_EDIT));
    EXPECT_EQ("", dialog.GetDlgItemText(999));
}

TEST_F(DialogTest, without_one_of_its_controls_throws) {
    Dialog dialog(desk.frame);
    new owl::TEdit(&dialog, 999);
    EXPECT_THROW(dialog.Create(), owl::TXWindow);
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(DialogTest, works_again_with_the_same_control_objects) {
    Dialog dialog(desk.frame);
    auto* edit = new owl::TEdit(&dialog, IDC_TEST_EDIT);
    for (int i = 0; i < 2; ++i) {
        std::string text;
        Run(dialog, [&] {
            edit->SetText("again");
            text = edit->GetWindowText();
            dialog.CmOk();
        });
        EXPECT_EQ("again", text);
        EXPECT_FALSE(edit->IsWindow());
    }
}

// Packed by hand: the controls' data lie side by side.
TEST_F(DialogTest, moves_the_data_of_all_controls_in_and_out) {
    owl::TListBoxData fruits{{"apple", "pear", "fig"}, 1, "pear"};
    owl::TListBoxData* const address = &fruits;
    const owl::TScrollBarData bar{0, 100, 42};
    std::vector<char> buffer(12 + sizeof(address) + 2 + sizeof(bar));
    std::strcpy(buffer.data(), "a name");
    std::memcpy(buffer.data() + 12, &address, sizeof(address));
    buffer[12 + sizeof(address)] = BST_CHECKED;
    std::memcpy(buffer.data() + 14 + sizeof(address), &bar, sizeof(bar));

    Dialog dialog(desk.frame);
    auto* edit = new owl::TEdit(&dialog, IDC_TEST_EDIT, 12);
    auto* list = new owl::TListBox(&dialog, IDC_TEST_LIST);
    auto* check = new owl::TCheckBox(&dialog, IDC_TEST_CHECK);
    auto* scroll = new owl::TScrollBar(&dialog, IDC_TEST_SCROLL);
    dialog.SetTransferBuffer(buffer.data(), static_cast<unsigned>(buffer.size()));
    std::string shown;
    int selected = -1;
    UINT checked = 99;
    int position = -1;
    const int result = Run(dialog, [&] {
        shown = edit->GetWindowText();
        selected = list->GetSelIndex();
        checked = check->GetCheck();
        position = scroll->GetPosition();
        edit->SetText("another name");
        list->SetSelIndex(2);
        check->Uncheck();
        scroll->SetPosition(7);
        dialog.CmOk();
    });
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ("a name", shown);
    EXPECT_EQ(1, selected);
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), checked);
    EXPECT_EQ(42, position);
    EXPECT_STREQ("another nam", buffer.data());
    EXPECT_EQ("fig", fruits.SelString);
    EXPECT_EQ(2, fruits.SelIndex);
    EXPECT_EQ(BST_UNCHECKED, buffer[12 + sizeof(address)]);
    owl::TScrollBarData read;
    std::memcpy(&read, buffer.data() + 14 + sizeof(address), sizeof(read));
    EXPECT_EQ(7, read.Position);
    EXPECT_EQ(100, read.HighValue);
}

TEST_F(DialogTest, leaves_the_buffer_alone_when_it_is_cancelled) {
    char buffer[12] = "kept";
    Dialog dialog(desk.frame);
    auto* edit = new owl::TEdit(&dialog, IDC_TEST_EDIT, 12);
    dialog.SetTransferBuffer(buffer, sizeof(buffer));
    Run(dialog, [&] {
        edit->SetText("changed");
        dialog.CmCancel();
    });
    EXPECT_STREQ("kept", buffer);
}

TEST_F(DialogTest, is_driven_by_keys) {
    Dialog dialog(desk.frame);
    auto* edit = new owl::TEdit(&dialog, IDC_TEST_EDIT);
    auto* list = new owl::TListBox(&dialog, IDC_TEST_LIST);
    auto* check = new owl::TCheckBox(&dialog, IDC_TEST_CHECK);
    std::string typed;
    bool listHadFocus = false;
    UINT checked = 99;
    const int result = Run(dialog, [&] {
        ASSERT_TRUE(desk::Activate(dialog));
        edit->SetFocus();
        desk::Press({'A'});
        desk::Press({'B'});
        EXPECT_TRUE(desk::PumpUntil([&] { return edit->GetWindowText() == "ab"; }));
        typed = edit->GetWindowText();
        desk::Press({VK_TAB});
        listHadFocus = desk::PumpUntil([&] { return ::GetFocus() == list->GetHandle(); });
        desk::Press({VK_MENU, 'C'});
        EXPECT_TRUE(desk::PumpUntil([&] { return check->GetCheck() == BST_CHECKED; }));
        checked = check->GetCheck();
        desk::Press({VK_RETURN});
    });
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ("ab", typed);
    EXPECT_TRUE(listHadFocus);
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), checked);
}

TEST_F(DialogTest, is_cancelled_by_the_escape_key) {
    Dialog dialog(desk.frame);
    EXPECT_EQ(IDCANCEL, Run(dialog, [&] {
                  ASSERT_TRUE(desk::Activate(dialog));
                  desk::Press({VK_ESCAPE});
              }));
}

TEST_F(DialogTest, is_pressed_by_the_mouse) {
    Dialog dialog(desk.frame);
    const int result = Run(dialog, [&] {
        ASSERT_TRUE(desk::Activate(dialog));
        RECT button{};
        ::GetWindowRect(dialog.GetDlgItem(IDOK), &button);
        ::SetCursorPos((button.left + button.right) / 2, (button.top + button.bottom) / 2);
        INPUT click[2]{};
        click[0].type = click[1].type = INPUT_MOUSE;
        click[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
        click[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
        ::SendInput(2, click, sizeof(INPUT));
    });
    EXPECT_EQ(IDOK, result);
}

TEST_F(DialogTest, without_a_mode_sees_to_its_keys_as_well) {
    auto* dialog = new Dialog(desk.frame);
    auto* edit = new owl::TEdit(dialog, IDC_TEST_EDIT);
    auto* list = new owl::TListBox(dialog, IDC_TEST_LIST);
    dialog->Create();
    ASSERT_TRUE(desk::Activate(*dialog));
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
    edit->SetFocus();
    desk::Press({VK_TAB});
    EXPECT_TRUE(desk::PumpUntil([&] { return ::GetFocus() == list->GetHandle(); }));
    desk::Press({VK_ESCAPE});
    EXPECT_TRUE(desk::PumpUntil([&] { return !dialog->IsWindow(); }));
}

TEST_F(DialogTest, may_be_a_child_without_a_frame) {
    auto* page = new Dialog(desk.frame, IDD_TEST_PAGE);
    page->Create();
    EXPECT_NE(0U, page->GetStyle() & WS_CHILD);
    EXPECT_EQ(desk.frame->GetHandle(), ::GetParent(page->GetHandle()));
    page->Destroy(IDCANCEL);
    EXPECT_FALSE(page->IsWindow());
    page->Create();
    EXPECT_EQ(2, page->setups);
}

TEST_F(DialogTest, knows_its_default_button_and_its_units) {
    Dialog dialog(desk.frame);
    dialog.Create();
    EXPECT_EQ(IDOK, dialog.GetDefaultId());
    dialog.SetDefaultId(IDCANCEL);
    EXPECT_EQ(IDCANCEL, dialog.GetDefaultId());
    owl::TRect four(0, 0, 4, 8);
    RECT same{0, 0, 4, 8};
    ::MapDialogRect(dialog.GetHandle(), &same);
    dialog.MapDialogRect(four);
    EXPECT_EQ(owl::TRect(same), four);
    EXPECT_LT(4, four.right);
}

TEST_F(DialogTest, checks_buttons_by_their_numbers) {
    Dialog dialog(desk.frame);
    dialog.Create();
    dialog.CheckDlgButton(IDC_TEST_CHECK, BST_CHECKED);
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), dialog.IsDlgButtonChecked(IDC_TEST_CHECK));
    dialog.SetDlgItemText(IDC_TEST_STATIC, "label");
    EXPECT_EQ("label", dialog.GetDlgItemText(IDC_TEST_STATIC));
}

// No font in the template: the first message is the one that sets the dialog up.
TEST_F(DialogTest, comes_from_a_template_in_memory) {
    struct alignas(4) {
        DLGTEMPLATE head{WS_POPUP | WS_CAPTION, 0, 0, 10, 10, 90, 40};
        WORD menu = 0;
        WORD windowClass = 0;
        WCHAR title[7] = L"memory";
    } memory;
    class FromMemory : public owl::TDialog {
    public:
        FromMemory(TWindow* parent, const DLGTEMPLATE* head) : TDialog(parent, head) {}
        void SetupWindow() override {
            TDialog::SetupWindow();
            title = GetWindowText();
        }
        std::string title;
    } dialog(desk.frame, &memory.head);
    dialog.Create();
    EXPECT_EQ("memory", dialog.title);
    EXPECT_EQ(&dialog, owl::GetWindowPtr(dialog.GetHandle()));
}

TEST_F(DialogTest, hundred_of_them_leave_nothing_behind) {
    {
        Dialog warm(desk.frame);
        warm.Create();
    }
    const DWORD before = desk::UserObjects();
    const int windows = desk::CountWindows();
    for (int i = 0; i < 100; ++i) {
        Dialog dialog(desk.frame);
        new owl::TEdit(&dialog, IDC_TEST_EDIT);
        dialog.Create();
        EXPECT_LT(windows + 10, desk::CountWindows());
    }
    EXPECT_EQ(windows, desk::CountWindows());
    EXPECT_EQ(before, desk::UserObjects());
}

// What decided while it was set up was lost: the answer was Cancel, or the dialog stayed.
TEST_F(DialogTest, may_be_over_before_it_shows) {
    Dialog dialog(desk.frame);
    dialog.inSetup = [&] { dialog.CloseWindow(77); };
    EXPECT_EQ(77, dialog.Execute());
    dialog.inSetup = [&] { dialog.EndModal(78); };
    EXPECT_EQ(78, dialog.Execute());
    EXPECT_FALSE(dialog.IsWindow());
    dialog.inSetup = [&] { ::DestroyWindow(dialog.GetHandle()); };
    EXPECT_EQ(IDCANCEL, dialog.Execute());
    dialog.inSetup = nullptr;
    EXPECT_EQ(79, Run(dialog, [&] { dialog.EndModal(79); }));
    EXPECT_TRUE(desk.frame->IsWindowEnabled());
}

TEST_F(DialogTest, whose_setup_threw_is_not_modal) {
    Dialog dialog(desk.frame);
    dialog.throws = true;
    EXPECT_THROW(dialog.Execute(), std::length_error);
    EXPECT_FALSE(dialog.IsModal());
}

TEST_F(DialogTest, bears_the_caption_of_its_template_unless_it_is_given_another) {
    Dialog plain(desk.frame);
    plain.Create();
    EXPECT_EQ("Every control", plain.GetCaption());
    Dialog named(desk.frame);
    named.SetWindowText("Another");
    named.Create();
    EXPECT_EQ("Another", named.GetWindowText());
    EXPECT_EQ("Another", named.GetCaption());
}

// Read as narrow text and written back, it would lose the letters that the code page lacks.
TEST_F(DialogTest, leaves_the_caption_of_its_template_as_it_is) {
    class Listening : public Dialog {
    public:
        using Dialog::Dialog;
        LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override {
            if (msg == WM_SETTEXT)
                ++captions;
            return Dialog::WindowProc(msg, wParam, lParam);
        }
        int captions = 0;
    } dialog(desk.frame);
    dialog.Create();
    EXPECT_EQ(0, dialog.captions);
    EXPECT_EQ("Every control", dialog.GetCaption());
    dialog.Destroy();
    dialog.Create();
    EXPECT_EQ(0, dialog.captions);
}

TEST(DialogWithoutApplication, runs_and_sees_to_its_keys) {
    Dialog dialog(nullptr);
    dialog.action = [&] {
        ASSERT_TRUE(desk::Activate(dialog));
        desk::Press({VK_ESCAPE});
    };
    EXPECT_EQ(IDCANCEL, dialog.Execute());
    dialog.action = [&] { dialog.CmOk(); };
    EXPECT_EQ(IDOK, dialog.Execute());
}

}  // namespace
