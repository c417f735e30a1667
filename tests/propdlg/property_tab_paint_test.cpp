// The strip as a whole, looked at pixel by pixel.
#include <gtest/gtest.h>

#include <memory>

#include "painted_strip.h"

namespace {

using owl::TColor;
using owl::TRect;
using propdlg_test::Colours;
using propdlg_test::Dialog;
using propdlg_test::Page;
using propdlg_test::PaintedStrip;
using propdlg_test::PropertyDesk;

struct PropertyTabPaint : PropertyDesk {
    /// So many tabs of this width.
    void OpenMany(Dialog& dialog, int count, int width) {
        for (int i = 0; i < count; ++i) {
            pages.push_back(std::make_unique<Page>(calls, std::to_string(i)));
            dialog.Add("Tab", pages.back().get(), true);
        }
        dialog.Create();
        dialog.SetFixedTabWidth(width);
        dialog.Strip().AssessScroll();
        dialog.Strip().GetScrollRect(arrows, -1);
        height = dialog.Strip().GetTabHeight();
    }

    Colours colours;
    std::vector<std::unique_ptr<Page>> pages;
    TRect arrows;
    int height = 0;
};

TEST_F(PropertyTabPaint, the_page_has_a_raised_frame_that_is_open_above) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenMany(dialog, 2, 40);
    const PaintedStrip strip(dialog.Strip());
    const int right = strip.Width() - 1;
    const int bottom = strip.Height() - 1;
    EXPECT_TRUE(strip.IsLine(0, height, 0, bottom, colours.hilight));
    EXPECT_TRUE(strip.IsLine(0, bottom, right + 1, bottom, colours.frame));
    EXPECT_TRUE(strip.IsLine(right, height + 1, right, bottom, colours.frame));
    EXPECT_TRUE(strip.IsLine(1, bottom - 1, right, bottom - 1, colours.shadow));
    EXPECT_TRUE(strip.IsLine(right - 1, height + 1, right - 1, bottom - 1, colours.shadow));
    EXPECT_EQ((right - 2) * (bottom - 2 - height),
              strip.Count(TRect(1, height + 1, right - 1, bottom - 1), colours.face));
}

TEST_F(PropertyTabPaint, behind_the_last_tab_the_strip_is_closed_and_empty) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenMany(dialog, 2, 40);
    const PaintedStrip strip(dialog.Strip());
    EXPECT_TRUE(strip.IsLine(80, height, strip.Width(), height, colours.hilight));
    EXPECT_EQ((strip.Width() - 80) * height, strip.Count(TRect(80, 0, strip.Width(), height), colours.face));
}

TEST_F(PropertyTabPaint, nothing_is_left_unpainted) {
    for (const unsigned long style :
         {static_cast<unsigned long>(Tab::FixedWidth), Tab::Stacked | Tab::FixedWidth,
          static_cast<unsigned long>(Tab::Justified)}) {
        for (const int count : {1, 3, 12}) {
            Dialog dialog(calls, desk.frame, style);
            OpenMany(dialog, count, 50);
            const PaintedStrip strip(dialog.Strip());
            EXPECT_EQ(0, strip.Count(dialog.Strip().GetClientRect(), PaintedStrip::ground))
                << style << ' ' << count;
        }
    }
}

TEST_F(PropertyTabPaint, a_tab_under_the_arrows_ends_in_a_jagged_line) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenMany(dialog, 12, 50);
    const PaintedStrip strip(dialog.Strip());
    const int cut = arrows.left - 8;
    // It begins 2 below the row's top.
    const int step = (height - 2) / 3;
    EXPECT_EQ(colours.shadow, strip.At(cut + 1, 2));
    EXPECT_EQ(colours.shadow, strip.At(cut + 2, 2 + step));
    EXPECT_EQ(colours.shadow, strip.At(cut, 2 + 2 * step));
    EXPECT_EQ(colours.shadow, strip.At(cut + 2, height - 2));
    // Behind it there is nothing of the tab.
    EXPECT_EQ(5 * height, strip.Count(TRect(cut + 3, 0, arrows.left, height), colours.face));
}

TEST_F(PropertyTabPaint, no_text_stands_behind_the_cut) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenMany(dialog, 12, 50);
    for (int i = 0; i < 12; ++i)
        dialog.Strip().SetTabText(i, "MMMMMMMMMMMM");
    const PaintedStrip strip(dialog.Strip());
    const TColor black = ::GetSysColor(COLOR_WINDOWTEXT);
    EXPECT_EQ(0, strip.Count(TRect(arrows.left - 8, 0, arrows.left, height), black));
    EXPECT_LT(0, strip.Count(TRect(arrows.left - 30, 0, arrows.left - 8, height), black));
    EXPECT_EQ((strip.Width() - arrows.left) * arrows.top,
              strip.Count(TRect(arrows.left, 0, strip.Width(), arrows.top), colours.face));
}

TEST_F(PropertyTabPaint, a_line_runs_under_the_arrows) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenMany(dialog, 12, 50);
    const PaintedStrip strip(dialog.Strip());
    EXPECT_TRUE(strip.IsLine(arrows.left - 8, height, strip.Width() - 1, height, colours.hilight));
}

