// Single tabs, looked at pixel by pixel. Tabs are 60 pixels wide: the first begins at 0, the second at 60.
#include <gtest/gtest.h>

#include "painted_strip.h"

namespace {

using owl::TColor;
using owl::TRect;
using propdlg_test::Colours;
using propdlg_test::Dialog;
using propdlg_test::PaintedStrip;
using propdlg_test::PropertyDesk;

constexpr int tab_width = 60;

struct PropertyTabDraw : PropertyDesk {
    void OpenFixed(Dialog& dialog) {
        AddPages(dialog);
        dialog.Create();
        dialog.SetFixedTabWidth(tab_width);
        height = dialog.Strip().GetTabHeight();
    }
    Colours colours;
    int height = 0;
};

TEST_F(PropertyTabDraw, the_outline_of_the_selected_tab_begins_at_its_left_and_at_the_top) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenFixed(dialog);
    const PaintedStrip strip(dialog.Strip());
    EXPECT_TRUE(strip.IsLine(0, 2, 0, height + 1, colours.hilight));
    EXPECT_EQ(colours.hilight, strip.At(1, 1));
    EXPECT_TRUE(strip.IsLine(2, 0, 58, 0, colours.hilight));
    EXPECT_TRUE(strip.IsLine(58, 2, 58, height, colours.shadow));
    EXPECT_TRUE(strip.IsLine(59, 2, 59, height, colours.frame));
    // The corner, where top and right meet.
    EXPECT_EQ(colours.frame, strip.At(58, 1));
}

TEST_F(PropertyTabDraw, the_corners_of_the_selected_tab_are_cut) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenFixed(dialog);
    const PaintedStrip strip(dialog.Strip());
    for (const owl::TPoint& corner : {owl::TPoint(0, 0), owl::TPoint(1, 0), owl::TPoint(0, 1),
                                      owl::TPoint(58, 0), owl::TPoint(59, 0), owl::TPoint(59, 1)})
        EXPECT_EQ(colours.face, strip.At(corner.x, corner.y)) << corner.x << ' ' << corner.y;
}

TEST_F(PropertyTabDraw, the_selected_tab_is_open_to_the_page) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenFixed(dialog);
    const PaintedStrip strip(dialog.Strip());
    EXPECT_TRUE(strip.IsLine(1, height, 58, height, colours.face));
    EXPECT_TRUE(strip.IsLine(1, height - 1, 58, height - 1, colours.face));
}

TEST_F(PropertyTabDraw, the_outline_of_another_tab_is_lower_and_narrower) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenFixed(dialog);
    const PaintedStrip strip(dialog.Strip());
    EXPECT_TRUE(strip.IsLine(61, 4, 61, height - 1, colours.hilight));
    EXPECT_EQ(colours.hilight, strip.At(62, 3));
    EXPECT_TRUE(strip.IsLine(63, 2, 118, 2, colours.hilight));
    EXPECT_TRUE(strip.IsLine(118, 4, 118, height - 1, colours.shadow));
    EXPECT_TRUE(strip.IsLine(119, 4, 119, height - 1, colours.frame));
}

TEST_F(PropertyTabDraw, behind_another_tab_the_strip_is_covered_and_a_line_stands_at_its_left) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenFixed(dialog);
    const PaintedStrip strip(dialog.Strip());
    EXPECT_TRUE(strip.IsLine(60, 0, 60, height - 1, colours.hilight));
    EXPECT_TRUE(strip.IsLine(61, 0, 120, 0, colours.face));
    EXPECT_TRUE(strip.IsLine(61, 1, 120, 1, colours.face));
    EXPECT_EQ(colours.face, strip.At(62, 2));
    EXPECT_EQ(colours.face, strip.At(61, 3));
    EXPECT_EQ(colours.face, strip.At(119, 3));
}

TEST_F(PropertyTabDraw, another_tab_is_closed_against_the_page) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenFixed(dialog);
    const PaintedStrip strip(dialog.Strip());
    EXPECT_TRUE(strip.IsLine(60, height, 120, height, colours.hilight));
    EXPECT_TRUE(strip.IsLine(60, height - 1, 120, height - 1, colours.face));
}

TEST_F(PropertyTabDraw, the_selected_tab_moves_with_the_selection) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenFixed(dialog);
    dialog.SelectTab(1);
    ::SetFocus(nullptr);
    const PaintedStrip strip(dialog.Strip());
    EXPECT_TRUE(strip.IsLine(62, 0, 118, 0, colours.hilight));
    EXPECT_TRUE(strip.IsLine(61, height, 118, height, colours.face));
    EXPECT_TRUE(strip.IsLine(0, height, 60, height, colours.hilight));
}

TEST_F(PropertyTabDraw, the_selected_tab_has_the_active_colour_if_the_style_says_so) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth | Tab::ColorActive);
    OpenFixed(dialog);
    EXPECT_EQ(TColor::White, PaintedStrip(dialog.Strip()).At(30, 2));
    dialog.SetActiveColor(TColor::LtGreen);
    const PaintedStrip strip(dialog.Strip());
    EXPECT_EQ(TColor::LtGreen, strip.At(30, 2));
    EXPECT_EQ(TColor::LtGreen, strip.At(57, height));
    EXPECT_EQ(colours.face, strip.At(90, 4));
    // Its inner right line is as light as the left one.
    EXPECT_TRUE(strip.IsLine(58, 2, 58, height, colours.hilight));
    EXPECT_TRUE(strip.IsLine(59, 2, 59, height, colours.frame));
}

