// lvx/drawing/brush.h
//
// A brush: how surfaces are filled, and the background colour of text and of lines with gaps. It makes the
// system's brush from two colours and a pattern and knows the ports that draw with it: a change reaches all
// of them at once.
//
//     LVXBrush brush(FillCross, LVX::Blue, LVX::White);
//     port.useBrush(&brush);
//     brush.pattern(FillForeground);  // what the port fills from here on is solid blue
//
// Owns the system's brush, but none of the ports. A brush that goes while ports use it leaves them with their
// own default brushes; a port that goes first has to be told `useBrush(nullptr)` before (see port.h). For the
// thread that draws. Windows only.
// Where the system refuses a brush, owl::TXGdi comes out of what would have made it; values, ports and the
// brush of before stay.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "lvx/drawing/colours.h"
#include "lvx/platform/export.h"

namespace owl {
class TBrush;
}
namespace LVX {
class Port;
}

/// One colour, or lines of the foreground colour with gaps: those show the background colour if the port's
/// background is enabled, else what was there.
enum FillPattern : int {
    FillBackground = 0,
    FillForeground = 1,
    /// The greys, whatever the colours: 64, 192 and 128 of 255.
    FillDarkGrey = 2,
    FillLightGrey = 3,
    FillGrey = 4,
    FillHorizontal = 5,
    FillVertical = 6,
    /// Lines that fall from left to right.
    FillForwardDiagonal = 7,
    /// Lines that rise from left to right.
    FillBackwardDiagonal = 8,
    FillCross = 9,
    FillDiagonalCross = 10,
};

class LVX_EXPORT LVXBrush {
public:
    /// Solid black; the background is white.
    LVXBrush();
    /// Solid; the background is white.
    explicit LVXBrush(owl::TColor colour);
    /// A pattern that is none of FillPattern becomes FillForeground.
    LVXBrush(FillPattern pattern, owl::TColor foreground, owl::TColor background);
    /// The values of `other`; no port uses the copy.
    LVXBrush(const LVXBrush& other);
    /// Takes the values of `other`. The ports that use this brush go on using it. To itself: nothing.
    LVXBrush& operator=(const LVXBrush& other);
    /// Ports that use the brush go over to their own default brushes.
    virtual ~LVXBrush();

    /// Makes the system's brush anew from the values and selects it in all ports that use it. True.
    bool make();

    /// Notes, or forgets, that `port` uses this brush, for LVX::Port to call. Noting twice is noting once.
    /// Null is ignored.
    void bind(LVX::Port* port, bool add);

    /// Deletes a brush that was made by `new`, within the library. Does nothing for a null pointer.
    void free();

    owl::TColor foreground() const { return m_foreground; }
    owl::TColor background() const { return m_background; }
    FillPattern pattern() const { return m_pattern; }

    // Setters make the brush anew, but only if the value differs.

    void foreground(owl::TColor colour);
    void background(owl::TColor colour);
    /// One that is none of FillPattern becomes FillForeground.
    void pattern(FillPattern pattern);

    /// The system's brush of now: the next change replaces it.
    operator owl::TBrush&() { return *m_brush; }
    operator owl::TBrush&() const { return *m_brush; }
    HBRUSH getHndl() const;

private:
    LVX_HIDDEN void Change(owl::TColor foreground, owl::TColor background, FillPattern pattern);

    std::unique_ptr<owl::TBrush> m_brush;
    owl::TColor m_foreground;
    owl::TColor m_background;
    FillPattern m_pattern;
    std::vector<LVX::Port*> m_ports;
};
