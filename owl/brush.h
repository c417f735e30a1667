// owl/brush.h
//
// A brush: what surfaces are filled with. Windows only. Does not: copy itself, since the system does not tell
// what a pattern was made of.
#pragma once

#include "owl/color.h"
#include "owl/gdi_object.h"

namespace owl {

class TBitmap;

class OWL_EXPORT TBrush : public TGdiObject {
public:
    /// One colour. With few colours the screen meets it by a dither.
    explicit TBrush(TColor color);
    /// One colour; if `pure`, the nearest one that the screen shows without a dither. A colour that names a
    /// palette, and every colour where the screen has no palette, stays as it is.
    TBrush(TColor color, bool pure);
    /// Lines of `color`; `hatch` is one of the system's HS_ values. Between the lines the context's
    /// background shows.
    TBrush(TColor color, int hatch);
    /// The whole of `pattern`, repeated. It is copied and may go afterwards; a monochrome
    /// one is drawn in the context's text and background colours.
    explicit TBrush(const TBitmap& pattern);
    explicit TBrush(const LOGBRUSH& description);
    /// On a brush that exists. A null `handle` is accepted, and cannot be selected.
    explicit TBrush(HBRUSH handle, TAutoDelete autoDelete = NoAutoDelete);
    ~TBrush() override;

    operator HBRUSH() const { return static_cast<HBRUSH>(GetHandle()); }

    /// Describes the brush. False, with all 0, if it has no handle.
    bool GetObject(LOGBRUSH& description) const;
};

}  // namespace owl
