// Figures of the example host for its tests.
#pragma once

#include <windows.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "lvx/drawing/my_font.h"
#include "lvx/images/dibitmap.h"
#include "sketch/model/look.h"
#include "sketch/model/picture.h"

namespace sketch_test {

inline sketch::Bitmap BitmapOf(const std::string& block) {
    HGLOBAL handle = ::GlobalAlloc(GMEM_MOVEABLE, block.size());
    std::memcpy(::GlobalLock(handle), block.data(), block.size());
    ::GlobalUnlock(handle);
    return std::make_shared<LVXUtilities::DIBitmap>(handle, LVXUtilities::DIBitmap::Adopt);
}

inline std::string Header(int width, int height, int bits) {
    const BITMAPINFOHEADER header{
        sizeof header, width, height, 1, static_cast<WORD>(bits), BI_RGB, 0, 0, 0, 0, 0};
    return {reinterpret_cast<const char*>(&header), sizeof header};
}

// Of 24 bits, all in one colour.
inline sketch::Bitmap PlainBitmap(int width, int height, COLORREF colour = RGB(255, 0, 0)) {
    std::string block = Header(width, height, 24);
    const std::size_t stride = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
    for (int y = 0; y < height; ++y) {
        std::string row(stride, '\0');
        for (std::size_t x = 0; x < static_cast<std::size_t>(width); ++x) {
            row[x * 3] = static_cast<char>(GetBValue(colour));
            row[x * 3 + 1] = static_cast<char>(GetGValue(colour));
            row[x * 3 + 2] = static_cast<char>(GetRValue(colour));
        }
        block += row;
    }
    return BitmapOf(block);
}

inline sketch::Picture PlainPicture(int width = 100, int height = 50) {
    return {PlainBitmap(width, height), "plain", {10, 20}};
}

inline std::vector<owl::TPoint> PlacesOf(const sketch::Figure& figure) {
    std::vector<owl::TPoint> places;
    for (const sketch::Handle& handle : figure.Handles()) {
        places.push_back(handle.place);
    }
    return places;
}

inline sketch::Look SomeLook() {
    sketch::Look look;
    look.lineWidth = 3;
    look.line = LineInsideFrame;
    look.lineColour = owl::TColor(1, 2, 3);
    look.filled = true;
    look.fill = FillCross;
    look.fillColour = owl::TColor(4, 5, 6);
    return look;
}

inline myFont SomeFont() {
    return {"Arial", 10.5, true, false, true, false};
}

}  // namespace sketch_test
