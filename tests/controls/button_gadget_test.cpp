#include "lvx/controls/button_gadget.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "controls/toolbar_desk.h"
#include "lvx/text/error.h"
#include "owl/dib.h"
#include "owl/error.h"
#include "owl/memory_dc.h"
#include "owl/window_dc.h"
#include "support/vtable_slot.h"

namespace {

using owl::TPoint;
using owl::TRect;
using owl::TSize;
using toolbars::Button;

constexpr auto Up = LVXButtonGadget::Up;
constexpr auto Down = LVXButtonGadget::Down;
constexpr auto Indeterminate = LVXButtonGadget::Indeterminate;
constexpr auto Exclusive = LVXButtonGadget::Exclusive;
constexpr auto NonExclusive = LVXButtonGadget::NonExclusive;

struct ButtonGadget : testing::Test {
    toolbars::Desk desk;
};

}  // namespace

// Values

TEST_F(ButtonGadget, begins_as_it_is_constructed) {
    const LVXButtonGadget plain(CM_SAVE, CM_SAVE, LVXButtonGadget::Command, false, Up, false);
    EXPECT_EQ(CM_SAVE, plain.GetId());
    EXPECT_EQ(LVXButtonGadget::Command, plain.GetButtonType());
    EXPECT_EQ(Up, plain.GetButtonState());
    EXPECT_FALSE(plain.GetEnabled());
    EXPECT_EQ((owl::TGadget::TBorders{2, 2, 3, 3}), plain.GetBorders());
    const LVXButtonGadget other(CM_GRID, CM_GRID, NonExclusive, true, Indeterminate, true);
    EXPECT_EQ(NonExclusive, other.GetButtonType());
    EXPECT_EQ(Indeterminate, other.GetButtonState());
    EXPECT_TRUE(other.GetEnabled());
}

TEST_F(ButtonGadget, has_the_numbers_of_types_states_and_shadows) {
    EXPECT_EQ(0, LVXButtonGadget::Command + 0);
    EXPECT_EQ(1, Exclusive + 0);
    EXPECT_EQ(2, NonExclusive + 0);
    EXPECT_EQ(0, Up + 0);
    EXPECT_EQ(1, Down + 0);
    EXPECT_EQ(2, Indeterminate + 0);
}

TEST_F(ButtonGadget, has_borders_by_its_shadow) {
    LVXButtonGadget button(CM_SAVE, CM_SAVE);
    button.SetShadowStyle(LVXButtonGadget::SingleShadow);
    EXPECT_EQ((owl::TGadget::TBorders{2, 2, 2, 2}), button.GetBorders());
    TSize size;
    button.GetDesiredSize(size);
    EXPECT_EQ(TSize(16 + 4 - 1, 16 + 4 - 2), size);
    button.SetShadowStyle(LVXButtonGadget::DoubleShadow);
    button.GetDesiredSize(size);
    EXPECT_EQ(TSize(16 + 5 - 1, 16 + 5 - 2), size);
}

TEST_F(ButtonGadget, copies_the_name_of_its_glyph) {
    char name[] = "Square";
    Button button(name, CM_SAVE);
    EXPECT_NE(static_cast<const char*>(name), static_cast<const char*>(button.ResId));
    name[0] = '?';
    EXPECT_STREQ("Square", button.ResId);
    TSize size;
    button.GetDesiredSize(size);
    EXPECT_EQ(TSize(20, 19), size);
}

TEST_F(ButtonGadget, keeps_settings_that_it_does_not_draw_by) {
    LVXButtonGadget button(CM_SAVE, CM_SAVE);
    button.SetNotchCorners(true);
    button.SetAntialiasEdges(true);
    EXPECT_EQ((owl::TGadget::TBorders{2, 2, 3, 3}), button.GetBorders());
}

// Images

