// The tools that draw rectangles and ellipses, from one corner to the opposite one.
#pragma once

#include <optional>

#include "sketch/view/tool.h"

namespace sketch {

/// `Shape` is Rectangle or Ellipse.
template <class Shape>
class BoxTool : public Tool {
public:
    using Tool::Tool;

    void Press(const owl::TPoint& point) override {
        m_start = point;
        m_end = point;
    }
    void Drag(const owl::TPoint& point) override {
        if (m_start) {
            m_end = point;
            m_desk.Redraw();
        }
    }
    void Release(const owl::TPoint& point) override {
        Drag(point);
        const owl::TRect rect = Rect();
        const bool isDrawn = m_start.has_value();
        m_start.reset();
        // A click draws nothing: what came of it would hardly be seen.
        if (isDrawn && !rect.IsEmpty()) {
            m_desk.Add(std::make_shared<Shape>(rect, m_desk.CurrentLook()));
        }
    }
    /// One of an ordinary size in the middle of what is seen, for who has no mouse.
    void Finish() override {
        const owl::TRect seen = m_desk.Visible();
        const owl::TPoint middle((seen.left + seen.right) / 2, (seen.top + seen.bottom) / 2);
        m_desk.Add(std::make_shared<Shape>(owl::TRect(middle - half_size, middle + half_size),
                                           m_desk.CurrentLook()));
    }
    bool Cancel() override {
        const bool isDrawing = m_start.has_value();
        m_start.reset();
        m_desk.Redraw();
        return isDrawing;
    }
    void Draw(LVX::Port& port) const override {
        if (m_start) {
            Shape(Rect(), m_desk.CurrentLook()).Draw(port);
        }
    }
    const char* Hint() const override {
        return "Pull from one corner to the other, or press Enter. Escape goes back to selecting.";
    }

private:
    static constexpr owl::TSize half_size{60, 40};

    owl::TRect Rect() const { return owl::TRect(m_start.value_or(m_end), m_end).Normalized(); }

    std::optional<owl::TPoint> m_start;
    owl::TPoint m_end;
};

}  // namespace sketch
