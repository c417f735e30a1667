// owl/dc.h
//
// A device context: where drawing goes to, with the tools and modes that it goes with. The classes derived
// from this one make contexts of windows, memory, metafiles and printers; this one wraps a context that
// another owns, such as one that came with a message.
//
// The first tool of each kind that is selected pushes out the context's original one; Restore... brings that
// back, also after many others. The end of the object restores all, so that the tools may be deleted behind
// it.
//
// What makes and selects throws TXGdi with the system's reason. What draws, measures or sets a mode returns
// what the system's call of that name returns: false, 0 or CLR_INVALID when it failed, and nothing was drawn.
// Coordinates are logical ones; a TRect stands without its right and lower edge. For the thread that draws.
// Windows only, with the system's narrow calls: a host does not define UNICODE.
#pragma once

#include <windows.h>

#include <string>

#include "owl/color.h"
#include "owl/geometry.h"
#include "owl/platform/export.h"

namespace owl {

class TBrush;
class TFont;
class TPalette;
class TPen;
class TRegion;

class OWL_EXPORT TDC {
public:
    /// On a context that another owns and that must live longer. Throws TXGdi if it is null.
    explicit TDC(HDC handle);
    virtual ~TDC();
    TDC(const TDC&) = delete;
    TDC& operator=(const TDC&) = delete;

    HDC GetHDC() const { return m_handle; }
    operator HDC() const { return m_handle; }

    // Tools. Each must live until another of its kind is selected or the original is restored.

    void SelectObject(const TPen& pen);
    void SelectObject(const TBrush& brush);
    void SelectObject(const TFont& font);
    /// With `forceBackground` the palette takes only colours that the active window leaves.
    void SelectObject(const TPalette& palette, bool forceBackground = false);
    /// One of the system's own tools, such as HOLLOW_BRUSH. Throws TXGdi if it has none of that number, or if
    /// that is a palette.
    void SelectStockObject(int index);
    /// Selects the tool that the context had at first. Nothing happens if no other was selected.
    void RestorePen();
    void RestoreBrush();
    void RestoreFont();
    void RestorePalette();
    /// All of them. The bitmap of a TMemoryDC stays: who paints on a context that another made must not take
    /// away what is painted on.
    void RestoreObjects();

    /// Makes the selected palette's colours those of the device. How many had to change; GDI_ERROR if that
    /// failed.
    unsigned int RealizePalette();

    /// Notes everything that belongs to the context; the result names it. 0 if that failed.
    int SaveDC() const;
    /// Brings back what was noted: the last time for -1, else by the name that SaveDC() gave, forgetting all
    /// later ones.
    bool RestoreDC(int saved = -1);

    // Colours and modes. Each setter returns what was set before.

    TColor SetTextColor(TColor color);
    TColor GetTextColor() const;
    TColor SetBkColor(TColor color);
    TColor GetBkColor() const;
    /// TRANSPARENT or OPAQUE.
    int SetBkMode(int mode);
    int GetBkMode() const;
    /// One of the R2_ values: how pens and brushes mix with what is there.
    int SetROP2(int mode);
    int GetROP2() const;
    /// ALTERNATE or WINDING.
    int SetPolyFillMode(int mode);
    int GetPolyFillMode() const;
    /// BLACKONWHITE, WHITEONBLACK, COLORONCOLOR or HALFTONE.
    int SetStretchBltMode(int mode);
    int GetStretchBltMode() const;
    /// TA_ values.
    unsigned int SetTextAlign(unsigned int align);
    unsigned int GetTextAlign() const;
    /// Where patterns begin, in device units. False if that failed.
    bool SetBrushOrg(const TPoint& origin);

    // From logical units to the device's.

