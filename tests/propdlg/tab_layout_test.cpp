#include "lvx/propdlg/tab_layout.h"

#include <gtest/gtest.h>

#include <climits>
#include <stdexcept>

#include "support/expect_throw.h"
#include "support/paper_strip.h"

namespace {

using lvx::propdlg::NormalisedStyle;
using lvx::propdlg::StripPart;
using lvx::propdlg::TabHeightFor;
using lvx_test::PaperStrip;
using owl::TPoint;
using owl::TRect;

unsigned long normalised(Tab::Style style) {
    return NormalisedStyle(style);
}

// Two rows of two tabs each, 100 pixels wide; client area 300 by 200.
PaperStrip two_rows() {
    PaperStrip strip(Tab::Stacked);
    strip.AddOfWidth(4, 100);
    strip.state.RowCount = 2;
    strip.state.Rows[0] = {0, 1};
    strip.state.Rows[1] = {2, 3};
    return strip;
}

TEST(tab_layout, a_stacked_strip_is_justified_and_does_not_collapse) {
    EXPECT_EQ(0x30ul, normalised(Tab::Stacked | Tab::Collapsing));
    EXPECT_EQ(0x30ul, normalised(Tab::Stacked));
}

TEST(tab_layout, a_wizard_neither_stacks_nor_justifies_nor_has_double_height) {
    EXPECT_EQ(0x4000ul, normalised(Tab::WizardFrame | Tab::Stacked | Tab::Justified | Tab::DoubleHeight));
}

TEST(tab_layout, a_wizard_that_was_to_stack_keeps_collapsing) {
    EXPECT_EQ(0x4008ul, normalised(Tab::WizardFrame | Tab::Stacked | Tab::Collapsing));
}

TEST(tab_layout, other_flags_are_left_alone) {
    EXPECT_EQ(0x7FF9Ful & ~0x4000ul, normalised(0x7FF9Ful & ~0x4000ul));
}

TEST(tab_layout, rows_have_room_for_one_line_or_two) {
    EXPECT_EQ(23, TabHeightFor(Tab::SingleHeight, 13));
    EXPECT_EQ(34, TabHeightFor(Tab::DoubleHeight, 13));
    EXPECT_EQ(10, TabHeightFor(Tab::SingleHeight, 0));
}

TEST(tab_layout, a_new_strip_has_its_starting_values) {
    const lvx::propdlg::TabState state(Tab::Collapsing);
    EXPECT_EQ(0, state.Entries.GetItemsInContainer());
    EXPECT_EQ(0, state.Entries.LowerBound());
    EXPECT_EQ(10u, state.Entries.ArraySize());
    EXPECT_TRUE(state.ActiveColor == owl::TColor::White);
    EXPECT_EQ(64, state.FixedTabWidth);
    EXPECT_EQ(6, state.WideMarginWidth);
    EXPECT_EQ(0, state.Origin);
    EXPECT_EQ(0, state.SelectedTab);
    EXPECT_EQ(0, state.LastSelected);
    EXPECT_FALSE(state.ScrollLeft);
    EXPECT_FALSE(state.ScrollRight);
    EXPECT_TRUE(state.PageRect.IsNull());
    for (int p = 0; p < 20; ++p)
        EXPECT_EQ(p, state.RowOrder[p]);
}

TEST(tab_layout, entries_grow_by_five) {
    PaperStrip strip(Tab::SingleHeight);
    for (int i = 0; i < 11; ++i)
        strip.Add("tab");
    EXPECT_EQ(15u, strip.state.Entries.ArraySize());
}

TEST(tab_layout, the_strip_is_as_high_as_its_rows_less_a_line) {
    EXPECT_EQ(TRect(0, 0, 300, 45), two_rows().Strip());
}

TEST(tab_layout, rows_are_counted_from_the_page_upward) {
    const PaperStrip strip = two_rows();
    EXPECT_EQ(TRect(0, 23, 300, 45), strip.Strip(0));
    EXPECT_EQ(TRect(0, 0, 300, 22), strip.Strip(1));
}

TEST(tab_layout, a_strip_without_rows_ends_above_its_top) {
    EXPECT_EQ(TRect(0, 0, 300, -1), PaperStrip(Tab::Stacked).Strip());
}

TEST(tab_layout, arrows_stand_at_the_bottom_of_the_row_and_share_a_column) {
    const PaperStrip strip(Tab::SingleHeight);
    EXPECT_EQ(TRect(283, 7, 300, 23), strip.Arrows(1));
    EXPECT_EQ(TRect(267, 7, 283, 23), strip.Arrows(0));
    EXPECT_EQ(TRect(267, 7, 300, 23), strip.Arrows(-1));
}

TEST(tab_layout, a_strip_with_an_arrow_ends_eight_pixels_left_of_both) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(2, 50);
    strip.state.ScrollLeft = true;
    EXPECT_EQ(TRect(0, 0, 259, 22), strip.Strip());
    strip.state.ScrollLeft = false;
    strip.state.ScrollRight = true;
    EXPECT_EQ(TRect(0, 0, 259, 22), strip.Strip(0));
}

