// lvx/controls/etched_static.h
//
// Static controls whose resources are older than etched lines: rectangles and frames of one colour become
// those. Private to the library. Windows only.
#pragma once

#include <windows.h>

namespace lvx::controls {

/// The style that takes the place of `style`: its kind, in the lower five bits, is another if it is a
/// rectangle or a frame. `isWide` says that the control is wider than high.
DWORD etched_style(DWORD style, bool isWide);

/// Gives `control` that style, if its window class is the one of static controls. What becomes a line gets
/// the shape of one, too: as long as before, and as thick as lines are, at its upper or left edge.
void etch_static(HWND control);

}  // namespace lvx::controls
