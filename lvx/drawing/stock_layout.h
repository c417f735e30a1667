// lvx/drawing/stock_layout.h
//
// The measures that a layout in units of the system's font is made of.
#pragma once

namespace lvx::drawing {

struct StockLayout {
    int width;
    int height;
    /// From line to line.
    int lineSpace;
    /// A horizontal unit of dialogs: a quarter of the width, rounded up.
    int horizontalUnit;
    /// A vertical one: an eighth of the height, rounded up.
    int verticalUnit;
};

/// Of a font with characters of these measures.
constexpr StockLayout stock_layout(int width, int height) {
    return {width, height, static_cast<int>(height * 1.8), (width + 3) >> 2, (height + 7) >> 3};
}

}  // namespace lvx::drawing