TEST_F(PropertyTabPaint, an_arrow_is_dimmed_where_the_strip_cannot_scroll) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenMany(dialog, 12, 50);
    TRect left;
    dialog.Strip().GetScrollRect(left, 0);
    const auto black = [&] {
        return PaintedStrip(dialog.Strip()).Count(left.InflatedBy(-4, -4), TColor::Black);
    };
    const int dimmed = black();
    dialog.Strip().NextOrigin(1);
    EXPECT_LT(dimmed, black());
    dialog.Strip().NextOrigin(-1);
    EXPECT_EQ(dimmed, black());
}

TEST_F(PropertyTabPaint, a_part_away_from_the_arrows_leaves_them_alone) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenMany(dialog, 12, 50);
    const PaintedStrip strip(dialog.Strip(), TRect(0, 0, 10, 10));
    EXPECT_EQ(
        arrows.Width() * (arrows.Height() - 1),
        strip.Count(TRect(arrows.left, arrows.top, arrows.right, arrows.bottom - 1), PaintedStrip::ground));
    EXPECT_EQ(PaintedStrip::ground, strip.At(20, height + 20));
}

TEST_F(PropertyTabPaint, a_part_of_the_page_leaves_the_tabs_alone) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenMany(dialog, 3, 50);
    const PaintedStrip strip(dialog.Strip(), TRect(10, height + 10, 20, height + 20));
    EXPECT_EQ(colours.face, strip.At(15, height + 15));
    EXPECT_EQ(PaintedStrip::ground, strip.At(15, 10));
}

TEST_F(PropertyTabPaint, of_stacked_rows_only_the_lowest_is_closed_against_the_page) {
    Dialog dialog(calls, desk.frame, Tab::Stacked | Tab::FixedWidth);
    OpenMany(dialog, 7, 80);
    TRect all;
    dialog.Strip().SetRect(all, -1);
    const int rows = (all.bottom + 1) / height;
    ASSERT_LT(1, rows);
    const PaintedStrip strip(dialog.Strip());
    TRect first;
    TRect second;
    TRect above;
    ASSERT_TRUE(dialog.Strip().GetTabRect(first, 0, -1));
    ASSERT_TRUE(dialog.Strip().GetTabRect(second, 1, -1));
    const int page = rows * height;
    EXPECT_TRUE(strip.IsLine(second.left, page, second.right + 1, page, colours.hilight));
    EXPECT_TRUE(strip.IsLine(first.left + 1, page, first.right - 1, page, colours.face));
    // The first tab of the row above.
    int tab = 1;
    while (dialog.Strip().GetTabRow(tab) == 0)
        ++tab;
    ASSERT_TRUE(dialog.Strip().GetTabRect(above, tab, -1));
    EXPECT_EQ(colours.face, strip.At(above.left + 10, above.bottom - 1));
    EXPECT_EQ(colours.hilight, strip.At(above.left + 10, above.top + 2));
}

TEST_F(PropertyTabPaint, a_wizard_has_two_lines_and_no_tabs) {
    Dialog dialog(calls, desk.frame, Tab::WizardFrame);
    OpenMany(dialog, 3, 50);
    const PaintedStrip strip(dialog.Strip());
    const int bottom = strip.Height();
    const int right = strip.Width();
    EXPECT_TRUE(strip.IsLine(12, bottom - 1, right - 12, bottom - 1, colours.frame));
    EXPECT_TRUE(strip.IsLine(12, bottom - 2, right - 12, bottom - 2, colours.hilight));
    EXPECT_TRUE(strip.IsLine(0, bottom - 1, 12, bottom - 1, colours.face));
    EXPECT_TRUE(strip.IsLine(right - 12, bottom - 2, right, bottom - 2, colours.face));
    EXPECT_EQ(PaintedStrip::ground, strip.At(20, 5));
    EXPECT_EQ(PaintedStrip::ground, strip.At(20, bottom - 3));
}

TEST_F(PropertyTabPaint, new_colours_of_the_system_are_followed_when_they_are_told) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenMany(dialog, 2, 40);
    const int item = COLOR_BTNFACE;
    const COLORREF former = ::GetSysColor(item);
    const COLORREF other = RGB(100, 150, 200);
    ASSERT_TRUE(::SetSysColors(1, &item, &other));
    EXPECT_EQ(TColor(former), PaintedStrip(dialog.Strip()).At(100, 5));
    TPropertyDialog::TabColorChange(nullptr);
    EXPECT_EQ(TColor(other), PaintedStrip(dialog.Strip()).At(100, 5));
    ::SetSysColors(1, &item, &former);
}

TEST_F(PropertyTabPaint, what_is_on_the_screen_is_what_is_painted) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenMany(dialog, 2, 40);
    dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(desk::Activate(dialog));
    dialog.Strip().UpdateWindow();
    Pump();
    const owl::TClientDC screen(dialog.Strip().GetHandle());
    EXPECT_EQ(colours.hilight, screen.GetPixel(20, 0));
    EXPECT_EQ(colours.frame, screen.GetPixel(39, 5));
    EXPECT_EQ(colours.hilight, screen.GetPixel(100, height));
}

TEST_F(PropertyTabPaint, painting_keeps_no_tools) {
    Dialog dialog(calls, desk.frame, Tab::ColorActive);
    OpenMany(dialog, 12, 50);
    const DWORD before = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
    for (int i = 0; i < 50; ++i)
        PaintedStrip(dialog.Strip());
    EXPECT_EQ(before, ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
}

}  // namespace
