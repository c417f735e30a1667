// owl/gadget_window.h
//
// A bar: a child window that lays gadgets (owl/gadget.h) side by side, from left to right or downward, paints
// them, brings them the mouse and lets them ask in idle moments whether their commands are enabled. It is as
// thick as its thickest gadget; what does not fit in its length is cut off.
//
//     auto* bar = new owl::TGadgetWindow(this);
//     bar->Insert(*new Button(CM_OPEN));
//     bar->Insert(*new owl::TSeparatorGadget);
//     Insert(*bar, Top);  // a frame's
//
// Owns its gadgets. Commands that a gadget gives, the questions about them, and what controls in the bar tell
// go to the parent window, unless a class derived from this one has a function for them. All functions of
// gadgets may insert and remove gadgets, delete them and themselves; none may delete the bar. Does not: wrap
// gadgets into rows, or stretch them.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "owl/font.h"
#include "owl/gadget.h"
#include "owl/window.h"

namespace owl {

class OWL_EXPORT TGadgetWindow : virtual public TWindow {
public:
    enum TTileDirection { Horizontal, Vertical };
    /// Where a gadget is inserted, seen from its neighbour.
    enum TPlacement { Before, After };
    /// When a gadget tells what its command does. The bar itself shows no hints: gadgets ask for the mode and
    /// call SetHintCommand().
    enum THintMode {
        NoHints,
        /// While it is pressed.
        PressHints,
        /// While the mouse is over it.
        EnterHints,
    };

    /// `font`, made by new, is for the gadgets that write and belongs to the bar; null is the system's font
    /// for dialogs. Length and place are those of Attr; with a length of 0 the bar is created as long as its
    /// gadgets.
    explicit TGadgetWindow(TWindow* parent, TTileDirection direction = Horizontal, TFont* font = nullptr,
                           TModule* module = nullptr);
    ~TGadgetWindow() override;

    // Gadgets

    /// Puts `gadget`, which then belongs to the bar, in front of or behind `sibling`; of null in front of or
    /// behind all. One that is in a bar already is taken out there first; if `sibling` goes by that, it is as
    /// with null. Throws TXOwl, and nothing is done,
    /// if `sibling` is not in this bar or is `gadget`; what the gadget's own functions throw comes out of
    /// here with the gadget inserted.
    void Insert(TGadget& gadget, TPlacement placement = After, TGadget* sibling = nullptr);
    /// Takes a gadget out; it then belongs to the caller. Returns it; null, and nothing is done, if it is not
    /// in this bar; null as well if it deletes itself as it goes. If it had the mouse, that is free. What its
    /// Removed throws comes out of here with the gadget out of the bar.
    TGadget* Remove(TGadget& gadget);
    /// In the order in which they stand; null if there is none.
    TGadget* FirstGadget() const;
    TGadget* NextGadget(const TGadget& gadget) const;
    unsigned NumGadgets() const { return static_cast<unsigned>(m_gadgets.size()); }
    /// The first with this id, or null.
    TGadget* GadgetWithId(int id) const;
    /// The first at a point of the client area, or null.
    TGadget* GadgetFromPoint(const TPoint& point) const;

    // Layout

    TTileDirection GetDirection() const { return m_direction; }
    void SetDirection(TTileDirection direction);
    /// What stays free around all gadgets; at first two pixels at each side.
    const TGadget::TMargins& GetMargins() const { return m_margins; }
    void SetMargins(const TGadget::TMargins& margins);
    /// The client area that all gadgets and the margins need.
    virtual void GetDesiredSize(TSize& size);
    /// Makes the bar as thick as it has to be, puts each gadget in its place, in the middle of the thickness,
    /// and tells the frame that the bar stands in. To be called when gadgets want other sizes than before;
    /// Insert, Remove and a new length do so themselves. Nothing happens without a window.
    void LayoutSession();

    const TFont& GetFont() const { return *m_font; }

    // Hints

