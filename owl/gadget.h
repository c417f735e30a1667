// owl/gadget.h
//
// A part of a bar that is no window: a button, a gap. Its bar (owl/gadget_window.h) gives it a place, has it
// painted and brings it the mouse. One that stands for a command asks in idle moments, through CommandEnable,
// whether the command is enabled.
//
// A gadget is made by new and belongs to the bar that it is inserted in; deleted sooner, it takes itself out.
// Points and rectangles that it gets and draws with count from its own upper left corner; its bounds alone
// are in the bar's client area. Used on the thread of its bar. The virtual operations are there to be
// overridden; the bar calls them.
#pragma once

#include <windows.h>

#include "owl/geometry.h"
#include "owl/platform/export.h"

namespace owl {

class TDC;
class TGadgetWindow;

class OWL_EXPORT TGadget {
public:
    /// How the border looks.
    enum TBorderStyle {
        None,
        /// A line in the colour of window frames.
        Plain,
        /// Lit from the upper left: standing out, or pressed in.
        Raised,
        Recessed,
        /// A groove.
        Embossed,
    };

    /// So many pixels at each side.
    struct TSides {
        int Left = 0;
        int Top = 0;
        int Right = 0;
        int Bottom = 0;

        friend bool operator==(const TSides&, const TSides&) = default;
    };
    /// Where the border is drawn, outermost.
    using TBorders = TSides;
    /// What stays free inside of the border.
    using TMargins = TSides;

    /// `id` is the command that the gadget stands for; 0 is none. The gadget is enabled, as wide as its
    /// border, and in no bar.
    explicit TGadget(int id = 0, TBorderStyle style = None);
    virtual ~TGadget();
    TGadget(const TGadget&) = delete;
    TGadget& operator=(const TGadget&) = delete;

    /// A disabled gadget is told of the mouse that enters and leaves, but not of its buttons. A change is
    /// painted at once.
    virtual void SetEnabled(bool enabled);
    /// Says how large the gadget wants to be. By itself its borders and margins. What overrides it calls it
    /// first and adds its contents.
    virtual void GetDesiredSize(TSize& size);
    /// Puts the gadget at `bounds` of the bar's client area. Called by the bar; a gadget that is put
    /// elsewhere stays there until the bar is laid out anew. What overrides it calls it first.
    virtual void SetBounds(const TRect& bounds);
    /// Called when no message waits, with what TMsgThread::IdleAction counts; true asks for more. By itself,
    /// the first time behind a message, it calls CommandEnable.
    virtual bool IdleAction(long idleCount);
    /// Asks whether the command is enabled. By itself nothing.
    virtual void CommandEnable();
    /// The user has changed the colours of the screen; the bar is painted anew afterwards.
    virtual void SysColorChange();
    /// The bar's window has been made, or the gadget has come into a bar that has one.
    virtual void Created();
    /// The gadget is in a bar now.
    virtual void Inserted();
    /// The bounds have changed.
    virtual void Moved();
    /// The gadget is no longer among those of the bar that GetGadgetWindow tells, for the last time. Not
    /// called when gadget and bar end together.
    virtual void Removed();
    /// Whether a point lies on the gadget. By itself its whole rectangle.
    virtual bool PtIn(const TPoint& point);
    /// Paints the gadget on the bar's background. By itself the border.
    virtual void Paint(TDC& dc);
    /// Paints the border in its style, around the whole rectangle.
    virtual void PaintBorder(TDC& dc);
    /// The mouse has come over the gadget. By itself nothing.
    virtual void MouseEnter(UINT modifiers, const TPoint& point);
    /// The mouse has moved, on the gadget or anywhere else: called only while the gadget captures it. If
    /// something else takes the mouse away, a last call has a point outside. By itself nothing.
    virtual void MouseMove(UINT modifiers, const TPoint& point);
    /// It has gone from the gadget, as far as the bar knows; the point may be any.
    virtual void MouseLeave(UINT modifiers, const TPoint& point);
    /// The left button was pressed on the gadget. By itself the gadget captures the mouse.
    virtual void LButtonDown(UINT modifiers, const TPoint& point);
    virtual void RButtonDown(UINT modifiers, const TPoint& point);
    /// The left button was let go on the gadget, or anywhere while the gadget captures the mouse. By itself
    /// the mouse is free again.
    virtual void LButtonUp(UINT modifiers, const TPoint& point);
    virtual void RButtonUp(UINT modifiers, const TPoint& point);

    int GetId() const { return m_id; }
    bool GetEnabled() const { return m_enabled; }
    /// The bar that the gadget is in, or null.
    TGadgetWindow* GetGadgetWindow() const { return m_window; }
    /// The one behind it in its bar; null for the last one and outside of bars.
    TGadget* NextGadget() const;

    const TRect& GetBounds() const { return m_bounds; }
    /// What borders and margins leave of the gadget's rectangle. Not normal if they are larger.
    TRect GetInnerRect() const;
    void GetInnerRect(TRect& rect) const { rect = GetInnerRect(); }

    // What changes the size that the gadget wants shows when the bar is laid out next.

    const TBorders& GetBorders() const { return m_borders; }
    void SetBorders(const TBorders& borders) { m_borders = borders; }
    const TMargins& GetMargins() const { return m_margins; }
    void SetMargins(const TMargins& margins) { m_margins = margins; }
    TBorderStyle GetBorderStyle() const { return m_borderStyle; }
    /// Sets the borders to what the style takes, too: two pixels embossed, none without a border, else one.
    void SetBorderStyle(TBorderStyle style);

    // Has a part painted anew, all of it, at once what is still to be painted in the bar. Nothing happens
    // outside of bars.

    void InvalidateRect(const TRect& rect, bool erase = true);
    void Invalidate(bool erase = true);
    void Update();

private:
    friend class TGadgetWindow;

    TGadgetWindow* m_window = nullptr;
    int m_id;
    bool m_enabled = true;
    TRect m_bounds;
    TBorderStyle m_borderStyle = None;
    TBorders m_borders;
    TMargins m_margins;
};

}  // namespace owl
