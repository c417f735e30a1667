// lvx/images/turn.h
//
// The work of turning one picture, and two ways to do it: by arithmetic alone, and through a device of the
// system. What they draw is the same but for rounding at the border of the picture: a white ground with a
// black line around it, and on that the picture.
#pragma once

#include <cstddef>
#include <cstdint>

#include "lvx/images/colour_reader.h"
#include "lvx/images/pixel_format.h"
#include "lvx/images/turn_frame.h"
#include "lvx/platform/bitmap_headers.h"

namespace lvx::images {

/// A picture whose block is complete.
struct TurnSource {
    /// The block, which begins with the header.
    const unsigned char* header;
    PixelFormat format;
    ColourTable table;
    const unsigned char* pixels;
    std::size_t stride;
    int width;
    int rows;
    /// Whether the first row is the top one.
    bool is_top_down;
};

/// The block that is made.
struct TurnTarget {
    /// With all that is known of it; of 40 bytes, and without bit fields.
    BITMAPINFOHEADER header;
    PixelFormat format;
    /// Room for the default colours, where the format has a table.
    unsigned char* table;
    /// The bottom row comes first. All 0.
    unsigned char* pixels;
    std::size_t stride;
    int width;
    int height;
    /// How many rows are filled, from the bottom one on.
    int filled_rows;
};

struct TurnTask {
    TurnSource source;
    TurnFrame frame;
    TurnTarget target;
};

/// True if it was done. Throws std::bad_alloc.
using Turner = bool(const TurnTask& task);

/// On every system.
Turner turn_in_memory;

/// Through a bitmap of the screen. False if the system refuses it. Windows only.
Turner turn_on_device;

}  // namespace lvx::images
