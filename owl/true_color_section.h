// owl/true_color_section.h
//
// A picture in memory that the system draws on and whose pixels can be read and written: 32 bits each, the
// upper row first, blue in the lowest byte. Private to the framework; Windows only.
#pragma once

#include <windows.h>

#include <cstdint>

#include "owl/geometry.h"

namespace owl {

/// What the system is told about pixels in this form, `height` rows of them from the top.
BITMAPINFO TrueColorInfo(int width, int height);

class TrueColorSection {
public:
    /// Black. Without a handle and pixels, see IsGood(), if there is no room for it or a side is not above 0.
    TrueColorSection(int width, int height);
    ~TrueColorSection();
    TrueColorSection(const TrueColorSection&) = delete;
    TrueColorSection& operator=(const TrueColorSection&) = delete;

    bool IsGood() const { return m_before != nullptr; }
    /// The context that draws on it.
    HDC GetHDC() const { return m_dc; }
    TSize Size() const { return m_size; }
    /// The upper left pixel, after all drawing has arrived. Null unless IsGood().
    const std::uint32_t* Pixels() const;

private:
    TSize m_size;
    std::uint32_t* m_pixels = nullptr;
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_before = nullptr;
};

}  // namespace owl
