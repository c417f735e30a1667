// owl/memory_dc.h
//
// A context that draws on a bitmap. Until one is selected it has a bitmap of one black or white pixel. The
// context owns no bitmap; at its end it lets go of the one that is selected. Windows only.
#pragma once

#include "owl/dc.h"

namespace owl {

class TBitmap;

class OWL_EXPORT TMemoryDC : public TDC {
public:
    /// Fit for bitmaps of the screen.
    TMemoryDC();
    /// Fit for bitmaps of the device of `dc`; of a TMetaFileDC, which has no device, for those of the screen.
    explicit TMemoryDC(const TDC& dc);
    ~TMemoryDC() override;

    using TDC::SelectObject;
    /// Draws on `bitmap` from now on. Throws TXGdi if another context has it, or if its depth is not this
    /// device's.
    void SelectObject(const TBitmap& bitmap);
    /// Lets go of the bitmap, which can then be selected elsewhere. Nothing happens if there is none.
    void RestoreBitmap();

private:
    HGDIOBJ m_originalBitmap = nullptr;
};

}  // namespace owl
