// owl/turned_blit.h
//
// Draws pictures through a world transform that turns or shears, on platforms that do not do so themselves:
// some draw a sliver of the picture instead and report success. Whether this platform can is found out once
// in each process, by drawing a probe; where it can, nothing here is used.
//
// The picture is turned by turned_picture.h into strips of the device's own pixels, and each strip is drawn
// untransformed, clipped to what the picture covers, with the raster operation that was asked for. That is
// the same for windows, memory, printers and metafiles: a printer gets strips at its own resolution, and an
// enhanced metafile records strips at the resolution of its reference device. (Metafiles of the older kind
// have no world transform.) Private to the framework; Windows only. Does not: know contexts that are laid out
// from right to left.
#pragma once

#include <windows.h>

#include "owl/geometry.h"

namespace owl {

/// Whether pictures that are drawn on `dc` now have to be turned by StretchTurned...: its transform turns or
/// shears, and the platform cannot.
bool NeedsTurnedPictures(HDC dc);

/// Whether the platform itself turns pictures, as the probe found.
bool PlatformTurnsPictures();

/// As StretchDIBits. False, and nothing drawn, if `src` reaches beyond the picture.
bool StretchTurnedDIBits(HDC dc, const TRect& dest, const TRect& src, const void* bits,
                         const BITMAPINFO* info, unsigned int usage, unsigned long rop);

/// As StretchBlt from `source`.
bool StretchTurned(HDC dc, const TRect& dest, HDC source, const TRect& from, unsigned long rop);

}  // namespace owl
