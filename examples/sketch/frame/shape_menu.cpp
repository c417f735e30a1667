#include "sketch/frame/shape_menu.h"

#include <algorithm>
#include <utility>

namespace sketch {
namespace {

// In a menu an ampersand stands for what is underlined.
std::string AsLabel(const std::string& text) {
    std::string label;
    for (const char letter : text) {
        label += letter == '&' ? "&&" : std::string(1, letter);
    }
    return label;
}

class Choice : public CallBack<LVXMenuItem*> {
public:
    Choice(const std::function<void(int)>& select, int index) : m_select(select), m_index(index) {}

    bool operator()(LVXMenuItem*) override {
        m_select(m_index);
        return true;
    }

private:
    const std::function<void(int)>& m_select;
    int m_index;
};

}  // namespace

ShapeMenu::ShapeMenu(owl::TWindow& frame, std::function<void(int)> select)
    : m_bar(&frame), m_popup(new LVXPopupMenu("&Shapes")), m_select(std::move(select)) {
    m_bar.addItem(m_popup, m_bar.mitems().count() - 1);
}

void ShapeMenu::List(const Figures& figures, int selected) {
    // An item that is deleted takes itself out.
    while (m_popup->mitems().count() > 0) {
        delete m_popup->mitems()[m_popup->mitems().count() - 1];
    }
    const std::size_t listed = std::min(figures.size(), most);
    for (std::size_t i = 0; i < listed; ++i) {
        const auto index = static_cast<int>(figures.size() - 1 - i);
        AddFigure(*figures[static_cast<std::size_t>(index)], i + 1, index, index == selected);
    }
    if (figures.empty()) {
        AddNote("No shapes yet");
    } else if (listed < figures.size()) {
        AddNote("and " + std::to_string(figures.size() - listed) + " more below");
    }
}

void ShapeMenu::AddFigure(const Figure& figure, std::size_t number, int index, bool isSelected) {
    const std::string key = number < 10 ? "&" + std::to_string(number) + " " : "";
    auto* const item = new LVXMenuItem(key + AsLabel(figure.Describe()), new Choice(m_select, index));
    m_popup->addItem(item);
    item->check(isSelected);
}

void ShapeMenu::AddNote(const std::string& text) {
    auto* const note = new LVXMenuItem(text);
    m_popup->addItem(note);
    note->enable(false);
}

}  // namespace sketch