    int SetMapMode(int mode);
    int GetMapMode() const;
    bool SetWindowOrg(const TPoint& origin);
    TPoint GetWindowOrg() const;
    bool SetWindowExt(const TSize& extent);
    TSize GetWindowExt() const;
    bool SetViewportOrg(const TPoint& origin);
    TPoint GetViewportOrg() const;
    bool SetViewportExt(const TSize& extent);
    TSize GetViewportExt() const;
    bool LPtoDP(TPoint* points, int count = 1) const;
    bool DPtoLP(TPoint* points, int count = 1) const;
    /// GM_COMPATIBLE or GM_ADVANCED, in which alone there is a world transform. Returns what it was, 0 if
    /// that failed, as the way back does while the transform is not the identity.
    int SetGraphicsMode(int mode);
    int GetGraphicsMode() const;
    bool SetWorldTransform(const XFORM& transform);
    bool GetWorldTransform(XFORM& transform) const;
    /// `mode` is MWT_IDENTITY, MWT_LEFTMULTIPLY or MWT_RIGHTMULTIPLY.
    bool ModifyWorldTransform(const XFORM& transform, unsigned int mode);

    // Clipping. The results are NULLREGION, SIMPLEREGION, COMPLEXREGION or ERROR.

    /// Clips to `region`, which is copied, in device units.
    int SelectClipRgn(const TRegion& region);
    /// Clips to the device alone.
    int SelectClipRgn();
    int ExcludeClipRect(const TRect& rect);
    int IntersectClipRect(const TRect& rect);
    int GetClipBox(TRect& box) const;
    /// Whether a part of it is inside the clip region.
    bool RectVisible(const TRect& rect) const;

    /// What the device can, by one of the system's indices. 0 for what it does not tell.
    int GetDeviceCaps(int index) const;

    // Lines and surfaces, in dc_draw.cpp.

    bool MoveTo(int x, int y);
    bool MoveTo(const TPoint& point) { return MoveTo(point.x, point.y); }
    TPoint GetCurrentPosition() const;
    /// Draws with the pen up to but without the point, and moves there.
    bool LineTo(int x, int y);
    bool LineTo(const TPoint& point) { return LineTo(point.x, point.y); }
    /// False for fewer than two points.
    bool Polyline(const TPoint* points, int count);
    /// Closes the outline itself. False for fewer than two points.
    bool Polygon(const TPoint* points, int count);
    bool Rectangle(const TRect& rect);
    bool Rectangle(int left, int top, int right, int bottom) {
        return Rectangle(TRect(left, top, right, bottom));
    }
    bool Ellipse(const TRect& rect);
    bool Ellipse(int left, int top, int right, int bottom) {
        return Ellipse(TRect(left, top, right, bottom));
    }
    /// Fills with `brush` up to the edges, without an outline.
    bool FillRect(const TRect& rect, const TBrush& brush);
    /// The outline alone, one unit wide, drawn with `brush`.
    bool FrameRect(const TRect& rect, const TBrush& brush);
    bool InvertRect(const TRect& rect);
    /// The dotted mark of the focus. Drawn a second time it is gone.
    bool DrawFocusRect(const TRect& rect);
    bool FillRgn(const TRegion& region, const TBrush& brush);
    /// Fills with the selected brush.
    bool PaintRgn(const TRegion& region);
    /// Its border, drawn with `brush`, so wide at the sides and so high above and below.
    bool FrameRgn(const TRegion& region, const TBrush& brush, const TSize& width);
    bool InvertRgn(const TRegion& region);
    /// The colour that was really drawn; CLR_INVALID outside the clip region.
    TColor SetPixel(int x, int y, TColor color);
    TColor SetPixel(const TPoint& point, TColor color) { return SetPixel(point.x, point.y, color); }
    /// CLR_INVALID outside the clip region.
    TColor GetPixel(int x, int y) const;
    TColor GetPixel(const TPoint& point) const { return GetPixel(point.x, point.y); }

    // Text, in dc_text.cpp. Narrow text is in the code page of the font. A null text is empty; a negative
    // count takes the text up to its end.

