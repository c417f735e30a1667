#include "sketch/view/select_tool.h"

#include <cstdlib>

#include "sketch/view/marks.h"

namespace sketch {
namespace {

// A hand that clicks is not quite still.
constexpr int least_way = 3;

}  // namespace

FigurePointer SelectTool::SelectedFigure() const {
    const int selected = m_desk.Selected();
    return selected < 0 ? nullptr : m_desk.Contents()[static_cast<std::size_t>(selected)];
}

int SelectTool::FigureAt(const owl::TPoint& point) const {
    const Figures& figures = m_desk.Contents();
    for (std::size_t i = figures.size(); i-- > 0;) {
        if (figures[i]->Contains(point)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

void SelectTool::Press(const owl::TPoint& point) {
    m_start = point;
    m_isDragging = false;
    const FigurePointer selected = SelectedFigure();
    m_handle = selected == nullptr ? no_handle : HandleAt(*selected, point);
    if (m_handle == no_handle) {
        m_desk.Select(FigureAt(point));
    }
    m_isDown = SelectedFigure() != nullptr;
}

void SelectTool::Drag(const owl::TPoint& point) {
    const FigurePointer selected = SelectedFigure();
    if (!m_isDown || selected == nullptr) {
        return;
    }
    const owl::TSize way = point - m_start;
    m_isDragging = m_isDragging || std::abs(way.cx) >= least_way || std::abs(way.cy) >= least_way;
    if (!m_isDragging) {
        return;
    }
    // Always from where it began: what a figure cannot follow on the way leaves no trace.
    const std::shared_ptr<Figure> figure = selected->Clone();
    if (m_handle == no_handle) {
        figure->MoveBy(way);
    } else {
        figure->Pull(static_cast<std::size_t>(m_handle), m_start, point);
    }
    m_dragged = figure;
    m_desk.Preview(figure);
}

void SelectTool::Release(const owl::TPoint& point) {
    Drag(point);
    const FigurePointer dragged = m_dragged;
    Cancel();
    if (dragged != nullptr) {
        m_desk.Replace(dragged);
    }
}

void SelectTool::DoubleClick(const owl::TPoint& point) {
    if (m_desk.Selected() == FigureAt(point) && SelectedFigure() != nullptr) {
        m_desk.ChangeSelected();
    }
}

bool SelectTool::Cancel() {
    const bool wasDragging = m_isDragging;
    m_isDown = false;
    m_isDragging = false;
    m_dragged = nullptr;
    m_desk.HidePreview();
    return wasDragging;
}

LPCSTR SelectTool::Cursor(const owl::TPoint& point) const {
    const FigurePointer selected = SelectedFigure();
    if (selected != nullptr && HandleAt(*selected, point) != no_handle) {
        return IDC_CROSS;
    }
    return FigureAt(point) < 0 ? IDC_ARROW : IDC_SIZEALL;
}

const char* SelectTool::Hint() const {
    return "Click a figure to select it, pull it or its handles. Tab goes to the next one.";
}

}  // namespace sketch