TEST_F(ButtonGadget, makes_its_images_when_they_are_needed) {
    Button button(CM_SAVE, CM_SAVE);
    EXPECT_EQ(nullptr, button.CelArray);
    owl::TCelArray* const cels = button.GetCels();
    ASSERT_NE(nullptr, cels);
    EXPECT_EQ(4, cels->NumCels());
    EXPECT_EQ(TSize(16, 16), cels->CelSize());
    EXPECT_EQ(cels, button.GetCels());
    button.BuildCelArray();
    EXPECT_EQ(cels, button.GetCels());
}

TEST_F(ButtonGadget, gives_its_glyph_in_the_users_colours) {
    LVXButtonGadget button(CM_SAVE, CM_SAVE);
    owl::TDib* const glyph = button.GetGlyphDib();
    ASSERT_NE(nullptr, glyph);
    EXPECT_EQ(owl::TColor::FromSystem(COLOR_BTNFACE), glyph->GetPixel(0, 0));
    EXPECT_EQ(owl::TColor::FromSystem(COLOR_BTNTEXT), glyph->GetPixel(4, 4));
    EXPECT_EQ(owl::TColor::FromSystem(COLOR_BTNHIGHLIGHT), glyph->GetPixel(6, 5));
    EXPECT_EQ(owl::TColor(255, 0, 0), glyph->GetPixel(7, 6));
    button.ReleaseGlyphDib(glyph);
}

TEST_F(ButtonGadget, takes_glyphs_up_to_the_size_of_the_mask) {
    Button largest(IDB_LARGEST, 1);
    ASSERT_NE(nullptr, largest.GetCels());
    EXPECT_EQ(TSize(128, 512), largest.GetCels()->CelSize());
    EXPECT_EQ(128, Button::GlyphMask.Width());
    EXPECT_EQ(512, Button::GlyphMask.Height());
    EXPECT_EQ(1, Button::GlyphMask.BitsPixel());
    Button wide(IDB_TOO_WIDE, 1);
    EXPECT_THROW(wide.GetCels(), lvx::runtime_error);
    EXPECT_EQ(nullptr, wide.CelArray);
    EXPECT_THROW(LVXButtonGadget(IDB_TOO_HIGH, 1).GetCels(), lvx::runtime_error);
}

TEST_F(ButtonGadget, tells_that_its_glyph_is_missing) {
    LVXButtonGadget button("no such picture", CM_SAVE);
    EXPECT_THROW(button.GetCels(), owl::TXGdi);
    EXPECT_THROW(button.GetGlyphDib(), owl::TXGdi);
}

TEST_F(ButtonGadget, without_a_glyph_is_an_empty_frame) {
    auto* const button = desk.Add(new Button(owl::TResId(), 77));
    EXPECT_EQ(nullptr, button->GetCels());
    EXPECT_EQ(nullptr, button->GetGlyphDib());
    button->ReleaseGlyphDib(nullptr);
    button->BuildCelArray();
    TSize size;
    button->GetDesiredSize(size);
    EXPECT_EQ(TSize(4, 3), size);
    desk.Show();
    EXPECT_LT(0, button->paints);
}