    THintMode GetHintMode() const { return m_hintMode; }
    void SetHintMode(THintMode mode) { m_hintMode = mode; }
    /// Has the frame above show what the command `id` does (TFrameWindow::ShowHint); -1 ends that. Nothing
    /// happens if that is so already.
    void SetHintCommand(int id);
    /// The command whose hint shows; -1 if none does.
    int GetHintCommand() const { return m_hintCommand; }

    // Mouse

    /// The gadget that the mouse is over, or null. While a gadget captures the mouse that stays as it was.
    TGadget* AtMouse() const { return m_atMouse; }
    /// Brings all messages of the mouse to `gadget` until GadgetReleaseCapture. False if another one has the
    /// mouse, if the gadget is not in this bar, or if the bar has no window.
    bool GadgetSetCapture(TGadget& gadget);
    /// Nothing happens if another gadget or none has the mouse.
    void GadgetReleaseCapture(TGadget& gadget);

    // Messages

    LRESULT EvCommand(UINT id, HWND control, UINT notifyCode) override;
    LRESULT EvNotify(UINT id, TNotify& notify) override;
    void EvCommandEnable(TCommandEnabler& enabler) override;
    bool IdleAction(long idleCount) override;
    void Paint(TDC& dc, bool erase, TRect& rect) override;
    void SetupWindow() override;
    void CleanupWindow() override;

    void EvLButtonDown(UINT modifiers, const TPoint& point);
    void EvLButtonUp(UINT modifiers, const TPoint& point);
    void EvMouseMove(UINT modifiers, const TPoint& point);
    void EvRButtonDown(UINT modifiers, const TPoint& point);
    void EvRButtonUp(UINT modifiers, const TPoint& point);
    void EvSize(UINT how, const TSize& size);
    void EvSysColorChange();

protected:
    /// Calls `body` for each gadget, in their order; not for those that are gone by then.
    void ForEachGadget(const std::function<void(TGadget&)>& body);
    /// Puts each gadget in its place.
    virtual void TileGadgets();
    const char* GetClassName() override;
    /// Every press counts, however quick: there are no double clicks.
    void GetWindowClass(WNDCLASSA& windowClass) override;

private:
    friend class TGadget;
    struct Leaving;

    std::vector<TGadget*>::const_iterator Position(const TGadget* gadget) const;
    bool Holds(const TGadget* gadget) const;
    bool HasFunctionFor(UINT event, UINT id, UINT notifyCode = 0);
    void LetGoOf(const TGadget& gadget);
    TGadget* TakeOut(TGadget& gadget);
    void GadgetEnds(TGadget& gadget);
    void EndHint() noexcept;

    int Along(const TSize& size) const;
    int Across(const TSize& size) const;
    TSize SizeOf(int along, int across) const;
    TSize SizeToHave();
    void PaintGadget(TDC& dc, TGadget& gadget);

    TGadget* Receiver(const TPoint& point) const;
    void NoteMouse(UINT modifiers, const TPoint& point);
    void ListenForLeaving();
    void LoseCapture();
    void LoseMouse();
    LRESULT EvCaptureChanged(WPARAM wParam, LPARAM lParam);
    LRESULT EvMouseLeave(WPARAM wParam, LPARAM lParam);

    std::vector<TGadget*> m_gadgets;
    TTileDirection m_direction;
    TGadget::TMargins m_margins{2, 2, 2, 2};
    std::unique_ptr<TFont> m_font;
    THintMode m_hintMode = NoHints;
    int m_hintCommand = -1;
    TGadget* m_atMouse = nullptr;
    TGadget* m_capture = nullptr;
    // Those on their way out, the last one first.
    Leaving* m_leaving = nullptr;
    // Counts how often the gadgets were put in their places.
    unsigned m_tilings = 0;
    // Between SetupWindow and CleanupWindow. While its window is being made a bar lays nothing out.
    bool m_setUp = false;

    DECLARE_RESPONSE_TABLE(TGadgetWindow);
};

}  // namespace owl
