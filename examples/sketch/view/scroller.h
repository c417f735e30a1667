// Which part of the sheet a window shows, and its two scroll bars. The sheet reaches as far as there are
// figures, and at least as far as the window.
#pragma once

#include <windows.h>

#include "owl/geometry.h"

namespace sketch {

class Scroller {
public:
    /// Where the upper left corner of the window is on the sheet.
    const owl::TPoint& Origin() const { return m_origin; }

    /// Fits the bars of `window` to its size and to what there is. True if another part is seen now.
    bool Fit(HWND window, const owl::TRect& contents);
    /// Answers WM_HSCROLL (`bar` is SB_HORZ) or WM_VSCROLL (SB_VERT). True if another part is seen now.
    bool Answer(HWND window, int bar, UINT code);
    /// Shows the part that begins at `origin`, or the nearest one that there is.
    bool MoveTo(HWND window, const owl::TPoint& origin);

private:
    owl::TPoint Last() const;
    void Show(HWND window) const;

    owl::TPoint m_origin;
    owl::TSize m_page;
    owl::TRect m_area;
};

}  // namespace sketch