TEST(tab_layout, tabs_stand_side_by_side_and_end_in_their_last_column) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(3, 50);
    EXPECT_EQ(TRect(0, 0, 49, 22), strip.TabRect(0));
    EXPECT_EQ(TRect(50, 0, 99, 22), strip.TabRect(1));
    EXPECT_EQ(TRect(100, 0, 149, 22), strip.TabRect(2));
}

TEST(tab_layout, a_tab_in_front_of_the_origin_has_no_rectangle) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(3, 50);
    strip.state.Origin = 1;
    TRect rect;
    EXPECT_FALSE(strip.layout.GetTabRect(rect, 0, -1));
    EXPECT_EQ(TRect(0, 0, 49, 22), strip.TabRect(1));
}

TEST(tab_layout, a_start_stands_for_the_origin) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(3, 50);
    strip.state.Origin = 1;
    EXPECT_EQ(TRect(100, 0, 149, 22), strip.TabRect(2, 0));
    EXPECT_EQ(TRect(0, 0, 49, 22), strip.TabRect(2, 2));
    EXPECT_EQ(TRect(50, 0, 99, 22), strip.TabRect(2, INT_MIN));
    EXPECT_TRUE(strip.TabRect(2, 3).IsNull());
    EXPECT_TRUE(strip.TabRect(2, INT_MAX).IsNull());
}

TEST(tab_layout, an_index_without_a_tab_has_no_rectangle) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(3, 50);
    for (const int tab : {3, 100, INT_MAX, -1, INT_MIN})
        EXPECT_TRUE(strip.TabRect(tab).IsNull()) << tab;
}

TEST(tab_layout, a_disabled_tab_that_collapses_takes_no_room_and_is_not_seen) {
    PaperStrip strip(Tab::Collapsing);
    strip.AddOfWidth(3, 50);
    strip.state.Entries[1].Enabled = false;
    TRect rect;
    EXPECT_FALSE(strip.layout.GetTabRect(rect, 1, -1));
    EXPECT_EQ(TRect(50, 0, 99, 22), rect);
    EXPECT_EQ(TRect(50, 0, 99, 22), strip.TabRect(2));
}

TEST(tab_layout, tabs_of_a_stacked_strip_begin_anew_on_each_row) {
    const PaperStrip strip = two_rows();
    EXPECT_EQ(TRect(0, 23, 99, 46), strip.TabRect(0));
    EXPECT_EQ(TRect(100, 23, 199, 46), strip.TabRect(1));
    EXPECT_EQ(TRect(0, 0, 99, 23), strip.TabRect(2));
    EXPECT_EQ(TRect(100, 0, 199, 23), strip.TabRect(3, 3));
}

