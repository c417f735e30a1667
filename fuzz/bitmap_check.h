// Everything that a bitmap says of itself, asked and held against its bytes.
#pragma once

#include <string>

#include "lvx/images/dibitmap.h"

namespace lvx_fuzz {

/// The block as PutTo writes it.
std::string stored_block(const LVXUtilities::DIBitmap& bitmap);

/// What lies from the pixels' address to the end of the block.
std::string stored_pixels(const LVXUtilities::DIBitmap& bitmap);

/// Calls every accessor, reads every byte of block, colour table and pixels through them, and requires that
/// what they say agrees. Returns the size of the block.
std::size_t check_bitmap(const LVXUtilities::DIBitmap& bitmap);

/// Copies, swaps, assigns and stores the bitmap, and requires that the bytes stay.
void check_bitmap_copies(const LVXUtilities::DIBitmap& bitmap);

}  // namespace lvx_fuzz
