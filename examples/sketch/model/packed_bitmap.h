// The bytes of a DIBitmap, checked: header, colours and pixels as the system's calls take them. A block out
// of a damaged document may claim more than it holds, and those calls believe it.
#pragma once

#include <windows.h>

#include <string>

#include "lvx/images/dibitmap.h"

namespace sketch {

class PackedBitmap {
public:
    /// A copy of the block. Throws DocumentError if it is empty, of a kind that is not drawn (a run-length
    /// code, an unknown depth), or shorter than what its header says.
    explicit PackedBitmap(const LVXUtilities::DIBitmap& bitmap);

    const BITMAPINFO* Info() const { return reinterpret_cast<const BITMAPINFO*>(m_bytes.data()); }
    const void* Bits() const { return m_bytes.data() + m_pixelsAt; }
    int Width() const { return m_width; }
    /// Never negative.
    int Height() const { return m_height; }
    /// Whether the pixels are 24 or 32 bits as they are, the bottom row first: as SkewPoint wants them.
    bool IsPlainColour() const { return m_isPlainColour; }

private:
    std::string m_bytes;
    std::size_t m_pixelsAt = 0;
    int m_width = 0;
    int m_height = 0;
    bool m_isPlainColour = false;
};

}  // namespace sketch