TEST(tab_layout, the_order_of_rows_says_where_a_row_is_shown) {
    PaperStrip strip = two_rows();
    std::swap(strip.state.RowOrder[0], strip.state.RowOrder[1]);
    EXPECT_EQ(1, strip.layout.GetTabRow(0));
    EXPECT_EQ(0, strip.layout.GetTabRow(3));
    EXPECT_EQ(TRect(0, 23, 99, 46), strip.TabRect(2));
}

TEST(tab_layout, rows_that_are_gone_leave_the_others_in_their_order) {
    PaperStrip strip = two_rows();
    std::swap(strip.state.RowOrder[0], strip.state.RowOrder[7]);
    EXPECT_EQ(1, strip.layout.RowAt(0));
    EXPECT_EQ(0, strip.layout.RowAt(1));
    EXPECT_EQ(-1, strip.layout.RowAt(2));
    EXPECT_EQ(1, strip.layout.GetTabRow(1));
}

TEST(tab_layout, positions_that_are_none_have_no_row) {
    const PaperStrip strip = two_rows();
    for (const int position : {-1, 2, 20, INT_MAX, INT_MIN})
        EXPECT_EQ(-1, strip.layout.RowAt(position)) << position;
}

TEST(tab_layout, a_tab_on_no_row_of_a_stacked_strip_has_no_rectangle) {
    const PaperStrip strip = two_rows();
    EXPECT_EQ(-1, strip.layout.GetTabRow(4));
    EXPECT_EQ(-1, strip.layout.GetTabRow(-1));
    EXPECT_TRUE(strip.TabRect(4).IsNull());
}

TEST(tab_layout, a_strip_on_one_row_has_all_tabs_at_position_0) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(3, 50);
    EXPECT_EQ(0, strip.layout.GetTabRow(2));
    EXPECT_EQ(-1, strip.layout.GetTabRow(3));
}

TEST(tab_layout, the_mouse_finds_the_tab_under_it) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(3, 50);
    EXPECT_EQ(0, strip.layout.GetMouseTab(TPoint(0, 0)));
    EXPECT_EQ(0, strip.layout.GetMouseTab(TPoint(48, 21)));
    EXPECT_EQ(1, strip.layout.GetMouseTab(TPoint(50, 5)));
    EXPECT_EQ(2, strip.layout.GetMouseTab(TPoint(148, 5)));
}

TEST(tab_layout, the_last_column_and_the_last_line_of_a_tab_are_not_hit) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(3, 50);
    EXPECT_EQ(-1, strip.layout.GetMouseTab(TPoint(49, 5)));
    EXPECT_EQ(-1, strip.layout.GetMouseTab(TPoint(10, 22)));
    EXPECT_EQ(-1, strip.layout.GetMouseTab(TPoint(150, 5)));
    EXPECT_EQ(-1, strip.layout.GetMouseTab(TPoint(-1, 5)));
}

TEST(tab_layout, a_disabled_tab_is_not_hit_and_neither_is_one_below_it) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(3, 50);
    strip.state.Entries[1].Enabled = false;
    EXPECT_EQ(-1, strip.layout.GetMouseTab(TPoint(60, 5)));
    // A tab of no width begins where the next one does; the first that is met decides.
    strip.state.Entries[0].Width = -50;
    EXPECT_EQ(-1, strip.layout.GetMouseTab(TPoint(-20, 5)));
}

TEST(tab_layout, where_a_tab_has_collapsed_the_next_one_is_hit) {
    PaperStrip strip(Tab::Collapsing);
    strip.AddOfWidth(3, 50);
    strip.state.Entries[1].Enabled = false;
    EXPECT_EQ(2, strip.layout.GetMouseTab(TPoint(60, 5)));
}

TEST(tab_layout, tabs_that_are_scrolled_away_are_not_hit) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(3, 50);
    strip.state.Origin = 2;
    EXPECT_EQ(2, strip.layout.GetMouseTab(TPoint(10, 5)));
    EXPECT_EQ(-1, strip.layout.GetMouseTab(TPoint(60, 5)));
}

