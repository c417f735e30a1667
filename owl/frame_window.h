// owl/frame_window.h
//
// A top-level window with a caption and perhaps a menu, an icon, accelerators and a client window that fills
// its client area. It brings commands to the window that has the focus first, then to its client, to itself
// and to the application, and enables the items of a menu when it opens.
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

private:
    template <class Body>
    bool OfferToTargets(const Body& body);
    void FitClient();
    void ShrinkToClient();
    void ShowIcon();

    TWindow* m_client = nullptr;
    bool m_shrinkToClient = false;
    HWND m_focus = nullptr;
    HICON m_icon = nullptr;
    HICON m_smallIcon = nullptr;

    DECLARE_RESPONSE_TABLE(TFrameWindow);
};

}  // namespace owl
