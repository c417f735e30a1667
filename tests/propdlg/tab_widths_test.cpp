#include <gtest/gtest.h>

#include <climits>

#include "lvx/propdlg/tab_layout.h"
#include "lvx/propdlg/wrapped.h"
#include "support/paper_strip.h"

namespace {

using lvx_test::PaperStrip;
using lvx_test::Told;
using Widths = std::vector<int>;

// The width of the one tab of a strip with a smallest width of 1. A character is 6 pixels wide.
int width_of(const std::string& text, Tab::Style style = Tab::SingleHeight, int least = 1) {
    PaperStrip strip(style);
    strip.Add(text);
    strip.state.FixedTabWidth = least;
    return strip.layout.CalcTabWidth(0);
}

PaperStrip of_captions(Tab::Style style, const std::vector<std::string>& captions, int least = 1) {
    PaperStrip strip(style);
    strip.state.FixedTabWidth = least;
    for (const std::string& caption : captions)
        strip.Add(caption);
    return strip;
}

TEST(tab_widths, a_tab_is_seven_pixels_wider_than_its_caption) {
    EXPECT_EQ(24 + 7, width_of("abcd"));
    EXPECT_EQ(7, width_of(""));
}

TEST(tab_widths, the_mark_of_a_hot_key_takes_no_room) {
    EXPECT_EQ(width_of("abcd"), width_of("ab&cd"));
}

TEST(tab_widths, no_tab_is_narrower_than_the_fixed_width) {
    EXPECT_EQ(64, width_of("abcd", Tab::SingleHeight, 64));
    EXPECT_EQ(67, width_of("abcdefghij", Tab::SingleHeight, 64));
}

TEST(tab_widths, with_a_fixed_width_above_every_caption_all_tabs_have_it) {
    PaperStrip strip = of_captions(Tab::SingleHeight, {"one", "two and three", ""}, 100);
    strip.Size(400);
    EXPECT_EQ((Widths{100, 100, 100}), strip.Widths());
}

TEST(tab_widths, fixed_tabs_are_not_measured) {
    PaperStrip strip = of_captions(Tab::FixedWidth, {"a long caption, longer than that"}, 40);
    EXPECT_EQ(40, strip.layout.CalcTabWidth(0));
    EXPECT_EQ(0, strip.surface.measured);
}

TEST(tab_widths, margins_and_bitmaps_add_nothing_to_a_fixed_width) {
    PaperStrip strip = of_captions(Tab::FixedWidth | Tab::WideMargins | Tab::UseTabBitmaps, {"abc"}, 40);
    strip.surface.cels_width = 16;
    EXPECT_EQ(40, strip.layout.CalcTabWidth(0));
}

TEST(tab_widths, wide_margins_add_to_either_side) {
    EXPECT_EQ(24 + 7 + 12, width_of("abcd", Tab::WideMargins));
}

TEST(tab_widths, a_bitmap_adds_an_equal_share_of_it_and_twelve) {
    PaperStrip strip = of_captions(Tab::UseTabBitmaps, {"abcd", "a", "b"});
    strip.surface.cels_width = 50;
    EXPECT_EQ(24 + 7 + 16 + 12, strip.layout.CalcTabWidth(0));
}

TEST(tab_widths, a_bitmap_that_did_not_load_adds_nothing) {
    EXPECT_EQ(31, width_of("abcd", Tab::UseTabBitmaps));
}

TEST(tab_widths, lines_of_a_caption_are_measured_apart) {
    EXPECT_EQ(18 + 7, width_of("abc\rde"));
}

TEST(tab_widths, with_double_height_a_caption_without_blanks_stays_on_one_line) {
    EXPECT_EQ(60 + 7, width_of("abcdefghij", Tab::DoubleHeight));
}

TEST(tab_widths, with_double_height_two_words_take_two_lines) {
    EXPECT_EQ(24 + 7, width_of("abcd ef", Tab::DoubleHeight));
}

TEST(tab_widths, with_double_height_a_tab_widens_by_eights_until_two_lines_are_enough) {
    // Words of 3: 18 pixels, two 42, three 66. From 1 on by 8: at 41 four words still take four lines; at 49
    // two lines of two words.
    EXPECT_EQ(42 + 7, width_of("abc def ghi jkl", Tab::DoubleHeight));
}

TEST(tab_widths, with_double_height_a_caption_that_fits_the_fixed_width_is_not_widened) {
    EXPECT_EQ(64, width_of("abc def ghi", Tab::DoubleHeight, 64));
}

TEST(tab_widths, a_caption_of_more_lines_than_two_is_as_wide_as_its_widest) {
    EXPECT_EQ(30 + 7, width_of("ab\rabcde\rabc", Tab::DoubleHeight));
}

TEST(tab_widths, measuring_ends_with_lines_of_no_height) {
    PaperStrip strip = of_captions(Tab::DoubleHeight, {"abc def ghi"});
    strip.state.TextHeight = 0;
    strip.surface.height = 0;
    EXPECT_EQ(66 + 7, strip.layout.CalcTabWidth(0));
    EXPECT_EQ(1, strip.surface.measured);
}

TEST(tab_widths, measuring_ends_however_far_below_0_the_fixed_width_lies) {
    PaperStrip strip = of_captions(Tab::DoubleHeight, {"abc def ghi jkl"}, INT_MIN);
    EXPECT_EQ(90 + 7, strip.layout.CalcTabWidth(0));
    EXPECT_LT(strip.surface.measured, 5000);
}

TEST(tab_widths, widths_beyond_32_bits_wrap) {
    PaperStrip strip = of_captions(Tab::WideMargins, {"abcd"}, INT_MIN);
    strip.state.WideMarginWidth = INT_MAX;
    EXPECT_EQ(31 - 2, strip.layout.CalcTabWidth(0));
    EXPECT_EQ(INT_MIN, lvx::propdlg::wrapped(std::int64_t{INT_MAX} + 1));
    EXPECT_EQ(INT_MAX, lvx::propdlg::wrapped(std::int64_t{INT_MIN} - 1));
    EXPECT_EQ(-7, lvx::propdlg::wrapped(-7));
}

TEST(tab_widths, an_unstacked_strip_has_one_row_of_all_tabs) {
    PaperStrip strip = of_captions(Tab::SingleHeight, {"a", "b", "c"}, 200);
    strip.Size(300);
    EXPECT_EQ("0-2", strip.Rows());
}

TEST(tab_widths, an_empty_strip_has_one_row_unstacked_and_none_stacked) {
    PaperStrip plain(Tab::SingleHeight);
    plain.Size(300);
    EXPECT_EQ(1, plain.state.RowCount);
    PaperStrip stacked(Tab::Stacked);
    stacked.Size(300);
    EXPECT_EQ(0, stacked.state.RowCount);
}

TEST(tab_widths, rows_of_a_stacked_strip_take_what_ends_left_of_its_right) {
    PaperStrip strip = of_captions(Tab::Stacked, {"a", "b", "c", "d", "e"}, 100);
    strip.Size(301);
    EXPECT_EQ("0-2 3-4", strip.Rows());
    strip.Size(300);
    EXPECT_EQ("0-1 2-3 4-4", strip.Rows());
}

TEST(tab_widths, a_tab_too_wide_for_any_row_has_one_to_itself) {
    PaperStrip strip = of_captions(Tab::Stacked, {"a", "bbbbbbbbbbbbbbbbbbbb", "c", "d"}, 40);
    strip.Size(100);
    EXPECT_EQ("0-0 1-1 2-3", strip.Rows());
}

TEST(tab_widths, behind_a_last_tab_that_is_too_wide_an_empty_row_is_counted) {
    PaperStrip strip = of_captions(Tab::Stacked, {"a", "bbbbbbbbbbbbbbbbbbbb"}, 40);
    strip.Size(100);
    EXPECT_EQ("0-0 1-1 -", strip.Rows());
    EXPECT_EQ(0, strip.layout.GetTabRow(0));
    EXPECT_EQ(1, strip.layout.GetTabRow(1));
    EXPECT_EQ(owl::TRect(0, 0, 100, 68), strip.Strip());
}

TEST(tab_widths, a_tab_as_wide_as_the_strip_is_too_wide) {
    PaperStrip strip = of_captions(Tab::Stacked, {"a"}, 100);
    strip.Size(100);
    EXPECT_EQ("0-0 -", strip.Rows());
    strip.Size(101);
    EXPECT_EQ("0-0", strip.Rows());
}

TEST(tab_widths, what_does_not_fit_twenty_rows_stands_in_the_last_of_them) {
    PaperStrip strip(Tab::Stacked);
    strip.state.FixedTabWidth = 60;
    for (int i = 0; i < 50; ++i)
        strip.Add("t");
    strip.Size(130);
    EXPECT_EQ(20, strip.state.RowCount);
    EXPECT_EQ(36, strip.state.Rows[18].First);
    EXPECT_EQ(38, strip.state.Rows[19].First);
    EXPECT_EQ(49, strip.state.Rows[19].Last);
    EXPECT_EQ(19, strip.layout.GetTabRow(49));
}

TEST(tab_widths, twenty_rows_that_are_full_count_no_further) {
    PaperStrip strip(Tab::Stacked);
    strip.state.FixedTabWidth = 200;
    for (int i = 0; i < 20; ++i)
        strip.Add("t");
    strip.Size(130);
    EXPECT_EQ(20, strip.state.RowCount);
    EXPECT_EQ(19, strip.state.Rows[19].First);
    EXPECT_EQ(19, strip.state.Rows[19].Last);
}

TEST(tab_widths, what_a_row_has_to_spare_is_shared_and_the_remainder_goes_to_the_last) {
    PaperStrip strip = of_captions(Tab::Justified, {"a", "b", "c"}, 50);
    strip.Size(160);
    EXPECT_EQ((Widths{53, 53, 54}), strip.Widths());
}

TEST(tab_widths, a_row_that_is_flush_already_stays) {
    PaperStrip strip = of_captions(Tab::Justified, {"a", "b", "c"}, 50);
    strip.Size(150);
    EXPECT_EQ((Widths{50, 50, 50}), strip.Widths());
}

TEST(tab_widths, hidden_tabs_get_no_share) {
    PaperStrip strip = of_captions(Tab::Justified | Tab::Collapsing, {"a", "b", "c"}, 50);
    strip.state.Entries[1].Enabled = false;
    strip.Size(111);
    EXPECT_EQ((Widths{55, 50, 56}), strip.Widths());
}

TEST(tab_widths, every_row_of_a_stacked_strip_ends_flush) {
    PaperStrip strip = of_captions(Tab::Stacked, {"a", "b", "c", "d", "e"}, 100);
    strip.Size(301);
    EXPECT_EQ((Widths{100, 100, 101, 150, 151}), strip.Widths());
}

TEST(tab_widths, rows_behind_one_that_is_too_wide_keep_their_own_widths) {
    PaperStrip strip = of_captions(Tab::Stacked, {"a", "bbbbbbbbbbbbbbbbbbbb", "c", "d"}, 40);
    strip.Size(100);
    EXPECT_EQ((Widths{100, 127, 40, 40}), strip.Widths());
}

TEST(tab_widths, a_strip_that_scrolls_is_never_justified) {
    PaperStrip strip = of_captions(Tab::Justified, {"a", "b", "c"}, 50);
    strip.state.ScrollRight = true;
    strip.surface.client = owl::TRect(0, 0, 400, 100);
    strip.layout.CalculateTabWidths();
    EXPECT_EQ((Widths{50, 50, 50}), strip.Widths());
}

TEST(tab_widths, without_a_size_nothing_is_touched) {
    for (const int width : {-10, 0, 1}) {
        PaperStrip strip = of_captions(Tab::Justified, {"a", "b"}, 50);
        strip.surface.client = owl::TRect(0, 0, width, 0);
        strip.layout.CalculateTabWidths();
        EXPECT_EQ((Widths{0, 0}), strip.Widths()) << width;
        EXPECT_EQ(0, strip.state.RowCount) << width;
    }
}

TEST(tab_widths, two_columns_are_a_size) {
    PaperStrip strip = of_captions(Tab::SingleHeight, {"a", "b"}, 50);
    strip.surface.client = owl::TRect(0, 0, 2, 0);
    strip.layout.CalculateTabWidths();
    EXPECT_EQ((Widths{50, 50}), strip.Widths());
}

TEST(tab_widths, reassessing_concerns_justified_strips_only) {
    PaperStrip plain = of_captions(Tab::SingleHeight, {"a", "b"}, 50);
    plain.layout.ReassessTabWidths();
    EXPECT_TRUE(plain.Heard().empty());
    EXPECT_EQ((Widths{0, 0}), plain.Widths());
    PaperStrip justified = of_captions(Tab::Justified, {"a", "b"}, 50);
    justified.layout.ReassessTabWidths();
    EXPECT_EQ((Widths{150, 150}), justified.Widths());
    EXPECT_EQ(Told{"erase 0 0 301 24"}, justified.Heard());
}

}  // namespace
