// What a tab looks like.
#include "lvx/propdlg/masked_blit.h"
#include "lvx/propdlg/property_tab.h"
#include "lvx/propdlg/strip_lines.h"
#include "lvx/propdlg/strip_surface.h"
#include "owl/memory_dc.h"

using lvx::propdlg::draw_line;
using lvx::propdlg::fill_polygon;
using lvx::propdlg::fill_rect;

namespace {

// By so much a tab that is not selected is lower and narrower.
constexpr int lower_by = 2;
constexpr int narrower_by = 1;
constexpr int gap_at_arrows = 8;
constexpr int room_before_cel = 6;
constexpr int room_around_cel = 12;
constexpr int more_than_a_line = 4;

}  // namespace

// A tab that is being drawn. `m_right` is one behind its last column; `m_bottom` lies behind the row's last
// line, and on the row next to the page behind the line that closes it.
class TPropertyTab::TabPainter {
public:
    TabPainter(TPropertyTab& strip, owl::TDC& dc, int x, int tab, int y, bool lowestRow)
        : m_strip(strip),
          m_dc(dc),
          m_tab(tab),
          m_selected(tab == strip.SelectedTab),
          m_lowestRow(lowestRow),
          m_x(x),
          m_y(y),
          m_left(m_selected ? x : x + narrower_by),
          m_top(m_selected ? y : y + lower_by),
          m_right(x + strip.Entries[tab].Width),
          m_bottom(y + strip.TabHeight + (lowestRow ? 1 : 0)),
          m_fill(m_left + 1, m_top + 1, m_right - 2, m_bottom) {}

    void Draw() {
        CutAtArrows();
        const bool isActive = m_selected && Tab::Has(m_strip.Style, Tab::ColorActive);
        fill_rect(m_dc, isActive ? m_strip.ActiveColor : m_strip.FaceColor, m_fill);
        if (!m_lowestRow)
            ++m_fill.bottom;
        Outline(isActive);
        if (m_selected)
            CutCorners();
        else
            CoverWhatIsBehind();
        const int saved = m_dc.SaveDC();
        ClipToOutline();
        Contents();
        m_dc.RestoreDC(saved);
    }

private:
    // A tab that runs under the arrows ends in a jagged line.
    void CutAtArrows() {
        if (!m_strip.ScrollLeft && !m_strip.ScrollRight)
            return;
        owl::TRect arrows;
        m_strip.GetScrollRect(arrows, -1);
        const int cut = arrows.left - gap_at_arrows;
        if (m_fill.right <= cut)
            return;
        const int step = (arrows.bottom - m_top) / 3;
        draw_line(m_dc, m_strip.ShadowColor,
                  {{cut + 1, m_top},
                   {cut + 2, m_top + step},
                   {cut, m_top + 2 * step},
                   {cut + 2, arrows.bottom - 2},
                   {cut + 1, arrows.bottom}});
        m_cut = owl::TRect(cut, m_top, arrows.right, arrows.bottom);
        m_dc.ExcludeClipRect(m_cut);
    }

    void Outline(bool isActive) {
        draw_line(m_dc, m_strip.HilightColor,
                  {{m_left, m_bottom - 1}, {m_left, m_top + 2}, {m_left + 2, m_top}, {m_right - 2, m_top}});
        draw_line(m_dc, isActive ? m_strip.HilightColor : m_strip.ShadowColor,
                  {{m_right - 2, m_top + 2}, {m_right - 2, m_bottom}});
        draw_line(m_dc, m_strip.FrameColor,
                  {{m_right - 2, m_top + 1}, {m_right - 1, m_top + 2}, {m_right - 1, m_bottom}});
    }

    void CutCorners() {
        const owl::TColor face = m_strip.FaceColor;
        fill_polygon(m_dc, face, {{m_left, m_top}, {m_left + 2, m_top}, {m_left, m_top + 2}});
        fill_polygon(m_dc, face, {{m_right - 2, m_top}, {m_right, m_top}, {m_right, m_top + 2}});
    }

