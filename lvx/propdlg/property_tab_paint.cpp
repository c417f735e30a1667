// What a strip looks like but for the single tab: arrows, rows, the frame of the page, the frame of a wizard.
#include "lvx/propdlg/property_tab.h"
#include "lvx/propdlg/strip_lines.h"
#include "lvx/propdlg/strip_surface.h"
#include "owl/memory_dc.h"

using lvx::propdlg::draw_line;
using lvx::propdlg::fill_rect;

namespace {

constexpr int both_arrows = -1;
constexpr int gap_at_arrows = 8;
// The jagged edge of a tab that is cut lies in the first columns of the gap.
constexpr int columns_of_jag = 3;
// From either side to the ends of a wizard's line.
constexpr int wizard_margin = 12;

void draw_arrow(owl::TDC& dc, const owl::TBitmap* bitmap, const owl::TRect& rect) {
    if (bitmap == nullptr)
        return;
    owl::TMemoryDC source(dc);
    source.SelectObject(*bitmap);
    dc.BitBlt(rect, source, owl::TPoint(), SRCCOPY);
}

}  // namespace

void TPropertyTab::Paint(owl::TDC& dc, bool, owl::TRect& rect) {
    if (Tab::Has(Style, Tab::WizardFrame)) {
        DrawWizardFrame(dc);
        return;
    }
    owl::TRect page = GetClientRect();
    page = owl::TRect(page.left, page.top + TabHeight, page.right - 1, page.bottom - 1);
    owl::TRect arrows;
    GetScrollRect(arrows, both_arrows);
    owl::TRect strip;
    SetRect(strip, -1);
    // The lines that close the strip against the page are the strip's.
    strip.bottom += 2;
    const int saved = dc.SaveDC();
    if ((ScrollLeft || ScrollRight) && rect.Touches(arrows))
        DrawArrows(dc);
    if (rect.Touches(owl::TRect(page.left, page.top, page.right + 1, page.bottom + 1)))
        DrawPageFrame(dc);
    if (rect.Touches(strip)) {
        if (Tab::Has(Style, Tab::Stacked))
            DrawStackedTabs(dc);
        else
            DrawTabs(dc);
    }
    dc.RestoreObjects();
    dc.RestoreDC(saved);
}

// What is drawn here is kept from being painted over, so that it does not flicker.
void TPropertyTab::DrawArrows(owl::TDC& dc) {
    owl::TRect left;
    owl::TRect right;
    owl::TRect both;
    GetScrollRect(left, 0);
    GetScrollRect(right, 1);
    GetScrollRect(both, both_arrows);
    draw_arrow(dc, ScrollLeftBitmap, left);
    draw_arrow(dc, ScrollRightBitmap, right);
    const int from = both.left - gap_at_arrows;
    draw_line(dc, HilightColor, {{from, TabHeight}, {both.right, TabHeight}});
    dc.ExcludeClipRect(both);
    fill_rect(dc, FaceColor, owl::TRect(from, 0, both.right, TabHeight));
    dc.ExcludeClipRect(owl::TRect(from + columns_of_jag, 0, both.right, TabHeight));
}

// Without a line above: that is drawn with the tabs, which interrupt it where the selected one stands.
void TPropertyTab::DrawPageFrame(owl::TDC& dc) {
    const owl::TRect client = GetClientRect();
    const int right = client.right - 1;
    const int bottom = client.bottom - 1;
    const int top = client.top + TabHeight;
    draw_line(dc, HilightColor, {{client.left, top}, {client.left, bottom}});
    draw_line(dc, FrameColor, {{client.left, bottom}, {right, bottom}, {right, top - 1}});
    const owl::TRect inner = owl::TRect(client.left, top, right, bottom).InflatedBy(-1, -1);
    draw_line(dc, ShadowColor,
              {{inner.left, inner.bottom}, {inner.right, inner.bottom}, {inner.right, inner.top - 1}});
    fill_rect(dc, FaceColor, inner);
}

void TPropertyTab::CloseAgainstPage(owl::TDC& dc, int from, int to, int y) {
    draw_line(dc, HilightColor, {{from, y}, {to, y}});
    draw_line(dc, FaceColor, {{from, y - 1}, {to, y - 1}});
}

// What a row has to the right of its last tab.
void TPropertyTab::FillRowEnd(owl::TDC& dc, int x, const owl::TRect& row) {
    fill_rect(dc, FaceColor, owl::TRect(x, row.top, row.right, row.bottom + 1));
}

void TPropertyTab::DrawTabs(owl::TDC& dc) {
    owl::TRect strip;
    SetRect(strip, -1);
    int x = strip.left;
    for (int tab = Origin; tab < GetEntryCount() && x <= TabsRight; ++tab) {
        if (!IsTabVisible(tab))
            continue;
        const int from = x;
        DrawTab(dc, x, tab, 0, true);
        if (tab != SelectedTab)
            CloseAgainstPage(dc, from, x, TabHeight);
    }
    if (x >= strip.right)
        return;
    draw_line(dc, HilightColor, {{x, TabHeight}, {strip.right, TabHeight}});
    FillRowEnd(dc, x, strip);
}

void TPropertyTab::DrawStackedTabs(owl::TDC& dc) {
    Arithmetic layout(*this);
    for (int position = 0; position < RowCount; ++position) {
        owl::TRect place;
        SetRect(place, position);
        const lvx::propdlg::TabRow& row = Rows[layout->RowAt(position)];
        int x = 0;
        for (int tab = row.First; tab <= row.Last; ++tab) {
            const int from = x;
            DrawTab(dc, x, tab, place.top, position == 0);
            if (position == 0 && tab != SelectedTab)
                CloseAgainstPage(dc, from, x, place.top + TabHeight);
        }
        // A row that is too wide elsewhere leaves the others as narrow as their texts.
        if (x >= place.right)
            continue;
        FillRowEnd(dc, x, place);
        if (position == 0)
            draw_line(dc, HilightColor, {{x, place.top + TabHeight}, {place.right, place.top + TabHeight}});
    }
}

void TPropertyTab::DrawWizardFrame(owl::TDC& dc) {
    const owl::TRect client = GetClientRect();
    fill_rect(dc, FaceColor, owl::TRect(client.left, client.bottom - 2, client.right, client.bottom));
    const int left = wizard_margin;
    const int right = client.right - wizard_margin;
    draw_line(dc, FrameColor, {{left, client.bottom - 1}, {right, client.bottom - 1}});
    draw_line(dc, HilightColor, {{left, client.bottom - 2}, {right, client.bottom - 2}});
}
