#include "sketch/model/picture_making.h"

#include <cstdlib>
#include <cstring>
#include <new>

#include "lvx/images/global_locker.h"
#include "owl/memory_dc.h"
#include "owl/window_dc.h"
#include "sketch/model/error.h"
#include "sketch/model/packed_bitmap.h"

namespace sketch {
namespace {

using LVXUtilities::DIBitmap;
using LVXUtilities::GlobalLocker;
namespace Rectangles = LVXUtilities::Rectangles;

constexpr std::int64_t most_pixels = 64 * 1024 * 1024;

bool DrawOn(const owl::TBitmap& target, const PackedBitmap& packed) {
    owl::TMemoryDC dc;
    dc.SelectObject(target);
    const owl::TRect all(0, 0, packed.Width(), packed.Height());
    return dc.StretchDIBits(all, all, packed.Bits(), packed.Info());
}

// A picture of 24 bits in memory that is drawn on.
class Section {
public:
    Section(int width, int height)
        : m_header{sizeof m_header, width, height, 1, 24, BI_RGB, 0, 0, 0, 0, 0},
          m_bitmap(::CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&m_header), DIB_RGB_COLORS,
                                      &m_pixels, nullptr, 0),
                   owl::AutoDelete) {
        if (m_pixels == nullptr) {
            throw std::bad_alloc();
        }
    }

    bool Draw(const PackedBitmap& packed) { return DrawOn(m_bitmap, packed); }

    Bitmap ToBitmap() const {
        BITMAP section;
        m_bitmap.GetObject(section);
        const std::size_t size =
            static_cast<std::size_t>(section.bmWidthBytes) * static_cast<std::size_t>(section.bmHeight);
        HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, sizeof m_header + size);
        if (block == nullptr) {
            throw std::bad_alloc();
        }
        {
            const GlobalLocker<char> bytes(block);
            std::memcpy(bytes.get(), &m_header, sizeof m_header);
            std::memcpy(bytes.get() + sizeof m_header, m_pixels, size);
        }
        return std::make_shared<DIBitmap>(block, DIBitmap::Adopt);
    }

private:
    BITMAPINFOHEADER m_header;
    void* m_pixels = nullptr;
    owl::TBitmap m_bitmap;
};

Bitmap PlainColour(const Bitmap& bitmap) {
    const PackedBitmap packed(*bitmap);
    if (packed.IsPlainColour()) {
        return bitmap;
    }
    Section section(packed.Width(), packed.Height());
    if (!section.Draw(packed)) {
        throw DocumentError("The system cannot draw a picture.");
    }
    return section.ToBitmap();
}

// The library counts rows from the bottom one.
Rectangles::Corner CornerInBlock(SeenCorner corner) {
    switch (corner) {
        case UpperLeft:
            return Rectangles::BottomLeft;
        case UpperRight:
            return Rectangles::BottomRight;
        case LowerRight:
            return Rectangles::TopRight;
        default:
            return Rectangles::TopLeft;
    }
}

template <class Pointer>
Bitmap Shared(Pointer made) {
    return Bitmap(made.release());
}

}  // namespace

std::shared_ptr<owl::TBitmap> ForScreen(const DIBitmap& bitmap) {
    const PackedBitmap packed(bitmap);
    auto result = std::make_shared<owl::TBitmap>(owl::TScreenDC(), packed.Width(), packed.Height());
    if (!DrawOn(*result, packed)) {
        throw DocumentError("The system cannot draw a picture.");
    }
    return result;
}

Bitmap Skewed(const Bitmap& bitmap, const Skew& skew) {
    if (skew.IsNone()) {
        return bitmap;
    }
    const std::int64_t width = std::int64_t{bitmap->GetWidth()} + std::abs(skew.dx);
    const std::int64_t height = std::int64_t{std::abs(bitmap->GetHeight())} + std::abs(skew.dy);
    if (width * height > most_pixels) {
        throw DocumentError("The skewed picture would be too large.");
    }
    return Shared(PlainColour(bitmap)->SkewPoint(CornerInBlock(skew.corner), skew.dx, -skew.dy));
}

Bitmap Turned(const Bitmap& bitmap, double angle) {
    if (angle == 0) {
        return bitmap;
    }
    // In full colours: the turned picture of one with a colour table gets the system's own table.
    Bitmap turned = Shared(PlainColour(bitmap)->Rotated(angle));
    if (turned == nullptr) {
        throw DocumentError("The system cannot turn a picture.");
    }
    return turned;
}

}  // namespace sketch
