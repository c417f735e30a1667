#include "lvx/controls/custom_colour_dialog.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "controls/colour_desk.h"
#include "lvx/text/error.h"
#include "runtime/help_control_order.h"
#include "support/drag.h"
#include "tests/owl/driven_dialog.h"

namespace {

using lvx_test::Channels;
using lvx_test::ColourDialog;
using lvx_test::Press;
using lvx_test::Texts;
using lvx_test::Type;

using CustomColourDialog = lvx_test::ColourDesk;

const Channels at_first = {192, 64, 32, 12, 44, 71};

}  // namespace

TEST_F(CustomColourDialog, shows_the_colour_in_all_of_its_controls) {
    Show();
    ExpectShown(at_first);
}

TEST_F(CustomColourDialog, has_bars_of_each_scale) {
    Show();
    const int most[] = {255, 255, 255, 360, 100, 100};
    for (std::size_t i = 0; i < std::size(most); ++i) {
        int low = -1;
        int high = -1;
        ::GetScrollRange(dialog->GetDlgItem(lvx_test::bar_ids[i]), SB_CTL, &low, &high);
        EXPECT_EQ(0, low);
        EXPECT_EQ(most[i], high) << i;
    }
}

TEST_F(CustomColourDialog, stands_in_the_middle_of_its_parent) {
    Show();
    const owl::TRect frame = desk.frame->GetWindowRect();
    const owl::TRect place = dialog->GetWindowRect();
    EXPECT_EQ(frame.left + (frame.Width() - place.Width()) / 2, place.left);
    EXPECT_EQ(frame.top + (frame.Height() - place.Height()) / 2, place.top);
}

// Typing

TEST_F(CustomColourDialog, beeps_at_the_digit_that_is_too_much) {
    Show();
    Focus(IDC_COLOUR_RED_EDIT);
    dialog->SelectIn(IDC_COLOUR_RED_EDIT, 0, -1);
    Type("300");
    EXPECT_EQ("30", dialog->Field(IDC_COLOUR_RED_EDIT));
    EXPECT_EQ(1, beeps.Count());
    EXPECT_EQ(30, colour.Red());
}

TEST_F(CustomColourDialog, takes_100_for_the_lightness_and_no_more) {
    Show();
    Focus(IDC_COLOUR_LIGHTNESS_EDIT);
    dialog->SelectIn(IDC_COLOUR_LIGHTNESS_EDIT, 0, -1);
    Type("100");
    EXPECT_EQ("100", dialog->Field(IDC_COLOUR_LIGHTNESS_EDIT));
    EXPECT_EQ(owl::TColor(255, 255, 255).PaletteRelative(), colour);
    EXPECT_EQ(0, beeps.Count());
    dialog->SelectIn(IDC_COLOUR_LIGHTNESS_EDIT, 0, -1);
    Type("101");
    EXPECT_EQ("10", dialog->Field(IDC_COLOUR_LIGHTNESS_EDIT));
    EXPECT_EQ(1, beeps.Count());
}

TEST_F(CustomColourDialog, takes_no_minus_sign_and_no_letter) {
    Show();
    Focus(IDC_COLOUR_HUE_EDIT);
    dialog->SelectIn(IDC_COLOUR_HUE_EDIT, 0, -1);
    Type("-x.");
    EXPECT_EQ("12", dialog->Field(IDC_COLOUR_HUE_EDIT));
    EXPECT_EQ(3, beeps.Count());
}

TEST_F(CustomColourDialog, lets_all_others_follow_what_is_typed_and_leaves_the_text_at_the_caret) {
    Show();
    Focus(IDC_COLOUR_RED_EDIT);
    dialog->SelectIn(IDC_COLOUR_RED_EDIT, 0, -1);
    Type("007");
    // Blue-green is left: lightness 71 / 510 = 13.9 %, saturation 57 / 71 = 80.3 %, hue 60 * (2 + 25 / 57).
    EXPECT_EQ((Texts{"007", "64", "32", "146", "14", "80"}), dialog->Fields());
    EXPECT_EQ((Channels{7, 64, 32, 146, 14, 80}), dialog->Bars());
    EXPECT_EQ(std::pair(3, 3), dialog->SelectionOf(IDC_COLOUR_RED_EDIT));
}