TEST_F(ButtonGadget, draws_by_the_images_of_the_host) {
    // Two rows of four images, each of one colour.
    const owl::TScreenDC screen;
    owl::TCelArray cels(new owl::TBitmap(screen, 4 * 10, 2 * 12), 4, TSize(10, 12));
    {
        owl::TMemoryDC dc;
        dc.SelectObject(static_cast<const owl::TBitmap&>(cels));
        for (int row = 0; row < 2; ++row) {
            for (int cel = 0; cel < 4; ++cel) {
                dc.FillRect(TRect(cel * 10, row * 12, cel * 10 + 10, row * 12 + 12),
                            owl::TBrush(owl::TColor(50 * row + 100, 0, 50 * cel)));
            }
        }
    }
    {
        toolbars::Desk& shown = desk;
        Button* const upper = shown.Add(new Button(&cels, 0, 1));
        Button* const lower = shown.Add(new Button(&cels, 12, 2));
        EXPECT_TRUE(upper->ResId.IsNull());
        EXPECT_EQ(&cels, upper->GetCels());
        EXPECT_EQ(nullptr, upper->GetGlyphDib());
        upper->BuildCelArray();
        shown.Show();
        EXPECT_EQ(TSize(14, 15), upper->GetBounds().Size());
        const HDC dc = ::GetDC(shown.bar->GetHandle());
        const TPoint first = shown.MiddleOf(*upper);
        const TPoint second = shown.MiddleOf(*lower);
        EXPECT_EQ(RGB(100, 0, 0), ::GetPixel(dc, first.x, first.y));
        EXPECT_EQ(RGB(150, 0, 0), ::GetPixel(dc, second.x, second.y));
        lower->SetEnabled(false);
        EXPECT_EQ(RGB(150, 0, 50), ::GetPixel(dc, second.x, second.y));
        upper->SetButtonState(Down);
        EXPECT_EQ(RGB(100, 0, 150), ::GetPixel(dc, first.x, first.y));
        ::ReleaseDC(shown.bar->GetHandle(), dc);
        delete shown.bar->Remove(*upper);
        delete shown.bar->Remove(*lower);
    }
    EXPECT_EQ(4, cels.NumCels());
}

TEST_F(ButtonGadget, stands_in_the_middle_of_larger_bounds) {
    Button button(CM_SAVE, CM_SAVE);
    ASSERT_NE(nullptr, button.GetCels());
    button.SetBounds(TRect(10, 10, 50, 40));
    // 40 less 5 of the borders, less 16, halved; and the same of 30.
    EXPECT_EQ(TPoint(2 + 19 / 2, 2 + 9 / 2), button.BitmapOrigin);
    button.SetBounds(TRect(10, 10, 20, 20));
    // 5 less 16, halved towards 0.
    EXPECT_EQ(TPoint(2 - 5, 2 - 5), button.BitmapOrigin);
}

TEST_F(ButtonGadget, of_larger_bounds_shows_nothing_of_the_next_image) {
    Button* const button = desk.Add(new Button(CM_SAVE, CM_SAVE));
    desk.Show();
    button->SetBounds(TRect(100, 0, 160, 20));
    button->SetButtonState(Indeterminate);
    button->SetEnabled(true);
    const HDC dc = ::GetDC(desk.bar->GetHandle());
    for (int x = 100 + 2 + 15; x < 100 + 60 - 2; ++x) {
        EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), ::GetPixel(dc, x, 8)) << x;
    }
    ::ReleaseDC(desk.bar->GetHandle(), dc);
}

// States and groups

namespace {

/// Left, centre, right: a group. The grid: a toggle. Top: alone, as the toggle stands between.
struct ButtonGroup : ButtonGadget {
    ButtonGroup()
        : left(desk.Add(CM_LEFT, Exclusive)),
          centre(desk.Add(CM_CENTRE, Exclusive)),
          right(desk.Add(CM_RIGHT, Exclusive)),
          grid(desk.Add(CM_GRID, NonExclusive)),
          top(desk.Add(CM_TOP, Exclusive)) {}

    std::string States() const {
        std::string states;
        for (const Button* button : {left, centre, right, grid, top}) {
            states += static_cast<char>('0' + button->GetButtonState());
        }
        return states;
    }

    Button* left;
    Button* centre;
    Button* right;
    Button* grid;
    Button* top;
};

}  // namespace

TEST_F(ButtonGroup, has_one_down_at_most) {
    desk.Show();
    left->SetButtonState(Down);
    EXPECT_EQ("10000", States());
    centre->SetButtonState(Down);
    EXPECT_EQ("01000", States());
    right->SetButtonState(Down);
    EXPECT_EQ("00100", States());
    centre->SetButtonState(Down);
    EXPECT_EQ("01000", States());
}

