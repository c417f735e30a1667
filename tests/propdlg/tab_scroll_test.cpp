#include <gtest/gtest.h>

#include <climits>

#include "lvx/propdlg/tab_layout.h"
#include "support/paper_strip.h"

namespace {

using lvx_test::PaperStrip;
using lvx_test::Told;

// Ten tabs of 50 pixels in a strip of 300: five and a bit are seen in front of the arrows, which begin at
// 267.
PaperStrip ten_tabs(Tab::Style style = Tab::SingleHeight) {
    PaperStrip strip(style);
    strip.state.FixedTabWidth = 50;
    for (int i = 0; i < 10; ++i)
        strip.Add("t");
    strip.Size(300);
    strip.Heard();
    return strip;
}

TEST(tab_scroll, a_strip_that_holds_all_tabs_has_no_arrows) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(6, 50);
    EXPECT_FALSE(strip.layout.AssessScroll());
    EXPECT_EQ(300, strip.state.TabsRight);
    EXPECT_EQ(Told{"no arrows"}, strip.Heard());
}

TEST(tab_scroll, a_strip_that_is_too_narrow_scrolls_to_the_right) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(7, 50);
    EXPECT_TRUE(strip.layout.AssessScroll());
    EXPECT_FALSE(strip.state.ScrollLeft);
    EXPECT_TRUE(strip.state.ScrollRight);
    EXPECT_EQ(259, strip.state.TabsRight);
    EXPECT_EQ((Told{"dimmed left", "lit right", "erase 267 7 300 23"}), strip.Heard());
}

TEST(tab_scroll, a_last_column_beside_the_edge_needs_no_arrow) {
    PaperStrip strip(Tab::SingleHeight);
    strip.AddOfWidth(1, 301);
    EXPECT_FALSE(strip.layout.AssessScroll());
    strip.state.Entries[0].Width = 302;
    EXPECT_TRUE(strip.layout.AssessScroll());
}

TEST(tab_scroll, without_a_change_the_arrows_are_not_painted_anew) {
    PaperStrip strip = ten_tabs();
    EXPECT_TRUE(strip.layout.AssessScroll());
    EXPECT_EQ(Told{"dimmed left"}, strip.Heard());
}

TEST(tab_scroll, a_scrolled_strip_shows_both_arrows_while_more_lies_on_either_side) {
    PaperStrip strip = ten_tabs();
    strip.state.Origin = 1;
    EXPECT_TRUE(strip.layout.AssessScroll());
    EXPECT_TRUE(strip.state.ScrollLeft);
    EXPECT_TRUE(strip.state.ScrollRight);
    EXPECT_EQ((Told{"lit left", "lit right", "erase 267 7 300 23"}), strip.Heard());
}

TEST(tab_scroll, a_scrolled_strip_has_less_room_by_the_arrows) {
    PaperStrip strip = ten_tabs();
    // Six tabs from the origin end at 299, which is left of 300 but not of 259.
    strip.state.Origin = 4;
    strip.layout.AssessScroll();
    EXPECT_TRUE(strip.state.ScrollRight);
    strip.state.Origin = 5;
    strip.layout.AssessScroll();
    EXPECT_FALSE(strip.state.ScrollRight);
    EXPECT_TRUE(strip.state.ScrollLeft);
}

TEST(tab_scroll, a_hidden_last_tab_counts_for_scrolling) {
    PaperStrip strip(Tab::Collapsing);
    strip.AddOfWidth(7, 50);
    strip.state.Entries[6].Enabled = false;
    EXPECT_TRUE(strip.layout.AssessScroll());
}

TEST(tab_scroll, arrows_go_when_the_strip_is_wide_enough) {
    PaperStrip strip = ten_tabs();
    strip.surface.client = owl::TRect(0, 0, 600, 200);
    EXPECT_FALSE(strip.layout.AssessScroll());
    EXPECT_EQ(600, strip.state.TabsRight);
    EXPECT_EQ((Told{"no arrows", "erase 567 7 600 23"}), strip.Heard());
}

TEST(tab_scroll, a_justified_strip_is_laid_out_again_when_arrows_come_or_go) {
    PaperStrip strip = ten_tabs(Tab::Justified);
    strip.surface.client = owl::TRect(0, 0, 600, 200);
    strip.layout.AssessScroll();
    EXPECT_EQ(60, strip.Widths()[0]);
    EXPECT_EQ((Told{"no arrows", "erase 567 7 600 23", "erase 0 0 601 24"}), strip.Heard());
}

TEST(tab_scroll, a_stacked_strip_never_scrolls) {
    PaperStrip strip = ten_tabs(Tab::Stacked);
    strip.surface.client = owl::TRect(0, 0, 120, 200);
    EXPECT_FALSE(strip.layout.AssessScroll());
    EXPECT_EQ(120, strip.state.TabsRight);
    EXPECT_TRUE(strip.Heard().empty());
}

