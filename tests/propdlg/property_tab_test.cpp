#include "lvx/propdlg/property_tab.h"

#include <gtest/gtest.h>

#include "owl/bitmap.h"
#include "owl/font.h"
#include "owl/window_dc.h"
#include "property_desk.h"

namespace {

using owl::TRect;
using propdlg_test::Dialog;
using propdlg_test::PropertyDesk;

/// A strip that shows what it holds.
class Strip : public TPropertyTab {
public:
    explicit Strip(owl::TWindow* parent, Tab::Style style = Tab::SingleHeight)
        : TPropertyTab(parent, style, owl::TResId(), false) {}

    using TPropertyTab::ActiveColor;
    using TPropertyTab::LastSelected;
    using TPropertyTab::Origin;
    using TPropertyTab::PageRect;
    using TPropertyTab::RowCount;
    using TPropertyTab::ScrollLeftBitmap;
    using TPropertyTab::ScrollRightBitmap;
    using TPropertyTab::SelectedFont;
    using TPropertyTab::TabBitmaps;
    using TPropertyTab::TabFont;
    using TPropertyTab::TabsRight;
    using TPropertyTab::TextHeight;
};

struct PropertyTabs : PropertyDesk {
    // A strip without a dialog, in the frame.
    Strip& Made(Tab::Style style = Tab::SingleHeight) {
        auto* const strip = new Strip(desk.frame, style);
        strip->Add("&A", &a, true);
        strip->Add("&B", &b, true);
        strip->Attr.W = 300;
        strip->Attr.H = 200;
        strip->Create();
        return *strip;
    }
    // Stack pages let go of their windows before the strip ends.
    ~PropertyTabs() override {
        for (owl::TWindow* const child : desk.frame->GetChildren()) {
            if (auto* const strip = dynamic_cast<TPropertyTab*>(child))
                strip->DestroyPages();
        }
    }
};

TEST_F(PropertyTabs, the_window_has_its_number_class_and_styles) {
    const Strip& strip = Made();
    EXPECT_EQ(29000, ::GetDlgCtrlID(strip.GetHandle()));
    char name[20] = "";
    ::GetClassNameA(strip.GetHandle(), name, sizeof name);
    EXPECT_STREQ("tbProperty", name);
    EXPECT_EQ(static_cast<ULONG_PTR>(CS_VREDRAW | CS_HREDRAW | CS_PARENTDC),
              ::GetClassLongPtrA(strip.GetHandle(), GCL_STYLE));
    EXPECT_EQ(0u, ::GetClassLongPtrA(strip.GetHandle(), GCLP_HBRBACKGROUND));
    EXPECT_EQ("", strip.GetWindowText());
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_TABSTOP),
              strip.GetStyle() & ~static_cast<DWORD>(WS_CLIPSIBLINGS));
}

TEST_F(PropertyTabs, a_wizard_is_no_tab_stop) {
    EXPECT_EQ(0u, Made(Tab::WizardFrame).GetStyle() & WS_TABSTOP);
}

TEST_F(PropertyTabs, fonts_are_the_small_one_and_the_same_at_normal_weight) {
    const Strip& strip = Made();
    EXPECT_EQ(static_cast<HFONT>(::GetStockObject(ANSI_VAR_FONT)), static_cast<HFONT>(*strip.TabFont));
    LOGFONT selected{};
    LOGFONT other{};
    strip.SelectedFont->GetObject(selected);
    strip.TabFont->GetObject(other);
    EXPECT_EQ(400, selected.lfWeight);
    EXPECT_STREQ(other.lfFaceName, selected.lfFaceName);
    EXPECT_EQ(other.lfHeight, selected.lfHeight);
}

TEST_F(PropertyTabs, rows_are_as_high_as_their_text_and_a_margin) {
    owl::TScreenDC dc;
    const Strip& single = Made();
    dc.SelectObject(*single.SelectedFont);
    TRect rect;
    dc.DrawText("(|&y#", rect, DT_CALCRECT | DT_CENTER);
    EXPECT_EQ(rect.Height(), single.TextHeight);
    EXPECT_EQ(single.TextHeight + 10, single.GetTabHeight());
    const Strip& twice = *new Strip(desk.frame, Tab::DoubleHeight);
    EXPECT_EQ(2 * twice.TextHeight + 8, twice.GetTabHeight());
    dc.RestoreFont();
}

TEST_F(PropertyTabs, widths_are_those_of_the_systems_measure) {
    Strip& strip = Made();
    strip.SetFixedTabWidth(1);
    strip.SetTabText(0, "&Some text");
    owl::TScreenDC dc;
    dc.SelectObject(*strip.SelectedFont);
    const int text = dc.GetTextExtent("Some text").cx;
    dc.RestoreFont();
    EXPECT_EQ(text + 7, strip.GetTabWidth(0));
    EXPECT_EQ(text + 7, strip.CalcTabWidth(dc, 0));
}

