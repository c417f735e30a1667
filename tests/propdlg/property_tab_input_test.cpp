// A strip under a real mouse.
#include <gtest/gtest.h>

#include <memory>

#include "property_desk.h"

namespace {

using owl::TPoint;
using owl::TRect;
using propdlg_test::Calls;
using propdlg_test::Dialog;
using propdlg_test::Page;
using propdlg_test::PropertyDesk;

struct PropertyTabInput : PropertyDesk {
    void OpenInFront(Dialog& dialog, int width = 40) {
        Open(dialog);
        dialog.SetFixedTabWidth(width);
        dialog.Strip().AssessScroll();
        ASSERT_TRUE(desk::Activate(dialog));
        Asked();
    }
    static TPoint OnScreen(const Dialog& dialog, TPoint point) {
        dialog.Strip().ClientToScreen(point);
        return point;
    }
    static void Click(const Dialog& dialog, const TPoint& point) {
        const TPoint there = OnScreen(dialog, point);
        user::Click(there.x, there.y);
        Settle();
    }
    static void RightClick(const Dialog& dialog, const TPoint& point) {
        const TPoint there = OnScreen(dialog, point);
        user::PressRight(there.x, there.y);
        user::ReleaseRight(there.x, there.y);
        Settle();
    }
    static TPoint MiddleOf(Dialog& dialog, int tab) {
        TRect rect;
        dialog.Strip().GetTabRect(rect, tab, -1);
        return TPoint((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    }
    static TPoint MiddleOfArrow(Dialog& dialog, int which) {
        TRect rect;
        dialog.Strip().GetScrollRect(rect, which);
        return TPoint((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    }
    /// The first tab that has a rectangle.
    static int Origin(Dialog& dialog) {
        TRect rect;
        int tab = 0;
        while (tab < 2 && !dialog.Strip().GetTabRect(rect, tab, -1))
            ++tab;
        return tab;
    }
    static void Settle() {
        desk::PumpUntil([] { return false; }, 150);
    }
};

TEST_F(PropertyTabInput, a_click_selects_the_tab) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    Click(dialog, MiddleOf(dialog, 2));
    EXPECT_EQ(2, dialog.Strip().GetSelectedTab());
    EXPECT_EQ(dialog.Strip().GetHandle(), ::GetFocus());
}

TEST_F(PropertyTabInput, a_click_at_a_disabled_tab_or_beside_the_tabs_selects_none) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    dialog.Strip().EnableTab(1, false);
    Click(dialog, MiddleOf(dialog, 1));
    Click(dialog, TPoint(150, 5));
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(Asked().empty());
}

TEST_F(PropertyTabInput, a_right_click_tells_the_page_of_that_tab_and_selects_nothing) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    const TPoint point = MiddleOf(dialog, 1);
    RightClick(dialog, point);
    EXPECT_EQ(Calls{"right b"}, Asked());
    EXPECT_EQ(point, b.right_point);
    EXPECT_EQ(static_cast<unsigned>(MK_RBUTTON), b.right_modifiers);
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
}

TEST_F(PropertyTabInput, a_right_click_at_a_disabled_tab_or_beside_the_tabs_does_nothing) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    dialog.Strip().EnableTab(1, false);
    RightClick(dialog, MiddleOf(dialog, 1));
    RightClick(dialog, TPoint(150, 5));
    EXPECT_TRUE(Asked().empty());
}

TEST_F(PropertyTabInput, the_arrows_scroll_and_a_dimmed_one_drops_the_click) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenInFront(dialog, 150);
    Click(dialog, MiddleOfArrow(dialog, 0));
    EXPECT_EQ(0, Origin(dialog));
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
    Click(dialog, MiddleOfArrow(dialog, 1));
    EXPECT_EQ(1, Origin(dialog));
    Click(dialog, MiddleOfArrow(dialog, 1));
    EXPECT_EQ(2, Origin(dialog));
    // It is dimmed now.
    Click(dialog, MiddleOfArrow(dialog, 1));
    EXPECT_EQ(2, Origin(dialog));
    Click(dialog, MiddleOfArrow(dialog, 0));
    EXPECT_EQ(1, Origin(dialog));
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
    EXPECT_TRUE(Asked().empty());
}

TEST_F(PropertyTabInput, a_tab_that_is_selected_out_of_sight_is_scrolled_to) {
    Dialog dialog(calls, desk.frame, Tab::FixedWidth);
    OpenInFront(dialog, 150);
    EXPECT_TRUE(dialog.SelectTab(2));
    EXPECT_EQ(2, Origin(dialog));
    EXPECT_TRUE(dialog.SelectTab(0));
    EXPECT_EQ(0, Origin(dialog));
}

TEST_F(PropertyTabInput, the_strip_wants_arrow_keys_and_no_others) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    EXPECT_EQ(DLGC_WANTARROWS, dialog.Strip().SendMessage(WM_GETDLGCODE));
    desk::Press({VK_SPACE});
    desk::Press({VK_F5});
    Settle();
    EXPECT_EQ(0, dialog.Strip().GetSelectedTab());
}

TEST_F(PropertyTabInput, the_selected_tab_is_painted_anew_when_the_focus_comes_or_goes) {
    Dialog dialog(calls, desk.frame);
    OpenInFront(dialog);
    const HWND strip = dialog.Strip().GetHandle();
    TRect selected;
    dialog.Strip().GetTabRect(selected, 0, -1);
    for (const HWND next : {dialog.GetDlgItem(IDOK), strip}) {
        dialog.Strip().UpdateWindow();
        ::SetFocus(next);
        TRect invalid;
        EXPECT_TRUE(::GetUpdateRect(strip, &invalid, FALSE));
        EXPECT_EQ(TRect(selected.left, selected.top, selected.right + 1, selected.bottom + 2), invalid);
    }
}

TEST_F(PropertyTabInput, another_size_lays_the_strip_out_and_moves_the_pages) {
    Dialog dialog(calls, desk.frame, Tab::Justified);
    OpenInFront(dialog);
    dialog.Strip().MoveWindow(TRect(0, 0, 250, 100));
    EXPECT_EQ(250,
              dialog.Strip().GetTabWidth(0) + dialog.Strip().GetTabWidth(1) + dialog.Strip().GetTabWidth(2));
    EXPECT_EQ(247, a.GetWindowRect().Width());
    EXPECT_EQ(98 - dialog.Strip().GetTabHeight() - 1, a.GetWindowRect().Height());
}

}  // namespace
