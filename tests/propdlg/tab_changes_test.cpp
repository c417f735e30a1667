#include <gtest/gtest.h>

#include <climits>

#include "lvx/propdlg/tab_layout.h"
#include "support/paper_strip.h"

namespace {

using lvx_test::PaperStrip;
using lvx_test::Told;
using Widths = std::vector<int>;

// So many tabs of 50 pixels in a strip of 300.
PaperStrip laid_out(Tab::Style style, int count) {
    PaperStrip strip(style);
    strip.state.FixedTabWidth = 50;
    for (int i = 0; i < count; ++i)
        strip.Add("t");
    strip.Size(300);
    strip.Heard();
    return strip;
}

TEST(tab_changes, a_fixed_width_of_0_is_the_first_one) {
    PaperStrip strip = laid_out(Tab::FixedWidth, 2);
    strip.layout.SetFixedTabWidth(0);
    EXPECT_EQ(64, strip.state.FixedTabWidth);
    EXPECT_EQ((Widths{64, 64}), strip.Widths());
    EXPECT_EQ(Told{"erase 0 0 300 22"}, strip.Heard());
}

TEST(tab_changes, a_margin_may_be_0_or_below) {
    PaperStrip strip = laid_out(Tab::WideMargins, 1);
    strip.state.FixedTabWidth = 1;
    strip.layout.SetWideMarginWidth(0);
    EXPECT_EQ(0, strip.state.WideMarginWidth);
    EXPECT_EQ(Widths{13}, strip.Widths());
    EXPECT_EQ(Told{"erase 0 0 300 22"}, strip.Heard());
    strip.layout.SetWideMarginWidth(-2);
    EXPECT_EQ(Widths{9}, strip.Widths());
}

TEST(tab_changes, without_a_window_values_are_kept_and_nothing_is_laid_out) {
    PaperStrip strip(Tab::Collapsing);
    strip.surface.has_window = false;
    strip.Add("one");
    strip.layout.SetFixedTabWidth(30);
    strip.layout.SetWideMarginWidth(3);
    strip.layout.SetTabText(0, "first");
    strip.layout.EnableTab(0, false);
    EXPECT_EQ(30, strip.state.FixedTabWidth);
    EXPECT_EQ(3, strip.state.WideMarginWidth);
    EXPECT_EQ("first", strip.state.Entries[0].Text);
    EXPECT_FALSE(strip.state.Entries[0].Enabled);
    EXPECT_EQ(Widths{0}, strip.Widths());
    EXPECT_TRUE(strip.Heard().empty());
}

TEST(tab_changes, a_disabled_tab_is_painted_with_its_edges) {
    PaperStrip strip = laid_out(Tab::SingleHeight, 3);
    strip.layout.EnableTab(1, false);
    EXPECT_FALSE(strip.layout.IsTabEnabled(1));
    EXPECT_EQ(Told{"erase 50 0 100 24"}, strip.Heard());
}

TEST(tab_changes, a_tab_that_is_enabled_already_stays_as_it_is) {
    PaperStrip strip = laid_out(Tab::Collapsing, 3);
    strip.layout.EnableTab(1, true);
    EXPECT_TRUE(strip.Heard().empty());
}

TEST(tab_changes, where_a_tab_collapses_the_strip_is_painted_from_there_on) {
    PaperStrip strip = laid_out(Tab::Collapsing, 3);
    strip.layout.EnableTab(1, false);
    EXPECT_EQ((Told{"no arrows", "erase 50 0 300 24"}), strip.Heard());
    EXPECT_EQ(owl::TRect(50, 0, 99, 22), strip.TabRect(2));
}

TEST(tab_changes, tabs_that_remain_share_the_room_of_one_that_collapsed) {
    PaperStrip strip = laid_out(Tab::Collapsing | Tab::Justified, 3);
    EXPECT_EQ((Widths{100, 100, 100}), strip.Widths());
    strip.layout.EnableTab(1, false);
    EXPECT_EQ(150, strip.Widths()[0]);
    EXPECT_EQ(150, strip.Widths()[2]);
    EXPECT_EQ((Told{"no arrows", "erase 0 0 301 24", "erase 100 0 300 24"}), strip.Heard());
}

TEST(tab_changes, a_collapse_that_scrolls_the_selected_tab_into_view_stops_there) {
    PaperStrip strip = laid_out(Tab::Collapsing, 10);
    strip.state.SelectedTab = 6;
    strip.layout.EnableTab(0, false);
    // Tab 6 ends at 299 when tab 0 is gone, and has to end below 259: the origin goes on to 2.
    EXPECT_EQ(2, strip.state.Origin);
    EXPECT_EQ(Told{"keep 0 0 260 24"}, strip.Heard());
}

TEST(tab_changes, a_null_caption_is_an_empty_one) {
    PaperStrip strip = laid_out(Tab::SingleHeight, 1);
    strip.layout.SetTabText(0, nullptr);
    EXPECT_EQ("", strip.state.Entries[0].Text);
}

TEST(tab_changes, a_new_caption_moves_the_tabs_behind_it) {
    PaperStrip strip = laid_out(Tab::SingleHeight, 3);
    strip.layout.SetTabText(1, "abcdefghij");
    EXPECT_EQ((Widths{50, 67, 50}), strip.Widths());
    EXPECT_EQ((Told{"no arrows", "erase 50 0 300 24"}), strip.Heard());
}

TEST(tab_changes, a_new_caption_may_bring_arrows) {
    PaperStrip strip = laid_out(Tab::SingleHeight, 6);
    strip.layout.SetTabText(5, "abcdefghij");
    EXPECT_TRUE(strip.state.ScrollRight);
    EXPECT_EQ((Told{"dimmed left", "lit right", "erase 267 7 300 23", "erase 250 0 300 24"}), strip.Heard());
}

TEST(tab_changes, a_new_caption_of_a_stacked_strip_leaves_the_pages_if_the_rows_do_not_change) {
    PaperStrip strip = laid_out(Tab::Stacked, 4);
    strip.layout.SetTabText(0, "u");
    EXPECT_EQ(Told{"erase 0 0 300 22"}, strip.Heard());
}

TEST(tab_changes, a_new_caption_that_makes_a_row_moves_the_pages) {
    PaperStrip strip = laid_out(Tab::Stacked, 5);
    strip.layout.SetTabText(0, "abcdefghijklmnopqrst");
    EXPECT_EQ("0-3 4-4", strip.Rows());
    EXPECT_EQ((Told{"pages", "erase 0 0 300 45"}), strip.Heard());
}

TEST(tab_changes, where_a_row_was_before_is_painted) {
    PaperStrip strip = laid_out(Tab::Stacked, 5);
    strip.layout.SetTabText(0, "abcdefghijklmnopqrst");
    strip.Heard();
    strip.layout.SetTabText(0, "t");
    EXPECT_EQ("0-4", strip.Rows());
    EXPECT_EQ((Told{"pages", "erase 0 22 300 45", "erase 0 0 300 22"}), strip.Heard());
}

TEST(tab_changes, another_size_makes_widths_then_arrows_then_moves_pages) {
    PaperStrip strip = laid_out(Tab::SingleHeight, 5);
    strip.Size(100);
    EXPECT_EQ((Told{"dimmed left", "lit right", "erase 67 7 100 23", "pages"}), strip.Heard());
}

TEST(tab_changes, the_row_in_front_stays_there_when_the_size_changes) {
    PaperStrip strip = laid_out(Tab::Stacked, 11);
    EXPECT_EQ("0-4 5-9 10-10", strip.Rows());
    strip.layout.BringRowForward(7);
    strip.Size(310);
    EXPECT_EQ(0, strip.layout.GetTabRow(7));
    EXPECT_EQ(1, strip.layout.GetTabRow(0));
}

TEST(tab_changes, a_row_in_front_that_is_gone_comes_back_to_the_front) {
    PaperStrip strip = laid_out(Tab::Stacked, 11);
    strip.layout.BringRowForward(10);
    strip.Size(1000);
    EXPECT_EQ("0-10", strip.Rows());
    EXPECT_EQ(0, strip.layout.GetTabRow(10));
    strip.Size(300);
    EXPECT_EQ(0, strip.layout.GetTabRow(10));
    EXPECT_EQ(2, strip.layout.GetTabRow(0));
}

TEST(tab_changes, a_row_is_brought_forward_in_exchange_for_the_one_in_front) {
    PaperStrip strip = laid_out(Tab::Stacked, 11);
    strip.layout.BringRowForward(10);
    EXPECT_EQ(0, strip.layout.GetTabRow(10));
    EXPECT_EQ(1, strip.layout.GetTabRow(5));
    EXPECT_EQ(2, strip.layout.GetTabRow(0));
    EXPECT_EQ((Told{"erase 0 46 300 70", "erase 0 0 300 24"}), strip.Heard());
}

TEST(tab_changes, a_row_that_is_in_front_or_nowhere_is_not_exchanged) {
    PaperStrip strip = laid_out(Tab::Stacked, 11);
    for (const int tab : {3, -1, 11, INT_MAX})
        strip.layout.BringRowForward(tab);
    EXPECT_TRUE(strip.Heard().empty());
    PaperStrip plain = laid_out(Tab::SingleHeight, 3);
    plain.layout.BringRowForward(2);
    EXPECT_TRUE(plain.Heard().empty());
}

TEST(tab_changes, a_selection_is_painted_at_both_tabs) {
    PaperStrip strip = laid_out(Tab::SingleHeight, 3);
    strip.state.SelectedTab = 2;
    strip.layout.ShowSelection(0, false);
    EXPECT_EQ((Told{"keep 0 0 50 24", "keep 100 0 150 24"}), strip.Heard());
}

TEST(tab_changes, a_selection_that_scrolled_looks_after_the_arrows) {
    PaperStrip strip = laid_out(Tab::SingleHeight, 10);
    strip.state.SelectedTab = 7;
    ASSERT_TRUE(strip.layout.AdjustOrigin(7));
    strip.Heard();
    strip.layout.ShowSelection(0, true);
    EXPECT_EQ((Told{"erase 259 0 292 15", "lit left", "lit right", "erase 267 7 300 23"}), strip.Heard());
}

TEST(tab_changes, the_first_tab_that_can_be_chosen_is_enabled) {
    PaperStrip strip = laid_out(Tab::Collapsing, 3);
    EXPECT_EQ(0, strip.layout.FirstUsableTab());
    strip.state.Entries[0].Enabled = false;
    strip.state.Entries[1].Enabled = false;
    EXPECT_EQ(2, strip.layout.FirstUsableTab());
    strip.state.Entries[2].Enabled = false;
    EXPECT_EQ(-1, strip.layout.FirstUsableTab());
    EXPECT_EQ(-1, PaperStrip(Tab::SingleHeight).layout.FirstUsableTab());
}

TEST(tab_changes, the_next_tab_lies_around_the_ends_and_behind_disabled_ones) {
    PaperStrip strip = laid_out(Tab::SingleHeight, 4);
    strip.state.Entries[1].Enabled = false;
    EXPECT_EQ(2, strip.layout.NextUsableTab(1));
    EXPECT_EQ(3, strip.layout.NextUsableTab(-1));
    strip.state.SelectedTab = 3;
    EXPECT_EQ(0, strip.layout.NextUsableTab(1));
    EXPECT_EQ(2, strip.layout.NextUsableTab(-1));
}

TEST(tab_changes, there_is_no_next_tab_if_no_other_can_be_chosen) {
    PaperStrip strip = laid_out(Tab::SingleHeight, 3);
    strip.state.Entries[1].Enabled = false;
    strip.state.Entries[2].Enabled = false;
    EXPECT_EQ(-1, strip.layout.NextUsableTab(1));
    EXPECT_EQ(-1, strip.layout.NextUsableTab(-1));
    EXPECT_EQ(-1, strip.layout.NextUsableTab(0));
    EXPECT_EQ(-1, PaperStrip(Tab::SingleHeight).layout.NextUsableTab(1));
}

TEST(tab_changes, a_search_by_longer_steps_ends) {
    PaperStrip strip = laid_out(Tab::SingleHeight, 4);
    strip.state.SelectedTab = 1;
    strip.state.Entries[0].Enabled = false;
    strip.state.Entries[2].Enabled = false;
    strip.state.Entries[3].Enabled = false;
    EXPECT_EQ(-1, strip.layout.NextUsableTab(2));
    EXPECT_EQ(-1, strip.layout.NextUsableTab(INT_MAX));
    EXPECT_EQ(-1, strip.layout.NextUsableTab(INT_MIN));
}

}  // namespace