TEST_F(ButtonGroup, ends_at_a_button_of_another_type) {
    top->SetButtonState(Down);
    grid->SetButtonState(Down);
    right->SetButtonState(Down);
    EXPECT_EQ("00111", States());
    left->SetButtonState(Down);
    EXPECT_EQ("10011", States());
    top->SetButtonState(Up);
    top->SetButtonState(Down);
    EXPECT_EQ("10011", States());
}

TEST_F(ButtonGroup, ends_at_a_separator) {
    desk.bar->Insert(*new owl::TSeparatorGadget, owl::TGadgetWindow::After, left);
    left->SetButtonState(Down);
    centre->SetButtonState(Down);
    EXPECT_EQ("11000", States());
    right->SetButtonState(Down);
    EXPECT_EQ("10100", States());
}

TEST_F(ButtonGroup, leaves_the_undecided_alone) {
    left->SetButtonState(Indeterminate);
    centre->SetButtonState(Down);
    EXPECT_EQ("21000", States());
}

TEST_F(ButtonGroup, has_nobody_down_when_the_one_goes_up) {
    left->SetButtonState(Down);
    left->SetButtonState(Up);
    EXPECT_EQ("00000", States());
}

TEST_F(ButtonGroup, paints_who_goes_up) {
    desk.Show();
    left->SetButtonState(Down);
    const int before = left->paints;
    centre->CheckExclusively();
    EXPECT_EQ(before + 1, left->paints);
    EXPECT_EQ("01000", States());
}

TEST_F(ButtonGroup, is_of_one_outside_of_bars) {
    Button alone(CM_LEFT, CM_LEFT, Exclusive);
    alone.CheckExclusively();
    EXPECT_EQ(Down, alone.GetButtonState());
    alone.CheckExclusively();
    EXPECT_EQ(Down, alone.GetButtonState());
    alone.Activate(TPoint());
    alone.CommandEnable();
    EXPECT_EQ(Down, alone.GetButtonState());
}

TEST_F(ButtonGroup, goes_by_clicks) {
    desk.Show();
    desk.frame->TakeCommands();
    desk.Click(*centre);
    EXPECT_EQ("01000", States());
    desk.Click(*right);
    EXPECT_EQ("00100", States());
    EXPECT_EQ((std::vector<int>{CM_CENTRE, CM_RIGHT}), desk.frame->TakeCommands());
}

TEST_F(ButtonGroup, gives_the_command_of_who_is_down_again) {
    desk.Show();
    desk.Click(*left);
    desk.Click(*left);
    EXPECT_EQ("10000", States());
    EXPECT_EQ((std::vector<int>{CM_LEFT, CM_LEFT}), desk.frame->TakeCommands());
}

TEST_F(ButtonGroup, has_toggles_that_go_to_and_fro) {
    desk.Show();
    desk.Click(*grid);
    EXPECT_EQ(Down, grid->GetButtonState());
    desk.Click(*grid);
    EXPECT_EQ(Up, grid->GetButtonState());
    EXPECT_EQ((std::vector<int>{CM_GRID, CM_GRID}), desk.frame->TakeCommands());
}

TEST_F(ButtonGroup, has_toggles_that_come_up_from_undecided) {
    desk.Show();
    grid->SetButtonState(Indeterminate);
    desk.Click(*grid);
    EXPECT_EQ(Up, grid->GetButtonState());
}

TEST_F(ButtonGadget, that_has_the_state_already_is_not_painted) {
    Button* const button = desk.Add(CM_SAVE);
    desk.Show();
    const int before = button->paints;
    button->SetButtonState(Up);
    EXPECT_EQ(before, button->paints);
    button->SetButtonState(Down);
    EXPECT_EQ(before + 1, button->paints);
    button->SetButtonState(Down);
    EXPECT_EQ(before + 1, button->paints);
}

// Mouse and commands