TEST_F(CustomColourDialog, takes_each_field_for_its_own_part) {
    const struct {
        int id;
        Channels shown;
    } cases[] = {
        {IDC_COLOUR_RED_EDIT, {0, 64, 32, 150, 13, 100}},     // 64 / 510; 60 * (2 + 32 / 64)
        {IDC_COLOUR_GREEN_EDIT, {192, 0, 32, 350, 38, 100}},  // 192 / 510; 360 - 60 * 32 / 192
        {IDC_COLOUR_BLUE_EDIT, {192, 64, 0, 20, 38, 100}},    // 60 * 64 / 192
        // m2 = 1.71 * 0.44 = 0.7524, m1 = 0.1276: 191.86 and 32.54.
        {IDC_COLOUR_HUE_EDIT, {192, 33, 33, 0, 44, 71}},
        {IDC_COLOUR_LIGHTNESS_EDIT, {0, 0, 0, 12, 0, 71}},
        {IDC_COLOUR_SATURATION_EDIT, {112, 112, 112, 12, 44, 0}},  // 0.44 * 255 = 112.2
    };
    for (const auto& [id, shown] : cases) {
        colour = owl::TColor(192, 64, 32);
        Show();
        Focus(id);
        dialog->SelectIn(id, 0, -1);
        Type("0");
        ExpectShown(shown);
    }
}

TEST_F(CustomColourDialog, selects_the_whole_text_of_the_fields_that_follow) {
    Show();
    Focus(IDC_COLOUR_HUE_EDIT);
    dialog->SelectIn(IDC_COLOUR_HUE_EDIT, 0, -1);
    Type("0");
    for (const int id : lvx_test::edit_ids) {
        const int size = static_cast<int>(dialog->Field(id).size());
        EXPECT_EQ(std::pair(id == IDC_COLOUR_HUE_EDIT ? size : 0, size), dialog->SelectionOf(id)) << id;
    }
}

TEST_F(CustomColourDialog, takes_an_empty_field_for_0) {
    Show();
    Focus(IDC_COLOUR_GREEN_EDIT);
    dialog->SelectIn(IDC_COLOUR_GREEN_EDIT, 0, -1);
    Press({VK_DELETE});
    EXPECT_EQ("", dialog->Field(IDC_COLOUR_GREEN_EDIT));
    EXPECT_EQ(0, colour.Green());
    EXPECT_EQ(0, dialog->Bars()[1]);
}

TEST_F(CustomColourDialog, takes_what_is_pasted_from_beyond_the_scale_for_its_end) {
    const struct {
        const char* text;
        int red;
    } cases[] = {{"999", 255}, {"-5", 0}, {"words", 0}, {"99999999999999999999", 255}, {" 17 mm", 17}};
    Show();
    for (const auto& [text, red] : cases) {
        ::SetDlgItemTextA(dialog->GetHandle(), IDC_COLOUR_RED_EDIT, text);
        EXPECT_EQ(text, dialog->Field(IDC_COLOUR_RED_EDIT));
        EXPECT_EQ(red, colour.Red()) << text;
        EXPECT_EQ(red, dialog->Bars()[0]) << text;
    }
    ::SetDlgItemTextA(dialog->GetHandle(), IDC_COLOUR_HUE_EDIT, "400");
    EXPECT_EQ(360, dialog->Bars()[3]);
}

TEST_F(CustomColourDialog, reads_the_first_40_characters_of_a_field) {
    Show();
    const std::string zeros(39, '0');
    ::SetDlgItemTextA(dialog->GetHandle(), IDC_COLOUR_RED_EDIT, (zeros + "12").c_str());
    EXPECT_EQ(1, colour.Red());
}

// No loop: each field is written once, and tells of it once.
TEST_F(CustomColourDialog, writes_each_field_that_follows_once) {
    Show();
    Focus(IDC_COLOUR_RED_EDIT);
    dialog->SelectIn(IDC_COLOUR_RED_EDIT, 0, -1);
    Type("9");
    EXPECT_EQ((std::vector<int>{103, 105, 107, 110, 114, 112}), dialog->changed);
    dialog->changed.clear();
    Focus(IDC_COLOUR_LIGHTNESS_EDIT);
    dialog->SelectIn(IDC_COLOUR_LIGHTNESS_EDIT, 0, -1);
    Type("9");
    EXPECT_EQ((std::vector<int>{114, 103, 105, 107, 110, 112}), dialog->changed);
    dialog->changed.clear();
    dialog->setRGB(1, 2, 3, 0);
    EXPECT_EQ((std::vector<int>{103, 105, 107, 110, 114, 112}), dialog->changed);
}

