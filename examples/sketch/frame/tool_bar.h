// The bar of buttons below the menu.
#pragma once

#include "lvx/controls/control_bar.h"

namespace sketch {

class ToolBar : public LVXControlBar {
public:
    explicit ToolBar(owl::TWindow* parent);

private:
    void AddCommands(std::initializer_list<int> commands);
    /// One of them is down: the tool in use.
    void AddTools(std::initializer_list<int> commands);
};

}  // namespace sketch
