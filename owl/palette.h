// owl/palette.h
//
// A palette: the colours that a device with few of them is asked to show, and that palette indices and
// pictures in palette colours mean. Windows only.
#pragma once

#include "owl/color.h"
#include "owl/gdi_object.h"

namespace owl {

class OWL_EXPORT TPalette : public TGdiObject {
public:
    /// Copies `count` entries, from 1 to 65535; another count throws TXGdi.
    TPalette(const PALETTEENTRY* entries, int count);
    explicit TPalette(const LOGPALETTE& description);
    /// On a palette that exists. A null `handle` is accepted, and cannot be selected.
    explicit TPalette(HPALETTE handle, TAutoDelete autoDelete = NoAutoDelete);
    /// A palette of its own with the same entries. Throws TXGdi if `other` has no handle.
    TPalette(const TPalette& other);
    ~TPalette() override;

    operator HPALETTE() const { return static_cast<HPALETTE>(GetHandle()); }

    /// 0 if the palette has no handle.
    int GetNumEntries() const;
    /// False, with `entry` as it was, if there is no such entry.
    bool GetPaletteEntry(int index, PALETTEENTRY& entry) const;
    /// Copies up to `count` entries from `start` on. Returns how many there were: fewer at the end of the
    /// palette.
    int GetPaletteEntries(int start, int count, PALETTEENTRY* entries) const;
    /// False, and nothing done, if there is no such entry.
    bool SetPaletteEntry(int index, const PALETTEENTRY& entry);
    /// Replaces up to `count` entries from `start` on. Returns how many it did.
    int SetPaletteEntries(int start, int count, const PALETTEENTRY* entries);
    /// The entry nearest to `color`; -1 if the palette has no handle.
    int GetNearestPaletteIndex(TColor color) const;
};

}  // namespace owl