TEST_F(CustomColourDialog, leaves_a_grey_its_hue) {
    Show();
    dialog->setRGB(128, 128, 128, 0);
    ExpectShown({128, 128, 128, 12, 50, 0});
    // And so a colour that the grey is made comes back to it: m2 = 2 * 0.5, 60 * 12 / 360 of the way.
    dialog->setHLS(12, 50, 100, 0);
    ExpectShown({255, 51, 0, 12, 50, 100});
}

TEST_F(CustomColourDialog, shows_a_hue_of_360_where_that_is_the_nearest) {
    colour = owl::TColor(255, 0, 1);
    Show();
    ExpectShown({255, 0, 1, 360, 50, 100});
}

TEST_F(CustomColourDialog, writes_no_field_that_is_the_source) {
    Show();
    const struct {
        bool isRgb;
        int source;
        int unwritten;
    } cases[] = {
        {true, 1, IDC_COLOUR_RED_EDIT},
        {true, 2, IDC_COLOUR_GREEN_EDIT},
        {true, 3, IDC_COLOUR_BLUE_EDIT},
        {true, 0, 0},
        {false, 1, IDC_COLOUR_HUE_EDIT},
        {false, 2, IDC_COLOUR_LIGHTNESS_EDIT},
        {false, 3, IDC_COLOUR_SATURATION_EDIT},
        {false, 0, 0},
        {false, 7, 0},
    };
    const Channels orange = {255, 128, 0, 30, 50, 100};
    for (const auto& [isRgb, source, unwritten] : cases) {
        dialog->setRGB(1, 2, 3, 0);
        const std::string before = dialog->Field(unwritten);
        if (isRgb)
            dialog->setRGB(255, 128, 0, source);
        else
            dialog->setHLS(30, 50, 100, source);
        for (std::size_t i = 0; i < orange.size(); ++i) {
            const int id = lvx_test::edit_ids[i];
            EXPECT_EQ(id == unwritten ? before : std::to_string(orange[i]), dialog->Field(id)) << id;
        }
        EXPECT_EQ(orange, dialog->Bars());
    }
}

// Scroll bars

TEST_F(CustomColourDialog, follows_its_bars_under_the_arrow_keys) {
    Show();
    Focus(IDC_COLOUR_RED_BAR);
    Press({VK_RIGHT});
    EXPECT_EQ(193, colour.Red());
    EXPECT_EQ("193", dialog->Field(IDC_COLOUR_RED_EDIT));
    Press({VK_LEFT});
    Press({VK_LEFT});
    EXPECT_EQ(191, colour.Red());
    Press({VK_NEXT});
    EXPECT_EQ(201, colour.Red());
    Press({VK_PRIOR});
    EXPECT_EQ(191, colour.Red());
    Press({VK_HOME});
    EXPECT_EQ(0, colour.Red());
    Press({VK_END});
    EXPECT_EQ(255, colour.Red());
    EXPECT_EQ("255", dialog->Field(IDC_COLOUR_RED_EDIT));
}

TEST_F(CustomColourDialog, takes_each_bar_for_its_own_part) {
    const struct {
        int id;
        Channels shown;
    } cases[] = {
        {IDC_COLOUR_RED_BAR, {0, 64, 32, 150, 13, 100}},
        {IDC_COLOUR_GREEN_BAR, {192, 0, 32, 350, 38, 100}},
        {IDC_COLOUR_BLUE_BAR, {192, 64, 0, 20, 38, 100}},
        {IDC_COLOUR_HUE_BAR, {192, 33, 33, 0, 44, 71}},
        {IDC_COLOUR_LIGHTNESS_BAR, {0, 0, 0, 12, 0, 71}},
        {IDC_COLOUR_SATURATION_BAR, {112, 112, 112, 12, 44, 0}},
    };
    for (const auto& [id, shown] : cases) {
        colour = owl::TColor(192, 64, 32);
        Show();
        dialog->Scroll(id, SB_TOP);
        ExpectShown(shown);
        EXPECT_EQ(6U, dialog->changed.size());
    }
}

