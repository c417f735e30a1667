// lvx/drawing/port.h
//
// A surface to draw on: the tools, the raster rule and the operations of drawing over one device. A port is
// closed at first; what is set then takes effect when it opens, and what is drawn then is ignored.
//
//     LVX::Port port(device);
//     port.usePen(&red);
//     port.Open();
//     port.moveTo(10, 10);
//     port.lineTo(50, 10);
//     port.fillRegion(&rectangle, true);
//     port.Close();  // or by the end of the port
//
// Owns neither its device nor the tools that it is told to use, but a default pen, brush and font of its own.
// The device outlives the port. The end of a port does not let go of a foreign tool: that keeps the dead port
// in its list, and its next change would reach for it. So the host either sets the port back before
// (`usePen(nullptr)`, and likewise for brush and font) or ends the tool first. A debug build of the library
// tells the debugger when neither was done.
// Coordinates are logical ones of the device's context. The colour of text is that of the pen; behind it, in
// the gaps of lines and of hatched brushes, lies the background of the brush, if that is enabled.
// For the thread that draws. Windows only. Does not: report what the system refuses to draw.
#pragma once

#include <windows.h>

#include "lvx/drawing/brush.h"
#include "lvx/drawing/device.h"
#include "lvx/drawing/font.h"
#include "lvx/drawing/pen.h"
#include "lvx/platform/export.h"

namespace owl {
class TBitmap;
class TDC;
}  // namespace owl

class LVXRectangle;
class LVXRegion;

/// How what is drawn (the pen, with lines and surfaces alike) mixes with what is there (the screen): the
/// system's R2_ values. Bitmaps follow those marked with *; by the others they are copied. What is none of
/// them is handed on to the system, which keeps the rule of before.
enum RasterRule : int {
    RuleBlack = 1,
    RuleNotMergePen = 2,
    /// The screen where the pen is not. * A bitmap: all but what both have.
    RuleMaskNotPen = 3,
    /// * The pen inverted.
    RuleNotCopyPen = 4,
    RuleMaskPenNot = 5,
    RuleNot = 6,
    /// * Drawn a second time it is gone.
    RuleXorPen = 7,
    RuleNotMaskPen = 8,
    /// * What both have.
    RuleMaskPen = 9,
    /// * XOR inverted.
    RuleNotXorPen = 10,
    RuleNop = 11,
    /// * The screen, and where the pen is not.
    RuleMergeNotPen = 12,
    /// * The pen as it is.
    RuleCopyPen = 13,
    RuleMergePenNot = 14,
    /// * What either has.
    RuleMergePen = 15,
    RuleWhite = 16,
};

namespace LVX {

class LVX_EXPORT Port {
public:
    /// A closed port on `device` with the default tools (black pen, black brush on white, the system's font),
    /// RuleCopyPen and no background.
    explicit Port(Device& device);
    Port(const Port&) = delete;
    Port& operator=(const Port&) = delete;
    /// Closes the port. Requires: no tool of the host is in use that is to live on; see above.
    virtual ~Port();

    /// Asks the device for its context and selects tools, rule and background in it. True, also if the port
    /// is open already; false if the device has no context. owl::TXGdi if the system refuses a tool; the port
    /// is closed then.
    bool Open();
    /// Takes the tools out of the context and gives it back. Nothing if the port is closed.
    void Close();
    bool IsOpen() const { return m_dc != nullptr; }

    /// The context, for what the port has no operation for; null when closed. Tools that are selected there
    /// have to be taken out again.
    owl::TDC* GetDC() const { return m_dc; }
    HDC GetHDC() const;

    /// The device's units in an inch, to those that are not null. False, and nothing written, when closed.
    bool GetPixelsPerInch(int* x, int* y) const;

    // Draws with another tool from now on; null means the port's own default. True. The tool has to outlive
    // the port or its use there. owl::TXGdi if the system refuses it.

    bool usePen(LVXPen* pen);
    bool useBrush(LVXBrush* brush);
    bool useFont(LVXFont* font);

    // Takes the tool out of an open context, whose original one comes back. The port still knows it as its
    // current one: use...() and Open() select it again.

    void resetPen();
    void resetBrush();
    void resetFont();

    /// Never null.
    LVXPen* currentPen() const { return m_pen; }
    LVXBrush* currentBrush() const { return m_brush; }
    LVXFont* currentFont() const { return m_font; }

    RasterRule rule() const { return m_rule; }
    void rule(RasterRule rule);

    /// Whether text and gaps get the background colour of the brush.
    void enableBkColour(bool enabled);
    void enableBkColor(bool enabled) { enableBkColour(enabled); }

    // All below draw nothing when the port is closed.

    /// Draws all of `bitmap`, its upper left corner at (`x`, `y`), by the rule. Its size is that which is
    /// noted with it, if one is, in the place of its pixels'. Nothing if it is null or selected elsewhere.
    void drawBitMap(owl::TBitmap* bitmap, int x, int y);
    /// Draws the part `src` of `bitmap`, stretched to `dest`, by the rule. Rows and columns are repeated or
    /// left out, not mixed. Nothing if it is selected elsewhere.
    void drawBitMap(const owl::TBitmap& bitmap, const LVXRectangle& dest, const LVXRectangle& src);

    /// A line from where the last one ended, up to but without (`x`, `y`).
    void lineTo(int x, int y);
    void moveTo(int x, int y);

    // Writes with its upper left corner at (`x`, `y`). The result is the width of the text in logical units;
    // 0, and nothing drawn, for a null or empty text or a count of 0 or less. `count` takes as many
    // characters, whatever they are. Narrow text is in the code page of the font.

    int wrtText(const char* text, int x, int y);
    int wrtText(const char* text, int count, int x, int y);
    int wrtText(const wchar_t* text, int x, int y);
    int wrtText(const wchar_t* text, int count, int x, int y);

    // Tells how large text would be written, to those that are not null: 0 for a null or empty text, a count
    // of 0 or less, and when closed.

    void textSize(const char* text, int* width, int* height);
    void textSize(const char* text, int count, int* width, int* height);
    void textSize(const wchar_t* text, int* width, int* height);
    void textSize(const wchar_t* text, int count, int* width, int* height);

    /// From one line of text to the next; 0 when closed.
    int textLineSpace();

    // Shapes; null draws nothing. Whatever a shape leaves selected, the port's tools are selected behind it.

    /// Fills with the background of the brush.
    void eraseRegion(LVXRegion* region);
    /// Fills with the brush, and frames as well if `withFrame`.
    void fillRegion(LVXRegion* region, bool withFrame);
    /// Draws the outline with the pen.
    void frameRegion(LVXRegion* region);
    void invertRegion(LVXRegion* region);

private:
    LVX_HIDDEN void SelectTools();

    owl::TDC* m_dc = nullptr;
    Device* m_device;
    LVXPen* m_pen = nullptr;
    LVXBrush* m_brush = nullptr;
    LVXFont* m_font = nullptr;
    LVXPen m_ownPen;
    LVXBrush m_ownBrush;
    LVXFont m_ownFont;
    RasterRule m_rule = RuleCopyPen;
    bool m_background = false;
};

}  // namespace LVX
