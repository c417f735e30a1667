#include "lvx/propdlg/property_dialog.h"

#include <gtest/gtest.h>

#include "lvx/propdlg/shared_state.h"
#include "owl/command_enabler.h"
#include "owl/mdi.h"
#include "property_desk.h"
#include "tests/owl/desk_user.h"

namespace {

using lvx::propdlg::shared_state;
using propdlg_test::Calls;
using propdlg_test::Dialog;
using propdlg_test::Page;
using propdlg_test::PropertyDesk;

struct PropertyDialogs : PropertyDesk {
    /// The strip in the client area of its dialog.
    static owl::TRect PlaceOfStrip(const Dialog& dialog) {
        owl::TRect place = dialog.Strip().GetWindowRect();
        ::MapWindowPoints(nullptr, dialog.GetHandle(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    static owl::TRect PlaceOf(const Dialog& dialog, int control) {
        owl::TRect place;
        ::GetWindowRect(dialog.GetDlgItem(control), &place);
        ::MapWindowPoints(nullptr, dialog.GetHandle(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    /// Four dialog units each way.
    static owl::TSize MarginOf(const Dialog& dialog) {
        owl::TRect margin(0, 0, 4, 4);
        dialog.MapDialogRect(margin);
        return margin.Size();
    }
};

// OK, Cancel, close

TEST_F(PropertyDialogs, ok_asks_all_pages_then_has_those_with_windows_save_and_closes) {
    Dialog dialog(calls, desk.frame, Tab::CreateOnDemandAndKeepIt);
    Open(dialog);
    dialog.SelectTab(2);
    Asked();
    dialog.CmOk();
    EXPECT_EQ((Calls{"close a", "close b", "close c", "save a", "save c"}), Asked());
    EXPECT_EQ(IDOK, dialog.result);
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(PropertyDialogs, a_page_that_refuses_to_close_comes_forward_and_nothing_is_saved) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    b.may_close = false;
    dialog.CmOk();
    EXPECT_EQ(
        (Calls{"close a", "close b", "cannot b", "leave dialog 1", "leave a", "after dialog 1", "after b"}),
        Asked());
    EXPECT_EQ(1, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(dialog.IsWindow());
    EXPECT_EQ(0, dialog.result);
}

TEST_F(PropertyDialogs, the_first_page_that_cannot_save_stops_the_others_and_the_dialog_stays) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    b.saves = false;
    dialog.CmOk();
    EXPECT_EQ((Calls{"close a", "close b", "close c", "save a", "save b"}), Asked());
    EXPECT_TRUE(dialog.IsWindow());
}

TEST_F(PropertyDialogs, cancel_asks_no_page) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    a.may_leave = false;
    a.may_close = false;
    dialog.CmCancel();
    EXPECT_TRUE(Asked().empty());
    EXPECT_EQ(IDCANCEL, dialog.result);
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(PropertyDialogs, the_close_box_cancels) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    dialog.SendMessage(WM_SYSCOMMAND, SC_CLOSE);
    EXPECT_EQ(IDCANCEL, dialog.result);
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(PropertyDialogs, another_action_closes_with_its_own_number) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    dialog.CloseAction(77);
    EXPECT_EQ(77, dialog.result);
}

TEST_F(PropertyDialogs, a_dialog_that_is_not_to_be_closed_does_nothing_for_ok_and_cancel) {
    Dialog dialog(calls, desk.frame, Tab::NoMDIClose);
    Open(dialog);
    dialog.CmOk();
    dialog.CmCancel();
    dialog.CloseAction(77);
    EXPECT_TRUE(Asked().empty());
    EXPECT_TRUE(dialog.IsWindow());
}

TEST_F(PropertyDialogs, the_commands_of_pages_for_ok_and_cancel_are_the_dialogs) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    a.SendMessage(WM_COMMAND, IDOK);
    EXPECT_EQ((Calls{"close a", "close b", "close c", "save a", "save b", "save c"}), Asked());
    EXPECT_EQ(IDOK, dialog.result);
    Dialog second(calls, desk.frame);
    Open(second);
    a.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(IDCANCEL, second.result);
}

TEST_F(PropertyDialogs, closing_destroys_the_windows_of_pages_and_keeps_their_objects) {
    int deleted = 0;
    a.deleted = &deleted;
    {
        Dialog dialog(calls, desk.frame);
        Open(dialog);
        dialog.CmCancel();
        EXPECT_FALSE(a.IsWindow());
    }
    EXPECT_EQ(0, deleted);
    EXPECT_TRUE(a.Parent == nullptr);
}

TEST_F(PropertyDialogs, a_dialog_that_ends_with_its_window_open_deletes_the_pages_that_have_windows) {
    int deleted = 0;
    auto* const shown = new Page(calls, "s");
    auto* const absent = new Page(calls, "n");
    shown->deleted = &deleted;
    absent->deleted = &deleted;
    {
        Dialog dialog(calls, desk.frame, Tab::CreateOnDemand);
        dialog.ends_open = true;
        dialog.Add("&S", shown, true);
        dialog.Add("&N", absent, true);
        Show(dialog);
    }
    EXPECT_EQ(1, deleted);
    EXPECT_TRUE(absent->Parent == nullptr);
    delete absent;
    EXPECT_EQ(2, deleted);
}

TEST_F(PropertyDialogs, a_page_behind_two_tabs_is_deleted_once) {
    int deleted = 0;
    auto* const page = new Page(calls, "p");
    page->deleted = &deleted;
    {
        Dialog dialog(calls, desk.frame, Tab::AllowDupPages);
        dialog.ends_open = true;
        dialog.Add("&1", page, true);
        dialog.Add("&2", page, true);
        Show(dialog);
    }
    EXPECT_EQ(1, deleted);
}

TEST_F(PropertyDialogs, pages_of_a_dialog_that_was_never_created_are_left_to_the_host) {
    int deleted = 0;
    auto* const page = new Page(calls, "p");
    page->deleted = &deleted;
    {
        Dialog dialog(calls, desk.frame);
        page->SetParent(&dialog);
        dialog.Add("&P", page, true);
    }
    EXPECT_EQ(0, deleted);
    delete page;
}

TEST_F(PropertyDialogs, a_dialog_can_be_created_again) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    dialog.SelectTab(1);
    dialog.CmCancel();
    Show(dialog);
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(a.IsWindowVisible());
    EXPECT_FALSE(b.IsWindowVisible());
    EXPECT_EQ(1, shared_state().PropertyTabs.GetItemsInContainer());
    dialog.CmOk();
    EXPECT_EQ(IDOK, dialog.result);
}

// Modal

TEST_F(PropertyDialogs, a_modal_dialog_returns_what_closed_it) {
    Dialog dialog(calls, desk.frame);
    AddPages(dialog);
    desk.frame->ShowWindow(SW_SHOW);
    int result = 0;
    {
        const desk::User user([&] {
            const HWND window = user::WaitForShown(nullptr, "Tabs");
            EXPECT_TRUE(user::WaitUntilInFront(window));
            EXPECT_FALSE(::IsWindowEnabled(desk.frame->GetHandle()));
            user::Click(::GetDlgItem(window, IDOK));
        });
        result = dialog.Execute();
    }
    EXPECT_EQ(IDOK, result);
    EXPECT_FALSE(dialog.IsModal());
    EXPECT_TRUE(::IsWindowEnabled(desk.frame->GetHandle()));
    EXPECT_TRUE(shared_state().PropertyTabs.IsEmpty());
}

TEST_F(PropertyDialogs, escape_cancels_a_modal_dialog_from_the_strip) {
    Dialog dialog(calls, desk.frame);
    AddPages(dialog);
    desk.frame->ShowWindow(SW_SHOW);
    int result = 0;
    {
        const desk::User user([&] {
            const HWND window = user::WaitForShown(nullptr, "Tabs");
            EXPECT_TRUE(user::WaitUntilInFront(window));
            user::Press({VK_ESCAPE});
        });
        result = dialog.Execute();
    }
    EXPECT_EQ(IDCANCEL, result);
}

// What dialogs share

TEST_F(PropertyDialogs, the_first_dialog_brings_hook_and_brush_and_the_last_takes_them_away) {
    EXPECT_TRUE(shared_state().HookHandle == nullptr);
    EXPECT_TRUE(TPropertyDialog::brushGray == nullptr);
    {
        Dialog first(calls, desk.frame);
        first.Add("&A", &a, true);
        Show(first);
        const HHOOK hook = shared_state().HookHandle;
        EXPECT_TRUE(hook != nullptr);
        EXPECT_TRUE(TPropertyDialog::brushGray != nullptr);
        {
            Dialog second(calls, desk.frame);
            second.Add("&B", &b, true);
            Show(second);
            EXPECT_EQ(hook, shared_state().HookHandle);
            EXPECT_EQ(2, shared_state().PropertyTabs.GetItemsInContainer());
            second.CmCancel();
        }
        EXPECT_EQ(hook, shared_state().HookHandle);
        EXPECT_EQ(1, shared_state().PropertyTabs.GetItemsInContainer());
        first.CmCancel();
        EXPECT_TRUE(shared_state().PropertyTabs.IsEmpty());
        // It goes with the object.
        EXPECT_EQ(hook, shared_state().HookHandle);
    }
    EXPECT_TRUE(shared_state().HookHandle == nullptr);
    EXPECT_TRUE(TPropertyDialog::brushGray == nullptr);
}

TEST_F(PropertyDialogs, the_first_dialog_to_end_leaves_the_hook_to_the_second) {
    auto first = std::make_unique<Dialog>(calls, desk.frame);
    first->Add("&A", &a, true);
    Show(*first);
    Dialog second(calls, desk.frame);
    second.Add("&B", &b, true);
    Show(second);
    first->CmCancel();
    first.reset();
    EXPECT_TRUE(shared_state().HookHandle != nullptr);
    EXPECT_TRUE(TPropertyDialog::brushGray != nullptr);
    second.CmCancel();
}

TEST_F(PropertyDialogs, a_dialog_that_is_set_up_while_another_that_was_closed_lives_uses_its_hook) {
    Dialog first(calls, desk.frame);
    first.Add("&A", &a, true);
    Show(first);
    const HHOOK hook = shared_state().HookHandle;
    first.CmCancel();
    Dialog second(calls, desk.frame);
    second.Add("&B", &b, true);
    Show(second);
    EXPECT_EQ(hook, shared_state().HookHandle);
    second.CmCancel();
}

TEST_F(PropertyDialogs, a_dialog_without_pages_has_no_strip_and_no_hook) {
    Dialog dialog(calls, desk.frame);
    Show(dialog);
    EXPECT_TRUE(dialog.IsWindow());
    EXPECT_TRUE(dialog.GetTabControl() == nullptr);
    EXPECT_TRUE(shared_state().HookHandle == nullptr);
    EXPECT_EQ(0, dialog.GetEntryCount());
    EXPECT_FALSE(dialog.SelectTab(0));
    EXPECT_FALSE(dialog.SelectNext());
    EXPECT_FALSE(dialog.SelectPrevious());
    EXPECT_TRUE(dialog.GetPageRef(-1) == nullptr);
    dialog.SetActiveColor(owl::TColor::LtRed);
    dialog.SetFixedTabWidth(10);
    dialog.SetWideMarginWidth(10);
    dialog.MoveTabsAfterControl(nullptr);
    owl::TRect rect;
    dialog.SizeTabWnd(rect);
    dialog.Add("&A", &a, true);
    EXPECT_EQ(0, dialog.GetEntryCount());
    dialog.CmOk();
    EXPECT_EQ(IDOK, dialog.result);
}

TEST_F(PropertyDialogs, a_null_page_is_not_added) {
    Dialog dialog(calls, desk.frame);
    dialog.Add("&A", nullptr, true);
    EXPECT_EQ(0, dialog.GetEntryCount());
}

TEST_F(PropertyDialogs, all_open_strips_take_new_colours) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    dialog.UpdateWindow();
    ::ValidateRect(dialog.Strip().GetHandle(), nullptr);
    TPropertyDialog::TabColorChange(nullptr);
    EXPECT_TRUE(::GetUpdateRect(dialog.Strip().GetHandle(), nullptr, FALSE) != FALSE);
}

// Room for the strip

TEST_F(PropertyDialogs, the_strip_stands_above_the_buttons_within_a_margin) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    const owl::TSize margin = MarginOf(dialog);
    EXPECT_EQ(owl::TRect(margin.cx, margin.cy, dialog.GetClientRect().right - margin.cx,
                         PlaceOf(dialog, IDOK).top - margin.cy),
              PlaceOfStrip(dialog));
}

TEST_F(PropertyDialogs, the_strip_stands_beside_buttons_on_the_right) {
    Dialog dialog(calls, desk.frame, Tab::ButtonsOnRight, IDD_SIDE);
    Open(dialog);
    const owl::TSize margin = MarginOf(dialog);
    EXPECT_EQ(owl::TRect(margin.cx, margin.cy, PlaceOf(dialog, IDOK).left - margin.cx,
                         dialog.GetClientRect().bottom - margin.cy),
              PlaceOfStrip(dialog));
}

TEST_F(PropertyDialogs, without_an_ok_button_the_strip_takes_the_room_within_the_margin) {
    Dialog dialog(calls, desk.frame, Tab::SingleHeight, IDD_BARE);
    Open(dialog);
    const owl::TSize margin = MarginOf(dialog);
    EXPECT_EQ(dialog.GetClientRect().InflatedBy(-margin.cx, -margin.cy), PlaceOfStrip(dialog));
}

TEST_F(PropertyDialogs, the_row_of_a_wizard_lies_above_the_dialog) {
    Dialog dialog(calls, desk.frame, Tab::WizardFrame);
    Open(dialog);
    const owl::TRect client = dialog.GetClientRect();
    EXPECT_EQ(owl::TRect(-2, -dialog.Strip().GetTabHeight(), client.right + 2,
                         PlaceOf(dialog, IDOK).top - MarginOf(dialog).cy),
              PlaceOfStrip(dialog));
    EXPECT_EQ(0u, dialog.Strip().GetStyle() & WS_TABSTOP);
}

TEST_F(PropertyDialogs, the_strip_grows_with_the_dialog_if_the_style_says_so) {
    for (const bool grows : {true, false}) {
        Dialog dialog(calls, desk.frame, grows ? Tab::AutoTabResize : Tab::SingleHeight, IDD_RESIZABLE);
        Open(dialog);
        const owl::TRect before = PlaceOfStrip(dialog);
        owl::TRect window = dialog.GetWindowRect();
        window.right += 40;
        window.bottom += 30;
        dialog.MoveWindow(window);
        const owl::TRect after = PlaceOfStrip(dialog);
        EXPECT_EQ(grows ? before.right + 40 : before.right, after.right);
        EXPECT_EQ(grows ? before.bottom + 30 : before.bottom, after.bottom);
        EXPECT_EQ(after.Width() - 3, a.GetWindowRect().Width());
        dialog.CmCancel();
    }
}

TEST_F(PropertyDialogs, the_dialog_stands_in_the_middle_of_its_parent) {
    desk.frame->ShowWindow(SW_SHOW);
    Dialog dialog(calls, desk.frame, Tab::CenterDialog);
    AddPages(dialog);
    // Not shown: a window manager may have a place of its own.
    dialog.Create();
    const owl::TRect frame = desk.frame->GetWindowRect();
    const owl::TRect place = dialog.GetWindowRect();
    EXPECT_EQ(frame.left + (frame.Width() - place.Width()) / 2, place.left);
    EXPECT_EQ(frame.top + (frame.Height() - place.Height()) / 2, place.top);
}

// Fonts and colours

TEST_F(PropertyDialogs, the_small_font_goes_into_all_controls_of_dialog_and_pages) {
    const auto small = static_cast<HFONT>(::GetStockObject(ANSI_VAR_FONT));
    const auto fontOf = [](HWND control) {
        return reinterpret_cast<HFONT>(::SendMessageA(control, WM_GETFONT, 0, 0));
    };
    for (const unsigned long creation : {0ul, static_cast<unsigned long>(Tab::CreateOnDemand)}) {
        Dialog dialog(calls, desk.frame, creation | Tab::UseSmallFont);
        Open(dialog);
        EXPECT_EQ(small, fontOf(dialog.GetDlgItem(IDOK)));
        EXPECT_EQ(small, fontOf(a.GetDlgItem(IDC_FIRST)));
        dialog.SelectTab(1);
        EXPECT_EQ(small, fontOf(b.GetDlgItem(IDC_BOX)));
        EXPECT_NE(small, fontOf(b.GetDlgItem(IDC_NO_PREFIX)));
        dialog.CmCancel();
    }
}

TEST_F(PropertyDialogs, controls_stand_on_the_colour_of_dialogs) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    const HDC dc = ::GetDC(a.GetHandle());
    const auto brushFor = [&](owl::TWindow& window, UINT msg, HWND control) {
        return reinterpret_cast<HBRUSH>(
            window.SendMessage(msg, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control)));
    };
    const HWND label = a.GetDlgItem(IDC_LABEL);
    const HBRUSH grey = *TPropertyDialog::brushGray;
    EXPECT_EQ(grey, brushFor(a, WM_CTLCOLORSTATIC, label));
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), ::GetBkColor(dc));
    EXPECT_EQ(0u, ::GetTextColor(dc));
    ::EnableWindow(label, FALSE);
    EXPECT_EQ(grey, brushFor(a, WM_CTLCOLORSTATIC, label));
    EXPECT_EQ(::GetSysColor(COLOR_GRAYTEXT), ::GetTextColor(dc));
    EXPECT_EQ(grey, brushFor(dialog, WM_CTLCOLORBTN, dialog.GetDlgItem(IDOK)));
    EXPECT_NE(grey, brushFor(a, WM_CTLCOLOREDIT, a.GetDlgItem(IDC_FIRST)));
    ::ReleaseDC(a.GetHandle(), dc);
}

