// lvx/propdlg/masked_blit.h
//
// Pictures that let what is behind them show through. Private to the library.
#pragma once

#include "owl/geometry.h"

namespace owl {
class TBitmap;
class TDC;
}  // namespace owl

namespace lvx::propdlg {

/// Draws the upper half of `bitmap` at `at` of `dc`, where its lower half is black; where that is white, what
/// is there stays, if the picture is black there. Takes `width` columns from `column` on; 0 is all that are
/// left. False, and nothing drawn, if `bitmap` is null or there is no memory for a copy.
bool masked_blit(owl::TDC& dc, const owl::TPoint& at, const owl::TBitmap* bitmap, int column, int width);

}  // namespace lvx::propdlg
