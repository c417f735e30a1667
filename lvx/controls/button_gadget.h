// lvx/controls/button_gadget.h
//
// A button for bars, made of one small picture: the images of the button at rest, disabled, undecided and
// pressed in are worked out of it once, and painting is no more than copying one of them.
//
//     bar->Insert(*new LVXButtonGadget(CM_SAVE, CM_SAVE));
//     bar->Insert(*new LVXButtonGadget(CM_GRID, CM_GRID, LVXButtonGadget::NonExclusive));
//     bar->Insert(*new owl::TSeparatorGadget);
//     bar->Insert(*new LVXButtonGadget(CM_LEFT, CM_LEFT, LVXButtonGadget::Exclusive));
//     bar->Insert(*new LVXButtonGadget(CM_RIGHT, CM_RIGHT, LVXButtonGadget::Exclusive));
//
// The picture is a bitmap resource of the bar's module, of at most 128 by 512 pixels, drawn for a light grey
// button: black, the two greys and white follow the user's colours, and light grey is transparent. Or several
// gadgets share an owl::TCelArray of the host's with images of its own.
//
// A button owns the images that it made. Its command goes the way of all gadgets' (owl/gadget_window.h), and
// whether it is enabled or checked is asked in idle moments. For the thread of the bar. Windows only. Does
// not: repeat a command while it is held down, whatever it was constructed with.
#pragma once

#include "lvx/platform/export.h"
#include "owl/bitmap.h"
#include "owl/cel_array.h"
#include "owl/command_enabler.h"
#include "owl/gadget.h"
#include "owl/hatch_brush.h"
#include "owl/resource_id.h"

namespace owl {
class TDib;
}

class LVX_EXPORT LVXButtonGadget : public owl::TGadget {
public:
    enum TType : int {
        /// Gives its command and comes up again.
        Command,
        /// One of a group, of which one at most is down: the exclusive buttons that stand side by side,
        /// without anything else between them.
        Exclusive,
        /// Goes down with one click and up with the next.
        NonExclusive,
    };
    enum TState : int { Up, Down, Indeterminate };
    /// How wide the shadow at the right and at the bottom is.
    enum TShadowStyle : int { SingleShadow = 1, DoubleShadow = 2 };

    /// The images. The last two are drawn over a hatch.
    enum TCel : int { NormalCel, DisabledCel, IndeterminateCel, DownCel, NumCels };

    /// A button with images of its own, made of the resource `glyph` when they are needed first. A text that
    /// names it is copied. `id` is the command. `repeat` is kept and has no effect. With a null `glyph` the
    /// button is an empty frame.
    explicit LVXButtonGadget(owl::TResId glyph, int id, TType type = Command, bool enabled = true,
                             TState state = Up, bool repeat = false);
    /// A button with the images of `cels`, which stays the caller's and must outlive it; they begin at the
    /// height `celRow` of its bitmap. Null is an empty frame.
    explicit LVXButtonGadget(owl::TCelArray* cels, int celRow, int id, TType type = Command,
                             bool enabled = true, TState state = Up, bool repeat = false);

    // The virtual operations stand in the order of the binary interface.

    ~LVXButtonGadget() override;
    /// As large as an image and the borders, less a pixel in width and two in height, so that images may have
    /// an empty edge.
    void GetDesiredSize(owl::TSize& size) override;
    void SetBounds(const owl::TRect& bounds) override;
    /// Asks by an LVXButtonGadgetEnabler, that goes through the bar. Nothing happens outside of bars.
    void CommandEnable() override;
    /// Makes the images anew.
    void SysColorChange() override;
    void Paint(owl::TDC& dc) override;
    /// Two lines at each side: raised, or pressed in while the button is down or held.
    void PaintBorder(owl::TDC& dc) override;
    void MouseEnter(UINT modifiers, const owl::TPoint& point) override;
    void MouseMove(UINT modifiers, const owl::TPoint& point) override;
    void MouseLeave(UINT modifiers, const owl::TPoint& point) override;
    void LButtonDown(UINT modifiers, const owl::TPoint& point) override;
    void LButtonUp(UINT modifiers, const owl::TPoint& point) override;
    /// The mouse holds the button down, or does so again, having been drawn off it.
    virtual void BeginPressed(const owl::TPoint& point);
    /// It does no longer.
    virtual void CancelPressed(const owl::TPoint& point);
    /// The button was pressed and let go: it takes its new state, and, if it is enabled, posts its command.
    /// An exclusive one that is down stays down and posts its command again.
    virtual void Activate(const owl::TPoint& point);