TEST_F(ButtonGadget, gives_its_command_when_it_is_clicked) {
    Button* const button = desk.Add(CM_SAVE);
    desk.Show();
    ASSERT_TRUE(desk.Press(*button));
    EXPECT_TRUE(desk.frame->commands.empty());
    ASSERT_TRUE(desk.Release(*button));
    EXPECT_TRUE(desk::PumpUntil([&] { return !desk.frame->commands.empty(); }));
    EXPECT_EQ(std::vector<int>{CM_SAVE}, desk.frame->TakeCommands());
    EXPECT_EQ(Up, button->GetButtonState());
}

TEST_F(ButtonGadget, takes_a_press_back_that_is_drawn_off_it) {
    Button* const button = desk.Add(CM_GRID, NonExclusive);
    desk.Show();
    ASSERT_TRUE(desk.Press(*button));
    desk.MoveOff();
    EXPECT_TRUE(desk::PumpUntil([&] { return !button->Pressed; }));
    desk.Release(*button);
    desk.Pump();
    EXPECT_TRUE(desk.frame->commands.empty());
    EXPECT_EQ(Up, button->GetButtonState());
}

TEST_F(ButtonGadget, goes_down_again_when_the_mouse_comes_back) {
    Button* const button = desk.Add(CM_SAVE);
    desk.Show();
    ASSERT_TRUE(desk.Press(*button));
    desk.MoveOff();
    ASSERT_TRUE(desk::PumpUntil([&] { return !button->Pressed; }));
    desk.MoveTo(*button);
    ASSERT_TRUE(desk::PumpUntil([&] { return button->Pressed; }));
    desk.Release(*button);
    EXPECT_TRUE(desk::PumpUntil([&] { return !desk.frame->commands.empty(); }));
}

TEST_F(ButtonGadget, stays_up_under_a_mouse_that_holds_another) {
    Button* const first = desk.Add(CM_SAVE);
    Button* const second = desk.Add(CM_GRID);
    desk.Show();
    ASSERT_TRUE(desk.Press(*first));
    desk.MoveTo(*second);
    ASSERT_TRUE(desk::PumpUntil([&] { return !first->Pressed; }));
    EXPECT_FALSE(second->Pressed);
    desk.Release(*first);
    desk.Pump();
    EXPECT_TRUE(desk.frame->commands.empty());
}

TEST_F(ButtonGadget, that_is_disabled_gives_no_command) {
    Button* const button = desk.Add(CM_SAVE);
    desk.frame->disabled = {CM_SAVE};
    desk.Show();
    desk.bar->IdleAction(0);
    ASSERT_FALSE(button->GetEnabled());
    desk.MoveTo(*button);
    mouse::PressLeft();
    desk.Pump();
    EXPECT_FALSE(button->Pressed);
    mouse::ReleaseLeft();
    desk.Pump();
    EXPECT_TRUE(desk.frame->commands.empty());
}

TEST_F(ButtonGadget, that_is_disabled_while_it_is_held_gives_no_command) {
    Button* const button = desk.Add(CM_GRID, NonExclusive);
    desk.Show();
    desk.frame->disabled = {CM_GRID};
    ASSERT_TRUE(desk.Press(*button));
    button->SetEnabled(false);
    desk.Release(*button);
    desk.Pump();
    EXPECT_TRUE(desk.frame->commands.empty());
}

TEST_F(ButtonGadget, comes_up_when_the_mouse_is_taken_away) {
    Button* const button = desk.Add(CM_SAVE);
    desk.Show();
    ASSERT_TRUE(desk.Press(*button));
    ::SetCapture(desk.frame->GetHandle());
    EXPECT_TRUE(desk::PumpUntil([&] { return !button->Pressed; }));
    ::ReleaseCapture();
    mouse::ReleaseLeft();
    desk.Pump();
    EXPECT_TRUE(desk.frame->commands.empty());
}

