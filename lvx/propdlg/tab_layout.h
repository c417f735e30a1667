// lvx/propdlg/tab_layout.h
//
// The arithmetic of a strip of tabs: how wide each tab is, on which row it stands, what is scrolled out of
// sight, which tab lies under a point. No window is in it: TabState holds what is known of the strip, a
// TabSurface measures and is told what has to be painted, and TabLayout, made for the moment, works on the
// two. One thread at a time. TPropertyTab is the strip that the user sees.
//
// Rectangles are in the strip's client coordinates. The `right` of a tab's rectangle is its last column of
// pixels. Indices count from 0; one that has no tab throws std::out_of_range "invalid vector<T> subscript"
// where a tab's own fields are asked for, and otherwise finds nothing. Arithmetic is in 32 bits and wraps.
#pragma once

#include <string>

#include "lvx/platform/export.h"
#include "lvx/propdlg/tab_style.h"
#include "owl/array.h"
#include "owl/color.h"
#include "owl/geometry.h"

class LVXPropertyPage;

namespace owl {
class TBitmap;
class TCelArray;
class TFont;
}  // namespace owl

/// One tab.
struct TPropertyEntry {
    /// The caption. An ampersand stands in front of the hot key; carriage returns begin a new line.
    std::string Text;
    /// The page behind the tab; whoever holds the entry does not own it.
    LVXPropertyPage* Page = nullptr;
    /// In pixels; 0 until the strip is laid out.
    int Width = 0;
    /// Whether the tab can be chosen.
    bool Enabled = true;
};

namespace lvx::propdlg {

/// So many rows a stacked strip has at most; tabs that do not fit into them stand in the last one.
inline constexpr int most_tab_rows = 20;

/// The tabs of a row, from the first to the last; none if the last stands below the first.
struct TabRow {
    int First = 0;
    int Last = -1;
};

/// What is known of a strip. The pointers are the strip's; the arithmetic does not follow them.
struct LVX_EXPORT TabState {
    /// A strip without tabs. Of the flags that exclude each other WizardFrame comes first, then Stacked.
    explicit TabState(Tab::Style style);

    owl::TArrayAsVector<TPropertyEntry> Entries;
    /// Of the tabs that are not selected.
    owl::TFont* TabFont = nullptr;
    /// Of the selected tab, and for measuring.
    owl::TFont* SelectedFont = nullptr;
    owl::TColor ActiveColor;
    int SelectedTab = 0;
    Tab::Style Style;
    /// The height of a row.
    int TabHeight = 0;
    int TextHeight = 0;
    /// The width under FixedWidth, and otherwise the smallest.
    int FixedTabWidth = 64;
    int WideMarginWidth = 6;
    /// Where pages stand.
    owl::TRect PageRect;
    int RowCount = 0;
    TabRow Rows[most_tab_rows];
    /// Always each row once. Those that exist (below RowCount) are shown in this order from the page upward:
    /// without regard to the others, because a strip may have fewer rows than when one was brought forward.
    int RowOrder[most_tab_rows];
    /// The first tab that is shown, unless the strip is stacked.
    int Origin = 0;
    bool ScrollLeft = false;
    bool ScrollRight = false;
    /// The last column of pixels that tabs may use.
    int TabsRight = 0;
    owl::TBitmap* ScrollLeftBitmap = nullptr;
    owl::TBitmap* ScrollRightBitmap = nullptr;
    owl::TColor HilightColor;
    owl::TColor FaceColor;
    owl::TColor ShadowColor;
    owl::TColor FrameColor;
    owl::TCelArray* TabBitmaps = nullptr;
    bool BitmapsOnRight = false;
    /// The tab of the last selection that was finished.
    int LastSelected = 0;
};

/// The arrows that scroll a strip; the values are those of GetScrollRect().
enum class ScrollArrow { Left = 0, Right = 1 };

/// Whether a text may be broken between words to fit the width.
enum class LineBreaks { Own, BetweenWords };

/// What lies under a point of the strip.
enum class StripPart { Tabs, LeftArrow, RightArrow, DimmedArrow };

/// What the arithmetic asks of the window, and what it tells it.
class LVX_EXPORT TabSurface {
public:
    virtual ~TabSurface();

    /// Whether there is a window at all. Without one nothing is laid out.
    virtual bool HasWindow() const = 0;
    virtual owl::TRect ClientRect() const = 0;
    /// The size of a scroll arrow: SM_CXHSCROLL by SM_CYHSCROLL.
    virtual owl::TSize ArrowSize() const = 0;
    /// What DrawText makes of `within` with DT_CALCRECT and the font of the selected tab.
    virtual owl::TRect MeasureText(const std::string& text, const owl::TRect& within, LineBreaks breaks) = 0;
    /// The width of the bitmap with all cels; 0 if there is none.
    virtual int CelsWidth() const = 0;

