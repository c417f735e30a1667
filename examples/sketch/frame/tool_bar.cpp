#include "sketch/frame/tool_bar.h"

#include "lvx/controls/button_gadget.h"
#include "owl/separator_gadget.h"
#include "sketch/frame/sketch_ids.h"

namespace sketch {

ToolBar::ToolBar(owl::TWindow* parent) : LVXControlBar(parent) {
    AddCommands({CM_NEW, CM_OPEN, CM_SAVE, CM_PRINT});
    AddCommands({CM_CUT, CM_COPY, CM_PASTE});
    AddCommands({CM_UNDO, CM_REDO});
    AddTools({CM_TOOL_SELECT, CM_TOOL_RECTANGLE, CM_TOOL_ELLIPSE, CM_TOOL_POLYGON, CM_TOOL_TEXT});
    AddCommands({CM_PROPERTIES});
}

// The bar owns its gadgets.
void ToolBar::AddCommands(std::initializer_list<int> commands) {
    for (const int command : commands) {
        Insert(*new LVXButtonGadget(command, command));
    }
    Insert(*new owl::TSeparatorGadget);
}

void ToolBar::AddTools(std::initializer_list<int> commands) {
    for (const int command : commands) {
        Insert(*new LVXButtonGadget(command, command, LVXButtonGadget::Exclusive));
    }
    Insert(*new owl::TSeparatorGadget);
}

}  // namespace sketch