TEST_F(PropertyTabDraw, texts_are_black_or_grey_and_stay_inside) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenFixed(dialog);
    dialog.Strip().SetTabText(1, "A text that is wider than its tab");
    dialog.Strip().EnableTab(2, false);
    const PaintedStrip strip(dialog.Strip());
    const TColor black = ::GetSysColor(COLOR_WINDOWTEXT);
    EXPECT_LT(0, strip.Count(TRect(2, 2, 57, height), black));
    EXPECT_LT(0, strip.Count(TRect(62, 4, 117, height), black));
    EXPECT_EQ(0, strip.Count(TRect(120, 0, 178, height), black));
    EXPECT_LT(0, strip.Count(TRect(122, 4, 177, height), TColor::LtGray));
    EXPECT_TRUE(strip.IsLine(118, 4, 118, height - 1, colours.shadow));
}

TEST_F(PropertyTabDraw, with_room_for_two_lines_a_text_takes_them) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth | Tab::DoubleHeight);
    OpenFixed(dialog);
    const TColor black = ::GetSysColor(COLOR_WINDOWTEXT);
    const auto inkBelow = [&](const char* text) {
        dialog.Strip().SetTabText(1, text);
        return PaintedStrip(dialog.Strip()).Count(TRect(62, height - 9, 117, height - 1), black);
    };
    EXPECT_EQ(0, inkBelow("Line"));
    EXPECT_LT(0, inkBelow("Line and text"));
}

TEST_F(PropertyTabDraw, the_focus_is_marked_on_the_selected_tab) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth | Tab::ColorActive);
    OpenFixed(dialog);
    dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(desk::Activate(dialog));
    ::SetFocus(dialog.Strip().GetHandle());
    const int focused = PaintedStrip(dialog.Strip()).Count(TRect(1, 1, 58, 2), TColor::White);
    ::SetFocus(dialog.GetDlgItem(IDOK));
    const PaintedStrip without(dialog.Strip());
    EXPECT_TRUE(without.IsLine(2, 1, 58, 1, TColor::White));
    EXPECT_GT(40, focused);
    // The colour stays.
    EXPECT_EQ(TColor::White, without.At(30, 2));
}

TEST_F(PropertyTabDraw, each_tab_has_its_share_of_the_bitmap) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth, IDB_CELS, false);
    OpenFixed(dialog);
    const PaintedStrip strip(dialog.Strip());
    // The fill begins at 1 and at 62; 8 pixels in the middle of its height.
    const int top = 1 + (height + 1 - 1 - 8) / 2;
    EXPECT_EQ(8 * 8, strip.Count(TRect(7, top, 15, top + 8), TColor::LtRed));
    EXPECT_EQ(8 * 8, strip.Count(TRect(0, 0, 60, height), TColor::LtRed));
    const int lower = 3 + (height + 1 - 3 - 8) / 2;
    EXPECT_EQ(8 * 8, strip.Count(TRect(68, lower, 76, lower + 8), TColor::LtGreen));
    EXPECT_EQ(8 * 8, strip.Count(TRect(120, 0, 180, height), TColor::LtBlue));
}

TEST_F(PropertyTabDraw, texts_stand_beside_the_bitmap) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth, IDB_CELS, false);
    OpenFixed(dialog);
    const PaintedStrip strip(dialog.Strip());
    const TColor black = ::GetSysColor(COLOR_WINDOWTEXT);
    EXPECT_EQ(0, strip.Count(TRect(1, 2, 21, height), black));
    EXPECT_LT(0, strip.Count(TRect(21, 2, 57, height), black));
}

TEST_F(PropertyTabDraw, a_masked_bitmap_lets_the_tab_show_through) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth | Tab::ColorActive, IDB_MASKED, true);
    OpenFixed(dialog);
    const PaintedStrip strip(dialog.Strip());
    const int top = 1 + (height + 1 - 1 - 8) / 2;
    EXPECT_EQ(4 * 8, strip.Count(TRect(7, top, 11, top + 8), TColor::White));
    EXPECT_EQ(4 * 8, strip.Count(TRect(11, top, 15, top + 8), TColor::LtRed));
    EXPECT_EQ(4 * 8, strip.Count(TRect(0, 0, 60, height), TColor::LtRed));
    EXPECT_EQ(4 * 8, strip.Count(TRect(60, 0, 120, height), TColor::LtGreen));
}

TEST_F(PropertyTabDraw, without_its_bitmap_a_tab_has_its_text_alone) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth, 9999, false);
    OpenFixed(dialog);
    EXPECT_NE(0ul, dialog.Strip().GetTabStyle() & Tab::UseTabBitmaps);
    const PaintedStrip strip(dialog.Strip());
    EXPECT_LT(0, strip.Count(TRect(2, 2, 57, height), ::GetSysColor(COLOR_WINDOWTEXT)));
}

}  // namespace