// Commands

class Answer : public owl::TCommandEnabler {
public:
    using TCommandEnabler::TCommandEnabler;
    void Enable(bool enable) override {
        TCommandEnabler::Enable(enable);
        enabled = enable;
    }
    void SetText(const char*) override {}
    void SetCheck(int) override {}

    bool enabled = false;
};

TEST_F(PropertyDialogs, a_command_goes_to_the_selected_page_and_then_to_the_dialog) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    dialog.SendMessage(WM_COMMAND, CM_PAGE);
    EXPECT_EQ(Calls{"command a"}, Asked());
    dialog.SelectTab(2);
    Asked();
    dialog.SendMessage(WM_COMMAND, CM_PAGE);
    dialog.SendMessage(WM_COMMAND, CM_DIALOG);
    EXPECT_EQ((Calls{"command c", "command dialog"}), Asked());
}

TEST_F(PropertyDialogs, a_command_that_reaches_the_strip_is_the_dialogs) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    dialog.Strip().SendMessage(WM_COMMAND, CM_DIALOG);
    EXPECT_EQ(Calls{"command dialog"}, Asked());
}

TEST_F(PropertyDialogs, a_command_of_the_selected_page_is_enabled) {
    Dialog dialog(calls, desk.frame);
    Open(dialog);
    Answer of_page(CM_PAGE, dialog.GetHandle());
    dialog.AskWhetherEnabled(of_page);
    EXPECT_TRUE(of_page.enabled);
    Answer of_nobody(999, dialog.GetHandle());
    dialog.AskWhetherEnabled(of_nobody);
    EXPECT_FALSE(of_nobody.enabled);
}

// As a child

TEST_F(PropertyDialogs, a_dialog_can_be_the_content_of_an_mdi_child) {
    auto* const client = new owl::TMDIClient;
    auto* const frame = new owl::TMDIFrame("mdi", owl::TResId(), client);
    desk.application.SetMainWindow(frame);
    frame->Create();
    frame->ShowWindow(SW_SHOW);
    auto* const dialog = new Dialog(calls, nullptr, Tab::NoMDIClose, IDD_CHILD);
    AddPages(*dialog);
    auto* const child = new owl::TMDIChild(*client, "child", dialog);
    child->Create();
    Pump();
    calls.clear();
    ASSERT_TRUE(dialog->IsWindow());
    EXPECT_TRUE(dialog->SelectTab(1));
    EXPECT_TRUE(b.IsWindowVisible());
    dialog->CmOk();
    dialog->CmCancel();
    EXPECT_TRUE(dialog->IsWindow());
    child->SendMessage(WM_CLOSE);
    Pump();
    EXPECT_TRUE(shared_state().PropertyTabs.IsEmpty());
    EXPECT_FALSE(b.IsWindow());
}

}  // namespace
