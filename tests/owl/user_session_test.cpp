// A program with a menu and a dialog of every control, used by keys and mouse alone.
#include <gtest/gtest.h>

#include <atomic>

#include "owl/button.h"
#include "owl/combo_box.h"
#include "owl/dialog.h"
#include "owl/edit.h"
#include "owl/scroll_bar.h"
#include "tests/owl/desk.h"
#include "tests/owl/desk_user.h"
#include "tests/owl/resource_ids.h"

namespace {

using user::Press;
using user::WaitUntil;

// What all the controls hold, side by side in the order in which their objects are made.
#pragma pack(push, 1)
struct Data {
    char label[20] = "a name:";
    char name[12] = "Ann";
    owl::TListBoxData* fruits = nullptr;
    owl::TListBoxData* sizes = nullptr;
    owl::TScrollBarData bar{0, 50, 20};
    std::uint16_t check = BST_UNCHECKED;
    std::uint16_t first = BST_CHECKED;
    std::uint16_t second = BST_UNCHECKED;
};
#pragma pack(pop)

class EveryControl : public owl::TDialog {
public:
    EveryControl(owl::TWindow* parent, Data& data) : TDialog(parent, IDD_TEST_DIALOG) {
        new owl::TStatic(this, IDC_TEST_STATIC, sizeof data.label);
        new owl::TEdit(this, IDC_TEST_EDIT, sizeof data.name);
        new owl::TListBox(this, IDC_TEST_LIST);
        new owl::TComboBox(this, IDC_TEST_COMBO);
        new owl::TScrollBar(this, IDC_TEST_SCROLL);
        new owl::TGroupBox(this, IDC_TEST_GROUP);
        new owl::TCheckBox(this, IDC_TEST_CHECK);
        new owl::TRadioButton(this, IDC_TEST_RADIO_A);
        new owl::TRadioButton(this, IDC_TEST_RADIO_B);
        new owl::TButton(this, IDOK);
        new owl::TButton(this, IDCANCEL);
        SetTransferBuffer(&data, sizeof data);
    }
};

class Frame : public owl::TFrameWindow {
public:
    Frame() : TFrameWindow(nullptr, "session") {
        Attr.Menu = IDM_TEST_MENU;
        Attr.AccelTable = IDA_TEST_KEYS;
        desk::Place(*this);
        data.fruits = &fruits;
        data.sizes = &sizes;
    }
    void CmFirst() { results.push_back(EveryControl(this, data).Execute()); }
    void EvLButtonDown(UINT modifiers, const owl::TPoint& point) {
        ++clicks;
        TWindow::EvLButtonDown(modifiers, point);
    }

    owl::TListBoxData fruits{{"apple", "fig", "pear", "plum"}, 0, "apple"};
    owl::TListBoxData sizes{{"small", "medium", "large"}, 1, "medium"};
    Data data;
    std::vector<int> results;
    std::atomic<int> clicks = 0;

    DECLARE_RESPONSE_TABLE(Frame);
};

DEFINE_RESPONSE_TABLE1(Frame, owl::TFrameWindow)
    EV_COMMAND(CM_TEST_FIRST, CmFirst), EV_WM_LBUTTONDOWN,
END_RESPONSE_TABLE;

class UserSession : public testing::Test {
protected:
    UserSession() : application("session", nullptr, SW_SHOWNORMAL), frame(new Frame) {
        MSG quit{};
        ::PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
        application.SetMainWindow(frame);
    }

    // Runs the program while somebody uses it, who has its window in front at first and closes it at last.
    void Run(const std::function<void()>& use) {
        const desk::User user([&] {
            window = user::WaitForShown(nullptr, "session");
            ASSERT_TRUE(user::WaitUntilInFront(window));
            use();
            ASSERT_TRUE(user::WaitUntilInFront(window));
            Press({VK_MENU, VK_F4});
        });
        EXPECT_EQ(0, application.Run());
    }

    // What the user does.

