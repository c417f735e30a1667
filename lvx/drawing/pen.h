// lvx/drawing/pen.h
//
// A pen: the width, colour and style of lines and outlines, and the colour of text. It makes the system's pen
// from its values and knows the ports that draw with it: a change reaches all of them at once.
//
//     LVXPen pen(2, LineSolid, LVX::Red);
//     port.usePen(&pen);
//     pen.colour(LVX::Blue);  // what the port draws from here on is blue, its text too
//
// Owns the system's pen, but none of the ports. A pen that goes while ports use it leaves them with their own
// default pens; a port that goes first has to be told `usePen(nullptr)` before (see port.h). For the thread
// that draws. Windows only.
// Where the system refuses a pen, owl::TXGdi comes out of what would have made it; values, ports and the pen
// of before stay.
#pragma once

#include <memory>
#include <vector>

#include "lvx/drawing/colours.h"
#include "lvx/platform/export.h"

namespace owl {
class TPen;
}
namespace LVX {
class Port;
}

/// The system's pen styles. Those with gaps are drawn solid when the pen is wider than a pixel. Others than
/// these are handed on to the system.
enum LineType : int {
    LineSolid = 0,
    LineDash = 1,
    LineDot = 2,
    LineDashDot = 3,
    LineDashDotDot = 4,
    /// Draws nothing.
    LineNull = 5,
    /// Outlines lie inside of the rectangle that bounds a shape, however wide the pen.
    LineInsideFrame = 6,
};

class LVX_EXPORT LVXPen {
public:
    /// Black, solid, 1 wide.
    LVXPen();
    /// Solid, 1 wide.
    explicit LVXPen(owl::TColor colour);
    /// `width` in logical units; 0 is one pixel always.
    LVXPen(int width, LineType pattern, owl::TColor colour);
    /// The values of `other`; no port uses the copy.
    LVXPen(const LVXPen& other);
    /// Takes the values of `other`. The ports that use this pen go on using it.
    LVXPen& operator=(const LVXPen& other);
    /// Ports that use the pen go over to their own default pens.
    virtual ~LVXPen();

    /// Makes the system's pen anew from the values and selects it in all ports that use it. True.
    bool make();

    /// Notes, or forgets, that `port` uses this pen, for LVX::Port to call. Noting twice is noting once. Null
    /// is ignored.
    void bind(LVX::Port* port, bool add);

    /// Deletes a pen that was made by `new`, within the library. Does nothing for a null pointer.
    void free();

    int width() const { return m_width; }
    owl::TColor colour() const { return m_colour; }
    owl::TColor color() const { return colour(); }
    LineType pattern() const { return m_pattern; }

    // Setters make the pen anew, but only if the value differs.

    void width(int width);
    void colour(owl::TColor colour);
    void color(owl::TColor color) { colour(color); }
    void pattern(LineType pattern);

    /// The system's pen of now: the next change replaces it.
    operator owl::TPen&() { return *m_pen; }
    operator owl::TPen&() const { return *m_pen; }

private:
    LVX_HIDDEN void Change(int width, owl::TColor colour, LineType pattern);

    std::unique_ptr<owl::TPen> m_pen;
    int m_width;
    owl::TColor m_colour;
    LineType m_pattern;
    std::vector<LVX::Port*> m_ports;
};