TEST(tab_scroll, a_strip_without_tabs_never_scrolls) {
    PaperStrip strip(Tab::SingleHeight);
    strip.Size(0, 0);
    EXPECT_FALSE(strip.layout.AssessScroll());
    strip.layout.NextOrigin(1);
    strip.layout.NextOrigin(-1);
    EXPECT_EQ(0, strip.state.Origin);
}

TEST(tab_scroll, scrolling_goes_a_tab_at_a_time) {
    PaperStrip strip = ten_tabs();
    strip.layout.NextOrigin(1);
    EXPECT_EQ(1, strip.state.Origin);
    EXPECT_EQ((Told{"erase 0 0 259 24", "lit left", "lit right", "erase 267 7 300 23", "update"}),
              strip.Heard());
    strip.layout.NextOrigin(-1);
    EXPECT_EQ(0, strip.state.Origin);
}

TEST(tab_scroll, scrolling_passes_over_disabled_tabs) {
    PaperStrip strip = ten_tabs();
    strip.state.Entries[1].Enabled = false;
    strip.state.Entries[2].Enabled = false;
    strip.layout.NextOrigin(1);
    EXPECT_EQ(3, strip.state.Origin);
    strip.layout.NextOrigin(-1);
    EXPECT_EQ(0, strip.state.Origin);
}

TEST(tab_scroll, scrolling_ends_on_the_first_and_the_last_tab_even_if_disabled) {
    PaperStrip strip = ten_tabs();
    for (int i = 0; i < 10; ++i)
        strip.state.Entries[i].Enabled = false;
    strip.layout.NextOrigin(1);
    EXPECT_EQ(9, strip.state.Origin);
    strip.layout.NextOrigin(-1);
    EXPECT_EQ(0, strip.state.Origin);
}

TEST(tab_scroll, at_an_end_nothing_happens) {
    PaperStrip strip = ten_tabs();
    strip.layout.NextOrigin(-1);
    EXPECT_TRUE(strip.Heard().empty());
    strip.layout.NextOrigin(INT_MAX);
    EXPECT_EQ(9, strip.state.Origin);
    strip.Heard();
    strip.layout.NextOrigin(1);
    EXPECT_TRUE(strip.Heard().empty());
    strip.layout.NextOrigin(INT_MIN);
    EXPECT_EQ(0, strip.state.Origin);
}

TEST(tab_scroll, no_direction_is_no_scrolling) {
    PaperStrip strip = ten_tabs();
    strip.state.Origin = 3;
    strip.state.Entries[3].Enabled = false;
    strip.layout.NextOrigin(0);
    EXPECT_EQ(3, strip.state.Origin);
    EXPECT_TRUE(strip.Heard().empty());
}

TEST(tab_scroll, a_tab_in_front_of_the_origin_becomes_the_origin) {
    PaperStrip strip = ten_tabs();
    strip.state.Origin = 5;
    EXPECT_TRUE(strip.layout.AdjustOrigin(2));
    EXPECT_EQ(2, strip.state.Origin);
    EXPECT_EQ(Told{"keep 0 0 260 24"}, strip.Heard());
}

TEST(tab_scroll, a_tab_beyond_the_end_is_scrolled_until_it_is_seen) {
    PaperStrip strip = ten_tabs();
    // Its right is to lie below 259: tab 7 ends at 249 when it is the fifth.
    EXPECT_TRUE(strip.layout.AdjustOrigin(7));
    EXPECT_EQ(3, strip.state.Origin);
}

TEST(tab_scroll, a_tab_that_is_seen_is_not_scrolled) {
    PaperStrip strip = ten_tabs();
    EXPECT_FALSE(strip.layout.AdjustOrigin(4));
    EXPECT_FALSE(strip.layout.AdjustOrigin(0));
    EXPECT_TRUE(strip.Heard().empty());
}

TEST(tab_scroll, a_tab_wider_than_the_strip_becomes_the_origin) {
    PaperStrip strip = ten_tabs();
    strip.state.Entries[6].Width = 1000;
    EXPECT_TRUE(strip.layout.AdjustOrigin(6));
    EXPECT_EQ(6, strip.state.Origin);
}

TEST(tab_scroll, a_hidden_tab_is_not_scrolled_to) {
    PaperStrip strip = ten_tabs(Tab::Collapsing);
    strip.state.Entries[8].Enabled = false;
    EXPECT_FALSE(strip.layout.AdjustOrigin(8));
}

TEST(tab_scroll, an_index_without_a_tab_is_not_scrolled_to) {
    PaperStrip strip = ten_tabs();
    for (const int tab : {-1, INT_MIN, 10, INT_MAX})
        EXPECT_FALSE(strip.layout.AdjustOrigin(tab)) << tab;
    EXPECT_EQ(0, strip.state.Origin);
}

}  // namespace