TEST_F(CustomColourDialog, does_nothing_when_a_bar_is_moved_to_where_it_is) {
    Show();
    for (const int id : lvx_test::edit_ids)
        dialog->SelectIn(id, 0, 0);
    for (const int id : lvx_test::bar_ids)
        dialog->Scroll(id, SB_ENDSCROLL);
    EXPECT_TRUE(dialog->changed.empty());
    for (const int id : lvx_test::edit_ids)
        EXPECT_EQ(std::pair(0, 0), dialog->SelectionOf(id));
    ExpectShown(at_first);
    // At the end of a bar its arrow leads nowhere.
    dialog->Scroll(IDC_COLOUR_RED_BAR, SB_BOTTOM);
    dialog->changed.clear();
    dialog->Scroll(IDC_COLOUR_RED_BAR, SB_LINEDOWN);
    EXPECT_TRUE(dialog->changed.empty());
}

TEST_F(CustomColourDialog, follows_the_mouse_on_an_arrow_of_a_bar) {
    Show();
    const HWND bar = dialog->GetDlgItem(IDC_COLOUR_BLUE_BAR);
    RECT place{};
    ::GetWindowRect(bar, &place);
    user::Click(place.right - 4, (place.top + place.bottom) / 2);
    EXPECT_TRUE(desk::PumpUntil([&] { return colour.Blue() == 33; }));
    user::Click(place.left + 4, (place.top + place.bottom) / 2);
    EXPECT_TRUE(desk::PumpUntil([&] { return colour.Blue() == 32; }));
    EXPECT_EQ("32", dialog->Field(IDC_COLOUR_BLUE_EDIT));
}

TEST_F(CustomColourDialog, follows_a_thumb_that_is_dragged) {
    Show();
    const HWND bar = dialog->GetDlgItem(IDC_COLOUR_HUE_BAR);
    SCROLLBARINFO info{};
    info.cbSize = sizeof info;
    ::GetScrollBarInfo(bar, OBJID_CLIENT, &info);
    const int y = (info.rcScrollBar.top + info.rcScrollBar.bottom) / 2;
    const int x = info.rcScrollBar.left + (info.xyThumbTop + info.xyThumbBottom) / 2;
    // The system holds the thread that handles messages as long as it thinks that the button is down; a
    // display may lose a release.
    std::atomic<bool> is_free = false;
    std::thread hand([&] {
        user::Drag({x, y}, {x + 30, y});
        while (!user::WaitUntil([&] { return is_free.load(); }, 1000))
            user::ReleaseLeft(x + 30, y);
    });
    EXPECT_TRUE(desk::PumpUntil([&] { return dialog->Bars()[3] > 60; }));
    is_free = true;
    hand.join();
    desk::PumpUntil([] { return false; }, 100);
    const Channels shown = dialog->Bars();
    EXPECT_EQ(lvx_test::AsTexts(shown), dialog->Fields());
    EXPECT_EQ(owl::TColor(shown[0], shown[1], shown[2]).PaletteRelative(), colour);
    EXPECT_EQ(44, shown[4]);
    EXPECT_EQ(71, shown[5]);
}

// The wheel

TEST_F(CustomColourDialog, follows_the_wheel_where_the_focus_is) {
    Show();
    const struct {
        int id;
        std::size_t channel;
    } cases[] = {{IDC_COLOUR_GREEN_BAR, 1}, {IDC_COLOUR_GREEN_EDIT, 1}, {IDC_COLOUR_SATURATION_EDIT, 5}};
    for (const auto& [id, channel] : cases) {
        Focus(id);
        RECT place{};
        ::GetWindowRect(dialog->GetDlgItem(id), &place);
        user::MoveTo(place.left + 3, place.top + 3);
        const int before = dialog->Bars()[channel];
        user::TurnWheel(2);
        EXPECT_TRUE(desk::PumpUntil([&] { return dialog->Bars()[channel] == before + 2; })) << id;
        user::TurnWheel(-3);
        EXPECT_TRUE(desk::PumpUntil([&] { return dialog->Bars()[channel] == before - 1; })) << id;
        EXPECT_EQ(lvx_test::AsTexts(dialog->Bars()), dialog->Fields());
    }
}

