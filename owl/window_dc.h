// owl/window_dc.h
//
// The contexts of windows and of the screen. Each is fetched by the constructor, which throws TXGdi if the
// system has none for that window, and given back by the destructor; the window must live as long. Windows
// only.
#pragma once

#include "owl/dc.h"

namespace owl {

/// All of a window, its frame too, from its upper left corner.
class OWL_EXPORT TWindowDC : public TDC {
public:
    explicit TWindowDC(HWND window);
    ~TWindowDC() override;

protected:
    /// On a context that GetDC and its kin have given out for `window`.
    TWindowDC(HWND window, HDC handle);

private:
    HWND m_window;
};

/// The inside of a window.
class OWL_EXPORT TClientDC : public TWindowDC {
public:
    explicit TClientDC(HWND window);
    ~TClientDC() override;
};

/// The whole screen.
class OWL_EXPORT TScreenDC : public TWindowDC {
public:
    TScreenDC();
    ~TScreenDC() override;
};

/// What a window is to paint: only within the handler of its WM_PAINT, and once.
class OWL_EXPORT TPaintDC : public TDC {
public:
    explicit TPaintDC(HWND window);
    ~TPaintDC() override;

    /// The rectangle that is to be painted.
    TRect GetPaintRect() const { return m_paint.rcPaint; }
    /// Whether the background is still to be painted as well.
    bool MustErase() const { return m_paint.fErase != FALSE; }

private:
    HWND m_window;
    PAINTSTRUCT m_paint;
};

}  // namespace owl
