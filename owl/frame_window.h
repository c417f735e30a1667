// owl/frame_window.h
//
// A top-level window with a caption and perhaps a menu, an icon, accelerators, bars along its edges and a
// client window that fills the rest of its client area. It brings commands to the window that has the focus
// first, then to its client, to itself and to the application, and enables the items of a menu when it opens.
#pragma once

#include "owl/window.h"

namespace owl {

class OWL_EXPORT TFrameWindow : virtual public TWindow {
public:
    /// `client` becomes a child of the frame and belongs to it; null is none. With `shrinkToClient` the frame
    /// takes the size that the client's Attr.W and H ask for. The frame is not created with its parent.
    explicit TFrameWindow(TWindow* parent, const char* title = nullptr, TWindow* client = nullptr,
                          bool shrinkToClient = false, TModule* module = nullptr);
    ~TFrameWindow() override;

    /// Null if there is none, or if it is no child any more.
    TWindow* GetClientWindow() const;
    /// Puts another client in place of the present one, which is returned and is then hidden and nobody's
    /// child.
    TWindow* SetClientWindow(TWindow* client);
    /// Uses the menu resource `menu`, at once if the window exists. False if there is no such menu; the
    /// former one stays then.
    bool AssignMenu(TResId menu);
    /// The window that gets commands when the focus is outside of the frame or in one of its bars: the client
    /// if there is one, else the frame. Null without a window.
    virtual HWND CommandTarget() const;
    /// Uses the icon `icon` of `module`; a null module is the system's. False if there is no such icon.
    bool SetIcon(TModule* module, TResId icon);

    // Bars, in frame_bars.cpp.

    /// An edge of the client area.
    enum TEdge { Top, Bottom, Left, Right };

    /// Makes `bar` a child of the frame, which owns it then, and lays it along an edge, inside of the bars
    /// that were inserted before. It is as long as there is room, and keeps its height at the top and at the
    /// bottom, its width at the sides. One that is a bar of the frame already goes to the edge anew; a client
    /// is the client no more.
    void Insert(TWindow& bar, TEdge edge = Top);
    /// Lays bars and client anew; for who has shown, hidden or resized a bar. A hidden bar takes no room.
    void ArrangeBars();
    /// What the bars leave of the client area, where the client is.
    TRect GetClientRoom() const;
    /// The frame that `window` stands in, however deep, or is itself; null if there is none.
    static TFrameWindow* FrameOf(TWindow* window);
    /// Called to show what `command` does, by the bars in the frame and its children; with -1 and an empty
    /// text to end that. By itself the frame that this one stands in is called.
    virtual void ShowHint(int command, const std::string& text);

    LRESULT EvCommand(UINT id, HWND control, UINT notifyCode) override;
    void EvCommandEnable(TCommandEnabler& enabler) override;
    void SetupWindow() override;

    /// Enables, checks and names the items of a menu that opens.
    void EvInitMenuPopup(HMENU menu, UINT position, bool systemMenu);
    /// Hands the focus to who had it when the frame was active last, else to the client.
    void EvSetFocus(HWND lost);
    void EvActivate(UINT active, bool minimised, HWND other);
    void EvSize(UINT how, const TSize& size);

protected:
    TFrameWindow();
    void Init(TWindow* parent, const char* title, TWindow* client, bool shrinkToClient, TModule* module);
    const char* GetClassName() override;
    void GetWindowClass(WNDCLASSA& windowClass) override;
    /// Shows `menu` as the menu bar and returns the former one, which is then the caller's.
    virtual HMENU ExchangeMenu(HMENU menu);
    /// Keeps in mind who has the focus, if that is within the frame.
    void RememberFocus();
    void ChildLeft(const TWindow& child) override;

private:
    struct Bar {
        TWindow* window;
        TEdge edge;
    };

    bool TakesRoom(const Bar& bar) const;
    TSize RoomForBars() const;
    template <class Body>
    bool OfferToTargets(const Body& body);
    void FitClient();
    void ShrinkToClient();
    void ShowIcon();

    TWindow* m_client = nullptr;
    bool m_shrinkToClient = false;
    std::vector<Bar> m_bars;
    HWND m_focus = nullptr;
    HICON m_icon = nullptr;
    HICON m_smallIcon = nullptr;

    DECLARE_RESPONSE_TABLE(TFrameWindow);
};

}  // namespace owl
