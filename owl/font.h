// owl/font.h
//
// A font, as asked for: which face the system really gives is known only where it is selected. Windows only.
#pragma once

#include "owl/gdi_object.h"

namespace owl {

class OWL_EXPORT TFont : public TGdiObject {
public:
    explicit TFont(const LOGFONT& description);
    /// On a font that exists, such as a stock one. A null `handle` is accepted, and cannot be selected.
    explicit TFont(HFONT handle, TAutoDelete autoDelete = NoAutoDelete);
    /// A font of its own with the same description. Throws TXGdi if `other` has no handle.
    TFont(const TFont& other);
    ~TFont() override;

    operator HFONT() const { return static_cast<HFONT>(GetHandle()); }

    /// Tells what was asked for. False, with all 0, if the font has no handle.
    bool GetObject(LOGFONT& description) const;
};

}  // namespace owl