    TState GetButtonState() const { return State; }
    TType GetButtonType() const { return Type; }
    /// Nothing happens if the state is the same. An exclusive button that goes down brings the others of its
    /// group up.
    void SetButtonState(TState state);
    /// Sets the borders too. Shows when the bar is laid out next.
    void SetShadowStyle(TShadowStyle style);

    // Kept for the hosts that set them; they have no effect on how this class draws.

    void SetNotchCorners(bool notch = true) { NotchCorners = notch; }
    void SetAntialiasEdges(bool antialias = true) { AntialiasEdges = antialias; }

    /// Makes this gadget the one that is down in its group. The others that were are painted at once, it is
    /// not. Outside of bars it is alone.
    void CheckExclusively();

    /// The images, made if they are missing. Null if there is neither a glyph nor an array of the host's.
    /// Throws as BuildCelArray.
    owl::TCelArray* GetCels();
    /// The glyph in the user's colours, for ReleaseGlyphDib to delete. Null without a glyph. Throws
    /// owl::TXGdi if there is no such resource.
    owl::TDib* GetGlyphDib();
    /// Deletes what GetGlyphDib gave.
    void ReleaseGlyphDib(owl::TDib* glyph);
    /// Makes the images of the glyph, or makes them anew as the user's colours are now. Nothing happens
    /// without a glyph. Throws owl::TXGdi if the resource is missing or the system refuses, and
    /// lvx::runtime_error if the glyph is too large; the images are then those of before, if there were any.
    void BuildCelArray();

protected:
    /// Null with images of the host's. A text is this object's.
    owl::TResId ResId;
    /// The images; this object's if it has a glyph.
    owl::TCelArray* CelArray = nullptr;
    /// Where an image begins that stands in the middle of the gadget.
    owl::TPoint BitmapOrigin;
    TState State;
    TType Type;
    TShadowStyle ShadowStyle = DoubleShadow;
    bool Repeat;
    bool NotchCorners = false;
    /// The mouse holds the button down now.
    bool Pressed = false;
    bool AntialiasEdges = false;
    /// Where the images begin in a bitmap that several gadgets share.
    int CelRow = 0;

    // Shared by all buttons of the process.

    /// The hatch behind images that are down or undecided.
    static owl::THatch8x8Brush DitherBrush;
    /// One bit a pixel, to work out which part of a glyph is transparent. No glyph is larger.
    static owl::TBitmap GlyphMask;

private:
    bool IsDown() const { return Pressed || State == Down; }
    TCel CelToPaint() const;
    void ShowHint(int mode, int command);
    void Repaint();
    LVXButtonGadget* FirstOfGroup();
    LVXButtonGadget* NextOfGroup() const;
};

/// The question whether the command of a button is enabled and checked: the answers go to the button.
class LVX_EXPORT LVXButtonGadgetEnabler : public owl::TCommandEnabler {
public:
    /// `receiver` is the window of the bar. Requires: a gadget that outlives this one.
    LVXButtonGadgetEnabler(HWND receiver, LVXButtonGadget* gadget);
    ~LVXButtonGadgetEnabler() override;

    void Enable(bool enable = true) override;
    /// A button has no text.
    void SetText(const char* text) override;
    void SetCheck(int check) override;

private:
    LVXButtonGadget* m_gadget;
};
