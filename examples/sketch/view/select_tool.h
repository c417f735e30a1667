// The tool that selects figures, moves them, and pulls their handles.
#pragma once

#include "sketch/view/tool.h"

namespace sketch {

class SelectTool : public Tool {
public:
    using Tool::Tool;

    void Press(const owl::TPoint& point) override;
    void Drag(const owl::TPoint& point) override;
    void Release(const owl::TPoint& point) override;
    void DoubleClick(const owl::TPoint& point) override;
    bool Cancel() override;
    LPCSTR Cursor(const owl::TPoint& point) const override;
    const char* Hint() const override;

private:
    int FigureAt(const owl::TPoint& point) const;
    FigurePointer SelectedFigure() const;

    static constexpr int no_handle = -1;

    bool m_isDown = false;
    bool m_isDragging = false;
    int m_handle = no_handle;
    owl::TPoint m_start;
    FigurePointer m_dragged;
};

}  // namespace sketch
