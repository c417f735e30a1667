// owl/pen.h
//
// A pen: what lines and outlines are drawn with. Windows only.
#pragma once

#include "owl/color.h"
#include "owl/gdi_object.h"

namespace owl {

class OWL_EXPORT TPen : public TGdiObject {
public:
    /// `width` in logical units, 0 for one pixel always; `style` is one of the system's PS_ values, of which
    /// those with gaps are drawn solid when the pen is wider than a pixel. An unknown style is as the system
    /// takes it.
    explicit TPen(TColor color, int width = 1, int style = PS_SOLID);
    explicit TPen(const LOGPEN& description);
    /// On a pen that exists. A null `handle` is accepted, and cannot be selected.
    explicit TPen(HPEN handle, TAutoDelete autoDelete = NoAutoDelete);
    /// A pen of its own with the same description. Throws TXGdi if `other` is not a plain pen.
    TPen(const TPen& other);
    ~TPen() override;

    operator HPEN() const { return static_cast<HPEN>(GetHandle()); }

    /// Describes the pen. False, with all 0, if it has no handle.
    bool GetObject(LOGPEN& description) const;
};

}  // namespace owl
