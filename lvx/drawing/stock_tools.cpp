#include "lvx/drawing/stock_tools.h"

#include <memory>

#include "lvx/drawing/stock_layout.h"

namespace {

// Of the system's font, once it was asked for.
lvx::drawing::StockLayout layout;

/// The tool, made of `values` if there is none yet.
template <class Tool, class... Values>
Tool* made_once(Tool*& tool, const Values&... values) {
    if (tool == nullptr) {
        tool = new Tool(values...);
    }
    return tool;
}

template <class Tool>
void free_tool(Tool*& tool) {
    tool->free();
    tool = nullptr;
}

}  // namespace

brushes_etc brushes_etc::the_brushes_etc;

LVXFont* brushes_etc::the_sysfont = nullptr;
LVXFont* brushes_etc::the_sysfixed = nullptr;
LVXBrush* brushes_etc::the_light_gray_brush = nullptr;
LVXBrush* brushes_etc::the_very_light_brush = nullptr;
LVXPen* brushes_etc::the_pen = nullptr;
LVXPen* brushes_etc::the_redpen = nullptr;
LVXPen* brushes_etc::the_cyanpen = nullptr;
LVXPen* brushes_etc::the_whitepen = nullptr;

brushes_etc::~brushes_etc() {
    free_tool(the_sysfont);
    free_tool(the_sysfixed);
    free_tool(the_light_gray_brush);
    free_tool(the_very_light_brush);
    free_tool(the_pen);
}

LVXFont* brushes_etc::GetSysFont() {
    if (the_sysfont == nullptr) {
        auto font = std::make_unique<LVXFont>();
        layout = lvx::drawing::stock_layout(font->width(), font->height());
        the_sysfont = font.release();
    }
    return the_sysfont;
}

LVXFont* brushes_etc::GetSysFixed() {
    return made_once(the_sysfixed);
}

LVXBrush* brushes_etc::GetLightGrayBrush() {
    return made_once(the_light_gray_brush, FillLightGrey, LVX::LightGrey, LVX::Black);
}

LVXBrush* brushes_etc::GetVeryLightBrush() {
    return made_once(the_very_light_brush, owl::TColor(208, 208, 208));
}

LVXPen* brushes_etc::GetAPen() {
    return made_once(the_pen);
}

LVXPen* brushes_etc::GetRedPen() {
    return made_once(the_redpen, 1, LineSolid, LVX::Red);
}

LVXPen* brushes_etc::GetCyanPen() {
    return made_once(the_cyanpen, 1, LineSolid, LVX::Cyan);
}

LVXPen* brushes_etc::GetWhitePen() {
    return made_once(the_whitepen, 1, LineSolid, LVX::White);
}