TEST_F(PropertyTabs, before_there_is_a_window_widths_are_0) {
    auto* const strip = new Strip(desk.frame);
    strip->Add("&A", &a, true);
    strip->SetFixedTabWidth(30);
    strip->SetTabText(0, "text");
    strip->EnableTab(0, false);
    strip->SetActiveColor(owl::TColor::LtRed);
    EXPECT_EQ(0, strip->GetTabWidth(0));
    EXPECT_EQ("text", strip->GetTabText(0));
    EXPECT_FALSE(strip->IsTabEnabled(0));
    EXPECT_TRUE(strip->ActiveColor == owl::TColor::LtRed);
    EXPECT_TRUE(strip->SetPageFocus(true) == nullptr);
    EXPECT_TRUE(strip->GetFirstControl() == nullptr);
}

TEST_F(PropertyTabs, a_strip_without_a_dialog_changes_its_pages_all_the_same) {
    Strip& strip = Made();
    EXPECT_TRUE(strip.SelectTab(1));
    EXPECT_TRUE(b.IsWindow());
    EXPECT_EQ(1, strip.LastSelected);
    EXPECT_EQ(TRect(1, strip.GetTabHeight() + 1, 298, 198), strip.PageRect);
}

TEST_F(PropertyTabs, a_null_text_is_empty_and_a_null_page_is_not_added) {
    Strip strip(desk.frame);
    strip.Add(nullptr, &a, true);
    strip.Add("none", nullptr, true);
    EXPECT_EQ(1, strip.GetEntryCount());
    EXPECT_EQ("", strip.GetTabText(0));
    EXPECT_EQ(&a, strip.GetPage(0));
}

TEST_F(PropertyTabs, arrows_are_loaded_while_the_strip_scrolls) {
    Strip& strip = Made(Tab::FixedWidth);
    EXPECT_TRUE(strip.ScrollLeftBitmap == nullptr);
    EXPECT_EQ(300, strip.TabsRight);
    strip.SetFixedTabWidth(200);
    EXPECT_TRUE(strip.AssessScroll());
    ASSERT_TRUE(strip.ScrollLeftBitmap != nullptr);
    EXPECT_TRUE(strip.ScrollRightBitmap != nullptr);
    EXPECT_LT(0, strip.ScrollLeftBitmap->Width());
    EXPECT_EQ(300 - 2 * ::GetSystemMetrics(SM_CXHSCROLL) + 1 - 8, strip.TabsRight);
    strip.SetFixedTabWidth(20);
    EXPECT_FALSE(strip.AssessScroll());
    EXPECT_TRUE(strip.ScrollLeftBitmap == nullptr);
    EXPECT_TRUE(strip.ScrollRightBitmap == nullptr);
}

TEST_F(PropertyTabs, the_layout_is_asked_through_the_strip) {
    Strip& strip = Made(Tab::FixedWidth | Tab::Collapsing);
    strip.SetFixedTabWidth(50);
    strip.CalculateBasicTabWidths();
    strip.CalculateTabWidths();
    strip.ReassessTabWidths();
    EXPECT_EQ(0, strip.GetTabRow(1));
    EXPECT_EQ(1, strip.GetLastTab(false));
    EXPECT_EQ(1, strip.GetLastTab(true));
    EXPECT_EQ(1, strip.GetMouseTab(owl::TPoint(60, 5)));
    EXPECT_FALSE(strip.AdjustOrigin(1));
    EXPECT_TRUE(strip.IsTabVisible(1));
    strip.EnableTab(1, false);
    EXPECT_FALSE(strip.IsTabVisible(1));
    TRect rect;
    strip.SetRect(rect, -1);
    EXPECT_EQ(TRect(0, 0, 300, strip.GetTabHeight() - 1), rect);
    strip.NextOrigin(1);
    EXPECT_EQ(1, strip.Origin);
    strip.SetWideMarginWidth(3);
}

TEST_F(PropertyTabs, the_style_is_the_one_without_what_excludes_each_other) {
    EXPECT_EQ(0x30ul,
              static_cast<unsigned long>(Strip(desk.frame, Tab::Stacked | Tab::Collapsing).GetTabStyle()));
}

TEST_F(PropertyTabs, a_bitmap_of_the_application_is_divided_among_the_tabs) {
    Dialog dialog(calls, desk.frame, Tab::SingleHeight, IDB_CELS, false);
    AddPages(dialog);
    dialog.Create();
    dialog.SetFixedTabWidth(1);
    const int with = dialog.Strip().GetTabWidth(0);
    Dialog other(calls, desk.frame, Tab::SingleHeight, 9999, false);
    other.Add("&A", &c, true);
    other.SetFixedTabWidth(1);
    owl::TScreenDC dc;
    EXPECT_EQ(with, other.Strip().CalcTabWidth(dc, 0) + 8 + 12);
}

TEST_F(PropertyTabs, a_strip_that_ends_gives_back_all_that_it_made) {
    const DWORD before = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
    for (int i = 0; i < 20; ++i) {
        Dialog dialog(calls, desk.frame, Tab::FixedWidth, IDB_CELS, false);
        AddPages(dialog);
        dialog.Create();
        dialog.SetFixedTabWidth(200);
        dialog.Strip().AssessScroll();
        dialog.CmCancel();
    }
    EXPECT_EQ(before, ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
}

}  // namespace
