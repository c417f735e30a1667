// Whether a picture out of a document is all there.
//
// The library draws a block that is shorter than its header says, with zeros for what is missing. Here that
// is a damaged document, and its user is to know before saving over what may still be mended: so the block is
// measured once, when the picture comes in. Run-length codes are refused as well: nobody can tell where they
// end before they are drawn.
#pragma once

#include "lvx/images/dibitmap.h"

namespace sketch {

/// Throws DocumentError if the block is empty, of a kind that is not drawn here, or shorter than what its
/// header says.
void CheckPicture(const LVXUtilities::DIBitmap& bitmap);

}  // namespace sketch
