// What the mouse and the keys do on the sheet: one tool at a time, such as the one that selects or the one
// that draws rectangles. A tool acts on the desk, by which it knows no window.
#pragma once

#include <windows.h>

#include "sketch/model/figure.h"
#include "sketch/model/look.h"

namespace sketch {

/// What a tool works on.
class Desk {
public:
    virtual const Figures& Contents() const = 0;
    /// Which figure is selected; -1 is none.
    virtual int Selected() const = 0;
    virtual void Select(int index) = 0;
    /// Shows `figure` in the place of the selected one, until the next edit or HidePreview.
    virtual void Preview(const FigurePointer& figure) = 0;
    virtual void HidePreview() = 0;
    /// Puts `figure` in the place of the selected one.
    virtual void Replace(const FigurePointer& figure) = 0;
    /// Puts `figure` on top, selects it, and goes back to the tool that selects.
    virtual void Add(const FigurePointer& figure) = 0;
    /// Asks for words and puts them there.
    virtual void AddText(const owl::TPoint& place) = 0;
    /// Asks what is to become of the selected figure.
    virtual void ChangeSelected() = 0;
    /// The pen and brush for new shapes.
    virtual const Look& CurrentLook() const = 0;
    virtual void Redraw() = 0;
    /// What is to be seen of the sheet.
    virtual owl::TRect Visible() const = 0;

protected:
    ~Desk() = default;
};

class Tool {
public:
    explicit Tool(Desk& desk) : m_desk(desk) {}
    virtual ~Tool() = default;
    Tool(const Tool&) = delete;
    Tool& operator=(const Tool&) = delete;

    // The left button goes down, moves while it is down, goes up.
    virtual void Press(const owl::TPoint& point) = 0;
    virtual void Drag(const owl::TPoint& point) = 0;
    virtual void Release(const owl::TPoint& point) = 0;
    /// The mouse moves with no button down.
    virtual void Hover(const owl::TPoint&) {}
    virtual void DoubleClick(const owl::TPoint&) {}
    /// The Enter key. By itself nothing.
    virtual void Finish() {}
    /// Gives up what is under way; false if nothing is.
    virtual bool Cancel() { return false; }
    /// What the tool shows on top of everything, such as a shape that is being drawn.
    virtual void Draw(LVX::Port&) const {}
    /// One of the system's cursors.
    virtual LPCSTR Cursor(const owl::TPoint&) const { return IDC_CROSS; }
    /// What to do with it, for the status line.
    virtual const char* Hint() const = 0;

protected:
    Desk& m_desk;
};

}  // namespace sketch
