// The tool that writes: a click says where, a dialog asks for the words.
#pragma once

#include "sketch/view/tool.h"

namespace sketch {

class TextTool : public Tool {
public:
    using Tool::Tool;

    void Press(const owl::TPoint&) override {}
    void Drag(const owl::TPoint&) override {}
    void Release(const owl::TPoint& point) override { m_desk.AddText(point); }
    /// In the middle of what is seen, for who has no mouse.
    void Finish() override {
        const owl::TRect seen = m_desk.Visible();
        m_desk.AddText(owl::TPoint((seen.left + seen.right) / 2, (seen.top + seen.bottom) / 2));
    }
    LPCSTR Cursor(const owl::TPoint&) const override { return IDC_IBEAM; }
    const char* Hint() const override {
        return "Click where to write, or press Enter. Escape goes back to selecting.";
    }
};

}  // namespace sketch
