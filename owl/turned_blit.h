// owl/turned_blit.h
//
// Draws pictures through a world transform that turns, shears or mirrors, on platforms that do not do so
// themselves: some draw a sliver of the picture instead and report success, or lay a mirrored one a pixel
// beside its edges. Whether this platform can is found out once in each process, by drawing a probe; where it
// can, nothing here is used.
//
// The picture is turned by turned_picture.h into strips of the device's own pixels, and each strip is drawn
// untransformed, clipped to what the picture covers, with the raster operation that was asked for. That is
// the same for windows, memory, printers and metafiles: a printer gets strips at its own resolution, and an
// enhanced metafile records strips at the resolution of its reference device. (Metafiles of the older kind
// have no world transform.) Private to the framework; Windows only. Does not: know contexts that are laid out
// from right to left; make a monochrome surface white where a picture has the background colour; leave out
// the pixels that run lengths skip, which are black.
#pragma once

#include <windows.h>

#include "owl/geometry.h"

namespace owl {

/// Whether pictures that are drawn on `dc` now have to be turned by StretchTurned...: its transform turns,
/// shears or mirrors, and the platform cannot.
bool NeedsTurnedPictures(HDC dc);

/// Whether the platform itself turns pictures, as the probe found.
bool PlatformTurnsPictures();
/// Likewise, whether it mirrors them exactly.
bool PlatformMirrorsPictures();

/// As StretchDIBits: of a `src` that reaches beyond the picture the part that there is. False, and nothing
/// drawn, if the picture makes no sense, or if it would take an enhanced metafile more than 2^26 pixels.
bool StretchTurnedDIBits(HDC dc, const TRect& dest, const TRect& src, const void* bits,
                         const BITMAPINFO* info, unsigned int usage, unsigned long rop);

/// As StretchBlt from `source`. False, and nothing drawn, if that one's transform turns or shears itself.
bool StretchTurned(HDC dc, const TRect& dest, HDC source, const TRect& from, unsigned long rop);

}  // namespace owl
