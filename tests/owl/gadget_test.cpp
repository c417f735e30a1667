#include "owl/gadget.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>

#include "tests/owl/gadget_probe.h"
#include "tests/owl/surface.h"

namespace {

using gadgets::Calls;
using gadgets::Probe;
using owl::TGadget;
using owl::TPoint;
using owl::TRect;
using owl::TSize;

TSize DesiredSizeOf(TGadget& gadget) {
    TSize size(999, 999);
    gadget.GetDesiredSize(size);
    return size;
}

/// 12 by 8 pixels with the border of a style on a surface of its own.
struct Border {
    explicit Border(TGadget::TBorderStyle style) : surface(12, 8), gadget(1, style) {
        gadget.SetBounds(TRect(100, 50, 112, 58));
        gadget.Paint(surface.dc);
    }
    owl_test::Surface surface;
    TGadget gadget;
};

COLORREF Colour(int index) {
    return ::GetSysColor(index);
}

struct Placed : testing::Test {
    Placed() { bars.Show(); }
    gadgets::BarDesk<> bars;
};

TEST(Gadget, is_enabled_empty_and_in_no_bar_at_first) {
    TGadget gadget(7);
    EXPECT_EQ(7, gadget.GetId());
    EXPECT_TRUE(gadget.GetEnabled());
    EXPECT_EQ(nullptr, gadget.GetGadgetWindow());
    EXPECT_EQ(nullptr, gadget.NextGadget());
    EXPECT_EQ(TRect(), gadget.GetBounds());
    EXPECT_EQ(TSize(0, 0), DesiredSizeOf(gadget));
    EXPECT_EQ(TGadget::None, gadget.GetBorderStyle());
}

TEST(Gadget, outside_of_bars_does_nothing_when_it_is_painted_anew_or_pressed) {
    TGadget gadget;
    gadget.Invalidate();
    gadget.InvalidateRect(TRect(0, 0, 1, 1));
    gadget.Update();
    gadget.LButtonDown(0, TPoint());
    gadget.LButtonUp(0, TPoint());
    gadget.SetEnabled(false);
    EXPECT_FALSE(gadget.GetEnabled());
}

TEST(Gadget, wants_room_for_its_borders_and_margins) {
    TGadget gadget;
    gadget.SetBorders({2, 3, 4, 5});
    EXPECT_EQ(TSize(6, 8), DesiredSizeOf(gadget));
    gadget.SetMargins({10, 20, 30, 40});
    EXPECT_EQ(TSize(46, 68), DesiredSizeOf(gadget));
    EXPECT_EQ((TGadget::TBorders{2, 3, 4, 5}), gadget.GetBorders());
    EXPECT_EQ((TGadget::TMargins{10, 20, 30, 40}), gadget.GetMargins());
}

TEST(Gadget, has_its_inside_within_borders_and_margins) {
    TGadget gadget;
    gadget.SetBounds(TRect(100, 200, 150, 240));
    gadget.SetBorders({2, 3, 4, 5});
    gadget.SetMargins({10, 6, 7, 8});
    EXPECT_EQ(TRect(12, 9, 39, 27), gadget.GetInnerRect());
    TRect rect;
    gadget.GetInnerRect(rect);
    EXPECT_EQ(TRect(12, 9, 39, 27), rect);
}

TEST(Gadget, has_borders_as_wide_as_their_style) {
    TGadget gadget(0, TGadget::Embossed);
    EXPECT_EQ((TGadget::TBorders{2, 2, 2, 2}), gadget.GetBorders());
    for (const auto style : {TGadget::Plain, TGadget::Raised, TGadget::Recessed}) {
        gadget.SetBorderStyle(style);
        EXPECT_EQ((TGadget::TBorders{1, 1, 1, 1}), gadget.GetBorders());
        EXPECT_EQ(style, gadget.GetBorderStyle());
    }
    gadget.SetBorderStyle(TGadget::None);
    EXPECT_EQ(TGadget::TBorders(), gadget.GetBorders());
}

TEST(Gadget, has_the_points_of_its_rectangle) {
    TGadget gadget;
    gadget.SetBounds(TRect(100, 200, 110, 205));
    EXPECT_TRUE(gadget.PtIn(TPoint(0, 0)));
    EXPECT_TRUE(gadget.PtIn(TPoint(9, 4)));
    EXPECT_FALSE(gadget.PtIn(TPoint(10, 4)));
    EXPECT_FALSE(gadget.PtIn(TPoint(9, 5)));
    EXPECT_FALSE(gadget.PtIn(TPoint(-1, 0)));
}

TEST(Gadget, without_a_border_paints_nothing) {
    Border border(TGadget::None);
    EXPECT_EQ(std::string::npos, border.surface.Picture().find_first_not_of(".\n"));
}

TEST(Gadget, with_a_plain_border_paints_a_line_all_around) {
    Border border(TGadget::Plain);
    const COLORREF line = Colour(COLOR_WINDOWFRAME);
    for (int x = 0; x < 12; ++x) {
        EXPECT_EQ(line, border.surface.At(x, 0));
        EXPECT_EQ(line, border.surface.At(x, 7));
    }
    for (int y = 0; y < 8; ++y) {
        EXPECT_EQ(line, border.surface.At(0, y));
        EXPECT_EQ(line, border.surface.At(11, y));
    }
    EXPECT_EQ(RGB(255, 255, 255), border.surface.At(1, 1));
    EXPECT_EQ(RGB(255, 255, 255), border.surface.At(10, 6));
}

TEST(Gadget, that_is_raised_is_lit_from_the_upper_left) {
    Border border(TGadget::Raised);
    EXPECT_EQ(Colour(COLOR_BTNHIGHLIGHT), border.surface.At(5, 0));
    EXPECT_EQ(Colour(COLOR_BTNHIGHLIGHT), border.surface.At(0, 4));
    EXPECT_EQ(Colour(COLOR_BTNSHADOW), border.surface.At(5, 7));
    EXPECT_EQ(Colour(COLOR_BTNSHADOW), border.surface.At(11, 4));
    EXPECT_EQ(RGB(255, 255, 255), border.surface.At(5, 4));
}

TEST(Gadget, that_is_recessed_is_lit_the_other_way_round) {
    Border border(TGadget::Recessed);
    EXPECT_EQ(Colour(COLOR_BTNSHADOW), border.surface.At(5, 0));
    EXPECT_EQ(Colour(COLOR_BTNSHADOW), border.surface.At(0, 4));
    EXPECT_EQ(Colour(COLOR_BTNHIGHLIGHT), border.surface.At(5, 7));
    EXPECT_EQ(Colour(COLOR_BTNHIGHLIGHT), border.surface.At(11, 4));
}

TEST(Gadget, that_is_embossed_has_a_groove_around_it) {
    Border border(TGadget::Embossed);
    EXPECT_EQ(Colour(COLOR_BTNSHADOW), border.surface.At(5, 0));
    EXPECT_EQ(Colour(COLOR_BTNHIGHLIGHT), border.surface.At(5, 1));
    EXPECT_EQ(Colour(COLOR_BTNSHADOW), border.surface.At(5, 6));
    EXPECT_EQ(Colour(COLOR_BTNHIGHLIGHT), border.surface.At(5, 7));
    EXPECT_EQ(RGB(255, 255, 255), border.surface.At(5, 4));
}

TEST(Gadget, tells_when_its_bounds_have_changed_and_only_then) {
    Probe gadget;
    gadget.SetBounds(TRect(1, 2, 3, 4));
    EXPECT_EQ(Calls{"moved"}, gadget.Take());
    gadget.SetBounds(TRect(1, 2, 3, 4));
    EXPECT_EQ(Calls(), gadget.Take());
}

TEST(Gadget, asks_about_its_command_the_first_time_behind_a_message) {
    Probe gadget;
    EXPECT_FALSE(gadget.IdleAction(0));
    EXPECT_EQ(Calls{"enable?"}, gadget.Take());
    EXPECT_FALSE(gadget.IdleAction(1));
    EXPECT_EQ(Calls(), gadget.Take());
}

TEST_F(Placed, gadget_that_is_enabled_or_disabled_is_painted_at_once) {
    Probe* gadget = bars.Add(1);
    bars.bar->UpdateWindow();
    const int before = gadget->paints;
    ASSERT_LT(0, before);
    gadget->SetEnabled(false);
    EXPECT_EQ(before + 1, gadget->paints);
    gadget->SetEnabled(false);
    EXPECT_EQ(before + 1, gadget->paints);
    gadget->SetEnabled(true);
    EXPECT_EQ(before + 2, gadget->paints);
}

TEST_F(Placed, gadget_has_a_part_of_the_bar_painted_anew) {
    Probe* gadget = bars.Add(1);
    bars.bar->UpdateWindow();
    gadget->InvalidateRect(TRect(3, 4, 10, 11));
    RECT update{};
    ::GetUpdateRect(bars.bar->GetHandle(), &update, FALSE);
    EXPECT_EQ(TRect(5, 6, 12, 13), TRect(update));
    gadget->Update();
    EXPECT_FALSE(::GetUpdateRect(bars.bar->GetHandle(), &update, FALSE));
}

TEST_F(Placed, gadget_that_is_moved_has_both_places_painted_anew) {
    Probe* gadget = bars.Add(1);
    bars.bar->UpdateWindow();
    gadget->SetBounds(TRect(50, 2, 70, 18));
    RECT update{};
    ::GetUpdateRect(bars.bar->GetHandle(), &update, FALSE);
    EXPECT_EQ(TRect(2, 2, 70, 18), TRect(update));
}

TEST_F(Placed, gadget_that_is_deleted_takes_itself_out) {
    Probe* gadget = bars.Add(1);
    Probe* next = bars.Add(2);
    EXPECT_EQ(next, gadget->NextGadget());
    EXPECT_EQ(22, next->GetBounds().left);
    delete gadget;
    EXPECT_EQ(next, bars.bar->FirstGadget());
    EXPECT_EQ(1U, bars.bar->NumGadgets());
    EXPECT_EQ(2, next->GetBounds().left);
}

// Where an operation stands in the table of virtual functions, behind the two entries of the destructor. The
// compiler's representation of a pointer to it is one more than its offset.
template <class Operation>
std::ptrdiff_t SlotOf(Operation operation) {
    std::ptrdiff_t offset = 0;
    static_assert(sizeof operation >= sizeof offset);
    std::memcpy(&offset, &operation, sizeof offset);
    return (offset - 1) / static_cast<std::ptrdiff_t>(sizeof(void*)) - 2;
}

// Gadgets of modules that were built before go by it.
TEST(Gadget, keeps_its_operations_in_their_order) {
    const std::ptrdiff_t slots[] = {
        SlotOf(&TGadget::SetEnabled),  SlotOf(&TGadget::GetDesiredSize), SlotOf(&TGadget::SetBounds),
        SlotOf(&TGadget::IdleAction),  SlotOf(&TGadget::CommandEnable),  SlotOf(&TGadget::SysColorChange),
        SlotOf(&TGadget::Created),     SlotOf(&TGadget::Inserted),       SlotOf(&TGadget::Moved),
        SlotOf(&TGadget::Removed),     SlotOf(&TGadget::PtIn),           SlotOf(&TGadget::Paint),
        SlotOf(&TGadget::PaintBorder), SlotOf(&TGadget::MouseEnter),     SlotOf(&TGadget::MouseMove),
        SlotOf(&TGadget::MouseLeave),  SlotOf(&TGadget::LButtonDown),    SlotOf(&TGadget::RButtonDown),
        SlotOf(&TGadget::LButtonUp),   SlotOf(&TGadget::RButtonUp)};
    std::ptrdiff_t expected = 0;
    for (const std::ptrdiff_t slot : slots)
        EXPECT_EQ(expected++, slot);
}

}  // namespace