    void CoverWhatIsBehind() {
        fill_polygon(m_dc, m_strip.FaceColor,
                     {{m_x, m_y},
                      {m_right, m_y},
                      {m_right, m_top + 2},
                      {m_right - 2, m_top},
                      {m_left + 2, m_top},
                      {m_left, m_top + 2},
                      {m_x, m_top + 2}});
        draw_line(m_dc, m_strip.HilightColor, {{m_x, m_y}, {m_x, m_y + m_strip.TabHeight}});
    }

    // Within what is being painted: a region that is selected would be in place of that.
    void ClipToOutline() {
        const owl::TPoint outline[] = {{m_left, m_bottom},   {m_left, m_top + 2},  {m_left + 2, m_top},
                                       {m_right - 2, m_top}, {m_right, m_top + 2}, {m_right, m_bottom}};
        const owl::TRegion region(outline, 6, WINDING);
        ::ExtSelectClipRgn(m_dc.GetHDC(), region, RGN_AND);
        if (!m_cut.IsEmpty())
            m_dc.ExcludeClipRect(m_cut);
    }

    void Contents() {
        m_dc.SelectObject(m_selected ? *m_strip.SelectedFont : *m_strip.TabFont);
        m_dc.SetBkMode(TRANSPARENT);
        m_dc.SetTextColor(m_strip.Entries[m_tab].Enabled ? owl::TColor(::GetSysColor(COLOR_WINDOWTEXT))
                                                         : owl::TColor::LtGray);
        owl::TRect text = m_fill;
        const unsigned format = TextFormat();
        if (m_strip.TabBitmaps != nullptr)
            text.left = DrawCel();
        m_dc.DrawText(m_strip.Entries[m_tab].Text, text, format | DT_CENTER);
        if (m_selected && ::GetFocus() == m_strip.GetHandle())
            m_dc.DrawFocusRect(m_fill);
    }

    unsigned TextFormat() {
        owl::TRect measured = m_fill;
        m_dc.DrawText(m_strip.Entries[m_tab].Text, measured, DT_CALCRECT | DT_WORDBREAK | DT_CENTER);
        const bool wraps = Tab::Has(m_strip.Style, Tab::DoubleHeight) &&
                           measured.Height() > m_strip.TextHeight + more_than_a_line;
        return wraps ? DT_WORDBREAK : DT_VCENTER | DT_SINGLELINE;
    }

    // Returns where the text begins.
    int DrawCel() {
        const owl::TBitmap& bitmap = *m_strip.TabBitmaps;
        const int width = bitmap.Width() / m_strip.GetEntryCount();
        const int height = m_strip.BitmapsOnRight ? bitmap.Height() / 2 : bitmap.Height();
        const owl::TPoint at(m_fill.left + room_before_cel, m_fill.top + (m_fill.Height() - height) / 2);
        if (width <= 0) {
            // More tabs than columns.
        } else if (m_strip.BitmapsOnRight) {
            lvx::propdlg::masked_blit(m_dc, at, &bitmap, m_tab * width, width);
        } else {
            owl::TMemoryDC source(m_dc);
            source.SelectObject(bitmap);
            m_dc.BitBlt(owl::TRect(at, owl::TSize(width, height)), source,
                        m_strip.TabBitmaps->CelOffset(m_tab));
        }
        return m_fill.left + width + room_around_cel;
    }

    TPropertyTab& m_strip;
    owl::TDC& m_dc;
    int m_tab;
    bool m_selected;
    bool m_lowestRow;
    int m_x;
    int m_y;
    int m_left;
    int m_top;
    int m_right;
    int m_bottom;
    owl::TRect m_fill;
    owl::TRect m_cut;
};

void TPropertyTab::DrawTab(owl::TDC& dc, int& x, int tab, int y, bool lowestRow) {
    TabPainter(*this, dc, x, tab, y, lowestRow).Draw();
    x += Entries[tab].Width;
}
