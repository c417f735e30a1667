// lvx/controls/glyph_cels.h
//
// Works out the four images of a toolbar button from its glyph, by a mask that is white where the glyph is
// transparent: there, mixed through it, the ground stays or a hatch comes, and elsewhere the glyph's shape.
//
// Made on the images' bitmap and on a mask of one bit a pixel, which no other context has selected; it lets
// go of both at its end. Private to the library. Windows only.
#pragma once

#include "owl/bitmap.h"
#include "owl/brush.h"
#include "owl/cel_array.h"
#include "owl/dib.h"
#include "owl/memory_dc.h"

namespace lvx::controls {

class GlyphCels {
public:
    /// Draws into the four cels of `cels`. Throws owl::TXGdi if another context has one of the bitmaps.
    /// Requires: the cels are no larger than `mask`.
    GlyphCels(const owl::TCelArray& cels, const owl::TBitmap& mask);

    /// All four images: the glyph as it is, embossed, as a shadow over `hatch`, and over `hatch`.
    void Draw(const owl::TDib& glyph, const owl::TBrush& hatch);

private:
    void DrawNormal(const owl::TDib& glyph);
    void DrawDisabled();
    void DrawIndeterminate(const owl::TBrush& hatch);
    void DrawDown(const owl::TBrush& hatch);

    void MakeMask(int cel);
    void AddHighlightToMask();
    void DrawShape(int cel, int offset, int color);
    void DrawHatch(int cel, const owl::TBrush& hatch);
    void Mix(const owl::TRect& where, const owl::TBrush& brush, unsigned long rop);

    const owl::TCelArray& m_cels;
    owl::TSize m_size;
    owl::TSize m_maskSize;
    owl::TMemoryDC m_dc;
    owl::TMemoryDC m_mask;
};

}  // namespace lvx::controls