TEST_F(CustomColourDialog, adds_parts_of_a_notch_up) {
    Show();
    Focus(IDC_COLOUR_RED_EDIT);
    const auto turn = [&](int delta) { dialog->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, delta)); };
    turn(WHEEL_DELTA / 2);
    EXPECT_EQ(192, colour.Red());
    turn(WHEEL_DELTA / 2);
    EXPECT_EQ(193, colour.Red());
    turn(-WHEEL_DELTA);
    EXPECT_EQ(192, colour.Red());
    turn(-32768);
    EXPECT_EQ(0, colour.Red());
    turn(32767);
    EXPECT_EQ(255, colour.Red());
}

TEST_F(CustomColourDialog, does_nothing_at_the_wheel_if_no_channel_has_the_focus) {
    Show();
    Focus(IDOK);
    dialog->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA));
    ExpectShown(at_first);
}

// Keys of the dialog

TEST_F(CustomColourDialog, is_walked_through_by_tab_in_the_order_that_it_is_read) {
    Show();
    Focus(IDC_COLOUR_RED_EDIT);
    for (const int id : {102, 105, 104, 107, 106, 110, 109, 112, 111, 114, 113, IDOK, IDCANCEL, 103}) {
        Press({VK_TAB});
        EXPECT_EQ(dialog->GetDlgItem(id), ::GetFocus()) << id;
    }
}

TEST_F(CustomColourDialog, gives_a_field_the_focus_by_its_letter) {
    Show();
    const struct {
        WORD key;
        int id;
    } cases[] = {{'G', 105}, {'B', 107}, {'H', 110}, {'S', 112}, {'L', 114}, {'R', 103}};
    for (const auto& [key, id] : cases) {
        Press({VK_MENU, key});
        EXPECT_EQ(dialog->GetDlgItem(id), ::GetFocus()) << id;
    }
}

// The name

TEST_F(CustomColourDialog, has_no_field_for_a_name_if_none_is_asked_for) {
    Show();
    EXPECT_FALSE(::IsWindowVisible(dialog->GetDlgItem(IDC_COLOUR_NAME_LABEL)));
    EXPECT_FALSE(::IsWindowVisible(dialog->GetDlgItem(IDC_COLOUR_NAME_EDIT)));
}

TEST_F(CustomColourDialog, keeps_the_name_by_ok) {
    std::string name = "Brick";
    Show(&name);
    EXPECT_TRUE(::IsWindowVisible(dialog->GetDlgItem(IDC_COLOUR_NAME_LABEL)));
    EXPECT_TRUE(::IsWindowVisible(dialog->GetDlgItem(IDC_COLOUR_NAME_EDIT)));
    EXPECT_EQ("Brick", dialog->Field(IDC_COLOUR_NAME_EDIT));
    Focus(IDC_COLOUR_NAME_EDIT);
    dialog->SelectIn(IDC_COLOUR_NAME_EDIT, 5, 5);
    Type(" red");
    EXPECT_EQ("Brick", name);
    user::Press({VK_RETURN});
    EXPECT_TRUE(desk::PumpUntil([&] { return !dialog->IsWindow(); }));
    EXPECT_EQ("Brick red", name);
}

TEST_F(CustomColourDialog, leaves_the_name_by_cancel_but_not_the_colour) {
    std::string name = "Brick";
    Show(&name);
    ::SetDlgItemTextA(dialog->GetHandle(), IDC_COLOUR_NAME_EDIT, "Tile");
    dialog->setRGB(1, 2, 3, 0);
    user::Press({VK_ESCAPE});
    EXPECT_TRUE(desk::PumpUntil([&] { return !dialog->IsWindow(); }));
    EXPECT_EQ("Brick", name);
    EXPECT_EQ(owl::TColor(1, 2, 3).PaletteRelative(), colour);
}

// Its life

