// owl/turned_area.h
//
// Fills and clips to rectangles and regions through a world transform that turns, shears or mirrors, on
// platforms that do not do so themselves: some fill the upright rectangle between two turned corners instead,
// and report success. Outlines and shapes with a pen they do turn. As with pictures (turned_blit.h) a probe
// finds out once in each process whether this platform can.
//
// An area is turned into a region of the device's pixels: those whose middle, taken back, lies in it. Areas
// that touch do so turned too, without a gap and without a pixel in common. Private to the framework; Windows
// only. Does not: turn the pattern of a brush, as no platform does.
#pragma once

#include <windows.h>

#include "owl/geometry.h"

namespace owl {

/// Whether areas on `dc` have to be turned by the functions below now.
bool NeedsTurnedAreas(HDC dc);

/// Whether the platform itself turns and mirrors areas, as the probe found.
bool PlatformTurnsAreas();

/// The pixels of the device, as far as they can be seen, that `rect` covers. The caller deletes it. Null if
/// it would have too many rows, or the system refuses it.
HRGN TurnedArea(HDC dc, const TRect& rect);
/// Likewise of a region in logical units, such as those that are painted.
HRGN TurnedArea(HDC dc, HRGN region);

/// As PatBlt with the selected brush. An area of nothing succeeds.
bool FillTurned(HDC dc, const TRect& rect, unsigned long rop);
bool FillTurned(HDC dc, HRGN region, unsigned long rop);

/// Clips to what is common with the rectangle (RGN_AND) or what is outside of it (RGN_DIFF). Tells the kind
/// of the new clip region; ERROR if that failed.
int ClipTurned(HDC dc, const TRect& rect, int mode);

/// Whether a pixel of the rectangle is inside of the clip region.
bool IsTurnedVisible(HDC dc, const TRect& rect);

/// The border of a region that is painted, so wide at its sides and so high above and below. The caller
/// deletes it. Null if there is no such region.
HRGN FrameOf(HRGN region, const TSize& width);

}  // namespace owl
