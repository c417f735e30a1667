// lvx/drawing/stock_tools.h
//
// The handful of drawing tools that dialogs and controls share. Each is made when it is first asked for and
// stays until the library is unloaded.
//
//     port.useFont(brushes_etc::GetSysFont());
//     port.useBrush(brushes_etc::GetLightGrayBrush());
//
// They belong to this class: callers neither free them nor change their values, which all users would follow.
// Nothing guards their making: they are for the thread that draws. Windows only.
#pragma once

#include "lvx/drawing/brush.h"
#include "lvx/drawing/font.h"
#include "lvx/drawing/pen.h"
#include "lvx/platform/export.h"

class LVX_EXPORT brushes_etc {
public:
    brushes_etc(const brushes_etc&) = delete;
    brushes_etc& operator=(const brushes_etc&) = delete;
    /// Frees the fonts, the brushes and the black pen. Those who ask afterwards get new ones.
    ~brushes_etc();

    // Never null. owl::TXGdi, and nothing kept, if the system refuses the tool.

    /// The system's own font.
    static LVXFont* GetSysFont();
    /// The system's own font too, but one of its own: not that of equally wide characters. Controls are laid
    /// out for it.
    static LVXFont* GetSysFixed();
    /// Solid light grey; the background is black.
    static LVXBrush* GetLightGrayBrush();
    /// Solid, 208 of 255 in each colour.
    static LVXBrush* GetVeryLightBrush();
    /// Black. All pens are solid and 1 wide.
    static LVXPen* GetAPen();
    static LVXPen* GetRedPen();
    static LVXPen* GetCyanPen();
    static LVXPen* GetWhitePen();

    /// Its end, when the library is unloaded, is that of the tools.
    static brushes_etc the_brushes_etc;

    // The tools, null until they are asked for.

    static LVXFont* the_sysfont;
    static LVXFont* the_sysfixed;
    static LVXBrush* the_light_gray_brush;
    static LVXBrush* the_very_light_brush;
    static LVXPen* the_pen;
    /// The coloured pens stay to the end of the process: windows that are drawn while it ends may use them.
    static LVXPen* the_redpen;
    static LVXPen* the_cyanpen;
    static LVXPen* the_whitepen;

private:
    brushes_etc() = default;
};
