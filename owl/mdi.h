// owl/mdi.h
//
// A frame with documents in it: the frame, the client window that fills it, and the children that stand in
// the client. The frame owns the client, the client owns the children; a child's object is deleted after its
// window is closed.
#pragma once

#include "owl/frame_window.h"

namespace owl {

class TMDIChild;

/// The background of an MDI frame, and who keeps the children.
class OWL_EXPORT TMDIClient : virtual public TWindow {
public:
    explicit TMDIClient(TModule* module = nullptr);
    ~TMDIClient() override;

    /// Null if there is no child, or if the active one has no object.
    TMDIChild* GetActiveMDIChild() const;
    /// Brings a child to the front.
    void ActivateChild(const TMDIChild& child);
    void CascadeChildren();
    /// `how` is MDITILE_HORIZONTAL or MDITILE_VERTICAL.
    void TileChildren(UINT how = MDITILE_VERTICAL);
    void ArrangeIcons();
    /// Closes all children that CanClose; false if one refused, and then none is closed.
    bool CloseChildren();

    /// Sees to the keys of MDI, such as Ctrl+F4 and Ctrl+F6.
    bool PreProcessMsg(MSG& msg) override;
    /// Destroys the children first.
    void EvDestroy();

protected:
    const char* GetClassName() override;
    void PerformCreate() override;

    DECLARE_RESPONSE_TABLE(TMDIClient);
};

class OWL_EXPORT TMDIFrame : public TFrameWindow {
public:
    /// The frame of `client`, which belongs to it; null makes a plain one. The drop-down at `windowMenu` of
    /// the menu gets the list of children at its end; -1 is none.
    TMDIFrame(const char* title, TResId menu, TMDIClient* client = nullptr, int windowMenu = -1,
              TModule* module = nullptr);
    ~TMDIFrame() override;

    TMDIClient* GetClientWindow() const;
    /// The active child's.
    HWND CommandTarget() const override;
    /// The commands of the list of children are the system's and always enabled.
    void EvCommandEnable(TCommandEnabler& enabler) override;
    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;
    /// The drop-down for the list of children, or null.
    HMENU GetWindowMenu() const;

protected:
    HMENU ExchangeMenu(HMENU menu) override;

private:
    int m_windowMenu;
};

/// One document of an MDI frame.
class OWL_EXPORT TMDIChild : public TFrameWindow {
public:
    explicit TMDIChild(TMDIClient& parent, const char* title = nullptr, TWindow* client = nullptr,
                       bool shrinkToClient = false, TModule* module = nullptr);
    ~TMDIChild() override;

    void Destroy(int retVal = 0) override;
    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;
    /// Remembers who has the focus when another child takes over.
    void EvMDIActivate(HWND activated, HWND deactivated);

protected:
    const char* GetClassName() override;

    DECLARE_RESPONSE_TABLE(TMDIChild);
};

}  // namespace owl