TEST_F(ButtonGadget, tells_what_it_does_while_the_mouse_is_over_it) {
    Button* const button = desk.Add(CM_SAVE);
    desk.Show();
    desk.MoveTo(*button);
    EXPECT_TRUE(desk::PumpUntil([&] { return desk.bar->GetHintCommand() == CM_SAVE; }));
    desk.MoveOff();
    EXPECT_TRUE(desk::PumpUntil([&] { return desk.bar->GetHintCommand() == -1; }));
    EXPECT_EQ((std::vector<std::string>{"401 Writes the drawing to its file", "-1 "}), desk.frame->hints);
}

TEST_F(ButtonGadget, can_tell_what_it_does_while_it_is_held) {
    Button* const button = desk.Add(CM_SAVE);
    desk.bar->SetHintMode(owl::TGadgetWindow::PressHints);
    desk.Show();
    desk.MoveTo(*button);
    desk.Pump();
    EXPECT_TRUE(desk.frame->hints.empty());
    ASSERT_TRUE(desk.Press(*button));
    EXPECT_EQ(CM_SAVE, desk.bar->GetHintCommand());
    desk.MoveOff();
    EXPECT_TRUE(desk::PumpUntil([&] { return desk.bar->GetHintCommand() == -1; }));
    desk.Release(*button);
}

TEST_F(ButtonGadget, can_be_quiet) {
    Button* const button = desk.Add(CM_SAVE);
    desk.bar->SetHintMode(owl::TGadgetWindow::NoHints);
    desk.Show();
    desk.Click(*button);
    EXPECT_TRUE(desk.frame->hints.empty());
}

// Enabling

TEST_F(ButtonGadget, asks_whether_its_command_is_enabled_and_checked) {
    Button* const save = desk.Add(CM_SAVE);
    Button* const grid = desk.Add(CM_GRID, NonExclusive);
    desk.Show();
    desk.frame->disabled = {CM_SAVE};
    desk.frame->grid = owl::TCommandEnabler::Checked;
    desk.frame->asked.clear();
    desk.program.IdleAction(0);
    EXPECT_EQ((std::vector<int>{CM_SAVE, CM_GRID}), desk.frame->asked);
    EXPECT_FALSE(save->GetEnabled());
    EXPECT_TRUE(grid->GetEnabled());
    EXPECT_EQ(Down, grid->GetButtonState());
    desk.frame->disabled.clear();
    desk.frame->grid = owl::TCommandEnabler::Indeterminate;
    desk.program.IdleAction(0);
    EXPECT_TRUE(save->GetEnabled());
    EXPECT_EQ(Indeterminate, grid->GetButtonState());
}

TEST_F(ButtonGadget, hands_the_answers_of_its_enabler_on) {
    Button button(CM_SAVE, CM_SAVE);
    LVXButtonGadgetEnabler enabler(nullptr, &button);
    EXPECT_EQ(static_cast<UINT>(CM_SAVE), enabler.GetId());
    EXPECT_FALSE(enabler.GetHandled());
    enabler.Enable(false);
    EXPECT_TRUE(enabler.GetHandled());
    EXPECT_FALSE(button.GetEnabled());
    enabler.SetText("nothing");
    enabler.SetText(nullptr);
    enabler.SetCheck(Down);
    EXPECT_EQ(Down, button.GetButtonState());
    enabler.SetCheck(Indeterminate);
    EXPECT_EQ(Indeterminate, button.GetButtonState());
}

TEST_F(ButtonGadget, has_its_virtual_operations_in_order) {
    using lvx_test::slot_of;
    const auto first = slot_of(&LVXButtonGadget::BeginPressed);
    EXPECT_EQ(slot_of(&owl::TGadget::RButtonUp) + 1, first);
    EXPECT_EQ(first + 1, slot_of(&LVXButtonGadget::CancelPressed));
    EXPECT_EQ(first + 2, slot_of(&LVXButtonGadget::Activate));
}
