#include "lvx/controls/glyph_cels.h"

#include "lvx/controls/button_gadget.h"

namespace {

// What comes of the brush P, the mask S and the ground D.
constexpr unsigned long brush_where_mask_is_black = 0x00B8074A;
constexpr unsigned long brush_where_mask_is_white = 0x00E20746;

owl::TColor system_color(int index) {
    return owl::TColor::FromSystem(index);
}

}  // namespace

lvx::controls::GlyphCels::GlyphCels(const owl::TCelArray& cels, const owl::TBitmap& mask)
    : m_cels(cels), m_size(cels.CelSize()), m_maskSize(mask.Width(), mask.Height()) {
    m_dc.SelectObject(static_cast<const owl::TBitmap&>(cels));
    m_mask.SelectObject(mask);
}

void lvx::controls::GlyphCels::Draw(const owl::TDib& glyph, const owl::TBrush& hatch) {
    DrawNormal(glyph);
    MakeMask(LVXButtonGadget::NormalCel);
    DrawDisabled();
    DrawIndeterminate(hatch);
    DrawDown(hatch);
}

void lvx::controls::GlyphCels::DrawNormal(const owl::TDib& glyph) {
    m_dc.StretchDIBits(m_cels.CelRect(LVXButtonGadget::NormalCel), owl::TRect(owl::TPoint(), glyph.Size()),
                       glyph.GetBits(), glyph.GetInfo());
}

// A white relief under a grey shape.
void lvx::controls::GlyphCels::DrawDisabled() {
    constexpr int cel = LVXButtonGadget::DisabledCel;
    m_dc.FillRect(m_cels.CelRect(cel), owl::TBrush(system_color(COLOR_BTNFACE)));
    AddHighlightToMask();
    DrawShape(cel, 1, COLOR_BTNHIGHLIGHT);
    DrawShape(cel, 0, COLOR_BTNSHADOW);
}

// By the mask of the disabled image, which has no highlights.
void lvx::controls::GlyphCels::DrawIndeterminate(const owl::TBrush& hatch) {
    DrawShape(LVXButtonGadget::IndeterminateCel, 0, COLOR_BTNSHADOW);
    DrawHatch(LVXButtonGadget::IndeterminateCel, hatch);
}

void lvx::controls::GlyphCels::DrawDown(const owl::TBrush& hatch) {
    constexpr int cel = LVXButtonGadget::DownCel;
    m_dc.BitBlt(m_cels.CelRect(cel), m_dc, m_cels.CelOffset(LVXButtonGadget::NormalCel));
    MakeMask(cel);
    DrawHatch(cel, hatch);
}

// A monochrome target takes the background colour of the source for white and all other colours for black.
void lvx::controls::GlyphCels::MakeMask(int cel) {
    m_mask.PatBlt(owl::TRect(owl::TPoint(), m_maskSize), WHITENESS);
    m_dc.SetBkColor(system_color(COLOR_BTNFACE));
    m_mask.BitBlt(owl::TRect(owl::TPoint(), m_size), m_dc, m_cels.CelOffset(cel));
}

void lvx::controls::GlyphCels::AddHighlightToMask() {
    m_dc.SetBkColor(system_color(COLOR_BTNHIGHLIGHT));
    m_mask.BitBlt(owl::TRect(owl::TPoint(), m_size), m_dc, m_cels.CelOffset(LVXButtonGadget::NormalCel),
                  SRCPAINT);
}

/// What the mask has in black, in one of the system's colours and so many pixels further down and right.
void lvx::controls::GlyphCels::DrawShape(int cel, int offset, int color) {
    const owl::TPoint corner = m_cels.CelOffset(cel).OffsetBy(offset, offset);
    Mix(owl::TRect(corner, owl::TSize(m_size.cx - offset, m_size.cy - offset)),
        owl::TBrush(system_color(color)), brush_where_mask_is_black);
}

void lvx::controls::GlyphCels::DrawHatch(int cel, const owl::TBrush& hatch) {
    Mix(m_cels.CelRect(cel), owl::TBrush(static_cast<HBRUSH>(hatch), owl::NoAutoDelete),
        brush_where_mask_is_white);
}

void lvx::controls::GlyphCels::Mix(const owl::TRect& where, const owl::TBrush& brush, unsigned long rop) {
    m_dc.SetTextColor(owl::TColor::Black);
    m_dc.SetBkColor(owl::TColor::White);
    m_dc.SelectObject(brush);
    m_dc.BitBlt(where, m_mask, owl::TPoint(), rop);
    m_dc.RestoreBrush();
}