TEST_F(CustomColourDialog, runs_and_tells_how_it_was_closed) {
    const desk::Watchdog watchdog;
    std::string name = "old";
    desk::Driven<ColourDialog> agreed(desk.frame, colour, &name);
    agreed.action = [&] {
        ::SetDlgItemTextA(agreed.GetHandle(), IDC_COLOUR_NAME_EDIT, "new");
        user::Press({VK_RETURN});
    };
    EXPECT_EQ(IDOK, agreed.Execute());
    EXPECT_EQ("new", name);
    desk::Driven<ColourDialog> cancelled(desk.frame, colour, &name);
    cancelled.action = [&] { user::Press({VK_ESCAPE}); };
    EXPECT_EQ(IDCANCEL, cancelled.Execute());
}

// What the fields held when it was closed must not become the colour when it opens again.
TEST_F(CustomColourDialog, opened_again_shows_the_colour_of_now) {
    Show();
    ExpectShown(at_first);
    dialog->Destroy();
    colour = owl::TColor(255, 128, 0);
    dialog->Create();
    ExpectShown({255, 128, 0, 30, 50, 100});
    EXPECT_TRUE(dialog->Sample->IsWindow());
}

TEST_F(CustomColourDialog, without_a_window_takes_a_colour_all_the_same) {
    ColourDialog none(desk.frame, colour);
    none.setRGB(300, -1, 7, 0);
    EXPECT_EQ(owl::TColor(255, 0, 7).PaletteRelative(), colour);
    none.setHLS(120, 50, 100, 0);
    EXPECT_EQ(owl::TColor(0, 255, 0).PaletteRelative(), colour);
    none.Create();
    EXPECT_EQ("255", none.Field(IDC_COLOUR_GREEN_EDIT));
}

// Help

TEST_F(CustomColourDialog, shows_the_help_on_the_control_that_asks) {
    lvx_test::ControlOrder::Forget();
    const lvx_test::HelpControl control("help_control");
    Show();
    Focus(IDC_COLOUR_RED_EDIT);
    Press({VK_F1});
    const HelpCall& call = control.Call();
    EXPECT_EQ(1, call.count);
    EXPECT_EQ(dialog->GetDlgItem(IDC_COLOUR_RED_EDIT), call.window);
    EXPECT_STREQ("SWKHelp.chm::/CustomColour.txt", call.file);
    EXPECT_EQ(0x11U, call.command);
    for (unsigned long id = 101; id <= 119; ++id) {
        EXPECT_EQ(id, call.pairs[2 * (id - 101)]);
        EXPECT_EQ(id, call.pairs[2 * (id - 101) + 1]);
    }
    EXPECT_EQ(0U, call.pairs[38]);
    EXPECT_EQ(0U, call.pairs[39]);
    dialog.reset();
}

TEST_F(CustomColourDialog, answers_the_question_for_help_with_0) {
    lvx_test::ControlOrder::Forget();
    const lvx_test::HelpControl control("help_control");
    Show();
    HELPINFO question{};
    question.cbSize = sizeof question;
    question.iContextType = HELPINFO_WINDOW;
    question.hItemHandle = dialog->GetDlgItem(IDC_COLOUR_HUE_BAR);
    EXPECT_EQ(0, dialog->HandleMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&question)));
    EXPECT_EQ(dialog->GetDlgItem(IDC_COLOUR_HUE_BAR), control.Call().window);
    dialog.reset();
}

TEST_F(CustomColourDialog, shows_no_text_for_a_menu) {
    lvx_test::ControlOrder::Forget();
    const lvx_test::HelpControl control("help_control");
    Show();
    HELPINFO question{};
    question.cbSize = sizeof question;
    question.iContextType = HELPINFO_MENUITEM;
    question.hItemHandle = ::GetSystemMenu(*dialog, FALSE);
    EXPECT_EQ(0, dialog->HandleMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&question)));
    EXPECT_EQ(0, control.Call().count);
    dialog.reset();
}

TEST_F(CustomColourDialog, tells_that_the_system_has_no_help) {
    const lvx_test::ControlOrder order("");
    Show();
    HELPINFO question{};
    question.cbSize = sizeof question;
    question.iContextType = HELPINFO_WINDOW;
    question.hItemHandle = dialog->GetHandle();
    EXPECT_THROW(dialog->HandleMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&question)), lvx::runtime_error);
}
