// Pictures onto devices.
#include <windows.h>

#include "lvx/drawing/region.h"
#include "lvx/images/dibitmap.h"
#include "lvx/images/dibitmap_strategy.h"
#include "lvx/images/drawable_block.h"
#include "owl/bitmap.h"
#include "owl/memory_dc.h"
#include "owl/palette.h"

namespace LVXUtilities {
namespace {

using lvx::images::DrawableBlock;

constexpr XFORM identity = {1, 0, 0, 1, 0, 0};

// Clips to the region of a shape, and to nothing at its end.
class ClippedTo {
public:
    ClippedTo(owl::TDC& dc, const LVXRegion* clip) : m_dc(dc), m_clips(clip != nullptr) {
        if (m_clips) {
            ::SelectClipRgn(dc, *clip);
        }
    }
    ~ClippedTo() {
        if (m_clips) {
            m_dc.SelectClipRgn();
        }
    }
    ClippedTo(const ClippedTo&) = delete;
    ClippedTo& operator=(const ClippedTo&) = delete;

private:
    owl::TDC& m_dc;
    bool m_clips;
};

// Turns the world about a point, and puts it in order at its end.
class TurnedAbout {
public:
    TurnedAbout(owl::TDC& dc, const owl::TPoint& pivot, double cosine, double sine) : m_dc(dc) {
        const auto c = static_cast<float>(cosine);
        const auto s = static_cast<float>(sine);
        m_dc.SetGraphicsMode(GM_ADVANCED);
        m_dc.SetWorldTransform({c, -s, s, c, static_cast<float>(pivot.x), static_cast<float>(pivot.y)});
    }
    ~TurnedAbout() {
        m_dc.ModifyWorldTransform(identity, MWT_IDENTITY);
        m_dc.SetGraphicsMode(GM_COMPATIBLE);
    }
    TurnedAbout(const TurnedAbout&) = delete;
    TurnedAbout& operator=(const TurnedAbout&) = delete;

private:
    owl::TDC& m_dc;
};

owl::TRect edges(const LVXRectangle& rectangle) {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    rectangle.get(RectCorners, &left, &top, &right, &bottom);
    return owl::TRect(left, top, right, bottom);
}

void draw(owl::TDC& dc, const DrawableBlock& picture, const owl::TRect& dest, const owl::TRect& src,
          unsigned long rop) {
    dc.StretchDIBits(dest, src, picture.Pixels(), picture.Info(), DIB_RGB_COLORS, rop);
}

}  // namespace

lvx::auto_ptr<owl::TBitmap> DIBitmap::MakeBitmap(const owl::TDC& dc) const {
    const DrawableBlock picture(m_block, m_strategy->GetClrTabSize(m_block));
    if (!picture.IsGood()) {
        return {};
    }
    owl::TBitmap made(::CreateDIBitmap(dc, &picture.Info()->bmiHeader, CBM_INIT, picture.Pixels(),
                                       picture.Info(), DIB_RGB_COLORS),
                      owl::AutoDelete);
    if (made.GetHandle() == nullptr) {
        return {};
    }
    lvx::auto_ptr<owl::TBitmap> bitmap(new owl::TBitmap(made, owl::AutoDelete));
    made.Detach();
    return bitmap;
}

lvx::auto_ptr<owl::TPalette> DIBitmap::MakePalette() const {
    return m_block == nullptr ? lvx::auto_ptr<owl::TPalette>() : m_strategy->MakePalette(m_block);
}

void DIBitmap::StretchDIBits(owl::TDC& dc, const owl::TRect& dest, const owl::TRect& src, unsigned long rop,
                             LVXRegion* clip) const {
    const DrawableBlock picture(m_block, m_strategy->GetClrTabSize(m_block));
    const ClippedTo clipped(dc, clip);
    draw(dc, picture, dest, src, rop);
}

void DIBitmap::StretchDIBits(owl::TDC& dc, const owl::TRect& dest, const owl::TRect& src, double cosine,
                             double sine, unsigned long rop, LVXRegion* clip) const {
    const DrawableBlock picture(m_block, m_strategy->GetClrTabSize(m_block));
    const ClippedTo clipped(dc, clip);
    const TurnedAbout turned(dc, dest.TopLeft(), cosine, sine);
    draw(dc, picture, edges(LVXRectangle(RectSize, 0, 0, dest.Width(), dest.Height())), src, rop);
}

void DIBitmap::AlphaBlend(owl::TDC& dc, const owl::TRect& dest, const owl::TRect& src) const {
    const lvx::auto_ptr<owl::TBitmap> bitmap = MakeBitmap(dc);
    if (bitmap.get() == nullptr) {
        return;
    }
    constexpr BLENDFUNCTION by_the_fourth_byte = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    try {
        owl::TMemoryDC source(dc);
        source.SelectObject(*bitmap);
        ::AlphaBlend(dc, dest.X(), dest.Y(), dest.Width(), dest.Height(), source, src.X(), src.Y(),
                     src.Width(), src.Height(), by_the_fourth_byte);
    } catch (const owl::TXGdi&) {
        // The system is out of contexts.
    }
}

}  // namespace LVXUtilities
