// Figures on the clipboard: as objects for this program, as pictures and texts for others.
#pragma once

#include <windows.h>

#include "lvx/drawing/my_font.h"
#include "sketch/model/figure.h"
#include "sketch/model/look.h"

namespace sketch {

/// Puts `figure` there in the place of all that was: itself, its picture, and, of a text, its words. False if
/// another program has the clipboard open. A picture that would be too large is left out.
bool CopyFigure(HWND window, const Figure& figure);

/// Whether there is something that PasteFigure knows.
bool CanPaste();

/// A figure of what is there: the one that was copied, or a picture of another program's, or a text in `font`
/// and `look`, with their upper left corner at `place`. Null if there is none of them, or another program has
/// the clipboard open. Throws DocumentError for what is damaged, std::bad_alloc.
std::shared_ptr<Figure> PasteFigure(HWND window, const myFont& font, const Look& look,
                                    const owl::TPoint& place);

}  // namespace sketch