    bool TextOut(int x, int y, const std::string& text);
    bool TextOut(const TPoint& point, const std::string& text) { return TextOut(point.x, point.y, text); }
    bool TextOut(int x, int y, const char* text, int count = -1);
    bool TextOutW(int x, int y, const wchar_t* text, int count = -1);
    /// How wide and high a line of text comes out; 0 by 0 if it cannot be measured.
    TSize GetTextExtent(const std::string& text) const;
    TSize GetTextExtent(const char* text, int count = -1) const;
    TSize GetTextExtentPointW(const wchar_t* text, int count = -1) const;
    /// Draws in `rect` as the DT_ values of `format` say and returns the height of the text; with DT_CALCRECT
    /// draws nothing and makes `rect` what the text takes. DT_MODIFYSTRING is ignored: the text is not the
    /// context's. 0, and nothing drawn, where text cannot be measured.
    int DrawText(const std::string& text, TRect& rect, unsigned int format);
    int DrawText(const char* text, int count, TRect& rect, unsigned int format);
    /// False, with all 0, where text cannot be measured, as on a TMetaFileDC.
    bool GetTextMetrics(TEXTMETRIC& metrics) const;
    /// The name of the face that the selected font has really become. Of `buffer`, which has room for `size`
    /// bytes, at least the terminator is written if `size` is not 0. Returns the bytes written, 0 if that
    /// failed.
    int GetTextFace(char* buffer, int size) const;
    std::string GetTextFace() const;

    // Pictures, in dc_picture.cpp. While a world transform turns, shears or mirrors, pictures are turned too,
    // on every system: where the platform cannot, see turned_blit.h.

    /// Fills with the selected brush, mixed by `rop`: PATCOPY, WHITENESS and so on.
    bool PatBlt(const TRect& rect, unsigned long rop = PATCOPY);
    bool PatBlt(int x, int y, int width, int height, unsigned long rop = PATCOPY);
    /// Copies a rectangle of the size of `dest` from (`x`, `y`) of `source`. From a monochrome source 0 bits
    /// take the text colour and 1 bits the background colour.
    bool BitBlt(const TRect& dest, const TDC& source, const TPoint& from, unsigned long rop = SRCCOPY);
    bool BitBlt(int x, int y, int width, int height, const TDC& source, int fromX, int fromY,
                unsigned long rop = SRCCOPY);
    /// Copies `from` of `source` to `dest`, stretched by the stretching mode; mirrored where one of the two
    /// is not normal. The system counts such a side from its first pixel on: from 5 to 2 are the pixels 5, 4
    /// and 3, or those between the two edges while a transform turns.
    bool StretchBlt(const TRect& dest, const TDC& source, const TRect& from, unsigned long rop = SRCCOPY);
    /// Draws `src`, a part of the picture that `info` and `bits` hold, to `dest`, stretched and mirrored as
    /// above. `src` is counted from the lower left corner of a picture whose lowest row stands first. `usage`
    /// is DIB_RGB_COLORS or DIB_PAL_COLORS. Null pointers draw nothing.
    bool StretchDIBits(const TRect& dest, const TRect& src, const void* bits, const BITMAPINFO* info,
                       unsigned int usage = DIB_RGB_COLORS, unsigned long rop = SRCCOPY);

protected:
    /// For a derived class, which makes the context and, at its end, gives it up with ReleaseHandle().
    TDC() = default;

    void SetHandle(HDC handle) { m_handle = handle; }
    /// Restores the original objects and hands the context over for its end; null if that was done before.
    HDC ReleaseHandle();
    /// Selects `object` and keeps in `original` the first one that was pushed out.
    void Select(HGDIOBJ object, HGDIOBJ& original);
    void Restore(HGDIOBJ& original);

private:
    HDC m_handle = nullptr;
    HGDIOBJ m_originalPen = nullptr;
    HGDIOBJ m_originalBrush = nullptr;
    HGDIOBJ m_originalFont = nullptr;
    HPALETTE m_originalPalette = nullptr;
};

}  // namespace owl