TEST(tab_layout, the_mouse_finds_tabs_on_every_row) {
    const PaperStrip strip = two_rows();
    EXPECT_EQ(2, strip.layout.GetMouseTab(TPoint(10, 22)));
    EXPECT_EQ(0, strip.layout.GetMouseTab(TPoint(10, 23)));
    EXPECT_EQ(1, strip.layout.GetMouseTab(TPoint(150, 45)));
    EXPECT_EQ(-1, strip.layout.GetMouseTab(TPoint(150, 46)));
}

TEST(tab_layout, a_strip_without_tabs_is_never_hit_and_its_last_tab_is_0) {
    const PaperStrip strip(Tab::SingleHeight);
    EXPECT_EQ(-1, strip.layout.GetMouseTab(TPoint(0, 0)));
    EXPECT_EQ(0, strip.layout.GetLastTab(false));
    EXPECT_EQ(0, strip.layout.GetLastTab(true));
}

TEST(tab_layout, the_last_tab_is_that_of_the_highest_index) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(5, 50);
    EXPECT_EQ(4, strip.layout.GetLastTab(false));
}

TEST(tab_layout, the_last_tab_that_is_seen_ends_no_further_than_tabs_may) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(5, 50);
    strip.state.TabsRight = 149;
    EXPECT_EQ(2, strip.layout.GetLastTab(true));
    strip.state.TabsRight = 148;
    EXPECT_EQ(1, strip.layout.GetLastTab(true));
    strip.state.TabsRight = 10;
    EXPECT_EQ(0, strip.layout.GetLastTab(true));
}

TEST(tab_layout, an_arrow_is_hit_only_while_the_strip_can_scroll_its_way) {
    PaperStrip strip(Tab::SingleHeight);
    const TPoint on_left(270, 10);
    const TPoint on_right(290, 10);
    EXPECT_EQ(StripPart::Tabs, strip.layout.PartAt(on_left));
    EXPECT_EQ(StripPart::Tabs, strip.layout.PartAt(on_right));
    strip.state.ScrollLeft = true;
    EXPECT_EQ(StripPart::LeftArrow, strip.layout.PartAt(on_left));
    EXPECT_EQ(StripPart::DimmedArrow, strip.layout.PartAt(on_right));
    strip.state.ScrollRight = true;
    EXPECT_EQ(StripPart::RightArrow, strip.layout.PartAt(on_right));
    strip.state.ScrollLeft = false;
    EXPECT_EQ(StripPart::DimmedArrow, strip.layout.PartAt(on_left));
    EXPECT_EQ(StripPart::Tabs, strip.layout.PartAt(TPoint(266, 10)));
    EXPECT_EQ(StripPart::Tabs, strip.layout.PartAt(TPoint(290, 6)));
}

TEST(tab_layout, a_subscript_that_has_no_tab_raises_the_range_error) {
    PaperStrip strip(Tab::Collapsing);
    strip.AddOfWidth(3, 50);
    const std::string text = "invalid vector<T> subscript";
    for (const int tab : {3, 20, INT_MAX, -1, INT_MIN}) {
        EXPECT_THROW_TEXT(strip.layout.IsTabEnabled(tab), std::out_of_range, text);
        EXPECT_THROW_TEXT(strip.layout.IsTabVisible(tab), std::out_of_range, text);
        EXPECT_THROW_TEXT(strip.layout.CalcTabWidth(tab), std::out_of_range, text);
        EXPECT_THROW_TEXT(strip.layout.EnableTab(tab, false), std::out_of_range, text);
        EXPECT_THROW_TEXT(strip.layout.SetTabText(tab, "x"), std::out_of_range, text);
    }
    EXPECT_TRUE(strip.Heard().empty());
}

TEST(tab_layout, without_collapsing_every_tab_is_visible) {
    PaperStrip strip(Tab::SingleHeight);
    strip.Add("one", false);
    EXPECT_TRUE(strip.layout.IsTabVisible(0));
    EXPECT_FALSE(strip.layout.IsTabEnabled(0));
}

}  // namespace
