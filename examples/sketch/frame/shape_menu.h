// The menu that lists the figures of the document, the topmost first, to select them by.
#pragma once

#include <functional>

#include "lvx/menus/menu.h"
#include "sketch/model/figure.h"

namespace sketch {

class ShapeMenu {
public:
    /// Puts a drop-down in front of the last one of `frame`'s menu bar. `select` gets the number of the
    /// figure that the user chose. The frame has its menu, and lives longer.
    ShapeMenu(owl::TWindow& frame, std::function<void(int)> select);

    /// Whether `menu` is the drop-down.
    bool Is(HMENU menu) const { return menu == m_popup->GetHandle(); }
    /// Lists `figures`; `selected` gets a tick, -1 is none.
    void List(const Figures& figures, int selected);

private:
    static constexpr std::size_t most = 20;

    void AddFigure(const Figure& figure, std::size_t number, int index, bool isSelected);
    void AddNote(const std::string& text);

    LVXMenu m_bar;
    // The bar's.
    LVXPopupMenu* m_popup;
    std::function<void(int)> m_select;
};

}  // namespace sketch