    void OpenByKeys() {
        Press({VK_CONTROL, 'K'});
        WaitForDialog();
    }
    void WaitForDialog() {
        dialog = user::WaitForShown(user::dialog_class, "Every control");
        ASSERT_TRUE(user::WaitUntilInFront(dialog));
    }
    HWND Item(int id) const { return ::GetDlgItem(dialog, id); }
    bool HasFocus(int id) const {
        return WaitUntil([&] { return user::FocusOf(dialog) == Item(id); });
    }
    LRESULT Ask(int id, UINT msg) const { return ::SendMessageA(Item(id), msg, 0, 0); }
    bool Answers(int id, UINT msg, LRESULT answer) const {
        return WaitUntil([&] { return Ask(id, msg) == answer; });
    }
    bool Shows(int id, const std::string& text) const {
        return WaitUntil([&] { return user::TextOf(Item(id)) == text; });
    }
    bool IsGone() const {
        return WaitUntil([&] { return !::IsWindow(dialog); });
    }

    owl::TApplication application;
    Frame* frame;
    HWND window = nullptr;
    HWND dialog = nullptr;
};

TEST_F(UserSession, fills_every_control_from_the_data) {
    Run([&] {
        OpenByKeys();
        EXPECT_TRUE(Shows(IDC_TEST_STATIC, "a name:"));
        EXPECT_TRUE(Shows(IDC_TEST_EDIT, "Ann"));
        EXPECT_TRUE(Answers(IDC_TEST_LIST, LB_GETCOUNT, 4));
        EXPECT_TRUE(Answers(IDC_TEST_LIST, LB_GETCURSEL, 0));
        EXPECT_TRUE(Answers(IDC_TEST_COMBO, CB_GETCOUNT, 3));
        EXPECT_TRUE(Answers(IDC_TEST_COMBO, CB_GETCURSEL, 1));
        EXPECT_TRUE(Answers(IDC_TEST_SCROLL, SBM_GETPOS, 20));
        EXPECT_TRUE(Answers(IDC_TEST_CHECK, BM_GETCHECK, BST_UNCHECKED));
        EXPECT_TRUE(Answers(IDC_TEST_RADIO_A, BM_GETCHECK, BST_CHECKED));
        EXPECT_TRUE(Answers(IDC_TEST_RADIO_B, BM_GETCHECK, BST_UNCHECKED));
        Press({VK_ESCAPE});
        EXPECT_TRUE(IsGone());
    });
}

TEST_F(UserSession, goes_around_the_tab_stops_both_ways) {
    const int stops[] = {IDC_TEST_EDIT,  IDC_TEST_LIST,    IDC_TEST_COMBO, IDC_TEST_SCROLL,
                         IDC_TEST_CHECK, IDC_TEST_RADIO_A, IDOK,           IDCANCEL};
    Run([&] {
        OpenByKeys();
        for (const int stop : stops) {
            EXPECT_TRUE(HasFocus(stop)) << stop;
            Press({VK_TAB});
        }
        EXPECT_TRUE(HasFocus(IDC_TEST_EDIT));
        for (int i = 8; i-- > 0;) {
            Press({VK_SHIFT, VK_TAB});
            EXPECT_TRUE(HasFocus(stops[i])) << stops[i];
        }
        Press({VK_ESCAPE});
        EXPECT_TRUE(IsGone());
    });
}

TEST_F(UserSession, brings_back_what_keys_have_changed) {
    Run([&] {
        Press({VK_MENU, 'T'});
        ASSERT_NE(nullptr, user::WaitForShown(user::drop_down_class, nullptr));
        Press({'F'});
        WaitForDialog();
        EXPECT_TRUE(HasFocus(IDC_TEST_EDIT));
        user::Type("Ben and Bob is long");
        EXPECT_TRUE(Shows(IDC_TEST_EDIT, "Ben and Bob"));
        Press({VK_TAB});
        Press({VK_DOWN});
        Press({VK_DOWN});
        EXPECT_TRUE(Answers(IDC_TEST_LIST, LB_GETCURSEL, 2));
        Press({VK_TAB});
        user::Type("s");
        EXPECT_TRUE(Answers(IDC_TEST_COMBO, CB_GETCURSEL, 0));
        Press({VK_TAB});
        Press({VK_RIGHT});
        Press({VK_NEXT});
        EXPECT_TRUE(Answers(IDC_TEST_SCROLL, SBM_GETPOS, 31));
        Press({VK_TAB});
        Press({VK_SPACE});
        EXPECT_TRUE(Answers(IDC_TEST_CHECK, BM_GETCHECK, BST_CHECKED));
        Press({VK_TAB});
        Press({VK_RIGHT});
        EXPECT_TRUE(Answers(IDC_TEST_RADIO_B, BM_GETCHECK, BST_CHECKED));
        Press({VK_RETURN});
        EXPECT_TRUE(IsGone());
    });
    EXPECT_EQ(std::vector<int>{IDOK}, frame->results);
    EXPECT_STREQ("a name:", frame->data.label);
    EXPECT_STREQ("Ben and Bob", frame->data.name);
    EXPECT_EQ(2, frame->fruits.SelIndex);
    EXPECT_EQ("pear", frame->fruits.SelString);
    EXPECT_EQ(0, frame->sizes.SelIndex);
    EXPECT_EQ("small", frame->sizes.SelString);
    const owl::TScrollBarData bar = frame->data.bar;
    EXPECT_EQ(31, bar.Position);
    EXPECT_EQ(50, bar.HighValue);
    EXPECT_TRUE(frame->data.check == BST_CHECKED);
    EXPECT_TRUE(frame->data.first == BST_UNCHECKED);
    EXPECT_TRUE(frame->data.second == BST_CHECKED);
}

TEST_F(UserSession, brings_back_what_the_mouse_has_changed) {
    Run([&] {
        RECT bar{};
        ::GetWindowRect(window, &bar);
        user::Click(bar.left + 20, bar.top + ::GetSystemMetrics(SM_CYCAPTION) +
                                       ::GetSystemMetrics(SM_CYFRAME) + ::GetSystemMetrics(SM_CYMENU) / 2);
        const HWND menu = user::WaitForShown(user::drop_down_class, nullptr);
        ASSERT_NE(nullptr, menu);
        user::ClickIn(menu, 20, 10);
        WaitForDialog();
        const int height = static_cast<int>(Ask(IDC_TEST_LIST, LB_GETITEMHEIGHT));
        user::ClickIn(Item(IDC_TEST_LIST), 20, 2 + height * 3 + height / 2);
        EXPECT_TRUE(Answers(IDC_TEST_LIST, LB_GETCURSEL, 3));
        user::Click(Item(IDC_TEST_COMBO));
        const HWND list = user::WaitForShown("ComboLBox", nullptr);
        ASSERT_NE(nullptr, list);
        user::ClickIn(list, 20, 1 + height * 2 + height / 2);
        EXPECT_TRUE(Answers(IDC_TEST_COMBO, CB_GETCURSEL, 2));
        EXPECT_TRUE(WaitUntil([&] { return !::IsWindowVisible(list); }));
        RECT scroll{};
        ::GetClientRect(Item(IDC_TEST_SCROLL), &scroll);
        user::ClickIn(Item(IDC_TEST_SCROLL), scroll.right - 4, scroll.bottom / 2);
        EXPECT_TRUE(Answers(IDC_TEST_SCROLL, SBM_GETPOS, 21));
        user::Click(Item(IDC_TEST_CHECK));
        EXPECT_TRUE(Answers(IDC_TEST_CHECK, BM_GETCHECK, BST_CHECKED));
        user::Click(Item(IDC_TEST_RADIO_B));
        EXPECT_TRUE(Answers(IDC_TEST_RADIO_A, BM_GETCHECK, BST_UNCHECKED));
        user::Click(Item(IDC_TEST_EDIT));
        EXPECT_TRUE(HasFocus(IDC_TEST_EDIT));
        user::Type("!");
        EXPECT_TRUE(Shows(IDC_TEST_EDIT, "Ann!"));
        user::Click(Item(IDOK));
        EXPECT_TRUE(IsGone());
    });
    EXPECT_EQ(std::vector<int>{IDOK}, frame->results);
    EXPECT_STREQ("Ann!", frame->data.name);
    EXPECT_EQ("plum", frame->fruits.SelString);
    EXPECT_EQ("large", frame->sizes.SelString);
    const owl::TScrollBarData bar = frame->data.bar;
    EXPECT_EQ(21, bar.Position);
    EXPECT_TRUE(frame->data.check == BST_CHECKED);
    EXPECT_TRUE(frame->data.second == BST_CHECKED);
}

TEST_F(UserSession, changes_boxes_by_their_underlined_letters) {
    Run([&] {
        OpenByKeys();
        Press({VK_MENU, 'C'});
        EXPECT_TRUE(Answers(IDC_TEST_CHECK, BM_GETCHECK, BST_CHECKED));
        Press({VK_MENU, 'B'});
        EXPECT_TRUE(Answers(IDC_TEST_RADIO_B, BM_GETCHECK, BST_CHECKED));
        EXPECT_TRUE(Answers(IDC_TEST_RADIO_A, BM_GETCHECK, BST_UNCHECKED));
        Press({VK_MENU, 'A'});
        EXPECT_TRUE(Answers(IDC_TEST_RADIO_A, BM_GETCHECK, BST_CHECKED));
        Press({VK_RETURN});
        EXPECT_TRUE(IsGone());
    });
    EXPECT_TRUE(frame->data.check == BST_CHECKED);
    EXPECT_TRUE(frame->data.first == BST_CHECKED);
}

TEST_F(UserSession, leaves_the_data_when_it_is_cancelled_in_whatever_way) {
    Run([&] {
        OpenByKeys();
        user::Type("lost");
        Press({VK_ESCAPE});
        EXPECT_TRUE(IsGone());
        OpenByKeys();
        user::Type("lost");
        user::Click(Item(IDCANCEL));
        EXPECT_TRUE(IsGone());
        OpenByKeys();
        user::Type("lost");
        // Enter presses the button that has the focus, be it the default one or not.
        Press({VK_SHIFT, VK_TAB});
        EXPECT_TRUE(HasFocus(IDCANCEL));
        Press({VK_RETURN});
        EXPECT_TRUE(IsGone());
        OpenByKeys();
        user::Type("lost");
        Press({VK_MENU, VK_F4});
        EXPECT_TRUE(IsGone());
    });
    EXPECT_EQ((std::vector<int>{IDCANCEL, IDCANCEL, IDCANCEL, IDCANCEL}), frame->results);
    EXPECT_STREQ("Ann", frame->data.name);
}

TEST_F(UserSession, shows_the_next_time_what_was_brought_back) {
    Run([&] {
        OpenByKeys();
        user::Type("Eve");
        Press({VK_RETURN});
        EXPECT_TRUE(IsGone());
        ASSERT_TRUE(user::WaitUntilInFront(window));
        OpenByKeys();
        EXPECT_TRUE(Shows(IDC_TEST_EDIT, "Eve"));
        Press({VK_ESCAPE});
        EXPECT_TRUE(IsGone());
    });
}

TEST_F(UserSession, takes_no_keys_or_clicks_for_the_window_behind_an_open_dialog) {
    Run([&] {
        OpenByKeys();
        Press({VK_CONTROL, 'K'});
        Press({VK_MENU, 'T'});
        RECT rect{};
        ::GetWindowRect(window, &rect);
        user::Click(rect.right - 20, rect.bottom - 20);
        // The dialog has the keyboard still, and there is no other.
        Press({VK_MENU, 'C'});
        EXPECT_TRUE(Answers(IDC_TEST_CHECK, BM_GETCHECK, BST_CHECKED));
        EXPECT_EQ(nullptr, user::FindShown(user::drop_down_class, nullptr));
        Press({VK_ESCAPE});
        EXPECT_TRUE(IsGone());
    });
    EXPECT_EQ(1U, frame->results.size());
    EXPECT_EQ(0, frame->clicks);
}

TEST_F(UserSession, gives_the_keys_back_to_the_window_when_the_dialog_is_gone) {
    Run([&] {
        OpenByKeys();
        Press({VK_ESCAPE});
        EXPECT_TRUE(IsGone());
        ASSERT_TRUE(user::WaitUntilInFront(window));
        user::ClickIn(window, 200, 200);
        EXPECT_TRUE(WaitUntil([&] { return frame->clicks == 1; }));
        OpenByKeys();
        Press({VK_ESCAPE});
        EXPECT_TRUE(IsGone());
    });
    EXPECT_EQ(2U, frame->results.size());
}

}  // namespace
