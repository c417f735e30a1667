// The tool that draws polygons, a click for each corner; a double click or Enter ends it.
#pragma once

#include "sketch/view/tool.h"

namespace sketch {

class PolygonTool : public Tool {
public:
    using Tool::Tool;

    void Press(const owl::TPoint& point) override;
    void Drag(const owl::TPoint& point) override;
    void Release(const owl::TPoint&) override {}
    void Hover(const owl::TPoint& point) override;
    void DoubleClick(const owl::TPoint& point) override;
    void Finish() override;
    bool Cancel() override;
    void Draw(LVX::Port& port) const override;
    const char* Hint() const override;

private:
    void AddCorner(const owl::TPoint& point);

    std::vector<owl::TPoint> m_corners;
    owl::TPoint m_mouse;
};

}  // namespace sketch