    virtual void Invalidate(const owl::TRect& rect, bool erase) = 0;
    virtual void UpdateWindow() = 0;
    /// Loads the picture of an arrow anew, dimmed if the strip cannot scroll that way.
    virtual void LoadArrow(ScrollArrow arrow, bool canScroll) = 0;
    virtual void DropArrows() = 0;
    /// The height of the strip has changed: pages are to be put where they belong now.
    virtual void RedrawDialogs() = 0;
};

class LVX_EXPORT TabLayout {
public:
    /// Both live longer than this.
    TabLayout(TabState& state, TabSurface& surface) : m_state(state), m_surface(surface) {}

    // Tabs one by one

    int GetEntryCount() const { return m_state.Entries.GetItemsInContainer(); }
    bool IsTabEnabled(int tab) const { return m_state.Entries[tab].Enabled; }
    /// True unless tabs collapse: then whether the tab is enabled.
    bool IsTabVisible(int tab) const;

    // Where things are

    /// All rows, for a `row` of -1; or the row at that position, 0 next to the page. Bottoms are the last
    /// line of pixels. A strip with arrows ends 8 pixels left of them.
    void SetRect(owl::TRect& rect, int row) const;
    /// An arrow by its number in ScrollArrow; any other number is both. They share a column of pixels.
    void GetScrollRect(owl::TRect& rect, int which) const;
    /// Whether the tab is to be seen. If not, `rect` is still set: a hidden tab has the place where it would
    /// begin, one that does not stand on the strip leaves the strip's own rectangle. The tabs in front of
    /// `start` count as scrolled away; below 0 it is the origin, and a stacked strip has none.
    bool GetTabRect(owl::TRect& rect, int tab, int start) const;
    /// The position of the row in which the tab stands, 0 next to the page; -1 if it stands in none.
    int GetTabRow(int tab) const;
    /// The row that is shown at a position; -1 if there is none.
    int RowAt(int position) const;
    /// The enabled tab at a point; -1 if there is none.
    int GetMouseTab(const owl::TPoint& point) const;
    StripPart PartAt(const owl::TPoint& point) const;
    /// The last tab; or the last one that ends within the strip. 0 if there is none.
    int GetLastTab(bool visibleOnly) const;

    // Widths

    int CalcTabWidth(int tab);
    /// Gives each tab its own width and makes the rows.
    void CalculateBasicTabWidths();
    /// The same, and shares out what is to spare. Does nothing if the strip has no size yet.
    void CalculateTabWidths();
    /// The same for a strip that is justified, and has it painted.
    void ReassessTabWidths();

    // Scrolling

    /// Finds out whether the strip can scroll either way. Returns whether it has arrows.
    bool AssessScroll();
    /// Scrolls by steps of `direction` to an enabled tab or to either end.
    void NextOrigin(int direction);
    /// Scrolls a tab into view. Returns whether it had to; false for an index that has no tab.
    bool AdjustOrigin(int tab);

    // Changes

    /// 0 is the width to begin with.
    void SetFixedTabWidth(int width);
    void SetWideMarginWidth(int width);
    void EnableTab(int tab, bool enable);
    /// A null text is an empty one.
    void SetTabText(int tab, const char* text);
    /// To be called when the window has another size.
    void Resized();

    // Selection

    /// The first tab that is visible and enabled; -1 if there is none.
    int FirstUsableTab() const;
    /// The next such tab from the selected one on, by steps of `direction` and around the ends; -1 if there
    /// is no other.
    int NextUsableTab(int direction) const;
    /// Puts the row of a tab next to the page, in exchange for the one that is there.
    void BringRowForward(int tab);
    /// Has the former and the new selected tab painted; `scrolled` is what AdjustOrigin() returned.
    void ShowSelection(int former, bool scrolled);

private:
    bool Has(Tab::Style flag) const { return Tab::Has(m_state.Style, flag); }
    bool HasArrows() const { return m_state.ScrollLeft || m_state.ScrollRight; }
    bool HasEntry(int tab) const { return tab >= 0 && tab < GetEntryCount(); }
    bool IsUsable(int tab) const { return IsTabVisible(tab) && IsTabEnabled(tab); }
    owl::TRect StripRect() const;
    owl::TRect ArrowsRect() const;
    /// Where in RowOrder the row at a position stands; -1 if there is none.
    int SlotAt(int position) const;
    TabRow RunOf(int tab, int start, owl::TRect& rect) const;
    int CaptionWidth(const std::string& caption);
    int TwoLineWidth(const std::string& caption);
    void MakeRows();
    TabRow FillRow(int first, const owl::TRect& strip) const;
    bool JustifyRow(const TabRow& row, int room);
    int OriginAfter(int direction) const;
    void LoadArrows(bool leftChanged, bool rightChanged);
    void LayOutAgain();
    void CollapseAround(const owl::TRect& rect);
    void RenameStacked();
    void RenameOnRow(int tab);
    void InvalidateTab(int tab);

    TabState& m_state;
    TabSurface& m_surface;
};

/// `style` as a strip takes it.
LVX_EXPORT Tab::Style NormalisedStyle(Tab::Style style);
/// The height of a row of tabs with lines of this height.
LVX_EXPORT int TabHeightFor(Tab::Style style, int textHeight);

}  // namespace lvx::propdlg
