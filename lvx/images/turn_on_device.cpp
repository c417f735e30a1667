#include <cstring>
#include <vector>

#include "lvx/images/colour_writer.h"
#include "lvx/images/turn.h"
#include "owl/bitmap.h"
#include "owl/brush.h"
#include "owl/error.h"
#include "owl/memory_dc.h"
#include "owl/pen.h"
#include "owl/window_dc.h"

namespace lvx::images {
namespace {

// A header with room for every colour table: the system writes one whatever the header says of it.
struct InfoWithTable {
    BITMAPINFOHEADER header;
    RGBQUAD table[256];

    BITMAPINFO* Info() { return reinterpret_cast<BITMAPINFO*>(&header); }
};

void draw_ground(owl::TDC& dc, const TurnTarget& target) {
    const owl::TPen pen(owl::TColor::Black, 1);
    const owl::TBrush brush(owl::TColor::Transparent, true);
    dc.SelectObject(pen);
    dc.SelectObject(brush);
    dc.Rectangle(0, 0, target.width, target.height);
    dc.RestoreObjects();
}

void draw_turned(owl::TDC& dc, const TurnTask& task) {
    const TurnFrame& frame = task.frame;
    dc.SetGraphicsMode(GM_ADVANCED);
    dc.SetWorldTransform({frame.cosine, -frame.sine, frame.sine, frame.cosine, frame.dx, frame.dy});
    const owl::TRect all(0, 0, task.source.width, task.source.rows);
    dc.StretchDIBits(all, all, task.source.pixels, reinterpret_cast<const BITMAPINFO*>(task.source.header));
}

void draw(const owl::TBitmap& bitmap, const TurnTask& task) {
    owl::TMemoryDC dc;
    dc.SelectObject(bitmap);
    draw_ground(dc, task.target);
    draw_turned(dc, task);
}

bool read_back(const owl::TBitmap& bitmap, const TurnTarget& target) {
    const owl::TScreenDC screen;
    InfoWithTable info{};
    info.header = target.header;
    const auto rows = static_cast<UINT>(target.filled_rows);
    if (::GetDIBits(screen, bitmap, 0, rows, target.pixels, info.Info(), DIB_RGB_COLORS) == 0) {
        return false;
    }
    if (target.format.HasTable()) {
        std::memcpy(target.table, info.table, sizeof(RGBQUAD) << target.format.depth);
    }
    return true;
}

// Of bit fields no more than the first mask would reach the system with the header, and some take the others
// for colours. So the pixels are read in full and packed here.
bool read_back_fields(const owl::TBitmap& bitmap, const TurnTarget& target) {
    std::vector<std::uint32_t> colours(static_cast<std::size_t>(target.width) *
                                       static_cast<std::size_t>(target.height));
    TurnTarget full = target;
    full.header.biBitCount = 32;
    full.header.biCompression = BI_RGB;
    full.pixels = reinterpret_cast<unsigned char*>(colours.data());
    if (!read_back(bitmap, full)) {
        return false;
    }
    ColourWriter writer(target.format);
    for (std::size_t y = 0; y < static_cast<std::size_t>(target.filled_rows); ++y) {
        writer.Write(&colours[y * static_cast<std::size_t>(target.width)],
                     static_cast<std::size_t>(target.width), target.pixels + y * target.stride);
    }
    return true;
}

}  // namespace

bool turn_on_device(const TurnTask& task) {
    try {
        const owl::TBitmap bitmap(owl::TScreenDC(), task.target.width, task.target.height);
        draw(bitmap, task);
        return task.target.header.biCompression == BI_BITFIELDS ? read_back_fields(bitmap, task.target)
                                                                : read_back(bitmap, task.target);
    } catch (const owl::TXGdi&) {
        return false;
    }
}

}  // namespace lvx::images
