#include "sketch/model/picture_making.h"

#include <cstdlib>

#include "owl/dc.h"
#include "owl/window_dc.h"
#include "sketch/model/error.h"
#include "sketch/model/plain_sheet.h"

namespace sketch {
namespace {

using LVXUtilities::DIBitmap;
namespace Rectangles = LVXUtilities::Rectangles;

// The library turns and skews blocks as they are: one with a colour table would get other colours, one with
// the top row first would be skewed upside down. So any other than the plainest is drawn into a plain one.
Bitmap PlainColour(const Bitmap& bitmap) {
    if (bitmap->GetBitsPerPixel() == 24 && bitmap->GetHeight() > 0) {
        return bitmap;
    }
    const owl::TRect all(0, 0, bitmap->GetWidth(), std::abs(bitmap->GetHeight()));
    PlainSheet sheet(all.Size());
    owl::TDC* const dc = sheet.AcquireDC();
    bitmap->StretchDIBits(*dc, all, all, SRCCOPY, nullptr);
    sheet.ReleaseDC();
    return std::make_shared<DIBitmap>(sheet.MakeBlock(), DIBitmap::Adopt);
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
    std::shared_ptr<owl::TBitmap> made(bitmap.MakeBitmap(owl::TScreenDC()).release());
    if (made == nullptr) {
        throw DocumentError("The system cannot draw a picture.");
    }
    return made;
}

Bitmap Skewed(const Bitmap& bitmap, const Skew& skew) {
    if (skew.IsNone()) {
        return bitmap;
    }
    const std::int64_t width = std::int64_t{bitmap->GetWidth()} + std::abs(skew.dx);
    const std::int64_t height = std::int64_t{std::abs(bitmap->GetHeight())} + std::abs(skew.dy);
    if (width * height > PlainSheet::most_pixels) {
        throw DocumentError("The skewed picture would be too large.");
    }
    return Shared(PlainColour(bitmap)->SkewPoint(CornerInBlock(skew.corner), skew.dx, -skew.dy));
}

Bitmap Turned(const Bitmap& bitmap, double angle) {
    if (angle == 0) {
        return bitmap;
    }
    Bitmap turned = Shared(PlainColour(bitmap)->Rotated(angle));
    if (turned == nullptr) {
        throw DocumentError("The system cannot turn a picture.");
    }
    return turned;
}

}  // namespace sketch
